#include "HandleBusFiles.h"

#include "BusSwitchFile.h"
#include "ControllerCopies.h"
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
#include "WholeFile.h"
#include "ZelFunctions.h"

#include <QDir>
#include <QFile>

namespace {

// A copy that was read is noted; without one there is nothing to read.
template <typename Read>
bool readCopy(const QString& path, Read read)
{
    QByteArray content;
    bool recognised = false;
    if (!WholeFile::read(path, content) || !read(content, recognised))
        return false;
    ControllerCopies::instance().noteRead(path, content, recognised);
    return true;
}

template <typename Record>
bool readInto(Record& record, const QString& path, bool (*read)(const QByteArray&, Record&, bool*))
{
    return readCopy(path, [&record, read](const QByteArray& content, bool& recognised) {
        return read(content, record, &recognised);
    });
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

} // namespace

HandleBusFiles* HandleBusFiles::getInstance()
{
    static HandleBusFiles instance;
    return &instance;
}

bool HandleBusFiles::readFieldbusCfg(const QString& path, BusSwitchSet& switches, bool isImport)
{
    return readCopy(path, [&switches, isImport](const QByteArray& content, bool& recognised) {
        return BusSwitchFile::read(content, switches, isImport, &recognised);
    });
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
    return readCopy(path, [&record](const QByteArray& content, bool& recognised) {
        OverrideFile::read(content, OverrideSlot::Masters, record);
        recognised = OverrideFile::isRecognised(content);
        return true;
    });
}

bool HandleBusFiles::readEtherCatFile(const QString& path, OverrideRecord& record,
                                      MasterDevicesInUse& devices)
{
    const bool isRead = readCopy(path, [&record, &devices](const QByteArray& content, bool& recognised) {
        OverrideFile::read(content, record, devices);
        recognised = OverrideFile::isRecognised(content);
        return true;
    });
    if (!isRead)
        return false;
    const OverrideEntry* anybus = record.anybus();
    FieldbusSettingLib::getInstance()->set_ifidbus_ethcat_enable(anybus && anybus->off);
    return true;
}

bool HandleBusFiles::readHeartbeatDetectionFile(const QString& path, HeartbeatConfig& record)
{
    // Forgets the former values also when there is no file.
    record = HeartbeatConfig();
    return readInto(record, path, HeartbeatFile::read);
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

bool HandleBusFiles::readEtherNetFile(const QString& path, EipSlaveConfig& record)
{
    return readInto(record, path, EipSlaveFile::read);
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
    return readCopy(path, [root, &record](const QByteArray& content, bool& recognised) {
        return MasterTableFile::read(content, root, record, &recognised);
    });
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
