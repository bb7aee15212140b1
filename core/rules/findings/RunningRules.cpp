#include "Rules.h"

#include "DeviceNetCodes.h"
#include "RestartFiles.h"
#include "SettingChanges.h"

#include <algorithm>

namespace Rules {

namespace {

// Codes of the slave modules in "ifidbus.anybus_fm"; 0 while none is found.
struct Module
{
    RoleId role;
    int code;
};
constexpr Module Modules[] = {{RoleId::EtherCatSlave, 13}, {RoleId::ProfinetSlave, 14}};

// Bits of "ifidbus.xml_update_state".
constexpr int UpdateRejected = 0x800;
constexpr int UpdateTaken = 0x4000;
constexpr int UpdateAnnounced = 0x8000;
constexpr int UpdateOfSlave = 0x1000; // the DeviceNet slave file is meant
constexpr const char* UpdateState = "ifidbus.xml_update_state";

// "ifidbus.bus_type_state": the pendant asks, the controller answers.
constexpr const char* BusTypeState = "ifidbus.bus_type_state";
constexpr int BusTypeAsked = 1;
constexpr int BusTypeRefused = 0x4000;

// What the pendant sets and the controller clears when it has taken a file or a command.
struct Announcement
{
    const char* variable;
    std::optional<RoleId> role;
    FindingCode code;
};
const Announcement Announcements[] = {
    {"ifidbus.xml_heartbeat", {}, FindingCode::AnnouncementNotTaken},
    {"ifidbus.mbc_save_enable", RoleId::ModbusTcpMaster, FindingCode::AnnouncementNotTaken},
    {"ifidbus.dnm_save_config", RoleId::DeviceNetMaster, FindingCode::AnnouncementNotTaken},
    {"ifins_tcp.bupdate_cfg", RoleId::FinsTcp, FindingCode::AnnouncementNotTaken},
    {"imes.update_tcp_server_cfg", RoleId::Mes, FindingCode::AnnouncementNotTaken},
    {"ifidbus.ecat2open", RoleId::EtherCatSlave, FindingCode::CommandNotTaken},
    {"ifidbus.ecat2close", RoleId::EtherCatSlave, FindingCode::CommandNotTaken},
    {"ifidbus.eip2open", RoleId::EtherNetIPSlave, FindingCode::CommandNotTaken},
    {"ifidbus.eip2close", RoleId::EtherNetIPSlave, FindingCode::CommandNotTaken},
    {"ifidbus.pfn2open", RoleId::ProfinetSlave, FindingCode::CommandNotTaken},
    {"ifidbus.pfn2close", RoleId::ProfinetSlave, FindingCode::CommandNotTaken},
    {"ifidbus.dns2open", RoleId::DeviceNetSlave, FindingCode::CommandNotTaken},
    {"ifidbus.dns2close", RoleId::DeviceNetSlave, FindingCode::CommandNotTaken},
    {"ifidbus.dnm2open", RoleId::DeviceNetMaster, FindingCode::CommandNotTaken},
    {"ifidbus.dnm2close", RoleId::DeviceNetMaster, FindingCode::CommandNotTaken},
};

Evidence variableFact(const QString& name, int value)
{
    return {QStringLiteral("value"), name, QString::number(value)};
}

class RunningRules
{
public:
    RunningRules(const Configuration& configuration, const RunningState& state, FindingList& found)
        : m_configuration(configuration)
        , m_state(state)
        , m_found(found)
    {
    }

    void check()
    {
        modules();
        deviceNet();
        positions("ifidbus.eim_status", RoleId::EtherNetIPMaster, m_configuration.eipMaster);
        positions("ifidbus.pnm_status", RoleId::ProfinetMaster, m_configuration.pfnMaster);
        mes();
        fins();
        restarts();
        pendingSettings();
        announcements();
        for (const RoleInfo& role : RoleTable::Roles) {
            if (role.heartbeatKey) {
                link(role);
                watch(role);
            }
        }
    }

private:
    bool runs(RoleId role) const
    {
        return m_state.running ? RoleTable::isOn(*m_state.running, role) : m_configuration.isOn(role);
    }
    bool isTrue(const char* variable) const
    {
        return m_state.value(QLatin1String(variable)).value_or(0) != 0;
    }
    bool isFalse(const char* variable) const
    {
        return m_state.value(QLatin1String(variable)).value_or(1) == 0;
    }

    void modules()
    {
        const QString name = QStringLiteral("ifidbus.anybus_fm");
        const auto code = m_state.value(name);
        if (!code)
            return;
        for (const Module& module : Modules) {
            // A link that is up needs nothing.
            if (!runs(module.role) || *code == module.code || isTrue(RoleTable::of(module.role).linkVariable))
                continue;
            // The PROFINET slave may be the controller's own, beside any module.
            if (module.role == RoleId::ProfinetSlave && *code != 0)
                continue;
            m_found.add(
                *code == 0 ? FindingCode::ModuleMissing : FindingCode::ModuleOther, {module.role, {}},
                {titleOf(module.role)},
                {variableFact(name, *code), {QStringLiteral("needed"), name, QString::number(module.code)}});
        }
    }

    void deviceNet()
    {
        if (!runs(RoleId::DeviceNetMaster) || !m_configuration.isRead(FileId::DeviceNetMaster))
            return;
        for (int i = 0; i < m_configuration.deviceNetMaster.count; ++i) {
            const auto status = m_state.value("ifidbus.dnm_status", i);
            const auto code = m_state.value("ifidbus.dnm_errorcode", i);
            if (status.value_or(1) != 0 || code.value_or(DeviceNetCodes::NoLink) == DeviceNetCodes::NoLink)
                continue; // without a link all devices are down: the link is told
            const int macId = m_configuration.deviceNetMaster.devices[static_cast<std::size_t>(i)].MAC_ID;
            const FindingCode kind = *code == DeviceNetCodes::NotOnNetwork ? FindingCode::DeviceNotOnNetwork
                                     : *code == DeviceNetCodes::MacIdTaken ? FindingCode::RunningMacIdTwice
                                                                           : FindingCode::DeviceFault;
            m_found.add(kind,
                        {RoleId::DeviceNetMaster,
                         FileId::DeviceNetMaster,
                         {";   Device " + QByteArray::number(i + 1)}},
                        {QString::number(i + 1), QString::number(macId), QString::number(*code)},
                        {variableFact(QStringLiteral("ifidbus.dnm_status[%1]").arg(i), 0),
                         variableFact(QStringLiteral("ifidbus.dnm_errorcode[%1]").arg(i), *code)});
        }
    }

    void positions(const char* vector, RoleId role, const MasterSlaveTable& table)
    {
        // Without a link all of them are down.
        if (!runs(role) || isFalse(RoleTable::of(role).linkVariable))
            return;
        const int count = std::min(table.SlaveNum.trimmed().toInt(), MasterSlaveTable::PositionCount);
        for (int i = 0; i < count; ++i) {
            // A dynamic slave may be taken off and come back.
            const bool isDynamic = table.*MasterSlaveTable::positions()[static_cast<std::size_t>(i)].dynamic;
            if (isDynamic || m_state.value(vector, i).value_or(1) != 0)
                continue;
            m_found.add(FindingCode::PositionDown, {role, {}}, {titleOf(role), QString::number(i + 1)},
                        {variableFact(QStringLiteral("%1[%2]").arg(QLatin1String(vector)).arg(i), 0)});
        }
    }

    void mes()
    {
        if (!runs(RoleId::Mes))
            return;
        if (isFalse("imes.tcp_server_active"))
            m_found.add(
                FindingCode::ServerNotListening, {RoleId::Mes, FileId::MesServer, {"<Port"}},
                {titleOf(RoleId::Mes)},
                {variableFact(QStringLiteral("imes.tcp_server_active"), 0),
                 FindingList::fact(QStringLiteral("Port"), FileId::MesServer, m_configuration.mes.Port)});
        else if (isTrue("imes.tcp_server_active") && isFalse("imes.tcp_server_connected"))
            m_found.add(FindingCode::NoPartner, {RoleId::Mes, {}}, {titleOf(RoleId::Mes)},
                        {variableFact(QStringLiteral("imes.tcp_server_connected"), 0)});
    }

    void fins()
    {
        const bool isWanted = isTrue("ifins_tcp.enable");
        if (!isWanted || isTrue("ifins_tcp.connected"))
            return;
        if (isTrue("ifins_tcp.error"))
            m_found.add(FindingCode::PartnerRefused, {RoleId::FinsTcp, FileId::FinsClient, {"<ServerIP"}},
                        {titleOf(RoleId::FinsTcp)},
                        {variableFact(QStringLiteral("ifins_tcp.error"), 1),
                         FindingList::fact(QStringLiteral("ServerIP"), FileId::FinsClient,
                                           m_configuration.fins.ServerIP)});
        else if (isFalse("ifins_tcp.connected"))
            m_found.add(FindingCode::NoPartner, {RoleId::FinsTcp, {}}, {titleOf(RoleId::FinsTcp)},
                        {variableFact(QStringLiteral("ifins_tcp.connected"), 0)});
    }

    void restarts()
    {
        if (!m_state.running || !m_configuration.isRead(FileId::RoleList))
            return;
        const auto word = [](bool isOn) { return isOn ? QStringLiteral("on") : QStringLiteral("off"); };
        for (const RoleInfo& role : RoleTable::Roles) {
            const bool isRunning = RoleTable::isOn(*m_state.running, role.id);
            const bool isSaved = m_configuration.isOn(role.id);
            if (isRunning == isSaved || role.id == RoleId::ModbusTcpSlave)
                continue;
            m_found.add(FindingCode::RestartPending,
                        {role.id, FileId::RoleList, {'"' + QByteArray(role.name) + '"'}},
                        {titleOf(role.id), word(isSaved), word(isRunning)},
                        {m_found.factOf(role.id),
                         {QStringLiteral("came up"), QStringLiteral("last restart"), word(isRunning)}});
        }
    }

    // What a file says counts from the next restart on: what it said at the last one is told beside it.
    void pendingSettings()
    {
        for (const FileId file : RestartFiles) {
            const auto before = m_state.cameUp.constFind(static_cast<int>(file));
            if (before == m_state.cameUp.cend() || !m_configuration.isRead(file) ||
                *before == m_configuration.bytes(file))
                continue;
            const auto changes = Settings::changes(QLatin1String(KnownFiles::of(file).name), *before,
                                                   m_configuration.bytes(file));
            for (auto first = changes.begin(); first != changes.end();) {
                const auto end = std::find_if(first, changes.end(), [first](const Settings::Change& change) {
                    return change.role != first->role || change.title != first->title;
                });
                addPending(file, {first, end});
                first = end;
            }
        }
    }

    // Changes of one group.
    void addPending(FileId file, const std::vector<Settings::Change>& changes)
    {
        constexpr std::size_t MostFacts = 4;
        const RoleInfo* role = changes.front().role;
        std::vector<Evidence> facts;
        for (std::size_t i = 0; i < std::min(changes.size(), MostFacts); ++i) {
            const QString name = changes[i].field.isEmpty() ? changes[i].title : changes[i].field;
            facts.push_back(FindingList::fact(name, file, changes[i].after));
            facts.push_back({name, QStringLiteral("last restart"), changes[i].before});
        }
        m_found.add(FindingCode::SettingsPending,
                    {role ? std::optional<RoleId>(role->id) : std::nullopt, file}, {changes.front().title},
                    std::move(facts));
    }

    void busType()
    {
        const QString name = QLatin1String(BusTypeState);
        const int state = m_state.value(name).value_or(0);
        if (state == BusTypeAsked)
            m_found.add(FindingCode::AnnouncementNotTaken, {{}, FileId::RoleList}, {},
                        {variableFact(name, state)});
        else if ((state & BusTypeRefused) != 0)
            m_found.add(FindingCode::BusTypeRefused, {{}, FileId::RoleList}, {}, {variableFact(name, state)});
    }

    void announcements()
    {
        busType();
        for (const Announcement& announcement : Announcements) {
            if (!isTrue(announcement.variable))
                continue;
            const QString role = announcement.role ? titleOf(*announcement.role) : QString();
            m_found.add(announcement.code, {announcement.role, {}}, {role},
                        {variableFact(QLatin1String(announcement.variable), 1)});
        }
        const QString name = QLatin1String(UpdateState);
        const int update = m_state.value(name).value_or(0);
        if ((update & UpdateRejected) != 0)
            m_found.add(FindingCode::MappingRejected, {{}, FileId::Mapping}, {},
                        {variableFact(name, update)});
        else if ((update & UpdateAnnounced) != 0 && (update & UpdateTaken) == 0)
            m_found.add(FindingCode::AnnouncementNotTaken, announcedBy(update), {},
                        {variableFact(name, update)});
    }

    static FindingList::About announcedBy(int update)
    {
        if ((update & UpdateOfSlave) != 0)
            return {RoleId::DeviceNetSlave, FileId::DeviceNetSlave};
        return {{}, FileId::Mapping};
    }

    // What the settings explain needs no guess at the cable.
    void link(const RoleInfo& role)
    {
        const auto isUp = m_state.value(QLatin1String(role.linkVariable));
        const bool isExpected = runs(role.id) || role.id == RoleId::ModbusTcpSlave;
        if (!isExpected || isUp.value_or(1) != 0 || m_found.hasTrouble(role.id))
            return;
        m_found.add(FindingCode::LinkDown, {role.id, {}}, {titleOf(role.id)},
                    {variableFact(QLatin1String(role.linkVariable), 0)});
    }

    void watch(const RoleInfo& role)
    {
        constexpr double Soon = 0.5; // of the time-out
        const auto down = m_state.downFor[static_cast<std::size_t>(role.id)];
        const auto field = std::find_if(
            HeartbeatConfig::fields().begin(), HeartbeatConfig::fields().end(),
            [&role](const auto& candidate) { return qstrcmp(candidate.bus, role.heartbeatKey) == 0; });
        if (!down || !runs(role.id) || field == HeartbeatConfig::fields().end() ||
            !(m_configuration.heartbeat.*field->nodSwitch))
            return;
        const double timeout = m_configuration.heartbeat.*field->timeout;
        if (!(*down >= Soon * timeout))
            return;
        m_found.add(*down >= timeout ? FindingCode::WatchTripped : FindingCode::WatchAboutToTrip,
                    {role.id, FileId::Heartbeat, {'<' + QByteArray(field->timeoutElement)}},
                    {titleOf(role.id), QString::number(*down, 'f', 1), HeartbeatConfig::timeoutText(timeout)},
                    {variableFact(QLatin1String(role.linkVariable), 0),
                     FindingList::fact(QLatin1String(field->timeoutElement), FileId::Heartbeat,
                                       HeartbeatConfig::timeoutText(timeout))});
    }

    const Configuration& m_configuration;
    const RunningState& m_state;
    FindingList& m_found;
};

} // namespace

void running(const Configuration& configuration, const RunningState& state, FindingList& found)
{
    RunningRules(configuration, state, found).check();
}

} // namespace Rules
