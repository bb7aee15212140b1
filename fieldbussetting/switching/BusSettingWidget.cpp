#include "BusSettingWidget.h"

#include "BusFileDataManager.h"
#include "ControllerVariables.h"
#include "SysSettingApi.h"
#include "ui_BusSettingWidget.h"

#include <QComboBox>
#include <QLabel>

#include <algorithm>
#include <mutex>
#include <utility>

using namespace BusSwitches;

namespace {

constexpr int ProfisafePresent = 1;

// Codes of the fieldbus module.
constexpr int EtherCatModule = 13;
constexpr int ProfinetModule = 14;

constexpr int ModuleCheckMs = 70;
constexpr int ModuleChecks = 10;

// How long a save waits for the controller.
constexpr int CommandPolls = 100;
constexpr unsigned CommandPollMs = 100;
constexpr int BusTypePolls = 200;
constexpr unsigned BusTypePollMs = 50;

constexpr int BusTypeAsked = 1;
constexpr int BusTypeTaken = 0x8000;
constexpr int BusTypeRefused = 0x4000;

constexpr int WrittenAndSent = 1; // kind of the service's notification
constexpr unsigned BeforeRestartMs = 1000;

// Devices of the EtherCAT slave module that a change of its role takes out of use.
constexpr std::size_t SlaveDevices = 5;

constexpr int SwitchColumns = 2;

const TransferTexts Texts = {MsgBox::Error, QT_TRANSLATE_NOOP("BusSettingWidget", "Failed to get file:%1"),
                             QT_TRANSLATE_NOOP("BusSettingWidget", "Failed to read file:%1"),
                             QT_TRANSLATE_NOOP("BusSettingWidget", "Failed to write file:%1"),
                             QT_TRANSLATE_NOOP("BusSettingWidget", "Failed to send file:%1")};

BusFileDataManager* service()
{
    return BusFileDataManager::getInstance();
}

bool isAnyCommandPending()
{
    return std::any_of(commands().begin(), commands().end(),
                       [](const Command& command) { return command.isPending(); });
}

} // namespace

BusSettingWidget::BusSettingWidget()
    : PageBase("BusSettingWidget")
    , ui(std::make_unique<Ui::BusSettingWidget>())
{
    makeSwitches();
    ui->setupUi(this);
    layOutSwitches();
    applyStyle();

    setIsFieldXml(true);
    service()->attach(this);
    const std::vector<BusName> running = service()->getBusNameList(true, true);
    for (int i = 0; i < Count; ++i)
        m_running[i] = std::any_of(running.begin(), running.end(), [i](const BusName& bus) {
            return bus.name == QLatin1String(rows()[i].busName);
        });
    m_running[FreeBus] = service()->isOpenFreeBus();

    connect(this, &BusSettingWidget::sendSaveSignal, this, &BusSettingWidget::slotSaveAndReboot);
    scheduleOnce(0, &BusSettingWidget::slotGetFileToUi);
}

BusSettingWidget::~BusSettingWidget()
{
    service()->detach(this);
}

// Before the form is built: it connects the switches to their slots by name.
void BusSettingWidget::makeSwitches()
{
    for (int i = 0; i < Count; ++i) {
        m_combos[i] = new QComboBox(this);
        m_combos[i]->setObjectName(QLatin1String(rows()[i].objectName));
        m_combos[i]->addItems({tr("OFF"), tr("ON")});
    }
    // Until it is known that the controller has them.
    combo(EipSlave)->setEnabled(false);
    combo(PfnSlave)->setEnabled(false);
}

void BusSettingWidget::layOutSwitches()
{
    // The first one stands alone, so that slave and master of a bus stand side by side.
    int cell = 0;
    for (int i = 0; i < Count; ++i) {
        auto* label = new QLabel(tr(rows()[i].label), ui->switchGroup);
        label->setWordWrap(true);
        const int column = cell % SwitchColumns * (SwitchColumns + 1);
        ui->switchLayout->addWidget(label, cell / SwitchColumns, column);
        ui->switchLayout->addWidget(m_combos[i], cell / SwitchColumns, column + 1);
        cell += i == Mes ? SwitchColumns : 1;
    }
    ui->switchLayout->setColumnMinimumWidth(SwitchColumns, 24);
}

bool BusSettingWidget::isOn(Switch which) const
{
    return combo(which)->currentIndex() != Off;
}

void BusSettingWidget::slotGetFileToUi()
{
    Busy busy(this);
    if (reload() == Outcome::Gone)
        return;
    connect(&m_moduleCheck, &QTimer::timeout, this, &BusSettingWidget::slotCheckFBSEcat,
            Qt::UniqueConnection);
    m_moduleCheck.start(ModuleCheckMs);
}

Outcome BusSettingWidget::reload()
{
    m_saving = false;
    m_profisafePresent = service()->checkProfiSAFEStatus() == ProfisafePresent;
    combo(EtherCatMaster)->setEnabled(!m_profisafePresent);
    combo(EipMaster)->setEnabled(!m_profisafePresent);
    const Outcome read =
        fetchAndRead(ConfigFile::Override, plain(&FieldbusSettingLib::readEtherCatFile), Texts);
    if (read == Outcome::Gone)
        return read;
    m_overrideRead = read == Outcome::Done;

    // Those of the second list warn about what they lack, and count their change. The PROFINET slave's switch
    // is in neither: the idle tick sets it, once.
    for (const Switch which :
         {Mes, EtherCatMaster, DeviceNetSlave, MtcpMaster, EtherCatSlave, DeviceNetMaster, FreeBus}) {
        const QSignalBlocker blocker(combo(which));
        combo(which)->setCurrentIndex(m_running[which] ? On : Off);
    }
    for (const Switch which : {EipSlave, EipMaster, PfnMaster})
        combo(which)->setCurrentIndex(m_running[which] ? On : Off);
    // Not before it is set: what is loaded counts as no change.
    combo(EipSlave)->setEnabled(true);
    combo(EtherCatSlave)->setEnabled(m_overrideRead);
    if (!m_overrideRead)
        combo(EtherCatSlave)->setCurrentIndex(Off);
    return read;
}

void BusSettingWidget::setBusy(bool busy)
{
    ui->saveBusBt->setEnabled(!busy);
    setAttribute(Qt::WA_TransparentForMouseEvents, busy);
    if (busy) {
        m_busy.emplace(this);
    } else {
        m_exit.give();
        m_busy.reset();
    }
}

void BusSettingWidget::slotCheckFBSEcat()
{
    if (m_moduleChecks == ModuleChecks)
        m_moduleCheck.stop();
    if (lib()->get_ifidbus_anybus_fm() == 0 && m_moduleChecks != ModuleChecks) {
        ++m_moduleChecks;
        return;
    }
    m_moduleCheck.stop();
    checkAnybus(combo(EtherCatSlave)->currentIndex());
}

void BusSettingWidget::checkAnybus(int index)
{
    const OverrideEntry* anybus = lib()->etherCatSlaveOverride.anybus();
    if (lib()->get_ifidbus_anybus_fm() != EtherCatModule && index == On && !(anybus && anybus->off))
        warnLater(tr("Please select ANYBUS in EtherCat slave after, Make the setting effective!"));
}

void BusSettingWidget::on_ethcatSwitch_currentIndexChanged(int index)
{
    checkAnybus(index);
}

void BusSettingWidget::on_pfnMasterSwitch_currentIndexChanged(int index)
{
    if (index == On && !lib()->masterDevices.PNM_DEVICE)
        warnLater(tr("Please select PNM_DEVICE in Profinet master after, Make the setting effective!"));
}

void BusSettingWidget::on_pftSwitch_currentIndexChanged(int /*index*/)
{
    if (const char* objection = freeConfigurationObjection(PfnSlave))
        warnLater(tr(objection));
    toggleChanged(PfnSlave);
}

void BusSettingWidget::on_eipMSwitch_currentIndexChanged(int index)
{
    if (index == On && !lib()->masterDevices.EIM_DEVICE)
        warnLater(tr("Please select EIM_DEVICE in EthernetIP master after, Make the setting effective!"));
}

void BusSettingWidget::on_ethnetSwitch_currentIndexChanged(int /*index*/)
{
    toggleChanged(EipSlave);
}

void BusSettingWidget::on_devnetSwitch_currentIndexChanged(int index)
{
    openDeviceNet(DeviceNetSlave, DeviceNetMaster, index,
                  QT_TR_NOOP("The DeviceNet master station has been opened. Please close the master station "
                             "before opening the slave station."));
}

void BusSettingWidget::on_mbcSwitch_currentIndexChanged(int /*index*/)
{
    if (const char* objection = freeConfigurationObjection(MtcpMaster))
        warnLater(tr(objection));
}

void BusSettingWidget::on_devnetmSwitch_currentIndexChanged(int index)
{
    openDeviceNet(DeviceNetMaster, DeviceNetSlave, index,
                  QT_TR_NOOP("The DeviceNet slave station has been opened. Please close the slave station "
                             "before opening the master station."));
}

// A refused switch counts no change when it is set, but one when it goes back.
void BusSettingWidget::openDeviceNet(Switch which, Switch other, int index, const char* warning)
{
    if (!combo(which)->isEnabled())
        return;
    if (index == On && combo(other)->currentIndex() == On)
        warnLater(tr(warning), combo(which));
    else
        toggleChanged(which);
}

void BusSettingWidget::toggleChanged(Switch which)
{
    if (combo(which)->isEnabled())
        m_changed[which] = !m_changed[which];
}

const char* BusSettingWidget::freeConfigurationObjection(Switch which) const
{
    return BusSwitches::freeConfigurationObjection(combo(which)->objectName(), combo(which)->currentIndex(),
                                                   combo(FreeBus)->currentIndex() == On, m_profisafePresent);
}

// A switch tells of its change in the middle of its own work. The application may be closed while a box is
// open, and then the switch must not be on the stack.
void BusSettingWidget::warnLater(const QString& text, QComboBox* switchBack)
{
    m_warnings.enqueue({text, switchBack});
    QMetaObject::invokeMethod(this, &BusSettingWidget::showWarnings, Qt::QueuedConnection);
}

void BusSettingWidget::showWarnings()
{
    if (m_showingWarnings)
        return;
    m_showingWarnings = true;
    while (!m_warnings.isEmpty()) {
        const SwitchWarning warning = m_warnings.dequeue();
        if (tell(MsgBox::Warning, warning.text) == Answer::Gone)
            return;
        if (warning.switchBack)
            warning.switchBack->setCurrentIndex(Off);
    }
    m_showingWarnings = false;
}

void BusSettingWidget::on_saveBusBt_clicked()
{
    if (m_busy || !checkServoOff())
        return;
    if (combo(EipMaster)->currentIndex() + combo(EtherCatMaster)->currentIndex() +
            combo(PfnMaster)->currentIndex() >=
        2) {
        tell(MsgBox::Information, tr("EthernetIP master EtherCat master and Profinet master cannot be "
                                     "enabled at the same time!"));
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

bool BusSettingWidget::canHaveProfinetSlave() const
{
    return m_running[PfnSlave] || m_profisafePresent ||
           (lib()->get_ifidbus_ctr_type() && lib()->get_ifidbus_anybus_fm() == ProfinetModule);
}

void BusSettingWidget::refreshStatus()
{
    if (canHaveProfinetSlave() && !m_pfnSlaveManaged) {
        m_pfnSlaveManaged = true;
        combo(PfnSlave)->setEnabled(true);
        const QSignalBlocker blocker(combo(PfnSlave));
        if (m_running[PfnSlave])
            combo(PfnSlave)->setCurrentIndex(On);
        lib()->set_ifidbus_pfn_state(m_running[PfnSlave]);
    }
    if (m_saving)
        emit sendSaveSignal();
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
    QMap<QString, BusName> roles = service()->getAllBusName();
    for (int i = 0; i < Count; ++i) {
        const auto role = roles.find(QLatin1String(rows()[i].busName));
        if (role != roles.end())
            role->enabled = isOn(static_cast<Switch>(i));
    }
    service()->setBusInfo(roles);
    service()->writeSendFieldbusXml();
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
    SysSettingApi::delay_MSec(BeforeRestartMs);
    SysSettingApi::rebootRde(true, true); // what was confirmed, also when the page is gone
    if (!self)
        return;
    const bool stopped = Restart::controllerStopped();
    if (!self)
        return;
    setBusy(false);
    if (stopped) {
        tell(MsgBox::Information, tr("Please close and reopen the teaching pendant."));
        return;
    }
    // For as long as the page lives: the controller holds a configuration that it does not run.
    m_exit.withdraw();
    tell(MsgBox::Information, tr("Please manually power off and restart the robot!"));
}
