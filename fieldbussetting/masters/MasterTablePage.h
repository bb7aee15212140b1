#ifndef MASTERTABLEPAGE_H
#define MASTERTABLEPAGE_H

#include "DeviceTable.h"
#include "MasterSlaveRow.h"
#include "PageBase.h"

#include <memory>

class MasterSlaveList;
class QBoxLayout;

namespace Ui {
class MasterSettingsPanel;
}

/// What the pages of the EtherNet/IP and the PROFINET master are: the devices of the override file, the
/// number of slaves and the time-outs, and the slave positions with their lights. A page is a form with the
/// title, the buttons and the device table, and a description of its master.
class MasterTablePage : public PageBase
{
    Q_OBJECT

public:
    ~MasterTablePage() override;

    void refreshStatus() override;

protected:
    /// What must hold before anything is saved.
    enum class SaveWhen { ServoOff, RestartAllowed };

    /// A master and the differences of its page.
    struct Master
    {
        const char* className;
        const char* dynamicAlarmBox; ///< object name
        MasterSlaveRow::Names rowNames;

        OverrideRecord FieldbusSettingLib::*devices;
        PlainOperation readDevices;
        bool (FieldbusSettingLib::*writeDevices)(QString, int);

        MasterSlaveTable FieldbusSettingLib::*slaves;
        ConfigFile slaveFile;
        PlainOperation readSlaves;
        PlainOperation writeSlaves;
        TransferTexts slaveTexts;

        bool (FieldbusSettingLib::*connected)(int) const;
        int (FieldbusSettingLib::*coupling)(int) const;
        int (FieldbusSettingLib::*decoupling)(int) const;
        bool (FieldbusSettingLib::*dynamicAlarm)() const;
        void (FieldbusSettingLib::*setDynamicAlarm)(bool);

        SaveWhen saveWhen;
        /// With a ProfiSAFE device the override file is not the page's: neither fetched nor sent.
        bool yieldsToProfisafe;
    };

    /// Makes what the page's form does not have, so that slots of the page find it by name when the form is
    /// built. `master` must live as long as the page.
    explicit MasterTablePage(const Master& master);
    /// To be called when the form is built: sets up its device table and adds the settings beside it and the
    /// slave positions below.
    void build(QTableWidget* deviceTable, QBoxLayout* besideTable, QBoxLayout* page);

    void save();
    /// Hands the check box to the controller, at once.
    void switchDynamicAlarm();

private slots:
    void on_btn_reset_clicked();
    void slotGetFileToUi();

private:
    static constexpr int Positions = MasterSlaveTable::PositionCount;

    bool usesDevices() const;
    OverrideRecord& devices() const { return lib()->*m_master.devices; }
    MasterSlaveTable& slaves() const { return lib()->*m_master.slaves; }
    void fillDevices();
    void fillSlaves();
    void storeSlaves() const;
    /// Slave count of the page, within what can be shown.
    int shownCount() const;
    void showPositions(int count);

    const Master& m_master;
    std::unique_ptr<Ui::MasterSettingsPanel> m_settings;
    QWidget* m_settingsPanel;
    QTableWidget* m_deviceTable = nullptr;
    std::unique_ptr<DeviceTable> m_devices;
    MasterSlaveList* m_slaveList = nullptr;
    int m_count = -1; ///< slave positions in sight
};

#endif
