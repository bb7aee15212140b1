#include "BusSwitchFile.h"

#include "RoleTable.h"
#include "XmlFile.h"

#include <QStringList>

namespace {

constexpr const char* RootElement = "FieldbusSettingConfig";

// The PROFINET master keeps its flag: a file that does not list the role says nothing about it, and the
// pages count on what an earlier file said.
void clearAllButProfinetMaster(BusSwitchSet& switches)
{
    const bool profinetMaster = switches.ProfinetMaster;
    switches = BusSwitchSet();
    switches.ProfinetMaster = profinetMaster;
}

// Nothing is escaped when the file is saved, and values are put into double quotes: one of those in a value
// has to be escaped before, or the file would be broken.
struct QuoteEscaper : pugi::xml_tree_walker
{
    bool for_each(pugi::xml_node& node) override
    {
        for (pugi::xml_attribute attribute : node.attributes()) {
            QByteArray value = attribute.value();
            if (value.contains('"'))
                attribute.set_value(value.replace('"', "&quot;").constData());
        }
        return true;
    }
};

} // namespace

bool BusSwitchFile::read(const QByteArray& content, BusSwitchSet& switches, bool isImport, bool* recognised)
{
    pugi::xml_document document;
    if (!XmlFile::load(content, document))
        return false;
    readFrom(document, switches, isImport, recognised);
    return true;
}

void BusSwitchFile::readFrom(const pugi::xml_document& document, BusSwitchSet& switches, bool isImport,
                             bool* recognised)
{
    clearAllButProfinetMaster(switches);
    bool anyRole = false;
    QStringList enabledNames;
    for (const pugi::xml_node entry : document.child(RootElement).children()) {
        const QString name = QString::fromUtf8(entry.attribute("name").value());
        anyRole = anyRole || !name.isEmpty();
        if (entry.child("enable").text().as_int() == 1)
            enabledNames.append(name);
        if (isImport &&
            name.contains(QLatin1String(RoleTable::nameOf(RoleId::ModbusTcpMaster)), Qt::CaseInsensitive))
            switches.ModbusTcpMasterListed = true;
    }
    for (const RoleInfo& role : RoleTable::Roles) {
        if (role.switchFlag && enabledNames.contains(QLatin1String(role.name), role.spelling))
            switches.*role.switchFlag = true;
    }
    if (recognised)
        *recognised = anyRole;
}

// The file is the controller's: its spelling and order stay, and only one entry is ever changed.
QByteArray BusSwitchFile::rewritten(const QByteArray& content)
{
    pugi::xml_document document;
    // What is not understood here is the controller's, and is written back.
    constexpr unsigned Whole = pugi::parse_pi | pugi::parse_cdata | pugi::parse_doctype;
    if (!XmlFile::load(content, document, Whole))
        return {};
    for (const pugi::xml_node entry : document.child(RootElement).children()) {
        const QString name = QString::fromUtf8(entry.attribute("name").value());
        if (name.compare(QLatin1String(RoleTable::nameOf(RoleId::ProfinetSlave)), Qt::CaseInsensitive) == 0)
            entry.child("enable").first_child().set_value("0");
    }
    QuoteEscaper escaper;
    document.traverse(escaper);
    return XmlFile::bytes(document, pugi::format_no_escapes);
}
