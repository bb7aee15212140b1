#include "ImportRoles.h"

#include "FieldbusSettingLib.h"
#include "RoleListFile.h"
#include "WholeFile.h"

namespace {

// What is on now says the file that was just fetched. The service may have read another one before.
std::vector<ListedRole> presentRoles(const ImportEntry& entry)
{
    std::vector<ListedRole> roles;
    QByteArray content;
    if (entry.state != ImportEntry::New && WholeFile::read(entry.file->present(), content))
        RoleListFile::read(content, roles); // one that is no role list lists none
    return roles;
}

} // namespace

bool planRoles(const std::vector<ImportEntry>& entries, RoleConditions conditions, ImportedRoles& plan)
{
    plan = {};
    for (const ImportEntry& entry : entries) {
        const ImportFile& file = *entry.file;
        if (!entry.isBrought() || !(file.listsRoles || file.optional))
            continue;
        QByteArray bytes;
        if (!WholeFile::read(file.staged(), bytes))
            return false;
        const QByteArray before = bytes;
        const bool isTaken = file.listsRoles
                                 ? RolePlan::takeRoleList(bytes, presentRoles(entry), conditions, plan)
                                 : RolePlan::takeSwitchFile(bytes, conditions, plan);
        if (!isTaken || (bytes != before && !WholeFile::replace(file.staged(), bytes)))
            return false;
        if (file.optional)
            FieldbusSettingLib::getInstance()->importSwitches = plan.switches;
    }
    return true;
}
