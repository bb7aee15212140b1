#ifndef IMPORTROLES_H
#define IMPORTROLES_H

#include "ImportSet.h"
#include "RolePlan.h"

/// Reads the roles from the copies in the import directory. When the PROFINET slave cannot be on in this
/// controller it is switched off in the copies. False when a copy cannot be read or written.
bool planRoles(const std::vector<ImportEntry>& entries, RoleConditions conditions, ImportedRoles& plan);

#endif
