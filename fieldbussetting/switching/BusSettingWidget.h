#ifndef BUSSETTINGWIDGET_H
#define BUSSETTINGWIDGET_H

#include "BusObserver.h"
#include "SwitchBoard.h"
#include "SwitchSave.h"
#include "TransferHost.h"
#include "UsbTransfer.h"

#include <QQueue>

#include <memory>

namespace Ui {
class BusSettingWidget;
}

/// The page on which bus roles are switched on and off, and from which the whole bus configuration is carried
/// to a USB drive and back.
class BusSettingWidget : public PageBase, public BusObserver, private SwitchSaveHost, private TransferHost
{
    Q_OBJECT

public:
    BusSettingWidget();
    ~BusSettingWidget() override;

    void refreshStatus() override;
    bool isAtWork() const override { return m_save.isUnderWay(); }
    void busNotification(int kind, const QString& path, bool success) override;

signals:
    /// Once an idle tick while a save waits for the controller.
    void sendSaveSignal();

private slots:
    void on_saveBusBt_clicked();
    void on_ethcatSwitch_currentIndexChanged(int index);
    void on_pfnMasterSwitch_currentIndexChanged(int index);
    void on_pftSwitch_currentIndexChanged(int index);
    void on_eipMSwitch_currentIndexChanged(int index);
    void on_ethnetSwitch_currentIndexChanged(int index);
    void on_devnetSwitch_currentIndexChanged(int index);
    void on_mbcSwitch_currentIndexChanged(int index);
    void on_devnetmSwitch_currentIndexChanged(int index);
    /// One step of a save that waits for the controller.
    void slotSaveAndReboot();
    void slotGetFileToUi() override;
    /// Waits for the code of the fieldbus module, and then checks that the EtherCAT slave has its device.
    void slotCheckFBSEcat();
    void on_btn_import_clicked();
    void on_btn_export_clicked();

private:
    using Switch = BusSwitches::Switch;
    /// A warning about a switch that was just set.
    struct SwitchWarning
    {
        QString text;
        QComboBox* switchBack = nullptr; ///< goes back to off when the warning was read
    };

    void beginLoad() override;
    std::vector<PageFile> files() const override;
    void fill() override;
    bool isUsableUnread() const override;

    // What the save and the transfer ask of the page.
    Outcome reload() override { return load(); }
    bool isOverrideRead() const override { return m_overrideRead; }
    void takeInput(bool take) override;
    const TransferTexts& overrideTexts() const override { return Texts; }
    RoleConditions roleConditions() const override;

    /// Which switches differ from what runs, and how many.
    void showDifferences();
    void openDeviceNet(Switch which, Switch other, int index, const char* warning);
    void checkAnybus(int index);
    void checkFreeConfiguration(Switch which);
    void warnLater(const QString& text, QComboBox* switchBack = nullptr);
    void showWarnings();
    /// Whether the controller can run the PROFINET slave.
    bool canHaveProfinetSlave() const;

    static const TransferTexts Texts; ///< of the override file

    SwitchBoard m_board{this};
    std::unique_ptr<Ui::BusSettingWidget> ui;
    mutable bool m_overrideRead = true; ///< by the last load
    QQueue<SwitchWarning> m_warnings;
    bool m_showingWarnings = false;
    Poll m_moduleCheck{{70, 10}, this};
    bool m_pfnSlaveManaged = false; ///< its switch was enabled, once in the page's life
    SwitchSave m_save{*this, *this, m_board};
    UsbTransfer m_transfer{*this, *this};
};

#endif
