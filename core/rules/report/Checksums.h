#ifndef CHECKSUMS_H
#define CHECKSUMS_H

#include <QByteArray>
#include <QString>

#include <map>
#include <optional>

/// Checksums of the files of a folder, in the form that `sha256sum -c` reads when it is called in the folder
/// above.
namespace Checksums {

/// SHA-256 in hexadecimal by path below the folder.
using Sums = std::map<QString, QByteArray>;

/// Of one file's bytes.
QByteArray of(const QByteArray& bytes);

/// The lines of the folder `name`, sorted by path, and back. Nothing when a line is no checksum, or of
/// another folder than `name`.
QByteArray written(const QString& name, const Sums& sums);
std::optional<Sums> read(const QByteArray& bytes, const QString& name);

} // namespace Checksums

#endif
