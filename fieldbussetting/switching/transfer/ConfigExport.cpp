#include "ConfigExport.h"

#include "ControllerCopies.h"
#include "DriveFiles.h"
#include "DurableFiles.h"
#include "FieldbusSettingLib.h"
#include "FileCheck.h"
#include "FileLocations.h"
#include "ImportSet.h"
#include "Logging.h"
#include "SysSettingApi.h"
#include "WholeFile.h"

#include <pugixml.hpp>

#include <QDateTime>
#include <QDir>
#include <QLocale>

#include <utility>

namespace {

constexpr int FetchTries = 3; // each of them ten attempts of the library
constexpr unsigned BetweenTriesMs = 100;

// The name of a folder changes with the second.
constexpr int NameTries = 16;
constexpr unsigned BetweenNamesMs = 250;

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

// The library makes one level only when it fetches, and clearing has removed the sub-folders. False when the
// directory is a link: what it points to lies outside.
bool prepareStaging()
{
    if (QFileInfo(FileLocations::stagingDirectory()).isSymLink())
        return false;
    QDir().mkpath(FileLocations::stagingDirectory());
    for (const char* folder : Folders)
        QDir().mkpath(FileLocations::stagingFolder(QLatin1String(folder)));
    return true;
}

// Beside the staging directory: all that lies in it goes onto the drive.
QString secondCopy()
{
    return FileLocations::stagingDirectory() + QStringLiteral("-compared");
}

// A file that ends in the middle was cut on its way, also when it is so each time: an XML file does not end
// well, and a text file lacks keywords that its reader looks for. What was read of it before is the measure:
// a controller's own file may lack them.
bool isCutShort(const TransferFile& file)
{
    QByteArray content;
    if (!WholeFile::read(file.staging, content))
        return true;
    if (file.xmlRoot)
        return content.trimmed().startsWith('<') &&
               !pugi::xml_document().load_buffer(
                   content.constData(), static_cast<std::size_t>(content.size()), pugi::parse_minimal);
    const KnownFile* known = KnownFiles::named(file.path);
    const ControllerCopies::Copy copy = ControllerCopies::instance().copy(file.controller);
    const auto fault = known ? FileCheck::faultOf(*known, content, copy.isKnown ? &copy.bytes : nullptr)
                             : std::optional<FileCheck::Fault>();
    return fault && fault->kind == FileCheck::Fault::Incomplete;
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
    if (!prepareStaging())
        return {TransferResult::LocalFailed, FileLocations::stagingDirectory()};
    TransferResult result = fetchAll();
    QFile::remove(secondCopy());
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
        if (isFetched(file)) {
            // An import would leave it out.
            if (QFileInfo(file.staging).size() > LargestImportFile)
                break;
            return stepped();
        }
        if (m_watch.isWanted())
            SysSettingApi::delay_MSec(BetweenTriesMs);
        if (!m_watch.isWanted())
            return {TransferResult::Unwanted, {}};
    }
    logText(QStringLiteral("Get fidbus %1 file failed!").arg(QLatin1String(file.label)));
    return {TransferResult::FetchFailed, QLatin1String(file.label)};
}

// Twice, since a transfer that went wrong does not say so.
bool ConfigExport::isFetched(const TransferFile& file) const
{
    FieldbusSettingLib* lib = FieldbusSettingLib::getInstance();
    return lib->getFileFromCtrl(file.staging, file.controller) &&
           lib->getFileFromCtrl(secondCopy(), file.controller) &&
           WholeFile::areSame(file.staging, secondCopy()) && !isCutShort(file);
}

// A folder that is there already is not written into, nor is what a link of that name points to.
TransferResult ConfigExport::makeTarget(QString& target)
{
    for (int attempt = 0; attempt < NameTries; ++attempt) {
        // Digits that every pendant and computer reads, whatever the language is set to.
        const QString time =
            QLocale::c().toString(QDateTime::currentDateTime(), QStringLiteral("yyyyMMdd_hhmmss"));
        target = m_drive + QStringLiteral("/fidbus_%1").arg(time);
        const QFileInfo there(target);
        if (!there.exists() && !there.isSymLink())
            return makeFolder(target);
        FieldbusSettingLib::getInstance()->delay_MSec(BetweenNamesMs);
        if (!m_watch.isWanted())
            return {TransferResult::Unwanted, {}};
    }
    return {TransferResult::DriveFailed, target};
}

TransferResult ConfigExport::writeAll()
{
    QString target;
    TransferResult result = makeTarget(target);
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
    if (result.isDone() && !DurableFiles::syncTree(target))
        return {TransferResult::DriveFailed, target};
    return result;
}

// Without the drive its mount point is a folder of the pendant, which must not be filled.
TransferResult ConfigExport::makeFolder(const QString& path)
{
    if (!DriveFiles::isThere(m_drive))
        return {TransferResult::DriveGone, path};
    const bool made = QDir().mkdir(path); // not one that is there
    logText(QLatin1String("fidbus make dir(") + path + QLatin1String(") result:") +
            (made ? QLatin1String("true") : QLatin1String("false")));
    if (!made)
        return {TransferResult::DriveFailed, path};
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
