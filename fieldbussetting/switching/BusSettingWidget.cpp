#include "BusSettingWidget.h"

#include "BusFileDataManager.h"
#include "FieldbusModule.h"
#include "ImportRoles.h"
#include "ui_BusSettingWidget.h"

#include <QComboBox>
#include <QLabel>

#include <algorithm>

using namespace BusSwitches;

namespace {

constexpr int ModuleCheckMs = 70;
constexpr int ModuleChecks = 10;

constexpr int SwitchColumns = 2;

BusFileDataManager* service()
{
    return BusFileDataManager::getInstance();
}

} // namespace

const TransferTexts BusSettingWidget::Texts = {
    MsgBox::Error, QT_TRANSLATE_NOOP("BusSettingWidget", "Failed to get file:%1"),
    QT_TRANSLATE_NOOP("BusSettingWidget", "Failed to read file:%1"),
    QT_TRANSLATE_NOOP("BusSettingWidget", "Failed to write file:%1"),
    QT_TRANSLATE_NOOP("BusSettingWidget", "Failed to send file:%1")};

BusSettingWidget::BusSettingWidget()
    : BusTransferPage("BusSettingWidget")
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

States BusSettingWidget::switchedOn() const
{
    States on{};
    for (int i = 0; i < Count; ++i)
        on[i] = isOn(static_cast<Switch>(i));
    return on;
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
    m_loading = true;
    m_profisafePresent = FieldbusModule::isProfisafePresent();
    combo(EtherCatMaster)->setEnabled(!m_profisafePresent);
    combo(EipMaster)->setEnabled(!m_profisafePresent);
    const Outcome read =
        fetchAndRead(ConfigFile::Override, plain(&FieldbusSettingLib::readEtherCatFile), Texts);
    if (read == Outcome::Gone)
        return read;
    m_loading = false;
    m_overrideRead = read == Outcome::Done;

    // Those of the second list warn about what they lack, and count their change. The PROFINET slave's switch
    // is in neither: the idle tick sets it, once.
    for (const Switch which :
         {Mes, EtherCatMaster, DeviceNetSlave, MtcpMaster, EtherCatSlave, DeviceNetMaster, FreeBus}) {
        const QSignalBlocker blocker(combo(which));
        combo(which)->setCurrentIndex(m_running[which] ? On : Off);
    }
    // Set back without being counted, so that setting them again is a change, and wants its command.
    m_changed[DeviceNetSlave] = m_changed[DeviceNetMaster] = false;
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
    if (lib()->get_ifidbus_anybus_fm() != FieldbusModule::EtherCat && index == On && !(anybus && anybus->off))
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

bool BusSettingWidget::canHaveProfinetSlave() const
{
    return m_running[PfnSlave] || m_profisafePresent ||
           (lib()->get_ifidbus_ctr_type() && lib()->get_ifidbus_anybus_fm() == FieldbusModule::Profinet);
}

void BusSettingWidget::holdSave()
{
    ui->saveBusBt->setEnabled(false);
}

RoleConditions BusSettingWidget::roleConditions() const
{
    return {canHaveProfinetSlave(), m_profisafePresent};
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
