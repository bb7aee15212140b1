#include "FinsTcpSettingWidget.h"

#include "NetworkPorts.h"
#include "ui_FinsTcpSettingWidget.h"

namespace {

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
    // Never shown; what the file says is kept in it and saved again.
    ui->autoConnectLb->hide();
    ui->autoConnectCB->hide();
    ui->serverIP_Edit->setCast(QTouchLineEdit::CastIpAddress);
    for (QTouchLineEdit* edit : {ui->serverPort_edit, ui->readAddress_edit, ui->writeAddress_edit})
        edit->setCast(QTouchLineEdit::CastInteger, -1);

    if (fetchAndRead(ConfigFile::FinsClient, plain(&FieldbusSettingLib::readFinsTcpFile)) == Outcome::Gone)
        return;
    fillFromRecord();
    applyStyle();
}

FinsTcpSettingWidget::~FinsTcpSettingWidget() = default;

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
    if (!confirmed(tr("Are you sure to save?")))
        return;
    storeToRecord();
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

void FinsTcpSettingWidget::fillFromRecord()
{
    const FinsClientConfig& record = lib()->finsClient;
    ui->serverIP_Edit->setText(record.ServerIP);
    ui->serverPort_edit->setText(record.ServerPort);
    ui->clientNode_edit->setText(QString::number(record.ClientNode));
    ui->autoConnectCB->setCurrentIndex(record.AutoConnect);
    ui->readAddress_edit->setText(QString::number(record.ReadDmAddress));
    ui->writeAddress_edit->setText(QString::number(record.WriteDmAddress));
    // Last: a change of the port replaces the node that the file gave.
    ui->interfaceCB->setCurrentIndex(record.IpPortIndex);
}

void FinsTcpSettingWidget::storeToRecord()
{
    FinsClientConfig& record = lib()->finsClient;
    record.ServerIP = ui->serverIP_Edit->text();
    record.ServerPort = ui->serverPort_edit->text();
    record.ClientNode = ui->clientNode_edit->text().toInt();
    record.AutoConnect = ui->autoConnectCB->currentIndex();
    record.ReadDmAddress = ui->readAddress_edit->text().toInt();
    record.WriteDmAddress = ui->writeAddress_edit->text().toInt();
    record.IpPortIndex = ui->interfaceCB->currentIndex();
}
