#include "BusSettingWidget.h"

#include "BusFileDataManager.h"
#include "ControllerCopies.h"
#include "FieldbusModule.h"
#include "ImportRoles.h"
#include "ServiceFiles.h"
#include "ui_BusSettingWidget.h"

#include <QComboBox>

using namespace BusSwitches;

namespace {

constexpr int WrittenAndSent = 1; // kind of the service's notification

} // namespace

const TransferTexts BusSettingWidget::Texts = {
    MsgBox::Error, QT_TRANSLATE_NOOP("BusSettingWidget", "Failed to get file:%1"),
    QT_TRANSLATE_NOOP("BusSettingWidget", "Failed to read file:%1"),
    QT_TRANSLATE_NOOP("BusSettingWidget", "Failed to write file:%1"),
    QT_TRANSLATE_NOOP("BusSettingWidget", "Failed to send file:%1")};

BusSettingWidget::BusSettingWidget()
    : PageBase("BusSettingWidget")
    , ui(std::make_unique<Ui::BusSettingWidget>())
{
    ui->setupUi(this);
    m_board.layOut(ui->switchLayout);
    for (int i = 0; i < Count; ++i)
        connect(m_board.combo(static_cast<Switch>(i)), QOverload<int>::of(&QComboBox::currentIndexChanged),
                this, &BusSettingWidget::showDifferences);
    edits().add([this] { return m_board.choices(); });
    applyStyle();

    setIsFieldXml(true);
    BusFileDataManager::getInstance()->attach(this);
    connect(this, &BusSettingWidget::sendSaveSignal, this, &BusSettingWidget::slotSaveAndReboot);
    scheduleOnce(0, &BusSettingWidget::slotGetFileToUi);
}

BusSettingWidget::~BusSettingWidget()
{
    BusFileDataManager::getInstance()->detach(this);
}

void BusSettingWidget::slotGetFileToUi()
{
    if (load() == Outcome::Gone)
        return;
    m_moduleCheck.start([] { return lib()->get_ifidbus_anybus_fm() != 0; },
                        [this](Poll::Answer) { checkAnybus(m_board.combo(EtherCatSlave)->currentIndex()); });
}

void BusSettingWidget::beginLoad()
{
    m_board.setProfisafePresent(FieldbusModule::isProfisafePresent());
    m_overrideRead = false;
}

std::vector<PageBase::PageFile> BusSettingWidget::files() const
{
    const auto readOverride = [this](const QString& localPath) {
        return m_overrideRead = lib()->readEtherCatFile(localPath);
    };
    return {heldByService(ConfigFile::BusRoles, Texts), {ConfigFile::Override, readOverride, Texts}};
}

void BusSettingWidget::fill()
{
    m_board.takeRunning();
    m_overrideRead = m_overrideRead && ControllerCopies::instance().isRead(ConfigFile::Override);
    m_board.showRunning(m_overrideRead);
    showDifferences();
}

// Without the devices of the override file the EtherCAT slave's role stays as it is, and the others can be
// switched.
bool BusSettingWidget::isUsableUnread() const
{
    return ServiceFiles::isCurrent(ConfigFile::BusRoles);
}

void BusSettingWidget::showDifferences()
{
    const int differences = m_board.markDifferences();
    ui->saveBusBt->setText(differences == 0 ? tr("Save") : tr("Save (%1)").arg(differences));
    edits().check();
}

void BusSettingWidget::slotCheckFBSEcat()
{
    m_moduleCheck.ask();
}

void BusSettingWidget::checkAnybus(int index)
{
    const OverrideEntry* anybus = lib()->etherCatSlaveOverride.anybus();
    if (lib()->get_ifidbus_anybus_fm() != FieldbusModule::EtherCat && index == On && !(anybus && anybus->off))
        warnLater(tr("Please select ANYBUS in EtherCat slave after, Make the setting effective!"));
}

void BusSettingWidget::checkFreeConfiguration(Switch which)
{
    if (const char* objection = m_board.freeConfigurationObjection(which))
        warnLater(tr(objection));
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
    checkFreeConfiguration(PfnSlave);
    m_board.toggleChanged(PfnSlave);
}

void BusSettingWidget::on_eipMSwitch_currentIndexChanged(int index)
{
    if (index == On && !lib()->masterDevices.EIM_DEVICE)
        warnLater(tr("Please select EIM_DEVICE in EthernetIP master after, Make the setting effective!"));
}

void BusSettingWidget::on_ethnetSwitch_currentIndexChanged(int /*index*/)
{
    m_board.toggleChanged(EipSlave);
}

void BusSettingWidget::on_devnetSwitch_currentIndexChanged(int index)
{
    openDeviceNet(DeviceNetSlave, DeviceNetMaster, index,
                  QT_TR_NOOP("The DeviceNet master station has been opened. Please close the master station "
                             "before opening the slave station."));
}

void BusSettingWidget::on_mbcSwitch_currentIndexChanged(int /*index*/)
{
    checkFreeConfiguration(MtcpMaster);
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
    QComboBox* combo = m_board.combo(which);
    if (!combo->isEnabled())
        return;
    if (index == On && m_board.isOn(other))
        warnLater(tr(warning), combo);
    else
        m_board.toggleChanged(which);
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
    if (m_transfer.isSaveAllowed() && checkServoOff() && isReadyToSave())
        m_save.begin();
}

void BusSettingWidget::slotSaveAndReboot()
{
    m_save.step();
}

void BusSettingWidget::busNotification(int kind, const QString& path, bool success)
{
    if (kind == WrittenAndSent && path == QLatin1String(FileLocations::FieldbusXml))
        m_save.finish(success);
}

void BusSettingWidget::takeInput(bool take)
{
    ui->saveBusBt->setEnabled(take);
    setAttribute(Qt::WA_TransparentForMouseEvents, !take);
}

void BusSettingWidget::on_btn_import_clicked()
{
    m_transfer.importFromDrive();
}

void BusSettingWidget::on_btn_export_clicked()
{
    m_transfer.exportToDrive();
}

bool BusSettingWidget::canHaveProfinetSlave() const
{
    return m_board.runs(PfnSlave) || m_board.isProfisafePresent() ||
           (lib()->get_ifidbus_ctr_type() && lib()->get_ifidbus_anybus_fm() == FieldbusModule::Profinet);
}

RoleConditions BusSettingWidget::roleConditions() const
{
    return {canHaveProfinetSlave(), m_board.isProfisafePresent()};
}

void BusSettingWidget::refreshStatus()
{
    // Nothing is told to the controller before its roles are known.
    if (canHaveProfinetSlave() && !m_pfnSlaveManaged && isUsableUnread()) {
        m_pfnSlaveManaged = true;
        m_board.showProfinetSlave();
        showDifferences();
        lib()->set_ifidbus_pfn_state(m_board.runs(PfnSlave));
    }
    if (m_save.isWaiting())
        emit sendSaveSignal();
}
