#include "MesSettingWidget.h"

#include "FieldRanges.h"
#include "MesPortRules.h"
#include "NetworkPorts.h"
#include "Poll.h"
#include "ui_MesSettingWidget.h"

namespace {

constexpr Poll::Rule MonitorChange = {16, 100}; // 1.6 s in all

} // namespace

MesSettingWidget::MesSettingWidget()
    : PageBase("MesSettingWidget")
    , ui(std::make_unique<Ui::MesSettingWidget>())
{
    ui->setupUi(this);
    showServerState();
    m_connected.emplace(ui->led_connect);
    m_connected->show(StatusLight::Red);
    ui->IP_Edit->setEnabled(false);
    ui->port_edit->setCast(QTouchLineEdit::CastUnsigned);
    ui->port_edit->setValueRange(RangeOf<&MesServerConfig::Port>.least, RangeOf<&MesServerConfig::Port>.most);
    ui->IntervalTime_edit->setCast(QTouchLineEdit::CastUnsigned);
    ui->IntervalTime_edit->setValueRange(RangeOf<&MesServerConfig::IntervalTime>.least,
                                         RangeOf<&MesServerConfig::IntervalTime>.most);
    applyStyle();
    scheduleOnce(1, &MesSettingWidget::slotGetFileToUi);
}

MesSettingWidget::~MesSettingWidget() = default;

void MesSettingWidget::slotGetFileToUi()
{
    Busy busy(this);
    if (fetchAndRead(ConfigFile::MesServer, plain(&FieldbusSettingLib::readMesSetFile)) == Outcome::Gone)
        return;
    busy.release();
    fillFromRecord();
}

void MesSettingWidget::on_localPortIpCB_currentIndexChanged(int index)
{
    ui->IP_Edit->setText(NetworkPorts::addressOf(index));
}

void MesSettingWidget::on_saveButton_clicked()
{
    if (const char* service = conflictingService(ui->port_edit->text().toInt())) {
        tell(MsgBox::Warning, tr("The set port conflicts with %1 default port.").arg(QLatin1String(service)));
        return;
    }
    if (!confirmed(tr("Are you sure to save?")))
        return;
    storeToRecord();
    if (writeAndSend(ConfigFile::MesServer, plain(&FieldbusSettingLib::writeMesSetFile)) != Outcome::Done)
        return;
    lib()->set_imes_update_tcp_server_cfg(true);
    tell(MsgBox::Information, tr("Save successfully."));
}

void MesSettingWidget::on_monitorButton_clicked()
{
    ui->monitorButton->setEnabled(false);
    const bool before = lib()->get_imes_tcp_server_active();
    lib()->set_imes_tcp_server_listen(true); // one request for both: the controller toggles the server
    // What the server is started with is what the page is to show.
    if (!m_active)
        fillFromRecord();
    const auto changed = [before] { return lib()->get_imes_tcp_server_active() != before; };
    const auto delay = [](unsigned msec) { lib()->delay_MSec(msec); };
    if (Poll::wait(MonitorChange, this, delay, changed) != Poll::Answer::Gone)
        ui->monitorButton->setEnabled(true);
}

void MesSettingWidget::refreshStatus()
{
    if (lib()->get_imes_tcp_server_active() != m_active) {
        m_active = !m_active;
        showServerState();
    }
    m_connected->show(lib()->get_imes_tcp_server_connected() ? StatusLight::Green : StatusLight::Red);
}

void MesSettingWidget::showServerState()
{
    ui->monitorButton->setText(m_active ? tr("Stop Monitor") : tr("Start Monitor"));
    const std::initializer_list<QWidget*> locked = {ui->localPortIpCB,     ui->port_edit,
                                                    ui->IntervalTime_edit, ui->mode_comboBox,
                                                    ui->protocal_comboBox, ui->saveButton};
    for (QWidget* widget : locked)
        widget->setEnabled(!m_active);
}

void MesSettingWidget::fillFromRecord()
{
    const MesServerConfig& record = lib()->mesServer;
    ui->port_edit->setText(record.Port);
    ui->mode_comboBox->setCurrentIndex(record.Mode);
    ui->protocal_comboBox->setCurrentIndex(record.Protocol);
    ui->IntervalTime_edit->setText(QString::number(record.IntervalTime));
    ui->localPortIpCB->setCurrentIndex(record.IpPortIndex);
    ui->IP_Edit->setText(NetworkPorts::addressOf(record.IpPortIndex));
}

void MesSettingWidget::storeToRecord()
{
    MesServerConfig& record = lib()->mesServer;
    record.Port = ui->port_edit->text();
    record.Mode = ui->mode_comboBox->currentIndex();
    record.Protocol = ui->protocal_comboBox->currentIndex();
    record.IntervalTime = ui->IntervalTime_edit->text().toInt();
    record.IpPortIndex = ui->localPortIpCB->currentIndex();
}
