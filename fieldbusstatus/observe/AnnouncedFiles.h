#ifndef ANNOUNCEDFILES_H
#define ANNOUNCEDFILES_H

#include "KnownFiles.h"
#include "RoleTable.h"

#include <optional>
#include <vector>

/// What the pendant sets and the controller takes back.
struct AnnouncedFiles
{
    const char* variable;
    int mask;       ///< of the bits that stand for it
    qint64 graceMs; ///< how long the controller may take for it
    std::optional<RoleId> role;
    std::vector<FileId> files; ///< that it says something about
};

const std::vector<AnnouncedFiles>& announcedFiles();

#endif
