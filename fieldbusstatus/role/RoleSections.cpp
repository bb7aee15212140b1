#include "RoleSections.h"

#include "ControllerWatch.h"
#include "StateText.h"

#include <QCoreApplication>

namespace RoleSections {

namespace {

using Row = RowTable::Row;
using Rows = RowTable::Rows;
using Subjects::Health;

QString translated(const char* text)
{
    return QCoreApplication::translate("RolePage", text);
}

Row heading(const char* text)
{
    return {{translated(text)}, nullptr, true};
}

Row plain(const char* name, const QString& value)
{
    return {{translated(name), value}};
}

// A section without rows has no heading either.
Rows withHeading(const char* text, Rows rows)
{
    if (!rows.empty())
        rows.insert(rows.begin(), heading(text));
    return rows;
}

QString linkText(const RoleInfo& role, const Subjects::State& state)
{
    const char* word = !state.isLinked   ? QT_TRANSLATE_NOOP("RolePage", "not known")
                       : *state.isLinked ? QT_TRANSLATE_NOOP("RolePage", "up")
                                         : QT_TRANSLATE_NOOP("RolePage", "down");
    return QStringLiteral("%1 (%2)").arg(translated(word), QLatin1String(role.linkVariable));
}

} // namespace

RowTable::Rows state(const ControllerWatch& watch, Subjects::Id subject)
{
    const Subjects::State& state = watch.subject(subject);
    const auto role = Subjects::roleOf(subject);
    const QString word = StateText::of(state.health);
    const QString since = StateText::timeOf(state.since);
    Rows rows = {
        {{translated(QT_TRANSLATE_NOOP("RolePage", "State")),
          since.isEmpty() ? word : translated(QT_TRANSLATE_NOOP("RolePage", "%1 since %2")).arg(word, since)},
         StateText::signOf(state.health)}};
    if (subject != Subjects::Controller)
        rows.push_back(
            plain(QT_TRANSLATE_NOOP("RolePage", "Switched on"), StateText::yesNo(state.isSwitchedOn)));
    if (role) {
        rows.push_back(plain(QT_TRANSLATE_NOOP("RolePage", "Runs now"), StateText::yesNo(state.isRunning)));
        if (RoleTable::of(*role).linkVariable && state.isRunning.value_or(false))
            rows.push_back(
                plain(QT_TRANSLATE_NOOP("RolePage", "Link"), linkText(RoleTable::of(*role), state)));
    }
    if (state.isRestartPending)
        rows.push_back({{translated(QT_TRANSLATE_NOOP("RolePage", "Saved, runs after the next restart"))},
                        StateText::signOf(Health::Outside),
                        true});
    return rows;
}

RowTable::Rows findings(const ControllerWatch& watch, Subjects::Id subject)
{
    Rows rows;
    for (const Finding& finding : watch.findings()) {
        if (!Subjects::isAbout(finding, subject))
            continue;
        rows.push_back(
            {{finding.codeText(), StateText::cause(finding)}, StateText::signOf(finding.severity)});
        for (const Evidence& fact : finding.evidence)
            rows.push_back({{fact.fact, QStringLiteral("%1 (%2)").arg(fact.value, fact.source)}});
        rows.push_back(plain(QT_TRANSLATE_NOOP("RolePage", "What to do"), StateText::nextStep(finding)));
    }
    return withHeading(QT_TRANSLATE_NOOP("RolePage", "Findings"), std::move(rows));
}

RowTable::Rows devices(const ControllerWatch& watch, Subjects::Id subject)
{
    Rows rows;
    const Configuration& configuration = watch.configuration();
    if (Subjects::roleOf(subject) != RoleId::DeviceNetMaster ||
        !configuration.isRead(FileId::DeviceNetMaster))
        return rows;
    for (int i = 0; i < configuration.deviceNetMaster.count; ++i) {
        const auto& device = configuration.deviceNetMaster.devices[static_cast<std::size_t>(i)];
        const auto status = watch.running().value("ifidbus.dnm_status", i);
        const auto code = watch.running().value("ifidbus.dnm_errorcode", i);
        const bool isUp = status.value_or(0) != 0;
        rows.push_back(
            {{translated(QT_TRANSLATE_NOOP("RolePage", "Device %1, MAC ID %2")).arg(i + 1).arg(device.MAC_ID),
              isUp    ? translated(QT_TRANSLATE_NOOP("RolePage", "connected"))
              : !code ? translated(QT_TRANSLATE_NOOP("RolePage", "not known"))
                      : translated(QT_TRANSLATE_NOOP("RolePage", "not connected: %1 (code %2)"))
                            .arg(StateText::deviceNetCode(*code))
                            .arg(*code)},
             StateText::signOf(isUp ? Health::Good : Health::Failed)});
    }
    return withHeading(QT_TRANSLATE_NOOP("RolePage", "Devices"), std::move(rows));
}

namespace {

struct Positions
{
    RoleId role;
    FileId file;
    MasterSlaveTable Configuration::*table;
    const char* status;
    const char* coupling;
    const char* decoupling;
};
constexpr Positions AllPositions[] = {
    {RoleId::EtherNetIPMaster, FileId::EipMaster, &Configuration::eipMaster, "ifidbus.eim_status",
     "ifidbus.eim_enable_status", "ifidbus.eim_disable_status"},
    {RoleId::ProfinetMaster, FileId::PfnMaster, &Configuration::pfnMaster, "ifidbus.pnm_status",
     "ifidbus.pnm_enable_status", "ifidbus.pnm_disable_status"},
};

// Of the coupling and the decoupling of a dynamic slave: 0 nothing, 1 done, any other failed.
bool hasFailed(std::optional<int> phase)
{
    constexpr int Done = 1;
    return phase.value_or(0) != 0 && *phase != Done;
}

Row positionRow(const ControllerWatch& watch, const Positions& positions, int index)
{
    const MasterSlaveTable& table = watch.configuration().*positions.table;
    const MasterSlaveTable::Position& position =
        MasterSlaveTable::positions()[static_cast<std::size_t>(index)];
    const bool isDynamic = table.*position.dynamic;
    const auto read = [&watch, index](const char* vector) { return watch.running().value(vector, index); };
    const auto status = read(positions.status);
    const bool isUp = status.value_or(0) != 0;
    QStringList words;
    words << translated(!status ? QT_TRANSLATE_NOOP("RolePage", "not known")
                        : isUp  ? QT_TRANSLATE_NOOP("RolePage", "connected")
                                : QT_TRANSLATE_NOOP("RolePage", "not connected"));
    if (hasFailed(read(positions.coupling)))
        words << translated(QT_TRANSLATE_NOOP("RolePage", "the coupling failed"));
    if (hasFailed(read(positions.decoupling)))
        words << translated(QT_TRANSLATE_NOOP("RolePage", "the decoupling failed"));
    const char* name = isDynamic               ? QT_TRANSLATE_NOOP("RolePage", "Slave %1, dynamic")
                       : table.*position.fixed ? QT_TRANSLATE_NOOP("RolePage", "Slave %1, fixed")
                                               : QT_TRANSLATE_NOOP("RolePage", "Slave %1");
    // A dynamic slave may be away.
    const Health health = isUp ? Health::Good : isDynamic && words.size() == 1 ? Health::Off : Health::Failed;
    return {{translated(name).arg(index + 1), words.join(QStringLiteral(", "))}, StateText::signOf(health)};
}

} // namespace

RowTable::Rows positions(const ControllerWatch& watch, Subjects::Id subject)
{
    Rows rows;
    for (const Positions& positions : AllPositions) {
        if (Subjects::roleOf(subject) != positions.role || !watch.configuration().isRead(positions.file))
            continue;
        const int count = std::min((watch.configuration().*positions.table).SlaveNum.trimmed().toInt(),
                                   MasterSlaveTable::PositionCount);
        for (int i = 0; i < count; ++i)
            rows.push_back(positionRow(watch, positions, i));
    }
    return withHeading(QT_TRANSLATE_NOOP("RolePage", "Slaves"), std::move(rows));
}

} // namespace RoleSections
