#include "ImportRoles.h"

#include "BusFileDataManager.h"
#include "FieldbusSettingLib.h"
#include "RoleListFile.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

// The roles that rules are about, as each of the two files tells of them.
struct RuledRoles
{
    bool eipMaster;
    bool etherCatMaster;
    bool profinetMaster;
    bool deviceNetSlave;
    bool deviceNetMaster;
};

const QString ProfinetSlave = QStringLiteral("ProfinetSlave");

bool isOn(const std::vector<ListedRole>& roles, const char* name)
{
    return std::any_of(roles.begin(), roles.end(), [name](const ListedRole& role) {
        return role.on && role.name == QLatin1String(name);
    });
}

RuledRoles ruled(const std::vector<ListedRole>& roles)
{
    return {isOn(roles, "EtherNetIPMaster"), isOn(roles, "EtherCatMaster"), isOn(roles, "ProfinetMaster"),
            isOn(roles, "DeviceNetSlave"), isOn(roles, "DeviceNetMaster")};
}

RuledRoles ruled(const BusSwitchSet& switches)
{
    return {switches.EtherNetIPMaster, switches.EtherCatMaster, switches.ProfinetMaster,
            switches.DeviceNetSlave, switches.DeviceNetMaster};
}

void checkRules(const RuledRoles& roles, QStringList& broken)
{
    const auto add = [&broken](const char* text) {
        const QString rule = QCoreApplication::translate("ImportRoles", text);
        if (!broken.contains(rule))
            broken << rule;
    };
    if (int(roles.eipMaster) + int(roles.etherCatMaster) + int(roles.profinetMaster) > 1)
        add(QT_TRANSLATE_NOOP("ImportRoles",
                              "EthernetIP master EtherCat master and Profinet master cannot be "
                              "enabled at the same time!"));
    if (roles.deviceNetSlave && roles.deviceNetMaster)
        add(QT_TRANSLATE_NOOP("ImportRoles",
                              "DeviceNet slave and DeviceNet master cannot be enabled at the same time!"));
}

bool planRoleList(const QString& path, bool profinetSlaveAllowed, ImportedRoles& plan)
{
    std::vector<ListedRole> listed;
    if (!RoleListFile::read(path, listed))
        return false;
    if (!profinetSlaveAllowed && isOn(listed, "ProfinetSlave")) {
        if (!RoleListFile::switchOff(path, ProfinetSlave) || !RoleListFile::read(path, listed))
            return false;
        plan.profinetSlaveSwitchedOff = true;
    }
    const QMap<QString, BusName> present = BusFileDataManager::getInstance()->getAllBusName();
    for (const ListedRole& role : listed)
        plan.roles.push_back({role.name, present.value(role.name).enabled, role.on});
    checkRules(ruled(listed), plan.brokenRules);
    return true;
}

bool planSwitchFile(const QString& path, bool profinetSlaveAllowed, ImportedRoles& plan)
{
    FieldbusSettingLib* lib = FieldbusSettingLib::getInstance();
    // Reading keeps the PROFINET master of the file before, which was another robot's.
    lib->importSwitches = BusSwitchSet();
    if (!lib->readFieldbusCfg(path, true))
        return false;
    if (!profinetSlaveAllowed && lib->importSwitches.ProfinetSlave) {
        if (!lib->writeFieldbusCfg(path, true) || !lib->readFieldbusCfg(path, true))
            return false;
        plan.profinetSlaveSwitchedOff = true;
    }
    checkRules(ruled(lib->importSwitches), plan.brokenRules);
    return true;
}

} // namespace

bool planRoles(const std::vector<ImportEntry>& entries, bool profinetSlaveAllowed, ImportedRoles& plan)
{
    plan = {};
    for (const ImportEntry& entry : entries) {
        const ImportFile& file = *entry.file;
        if (!entry.isBrought())
            continue;
        if (file.listsRoles && !planRoleList(file.staged(), profinetSlaveAllowed, plan))
            return false;
        if (file.optional && !planSwitchFile(file.staged(), profinetSlaveAllowed, plan))
            return false;
    }
    return true;
}
