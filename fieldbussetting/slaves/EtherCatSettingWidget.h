#ifndef ETHERCATSETTINGWIDGET_H
#define ETHERCATSETTINGWIDGET_H

#include "DeviceTable.h"
#include "PageBase.h"

#include <memory>

namespace Ui {
class EtherCatSettingWidget;
}

/// The page of the EtherCAT slave. With the EtherCAT module in the controller's slave slot it offers the
/// byte order of the module's process data; otherwise the functions of the override file.
class EtherCatSettingWidget : public PageBase
{
    Q_OBJECT

public:
    EtherCatSettingWidget();
    ~EtherCatSettingWidget() override;

private slots:
    void on_btn_reset_clicked();
    void on_saveBt_Ecat_clicked();
    void on_btn_saveFbECAT_clicked();
    /// The fifth function is switched at once, without a save.
    void BtnsClicxkedSlot();
    void slotGetFileToUi();

private:
    void loadByteOrder();
    void showByteOrder();

    std::unique_ptr<Ui::EtherCatSettingWidget> ui;
    std::unique_ptr<DeviceTable> m_devices;
    QString m_endian; ///< as last read or saved: "littleEndian" or "bigEndian", empty before
};

#endif
