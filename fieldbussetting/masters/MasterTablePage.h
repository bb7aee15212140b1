#ifndef MASTERTABLEPAGE_H
#define MASTERTABLEPAGE_H

#include "DeviceTable.h"
#include "FormFields.h"
#include "MasterSlaveRow.h"
#include "PageBase.h"

#include <memory>

class MasterSlaveList;
class QAbstractButton;

namespace Ui {
class MasterSettingsPanel;
class MasterTablePage;
} // namespace Ui

/// What the pages of the EtherNet/IP and the PROFINET master are: the devices of the override file, the
/// number of slaves and the time-outs, and the slave positions with their lights. A page is a description of
/// its master, and the slots of its buttons.
class MasterTablePage : public PageBase
{
    Q_OBJECT

public:
    ~MasterTablePage() override;

    void refreshStatus() override;

protected:
    void beginLoad() override;
    std::vector<PageFile> files() const override;
    void fill() override;

    /// A master and the differences of its page.
    struct Master
    {
        const char* className;
        const char* title;
        // Object names.
        const char* saveButton;
        const char* deviceTable;
        const char* dynamicAlarmBox;
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

    /// `master` must live as long as the page. Save button and dynamic alarm are the slots' of the page,
    /// which connects them: they have other names on each.
    explicit MasterTablePage(const Master& master);
    QAbstractButton* saveButton() const;
    QAbstractButton* dynamicAlarmBox() const;

    void save();
    /// Hands the check box to the controller, at once.
    void switchDynamicAlarm();

private slots:
    void on_btn_reset_clicked();

private:
    static constexpr int Positions = MasterSlaveTable::PositionCount;

    void prepareTable();
    void addSlaves();
    bool usesDevices() const;
    OverrideRecord& devices() const { return lib()->*m_master.devices; }
    MasterSlaveTable& slaves() const { return lib()->*m_master.slaves; }
    void fillDevices();
    void fillSlaves();
    void storeSlaves();
    /// Slave count of the page, within what can be shown.
    int shownCount() const;
    void showPositions(int count);

    const Master& m_master;
    std::unique_ptr<Ui::MasterTablePage> ui;
    std::unique_ptr<Ui::MasterSettingsPanel> m_settings;
    FormFields m_fields;
    std::unique_ptr<DeviceTable> m_devices;
    bool m_showsDevices = true;
    MasterSlaveList* m_slaveList = nullptr;
    int m_count = -1; ///< slave positions in sight
};

#endif
