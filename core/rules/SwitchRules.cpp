#include "SwitchRules.h"

#include <algorithm>

using RoleTable::isOn;

namespace SwitchRules {

namespace {

constexpr const char* MastersTogether =
    QT_TRANSLATE_NOOP("BusSettingWidget", "EthernetIP master EtherCat master and Profinet master cannot be "
                                          "enabled at the same time!");
constexpr const char* DeviceNetTogether = QT_TRANSLATE_NOOP(
    "BusSettingWidget", "DeviceNet slave and DeviceNet master cannot be enabled at the same time!");
constexpr const char* NeedsFree =
    QT_TRANSLATE_NOOP("BusSettingWidget", "If ModbusTcp Master switch is ON,\n the bus free "
                                          "configuration switch needs to be ON!");
constexpr const char* NeedsFreeWithProfisafe = QT_TRANSLATE_NOOP(
    "BusSettingWidget", "If ModbusTcp Master or Profinet Slave switch is ON,\n the bus free "
                        "configuration switch needs to be ON!");

int onIn(ExclusionGroup group, const RoleTable::States& on)
{
    return static_cast<int>(
        std::count_if(RoleTable::Roles.begin(), RoleTable::Roles.end(),
                      [&](const RoleInfo& role) { return role.group == group && isOn(on, role.id); }));
}

} // namespace

const char* mastersObjection(const RoleTable::States& on)
{
    return onIn(ExclusionGroup::Masters, on) < 2 ? nullptr : MastersTogether;
}

const char* freeConfigurationObjection(RoleId role, const RoleTable::States& on, bool profisafePresent)
{
    const FreeNeed need = RoleTable::of(role).freeNeed;
    if (!isOn(on, role) || isOn(on, RoleId::FreeBus) || need == FreeNeed::Never)
        return nullptr;
    if (profisafePresent)
        return NeedsFreeWithProfisafe;
    return need == FreeNeed::Always ? NeedsFree : nullptr;
}

std::vector<const char*> objections(const RoleTable::States& on, bool profisafePresent)
{
    std::vector<const char*> found;
    const auto add = [&found](const char* text) {
        if (text && std::find(found.begin(), found.end(), text) == found.end())
            found.push_back(text);
    };
    add(mastersObjection(on));
    add(onIn(ExclusionGroup::DeviceNet, on) < 2 ? nullptr : DeviceNetTogether);
    for (const RoleId role : {RoleId::ProfinetSlave, RoleId::ModbusTcpMaster})
        add(freeConfigurationObjection(role, on, profisafePresent));
    return found;
}

// The word has a bit a bus, and is halved and compared with the bus's number: the EtherNet/IP slave's 4 gives
// 2; the PROFINET slave's 8 gives 4, so that its performance is never taken away here. Controllers in the
// field count on that word staying as it is.
bool losesPerformance(int performanceSwitch, const RoleTable::States& on)
{
    constexpr RoleId holders[] = {RoleId::EtherNetIPSlave, RoleId::ProfinetSlave};
    return std::any_of(std::begin(holders), std::end(holders), [&](RoleId role) {
        return performanceSwitch / 2 == RoleTable::of(role).performanceBus && !isOn(on, role);
    });
}

} // namespace SwitchRules
