#ifndef CONFIGURATION_H
#define CONFIGURATION_H

#include "BusSwitchFile.h"
#include "DeviceNetMasterFile.h"
#include "DeviceNetSlaveFile.h"
#include "EipSlaveFile.h"
#include "FileCheck.h"
#include "FinsClientFile.h"
#include "HeartbeatFile.h"
#include "KnownFiles.h"
#include "MappingFile.h"
#include "MasterTableFile.h"
#include "MesServerFile.h"
#include "MtcpMasterFile.h"
#include "OverrideFile.h"
#include "PfbSlaveFile.h"
#include "PortAddressFile.h"
#include "RoleListFile.h"
#include "RoleTable.h"

#include <QByteArray>

#include <functional>
#include <optional>
#include <vector>

/// All that is known of one controller from a set of its files. A record whose file is not `Read` is as it is
/// constructed, and says nothing about the controller.
struct Configuration
{
    enum class State {
        Missing,
        Empty,      ///< nothing in it but white space
        Unreadable, ///< its reader refuses it, or it is no file of that name
        Read
    };

    struct File
    {
        State state = State::Missing;
        QByteArray bytes;
        FileCheck::Report report;
    };

    /// The bytes of a file of `KnownFiles`, nothing for one that is not there.
    using Source = std::function<std::optional<QByteArray>(const KnownFile& file)>;
    static Configuration from(const Source& source);

    const File& file(FileId id) const { return files[static_cast<std::size_t>(id)]; }
    bool isRead(FileId id) const { return file(id).state == State::Read; }
    const QByteArray& bytes(FileId id) const { return file(id).bytes; }
    /// The same, null when the file is not there: an empty one is there all the same.
    QByteArray presentBytes(FileId id) const;
    bool isOn(RoleId role) const { return RoleTable::isOn(on, role); }
    /// The mode that runs: FreeBus on is the free one.
    MappingConfig::Mode mode() const
    {
        return isOn(RoleId::FreeBus) ? MappingConfig::Free : MappingConfig::Fixed;
    }

    std::array<File, FileCount> files;

    std::vector<ListedRole> listed; ///< fieldbus.xml, in its order
    RoleTable::States on{};         ///< the known ones of them
    BusSwitchSet switches;          ///< Fieldbus.cfg
    MappingConfig mapping;
    HeartbeatConfig heartbeat;
    MesServerConfig mes;
    FinsClientConfig fins;
    MtcpMasterConfig mtcpMaster;
    MasterSlaveTable eipMaster;
    MasterSlaveTable pfnMaster;
    DeviceNetSlaveConfig deviceNetSlave;
    DeviceNetMasterConfig deviceNetMaster;
    PfbSlaveConfig pfbSlave;
    EipSlaveConfig eipSlave;
    OverrideRecord slaveDevices;    ///< override.cfg, slot 1
    OverrideRecord masterDevices;   ///< slot 2
    QString slaveEndian;            ///< fbslave.cfgx: "littleEndian" or "bigEndian"
    std::vector<PortAddress> ports; ///< netports.xml
};

#endif
