#include "MasterTablePage.h"

#include "FieldRanges.h"
#include "FieldbusModule.h"
#include "MasterSlaveList.h"
#include "ui_MasterSettingsPanel.h"

#include <QHeaderView>
#include <QTableWidget>

namespace {

// The device table beside the settings, in pixels.
constexpr int DeviceTableLeastWidth = 420;
constexpr int DeviceTableLeastHeight = 218;
constexpr int NameColumn = 3; // takes what the others leave
constexpr int ActivateColumn = 4;
constexpr int ActivateWidth = 104;

constexpr int SlavesFirst = 100; // share of the height, against 1 of the device table

constexpr TransferTexts DeviceTexts = {MsgBox::Error};

// The files carry numbers: what is none is written as 0.
QString wholeNumber(const QLineEdit* edit)
{
    return QString::number(edit->text().trimmed().toInt());
}

} // namespace

MasterTablePage::MasterTablePage(const Master& master)
    : PageBase(master.className)
    , m_master(master)
    , m_settings(std::make_unique<Ui::MasterSettingsPanel>())
    , m_settingsPanel(new QWidget(this))
{
    m_settings->setupUi(m_settingsPanel);
    m_settings->dynalm_checkbox->setObjectName(QLatin1String(master.dynamicAlarmBox));
    m_settings->lineEdit_slave_count->setCast(QTouchLineEdit::CastUnsigned);
    m_settings->lineEdit_slave_count->setValueRange(RangeOf<&MasterSlaveTable::SlaveNum>.least,
                                                    RangeOf<&MasterSlaveTable::SlaveNum>.most);
    for (QTouchLineEdit* edit : {m_settings->lineEdit_disable_timeout, m_settings->lineEdit_enable_timeout}) {
        edit->setCast(QTouchLineEdit::CastUnsigned);
        edit->setValueRange(RangeOf<&MasterSlaveTable::DisableTimeout>.least,
                            RangeOf<&MasterSlaveTable::DisableTimeout>.most);
    }
}

MasterTablePage::~MasterTablePage() = default;

void MasterTablePage::build(QTableWidget* deviceTable, QBoxLayout* besideTable, QBoxLayout* page)
{
    m_deviceTable = deviceTable;
    m_devices = std::make_unique<DeviceTable>(deviceTable);
    QHeaderView* columns = deviceTable->horizontalHeader();
    columns->setSectionResizeMode(QHeaderView::ResizeToContents);
    columns->setSectionResizeMode(NameColumn, QHeaderView::Stretch);
    columns->setSectionResizeMode(ActivateColumn, QHeaderView::Fixed);
    columns->resizeSection(ActivateColumn, ActivateWidth);
    deviceTable->setMinimumSize(DeviceTableLeastWidth, DeviceTableLeastHeight);
    besideTable->setStretch(0, 1);
    m_settingsPanel->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    besideTable->addWidget(m_settingsPanel, 0, Qt::AlignTop);
    applyStyle();
    m_slaveList = new MasterSlaveList(m_master.rowNames, this);
    page->addWidget(m_slaveList, SlavesFirst);
    page->setStretchFactor(besideTable, 1);
    page->addStretch();
    showPositions(0);
    scheduleOnce(1, &MasterTablePage::slotGetFileToUi);
}

bool MasterTablePage::usesDevices() const
{
    return !m_master.yieldsToProfisafe || !FieldbusModule::isProfisafePresent();
}

void MasterTablePage::slotGetFileToUi()
{
    const Busy busy(this);
    if (usesDevices() &&
        fetchAndRead(ConfigFile::Override, plain(m_master.readDevices), DeviceTexts) == Outcome::Gone)
        return;
    if (fetchAndRead(m_master.slaveFile, plain(m_master.readSlaves), m_master.slaveTexts) == Outcome::Gone)
        return;
    fillDevices();
    fillSlaves();
}

// The table is no higher than its rows.
void MasterTablePage::fillDevices()
{
    m_devices->fill(devices());
    const int height = m_deviceTable->horizontalHeader()->height() +
                       m_deviceTable->verticalHeader()->length() + 2 * m_deviceTable->frameWidth();
    m_deviceTable->setMaximumHeight(qMax(height, DeviceTableLeastHeight));
}

void MasterTablePage::on_btn_reset_clicked()
{
    m_devices->showFlags(devices());
    fillSlaves();
}

void MasterTablePage::save()
{
    const bool allowed = m_master.saveWhen == SaveWhen::ServoOff ? checkServoOff() : Restart::isAllowed();
    if (!allowed || !confirmed(translated(QT_TRANSLATE_NOOP("PageBase", "Are you sure to save?"))))
        return;
    if (usesDevices()) {
        m_devices->storeFlags(devices());
        const auto writeDevices = [write = m_master.writeDevices](const QString& localPath) {
            return (lib()->*write)(localPath, static_cast<int>(OverrideMode::WriteRecord));
        };
        if (writeAndSend(ConfigFile::Override, writeDevices, DeviceTexts) != Outcome::Done)
            return;
    }
    // Asked before the second file is written: the operator answers once, and the restart comes last.
    const Answer wanted = askRestart();
    if (wanted == Answer::Gone)
        return;
    storeSlaves();
    if (writeAndSend(m_master.slaveFile, plain(m_master.writeSlaves), m_master.slaveTexts) != Outcome::Done)
        return;
    if (wanted == Answer::Confirmed)
        restart(Restart::Way::WhenAllowed);
}

void MasterTablePage::switchDynamicAlarm()
{
    (lib()->*m_master.setDynamicAlarm)(m_settings->dynalm_checkbox->isChecked());
}

void MasterTablePage::fillSlaves()
{
    const MasterSlaveTable& record = slaves();
    m_settings->lineEdit_slave_count->setText(record.SlaveNum);
    m_settings->lineEdit_disable_timeout->setText(record.DisableTimeout);
    m_settings->lineEdit_enable_timeout->setText(record.EnableTimeout);
    // No file has this one: it is what the controller holds.
    m_settings->dynalm_checkbox->setChecked((lib()->*m_master.dynamicAlarm)());
    m_slaveList->fill(record);
    refreshStatus();
}

void MasterTablePage::storeSlaves() const
{
    MasterSlaveTable& record = slaves();
    record.SlaveNum = wholeNumber(m_settings->lineEdit_slave_count);
    record.DisableTimeout = wholeNumber(m_settings->lineEdit_disable_timeout);
    record.EnableTimeout = wholeNumber(m_settings->lineEdit_enable_timeout);
    m_slaveList->store(record);
}

void MasterTablePage::refreshStatus()
{
    const int count = shownCount();
    showPositions(count);
    for (int index = 0; index < Positions; ++index) {
        MasterSlaveRow& row = m_slaveList->row(index);
        row.showPhases((lib()->*m_master.coupling)(index), (lib()->*m_master.decoupling)(index));
        if (index < count)
            row.showConnected((lib()->*m_master.connected)(index));
    }
}

int MasterTablePage::shownCount() const
{
    return static_cast<int>(
        qBound(0.0, m_settings->lineEdit_slave_count->text().trimmed().toDouble(), double(Positions)));
}

void MasterTablePage::showPositions(int count)
{
    if (count == m_count)
        return;
    m_count = count;
    QWidget* const withSlaves[] = {
        m_settings->label_dyn_alm,         m_settings->dynalm_checkbox,
        m_settings->label_disable_timeout, m_settings->lineEdit_disable_timeout,
        m_settings->label_enable_timeout,  m_settings->lineEdit_enable_timeout,
    };
    for (QWidget* widget : withSlaves)
        widget->setVisible(count > 0);
    m_slaveList->setCount(count);
}
