#include "EtherNetSettingWidget.h"

#include "ui_EtherNetSettingWidget.h"

#include <QListView>
#include <QSignalBlocker>
#include <QStandardItemModel>

#include <algorithm>

namespace {

constexpr int EtherNetIpBus = 2;
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
    : TextFileSlavePage(role())
    , ui(std::make_unique<Ui::EtherNetSettingWidget>())
{
    ui->setupUi(this);
    bind(ui->led_status, ui->cBox, ui->cbb_largeSmall);
    ui->localPortIpCB->setCurrentIndex(NoAdapter);
    ui->info_label->hide();
    performanceBox().load();
    applyStyle();
    scheduleOnce(0, &EtherNetSettingWidget::slotGetFileToUi);
}

EtherNetSettingWidget::~EtherNetSettingWidget() = default;

const TextFileSlavePage::Role& EtherNetSettingWidget::role()
{
    static const Role etherNetIp = {"EtherNetSettingWidget",
                                    EtherNetIpBus,
                                    ConfigFile::EipSlave,
                                    ConfigFile::EipSlaveFree,
                                    ConfigFile::EipSlaveFixed,
                                    &FieldbusSettingLib::readEtherNetFile,
                                    &FieldbusSettingLib::writeEtherNetFile,
                                    &FieldbusSettingLib::writeEtherNetDnsFile};
    return etherNetIp;
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
    if (!confirmed(tr("Are you sure to save?")))
        return;
    lib()->eipSlave = {ui->IP_Edit->text(), ui->netmaskEdit->text(), ui->cbb_largeSmall->currentText()};
    saveFiles();
}

void EtherNetSettingWidget::on_cBox_clicked(bool checked)
{
    performanceBox().clicked(checked);
}

void EtherNetSettingWidget::slotGetFileToUi()
{
    const Busy busy(this);
    if (load() != Outcome::Gone)
        fillFromRecord();
}

void EtherNetSettingWidget::fillFromRecord()
{
    const EipSlaveConfig record = lib()->eipSlave;
    showAddress({record.IPADDR, record.NETMASK});
    showEndian(ui->cbb_largeSmall, record.EipEndian);

    const auto ports = NetworkPorts::read();
    for (int index = 0; index < NetworkPorts::Count; ++index)
        offer(index, hasAddress(ports[static_cast<std::size_t>(index)]));

    const QString address = record.IPADDR.trimmed();
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
