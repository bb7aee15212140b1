#include "ImportSet.h"

#include "DriveFiles.h"
#include "FieldbusSettingLib.h"
#include "FileLocations.h"
#include "ZelFunctions.h"

#include <QDir>

namespace {

std::vector<ImportFile> makeImportSet()
{
    std::vector<ImportFile> set;
    for (const TransferFile& file : FileLocations::transferSet())
        set.push_back({file.path, file.controller, file.xmlRoot, false,
                       file.controller == QLatin1String(FileLocations::FieldbusXml)});
    set.push_back({QStringLiteral("Fieldbus.cfg"), FileLocations::of(ConfigFile::BusSwitch).controller,
                   "FieldbusSettingConfig", true});
    return set;
}

// Whether nothing on the way from the folder to the file is a link.
bool isPlain(const QString& folder, const QString& name)
{
    const QString path = QFileInfo(folder).canonicalFilePath() + QLatin1Char('/') + name;
    return QFileInfo(path).canonicalFilePath() == path;
}

} // namespace

QString ImportFile::staged() const
{
    return importDirectory() + QLatin1Char('/') + name;
}

QString ImportFile::present() const
{
    return presentDirectory() + QLatin1Char('/') + name;
}

QString ImportFile::kept() const
{
    return keptDirectory() + QLatin1Char('/') + name;
}

const std::vector<ImportFile>& importSet()
{
    static const std::vector<ImportFile> set = makeImportSet();
    return set;
}

const QString& importDirectory()
{
    static const QString path = ZelGetLocalizedFileName(QStringLiteral("../Application/fidbus/import"), 1);
    return path;
}

const QString& presentDirectory()
{
    static const QString path =
        ZelGetLocalizedFileName(QStringLiteral("../Application/fidbus/import-present"), 1);
    return path;
}

const QString& keptDirectory()
{
    static const QString path =
        ZelGetLocalizedFileName(QStringLiteral("../Application/fidbus/import-kept"), 1);
    return path;
}

bool prepareImportDirectory(const QString& directory)
{
    bool prepared = FieldbusSettingLib::getInstance()->deleteDir(directory, QString());
    for (const ImportFile& file : importSet())
        prepared = QDir().mkpath(QFileInfo(directory + QLatin1Char('/') + file.name).path()) && prepared;
    return prepared;
}

TransferResult copyFromDrive(const QString& drive, const QString& folder, TransferWatch& watch,
                             std::vector<ImportEntry>& entries)
{
    entries.clear();
    if (!prepareImportDirectory(importDirectory()))
        return {TransferResult::LocalFailed, importDirectory()};
    for (const ImportFile& file : importSet()) {
        if (!DriveFiles::isThere(drive))
            return {TransferResult::DriveGone, file.name};
        const QFileInfo source(folder + QLatin1Char('/') + file.name);
        ImportEntry entry;
        entry.file = &file;
        if (source.isSymLink() || (source.exists() && !isPlain(folder, file.name))) {
            entry.reason = ImportEntry::IsLink;
        } else if (source.isFile() && source.size() > LargestImportFile) {
            entry.reason = ImportEntry::TooLarge;
        } else if (source.isFile()) {
            if (!DriveFiles::copy(source.filePath(), file.staged()))
                return {TransferResult::DriveFailed, file.name};
            entry.state = ImportEntry::Different;
        }
        if (!file.optional || entry.isBrought())
            entries.push_back(entry);
        if (entry.isBrought() && !watch.step())
            return {TransferResult::Unwanted, {}};
    }
    return {};
}
