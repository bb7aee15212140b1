#include "MesSettingWidget.h"

#include "FieldRanges.h"
#include "MesPortRules.h"
#include "NetworkPorts.h"
#include "Poll.h"
#include "ui_MesSettingWidget.h"

namespace {

using Form = Ui_MesSettingWidget;
using Record = MesServerConfig;

constexpr FormField<Form, Record> Fields[] = {
    {&Form::port_edit, &Record::Port, numberEntry(QTouchLineEdit::CastUnsigned, RangeOf<&Record::Port>)},
    {&Form::mode_comboBox, &Record::Mode},
    {&Form::protocal_comboBox, &Record::Protocol},
    {&Form::IntervalTime_edit, &Record::IntervalTime,
     numberEntry(QTouchLineEdit::CastUnsigned, RangeOf<&Record::IntervalTime>)},
    {&Form::localPortIpCB, &Record::IpPortIndex},
};

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
    m_fields.bind(*ui, lib()->mesServer, Fields, edits());
    applyStyle();
    scheduleOnce(1, &MesSettingWidget::slotGetFileToUi);
}

MesSettingWidget::~MesSettingWidget() = default;

std::vector<PageBase::PageFile> MesSettingWidget::files() const
{
    return {{ConfigFile::MesServer, plain(&FieldbusSettingLib::readMesSetFile)}};
}

void MesSettingWidget::fill()
{
    m_fields.show();
    ui->IP_Edit->setText(NetworkPorts::addressOf(lib()->mesServer.IpPortIndex));
}

void MesSettingWidget::on_localPortIpCB_currentIndexChanged(int index)
{
    ui->IP_Edit->setText(NetworkPorts::addressOf(index));
}

void MesSettingWidget::on_saveButton_clicked()
{
    if (!isReadyToSave())
        return;
    if (const char* service = conflictingService(ui->port_edit->text().toInt())) {
        tell(MsgBox::Warning, tr("The set port conflicts with %1 default port.").arg(QLatin1String(service)));
        return;
    }
    if (!confirmed(tr("Are you sure to save?")))
        return;
    m_fields.store();
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
        refill();
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
