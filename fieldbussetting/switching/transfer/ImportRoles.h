#ifndef IMPORTROLES_H
#define IMPORTROLES_H

#include "ImportSet.h"

#include <QStringList>

/// A bus role before and after an import.
struct ImportedRole
{
    QString name;
    bool now = false;   ///< as the bus file data service read it last, from the controller's file
    bool after = false; ///< as the imported file says; off when it does not list the role
};

/// What an import does to the bus roles.
struct ImportedRoles
{
    std::vector<ImportedRole> roles; ///< in the order of the imported file, then those that go off because it
                                     ///< does not list them; empty when no file of roles is brought
    QStringList brokenRules;         ///< for the operator; with one of them nothing may be sent
    bool profinetSlaveSwitchedOff = false;
};

/// What the controller's bus roles depend on.
struct RoleConditions
{
    bool profinetSlaveAllowed; ///< the controller can run the PROFINET slave
    bool profisafePresent;
};

/// Reads the roles from the copies in the import directory. When the PROFINET slave cannot be on in this
/// controller it is switched off in the copies. False when a copy cannot be read or written.
bool planRoles(const std::vector<ImportEntry>& entries, RoleConditions conditions, ImportedRoles& plan);

#endif
