#include "ImportSet.h"

#include "DriveFiles.h"
#include "FieldbusSettingLib.h"
#include "FileLocations.h"
#include "ZelFunctions.h"

#include <QDir>

namespace {

// The service that reads them refuses larger ones as well.
constexpr qint64 LargestFile = qint64(4) * 1024 * 1024;

struct Root
{
    const char* file;
    const char* element;
};

// What is not listed is a text file.
constexpr Root Roots[] = {
    {"heartbeat.xml", "Fidbus"},
    {"fieldbus_config.xml", "FieldbusConfig"},
    {"fieldbus.xml", "Fieldbus"},
    {"user_description.xml", "UserDescription"},
    {"pfs_description.xml", "ProfiSafe"},
    {"devicenetSlave.xml", "devicenet"},
    {"eip_master.xml", "EipMasterCommunication"},
    {"pfn_master.xml", "PfnMasterCommunication"},
    {"mtcp_master.xml", "MtcpMasterCommunication"},
    {"description_fixed.xml", "Description"},
    {"fieldbus_fixed.xml", "Fieldbus"},
    {"description_free.xml", "Description"},
    {"fieldbus_free.xml", "Fieldbus"},
    {"rs232FileConfig.xml", "Rs232Config"},
    {"ABXS_ECT_V_3_28.xml", "EtherCATInfo"},
    {"GSDML-V2.33-Kliklus-RP2-20200520.xml", "ISO15745Profile"},
    {"fbslave.cfgx", "FbSlave"},
};

const char* rootOf(const char* name)
{
    for (const Root& root : Roots) {
        if (qstrcmp(root.file, name) == 0)
            return root.element;
    }
    return nullptr;
}

std::vector<ImportFile> makeImportSet()
{
    std::vector<ImportFile> set;
    for (const TransferFile& file : FileLocations::transferSet()) {
        const QString folder = QLatin1String(file.folder);
        const QString name = QLatin1String(file.name);
        set.push_back({folder.isEmpty() ? name : folder + QLatin1Char('/') + name,
                       QLatin1String(file.controller), rootOf(file.name), false,
                       qstrcmp(file.controller, FileLocations::FieldbusXml) == 0});
    }
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
        } else if (source.isFile() && source.size() > LargestFile) {
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
