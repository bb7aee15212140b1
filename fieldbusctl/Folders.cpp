#include "Folders.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace {

const QString ExportPrefix = QStringLiteral("fidbus_");

bool holdsExport(FolderReader& reader)
{
    const auto& files = KnownFiles::all();
    return std::any_of(files.begin(), files.end(),
                       [&reader](const KnownFile& file) { return reader.has(file.name); });
}

std::vector<Folder> exportsOn(const QString& drive, FolderReader& reader, Folders::Choice choice)
{
    QStringList names;
    for (const QString& entry : reader.entries()) {
        if (entry.startsWith(ExportPrefix) && entry.endsWith(QLatin1Char('/')))
            names << entry.chopped(1);
    }
    // The time stands in the name, so that the order of the names is that of the exports.
    if (choice == Folders::Choice::Newest && !names.isEmpty())
        names = QStringList(names.last());
    std::vector<Folder> folders;
    for (const QString& name : names)
        folders.push_back({QDir(drive).filePath(name), Folder::Layout::Export});
    return folders;
}

std::vector<Folder> behind(const QString& path, Folders::Choice choice, QString& trouble)
{
    FolderReader reader(path);
    if (!reader.isOpen()) {
        trouble = QStringLiteral("%1: %2").arg(path, QFileInfo::exists(path)
                                                         ? QStringLiteral("cannot be opened as a folder")
                                                         : QStringLiteral("there is no such folder"));
        return {};
    }
    if (reader.hasFolder("application/fidbus"))
        return {{path, Folder::Layout::Controller}};
    if (holdsExport(reader))
        return {{path, Folder::Layout::Export}};
    std::vector<Folder> folders = exportsOn(path, reader, choice);
    if (folders.empty())
        trouble = QStringLiteral(
                      "%1: holds no file of a bus configuration, no export (fidbus_...) and no controller's "
                      "files (application/fidbus)")
                      .arg(path);
    return folders;
}

} // namespace

QString Folder::name() const
{
    return QFileInfo(QDir::cleanPath(QFileInfo(path).absoluteFilePath())).fileName();
}

std::vector<Folder> Folders::find(const std::vector<std::string>& arguments, Choice choice, QString& trouble)
{
    std::vector<Folder> folders;
    for (const std::string& argument : arguments) {
        const std::vector<Folder> found = behind(QFile::decodeName(argument.c_str()), choice, trouble);
        if (found.empty())
            return {};
        folders.insert(folders.end(), found.begin(), found.end());
    }
    return folders;
}

FoundFile Folders::read(FolderReader& reader, Folder::Layout layout, const KnownFile& file)
{
    if (layout == Folder::Layout::Export)
        return reader.read(file.name);
    QByteArray path = file.controller + 1;
    FoundFile found = reader.read(path);
    // What is one folder on the controller may be two where case counts.
    if (found.state == FoundFile::State::Missing && path.left(3).toLower() == "fa/")
        found = reader.read(path.replace(0, 2, path.startsWith("FA") ? "fa" : "FA"));
    return found;
}
