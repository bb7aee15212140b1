#include "ImportRoles.h"

#include "BusFileDataManager.h"
#include "FieldbusSettingLib.h"
#include "WholeFile.h"

namespace {

std::vector<ListedRole> presentRoles()
{
    std::vector<ListedRole> roles;
    for (const BusName& role : BusFileDataManager::getInstance()->getAllBusName())
        roles.push_back({role.name, role.enabled});
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
                                 ? RolePlan::takeRoleList(bytes, presentRoles(), conditions, plan)
                                 : RolePlan::takeSwitchFile(bytes, conditions, plan);
        if (!isTaken || (bytes != before && !WholeFile::replace(file.staged(), bytes)))
            return false;
        if (file.optional)
            FieldbusSettingLib::getInstance()->importSwitches = plan.switches;
    }
    return true;
}
