#include "FieldbusSettingLib.h"

#include "ControllerCopies.h"
#include "DataAccess.h"
#include "FileLocations.h"
#include "FormerFiles.h"
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

// NOLINTEND(performance-unnecessary-value-param)
