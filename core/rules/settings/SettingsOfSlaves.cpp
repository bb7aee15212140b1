// The slaves' driver files, the module, the devices that are in use.

#include "DeviceNetSlaveFile.h"
#include "EipSlaveFile.h"
#include "OverrideFile.h"
#include "PfbSlaveFile.h"
#include "ProfisafeFile.h"
#include "SettingCells.h"
#include "SlaveModuleFile.h"
#include "SlaveTextFile.h"
#include "TextTemplate.h"

#include "AsciiText.h"

namespace Settings {

namespace {

constexpr const char* ByteOrder = QT_TRANSLATE_NOOP("Settings", "byte order");

constexpr Cell<EipSlaveConfig> EipCells[] = {
    {QT_TRANSLATE_NOOP("Settings", "IP address"), [](const EipSlaveConfig& record) { return record.IPADDR; }},
    {QT_TRANSLATE_NOOP("Settings", "network mask"),
     [](const EipSlaveConfig& record) { return record.NETMASK; }},
    {ByteOrder, [](const EipSlaveConfig& record) { return record.EipEndian; }},
};

constexpr Cell<PfbSlaveConfig> PfbCells[] = {
    {QT_TRANSLATE_NOOP("Settings", "PROFIBUS address"),
     [](const PfbSlaveConfig& record) { return record.ProfibusAddress; }},
    {QT_TRANSLATE_NOOP("Settings", "alarm on a lost connection"),
     [](const PfbSlaveConfig& record) {
         return record.ComAlarmEnabled == -1 ? QString() : switchText(record.ComAlarmEnabled != 0);
     }},
    {ByteOrder, [](const PfbSlaveConfig& record) { return record.ProfibusEndian; }},
};

constexpr Cell<DeviceNetSlaveConfig> DeviceNetCells[] = {
    {QT_TRANSLATE_NOOP("Settings", "MAC ID"),
     [](const DeviceNetSlaveConfig& record) { return record.Dns_MACID; }},
    {QT_TRANSLATE_NOOP("Settings", "baud rate"),
     [](const DeviceNetSlaveConfig& record) { return withUnit(record.Dns_BAUDRATE, "kbit/s"); }},
};

// The free and the fixed variant of a driver file carry the byte order alone.
std::optional<std::vector<Group>> variant(RoleId role, const QByteArray& bytes)
{
    QString endian;
    TextTemplate::forEachLine(bytes, [&endian](std::string_view line, std::string_view) {
        SlaveTextFile::readEndian(AsciiText::trimmed(line), endian);
        return true;
    });
    Group group = groupOf(role);
    group.fields = {{translated(ByteOrder), endian}};
    return std::vector<Group>{group};
}

void appendDevices(std::vector<Group>& groups, const OverrideRecord& record, const RoleInfo* role)
{
    Group group = {translated(QT_TRANSLATE_NOOP("Settings", "devices of the %1"))
                       .arg(translated(role ? QT_TRANSLATE_NOOP("Settings", "slave module")
                                            : QT_TRANSLATE_NOOP("Settings", "master bus"))),
                   role,
                   false,
                   {}};
    for (int i = 0; i < record.count; ++i) {
        const OverrideEntry& entry = record.entries[static_cast<std::size_t>(i)];
        group.fields.push_back({QStringLiteral("%1 %2").arg(entry.number).arg(entry.name).trimmed(),
                                translated(entry.off ? QT_TRANSLATE_NOOP("Settings", "in use")
                                                     : QT_TRANSLATE_NOOP("Settings", "not in use"))});
    }
    groups.push_back(group);
}

} // namespace

std::optional<std::vector<Group>> eipSlave(const QByteArray& bytes)
{
    return ofRecord(RoleId::EtherNetIPSlave, EipSlaveFile::read, bytes, EipCells, EipSlaveConfig{{}, {}, {}});
}

std::optional<std::vector<Group>> eipByteOrder(const QByteArray& bytes)
{
    return variant(RoleId::EtherNetIPSlave, bytes);
}

std::optional<std::vector<Group>> pfbSlave(const QByteArray& bytes)
{
    return ofRecord(RoleId::ProfinetSlave, PfbSlaveFile::read, bytes, PfbCells, PfbSlaveConfig{{}, -1, {}});
}

std::optional<std::vector<Group>> pfbByteOrder(const QByteArray& bytes)
{
    return variant(RoleId::ProfinetSlave, bytes);
}

std::optional<std::vector<Group>> deviceNetSlave(const QByteArray& bytes)
{
    return ofRecord(RoleId::DeviceNetSlave, DeviceNetSlaveFile::read, bytes, DeviceNetCells);
}

std::optional<std::vector<Group>> overrides(const QByteArray& bytes)
{
    OverrideRecord slaves;
    OverrideRecord masters;
    OverrideFile::read(bytes, OverrideSlot::SlaveModule, slaves);
    OverrideFile::read(bytes, OverrideSlot::Masters, masters);
    std::vector<Group> groups;
    appendDevices(groups, slaves, &RoleTable::of(RoleId::EtherCatSlave));
    appendDevices(groups, masters, nullptr);
    return groups;
}

std::optional<std::vector<Group>> slaveModule(const QByteArray& bytes)
{
    QString endian;
    if (!SlaveModuleFile::read(bytes, endian))
        return std::nullopt;
    Group group = groupOf(RoleId::EtherCatSlave);
    group.fields = {{translated(ByteOrder), endian}};
    return std::vector<Group>{group};
}

std::optional<std::vector<Group>> profisafe(const QByteArray& bytes)
{
    ProfisafeDescription bits;
    if (!ProfisafeFile::read(bytes, bits))
        return std::nullopt;
    Group group = {QStringLiteral("ProfiSAFE"), nullptr, false, {}};
    const auto add = [&group](const char* name, const QMap<int, QString>& texts) {
        for (auto bit = texts.cbegin(); bit != texts.cend(); ++bit)
            group.fields.push_back({translated(name).arg(bit.key()), *bit});
    };
    add(QT_TRANSLATE_NOOP("Settings", "output bit %1"), bits.outputs);
    add(QT_TRANSLATE_NOOP("Settings", "input bit %1"), bits.inputs);
    return std::vector<Group>{group};
}

} // namespace Settings
