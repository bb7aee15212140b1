#ifndef FILECHANGES_H
#define FILECHANGES_H

#include "RoleTable.h"
#include "VersionStore.h"

#include <QStringList>

#include <vector>

struct KnownFile;

/// The files that this pendant has sent, as the application "fieldbussetting" has kept them.
namespace FileChanges {

/// The folder that "fieldbussetting" names as `FileLocations::versionsDirectory()`: neither may be moved
/// alone.
VersionStore store();

/// Null for a file that is not known.
const KnownFile* fileOf(const FileVersion& version);
/// What the file is called: its name in an export.
QString nameOf(const FileVersion& version);

/// What a version has changed.
struct Words
{
    QStringList lines;              ///< a sentence each: "EtherNet/IP slave: IP address ... -> ..."
    const RoleInfo* role = nullptr; ///< that the first of them is about; null when it is about none
};
Words wordsOf(const VersionStore& store, const FileVersion& version);

/// Versions of one act, in the order in which they were sent: what is told, and put back, as one change.
using Change = std::vector<FileVersion>;
/// The newest first.
std::vector<Change> grouped(const std::vector<FileVersion>& versions);

} // namespace FileChanges

#endif
