#include "RoleFiles.h"

#include "BusRoles.h"

#include <pugixml.hpp>

#include <string>

namespace {

bool load(const QByteArray& bytes, const char* root, pugi::xml_document& document)
{
    return document.load_buffer(bytes.constData(), static_cast<std::size_t>(bytes.size()), pugi::parse_full,
                                pugi::encoding_utf8) &&
           document.child(root);
}

class ByteWriter : public pugi::xml_writer
{
public:
    void write(const void* data, std::size_t size) override
    {
        bytes.append(static_cast<const char*>(data), static_cast<int>(size));
    }
    QByteArray bytes;
};

QByteArray save(const pugi::xml_document& document)
{
    ByteWriter writer;
    document.save(writer, "\t", pugi::format_indent, pugi::encoding_utf8);
    return writer.bytes;
}

} // namespace

bool readRoles(const QByteArray& fieldbusXml, QMap<QString, bool>& roles)
{
    pugi::xml_document document;
    if (!load(fieldbusXml, "Fieldbus", document))
        return false;
    roles.clear();
    for (const pugi::xml_node& bus : document.child("Fieldbus").children("Bus")) {
        const QString name = QString::fromUtf8(bus.attribute("name").value());
        // Of two entries with one name the first counts.
        if (!name.isEmpty() && !roles.contains(name))
            roles.insert(name, bus.attribute("enable").as_int() == 1);
    }
    return true;
}

QByteArray rolesWith(const QByteArray& fieldbusXml, const QString& role, bool on)
{
    pugi::xml_document document;
    if (!load(fieldbusXml, "Fieldbus", document))
        return {};
    const pugi::xml_node bus =
        document.child("Fieldbus").find_child_by_attribute("Bus", "name", role.toUtf8());
    pugi::xml_attribute enable = bus.attribute("enable");
    return enable.set_value(on ? "1" : "0") ? save(document) : QByteArray();
}

QByteArray switchFileWithRoles(const QByteArray& fieldbusCfg, const QMap<QString, bool>& roles)
{
    pugi::xml_document document;
    if (!load(fieldbusCfg, "FieldbusSettingConfig", document))
        return {};
    bool changed = false;
    for (const pugi::xml_node& entry : document.child("FieldbusSettingConfig").children()) {
        const auto role = roles.constFind(QString::fromUtf8(entry.attribute("name").value()));
        pugi::xml_node enable = entry.child("enable");
        if (role == roles.constEnd() || !enable || (enable.text().as_int() == 1) == role.value())
            continue;
        enable.text().set(role.value() ? "1" : "0");
        changed = true;
    }
    return changed ? save(document) : QByteArray();
}

bool readHeartbeat(const QByteArray& heartbeatXml, QMap<QString, HeartbeatWatch>& watches)
{
    pugi::xml_document document;
    if (!load(heartbeatXml, "Fidbus", document))
        return false;
    const pugi::xml_node root = document.child("Fidbus");
    for (const BusRole& role : LinkedBusRoles) {
        const std::string key = role.heartbeatKey;
        const pugi::xml_node bus = root.child(role.heartbeatKey);
        watches.insert(QLatin1String(role.name), {bus.child((key + "_Nod_Switch").c_str()).text().as_bool(),
                                                  bus.child((key + "_Timeout").c_str()).text().as_double()});
    }
    return true;
}
