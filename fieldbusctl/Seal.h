#ifndef FIELDBUSCTL_SEAL_H
#define FIELDBUSCTL_SEAL_H

#include "Checksums.h"
#include "FolderReader.h"
#include "Folders.h"

#include <QString>

#include <optional>

/// The checksums of all files of a folder, in a file beside it: "fidbus_....sha256" in the form that
/// `sha256sum -c` reads when it is called in the folder above.
namespace Seal {

using Checksums::read;
using Checksums::Sums;
using Checksums::written;

/// Where the seal of a folder lies.
QString pathOf(const Folder& folder);

/// The sums of the plain files as they are; nothing, and the file in `trouble`, when one cannot be read.
std::optional<Sums> of(const Folder& folder, QString& trouble);

} // namespace Seal

#endif
