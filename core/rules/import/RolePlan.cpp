#include "RolePlan.h"

#include "SwitchRules.h"

#include <QHash>

#include <algorithm>

namespace {

QString profinetSlave()
{
    return QLatin1String(RoleTable::nameOf(RoleId::ProfinetSlave));
}

void checkRules(const RoleTable::States& on, bool profisafePresent, std::vector<const char*>& broken)
{
    for (const char* text : SwitchRules::objections(on, profisafePresent)) {
        if (std::find(broken.begin(), broken.end(), text) == broken.end())
            broken.push_back(text);
    }
}

void planRoles(const std::vector<ListedRole>& listed, const std::vector<ListedRole>& present,
               std::vector<ImportedRole>& roles)
{
    QHash<QString, bool> now;
    for (const ListedRole& role : present)
        now.insert(role.name, role.on);
    for (const ListedRole& role : listed)
        roles.push_back({role.name, now.take(role.name), role.on});
    // What is on at present and not listed goes off.
    for (const ListedRole& role : present) {
        if (role.on && now.contains(role.name))
            roles.push_back({role.name, true, false});
    }
}

} // namespace

bool RolePlan::takeRoleList(QByteArray& bytes, const std::vector<ListedRole>& present,
                            RoleConditions conditions, ImportedRoles& plan)
{
    std::vector<ListedRole> listed;
    if (!RoleListFile::read(bytes, listed))
        return false;
    if (!conditions.profinetSlaveAllowed && RoleListFile::isOn(listed, profinetSlave())) {
        bytes = RoleListFile::switchedOff(bytes, profinetSlave());
        if (!RoleListFile::read(bytes, listed))
            return false;
        plan.profinetSlaveSwitchedOff = true;
    }
    planRoles(listed, present, plan.roles);
    RoleTable::States on{};
    for (const ListedRole& role : listed) {
        if (const RoleInfo* known = RoleTable::named(role.name))
            on[static_cast<std::size_t>(known->id)] = role.on;
    }
    checkRules(on, conditions.profisafePresent, plan.brokenRules);
    return true;
}

bool RolePlan::takeSwitchFile(QByteArray& bytes, RoleConditions conditions, ImportedRoles& plan)
{
    // Reading keeps the PROFINET master of the record before, which was another robot's.
    BusSwitchSet switches;
    if (!BusSwitchFile::read(bytes, switches, true))
        return false;
    if (!conditions.profinetSlaveAllowed && switches.ProfinetSlave) {
        bytes = BusSwitchFile::rewritten(bytes);
        if (!BusSwitchFile::read(bytes, switches, true))
            return false;
        plan.profinetSlaveSwitchedOff = true;
    }
    RoleTable::States on{};
    for (const RoleInfo& role : RoleTable::Roles) {
        if (role.switchFlag)
            on[static_cast<std::size_t>(role.id)] = switches.*role.switchFlag;
    }
    checkRules(on, conditions.profisafePresent, plan.brokenRules);
    plan.switches = switches;
    return true;
}
