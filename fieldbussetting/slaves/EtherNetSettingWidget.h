#ifndef ETHERNETSETTINGWIDGET_H
#define ETHERNETSETTINGWIDGET_H

#include "FormFields.h"
#include "NetworkPorts.h"
#include "TextFileSlave.h"

#include <memory>
#include <optional>

namespace Ui {
class EtherNetSettingWidget;
}

/// The page of the EtherNet/IP slave: the network port that carries it, and the byte order.
class EtherNetSettingWidget : public PageBase
{
    Q_OBJECT

public:
    EtherNetSettingWidget();
    ~EtherNetSettingWidget() override;

    void setFreeConfiguration(bool open) override { m_slave->setFreeConfiguration(open); }
    void refreshStatus() override { m_slave->refreshStatus(); }

protected:
    std::vector<PageFile> files() const override { return {m_slave->file()}; }
    void fill() override;
    void showEvent(QShowEvent* event) override;

private slots:
    void on_localPortIpCB_currentIndexChanged(int index);
    void on_saveButton_clicked();
    void on_cBox_clicked(bool checked);

private:
    void showAddress(const NetworkPort& port);
    /// A port without an address is not in the list and cannot be chosen by key or wheel either.
    void offer(int index, bool offered);

    std::unique_ptr<Ui::EtherNetSettingWidget> ui;
    std::optional<TextFileSlave> m_slave;
    FormFields m_fields;
};

#endif
