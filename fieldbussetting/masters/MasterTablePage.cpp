#include "MasterTablePage.h"

#include "FieldRanges.h"
#include "FieldbusModule.h"
#include "MasterSlaveList.h"
#include "ui_MasterSettingsPanel.h"
#include "ui_MasterTablePage.h"

#include <QHeaderView>
#include <QTableWidget>

namespace {

using Form = Ui_MasterSettingsPanel;
using Record = MasterSlaveTable;

constexpr NumberEntry Count = numberEntry(QTouchLineEdit::CastUnsigned, RangeOf<&Record::SlaveNum>);
constexpr NumberEntry Timeout = numberEntry(QTouchLineEdit::CastUnsigned, RangeOf<&Record::DisableTimeout>);

// The files carry numbers.
constexpr FormField<Form, Record> Fields[] = {
    {&Form::lineEdit_slave_count, &Record::SlaveNum, Count, Typed::WholeNumber},
    {&Form::lineEdit_disable_timeout, &Record::DisableTimeout, Timeout, Typed::WholeNumber},
    {&Form::lineEdit_enable_timeout, &Record::EnableTimeout, Timeout, Typed::WholeNumber},
};

// The device table beside the settings, in pixels.
constexpr int DeviceTableLeastWidth = 420;
constexpr int DeviceTableLeastHeight = 218;
constexpr int NameColumn = 3; // takes what the others leave
constexpr int ActivateColumn = 4;
constexpr int ActivateWidth = 104;

constexpr int SlavesFirst = 100; // share of the height, against 1 of the device table

constexpr TransferTexts DeviceTexts = {MsgBox::Error};

} // namespace

MasterTablePage::MasterTablePage(const Master& master)
    : PageBase(master.className)
    , m_master(master)
    , ui(std::make_unique<Ui::MasterTablePage>())
    , m_settings(std::make_unique<Ui::MasterSettingsPanel>())
{
    ui->setupUi(this);
    setObjectName(QLatin1String(master.className));
    ui->label_title->setText(translated(master.title));
    ui->saveButton->setObjectName(QLatin1String(master.saveButton));
    ui->deviceTable->setObjectName(QLatin1String(master.deviceTable));
    prepareTable();

    auto* panel = new QWidget(this);
    m_settings->setupUi(panel);
    m_settings->dynalm_checkbox->setObjectName(QLatin1String(master.dynamicAlarmBox));
    m_fields.bind(*m_settings, slaves(), Fields, edits());
    panel->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    ui->devicesLayout->addWidget(panel, 0, Qt::AlignTop);

    applyStyle();
    addSlaves();
    connect(ui->btn_reset, &QPushButton::clicked, this, &MasterTablePage::on_btn_reset_clicked);
    scheduleOnce(1, &MasterTablePage::slotGetFileToUi);
}

MasterTablePage::~MasterTablePage() = default;

void MasterTablePage::prepareTable()
{
    QTableWidget* table = ui->deviceTable;
    m_devices = std::make_unique<DeviceTable>(table);
    QHeaderView* columns = table->horizontalHeader();
    columns->setSectionResizeMode(QHeaderView::ResizeToContents);
    columns->setSectionResizeMode(NameColumn, QHeaderView::Stretch);
    columns->setSectionResizeMode(ActivateColumn, QHeaderView::Fixed);
    columns->resizeSection(ActivateColumn, ActivateWidth);
    table->setMinimumSize(DeviceTableLeastWidth, DeviceTableLeastHeight);
    ui->devicesLayout->setStretch(0, 1);
}

void MasterTablePage::addSlaves()
{
    m_slaveList = new MasterSlaveList(m_master.rowNames, this);
    for (int index = 0; index < Positions; ++index)
        m_slaveList->row(index).watch(edits());
    ui->pageLayout->addWidget(m_slaveList, SlavesFirst);
    ui->pageLayout->setStretchFactor(ui->devicesLayout, 1);
    ui->pageLayout->addStretch();
    showPositions(0);
}

QAbstractButton* MasterTablePage::saveButton() const
{
    return ui->saveButton;
}

QAbstractButton* MasterTablePage::dynamicAlarmBox() const
{
    return m_settings->dynalm_checkbox;
}

bool MasterTablePage::usesDevices() const
{
    return !m_master.yieldsToProfisafe || !FieldbusModule::isProfisafePresent();
}

void MasterTablePage::beginLoad()
{
    m_showsDevices = usesDevices();
}

std::vector<PageBase::PageFile> MasterTablePage::files() const
{
    std::vector<PageFile> files;
    if (m_showsDevices)
        files.push_back({ConfigFile::Override, plain(m_master.readDevices), DeviceTexts});
    files.push_back({m_master.slaveFile, plain(m_master.readSlaves), m_master.slaveTexts});
    return files;
}

void MasterTablePage::fill()
{
    fillDevices();
    fillSlaves();
}

// The table is no higher than its rows.
void MasterTablePage::fillDevices()
{
    QTableWidget* table = ui->deviceTable;
    m_devices->fill(devices());
    m_devices->watch(edits());
    const int height =
        table->horizontalHeader()->height() + table->verticalHeader()->length() + 2 * table->frameWidth();
    table->setMaximumHeight(qMax(height, DeviceTableLeastHeight));
}

void MasterTablePage::on_btn_reset_clicked()
{
    m_devices->showFlags(devices());
    fillSlaves();
}

void MasterTablePage::save()
{
    if (!isReadyToSave() || !mayBeSaved(m_master.saveWhen) ||
        !confirmed(translated(QT_TRANSLATE_NOOP("PageBase", "Are you sure to save?"))))
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
    m_fields.show();
    // No file has this one: it is what the controller holds.
    m_settings->dynalm_checkbox->setChecked((lib()->*m_master.dynamicAlarm)());
    m_slaveList->fill(record);
    refreshStatus();
}

void MasterTablePage::storeSlaves()
{
    m_fields.store();
    m_slaveList->store(slaves());
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
    return qBound(0, FormFields::wholeNumber(m_settings->lineEdit_slave_count->text()), Positions);
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
