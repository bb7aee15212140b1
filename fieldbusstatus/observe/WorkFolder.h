#ifndef WORKFOLDER_H
#define WORKFOLDER_H

#include <QString>

namespace WorkFolder {

/// Folder of this application on the pendant, localised. It need not exist.
const QString& path();

} // namespace WorkFolder

#endif
