#ifndef WHOLEFILE_H
#define WHOLEFILE_H

#include <QByteArray>
#include <QString>

/// Reading and replacing of local files as a whole.
namespace WholeFile {

/// Reads all bytes; false when the file cannot be opened or is beyond what any controller file can be.
bool read(const QString& path, QByteArray& content);

/// Replaces the file in one step: it holds either the old bytes or the new ones. The buffer is flushed and
/// the result checked before the new file takes the old one's place: on a full disk the old file stays.
bool replace(const QString& path, const QByteArray& content);

} // namespace WholeFile

#endif
