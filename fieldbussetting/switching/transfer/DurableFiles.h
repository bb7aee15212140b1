#ifndef DURABLEFILES_H
#define DURABLEFILES_H

#include <QString>

/// Writing the pendant's files through to its disk, so that they are there after a power failure.
namespace DurableFiles {

/// Writes a directory through, with everything below it. False when any part of it could not be.
bool syncTree(const QString& directory);

/// Writes a file through; of a directory which files it holds, not what is in them.
bool sync(const QString& path);

/// Exchanges two directories beside each other, and writes that through. When one of them is missing, the
/// other takes its place. False when that failed; both are then where they were.
bool exchange(const QString& one, const QString& other);

/// Repairs an exchange that a power failure has broken off, on a disk that cannot exchange in one step: it is
/// undone, or completed once `other` has taken the place of `one`.
void repairExchange(const QString& one, const QString& other);

} // namespace DurableFiles

#endif
