#include "Bench.h"

#include "CurrentLink.h"
#include "FieldbusSettingLib.h"
#include "Shim.h"
#include "UsbDrive.h"
#include "WorkDirectory.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>

#include <filesystem>
#include <utility>

namespace {

bool put(const QString& path, const QByteArray& content)
{
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly) &&
           file.write(content) == content.size();
}

QByteArray get(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() + "" : QByteArray();
}

} // namespace

DirectoryLink::DirectoryLink(const QString& directory)
    : m_directory(directory)
{
    for (const QString& path : Bench::filesBelow(directory))
        files.insert(path, get(directory + path));
}

bool DirectoryLink::storeFile(const QString& ctrlPath, const QByteArray& content)
{
    const Shim::Pause pause;
    return put(m_directory + ctrlPath.toLower(), content) && MemoryLink::storeFile(ctrlPath, content);
}

bool DirectoryLink::removeFile(const QString& ctrlPath)
{
    const Shim::Pause pause;
    QFile::remove(m_directory + ctrlPath.toLower());
    return MemoryLink::removeFile(ctrlPath);
}

Bench::Bench(QString directory)
    : m_directory(std::move(directory))
{
}

bool Bench::make(const QString& plantDirectory) const
{
    for (const QString& path : filesBelow(plantDirectory)) {
        if (!path.endsWith(QLatin1String(".qrc")) &&
            !put(controller() + path.toLower(), get(plantDirectory + path)))
            return false;
    }
    return QDir().mkpath(drive()) && WorkDirectory(pendant()).enter();
}

bool Bench::copyFrom(const Bench& other) const
{
    std::error_code error;
    const std::filesystem::path target = m_directory.toStdString();
    std::filesystem::remove_all(target, error);
    std::filesystem::copy(
        other.path().toStdString(), target,
        std::filesystem::copy_options::recursive | std::filesystem::copy_options::copy_symlinks, error);
    return !error;
}

void Bench::enter() const
{
    FieldbusSettingLib::destroy();
    WorkDirectory(pendant()).enter();
    // Of the process: it ends with it.
    setCurrentLink(new DirectoryLink(controller()));
    UsbDrive::instance().insert(drive());
}

QByteArray Bench::file(const QString& name) const
{
    return get(m_directory + QLatin1Char('/') + name);
}

QByteArray Bench::controllerFile(const QString& ctrlPath) const
{
    return get(controller() + ctrlPath.toLower());
}

QStringList Bench::filesBelow(const QString& folder)
{
    QStringList paths;
    QDirIterator files(folder, QDir::Files | QDir::Hidden | QDir::System, QDirIterator::Subdirectories);
    while (files.hasNext())
        paths << files.next().mid(folder.size());
    paths.sort();
    return paths;
}
