#ifndef ECATMASTERSETTINGWIDGET_H
#define ECATMASTERSETTINGWIDGET_H

#include "DeviceTable.h"
#include "PageBase.h"

#include <memory>

namespace Ui {
class EcatMasterSettingWidget;
}

/// The page of the EtherCAT master: which of its functions in the override file are active.
class EcatMasterSettingWidget : public PageBase
{
    Q_OBJECT

public:
    EcatMasterSettingWidget();
    ~EcatMasterSettingWidget() override;

private slots:
    void on_btn_reset_clicked();
    void on_saveBt_Ecat_clicked();
    void slotGetFileToUi();

private:
    std::unique_ptr<Ui::EcatMasterSettingWidget> ui;
    std::unique_ptr<DeviceTable> m_devices;
};

#endif
