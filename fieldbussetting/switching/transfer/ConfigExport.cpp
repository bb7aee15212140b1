#include "ConfigExport.h"

#include "DriveFiles.h"
#include "FieldbusSettingLib.h"
#include "FileLocations.h"
#include "Logging.h"
#include "SysSettingApi.h"

#include <QDateTime>
#include <QDir>
#include <QLocale>

#include <utility>

namespace {

constexpr int FetchTries = 3; // each of them ten attempts of the library
constexpr unsigned BetweenTriesMs = 100;

// Of the export folder, in the order in which they are made and filled.
constexpr const char* Folders[] = {"devicenet",
                                   "eipMaster",
                                   "pfnMaster",
                                   "fixed",
                                   "free",
                                   "rs232",
                                   "SlaveConfig",
                                   "SlaveConfig/EtherCAT",
                                   "SlaveConfig/EthernetIP",
                                   "SlaveConfig/Profinet",
                                   "SlaveConfig/Devicenet",
                                   "mtcpMaster",
                                   "fa"};

void logText(const QString& text)
{
    qCDebug(fieldbusLog).noquote() << text;
}

// The library makes one level only when it fetches, and clearing has removed the sub-folders.
void prepareStaging()
{
    QDir().mkpath(FileLocations::stagingDirectory());
    for (const char* folder : Folders)
        QDir().mkpath(FileLocations::stagingFolder(QLatin1String(folder)));
}

} // namespace

ConfigExport::ConfigExport(QString drive, TransferWatch& watch)
    : m_drive(std::move(drive))
    , m_watch(watch)
{
}

TransferResult ConfigExport::run()
{
    if (!FieldbusSettingLib::getInstance()->deleteDir(FileLocations::stagingDirectory(),
                                                      QStringLiteral("fidbus")))
        qCDebug(fieldbusLog, "Bus delete export file failed!");
    prepareStaging();
    TransferResult result = fetchAll();
    if (!result.isDone()) {
        qCDebug(fieldbusLog, "Bus failed to obtain file from controller!");
        return result;
    }
    return writeAll();
}

TransferResult ConfigExport::fetchAll()
{
    for (const TransferFile& file : FileLocations::transferSet()) {
        TransferResult result = fetch(file);
        if (!result.isDone())
            return result;
    }
    return {};
}

TransferResult ConfigExport::fetch(const TransferFile& file)
{
    if (!DriveFiles::isThere(m_drive))
        return {TransferResult::DriveGone, QLatin1String(file.label)};
    for (int attempt = 0; attempt < FetchTries; ++attempt) {
        const bool fetched =
            FieldbusSettingLib::getInstance()->getFileFromCtrl(file.staging, file.controller);
        if (fetched)
            return stepped();
        if (m_watch.isWanted())
            SysSettingApi::delay_MSec(BetweenTriesMs);
        if (!m_watch.isWanted())
            return {TransferResult::Unwanted, {}};
    }
    logText(QStringLiteral("Get fidbus %1 file failed!").arg(QLatin1String(file.label)));
    return {TransferResult::FetchFailed, QLatin1String(file.label)};
}

TransferResult ConfigExport::writeAll()
{
    // Digits that every pendant and computer reads, whatever the language is set to.
    const QString time =
        QLocale::c().toString(QDateTime::currentDateTime(), QStringLiteral("yyyyMMdd_hhmmss"));
    const QString target = m_drive + QStringLiteral("/fidbus_%1").arg(time);
    TransferResult result = makeFolder(target);
    for (const char* folder : Folders) {
        if (result.isDone())
            result = makeFolder(target + QLatin1Char('/') + QLatin1String(folder));
    }
    if (result.isDone())
        result = copyFolder(FileLocations::stagingDirectory(), target);
    for (const char* folder : Folders) {
        const QString name = QLatin1String(folder);
        if (result.isDone())
            result = copyFolder(FileLocations::stagingFolder(name), target + QLatin1Char('/') + name);
    }
    return result;
}

// Without the drive its mount point is a folder of the pendant, which must not be filled.
TransferResult ConfigExport::makeFolder(const QString& path)
{
    if (!DriveFiles::isThere(m_drive))
        return {TransferResult::DriveGone, path};
    if (!QDir(path).exists()) {
        const bool made = QDir().mkpath(path);
        logText(QLatin1String("fidbus make dir(") + path + QLatin1String(") result:") +
                (made ? QLatin1String("true") : QLatin1String("false")));
        if (!made)
            return {TransferResult::DriveFailed, path};
    }
    return stepped();
}

TransferResult ConfigExport::copyFolder(const QString& source, const QString& target)
{
    const QFileInfoList files = QDir(source).entryInfoList(QDir::Files | QDir::NoDotAndDotDot, QDir::Time);
    for (const QFileInfo& file : files) {
        const QString name = file.fileName();
        const bool there = DriveFiles::isThere(m_drive);
        if (!there || !DriveFiles::copy(file.filePath(), target + QLatin1Char('/') + name)) {
            logText(QStringLiteral("Copying %1 file to USB drive failed!").arg(name));
            return {there ? TransferResult::DriveFailed : TransferResult::DriveGone, name};
        }
        TransferResult result = stepped();
        if (!result.isDone())
            return result;
    }
    return {};
}

TransferResult ConfigExport::stepped()
{
    return {m_watch.step() ? TransferResult::Done : TransferResult::Unwanted, {}};
}
