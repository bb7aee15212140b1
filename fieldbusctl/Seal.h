#ifndef FIELDBUSCTL_SEAL_H
#define FIELDBUSCTL_SEAL_H

#include "FolderReader.h"
#include "Folders.h"

#include <QByteArray>
#include <QString>

#include <map>
#include <optional>

/// The checksums of all files of a folder, in a file beside it: "fidbus_....sha256" in the form that
/// `sha256sum -c` reads when it is called in the folder above.
namespace Seal {

/// SHA-256 in hexadecimal by path below the folder.
using Sums = std::map<QString, QByteArray>;

/// Where the seal of a folder lies.
QString pathOf(const Folder& folder);

/// The sums of the plain files as they are; nothing, and the file in `trouble`, when one cannot be read.
std::optional<Sums> of(const Folder& folder, QString& trouble);

/// The seal's bytes, sorted by name, and back. Nothing when a line is no checksum, or of another folder than
/// `name`.
QByteArray written(const QString& name, const Sums& sums);
std::optional<Sums> read(const QByteArray& bytes, const QString& name);

} // namespace Seal

#endif
