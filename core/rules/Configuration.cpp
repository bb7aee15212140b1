#include "Configuration.h"

#include "SlaveModuleFile.h"

#include <algorithm>
#include <iterator>

namespace {

using File = Configuration::File;
using State = Configuration::State;

File examined(const KnownFile& known, std::optional<QByteArray> bytes, std::optional<ParsedXml>& xml)
{
    File file;
    if (!bytes)
        return file;
    file.bytes = std::move(*bytes);
    file.report = FileCheck::examine(known, file.bytes, xml);
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
using Content = const QByteArray&;
using Xml = const pugi::xml_document&;
using To = Configuration&;
struct Reader
{
    FileId file;
    bool (*read)(Content bytes, To to);
    /// From the document of the check, for a reader that parses as `XmlFile` does, and one that does as
    /// `KeptXml`.
    void (*fromXmlFile)(Xml document, To to) = nullptr;
    bool (*fromKeptXml)(Xml document, To to) = nullptr;
};
#define XML_RECORD(id, Format, ...)                                                                          \
    {                                                                                                        \
        FileId::id, [](Content bytes, To to) { return Format::read(bytes, __VA_ARGS__); },                   \
            [](Xml document, To to) { Format::readFrom(document, __VA_ARGS__); }, nullptr                    \
    }
#define KEPT_RECORD(id, Format, record)                                                                      \
    {                                                                                                        \
        FileId::id, [](Content bytes, To to) { return Format::read(bytes, record); }, nullptr,               \
            [](Xml document, To to) { return Format::readFrom(document, record); }                           \
    }
#define TEXT_RECORD(id, Format, record)                                                                      \
    {                                                                                                        \
        FileId::id, [](Content bytes, To to) { return Format::read(bytes, record); }                         \
    }
constexpr Reader Readers[] = {
    KEPT_RECORD(RoleList, RoleListFile, to.listed),
    XML_RECORD(BusSwitch, BusSwitchFile, to.switches, true),
    KEPT_RECORD(Mapping, MappingFile, to.mapping),
    XML_RECORD(Heartbeat, HeartbeatFile, to.heartbeat),
    XML_RECORD(MesServer, MesServerFile, to.mes),
    XML_RECORD(FinsClient, FinsClientFile, to.fins),
    XML_RECORD(MtcpMaster, MtcpMasterFile, to.mtcpMaster),
    XML_RECORD(EipMaster, MasterTableFile, MasterTableRoot::EtherNetIp, to.eipMaster),
    XML_RECORD(PfnMaster, MasterTableFile, MasterTableRoot::Profinet, to.pfnMaster),
    XML_RECORD(DeviceNetSlave, DeviceNetSlaveFile, to.deviceNetSlave),
    TEXT_RECORD(DeviceNetMaster, DeviceNetMasterFile, to.deviceNetMaster),
    TEXT_RECORD(PfbSlave, PfbSlaveFile, to.pfbSlave),
    TEXT_RECORD(EipSlave, EipSlaveFile, to.eipSlave),
    {FileId::Override,
     [](Content bytes, To to) {
         readOverride(bytes, to);
         return true;
     }},
    KEPT_RECORD(SlaveModule, SlaveModuleFile, to.slaveEndian),
    KEPT_RECORD(ProfisafeDescription, ProfisafeFile, to.profisafe),
    KEPT_RECORD(NetworkPorts, PortAddressFile, to.ports),
};
#undef TEXT_RECORD
#undef KEPT_RECORD
#undef XML_RECORD

bool read(const Reader& reader, Content bytes, const std::optional<ParsedXml>& xml, To to)
{
    if (xml && reader.fromXmlFile && xml->servesXmlFile(bytes)) {
        reader.fromXmlFile(xml->document(), to);
        return true;
    }
    if (xml && reader.fromKeptXml && xml->servesKeptXml(bytes))
        return reader.fromKeptXml(xml->document(), to);
    return reader.read(bytes, to);
}

void readRecord(FileId id, File& file, const std::optional<ParsedXml>& xml, To to)
{
    const auto* reader = std::find_if(std::begin(Readers), std::end(Readers),
                                      [id](const Reader& candidate) { return candidate.file == id; });
    if (file.state != State::Read || reader == std::end(Readers) || read(*reader, file.bytes, xml, to))
        return;
    file.state = State::Unreadable;
    file.report.fault = FileCheck::refusedByReader(id);
}

} // namespace

Configuration Configuration::from(const Source& source)
{
    Configuration configuration;
    for (const KnownFile& known : KnownFiles::all()) {
        std::optional<ParsedXml> xml;
        File& file = configuration.files[static_cast<std::size_t>(known.id)];
        file = examined(known, source(known), xml);
        readRecord(known.id, file, xml, configuration);
    }
    for (const ListedRole& role : configuration.listed) {
        if (const RoleInfo* known = RoleTable::named(role.name))
            configuration.on[static_cast<std::size_t>(known->id)] = role.on;
    }
    return configuration;
}

QByteArray Configuration::presentBytes(FileId id) const
{
    if (file(id).state == State::Missing)
        return {};
    return bytes(id).isNull() ? QByteArray("") : bytes(id);
}
