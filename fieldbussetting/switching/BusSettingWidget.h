#ifndef BUSSETTINGWIDGET_H
#define BUSSETTINGWIDGET_H

#include "BusObserver.h"
#include "BusSwitches.h"
#include "BusTransferPage.h"
#include "ExitPermission.h"
#include "WaitNotice.h"

#include <QMutex>
#include <QQueue>
#include <QTimer>

#include <array>
#include <memory>
#include <optional>

class QComboBox;

namespace Ui {
class BusSettingWidget;
}

/// The page on which bus roles are switched on and off. A save goes through the override file, the
/// controller's variables and commands, and the bus configuration; the restart makes it effective.
class BusSettingWidget : public BusTransferPage, public BusObserver
{
    Q_OBJECT

public:
    BusSettingWidget();
    ~BusSettingWidget() override;

    void refreshStatus() override;
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
    /// One step of a save that waits for the controller. Its waits process events, so it is entered again;
    /// one run at a time gets through.
    void slotSaveAndReboot();
    void slotGetFileToUi();
    /// Waits for the code of the fieldbus module, and then checks that the EtherCAT slave has its device.
    void slotCheckFBSEcat();

private:
    using Switch = BusSwitches::Switch;
    /// A warning about a switch that was just set.
    struct SwitchWarning
    {
        QString text;
        QComboBox* switchBack = nullptr; ///< goes back to off when the warning was read
    };

    void makeSwitches();
    void layOutSwitches();
    QComboBox* combo(Switch which) const { return m_combos[which]; }
    bool isOn(Switch which) const;
    BusSwitches::States switchedOn() const;
    /// Fetches the override file and brings the switches to what the controller runs.
    Outcome reload();
    void setBusy(bool busy);

    void toggleChanged(Switch which);
    void openDeviceNet(Switch which, Switch other, int index, const char* warning);
    void checkAnybus(int index);
    const char* freeConfigurationObjection(Switch which) const;
    void warnLater(const QString& text, QComboBox* switchBack = nullptr);
    void showWarnings();

    bool isSaving() const override { return m_busy || m_loading; }
    /// Whether the controller can run the PROFINET slave.
    bool canHaveProfinetSlave() const;
    RoleConditions roleConditions() const override;
    void holdSave() override;

    // The save: BusSettingSave.cpp
    Outcome saveOverride();
    void announce();
    void waitForController(unsigned msec, int& polls);
    void giveSaveUp(const QStringList& messages);
    void sendSwitches();
    void restart();

    static const TransferTexts Texts; ///< of the override file

    std::unique_ptr<Ui::BusSettingWidget> ui;
    std::array<QComboBox*, BusSwitches::Count> m_combos{};
    std::array<bool, BusSwitches::Count> m_running{}; ///< what the controller ran when the page was made
    std::array<bool, BusSwitches::Count> m_changed{}; ///< toggled with the switch, for roles with a command
    bool m_profisafePresent = false;
    bool m_overrideRead = true;
    bool m_loading = false; ///< from the fetch on: a key can press a button meanwhile
    QQueue<SwitchWarning> m_warnings;
    bool m_showingWarnings = false;
    QTimer m_moduleCheck;
    int m_moduleChecks = 0;
    bool m_pfnSlaveManaged = false; ///< its switch was enabled, once in the page's life

    bool m_saving = false;
    bool m_freeBusChanged = false;
    int m_commandPolls = 0;
    int m_busTypePolls = 0;
    // Shared with the run that holds it: the page may be gone before that run unlocks it.
    std::shared_ptr<QMutex> m_saveMutex = std::make_shared<QMutex>();
    std::optional<Busy> m_busy;
    WaitNotice m_notice;
    ExitPermission m_exit;
};

#endif
