#include "FinsTcpSettingWidget.h"

#include "FieldRanges.h"
#include "NetworkPorts.h"
#include "ui_FinsTcpSettingWidget.h"

namespace {

using Form = Ui_FinsTcpSettingWidget;
using Record = FinsClientConfig;

constexpr NumberEntry Port = numberEntry(QTouchLineEdit::CastInteger, RangeOf<&Record::ServerPort>);
constexpr NumberEntry Address = numberEntry(QTouchLineEdit::CastInteger, RangeOf<&Record::ReadDmAddress>);

constexpr FormField<Form, Record> Fields[] = {
    {&Form::serverIP_Edit, &Record::ServerIP},
    {&Form::serverPort_edit, &Record::ServerPort, Port},
    {&Form::clientNode_edit, &Record::ClientNode},
    // Never shown; what the file says is kept in it and saved again.
    {&Form::autoConnectCB, &Record::AutoConnect},
    {&Form::readAddress_edit, &Record::ReadDmAddress, Address},
    {&Form::writeAddress_edit, &Record::WriteDmAddress, Address},
    // Last: a change of the port replaces the node that the file gave.
    {&Form::interfaceCB, &Record::IpPortIndex},
};

// The controller follows a switch of its client no faster.
constexpr int SwitchPauseMs = 3000;

} // namespace

FinsTcpSettingWidget::FinsTcpSettingWidget()
    : PageBase("FinsTcpSettingWidget")
    , ui(std::make_unique<Ui::FinsTcpSettingWidget>())
{
    ui->setupUi(this);
    m_connection.emplace(ui->led_finsConnect);
    StatusLight(ui->led_finsError).show(StatusLight::Red);
    showError(false);
    ui->autoConnectLb->hide();
    ui->autoConnectCB->hide();
    ui->serverIP_Edit->setCast(QTouchLineEdit::CastIpAddress);
    m_fields.bind(*ui, lib()->finsClient, Fields, edits());
}

FinsTcpSettingWidget::~FinsTcpSettingWidget() = default;

void FinsTcpSettingWidget::prepare()
{
    if (load(Input::Free) != Outcome::Gone)
        applyStyle();
}

std::vector<PageBase::PageFile> FinsTcpSettingWidget::files() const
{
    return {{ConfigFile::FinsClient, plain(&FieldbusSettingLib::readFinsTcpFile)}};
}

// The node is the host number of the port's address, also while the page is filled.
void FinsTcpSettingWidget::on_interfaceCB_currentIndexChanged(int index)
{
    const QStringList parts = NetworkPorts::addressOf(index).split(QLatin1Char('.'));
    ui->clientNode_edit->setText(parts.size() > 1 ? parts.constLast() : QString());
}

// The state counts as seen: the light stays as it is until the controller changes one of the two flags.
void FinsTcpSettingWidget::on_enable_checkBox_clicked()
{
    m_enabled = ui->enable_checkBox->isChecked();
    lib()->set_ifins_tcp_enable(m_enabled);
    ui->enable_checkBox->setEnabled(false);
    scheduleOnce(SwitchPauseMs, &FinsTcpSettingWidget::changeBtnEnableStatus);
}

void FinsTcpSettingWidget::changeBtnEnableStatus()
{
    ui->enable_checkBox->setEnabled(true);
}

void FinsTcpSettingWidget::on_saveFinsButton_clicked()
{
    if (!isReadyToSave() || !confirmed(tr("Are you sure to save?")))
        return;
    m_fields.store();
    if (writeAndSend(ConfigFile::FinsClient, plain(&FieldbusSettingLib::writeFinsTcpFile)) != Outcome::Done)
        return;
    lib()->set_ifins_tcp_bupdate_cfg(true);
    tell(MsgBox::Information, tr("Save successfully."));
}

void FinsTcpSettingWidget::refreshStatus()
{
    const bool enabled = lib()->get_ifins_tcp_enable();
    const bool connected = lib()->get_ifins_tcp_connected();
    if (enabled != m_enabled || connected != m_connected) {
        m_enabled = enabled;
        m_connected = connected;
        ui->enable_checkBox->setChecked(enabled);
        m_connection->show(!enabled ? StatusLight::Grey : connected ? StatusLight::Green : StatusLight::Red);
    }
    if (lib()->get_ifins_tcp_error() != m_error) {
        m_error = !m_error;
        showError(m_error);
    }
}

void FinsTcpSettingWidget::showError(bool error)
{
    ui->label_error->setVisible(error);
    ui->led_finsError->setVisible(error);
}
