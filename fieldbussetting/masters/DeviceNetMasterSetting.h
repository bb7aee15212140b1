#ifndef DEVICENETMASTERSETTING_H
#define DEVICENETMASTERSETTING_H

#include "DeviceNetScanList.h"
#include "PageBase.h"

#include <array>
#include <memory>

namespace Ui {
class DeviceNetMasterSetting;
}

/// The page of the DeviceNet master: its own settings, and the table of the devices that it scans with their
/// connection states. Everything is edited in the edit mode, which ends with a save.
class DeviceNetMasterSetting : public PageBase
{
    Q_OBJECT

public:
    DeviceNetMasterSetting();
    ~DeviceNetMasterSetting() override;

    void refreshStatus() override;

protected:
    std::vector<PageFile> files() const override;
    void fill() override;

private slots:
    void slotDeviceTableClicked(int row, int column);
    /// Result of the numeric keyboard for the cell that was pressed last.
    void slotSetValue(double value);
    void on_btn_add_clicked();
    void on_btn_delete_clicked();
    void on_btn_edit_clicked();

private:
    void connectSettings();
    std::array<QWidget*, 4> settingFields() const;
    void fillSettings();
    void setEditing(bool on);
    void takeLimits();
    void save();

    std::unique_ptr<Ui::DeviceNetMasterSetting> ui;
    DeviceNetScanList m_list;
    bool m_editing = false;
    bool m_keyboardOpen = false;
    int m_row = 0; ///< of the cell that is edited
    int m_column = 0;
};

#endif
