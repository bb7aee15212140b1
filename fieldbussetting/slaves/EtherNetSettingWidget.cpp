#include "EtherNetSettingWidget.h"

#include "ui_EtherNetSettingWidget.h"

#include <QListView>
#include <QSignalBlocker>
#include <QStandardItemModel>

#include <algorithm>

namespace {

using Form = Ui_EtherNetSettingWidget;
using Record = EipSlaveConfig;

constexpr TextFileSlave::Role EtherNetIp = {
    2,
    ConfigFile::EipSlave,
    ConfigFile::EipSlaveFree,
    ConfigFile::EipSlaveFixed,
    &FieldbusSettingLib::readEtherNetFile,
    &FieldbusSettingLib::writeEtherNetFile,
    &FieldbusSettingLib::writeEtherNetDnsFile,
};

constexpr FormField<Form, Record> Fields[] = {
    {&Form::IP_Edit, &Record::IPADDR},
    {&Form::netmaskEdit, &Record::NETMASK},
    {&Form::cbb_largeSmall, &Record::EipEndian},
};

// The entry after the ports.
constexpr int NoAdapter = NetworkPorts::Count;

bool hasAddress(const NetworkPort& port)
{
    return std::any_of(port.ip.begin(), port.ip.end(), [](QChar character) {
        return character >= QLatin1Char('0') && character <= QLatin1Char('9');
    });
}

} // namespace

EtherNetSettingWidget::EtherNetSettingWidget()
    : PageBase("EtherNetSettingWidget")
    , ui(std::make_unique<Ui::EtherNetSettingWidget>())
{
    ui->setupUi(this);
    m_slave.emplace(this, EtherNetIp, ui->led_status, ui->cBox, ui->cbb_largeSmall);
    m_fields.bind(*ui, lib()->eipSlave, Fields, edits());
    ui->localPortIpCB->setCurrentIndex(NoAdapter);
    ui->info_label->hide();
    m_slave->performanceBox().load();
    applyStyle();
    scheduleOnce(0, &EtherNetSettingWidget::slotGetFileToUi);
}

EtherNetSettingWidget::~EtherNetSettingWidget() = default;

void EtherNetSettingWidget::showEvent(QShowEvent* event)
{
    m_slave->performanceBox().pageShown();
    PageBase::showEvent(event);
}

void EtherNetSettingWidget::on_localPortIpCB_currentIndexChanged(int index)
{
    if (index < 0 || index >= NetworkPorts::Count) {
        showAddress({});
        return;
    }
    const NetworkPort port = NetworkPorts::read()[static_cast<std::size_t>(index)];
    showAddress(port);
    if (!hasAddress(
            port)) { // lost since the page was filled: an empty address is not to be saved as the port's
        ui->info_label->show();
        ui->localPortIpCB->setCurrentIndex(NoAdapter);
    }
}

void EtherNetSettingWidget::on_saveButton_clicked()
{
    if (!isReadyToSave() || !confirmed(tr("Are you sure to save?")))
        return;
    m_fields.store();
    m_slave->save();
}

void EtherNetSettingWidget::on_cBox_clicked(bool checked)
{
    m_slave->performanceBox().clicked(checked);
}

void EtherNetSettingWidget::fill()
{
    m_fields.show();
    const auto ports = NetworkPorts::read();
    for (int index = 0; index < NetworkPorts::Count; ++index)
        offer(index, hasAddress(ports[static_cast<std::size_t>(index)]));

    const QString address = lib()->eipSlave.IPADDR.trimmed();
    const auto used = std::find_if(ports.begin(), ports.end(), [&address](const NetworkPort& port) {
        return !address.isEmpty() && port.ip == address;
    });
    const bool matches = used != ports.end();
    ui->info_label->setVisible(!matches);
    showAddress(matches ? *used : NetworkPort());
    // Without its slot, which would fetch once more what is shown already.
    const QSignalBlocker blocker(ui->localPortIpCB);
    ui->localPortIpCB->setCurrentIndex(matches ? static_cast<int>(used - ports.begin()) : NoAdapter);
}

void EtherNetSettingWidget::showAddress(const NetworkPort& port)
{
    ui->IP_Edit->setText(port.ip);
    ui->netmaskEdit->setText(port.netmask);
}

void EtherNetSettingWidget::offer(int index, bool offered)
{
    if (auto* list = qobject_cast<QListView*>(ui->localPortIpCB->view()))
        list->setRowHidden(index, !offered);
    if (const auto* model = qobject_cast<QStandardItemModel*>(ui->localPortIpCB->model()))
        model->item(index)->setEnabled(offered);
}
