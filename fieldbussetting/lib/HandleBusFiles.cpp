#include "HandleBusFiles.h"

#include "BusSwitchFile.h"
#include "ControllerTemplate.h"
#include "DeviceNetMasterFile.h"
#include "DeviceNetSlaveFile.h"
#include "EipSlaveFile.h"
#include "FieldbusSettingLib.h"
#include "FileLocations.h"
#include "FinsClientFile.h"
#include "HeartbeatFile.h"
#include "Logging.h"
#include "MasterTableFile.h"
#include "MesServerFile.h"
#include "MtcpMasterFile.h"
#include "OverrideFile.h"
#include "PfbSlaveFile.h"
#include "SlaveTextFile.h"
#include "WholeFile.h"
#include "ZelFunctions.h"

#include <QDir>
#include <QFile>

namespace {

template <typename Record>
bool readInto(Record& record, const QString& path, bool (*read)(const QByteArray&, Record&))
{
    QByteArray content;
    return WholeFile::read(path, content) && read(content, record);
}

// The folder is made one level deep when it is missing.
bool saveXml(const QString& path, const QByteArray& content)
{
    const QString folder = path.section(QLatin1Char('/'), 0, -2);
    const bool hasFolder = folder.isEmpty() || QDir(folder).exists() || QDir().mkdir(folder);
    if (hasFolder && WholeFile::replace(path, content))
        return true;
    qCDebug(fieldbusLog, "Could not save XML file");
    return false;
}

// The frame of every writer of a text file: the controller's present file, edited, into `path`. What
// `rewrite` holds is its own: the fetch processes events, and the record may change or go meanwhile.
template <typename Rewrite>
bool edit(const QString& path, const char* temporaryName, const QString& ctrlPath, Rewrite rewrite)
{
    const QString temporary = FileLocations::workingDirectory() + QLatin1String(temporaryName);
    QByteArray content;
    return fetchTemplate(temporary, ctrlPath, content) && WholeFile::replace(path, rewrite(content));
}

template <typename Rewrite>
bool editOverride(const QString& path, Rewrite rewrite)
{
    constexpr const char* Temporary = "/override_temp.cfg";
    // What an interrupted write has left behind is older than what the controller holds.
    QFile::remove(FileLocations::workingDirectory() + QLatin1String(Temporary));
    return edit(path, Temporary, FileLocations::of(ConfigFile::Override).controller, std::move(rewrite));
}

} // namespace

HandleBusFiles* HandleBusFiles::getInstance()
{
    static HandleBusFiles instance;
    return &instance;
}

bool HandleBusFiles::readFieldbusCfg(const QString& path, BusSwitchSet& switches, bool isImport)
{
    QByteArray content;
    return WholeFile::read(path, content) && BusSwitchFile::read(content, switches, isImport);
}

bool HandleBusFiles::writeFieldbusCfg(const QString& path)
{
    QByteArray content;
    if (WholeFile::read(ZelGetLocalizedFileName(path, 1), content))
        content = BusSwitchFile::rewritten(content);
    if (!content.isEmpty())
        return saveXml(path, content);
    qCDebug(fieldbusLog).noquote() << "HandleBusFiles::writeFieldbusCfg " + path + " failed!";
    return false;
}

bool HandleBusFiles::readMasterOverride(const QString& path, OverrideRecord& record)
{
    QByteArray content;
    if (!WholeFile::read(path, content))
        return false;
    OverrideFile::readMasters(content, record);
    return true;
}

bool HandleBusFiles::readEtherCatFile(const QString& path, OverrideRecord& record,
                                      MasterDevicesInUse& devices)
{
    QByteArray content;
    if (!WholeFile::read(path, content))
        return false;
    OverrideFile::readSlaves(content, record, devices);
    const OverrideEntry* anybus = record.anybus();
    FieldbusSettingLib::getInstance()->set_ifidbus_ethcat_enable(anybus && anybus->off);
    return true;
}

bool HandleBusFiles::writeMasterOverride(const QString& path, const OverrideRecord& record, int mode)
{
    return editOverride(path, [record, mode](const QByteArray& content) {
        return OverrideFile::mastersRewritten(content, record, static_cast<OverrideMode>(mode));
    });
}

bool HandleBusFiles::writeEtherCatFile(const QString& path, const OverrideRecord& record)
{
    return editOverride(
        path, [record](const QByteArray& content) { return OverrideFile::slavesRewritten(content, record); });
}

bool HandleBusFiles::writeOverrideFile(const QString& path, const QString& key)
{
    return editOverride(path, [device = key.toStdString()](const QByteArray& content) {
        return OverrideFile::deviceSwitchedOff(content, device);
    });
}

bool HandleBusFiles::readHeartbeatDetectionFile(const QString& path, HeartbeatConfig& record)
{
    // Forgets the former values also when there is no file.
    QByteArray content;
    if (!WholeFile::read(path, content))
        content.clear();
    return HeartbeatFile::read(content, record);
}

bool HandleBusFiles::writeHeartbeatDetectionFile(const QString& path, const HeartbeatConfig& record)
{
    return saveXml(path, HeartbeatFile::written(record));
}

// The local copy is used up by the read, so that the next load fetches the controller's file again.
bool HandleBusFiles::readPfbCfgFile(const QString& path, PfbSlaveConfig& record)
{
    if (!readInto(record, path, PfbSlaveFile::read))
        return false;
    QFile::remove(path);
    return true;
}

bool HandleBusFiles::writePfbCfgFile(const QString& path, const PfbSlaveConfig& record)
{
    return edit(path, "/pfb_temp.cfg", FileLocations::of(ConfigFile::PfbSlave).controller,
                [record](const QByteArray& content) { return PfbSlaveFile::rewritten(content, record); });
}

bool HandleBusFiles::writePfbFreeFixFile(const QString& path, const QString& ctrlPath,
                                         const PfbSlaveConfig& record)
{
    return edit(path, "/pfb_freeOrFix.cfg", ctrlPath,
                [endian = record.ProfibusEndian](const QByteArray& content) {
                    return SlaveTextFile::rewritten(content, endian, {});
                });
}

bool HandleBusFiles::readEtherNetFile(const QString& path, EipSlaveConfig& record)
{
    return readInto(record, path, EipSlaveFile::read);
}

bool HandleBusFiles::writeEtherNetFile(const QString& path, const EipSlaveConfig& record)
{
    return edit(path, "/dns_temp.cfg", FileLocations::of(ConfigFile::EipSlave).controller,
                [record](const QByteArray& content) { return EipSlaveFile::rewritten(content, record); });
}

bool HandleBusFiles::writeEtherNetDnsFile(const QString& path, const QString& ctrlPath,
                                          const EipSlaveConfig& record)
{
    return edit(path, "/dns_fixOrFreeTemp.cfg", ctrlPath,
                [endian = record.EipEndian](const QByteArray& content) {
                    return SlaveTextFile::rewritten(content, endian, {});
                });
}

bool HandleBusFiles::readDeviceNetFile(const QString& path, DeviceNetSlaveConfig& record)
{
    return readInto(record, path, DeviceNetSlaveFile::read);
}

bool HandleBusFiles::writeDeviceNetFile(const QString& path, const DeviceNetSlaveConfig& record)
{
    return saveXml(path, DeviceNetSlaveFile::written(record));
}

bool HandleBusFiles::readDeviceNetMasterFile(const QString& path, DeviceNetMasterConfig& record)
{
    return readInto(record, path, DeviceNetMasterFile::read);
}

bool HandleBusFiles::writeDeviceNetMasterFile(const QString& path, DeviceNetMasterConfig& record)
{
    const QString oldCopy = FileLocations::workingDirectory() + QLatin1String("/test1.txt");
    const QString newCopy = FileLocations::workingDirectory() + QLatin1String("/test2.txt");
    QFile::remove(oldCopy);
    QFile::remove(newCopy);
    const QString current = QFile::exists(path) ? path : FileLocations::of(ConfigFile::DeviceNetMaster).local;
    QByteArray content;
    if (!QFile::copy(current, oldCopy) || !WholeFile::read(oldCopy, content))
        return false;
    content = DeviceNetMasterFile::rewritten(content, record);
    if (content.isEmpty())
        return false;
    record.layOutRegisters();
    return WholeFile::replace(newCopy, content) && WholeFile::replace(path, content);
}

bool HandleBusFiles::readMtcpFile(const QString& path, MtcpMasterConfig& record)
{
    return readInto(record, path, MtcpMasterFile::read);
}

bool HandleBusFiles::writeMtcpFile(const QString& path, const MtcpMasterConfig& record)
{
    return saveXml(path, MtcpMasterFile::written(record));
}

bool HandleBusFiles::readMasterTable(const QString& path, const char* root, MasterSlaveTable& record)
{
    QByteArray content;
    return WholeFile::read(path, content) && MasterTableFile::read(content, root, record);
}

bool HandleBusFiles::writeMasterTable(const QString& path, const char* root, const MasterSlaveTable& record)
{
    return saveXml(path, MasterTableFile::written(root, record));
}

bool HandleBusFiles::readMesSetFile(const QString& path, MesServerConfig& record)
{
    return readInto(record, path, MesServerFile::read);
}

bool HandleBusFiles::writeMesSetFile(const QString& path, const MesServerConfig& record)
{
    return saveXml(path, MesServerFile::written(record));
}

bool HandleBusFiles::readFinsTcpFile(const QString& path, FinsClientConfig& record)
{
    return readInto(record, path, FinsClientFile::read);
}

bool HandleBusFiles::writeFinsTcpFile(const QString& path, const FinsClientConfig& record)
{
    return saveXml(path, FinsClientFile::written(record));
}
