#include "SwitchSave.h"

#include "BusFileDataManager.h"
#include "ControllerVariables.h"
#include "FormerFiles.h"
#include "SwitchBoard.h"
#include "SwitchRules.h"
#include "SysSettingApi.h"

#include <QComboBox>

#include <algorithm>

using namespace BusSwitches;
using Answer = PageBase::Answer;

namespace {

constexpr int BusTypeAsked = 1;
constexpr int BusTypeTaken = 0x8000;
constexpr int BusTypeRefused = 0x4000;

// Devices of the EtherCAT slave module that a change of its role takes out of use.
constexpr std::size_t SlaveDevices = 5;

FieldbusSettingLib* lib()
{
    return FieldbusSettingLib::getInstance();
}

bool isAnyCommandPending()
{
    return std::any_of(commands().begin(), commands().end(),
                       [](const Command& command) { return command.isPending(); });
}

} // namespace

SwitchSave::SwitchSave(PageBase& page, SwitchSaveHost& host, SwitchBoard& board)
    : m_page(page)
    , m_host(host)
    , m_board(board)
{
}

void SwitchSave::begin()
{
    if (const char* objection = SwitchRules::mastersObjection(m_board.switchedOn())) {
        m_page.tell(MsgBox::Information, tr(objection));
        return;
    }
    for (const Switch which : {PfnSlave, MtcpMaster}) {
        if (const char* objection = m_board.freeConfigurationObjection(which)) {
            m_page.tell(MsgBox::Warning, tr(objection));
            return;
        }
    }
    const Answer answer = m_page.askGrave(
        tr("This operation will cause the robot to restart.\n Are you sure to save the configuration?"));
    if (answer == Answer::Gone)
        return;
    if (answer != Answer::Confirmed) {
        m_host.reload();
        return;
    }
    m_state = State::Writing;
    m_host.takeInput(false);
    m_busy.emplace(&m_page);
    const Outcome written = writeOverride();
    if (written == Outcome::Done)
        announce();
    else if (written == Outcome::Failed)
        end();
}

Outcome SwitchSave::writeOverride()
{
    const auto switchedOff = [this](Switch which) { return m_board.differs(which) && !m_board.isOn(which); };
    const auto withoutDevice = [](const char* device) {
        return
            [device](const QString& path) { return lib()->writeOverrideFile(path, QLatin1String(device)); };
    };
    const OverrideMode mode = m_board.isOn(EtherCatMaster) ? OverrideMode::SwitchOn : OverrideMode::SwitchOff;
    const struct
    {
        bool wanted;
        PageBase::FileOperation operation;
    } steps[] = {
        {m_board.differs(EtherCatSlave) && m_host.isOverrideRead(),
         [](const QString& path) {
             auto& entries = lib()->etherCatSlaveOverride.entries;
             std::for_each_n(entries.begin(), SlaveDevices, [](OverrideEntry& entry) { entry.off = false; });
             return lib()->writeEtherCatFile(path);
         }},
        {m_board.differs(EtherCatMaster),
         [mode](const QString& path) { return lib()->writeEtherCatMFile(path, static_cast<int>(mode)); }},
        {switchedOff(EipMaster) && lib()->masterDevices.EIM_DEVICE, withoutDevice("EIM_DEVICE")},
        {switchedOff(PfnMaster) && lib()->masterDevices.PNM_DEVICE, withoutDevice("PNM_DEVICE")},
    };
    for (const auto& step : steps) {
        if (!step.wanted)
            continue;
        const Outcome outcome =
            m_page.writeAndSend(ConfigFile::Override, step.operation, m_host.overrideTexts());
        if (outcome != Outcome::Done)
            return outcome;
    }
    return Outcome::Done;
}

// Tells the controller what is wanted; from here on the idle ticks carry the save on.
void SwitchSave::announce()
{
    lib()->set_ifidbus_mtcp_state(true); // this slave cannot be switched off
    for (const RoleVariable& variable : roleVariables())
        (lib()->*variable.set)(m_board.isOn(variable.which));
    for (const Command& command : commands()) {
        if (m_board.isCommandWanted(command.which))
            (m_board.isOn(command.which) ? command.open : command.close) = true;
    }
    m_state = State::Waiting;
    m_commands.reset();
    m_busType.reset();
    lib()->set_ifidbus_freebus_state(m_board.isOn(FreeBus));
    ControllerVariables::ifidbus_bus_type_state = BusTypeAsked;
    m_notice.open(&m_page,
                  tr("Before the save operation is completed,\n clicking on the current interface is "
                     "invalid."));
}

void SwitchSave::step()
{
    if (m_state != State::Waiting)
        return;
    if (isAnyCommandPending()) {
        if (!waitFor(m_commands))
            giveUp(untakenCommands());
        return;
    }
    const int busType = lib()->get_ifidbus_bus_type_state();
    if (m_board.differs(FreeBus) && (busType & BusTypeTaken) == 0) {
        if ((busType & BusTypeRefused) != 0 || !waitFor(m_busType))
            giveUp({tr("The fieldbbus is not change,please reset!")});
        return;
    }
    sendSwitches();
}

bool SwitchSave::waitFor(Poll& poll)
{
    if (poll.count(false) == Poll::Answer::Never)
        return false;
    const QPointer<PageBase> page(&m_page);
    m_state = State::Looking;
    SysSettingApi::delay_MSec(static_cast<unsigned>(poll.rule().everyMs));
    if (!page)
        return true;
    m_state = State::Waiting;
    m_exit.withdraw();
    return true;
}

QStringList SwitchSave::untakenCommands() const
{
    QStringList messages;
    for (const Command* command : reportedCommands()) {
        if (m_board.combo(command->which)->isEnabled() && command->isPending())
            messages << tr("Failed to change bus:") + QLatin1String(command->name);
    }
    return messages;
}

void SwitchSave::giveUp(const QStringList& messages)
{
    m_state = State::Ending;
    m_notice.close();
    m_exit.give();
    for (const QString& message : messages) {
        if (m_page.tell(MsgBox::Error, message) == Answer::Gone)
            return;
    }
    if (m_host.reload() != Outcome::Gone)
        end();
}

void SwitchSave::sendSwitches()
{
    m_state = State::Ending;
    QMap<QString, BusName> roles = BusFileDataManager::getInstance()->getAllBusName();
    for (int i = 0; i < Count; ++i) {
        const auto role = roles.find(QLatin1String(rows()[i].busName()));
        if (role != roles.end())
            role->enabled = m_board.isOn(static_cast<Switch>(i));
    }
    FormerFiles::instance().serviceBegins(QLatin1String(FileLocations::FieldbusXml));
    BusFileDataManager::getInstance()->setBusInfo(roles);
    BusFileDataManager::getInstance()->writeSendFieldbusXml();
}

void SwitchSave::finish(bool sent)
{
    if (m_state != State::Ending)
        return; // somebody else's
    m_notice.close();
    FormerFiles::instance().serviceEnds(QLatin1String(FileLocations::FieldbusXml), sent);
    m_page.noteServiceSent(ConfigFile::BusRoles, sent);
    if (!sent) {
        if (m_page.tell(MsgBox::Error, tr("Failed to write file.")) != Answer::Gone)
            end();
        return;
    }
    if (SwitchRules::losesPerformance(lib()->get_ifidbus_performance_switch(), m_board.switchedOn()))
        lib()->set_ifidbus_performance_switch(0);
    switch (m_page.tell(MsgBox::Information,
                        tr("Successfully saved, the robot is about to restart and take effect."))) {
    case Answer::Confirmed:
    case Answer::Third:
        restart();
        break;
    case Answer::Gone:
        break;
    default: // saved, and left for the next restart
        end();
        break;
    }
}

void SwitchSave::restart()
{
    if (!Restart::isAllowed()) {
        end();
        return;
    }
    const QPointer<PageBase> page(&m_page);
    SysSettingApi::delay_MSec(Restart::BeforeRestartMs);
    SysSettingApi::rebootRde(true, true); // what was confirmed, also when the page is gone
    if (!page)
        return;
    const bool stopped = Restart::controllerStopped();
    if (!page)
        return;
    // The controller holds a configuration that it does not run.
    if (!stopped)
        m_exitForGood.withdraw();
    end();
    m_page.tellRestarted(stopped);
}

void SwitchSave::end()
{
    m_state = State::Idle;
    m_host.takeInput(true);
    m_exit.give();
    m_busy.reset();
}
