#ifndef SUBJECTS_H
#define SUBJECTS_H

#include "Finding.h"

#include <QDateTime>

#include <array>
#include <optional>

struct Configuration;
struct RunningState;

/// What has a row of its own in the overview: the roles by their id, and what belongs to none of them.
namespace Subjects {

using Id = std::size_t;
constexpr Id Heartbeat = RoleCount;
constexpr Id Profisafe = RoleCount + 1;
constexpr Id Controller = RoleCount + 2; ///< its files and its network ports
constexpr Id Count = RoleCount + 3;

constexpr std::optional<RoleId> roleOf(Id subject)
{
    return subject < RoleCount ? std::optional<RoleId>(static_cast<RoleId>(subject)) : std::nullopt;
}
constexpr Id of(RoleId role)
{
    return static_cast<Id>(role);
}

/// Translated; the roles have proper names.
QString titleOf(Id subject);

/// Whether a finding is told with this subject. One about the watch of a role is told with both.
bool isAbout(const Finding& finding, Id subject);

/// The classes in which a plant tells the state of a device.
enum class Health {
    Good,
    Checked, ///< at work on it: what is told of it does not count yet
    Outside, ///< works, but not as its settings want it, or not for long
    Failed,
    Off
};

struct State
{
    Health health = Health::Checked;
    std::optional<bool> isSwitchedOn;
    std::optional<bool> isRunning;
    std::optional<bool> isLinked; ///< nothing without a link
    bool isRestartPending = false;
    int findings = 0;
    /// When the health became what it is; not valid when it has been so from the beginning.
    QDateTime since;
};

struct Facts
{
    const Configuration& configuration;
    const RunningState& running;
    const Findings& findings;
    /// Whether what is known counts: all files were read, and the controller is there.
    bool isSettled;
    /// Roles with an announcement or a command that the controller still has time to take.
    const RoleTable::States& announced;
};

State judge(Id subject, const Facts& facts);

} // namespace Subjects

#endif
