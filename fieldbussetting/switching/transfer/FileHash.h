#ifndef FILEHASH_H
#define FILEHASH_H

#include <QByteArray>

class QString;

/// SHA-1 of what a file holds.
namespace FileHash {

/// In hex; empty when the file cannot be read.
QByteArray of(const QString& path);

} // namespace FileHash

#endif
