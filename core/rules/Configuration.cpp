#include "Configuration.h"

#include "SlaveModuleFile.h"

namespace {

using File = Configuration::File;
using State = Configuration::State;

File examined(const KnownFile& known, std::optional<QByteArray> bytes)
{
    File file;
    if (!bytes)
        return file;
    file.bytes = std::move(*bytes);
    file.report = FileCheck::examine(known, file.bytes);
    if (!file.report.fault)
        file.state = State::Read;
    else
        file.state = file.report.fault->kind == FileCheck::Fault::Empty ? State::Empty : State::Unreadable;
    return file;
}

void readOverride(const QByteArray& bytes, Configuration& configuration)
{
    MasterDevicesInUse devices;
    OverrideFile::read(bytes, configuration.slaveDevices, devices);
    OverrideFile::read(bytes, OverrideSlot::Masters, configuration.masterDevices);
}

// A record a file; false when the reader refuses what the check has let through.
struct Reader
{
    FileId file;
    bool (*read)(const QByteArray& bytes, Configuration& to);
};
constexpr Reader Readers[] = {
    {FileId::RoleList,
     [](const QByteArray& bytes, Configuration& to) { return RoleListFile::read(bytes, to.listed); }},
    {FileId::BusSwitch, [](const QByteArray& bytes,
                           Configuration& to) { return BusSwitchFile::read(bytes, to.switches, true); }},
    {FileId::Mapping,
     [](const QByteArray& bytes, Configuration& to) { return MappingFile::read(bytes, to.mapping); }},
    {FileId::Heartbeat,
     [](const QByteArray& bytes, Configuration& to) { return HeartbeatFile::read(bytes, to.heartbeat); }},
    {FileId::MesServer,
     [](const QByteArray& bytes, Configuration& to) { return MesServerFile::read(bytes, to.mes); }},
    {FileId::FinsClient,
     [](const QByteArray& bytes, Configuration& to) { return FinsClientFile::read(bytes, to.fins); }},
    {FileId::MtcpMaster,
     [](const QByteArray& bytes, Configuration& to) { return MtcpMasterFile::read(bytes, to.mtcpMaster); }},
    {FileId::EipMaster,
     [](const QByteArray& bytes, Configuration& to) {
         return MasterTableFile::read(bytes, MasterTableRoot::EtherNetIp, to.eipMaster);
     }},
    {FileId::PfnMaster,
     [](const QByteArray& bytes, Configuration& to) {
         return MasterTableFile::read(bytes, MasterTableRoot::Profinet, to.pfnMaster);
     }},
    {FileId::DeviceNetSlave,
     [](const QByteArray& bytes, Configuration& to) {
         return DeviceNetSlaveFile::read(bytes, to.deviceNetSlave);
     }},
    {FileId::DeviceNetMaster,
     [](const QByteArray& bytes, Configuration& to) {
         return DeviceNetMasterFile::read(bytes, to.deviceNetMaster);
     }},
    {FileId::PfbSlave,
     [](const QByteArray& bytes, Configuration& to) { return PfbSlaveFile::read(bytes, to.pfbSlave); }},
    {FileId::EipSlave,
     [](const QByteArray& bytes, Configuration& to) { return EipSlaveFile::read(bytes, to.eipSlave); }},
    {FileId::Override,
     [](const QByteArray& bytes, Configuration& to) {
         readOverride(bytes, to);
         return true;
     }},
    {FileId::SlaveModule,
     [](const QByteArray& bytes, Configuration& to) { return SlaveModuleFile::read(bytes, to.slaveEndian); }},
    {FileId::ProfisafeDescription,
     [](const QByteArray& bytes, Configuration& to) { return ProfisafeFile::read(bytes, to.profisafe); }},
    {FileId::NetworkPorts,
     [](const QByteArray& bytes, Configuration& to) { return PortAddressFile::read(bytes, to.ports); }},
};

} // namespace

Configuration Configuration::from(const Source& source)
{
    Configuration configuration;
    for (const KnownFile& known : KnownFiles::all())
        configuration.files[static_cast<std::size_t>(known.id)] = examined(known, source(known));
    for (const Reader& reader : Readers) {
        File& file = configuration.files[static_cast<std::size_t>(reader.file)];
        if (file.state != State::Read || reader.read(file.bytes, configuration))
            continue;
        file.state = State::Unreadable;
        file.report.fault = FileCheck::refusedByReader(reader.file);
    }
    for (const ListedRole& role : configuration.listed) {
        if (const RoleInfo* known = RoleTable::named(role.name))
            configuration.on[static_cast<std::size_t>(known->id)] = role.on;
    }
    return configuration;
}
