// The save of the I/O mapping: from the checks over the controller's acknowledgement to the restart.
#include "ConfigWidget.h"

#include "BusFileDataManager.h"
#include "ControllerVariables.h"
#include "DataAccess.h"
#include "SysSettingApi.h"
#include "ui_ConfigWidget.h"

using Mapping::Refusal;

namespace {

// Bits of "ifidbus.xml_update_state"; the others are left as they are.
constexpr int Rejected = 0x800;
constexpr int Taken = 0x4000;
constexpr int Announced = 0x8000;

constexpr int TickMs = 500;
constexpr int TicksOfPatience = 30;
constexpr unsigned AfterRestartMs = 500;

bool isUpdateBitSet(int bit)
{
    return (ControllerVariables::ifidbus_xml_update_state & bit) != 0;
}

} // namespace

void ConfigWidget::changeUpdateBits(int dropped, int added)
{
    ControllerVariables::ifidbus_xml_update_state =
        (ControllerVariables::ifidbus_xml_update_state & ~dropped) | added;
}

void ConfigWidget::on_bt_EditOrSave_clicked()
{
    if (m_busy) // no finger gets here meanwhile, but a key does
        return;
    if (!m_editing) {
        setEditing(true);
        return;
    }
    if (const Refusal refusal = m_model.saveRefusal(switchedOnBuses())) {
        refuse(*refusal);
        return;
    }
    switch (ask(tr("Are you sure to Save Configuration?"), MsgBox::YesNo)) {
    case Answer::Confirmed:
        break;
    case Answer::Second:
        setEditing(false);
        slotGetFileToUi();
        return;
    default:
        return;
    }
    if (DataAccess::isRobotRunning())
        return;
    if (DataAccess::isServoOn()) {
        tell(MsgBox::Warning, tr("Please turn off the servo first!"));
        return;
    }
    save();
}

void ConfigWidget::save()
{
    m_notice.open(this, tr("Please wait...."));
    m_busy.emplace(this);
    setEditing(false);
    m_ticks = 0;
    m_timer.start(TickMs);
    BusFileDataManager* service = BusFileDataManager::getInstance();
    service->setBusNumAndAddr(m_model.editedBuses());
    service->writeSendFieldbusCfg(); // its result may close the page
}

void ConfigWidget::busNotification(int kind, const QString& path, bool success)
{
    constexpr int Sent = 1;
    if (!m_busy || kind != Sent || path != QLatin1String(FileLocations::FieldbusConfigXml))
        return;
    if (success) {
        // The answer to the save before, which was rejected or came too late, is not the one to this save.
        changeUpdateBits(Taken | Rejected, Announced);
        m_waiting = true;
        return;
    }
    endWaiting();
    if (tell(MsgBox::Error, tr("Failed to send %1 file to controller!").arg(path)) != Answer::Gone)
        m_busy.reset();
}

void ConfigWidget::refreshStatus()
{
    if (!m_editing)
        emit sendSaveSignal();
}

void ConfigWidget::endWaiting()
{
    m_timer.stop();
    m_notice.close();
    m_waiting = false;
}

// Ticks go on while it asks and waits: the waiting ends first, so that none of them gets here again.
void ConfigWidget::slotSaveAndReboot()
{
    if (!m_waiting || !isUpdateBitSet(Taken))
        return;
    endWaiting();
    switch (ask(tr("Save successfully, and send Configuration file to controller! Are you sure to restart "
                   "robot to make it effect?"),
                MsgBox::YesNo)) {
    case Answer::Gone:
        return;
    case Answer::Confirmed:
        restartController();
        return;
    default:
        break;
    }
    // Looked at here only: a restart is offered whatever the controller made of the file.
    const bool isRejected = isUpdateBitSet(Rejected);
    if (!isRejected)
        ui->bt_EditOrSave->setEnabled(false);
    if (tell(isRejected ? MsgBox::Error : MsgBox::Information,
             isRejected ? tr("Bus configuration modification failed!")
                        : tr("Please manually power off and restart the robot later!")) != Answer::Gone)
        m_busy.reset();
}

void ConfigWidget::restartController()
{
    const QPointer<ConfigWidget> self(this);
    SysSettingApi::delay_MSec(Restart::BeforeRestartMs);
    if (!self)
        return;
    SysSettingApi::set_bswrsdet(true);
    SysSettingApi::delay_MSec(AfterRestartMs);
    if (!self)
        return;
    const bool isStopped = Restart::controllerStopped();
    if (!self)
        return;
    if (isStopped)
        m_busy.reset();
    if (tellRestarted(isStopped) != Answer::Gone)
        m_busy.reset();
}

void ConfigWidget::slotRestoreUi()
{
    if (!m_busy || ++m_ticks < TicksOfPatience)
        return;
    endWaiting();
    if (tell(MsgBox::Error, tr("Bus configuration modification failed!")) != Answer::Gone)
        m_busy.reset();
}
