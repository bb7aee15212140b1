#include "FieldbusManager.h"

#include "ControllerParts.h"
#include "MappingCheck.h"

namespace {

constexpr auto BusTypeState = "ifidbus.bus_type_state";
constexpr auto UpdateState = "ifidbus.xml_update_state";
constexpr auto HeartbeatAnnounced = "ifidbus.xml_heartbeat";

constexpr auto FieldbusXml = "/application/fidbus/fieldbus.xml";
constexpr auto FieldbusCfg = "/application/fidbus/Fieldbus.cfg";
constexpr auto MappingXml = "/application/fidbus/fieldbus_config.xml";
constexpr auto HeartbeatXml = "/application/fidbus/heartbeat.xml";

// "ifidbus.bus_type_state": the pendant writes 1, the manager answers.
constexpr int BusTypeAsked = 1;
constexpr int BusTypeTaken = 0x8000;
constexpr int BusTypeRefused = 0x4000;

// "ifidbus.xml_update_state": the pendant sets Announced, with Slave for the DeviceNet slave file; the
// manager answers in the other bits. All further bits are the pendant's and stay.
constexpr int Announced = 0x8000;
constexpr int Slave = 0x1000;
constexpr int MappingTaken = 0x4000;
constexpr int MappingRejected = 0x800;
constexpr int SlaveTaken = 0x2000;
constexpr int Answers = MappingTaken | MappingRejected | SlaveTaken;

// How long the manager takes for things, in milliseconds: far within the patience of the pendant's pages,
// long enough that they see the command standing.
constexpr int CommandMs = 300;
constexpr int BusTypeMs = 500;
constexpr int FileMs = 800;
constexpr int HeartbeatMs = 50;

struct Command
{
    const char* name;
    const char* role;
    bool open;
};
constexpr Command Commands[] = {
    {"ifidbus.ecat2open", "EtherCatSlave", true},  {"ifidbus.ecat2close", "EtherCatSlave", false},
    {"ifidbus.eip2open", "EtherNetIPSlave", true}, {"ifidbus.eip2close", "EtherNetIPSlave", false},
    {"ifidbus.pfn2open", "ProfinetSlave", true},   {"ifidbus.pfn2close", "ProfinetSlave", false},
    {"ifidbus.dns2open", "DeviceNetSlave", true},  {"ifidbus.dns2close", "DeviceNetSlave", false},
    {"ifidbus.dnm2open", "DeviceNetMaster", true}, {"ifidbus.dnm2close", "DeviceNetMaster", false},
};

} // namespace

FieldbusManager::FieldbusManager(ControllerParts& controllerParts)
    : Behaviour(controllerParts)
{
    VariableStore& variables = parts().variables;
    for (const Command& command : Commands) {
        const QString name = QLatin1String(command.name);
        variables.watch(name, [this, name, &command](int /*element*/, double value) {
            takeCommand(name, QLatin1String(command.role), command.open, value != 0.0);
        });
    }
    variables.watch(QLatin1String(BusTypeState),
                    [this](int /*element*/, double value) { answerBusType(static_cast<int>(value)); });
    variables.watch(QLatin1String(UpdateState),
                    [this](int /*element*/, double value) { answerUpdateState(static_cast<int>(value)); });
    variables.watch(QLatin1String(HeartbeatAnnounced), [this](int /*element*/, double value) {
        if (value != 0.0 && !parts().faults.strikes(Faults::HeartbeatNotReloaded))
            later(QLatin1String(HeartbeatAnnounced), HeartbeatMs, [this] { reloadHeartbeat(); });
    });
}

void FieldbusManager::takeCommand(const QString& name, const QString& role, bool open, bool set)
{
    drop(name);
    if (!set || parts().faults.strikes(Faults::CommandNeverTaken, name))
        return;
    later(name, CommandMs, [this, name, role, open] {
        m_wishes.insert(role, open);
        parts().variables.set(name, 0.0);
    });
}

void FieldbusManager::answerBusType(int state)
{
    const QString name = QLatin1String(BusTypeState);
    drop(name);
    if (state != BusTypeAsked || parts().faults.strikes(Faults::BusTypeNeverAnswered))
        return;
    const int answer = parts().faults.strikes(Faults::BusTypeRefused) ? BusTypeRefused : BusTypeTaken;
    later(name, BusTypeMs, [this, name, answer] { parts().variables.set(name, answer); });
}

void FieldbusManager::answerUpdateState(int state)
{
    const QString name = QLatin1String(UpdateState);
    Faults& faults = parts().faults;
    // A new announcement, or its withdrawal, ends the one before.
    drop(name);
    if ((state & Announced) == 0)
        return;
    // The answer to the file before must not be taken for the one to this file.
    parts().variables.set(name, state & ~Answers);
    const bool isSlave = (state & Slave) != 0;
    if (faults.strikes(isSlave ? Faults::SlaveNeverAnswered : Faults::MappingNeverAnswered))
        return;
    const bool isLate = faults.strikes(isSlave ? Faults::SlaveAnsweredLate : Faults::MappingAnsweredLate);
    const int lateMs = isSlave ? SlaveLateMs : MappingLateMs;
    later(
        name, isLate ? lateMs : FileMs,
        [this, isSlave] {
            if (isSlave)
                takeSlaveFile();
            else
                takeMapping();
        },
        isLate ? Pace::Real : Pace::Simulated);
}

void FieldbusManager::takeMapping()
{
    const QString name = QLatin1String(UpdateState);
    QByteArray mapping;
    m_mappingComplaint = parts().files.read(QLatin1String(MappingXml), mapping) ? mappingFault(mapping)
                                                                                : QStringLiteral("no file");
    const bool rejected = parts().faults.strikes(Faults::MappingRejected) || !m_mappingComplaint.isEmpty();
    const int rest = static_cast<int>(parts().variables.value(name)) & ~Announced;
    parts().variables.set(name, rest | MappingTaken | (rejected ? MappingRejected : 0));
}

void FieldbusManager::takeSlaveFile()
{
    const QString name = QLatin1String(UpdateState);
    const int rest = static_cast<int>(parts().variables.value(name)) & ~(Announced | Slave);
    parts().variables.set(name, rest | SlaveTaken);
}

void FieldbusManager::reloadHeartbeat()
{
    ++(readHeartbeatFile() ? m_heartbeatReloads : m_heartbeatFailures);
    parts().variables.set(QLatin1String(HeartbeatAnnounced), 0.0);
}

bool FieldbusManager::readHeartbeatFile()
{
    QByteArray bytes;
    return parts().files.read(QLatin1String(HeartbeatXml), bytes) && readHeartbeat(bytes, m_watches);
}

void FieldbusManager::restarted()
{
    VariableStore& variables = parts().variables;
    for (const Command& command : Commands)
        variables.set(QLatin1String(command.name), 0.0);
    for (const char* handshake : {BusTypeState, UpdateState, HeartbeatAnnounced})
        variables.set(QLatin1String(handshake), 0.0);
    m_wishes.clear();
    readHeartbeatFile();
    readRoleFile();
}

bool FieldbusManager::switchRole(const QString& role, bool on)
{
    QByteArray bytes;
    if (!parts().files.read(QLatin1String(FieldbusXml), bytes))
        return false;
    bytes = rolesWith(bytes, role, on);
    if (bytes.isEmpty() || !parts().files.write(QLatin1String(FieldbusXml), bytes))
        return false;
    readRoleFile();
    return true;
}

void FieldbusManager::readRoleFile()
{
    QByteArray bytes;
    QMap<QString, bool> roles;
    // With a file that makes no sense the roles stay as they were.
    if (!parts().files.read(QLatin1String(FieldbusXml), bytes) || !readRoles(bytes, roles))
        return;
    parts().roles.replace(roles);
    for (const BusRole& role : LinkedBusRoles) {
        if (role.enableVariable)
            parts().variables.set(QLatin1String(role.enableVariable), parts().roles.isOn(role.name) ? 1 : 0);
    }
    parts().variables.set(QStringLiteral("ifidbus.freebus_enable"), parts().roles.isOn("FreeBus") ? 1 : 0);

    // The bus switch file is the manager's own record of what runs.
    if (parts().files.read(QLatin1String(FieldbusCfg), bytes)) {
        const QByteArray updated = switchFileWithRoles(bytes, roles);
        if (!updated.isEmpty())
            parts().files.write(QLatin1String(FieldbusCfg), updated);
    }
}
