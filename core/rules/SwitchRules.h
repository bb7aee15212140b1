#ifndef SWITCHRULES_H
#define SWITCHRULES_H

#include "RoleTable.h"

#include <vector>

/// Which bus roles may be on together. The texts are of the bus switch page's translation context,
/// "BusSettingWidget", and not translated yet.
namespace SwitchRules {

/// Why the masters may not be on together; null when they may.
const char* mastersObjection(const RoleTable::States& on);

/// Why a role may not be on without the bus free configuration; null when it may.
const char* freeConfigurationObjection(RoleId role, const RoleTable::States& on, bool profisafePresent);

/// All that is wrong with what is on, in the order in which a save looks at it, each text once. Here the two
/// DeviceNet roles count too, which the page never lets be on together.
std::vector<const char*> objections(const RoleTable::States& on, bool profisafePresent);

/// Whether the performance switch word is left without effect because the role that holds it is off.
bool losesPerformance(int performanceSwitch, const RoleTable::States& on);

} // namespace SwitchRules

#endif
