#include "Subjects.h"

#include "Configuration.h"
#include "RunningState.h"

#include <QCoreApplication>

#include <algorithm>

namespace Subjects {

namespace {

std::optional<bool> valueOf(const RunningState& running, const char* variable)
{
    const auto value = running.value(QLatin1String(variable));
    return value ? std::optional<bool>(*value != 0) : std::nullopt;
}

// Of a role that the fieldbus manager does not bring up, what it is doing is a variable of its own.
std::optional<bool> isRunning(RoleId role, const RunningState& running)
{
    if (role == RoleId::FinsTcp)
        return valueOf(running, "ifins_tcp.enable");
    if (!running.running)
        return std::nullopt;
    const bool isUp = RoleTable::isOn(*running.running, role) || role == RoleId::ModbusTcpSlave;
    if (role == RoleId::Mes)
        return isUp && valueOf(running, "imes.tcp_server_active").value_or(true);
    return isUp;
}

void judgeRole(RoleId role, const Facts& facts, State& state)
{
    const RoleInfo& info = RoleTable::of(role);
    if (facts.configuration.isRead(FileId::RoleList))
        state.isSwitchedOn = facts.configuration.isOn(role) || role == RoleId::ModbusTcpSlave;
    // A controller that restarts tells what it is doing when it is up.
    if (facts.isSettled)
        state.isRunning = isRunning(role, facts.running);
    if (info.linkVariable && state.isRunning.value_or(false))
        state.isLinked = valueOf(facts.running, info.linkVariable);
}

int watchesOn(const HeartbeatConfig& heartbeat)
{
    const auto& fields = HeartbeatConfig::fields();
    return static_cast<int>(std::count_if(fields.begin(), fields.end(), [&heartbeat](const auto& field) {
        return heartbeat.*field.nodSwitch;
    }));
}

bool isRestartFinding(const Finding& finding)
{
    return finding.code == FindingCode::RestartPending || finding.code == FindingCode::SettingsPending;
}

Health healthOf(const State& state, FindingSeverity worst, const Facts& facts)
{
    if (!facts.isSettled)
        return Health::Checked;
    const bool isWanted = state.isSwitchedOn.value_or(false) || state.isRunning.value_or(false);
    if (!isWanted && worst < FindingSeverity::Warning)
        return Health::Off;
    if (worst == FindingSeverity::Error || !state.isLinked.value_or(true))
        return Health::Failed;
    return worst == FindingSeverity::Warning || state.isRestartPending ? Health::Outside : Health::Good;
}

} // namespace

QString titleOf(Id subject)
{
    static constexpr const char* Others[] = {QT_TRANSLATE_NOOP("Subjects", "Heartbeat"),
                                             QT_TRANSLATE_NOOP("Subjects", "ProfiSAFE"),
                                             QT_TRANSLATE_NOOP("Subjects", "Controller: files and ports")};
    if (subject < RoleCount)
        return QLatin1String(RoleTable::Roles[subject].title);
    return QCoreApplication::translate("Subjects", Others[subject - RoleCount]);
}

bool isAbout(const Finding& finding, Id subject)
{
    switch (subject) {
    case Heartbeat:
        return finding.file == FileId::Heartbeat;
    case Profisafe:
        return finding.file == FileId::ProfisafeDescription;
    case Controller:
        return !finding.role && finding.file != FileId::Heartbeat &&
               finding.file != FileId::ProfisafeDescription;
    default:
        return finding.role == roleOf(subject);
    }
}

State judge(Id subject, const Facts& facts)
{
    State state;
    const auto role = roleOf(subject);
    if (role)
        judgeRole(*role, facts, state);
    else if (subject == Heartbeat && facts.configuration.isRead(FileId::Heartbeat))
        state.isSwitchedOn = watchesOn(facts.configuration.heartbeat) > 0;
    else if (subject == Profisafe)
        state.isSwitchedOn = facts.running.profisafePresent;
    else if (subject == Controller)
        state.isSwitchedOn = true;

    auto worst = FindingSeverity::Information;
    for (const Finding& finding : facts.findings) {
        if (!isAbout(finding, subject))
            continue;
        ++state.findings;
        worst = std::max(worst, finding.severity);
        state.isRestartPending = state.isRestartPending || isRestartFinding(finding);
    }
    state.health = healthOf(state, worst, facts);
    if (role && RoleTable::isOn(facts.announced, *role))
        state.health = Health::Checked;
    return state;
}

} // namespace Subjects
