#include "FieldbusManager.h"

#include "ControllerParts.h"
#include "MappingCheck.h"

#include <utility>

namespace {

constexpr auto BusTypeState = "ifidbus.bus_type_state";
constexpr auto UpdateState = "ifidbus.xml_update_state";
constexpr auto HeartbeatAnnounced = "ifidbus.xml_heartbeat";

constexpr auto FieldbusXml = "/application/fidbus/fieldbus.xml";
constexpr auto FieldbusCfg = "/application/fidbus/Fieldbus.cfg";
constexpr auto MappingXml = "/application/fidbus/fieldbus_config.xml";
constexpr auto SlaveXml = "/application/fidbus/devicenet/devicenetSlave.xml";
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

} // namespace

// How an announced file is answered.
struct FieldbusManager::FileAnswer
{
    const char* key; // of what is delayed
    Faults::Fault never;
    Faults::Fault late;
    int lateMs;
};

namespace {

enum File { MappingFile, SlaveFile };

constexpr FieldbusManager::FileAnswer FileAnswers[] = {
    {"mapping", Faults::MappingNeverAnswered, Faults::MappingAnsweredLate, FieldbusManager::MappingLateMs},
    {"slave", Faults::SlaveNeverAnswered, Faults::SlaveAnsweredLate, FieldbusManager::SlaveLateMs},
};

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
    for (const Command& command : Commands)
        onRequest(
            command.name, CommandMs,
            [this, &command] { m_wishes.insert(QLatin1String(command.role), command.open); },
            Faults::CommandNeverTaken);
    onRequest(
        HeartbeatAnnounced, HeartbeatMs,
        [this] { ++(readHeartbeatFile() ? m_heartbeatReloads : m_heartbeatFailures); },
        Faults::HeartbeatNotReloaded);
    VariableStore& variables = parts().variables;
    variables.watch(QLatin1String(BusTypeState),
                    [this](int /*element*/, double value) { answerBusType(static_cast<int>(value)); });
    variables.watch(QLatin1String(UpdateState),
                    [this](int /*element*/, double value) { answerUpdateState(static_cast<int>(value)); });
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
    // A new announcement, or its withdrawal, ends the one before.
    for (const FileAnswer& answer : FileAnswers)
        drop(QLatin1String(answer.key));
    if ((state & Announced) == 0)
        return;
    // The answer to the file before must not be taken for the one to this file.
    parts().variables.set(QLatin1String(UpdateState), state & ~Answers);
    // Both files announced at once look like the slave file alone.
    const bool isSlave = (state & Slave) != 0;
    if (isSlave)
        answerLater(FileAnswers[SlaveFile], [this] { takeSlaveFile(); });
    if (!isSlave || m_mappingStored)
        answerLater(FileAnswers[MappingFile], [this] { takeMapping(); });
}

void FieldbusManager::answerLater(const FileAnswer& answer, std::function<void()> take)
{
    Faults& faults = parts().faults;
    if (faults.strikes(answer.never))
        return;
    const bool isLate = faults.strikes(answer.late);
    later(QLatin1String(answer.key), isLate ? answer.lateMs : FileMs, std::move(take),
          isLate ? Pace::Real : Pace::Simulated);
}

void FieldbusManager::fileStored(const QString& path)
{
    if (path.compare(QLatin1String(MappingXml), Qt::CaseInsensitive) == 0)
        m_mappingStored = true;
}

void FieldbusManager::takeMapping()
{
    const QString name = QLatin1String(UpdateState);
    QByteArray mapping;
    m_mappingStored = false;
    m_mappingComplaint = parts().files.read(QLatin1String(MappingXml), mapping) ? mappingFault(mapping)
                                                                                : QStringLiteral("no file");
    const bool rejected = parts().faults.strikes(Faults::MappingRejected) || !m_mappingComplaint.isEmpty();
    const int rest = static_cast<int>(parts().variables.value(name)) & ~Announced;
    parts().variables.set(name, rest | MappingTaken | (rejected ? MappingRejected : 0));
}

// There is no bit that rejects the file: what cannot be read is not answered.
void FieldbusManager::takeSlaveFile()
{
    const QString name = QLatin1String(UpdateState);
    QByteArray slave;
    if (!parts().files.read(QLatin1String(SlaveXml), slave) || !isSlaveFile(slave)) {
        parts().traffic.addNote(QStringLiteral("%1 cannot be read: no answer").arg(QLatin1String(SlaveXml)));
        return;
    }
    const int rest = static_cast<int>(parts().variables.value(name)) & ~(Announced | Slave);
    parts().variables.set(name, rest | SlaveTaken);
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
    m_mappingStored = false; // what is stored runs now
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
