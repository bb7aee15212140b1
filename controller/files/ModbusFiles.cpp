#include "ModbusFiles.h"

#include "ControllerXml.h"

#include <algorithm>
#include <cmath>

namespace {

// Laxer than the page of the master, which offers 0 to 125: a device takes what the protocol can say.
constexpr int HighestUnit = 255;
// The page's own limits. A file that was written by hand is put within them, not refused.
constexpr int ShortestTimeoutMs = 100;
constexpr int LongestTimeoutMs = 10000;
constexpr int LongestAliveMs = 24 * 3600 * 1000;

QByteArray textOf(const pugi::xml_node& group, const char* element)
{
    return QByteArray(group.child(element).text().get()).trimmed();
}

// Seconds as milliseconds, 0 for what is no time.
int milliseconds(const QByteArray& seconds, int longest)
{
    const double value = seconds.toDouble() * 1000.0;
    return std::isfinite(value) && value > 0.0 ? static_cast<int>(std::min<double>(value, longest)) : 0;
}

pugi::xml_node slaveBus(const QByteArray& mappingXml, const char* mode, pugi::xml_document& document)
{
    return ControllerXml::load(mappingXml, "FieldbusConfig", document)
        .find_child_by_attribute("Mode", "name", mode)
        .find_child_by_attribute("Bus", "name", "ModbusTcpSlave");
}

struct TypeOfVariable
{
    const char* inFile;
    const char* suffix;
    int elements;  // of one entry
    int registers; // of one entry
};

// As MappedVariable::Type counts.
constexpr TypeOfVariable Types[] = {{"Bool", "_b", 16, 1}, {"Int", "_i", 1, 1}, {"Float", "_f", 1, 2}};

// The variables of one row of the mapping; what makes no sense has none.
void appendVariables(const pugi::xml_node& row, const QString& prefix, const pugi::xml_node& texts,
                     std::vector<MappedVariable>& variables)
{
    int type = 0;
    while (type < 3 && qstrcmp(row.attribute("type").value(), Types[type].inFile) != 0)
        ++type;
    const int first = row.attribute("start").as_int() - FirstHoldingRegister;
    const int last = row.attribute("end").as_int() - FirstHoldingRegister;
    if (type == 3 || first < 0 || last > LastHoldingRegister - FirstHoldingRegister)
        return;
    const TypeOfVariable& kind = Types[type];
    const QString group = prefix + QLatin1String(kind.suffix);
    const pugi::xml_node named = texts.find_child_by_attribute("Group", "name", group.toUtf8().constData());
    int element = 0;
    for (int at = first; at + kind.registers - 1 <= last; at += kind.registers, element += kind.elements) {
        const pugi::xml_node text =
            named.find_child_by_attribute("Variable", "index", QByteArray::number(element).constData());
        const QString range = kind.elements == 1
                                  ? QString::number(element)
                                  : QStringLiteral("%1..%2").arg(element).arg(element + kind.elements - 1);
        variables.push_back({at, static_cast<MappedVariable::Type>(type),
                             QStringLiteral("%1[%2] %3")
                                 .arg(group, range, QString::fromUtf8(text.attribute("text").value()))
                                 .trimmed()});
    }
}

} // namespace

std::vector<MappedVariable> readMappedVariables(const QByteArray& mappingXml, const QByteArray& textsXml,
                                                const char* mode)
{
    std::vector<MappedVariable> variables;
    pugi::xml_document mapping;
    pugi::xml_document textDocument;
    const pugi::xml_node texts = ControllerXml::load(textsXml, "UserDescription", textDocument);
    for (const pugi::xml_node& area : slaveBus(mappingXml, mode, mapping).children("Area")) {
        const QString direction = QString::fromUtf8(area.attribute("direction").value());
        for (const pugi::xml_node& row : area.children()) {
            const bool isSystem = qstrcmp(row.name(), "System") == 0;
            appendVariables(row,
                            (isSystem ? QStringLiteral("mtcp_sys_") : QStringLiteral("mtcp_")) + direction,
                            texts, variables);
        }
    }
    return variables;
}

std::vector<RegisterBlock> readRegisterBlocks(const QByteArray& mappingXml, const char* mode)
{
    std::vector<RegisterBlock> blocks;
    pugi::xml_document document;
    for (const pugi::xml_node& area : slaveBus(mappingXml, mode, document).children("Area")) {
        const long long first = area.attribute("start").as_llong();
        const long long last = area.attribute("end").as_llong();
        // What the robot only sets ("wo") is not a client's to write.
        const bool writable = qstrcmp(area.attribute("direction").value(), "wo") != 0;
        if (first >= FirstHoldingRegister && first <= last && last <= LastHoldingRegister)
            blocks.push_back({static_cast<int>(first) - FirstHoldingRegister,
                              static_cast<int>(last - first) + 1, writable});
    }
    return blocks;
}

std::optional<MasterSettings> readMasterSettings(const QByteArray& masterXml)
{
    pugi::xml_document document;
    const pugi::xml_node group =
        ControllerXml::load(masterXml, "MtcpMasterCommunication", document).child("Group");
    bool portIsNumber = false;
    bool unitIsNumber = false;
    MasterSettings settings;
    settings.port = textOf(group, "SlavePort").toUShort(&portIsNumber);
    settings.unit = textOf(group, "SlaveId").toInt(&unitIsNumber);
    settings.timeoutMs = milliseconds(textOf(group, "TimeOut"), LongestTimeoutMs);
    settings.aliveMs = milliseconds(textOf(group, "Alivetime"), LongestAliveMs);
    const bool isAddress = settings.address.setAddress(QString::fromLatin1(textOf(group, "SlaveIp"))) &&
                           settings.address.protocol() == QAbstractSocket::IPv4Protocol;
    if (!isAddress || !portIsNumber || settings.port == 0 || !unitIsNumber || settings.unit < 0 ||
        settings.unit > HighestUnit || settings.timeoutMs == 0)
        return {};
    settings.timeoutMs = std::max(settings.timeoutMs, ShortestTimeoutMs);
    if (settings.aliveMs > 0)
        settings.aliveMs = std::max(settings.aliveMs, ShortestTimeoutMs);
    return settings;
}
