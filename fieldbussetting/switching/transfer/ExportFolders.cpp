#include "ExportFolders.h"

#include "ImportSet.h"

#include <QDir>
#include <QLocale>

#include <algorithm>

namespace {

const QString Prefix = QStringLiteral("fidbus_");

QDateTime timeOf(const QFileInfo& folder)
{
    const QDateTime named =
        QLocale::c().toDateTime(folder.fileName().mid(Prefix.size()), QStringLiteral("yyyyMMdd_hhmmss"));
    return named.isValid() ? named : folder.lastModified();
}

int filesIn(const QString& folder)
{
    const std::vector<ImportFile>& set = importSet();
    return static_cast<int>(std::count_if(set.begin(), set.end(), [&folder](const ImportFile& file) {
        return !file.optional && QFileInfo(folder + QLatin1Char('/') + file.name).isFile();
    }));
}

} // namespace

std::vector<ExportFolder> exportFoldersOn(const QString& drive)
{
    std::vector<ExportFolder> folders;
    const QFileInfoList found = QDir(drive).entryInfoList(
        {Prefix + QLatin1Char('*')}, QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks);
    for (const QFileInfo& folder : found)
        folders.push_back({folder.filePath(), folder.fileName(), timeOf(folder), filesIn(folder.filePath())});
    std::sort(folders.begin(), folders.end(), [](const ExportFolder& one, const ExportFolder& other) {
        return one.written != other.written ? one.written > other.written : one.name > other.name;
    });
    return folders;
}
