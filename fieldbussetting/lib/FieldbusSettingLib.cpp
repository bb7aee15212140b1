#include "FieldbusSettingLib.h"

#include "ControllerCopies.h"
#include "DataAccess.h"
#include "FileLocations.h"
#include "FormerFiles.h"
#include "HandleBusFiles.h"
#include "Logging.h"
#include "WholeFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QStringList>
#include <QThread>
#include <QTime>

namespace {

constexpr int FetchAttempts = 10;
constexpr unsigned FetchPauseMs = 100;
constexpr unsigned SecondSeriesPauseMs = 1000;
constexpr int EventSliceMs = 100;
constexpr unsigned long IdlePauseUs = 500; // keeps a wait without events from occupying the processor

} // namespace

// The interface hands paths over by value.
// NOLINTBEGIN(performance-unnecessary-value-param)

FieldbusSettingLib* FieldbusSettingLib::s_instance = nullptr;

FieldbusSettingLib* FieldbusSettingLib::getInstance()
{
    if (!s_instance)
        s_instance = new FieldbusSettingLib;
    return s_instance;
}

void FieldbusSettingLib::destroy()
{
    delete s_instance;
    s_instance = nullptr;
    ControllerCopies::instance().forgetReads();
    FormerFiles::instance().forgetSeen();
}

// Touches no member after a wait: the object may be destroyed while events are processed.
bool FieldbusSettingLib::getFileFromCtrl(QString localPath, QString ctrlPath)
{
    if (!checkFilePath(localPath))
        return false;
    for (int attempt = 0; attempt < FetchAttempts; ++attempt) {
        if (DataAccess::GetFileFromController2TPU(ctrlPath, localPath, false))
            return true;
        delay_MSec(FetchPauseMs);
    }
    qCDebug(fieldbusLog) << "Could not fetch" << ctrlPath << "to" << localPath;
    return false;
}

bool FieldbusSettingLib::sendFileToCtrl(QString localPath, QString ctrlPath)
{
    QByteArray content;
    const bool isRead = WholeFile::read(localPath, content);
    const qint64 kept = isRead ? FormerFiles::instance().keep(ctrlPath, &content) : 0;
    const bool sent = DataAccess::SendFileFromTPU2Controller(localPath, ctrlPath, false);
    ControllerCopies::instance().noteSent(ctrlPath, sent && isRead ? &content : nullptr);
    if (sent)
        return true;
    FormerFiles::failed(kept);
    qCDebug(fieldbusLog) << "Could not send" << localPath << "to" << ctrlPath;
    return false;
}

bool FieldbusSettingLib::readFieldbusCfgFromCtr()
{
    const FileLocation& location = FileLocations::of(ConfigFile::BusSwitch);
    if (!getFileFromCtrl(location.local, location.controller)) {
        delay_MSec(SecondSeriesPauseMs);
        if (!getFileFromCtrl(location.local, location.controller))
            return false;
    }
    return getInstance()->readFieldbusCfg(location.local, false);
}

bool FieldbusSettingLib::writeFieldbusCfgToCtr()
{
    const FileLocation& location = FileLocations::of(ConfigFile::BusSwitch);
    return writeFieldbusCfg(location.local, false) && sendFileToCtrl(location.local, location.controller);
}

bool FieldbusSettingLib::checkFilePath(QString filePath)
{
    const QString fileName = filePath.split(QLatin1Char('/')).constLast();
    // Every occurrence goes, also one that is a folder's name. The layout of the working directory relies on
    // it nowhere, but callers may.
    QString directory = filePath;
    if (!fileName.isEmpty())
        directory.remove(fileName);
    return QDir(directory).exists() || QDir().mkdir(directory);
}

bool FieldbusSettingLib::deleteDir(const QString& dirPath, const QString& keepName)
{
    // What a link points to lies outside of what is to be deleted, here as further down.
    if (QFileInfo(dirPath).isSymLink())
        return false;
    QDir directory(dirPath);
    if (!directory.exists())
        return true;
    const QFileInfoList entries =
        directory.entryInfoList(QDir::Files | QDir::Dirs | QDir::Drives | QDir::NoDotAndDotDot);
    for (const QFileInfo& entry : entries) {
        // A link goes as the link it is; what it points to lies outside the tree.
        if (entry.isDir() && !entry.isSymLink())
            deleteDir(entry.filePath(), keepName);
        else
            QFile::remove(entry.filePath());
    }
    if (directory.dirName() == keepName)
        return true;
    return directory.rmdir(directory.absolutePath());
}

void FieldbusSettingLib::delay_MSec(unsigned int msec)
{
    const QTime start = QTime::currentTime();
    const QTime deadline = start.addMSecs(static_cast<int>(msec));
    // By the time of day: a wait that crosses midnight, or during which the clock is set back, ends at once.
    for (QTime now = start; now >= start && now < deadline; now = QTime::currentTime()) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, EventSliceMs);
        QThread::usleep(IdlePauseUs);
    }
}

bool FieldbusSettingLib::readFieldbusCfg(QString path, bool isImport)
{
    return HandleBusFiles::getInstance()->readFieldbusCfg(path, isImport ? importSwitches : busSwitches,
                                                          isImport);
}

bool FieldbusSettingLib::writeFieldbusCfg(QString path, bool isImport)
{
    Q_UNUSED(isImport)
    return HandleBusFiles::getInstance()->writeFieldbusCfg(path);
}

bool FieldbusSettingLib::readEipMFile(QString path)
{
    return HandleBusFiles::getInstance()->readMasterOverride(path, eipMasterOverride);
}

bool FieldbusSettingLib::writeEipMFile(QString path, int mode)
{
    return HandleBusFiles::getInstance()->writeMasterOverride(path, eipMasterOverride, mode);
}

bool FieldbusSettingLib::readEtherCatMFile(QString path)
{
    return HandleBusFiles::getInstance()->readMasterOverride(path, etherCatMasterOverride);
}

bool FieldbusSettingLib::writeEtherCatMFile(QString path, int mode)
{
    return HandleBusFiles::getInstance()->writeMasterOverride(path, etherCatMasterOverride, mode);
}

bool FieldbusSettingLib::readPnmFile(QString path)
{
    return HandleBusFiles::getInstance()->readMasterOverride(path, pfnMasterOverride);
}

bool FieldbusSettingLib::writePnmFile(QString path, int mode)
{
    return HandleBusFiles::getInstance()->writeMasterOverride(path, pfnMasterOverride, mode);
}

bool FieldbusSettingLib::readEtherCatFile(QString path)
{
    return HandleBusFiles::getInstance()->readEtherCatFile(path, etherCatSlaveOverride, masterDevices);
}

bool FieldbusSettingLib::writeEtherCatFile(QString path)
{
    return HandleBusFiles::getInstance()->writeEtherCatFile(path, etherCatSlaveOverride);
}

bool FieldbusSettingLib::writeOverrideFile(const QString& path, const QString& key)
{
    return HandleBusFiles::getInstance()->writeOverrideFile(path, key);
}

WriteProblem FieldbusSettingLib::writeProblem() const
{
    return HandleBusFiles::getInstance()->problem();
}

bool FieldbusSettingLib::readHeartbeatDetectionFile(QString path)
{
    return HandleBusFiles::getInstance()->readHeartbeatDetectionFile(path, heartbeat);
}

bool FieldbusSettingLib::writeHeartbeatDetectionFile(QString path)
{
    return HandleBusFiles::getInstance()->writeHeartbeatDetectionFile(path, heartbeat);
}

bool FieldbusSettingLib::readPfbCfgFile(QString path)
{
    return HandleBusFiles::getInstance()->readPfbCfgFile(path, pfbSlave);
}

bool FieldbusSettingLib::writePfbCfgFile(QString path)
{
    return HandleBusFiles::getInstance()->writePfbCfgFile(path, pfbSlave);
}

bool FieldbusSettingLib::writePfbFreeFixFile(QString path, QString ctrlPath)
{
    return HandleBusFiles::getInstance()->writePfbFreeFixFile(path, ctrlPath, pfbSlave);
}

bool FieldbusSettingLib::readEtherNetFile(QString path)
{
    return HandleBusFiles::getInstance()->readEtherNetFile(path, eipSlave);
}

bool FieldbusSettingLib::writeEtherNetFile(QString path)
{
    return HandleBusFiles::getInstance()->writeEtherNetFile(path, eipSlave);
}

bool FieldbusSettingLib::writeEtherNetDnsFile(QString path, QString ctrlPath)
{
    return HandleBusFiles::getInstance()->writeEtherNetDnsFile(path, ctrlPath, eipSlave);
}

bool FieldbusSettingLib::readDeviceNetFile(QString path)
{
    return HandleBusFiles::getInstance()->readDeviceNetFile(path, deviceNetSlave);
}

bool FieldbusSettingLib::writeDeviceNetFile(QString path)
{
    return HandleBusFiles::getInstance()->writeDeviceNetFile(path, deviceNetSlave);
}

bool FieldbusSettingLib::readDeviceNetMasterFile(QString path)
{
    return HandleBusFiles::getInstance()->readDeviceNetMasterFile(path, deviceNetMaster);
}

bool FieldbusSettingLib::writeDeviceNetMasterFile(QString path)
{
    return HandleBusFiles::getInstance()->writeDeviceNetMasterFile(path, deviceNetMaster);
}

bool FieldbusSettingLib::readMtcpFile(QString path)
{
    return HandleBusFiles::getInstance()->readMtcpFile(path, mtcpMaster);
}

bool FieldbusSettingLib::writeMtcpFile(QString path)
{
    return HandleBusFiles::getInstance()->writeMtcpFile(path, mtcpMaster);
}

bool FieldbusSettingLib::readEimXMLFile(QString path)
{
    return HandleBusFiles::getInstance()->readMasterTable(path, MasterTableRoot::EtherNetIp, eipMaster);
}

bool FieldbusSettingLib::writeEimXMLFile(QString path)
{
    return HandleBusFiles::getInstance()->writeMasterTable(path, MasterTableRoot::EtherNetIp, eipMaster);
}

bool FieldbusSettingLib::readPnmXMLFile(QString path)
{
    return HandleBusFiles::getInstance()->readMasterTable(path, MasterTableRoot::Profinet, pfnMaster);
}

bool FieldbusSettingLib::writePnmXMLFile(QString path)
{
    return HandleBusFiles::getInstance()->writeMasterTable(path, MasterTableRoot::Profinet, pfnMaster);
}

bool FieldbusSettingLib::readMesSetFile(QString path)
{
    return HandleBusFiles::getInstance()->readMesSetFile(path, mesServer);
}

bool FieldbusSettingLib::writeMesSetFile(QString path)
{
    return HandleBusFiles::getInstance()->writeMesSetFile(path, mesServer);
}

bool FieldbusSettingLib::readFinsTcpFile(QString path)
{
    return HandleBusFiles::getInstance()->readFinsTcpFile(path, finsClient);
}

bool FieldbusSettingLib::writeFinsTcpFile(QString path)
{
    return HandleBusFiles::getInstance()->writeFinsTcpFile(path, finsClient);
}

// NOLINTEND(performance-unnecessary-value-param)
