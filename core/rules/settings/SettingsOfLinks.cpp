// The host links and the network ports.

#include "FinsClientFile.h"
#include "MesServerFile.h"
#include "PortAddressFile.h"
#include "SettingCells.h"

namespace Settings {

namespace {

constexpr const char* MesModes[] = {"ASK", "BROADCAST"};
constexpr const char* MesProtocols[] = {"ROBOT", "AUX"};

QString portText(int index)
{
    return QLatin1String(PortAddressFile::nameOf(index));
}

constexpr Cell<MesServerConfig> MesCells[] = {
    {QT_TRANSLATE_NOOP("Settings", "port"), [](const MesServerConfig& record) { return record.Port; }},
    {QT_TRANSLATE_NOOP("Settings", "mode"),
     [](const MesServerConfig& record) { return choiceText(QString::number(record.Mode), MesModes); }},
    {QT_TRANSLATE_NOOP("Settings", "protocol"),
     [](const MesServerConfig& record) {
         return choiceText(QString::number(record.Protocol), MesProtocols);
     }},
    {QT_TRANSLATE_NOOP("Settings", "interval"),
     [](const MesServerConfig& record) { return withUnit(QString::number(record.IntervalTime), "ms"); }},
    {QT_TRANSLATE_NOOP("Settings", "network port"),
     [](const MesServerConfig& record) { return portText(record.IpPortIndex); }},
};

constexpr Cell<FinsClientConfig> FinsCells[] = {
    {QT_TRANSLATE_NOOP("Settings", "server's IP address"),
     [](const FinsClientConfig& record) { return record.ServerIP; }},
    {QT_TRANSLATE_NOOP("Settings", "server's port"),
     [](const FinsClientConfig& record) { return record.ServerPort; }},
    {QT_TRANSLATE_NOOP("Settings", "node"),
     [](const FinsClientConfig& record) { return QString::number(record.ClientNode); }},
    {QT_TRANSLATE_NOOP("Settings", "connects by itself"),
     [](const FinsClientConfig& record) { return switchText(record.AutoConnect == 1); }},
    {QT_TRANSLATE_NOOP("Settings", "first DM word read"),
     [](const FinsClientConfig& record) { return QString::number(record.ReadDmAddress); }},
    {QT_TRANSLATE_NOOP("Settings", "first DM word written"),
     [](const FinsClientConfig& record) { return QString::number(record.WriteDmAddress); }},
    {QT_TRANSLATE_NOOP("Settings", "network port"),
     [](const FinsClientConfig& record) { return portText(record.IpPortIndex); }},
};

} // namespace

std::optional<std::vector<Group>> mesServer(const QByteArray& bytes)
{
    return ofRecord(RoleId::Mes, MesServerFile::read, bytes, MesCells);
}

std::optional<std::vector<Group>> finsClient(const QByteArray& bytes)
{
    return ofRecord(RoleId::FinsTcp, FinsClientFile::read, bytes, FinsCells);
}

std::optional<std::vector<Group>> netPorts(const QByteArray& bytes)
{
    std::vector<PortAddress> ports;
    if (!PortAddressFile::read(bytes, ports))
        return std::nullopt;
    std::vector<Group> groups;
    for (const PortAddress& port : ports)
        groups.push_back({translated(QT_TRANSLATE_NOOP("Settings", "network port %1")).arg(port.name),
                          nullptr,
                          false,
                          {{translated(QT_TRANSLATE_NOOP("Settings", "IP address")), port.ip},
                           {translated(QT_TRANSLATE_NOOP("Settings", "network mask")), port.netmask}}});
    return groups;
}

} // namespace Settings
