#include "ModbusFiles.h"

#include "ControllerXml.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int HighestUnit = 255;
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

} // namespace

std::vector<RegisterBlock> readRegisterBlocks(const QByteArray& mappingXml, const char* mode)
{
    std::vector<RegisterBlock> blocks;
    pugi::xml_document document;
    const pugi::xml_node bus = ControllerXml::load(mappingXml, "FieldbusConfig", document)
                                   .find_child_by_attribute("Mode", "name", mode)
                                   .find_child_by_attribute("Bus", "name", "ModbusTcpSlave");
    for (const pugi::xml_node& area : bus.children("Area")) {
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
