#include "ControllerVariables.h"

#include <array>
#include <utility>
#include <vector>

namespace ControllerVariables {

namespace {

using Members = std::vector<std::function<bool(bool)>>;

// Made with the first handle, whatever the order in which the sources are initialised.
Members& members(Group group)
{
    static std::array<Members, static_cast<std::size_t>(Group::Count)> groups;
    return groups[static_cast<std::size_t>(group)];
}

// A controller without a DeviceNet master does not offer these variables. Their refusal is the group's
// answer, and so the host's: what is behind them is then not subscribed. The DeviceNet slave's groups, and
// all others, have always answered true, and a controller that lacks one of their variables works because of
// it.
constexpr bool answersWithItsHandle(Group group)
{
    return group == Group::DeviceNetMasterRole || group == Group::DeviceNetMasterOpen ||
           group == Group::DeviceNetMasterClose;
}

} // namespace

void enlist(Group group, std::function<bool(bool)> setUsed)
{
    if (group != Group::None)
        members(group).push_back(std::move(setUsed));
}

bool use(Group group, bool used)
{
    bool answer = true;
    for (const auto& setUsed : members(group))
        answer = setUsed(used) && answer;
    return answer || !answersWithItsHandle(group);
}

bool useHostGroups(bool used)
{
    for (int group = 0; group < static_cast<int>(Group::HostGroups); ++group) {
        if (!use(static_cast<Group>(group), used))
            return false;
    }
    return true;
}

} // namespace ControllerVariables
