#ifndef HOST_WHOLEFILE_H
#define HOST_WHOLEFILE_H

#include <QByteArray>
#include <QString>

/// Reads a whole local file; false (and `content` untouched) when it is missing, no plain file or unreadable.
bool readWholeFile(const QString& path, QByteArray& content);

/// Replaces a local file in one step: afterwards it holds either the old bytes or `content`. The directory
/// must exist.
bool replaceWholeFile(const QString& path, const QByteArray& content);

#endif
