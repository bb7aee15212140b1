#include "ImportRoles.h"

#include "BusFileDataManager.h"
#include "BusSwitches.h"
#include "FieldbusSettingLib.h"
#include "RoleListFile.h"
#include "WholeFile.h"

#include <QCoreApplication>

#include <algorithm>

using namespace BusSwitches;

namespace {

const QString ProfinetSlave = QStringLiteral("ProfinetSlave");

States switchedOn(const std::vector<ListedRole>& roles)
{
    States on{};
    for (int i = 0; i < Count; ++i)
        on[i] = RoleListFile::isOn(roles, QLatin1String(rows()[i].busName));
    return on;
}

States switchedOn(const BusSwitchSet& set)
{
    States on{};
    on[EipMaster] = set.EtherNetIPMaster;
    on[EtherCatMaster] = set.EtherCatMaster;
    on[PfnMaster] = set.ProfinetMaster;
    on[PfnSlave] = set.ProfinetSlave;
    on[DeviceNetSlave] = set.DeviceNetSlave;
    on[DeviceNetMaster] = set.DeviceNetMaster;
    on[MtcpMaster] = set.ModbusTcpMaster;
    on[FreeBus] = set.FreeBus;
    return on;
}

// As the page's save checks them. The page never lets both DeviceNet roles be on, so it has no such text.
void checkRules(const States& on, bool profisafePresent, QStringList& broken)
{
    const auto add = [&broken](const char* text) {
        const QString rule = QCoreApplication::translate("BusSettingWidget", text);
        if (!broken.contains(rule))
            broken << rule;
    };
    if (const char* objection = mastersObjection(on))
        add(objection);
    if (on[DeviceNetSlave] && on[DeviceNetMaster])
        add(QT_TRANSLATE_NOOP("BusSettingWidget",
                              "DeviceNet slave and DeviceNet master cannot be enabled at the same time!"));
    for (const Switch which : {PfnSlave, MtcpMaster}) {
        const char* objection = freeConfigurationObjection(
            QLatin1String(rows()[which].objectName), on[which] ? On : Off, on[FreeBus], profisafePresent);
        if (objection)
            add(objection);
    }
}

// What is on at present and not listed goes off.
void planUnlisted(const QMap<QString, BusName>& present, std::vector<ImportedRole>& roles)
{
    for (const BusName& role : present) {
        const bool isListed = std::any_of(roles.begin(), roles.end(), [&role](const ImportedRole& known) {
            return known.name == role.name;
        });
        if (role.enabled && !isListed)
            roles.push_back({role.name, true, false});
    }
}

bool planRoleList(const QString& path, RoleConditions conditions, ImportedRoles& plan)
{
    QByteArray content;
    std::vector<ListedRole> listed;
    if (!WholeFile::read(path, content) || !RoleListFile::read(content, listed))
        return false;
    if (!conditions.profinetSlaveAllowed && RoleListFile::isOn(listed, ProfinetSlave)) {
        content = RoleListFile::switchedOff(content, ProfinetSlave);
        if (!WholeFile::replace(path, content) || !RoleListFile::read(content, listed))
            return false;
        plan.profinetSlaveSwitchedOff = true;
    }
    const QMap<QString, BusName> present = BusFileDataManager::getInstance()->getAllBusName();
    for (const ListedRole& role : listed)
        plan.roles.push_back({role.name, present.value(role.name).enabled, role.on});
    planUnlisted(present, plan.roles);
    checkRules(switchedOn(listed), conditions.profisafePresent, plan.brokenRules);
    return true;
}

bool planSwitchFile(const QString& path, RoleConditions conditions, ImportedRoles& plan)
{
    FieldbusSettingLib* lib = FieldbusSettingLib::getInstance();
    // Reading keeps the PROFINET master of the file before, which was another robot's.
    lib->importSwitches = BusSwitchSet();
    if (!lib->readFieldbusCfg(path, true))
        return false;
    if (!conditions.profinetSlaveAllowed && lib->importSwitches.ProfinetSlave) {
        if (!lib->writeFieldbusCfg(path, true) || !lib->readFieldbusCfg(path, true))
            return false;
        plan.profinetSlaveSwitchedOff = true;
    }
    checkRules(switchedOn(lib->importSwitches), conditions.profisafePresent, plan.brokenRules);
    return true;
}

} // namespace

bool planRoles(const std::vector<ImportEntry>& entries, RoleConditions conditions, ImportedRoles& plan)
{
    plan = {};
    for (const ImportEntry& entry : entries) {
        const ImportFile& file = *entry.file;
        if (!entry.isBrought())
            continue;
        if (file.listsRoles && !planRoleList(file.staged(), conditions, plan))
            return false;
        if (file.optional && !planSwitchFile(file.staged(), conditions, plan))
            return false;
    }
    return true;
}
