// The masters' connections and slaves, and the DeviceNet scan list.

#include "DeviceNetMasterFile.h"
#include "MasterTableFile.h"
#include "MtcpMasterFile.h"
#include "SettingCells.h"

namespace Settings {

namespace {

// As the page of the Modbus TCP master offers them; the file holds the index.
constexpr const char* ModbusByteOrders[] = {"BIG_ENDIAN_16",        "LITTLE_ENDIAN_16",
                                            "BIG_ENDIAN_32",        "LITTLE_ENDIAN_32",
                                            "MIDDLE_BIG_ENDIAN_32", "MIDDLE_LITTLE_ENDIAN_32"};

constexpr Cell<MtcpMasterConfig> MtcpCells[] = {
    {QT_TRANSLATE_NOOP("Settings", "slave's IP address"),
     [](const MtcpMasterConfig& record) { return record.SlaveIp; }},
    {QT_TRANSLATE_NOOP("Settings", "slave's port"),
     [](const MtcpMasterConfig& record) { return record.SlavePort; }},
    {QT_TRANSLATE_NOOP("Settings", "slave's unit"),
     [](const MtcpMasterConfig& record) { return record.SlaveId; }},
    {QT_TRANSLATE_NOOP("Settings", "time-out"),
     [](const MtcpMasterConfig& record) { return withUnit(record.TimeOut, "s"); }},
    {QT_TRANSLATE_NOOP("Settings", "byte order read"),
     [](const MtcpMasterConfig& record) { return choiceText(record.ReadEndian, ModbusByteOrders); }},
    {QT_TRANSLATE_NOOP("Settings", "byte order written"),
     [](const MtcpMasterConfig& record) { return choiceText(record.WriteEndian, ModbusByteOrders); }},
    {QT_TRANSLATE_NOOP("Settings", "keep-alive time"),
     [](const MtcpMasterConfig& record) { return record.Alivetime; }},
};

constexpr Cell<MasterSlaveTable> TableCells[] = {
    {QT_TRANSLATE_NOOP("Settings", "slaves"), [](const MasterSlaveTable& record) { return record.SlaveNum; }},
    {QT_TRANSLATE_NOOP("Settings", "disable time-out"),
     [](const MasterSlaveTable& record) { return record.DisableTimeout; }},
    {QT_TRANSLATE_NOOP("Settings", "enable time-out"),
     [](const MasterSlaveTable& record) { return record.EnableTimeout; }},
};

using Device = DeviceNetMasterDevice;

constexpr Cell<DeviceNetMasterConfig> ScannerCells[] = {
    {QT_TRANSLATE_NOOP("Settings", "MAC ID"),
     [](const DeviceNetMasterConfig& record) { return numberText(record.WS_ID); }},
    {QT_TRANSLATE_NOOP("Settings", "baud rate"),
     [](const DeviceNetMasterConfig& record) { return withUnit(numberText(record.BAUDRATE), "kbit/s"); }},
    {QT_TRANSLATE_NOOP("Settings", "byte order"),
     [](const DeviceNetMasterConfig& record) { return record.ENDIAN; }},
    {QT_TRANSLATE_NOOP("Settings", "time between scans"),
     [](const DeviceNetMasterConfig& record) { return withUnit(numberText(record.PACHET_RATIO), "ms"); }},
    {QT_TRANSLATE_NOOP("Settings", "devices"),
     [](const DeviceNetMasterConfig& record) { return QString::number(record.count); }},
};

constexpr Cell<Device> DeviceCells[] = {
    {QT_TRANSLATE_NOOP("Settings", "MAC ID"), [](const Device& device) { return numberText(device.MAC_ID); }},
    {QT_TRANSLATE_NOOP("Settings", "input bytes"),
     [](const Device& device) { return QString::number(device.inputBytes); }},
    {QT_TRANSLATE_NOOP("Settings", "output bytes"),
     [](const Device& device) { return QString::number(device.outputBytes); }},
    {QT_TRANSLATE_NOOP("Settings", "vendor"),
     [](const Device& device) { return QString::number(device.VENDOR_ID); }},
    {QT_TRANSLATE_NOOP("Settings", "product code"),
     [](const Device& device) { return QString::number(device.PROD_CODE); }},
    {QT_TRANSLATE_NOOP("Settings", "revision"),
     [](const Device& device) { return QString::number(device.REVISION); }},
    {QT_TRANSLATE_NOOP("Settings", "configuration flags"),
     [](const Device& device) { return device.CFG_FLAG; }},
    {QT_TRANSLATE_NOOP("Settings", "status register"),
     [](const Device& device) { return QString::number(device.NODE_STATUS_REG); }},
    {QT_TRANSLATE_NOOP("Settings", "first input register"),
     [](const Device& device) { return QString::number(device.BLOCK_TO_RBX); }},
    {QT_TRANSLATE_NOOP("Settings", "first output register"),
     [](const Device& device) { return QString::number(device.BLOCK_FROM_RBX); }},
};

QString positionText(bool isFixed, bool isDynamic)
{
    if (isFixed && isDynamic)
        return translated(QT_TRANSLATE_NOOP("Settings", "fixed and dynamic"));
    if (!isFixed && !isDynamic)
        return {};
    return translated(isFixed ? QT_TRANSLATE_NOOP("Settings", "fixed")
                              : QT_TRANSLATE_NOOP("Settings", "dynamic"));
}

std::optional<std::vector<Group>> masterTable(RoleId role, const char* root, const QByteArray& bytes)
{
    MasterSlaveTable record;
    if (!MasterTableFile::read(bytes, root, record))
        return std::nullopt;
    Group group = groupOf(role);
    append(group, TableCells, record);
    int number = 0;
    for (const MasterSlaveTable::Position& position : MasterSlaveTable::positions())
        group.fields.push_back({translated(QT_TRANSLATE_NOOP("Settings", "slave %1")).arg(++number),
                                positionText(record.*position.fixed, record.*position.dynamic)});
    return std::vector<Group>{group};
}

} // namespace

std::optional<std::vector<Group>> mtcpMaster(const QByteArray& bytes)
{
    return ofRecord(RoleId::ModbusTcpMaster, MtcpMasterFile::read, bytes, MtcpCells);
}

std::optional<std::vector<Group>> eipMaster(const QByteArray& bytes)
{
    return masterTable(RoleId::EtherNetIPMaster, MasterTableRoot::EtherNetIp, bytes);
}

std::optional<std::vector<Group>> pfnMaster(const QByteArray& bytes)
{
    return masterTable(RoleId::ProfinetMaster, MasterTableRoot::Profinet, bytes);
}

std::optional<std::vector<Group>> scanList(const QByteArray& bytes)
{
    DeviceNetMasterConfig record;
    record.WS_ID = record.BAUDRATE = record.PACHET_RATIO = -1;
    record.ENDIAN.clear();
    if (!DeviceNetMasterFile::read(bytes, record))
        return std::nullopt;
    std::vector<Group> groups = {groupOf(RoleId::DeviceNetMaster)};
    append(groups.front(), ScannerCells, record);
    for (int i = 0; i < record.count; ++i) {
        groups.push_back(groupOf(RoleId::DeviceNetMaster));
        groups.back().title =
            translated(QT_TRANSLATE_NOOP("Settings", "%1, device %2")).arg(groups.front().title).arg(i + 1);
        append(groups.back(), DeviceCells, record.devices[static_cast<std::size_t>(i)]);
    }
    return groups;
}

} // namespace Settings
