#include "FileStore.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>

// A static library's resources are only linked in when somebody asks for them; the macro must stand outside
// of every namespace.
static void initPlant()
{
    Q_INIT_RESOURCE(plant);
}

namespace {

constexpr auto PlantPrefix = ":/plant";

// Longer than any path of the controller, and short enough for every file system.
constexpr int MaxPathLength = 512;

// The controller has no other trees; a store elsewhere fails as it does there.
constexpr const char* Trees[] = {"application", "fa"};

// A name that means itself and nothing else.
bool isPlainName(const QString& name)
{
    return !name.isEmpty() && name != QLatin1String(".") && name != QLatin1String("..") &&
           std::all_of(name.begin(), name.end(),
                       [](QChar character) { return character.isPrint() && character != QLatin1Char('\\'); });
}

// The names of a path, none when it is no absolute path of plain names.
QStringList namesOf(const QString& path)
{
    if (path.size() > MaxPathLength || !path.startsWith(QLatin1Char('/')))
        return {};
    const QStringList names = path.mid(1).split(QLatin1Char('/'));
    return std::all_of(names.begin(), names.end(), isPlainName) ? names : QStringList();
}

// The entry of a folder that has the name in any case. Of two that differ only in case (a person put them
// there) it is always the same one, so that every spelling means one file.
QString entryOf(const QDir& folder, const QString& name)
{
    const QStringList entries =
        folder.entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
    const auto found = std::find_if(entries.begin(), entries.end(), [&name](const QString& entry) {
        return entry.compare(name, Qt::CaseInsensitive) == 0;
    });
    return found == entries.end() ? QString() : *found;
}

} // namespace

FileStore::FileStore(const QString& directory)
{
    if (directory.isEmpty() || !QDir().mkpath(directory)) {
        m_error =
            QCoreApplication::translate("FileStore", "The folder \"%1\" cannot be made.").arg(directory);
        return;
    }
    // The folder itself may be reached through links; below it none is followed.
    m_root = QDir(directory).canonicalPath();
    if (QDir(m_root).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot) &&
        !restoreFactory())
        m_error = QCoreApplication::translate("FileStore", "The factory files cannot be written to \"%1\".")
                      .arg(directory);
}

QString FileStore::find(const QString& path) const
{
    const QStringList names = namesOf(path);
    if (names.isEmpty() || m_root.isEmpty())
        return {};
    QString place = m_root;
    for (int i = 0; i < names.size(); ++i) {
        const QString entry = entryOf(QDir(place), names[i]);
        if (entry.isEmpty())
            return {};
        place += QLatin1Char('/') + entry;
        const QFileInfo info(place);
        if (info.isSymLink() || (i + 1 < names.size() ? !info.isDir() : !info.isFile()))
            return {};
    }
    return place;
}

bool FileStore::read(const QString& path, QByteArray& content) const
{
    const QString place = find(path);
    QFile file(place);
    if (place.isEmpty() || !file.open(QIODevice::ReadOnly))
        return false;
    QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return false;
    content = std::move(bytes);
    return true;
}

bool FileStore::write(const QString& path, const QByteArray& content)
{
    const QStringList names = namesOf(path);
    const bool inTree = std::any_of(std::begin(Trees), std::end(Trees), [&names](const char* tree) {
        return names.size() > 1 && names.first().compare(QLatin1String(tree), Qt::CaseInsensitive) == 0;
    });
    if (!inTree || m_root.isEmpty())
        return false;

    QString place = m_root;
    for (int i = 0; i < names.size(); ++i) {
        const bool isFile = i + 1 == names.size();
        const QString entry = entryOf(QDir(place), names[i]);
        if (entry.isEmpty() && !isFile && !QDir(place).mkdir(names[i]))
            return false;
        place += QLatin1Char('/') + (entry.isEmpty() ? names[i] : entry);
        const QFileInfo info(place);
        // A dangling link does not exist and is a link all the same.
        if (info.isSymLink() || (info.exists() && (isFile ? !info.isFile() : !info.isDir())))
            return false;
    }

    QSaveFile file(place);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    // The content may still lie in the buffer when the disk is full: commit() alone would then put an empty
    // file in place and report success.
    if (file.write(content) != content.size() || !file.flush())
        return false;
    return file.commit();
}

bool FileStore::remove(const QString& path)
{
    const QString place = find(path);
    return !place.isEmpty() && QFile::remove(place);
}

bool FileStore::restoreFactory()
{
    bool success = true;
    for (const QString& path : factoryFiles())
        success = write(path, factoryFile(path)) && success;
    return success;
}

QByteArray FileStore::factoryFile(const QString& path)
{
    initPlant();
    QFile file(QLatin1String(PlantPrefix) + path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList FileStore::factoryFiles()
{
    initPlant();
    QStringList paths;
    QDirIterator walk(QLatin1String(PlantPrefix), QDir::Files, QDirIterator::Subdirectories);
    while (walk.hasNext())
        paths.append(walk.next().mid(static_cast<int>(qstrlen(PlantPrefix))));
    paths.sort();
    return paths;
}
