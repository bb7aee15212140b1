#include "Configuration.h"

#include "SlaveModuleFile.h"

#include <algorithm>
#include <iterator>

namespace {

using File = Configuration::File;
using State = Configuration::State;

using Content = const QByteArray&;
using Xml = const pugi::xml_document&;
using To = Configuration&;

File examined(const KnownFile& known, std::optional<QByteArray> bytes, ParsedXml& xml)
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

bool readOverride(Content bytes, To to)
{
    MasterDevicesInUse devices;
    OverrideFile::read(bytes, to.slaveDevices, devices);
    OverrideFile::read(bytes, OverrideSlot::Masters, to.masterDevices);
    return true;
}

// How a file gets into its record; false when the reader refuses what the check has let through.
struct Reader
{
    FileId file;
    bool (*read)(Content bytes, To to);
    /// From the document of the check, which is parsed as `kind` says; null for a text.
    bool (*readFrom)(Xml document, To to) = nullptr;
    ParsedXml::Reader kind = ParsedXml::Reader::XmlFile;
};
#define XML_RECORD(id, Format, ...)                                                                          \
    {                                                                                                        \
        FileId::id, [](Content bytes, To to) { return Format::read(bytes, __VA_ARGS__); },                   \
            [](Xml document, To to) {                                                                        \
                Format::readFrom(document, __VA_ARGS__);                                                     \
                return true;                                                                                 \
            }                                                                                                \
    }
#define KEPT_RECORD(id, Format, record)                                                                      \
    {                                                                                                        \
        FileId::id, [](Content bytes, To to) { return Format::read(bytes, record); },                        \
            [](Xml document, To to) { return Format::readFrom(document, record); },                          \
            ParsedXml::Reader::KeptXml                                                                       \
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
    {FileId::Override, readOverride},
    KEPT_RECORD(SlaveModule, SlaveModuleFile, to.slaveEndian),
    // Its texts are for pages alone; here it counts whether they can be had.
    {FileId::ProfisafeDescription, [](Content, To) { return false; }, [](Xml, To) { return true; },
     ParsedXml::Reader::KeptXml},
    KEPT_RECORD(NetworkPorts, PortAddressFile, to.ports),
};
#undef TEXT_RECORD
#undef KEPT_RECORD
#undef XML_RECORD

const Reader* readerOf(FileId file)
{
    const auto* found = std::find_if(std::begin(Readers), std::end(Readers),
                                     [file](const Reader& reader) { return reader.file == file; });
    return found == std::end(Readers) ? nullptr : found;
}

bool read(const Reader& reader, Content bytes, const ParsedXml& xml, To to)
{
    return reader.readFrom && xml.servesReader(bytes) ? reader.readFrom(xml.document(), to)
                                                      : reader.read(bytes, to);
}

void take(const KnownFile& known, std::optional<QByteArray> bytes, To to)
{
    File& file = to.files[static_cast<std::size_t>(known.id)];
    const Reader* reader = readerOf(known.id);
    ParsedXml xml(reader ? reader->kind : ParsedXml::Reader::XmlFile);
    file = examined(known, std::move(bytes), xml);
    if (file.state != State::Read || !reader || read(*reader, file.bytes, xml, to))
        return;
    file.state = State::Unreadable;
    file.report.fault = FileCheck::refusedByReader(known.id);
}

} // namespace

Configuration Configuration::from(const Source& source)
{
    Configuration configuration;
    for (const KnownFile& known : KnownFiles::all())
        take(known, source(known), configuration);
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
