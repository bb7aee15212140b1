#ifndef FIELDBUSCTL_FOLDERS_H
#define FIELDBUSCTL_FOLDERS_H

#include "FolderReader.h"
#include "KnownFiles.h"

#include <QString>
#include <QStringList>

#include <string>
#include <vector>

/// A folder that holds one configuration.
struct Folder
{
    enum class Layout {
        Export,    ///< as a pendant writes it onto a drive
        Controller ///< a copy of the controller's own file system
    };

    QString path; ///< as it can be opened
    Layout layout = Layout::Export;

    /// The last part of the path, which tells exports apart.
    QString name() const;
};

/// Finds out what was named on the command line: an export, a drive that holds exports, or a controller's
/// files.
namespace Folders {

/// Which exports of a drive are meant.
enum class Choice { Newest, All };

/// The folders behind `arguments`, in their order; the exports of a drive from the oldest to the newest.
/// Nothing, and what is wrong in `trouble`, when one of them holds no configuration.
std::vector<Folder> find(const std::vector<std::string>& arguments, Choice choice, QString& trouble);

/// A file where the layout has it.
FoundFile read(FolderReader& reader, Folder::Layout layout, const KnownFile& file);

} // namespace Folders

#endif
