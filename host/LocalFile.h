#ifndef HOST_LOCALFILE_H
#define HOST_LOCALFILE_H

#include <QByteArray>
#include <QString>

/// Reads a whole local file; false (and `content` untouched) when it is missing, no plain file or unreadable.
bool readLocalFile(const QString& path, QByteArray& content);

/// Replaces a local file in one step: afterwards it holds either the old bytes or `content`. The directory
/// must exist.
bool replaceLocalFile(const QString& path, const QByteArray& content);

#endif
