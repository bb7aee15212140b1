#ifndef DRIVEFILES_H
#define DRIVEFILES_H

#include <QString>

/// What export and import ask of the USB drive.
namespace DriveFiles {

/// Whether the drive is still reachable under the path that it had at the start; says so in the log when it
/// is not. To be asked before every file: a drive that comes back under another path is another drive.
bool isThere(const QString& drive);

/// Copies a file over an existing one and reads the copy back. True when it holds the same bytes.
bool copy(const QString& source, const QString& target);

} // namespace DriveFiles

#endif
