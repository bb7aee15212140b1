// The readers of the controller's files: each file by its record, then by everything that judges files.
#include "BusSwitchFile.h"
#include "Configuration.h"
#include "ConfigurationFindings.h"
#include "DeviceNetMasterFile.h"
#include "DeviceNetSlaveFile.h"
#include "EipSlaveFile.h"
#include "FileCheck.h"
#include "FinsClientFile.h"
#include "HeartbeatFile.h"
#include "MappingFile.h"
#include "MasterTableFile.h"
#include "MesServerFile.h"
#include "MtcpMasterFile.h"
#include "OverrideFile.h"
#include "PfbSlaveFile.h"
#include "PortAddressFile.h"
#include "ProfisafeFile.h"
#include "RoleListFile.h"
#include "SettingChanges.h"
#include "SlaveModuleFile.h"
#include "Target.h"

#include <optional>

namespace {

// What is written holds the time of writing.
QByteArray withoutDate(QByteArray file)
{
    const int begin = file.indexOf("<!-- Date");
    const int end = file.indexOf("-->", begin);
    return begin < 0 || end < 0 ? file : file.remove(begin, end - begin);
}

// A file that is made anew from its record.
template <typename Record, typename Read, typename Write>
void feedWritten(const QByteArray& bytes, Read read, Write write)
{
    Record record;
    if (!read(bytes, record))
        return;
    const QByteArray file = write(record);
    Record again;
    promise(read(file, again), "what is written can be read");
    // Texts are read without unescaping, so that what has to be escaped grows with each save; a control
    // character, which no XML may hold, becomes a blank.
    const bool isPlain = !file.contains('&') && std::none_of(bytes.cbegin(), bytes.cend(), [](char c) {
        return static_cast<unsigned char>(c) < ' ' && c != '\n' && c != '\r' && c != '\t';
    });
    if (isPlain)
        promise(withoutDate(write(again)) == withoutDate(file), "what is written reads back the same");
}

// A file that is the template of what is written.
template <typename Record, typename Read, typename Rewrite>
void feedRewritten(const QByteArray& bytes, Read read, Rewrite rewrite)
{
    Record record;
    if (!read(bytes, record))
        return;
    const QByteArray file = rewrite(bytes, record);
    if (file.isNull())
        return;
    Record again;
    promise(read(file, again), "what is rewritten can be read");
    promise(rewrite(file, again) == file, "what is rewritten reads back the same");
}

template <typename Record, bool (*Read)(const QByteArray&, Record&, bool*),
          QByteArray (*Write)(const Record&)>
void feedXml(const QByteArray& bytes)
{
    feedWritten<Record>(
        bytes, [](const QByteArray& file, Record& record) { return Read(file, record, nullptr); }, Write);
}

// A driver file of a slave. A value that holds a keyword or a control character makes another line of its
// own.
template <typename Record, bool (*Read)(const QByteArray&, Record&, bool*),
          QByteArray (*Rewrite)(const QByteArray&, const Record&), QString Record::*... Values>
void feedText(const QByteArray& bytes)
{
    Record first;
    const bool isRead = Read(bytes, first, nullptr);
    const auto isPlain = [](const QString& value) {
        return std::all_of(value.cbegin(), value.cend(),
                           [](QChar c) { return c.isDigit() || c == QLatin1Char('.'); });
    };
    if (!isRead || !(isPlain(first.*Values) && ...)) {
        Rewrite(bytes, first);
        return;
    }
    feedRewritten<Record>(
        bytes, [](const QByteArray& file, Record& record) { return Read(file, record, nullptr); }, Rewrite);
}

void feedMasterTable(const QByteArray& bytes)
{
    for (const char* root : {MasterTableRoot::EtherNetIp, MasterTableRoot::Profinet})
        feedWritten<MasterSlaveTable>(
            bytes,
            [root](const QByteArray& file, MasterSlaveTable& record) {
                return MasterTableFile::read(file, root, record);
            },
            [root](const MasterSlaveTable& record) { return MasterTableFile::written(root, record); });
}

void feedBusSwitches(const QByteArray& bytes)
{
    BusSwitchSet switches;
    if (!BusSwitchFile::read(bytes, switches, true))
        return;
    const QByteArray file = BusSwitchFile::rewritten(bytes);
    BusSwitchSet again;
    promise(BusSwitchFile::read(file, again, true), "what is rewritten can be read");
    promise(!again.ProfinetSlave, "the role that is switched off is off");
    promise(again.Mes == switches.Mes && again.EtherCatMaster == switches.EtherCatMaster &&
                again.DeviceNetMaster == switches.DeviceNetMaster && again.FreeBus == switches.FreeBus,
            "no other role changes");
}

void feedOverride(const QByteArray& bytes)
{
    for (const OverrideSlot slot : {OverrideSlot::SlaveModule, OverrideSlot::Masters}) {
        OverrideRecord record;
        OverrideFile::read(bytes, slot, record);
        promise(record.count >= 0 && record.count <= OverrideRecord::MaxEntries,
                "a page's number of devices");
        promise(OverrideFile::fits(bytes, slot, record), "a file fits the record that was read from it");
        const QByteArray file = OverrideFile::rewritten(bytes, slot, record);
        OverrideFile::noteWritten(slot, record);
        promise(OverrideFile::fits(file, slot, record), "a file fits the record that was written to it");
        OverrideRecord again;
        OverrideFile::read(file, slot, again);
        promise(again.count == record.count, "no device is lost or doubled");
        for (int i = 0; i < record.count; ++i)
            promise(again.entries.at(i).off == record.entries.at(i).off &&
                        again.entries.at(i).number == record.entries.at(i).number,
                    "a device stays what it was");
    }
    OverrideRecord record;
    MasterDevicesInUse devices;
    OverrideFile::read(bytes, record, devices);
    for (const bool on : {false, true})
        OverrideFile::switched(bytes, on);
    OverrideFile::deviceSwitchedOff(bytes, "PNM_DEVICE");
}

void feedDeviceNetMaster(const QByteArray& bytes)
{
    feedRewritten<DeviceNetMasterConfig>(
        bytes,
        [](const QByteArray& file, DeviceNetMasterConfig& record) {
            return DeviceNetMasterFile::read(file, record);
        },
        [](const QByteArray& file, const DeviceNetMasterConfig& record) {
            const QByteArray written = DeviceNetMasterFile::rewritten(file, record);
            return written.isEmpty() ? QByteArray() : written;
        });
}

void feedMapping(const QByteArray& bytes)
{
    MappingConfig config;
    if (!MappingFile::read(bytes, config))
        return;
    const QByteArray file = MappingFile::rewritten(bytes, config);
    MappingConfig again;
    promise(MappingFile::read(file, again), "what is rewritten can be read");
    promise(again == config, "what is rewritten reads back the same");
}

void feedRoleList(const QByteArray& bytes)
{
    std::vector<ListedRole> roles;
    if (!RoleListFile::read(bytes, roles))
        return;
    for (const ListedRole& role : roles) {
        std::vector<ListedRole> again;
        if (role.name.contains(QChar::ReplacementCharacter))
            continue; // not UTF-8, and no role of ours
        promise(RoleListFile::read(RoleListFile::switchedOff(bytes, role.name), again),
                "what is rewritten can be read");
        promise(again.size() == roles.size() && !RoleListFile::isOn(again, role.name), "the role is off");
        if (roles.size() > 16)
            break;
    }
}

void feedSlaveModule(const QByteArray& bytes)
{
    QString endian;
    SlaveModuleFile::read(bytes, endian);
    for (const char* wanted : {"littleEndian", "bigEndian"}) {
        const QByteArray file = SlaveModuleFile::rewritten(bytes, QString::fromLatin1(wanted));
        if (file.isNull())
            continue;
        promise(SlaveModuleFile::read(file, endian) && endian == QLatin1String(wanted),
                "the byte order is what was written");
    }
}

void feedReadOnly(const QByteArray& bytes)
{
    std::vector<PortAddress> ports;
    PortAddressFile::read(bytes, ports);
    ProfisafeDescription description;
    if (ProfisafeFile::read(bytes, description)) {
        for (const auto& texts : {description.outputs, description.inputs})
            promise(texts.isEmpty() ||
                        (texts.firstKey() >= 0 && texts.lastKey() <= ProfisafeDescription::MostBit),
                    "a bit lies in its range");
    }
}

// Takes the first byte for the file, so that one corpus serves all.
const KnownFile& fileOf(const QByteArray& bytes, QByteArray& content)
{
    const std::size_t index = bytes.isEmpty() ? 0 : static_cast<unsigned char>(bytes.at(0));
    content = bytes.mid(1);
    return KnownFiles::all().at(index % FileCount);
}

void feedJudge(const QByteArray& bytes)
{
    QByteArray content;
    const KnownFile& file = fileOf(bytes, content);
    promise(!FileCheck::faultOf(file, content, &content), "what is on the controller already is no fault");
    FileCheck::faultOf(file, content);
    FileCheck::examine(file, content);
}

void feedSettings(const QByteArray& bytes)
{
    QByteArray content;
    const QString path = QString::fromLatin1(fileOf(bytes, content).name);
    promise(Settings::changes(path, content, content).empty(), "a file does not differ from itself");
    Settings::inWords(
        Settings::changes(path, content.left(content.size() / 2) + content.mid(content.size() / 3), content));
}

void feedFindings(const QByteArray& bytes)
{
    QByteArray content;
    const FileId id = fileOf(bytes, content).id;
    const Configuration configuration =
        Configuration::from([&](const KnownFile& file) -> std::optional<QByteArray> {
            if (file.id != id)
                return {};
            return content;
        });
    for (const Finding& finding : findingsOf(configuration))
        promise(*finding.cause.text != 0 && *finding.next.text != 0, "a finding says what and why");
}

} // namespace

const std::vector<Target>& targets()
{
    static const std::vector<Target> all{
        {"bus-switches", {"application/fidbus/Fieldbus.cfg"}, feedBusSwitches},
        {"override", {"fa/override.cfg"}, feedOverride},
        {"pfb",
         {"fa/pfb.cfg"},
         feedText<PfbSlaveConfig, PfbSlaveFile::read, PfbSlaveFile::rewritten,
                  &PfbSlaveConfig::ProfibusAddress>},
        {"eip-slave",
         {"fa/dns-1.cfg"},
         feedText<EipSlaveConfig, EipSlaveFile::read, EipSlaveFile::rewritten, &EipSlaveConfig::IPADDR,
                  &EipSlaveConfig::NETMASK>},
        {"devicenet-master", {"fa/dnmst0.cfg"}, feedDeviceNetMaster},
        {"heartbeat",
         {"application/fidbus/heartbeat.xml"},
         feedXml<HeartbeatConfig, HeartbeatFile::read, HeartbeatFile::written>},
        {"devicenet-slave",
         {"application/fidbus/devicenet/devicenetSlave.xml"},
         feedXml<DeviceNetSlaveConfig, DeviceNetSlaveFile::read, DeviceNetSlaveFile::written>},
        {"mtcp-master",
         {"application/fidbus/mtcpMaster/mtcp_master.xml"},
         feedXml<MtcpMasterConfig, MtcpMasterFile::read, MtcpMasterFile::written>},
        {"master-table",
         {"application/fidbus/eipMaster/eip_master.xml", "application/fidbus/pfnMaster/pfn_master.xml"},
         feedMasterTable},
        {"mes",
         {"application/mes/TcpServerConfig.xml"},
         feedXml<MesServerConfig, MesServerFile::read, MesServerFile::written>},
        {"fins",
         {"application/finstcp/FinsTcpConfig.xml"},
         feedXml<FinsClientConfig, FinsClientFile::read, FinsClientFile::written>},
        {"mapping", {"application/fidbus/fieldbus_config.xml"}, feedMapping},
        {"role-list", {"application/fidbus/fieldbus.xml"}, feedRoleList},
        {"slave-module", {"fa/fbslave.cfgx"}, feedSlaveModule},
        {"read-only",
         {"application/network/netports.xml", "application/fidbus/pfs_description.xml"},
         feedReadOnly},
        {"judge", {"*"}, feedJudge},
        {"settings", {"*"}, feedSettings},
        {"findings", {"*"}, feedFindings},
    };
    return all;
}
