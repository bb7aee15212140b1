#ifndef ROLEPLAN_H
#define ROLEPLAN_H

#include "BusSwitchFile.h"
#include "RoleListFile.h"

#include <QByteArray>
#include <QString>

#include <vector>

/// A bus role before and after an import.
struct ImportedRole
{
    QString name;
    bool now = false;   ///< as the controller has it
    bool after = false; ///< as the imported file says; off when it does not list the role
};

/// What an import does to the bus roles.
struct ImportedRoles
{
    std::vector<ImportedRole> roles; ///< in the order of the imported file, then those that go off because
                                     ///< it does not list them; empty when no file of roles is brought
    std::vector<const char*> brokenRules; ///< texts of SwitchRules; with one of them nothing may be sent
    bool profinetSlaveSwitchedOff = false;
    BusSwitchSet switches; ///< of the bus switch file that is brought
};

/// What the controller's bus roles depend on.
struct RoleConditions
{
    bool profinetSlaveAllowed; ///< the controller can run the PROFINET slave
    bool profisafePresent;
};

/// What may stand in a file of roles in this controller: each takes the bytes of the file that is brought,
/// adds what it does to `plan`, and switches the PROFINET slave off in the bytes where the controller cannot
/// run it. False when they cannot be read.
namespace RolePlan {

/// fieldbus.xml; `present` are the controller's roles.
bool takeRoleList(QByteArray& bytes, const std::vector<ListedRole>& present, RoleConditions conditions,
                  ImportedRoles& plan);
/// Fieldbus.cfg.
bool takeSwitchFile(QByteArray& bytes, RoleConditions conditions, ImportedRoles& plan);

} // namespace RolePlan

#endif
