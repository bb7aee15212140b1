#ifndef DURABLEFILES_H
#define DURABLEFILES_H

#include <QString>

/// Writing the pendant's files through to its disk, so that they are there after a power failure.
namespace DurableFiles {

/// Writes a directory through, with everything below it. False when any part of it could not be.
bool syncTree(const QString& directory);

/// Writes through which files a directory holds; not what is in them.
bool syncNames(const QString& directory);

/// Exchanges two directories of one disk. When `one` is missing, `other` takes its place. False when that
/// failed; both are then where they were.
bool exchange(const QString& one, const QString& other);

} // namespace DurableFiles

#endif
