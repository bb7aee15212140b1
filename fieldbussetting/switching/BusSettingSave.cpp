// The save of the bus switches: from the checks over the override file, the commands and the bus
// configuration to the restart.
#include "BusSettingWidget.h"

#include "BusFileDataManager.h"
#include "ControllerVariables.h"
#include "SysSettingApi.h"
#include "ui_BusSettingWidget.h"

#include <QComboBox>

#include <algorithm>
#include <mutex>

using namespace BusSwitches;

namespace {

// How long a save waits for the controller.
constexpr int CommandPolls = 100;
constexpr unsigned CommandPollMs = 100;
constexpr int BusTypePolls = 200;
constexpr unsigned BusTypePollMs = 50;

constexpr int BusTypeAsked = 1;
constexpr int BusTypeTaken = 0x8000;
constexpr int BusTypeRefused = 0x4000;

constexpr int WrittenAndSent = 1; // kind of the service's notification

// Devices of the EtherCAT slave module that a change of its role takes out of use.
constexpr std::size_t SlaveDevices = 5;

bool isAnyCommandPending()
{
    return std::any_of(commands().begin(), commands().end(),
                       [](const Command& command) { return command.isPending(); });
}

} // namespace

void BusSettingWidget::on_saveBusBt_clicked()
{
    if (isSaving() || !isSaveAllowed() || !checkServoOff())
        return;
    if (const char* objection = mastersObjection(switchedOn())) {
        tell(MsgBox::Information, tr(objection));
        return;
    }
    for (const Switch which : {PfnSlave, MtcpMaster}) {
        if (const char* objection = freeConfigurationObjection(which)) {
            tell(MsgBox::Warning, tr(objection));
            return;
        }
    }
    const Answer answer =
        ask(tr("This operation will cause the robot to restart.\n Are you sure to save the configuration?"));
    if (answer == Answer::Gone)
        return;
    if (answer != Answer::Confirmed) {
        const Busy busy(this);
        reload();
        return;
    }
    setBusy(true);
    switch (saveOverride()) {
    case Outcome::Done:
        announce();
        break;
    case Outcome::Failed:
        setBusy(false);
        break;
    case Outcome::Gone:
        break;
    }
}

Outcome BusSettingWidget::saveOverride()
{
    const auto changed = [this](Switch which) { return isOn(which) != m_running[which]; };
    const auto switchedOff = [this](Switch which) { return !isOn(which) && m_running[which]; };
    const auto withoutDevice = [](const char* device) {
        return
            [device](const QString& path) { return lib()->writeOverrideFile(path, QLatin1String(device)); };
    };
    const struct
    {
        bool wanted;
        FileOperation operation;
    } steps[] = {
        {changed(EtherCatSlave) && m_overrideRead,
         [](const QString& path) {
             auto& entries = lib()->etherCatSlaveOverride.entries;
             std::for_each_n(entries.begin(), SlaveDevices, [](OverrideEntry& entry) { entry.off = false; });
             return lib()->writeEtherCatFile(path);
         }},
        {changed(EtherCatMaster),
         [mode = isOn(EtherCatMaster) ? OverrideMode::SwitchOn : OverrideMode::SwitchOff](
             const QString& path) { return lib()->writeEtherCatMFile(path, static_cast<int>(mode)); }},
        {switchedOff(EipMaster) && lib()->masterDevices.EIM_DEVICE, withoutDevice("EIM_DEVICE")},
        {switchedOff(PfnMaster) && lib()->masterDevices.PNM_DEVICE, withoutDevice("PNM_DEVICE")},
    };
    for (const auto& step : steps) {
        if (!step.wanted)
            continue;
        const Outcome outcome = writeAndSend(ConfigFile::Override, step.operation, Texts);
        if (outcome != Outcome::Done)
            return outcome;
    }
    return Outcome::Done;
}

// Tells the controller what is wanted; from here on the idle ticks carry the save on.
void BusSettingWidget::announce()
{
    lib()->set_ifidbus_mtcp_state(true); // this slave cannot be switched off
    for (const RoleVariable& variable : roleVariables())
        (lib()->*variable.set)(isOn(variable.which));
    for (const Command& command : commands()) {
        if (combo(command.which)->isEnabled() && m_changed[command.which])
            (isOn(command.which) ? command.open : command.close) = true;
    }
    m_saving = true;
    m_commandPolls = 0;
    m_busTypePolls = 0;
    m_freeBusChanged = (combo(FreeBus)->currentIndex() == On) != m_running[FreeBus];
    lib()->set_ifidbus_freebus_state(isOn(FreeBus));
    ControllerVariables::ifidbus_bus_type_state = BusTypeAsked;
    m_notice.open(this, tr("Before the save operation is completed,\n clicking on the current interface is "
                           "invalid."));
}

void BusSettingWidget::slotSaveAndReboot()
{
    const std::shared_ptr<QMutex> mutex = m_saveMutex;
    const std::unique_lock<QMutex> lock(*mutex, std::try_to_lock);
    if (!lock.owns_lock() || !m_saving)
        return;
    if (isAnyCommandPending()) {
        if (m_commandPolls < CommandPolls) {
            waitForController(CommandPollMs, m_commandPolls);
            return;
        }
        QStringList messages;
        for (const Command* command : reportedCommands()) {
            if (combo(command->which)->isEnabled() && command->isPending())
                messages << tr("Failed to change bus:") + QLatin1String(command->name);
        }
        giveSaveUp(messages);
        return;
    }
    if (m_freeBusChanged) {
        const int state = lib()->get_ifidbus_bus_type_state();
        const bool isRefused = (state & BusTypeRefused) != 0;
        if ((state & BusTypeTaken) == 0) {
            if (!isRefused && m_busTypePolls < BusTypePolls)
                waitForController(BusTypePollMs, m_busTypePolls);
            else
                giveSaveUp({tr("The fieldbbus is not change,please reset!")});
            return;
        }
    }
    sendSwitches();
}

void BusSettingWidget::waitForController(unsigned msec, int& polls)
{
    const QPointer<BusSettingWidget> self(this);
    SysSettingApi::delay_MSec(msec);
    if (!self)
        return;
    ++polls;
    m_exit.withdraw();
}

void BusSettingWidget::giveSaveUp(const QStringList& messages)
{
    m_notice.close();
    m_exit.give();
    for (const QString& message : messages) {
        if (tell(MsgBox::Error, message) == Answer::Gone)
            return;
    }
    if (reload() != Outcome::Gone)
        setBusy(false);
}

void BusSettingWidget::sendSwitches()
{
    m_saving = false;
    QMap<QString, BusName> roles = BusFileDataManager::getInstance()->getAllBusName();
    for (int i = 0; i < Count; ++i) {
        const auto role = roles.find(QLatin1String(rows()[i].busName));
        if (role != roles.end())
            role->enabled = isOn(static_cast<Switch>(i));
    }
    BusFileDataManager::getInstance()->setBusInfo(roles);
    BusFileDataManager::getInstance()->writeSendFieldbusXml();
}

void BusSettingWidget::busNotification(int kind, const QString& path, bool success)
{
    Q_UNUSED(path)
    if (kind != WrittenAndSent)
        return;
    m_notice.close();
    if (!success) {
        if (tell(MsgBox::Error, tr("Failed to write file.")) != Answer::Gone)
            setBusy(false);
        return;
    }
    if (losesPerformance(lib()->get_ifidbus_performance_switch(), isOn(EipSlave), isOn(PfnSlave)))
        lib()->set_ifidbus_performance_switch(0);
    switch (
        tell(MsgBox::Information, tr("Successfully saved, the robot is about to restart and take effect."))) {
    case Answer::Confirmed:
    case Answer::Third:
        restart();
        break;
    case Answer::Gone:
        break;
    default: // saved, and left for the next restart
        setBusy(false);
        break;
    }
}

void BusSettingWidget::restart()
{
    if (!Restart::isAllowed()) {
        setBusy(false);
        return;
    }
    const QPointer<BusSettingWidget> self(this);
    SysSettingApi::delay_MSec(Restart::BeforeRestartMs);
    SysSettingApi::rebootRde(true, true); // what was confirmed, also when the page is gone
    if (!self)
        return;
    const bool stopped = Restart::controllerStopped();
    if (!self)
        return;
    setBusy(false);
    // For as long as the page lives: the controller holds a configuration that it does not run.
    if (!stopped)
        m_exit.withdraw();
    tellRestarted(stopped);
}
