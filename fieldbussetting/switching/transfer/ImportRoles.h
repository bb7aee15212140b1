#ifndef IMPORTROLES_H
#define IMPORTROLES_H

#include "ImportSet.h"

#include <QStringList>

/// A bus role before and after an import.
struct ImportedRole
{
    QString name;
    bool now = false;   ///< as the controller's file says at present
    bool after = false; ///< as the imported one says
};

/// What an import does to the bus roles.
struct ImportedRoles
{
    std::vector<ImportedRole> roles; ///< in the order of the imported file; empty when it brings none
    QStringList brokenRules;         ///< for the operator; with one of them nothing may be sent
    bool profinetSlaveSwitchedOff = false;
};

/// Reads the roles from the copies in the import directory. When the PROFINET slave cannot be on in this
/// controller it is switched off in the copies. False when a copy cannot be read or written.
bool planRoles(const std::vector<ImportEntry>& entries, bool profinetSlaveAllowed, ImportedRoles& plan);

#endif
