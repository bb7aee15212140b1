#ifndef ETHERNETSETTINGWIDGET_H
#define ETHERNETSETTINGWIDGET_H

#include "NetworkPorts.h"
#include "TextFileSlavePage.h"

#include <memory>

namespace Ui {
class EtherNetSettingWidget;
}

/// The page of the EtherNet/IP slave: the network port that carries it, and the byte order.
class EtherNetSettingWidget : public TextFileSlavePage
{
    Q_OBJECT

public:
    EtherNetSettingWidget();
    ~EtherNetSettingWidget() override;

private slots:
    void on_localPortIpCB_currentIndexChanged(int index);
    void on_saveButton_clicked();
    void on_cBox_clicked(bool checked);
    void slotGetFileToUi();

private:
    static const Role& role();
    void fillFromRecord();
    void showAddress(const NetworkPort& port);
    /// A port without an address is not in the list and cannot be chosen by key or wheel either.
    void offer(int index, bool offered);

    std::unique_ptr<Ui::EtherNetSettingWidget> ui;
};

#endif
