#ifndef KNOWNFILES_H
#define KNOWNFILES_H

#include <QString>

#include <array>

/// The files of a controller that the project knows. First the export set, in the order in which it is
/// fetched.
enum class FileId {
    Heartbeat,
    Mapping,
    RoleList,
    SignalMapping,
    UserDescription,
    GroupIo,
    DeviceNetSlave,
    EipMaster,
    PfnMaster,
    FixedDescription,
    EipSlaveFixed,
    FixedRoleList,
    FixedSignalMapping,
    FixedModbus,
    PfbFixed,
    FixedDeviceNet,
    FreeDescription,
    EipSlaveFree,
    FreeRoleList,
    FreeSignalMapping,
    FreeModbus,
    PfbFree,
    FreeDeviceNet,
    Rs232,
    EtherCatDescription,
    EtherNetIpDescription,
    ProfinetDescription,
    DeviceNetDescription,
    Modbus,
    SlaveModule,
    EipSlave,
    DeviceNetDriver,
    PfbSlave,
    DeviceNetMaster,
    ProfisafeDescription,
    MtcpMaster,
    // What an export does not carry.
    BusSwitch,
    Override,
    MesServer,
    FinsClient,
    NetworkPorts
};
constexpr std::size_t FileCount = 41;
constexpr std::size_t ExportedFileCount = 36;

struct KnownFile
{
    FileId id;
    const char* label;      ///< names the file in the log
    const char* name;       ///< below an export folder: "fixed/dns_fixed.cfg"
    const char* controller; ///< path on the controller, whose file system ignores case
    const char* root;       ///< element that an XML file is known by; null for a text file

    bool isExported() const { return static_cast<std::size_t>(id) < ExportedFileCount; }
};

namespace KnownFiles {

/// By FileId.
const std::array<KnownFile, FileCount>& all();
const KnownFile& of(FileId file);
/// Below an export folder, to the letter; null for a name that is not known.
const KnownFile* named(const QString& name);
/// The largest file that any reader takes, in bytes.
constexpr qint64 MostBytes = qint64(4) * 1024 * 1024;

} // namespace KnownFiles

#endif
