#include "DeviceNetMasterSetting.h"

#include "BusFileDataManager.h"
#include "FieldRanges.h"
#include "FormFields.h"
#include "OutsideMark.h"
#include "QTouchLineEdit.h"
#include "RoleTable.h"
#include "ZelFunctions.h"
#include "ui_DeviceNetMasterSetting.h"

namespace {

using List = DeviceNetScanList;

const char* refusalText(List::Verdict verdict)
{
    switch (verdict) {
    case List::Verdict::DuplicateMacId:
        return QT_TRANSLATE_NOOP("DeviceNetMasterSetting", "MAC ID does not allow duplicates!");
    case List::Verdict::TooManyInputs:
        return QT_TRANSLATE_NOOP("DeviceNetMasterSetting",
                                 "The total number of bytes in the Input cannot exceed the number of bytes "
                                 "configured on the bus free configuration interface!");
    case List::Verdict::TooManyOutputs:
        return QT_TRANSLATE_NOOP("DeviceNetMasterSetting",
                                 "The total number of bytes in the Output cannot exceed the number of bytes "
                                 "configured on the bus free configuration interface!");
    case List::Verdict::Stored:
        break;
    }
    return nullptr;
}

// A value that the combo does not offer leaves it as it is, with a mark.
void choose(QComboBox* combo, const QString& text)
{
    const int index = combo->findText(text);
    OutsideMark::show(combo, index < 0, text);
    if (index >= 0)
        combo->setCurrentIndex(index);
}

// What the operator entered for the devices.
QString listSummary(const List& list)
{
    QStringList cells(QString::number(list.count()));
    for (int row = 0; row < list.count(); ++row) {
        for (int column = List::MacId; column < List::Connect; ++column)
            cells << list.text(row, column);
    }
    return cells.join(QLatin1Char(' '));
}

} // namespace

DeviceNetMasterSetting::DeviceNetMasterSetting()
    : PageBase("DeviceNetMasterSetting")
    , ui(std::make_unique<Ui::DeviceNetMasterSetting>())
{
    ui->setupUi(this);
    // Queued: the page may go while the keyboard is open, and a table does not survive that in its signal.
    connect(ui->deviceTable, &QTableWidget::cellClicked, this,
            &DeviceNetMasterSetting::slotDeviceTableClicked, Qt::QueuedConnection);
    connectSettings();
    for (QWidget* field : settingFields())
        edits().add(field);
    edits().add([this] { return listSummary(m_list); });
    setEditing(false);
    applyStyle();
    scheduleOnce(1, &DeviceNetMasterSetting::slotGetFileToUi);
}

DeviceNetMasterSetting::~DeviceNetMasterSetting() = default;

// The settings reach the record as they are made; what is filled in from a file does not come back.
void DeviceNetMasterSetting::connectSettings()
{
    const auto connectEdit = [this](QTouchLineEdit* edit, FieldRange range,
                                    int DeviceNetMasterConfig::*member) {
        prepareEntry(edit, numberEntry(QTouchLineEdit::CastUnsigned, range));
        OutsideMark::follow(edit, range.least, range.most);
        connect(edit, &QTouchLineEdit::valueSetted, this,
                [this, member](const QString& text) { m_list.settings().*member = text.toInt(); });
    };
    connectEdit(ui->le_wsid, RangeOf<&DeviceNetMasterConfig::WS_ID>, &DeviceNetMasterConfig::WS_ID);
    connectEdit(ui->le_ratio, RangeOf<&DeviceNetMasterConfig::PACHET_RATIO>,
                &DeviceNetMasterConfig::PACHET_RATIO);
    for (QComboBox* combo : {ui->cbb_endian, ui->cbb_baudrate})
        connect(combo, qOverload<int>(&QComboBox::activated), combo,
                [combo] { OutsideMark::show(combo, false, {}); });
    connect(ui->cbb_endian, qOverload<int>(&QComboBox::activated), this,
            [this](int index) { m_list.settings().ENDIAN = ui->cbb_endian->itemText(index); });
    connect(ui->cbb_baudrate, qOverload<int>(&QComboBox::activated), this,
            [this](int index) { m_list.settings().BAUDRATE = ui->cbb_baudrate->itemText(index).toInt(); });
}

std::vector<PageBase::PageFile> DeviceNetMasterSetting::files() const
{
    return {{ConfigFile::DeviceNetMaster, plain(&FieldbusSettingLib::readDeviceNetMasterFile)}};
}

void DeviceNetMasterSetting::fill()
{
    m_list.load(lib()->deviceNetMaster);
    fillSettings();
    ui->deviceTable->showList(m_list);
    ui->deviceTable->markEditable(m_editing);
    ui->btn_add->setEnabled(!m_list.isFull());
}

std::array<QWidget*, 4> DeviceNetMasterSetting::settingFields() const
{
    return {ui->le_wsid, ui->le_ratio, ui->cbb_endian, ui->cbb_baudrate};
}

void DeviceNetMasterSetting::fillSettings()
{
    const DeviceNetMasterConfig& record = m_list.record();
    ui->le_wsid->setText(QString::number(record.WS_ID));
    ui->le_ratio->setText(QString::number(record.PACHET_RATIO));
    choose(ui->cbb_baudrate, QString::number(record.BAUDRATE));
    choose(ui->cbb_endian, record.ENDIAN);
}

void DeviceNetMasterSetting::setEditing(bool on)
{
    m_editing = on;
    ui->deviceTable->markEditable(on);
    ui->btn_edit->setText(on ? tr("Save") : tr("Edit"));
    ui->btn_add->setVisible(on);
    ui->btn_delete->setVisible(on);
    ui->btn_add->setEnabled(!m_list.isFull());
    for (QWidget* field : settingFields())
        field->setEnabled(on);
}

void DeviceNetMasterSetting::on_btn_add_clicked()
{
    m_list.append();
    ui->deviceTable->showRow(m_list, m_list.count() - 1);
    ui->deviceTable->markEditable(m_editing);
    ui->deviceTable->scrollToBottom();
    ui->btn_add->setEnabled(!m_list.isFull());
    edits().check();
}

void DeviceNetMasterSetting::on_btn_delete_clicked()
{
    m_list.removeLast();
    ui->deviceTable->setRowCount(m_list.count());
    ui->deviceTable->markEditable(m_editing);
    ui->deviceTable->scrollToBottom();
    ui->btn_add->setEnabled(!m_list.isFull());
    edits().check();
}

void DeviceNetMasterSetting::slotDeviceTableClicked(int row, int column)
{
    // Presses may have queued up: one keyboard at a time, on a row that is still there.
    if (!m_editing || m_keyboardOpen || row >= m_list.count() || !List::isEditable(column))
        return;
    m_row = row;
    m_column = column;
    const List::Range range = List::rangeOf(column);
    const QString caption = tr("Device %1: %2").arg(row + 1).arg(DeviceNetTable::caption(column));
    const QPointer<DeviceNetMasterSetting> self(this);
    m_keyboardOpen = true;
    ZelExecNumericKeyboard(m_list.number(row, column), range.minimum, range.maximum,
                           range.isHexadecimal ? "%lx" : "%li", caption, this, SLOT(slotSetValue(double)));
    if (self)
        m_keyboardOpen = false;
}

void DeviceNetMasterSetting::slotSetValue(double value)
{
    if (!m_editing || m_row >= m_list.count() || !List::isEditable(m_column))
        return;
    // The mapping may have been changed on its own page since the last value.
    takeLimits();
    const List::Verdict verdict = m_list.set(m_row, m_column, value);
    if (verdict == List::Verdict::Stored) {
        ui->deviceTable->showRow(m_list, m_row);
        edits().check();
    } else {
        tell(MsgBox::Warning, tr(refusalText(verdict)));
    }
}

// The master reads its devices' inputs from the read-only area of the bus; the areas hold Bools, a bit each.
void DeviceNetMasterSetting::takeLimits()
{
    DeviceNetMasterConfig& record = m_list.settings();
    record.inputLimitBits = 0;
    record.outputLimitBits = 0;
    for (const BusAddrNumInfo& bus : BusFileDataManager::getInstance()->getBusNumAndAddr()) {
        if (bus.busName != QLatin1String(RoleTable::nameOf(RoleId::DeviceNetMaster)))
            continue;
        record.inputLimitBits = bus.readOnly.user[BusBool].quantity;
        record.outputLimitBits = bus.writeOnly.user[BusBool].quantity;
    }
}

void DeviceNetMasterSetting::on_btn_edit_clicked()
{
    if (!isReadyToSave())
        return;
    if (m_editing)
        save();
    else
        setEditing(true);
}

void DeviceNetMasterSetting::save()
{
    if (!m_list.isComplete()) {
        tell(MsgBox::Information,
             tr("The table has not been completed. Please complete the settings before saving."));
        return;
    }
    if (!Restart::isAllowed())
        return;
    // Before the question: when it is declined the library's record holds what the page shows.
    setEditing(false);
    takeLimits();
    lib()->deviceNetMaster = m_list.record();
    if (!confirmed(tr("Are you sure to save?")))
        return;
    if (write(ConfigFile::DeviceNetMaster, plain(&FieldbusSettingLib::writeDeviceNetMasterFile)) !=
        Outcome::Done)
        return;
    // Before the file is sent: the controller takes over a file that arrives while it is set.
    lib()->set_ifidbus_dnm_save_config(true);
    if (send(ConfigFile::DeviceNetMaster) != Outcome::Done)
        return;
    lib()->set_ifidbus_dnm_slave_num(m_list.count());
    offerRestart(Restart::Way::WhenAllowed);
}

// Written on each tick, whatever stands there: a row may have been added since the last one.
void DeviceNetMasterSetting::refreshStatus()
{
    for (int row = 0; row < ui->deviceTable->rowCount(); ++row) {
        const bool connected = lib()->get_ifidbus_dnm_status(row);
        ui->deviceTable->showConnection(
            row,
            connected ? tr("Connected") : tr("Disconnected::%1").arg(lib()->get_ifidbus_dnm_errorcode(row)));
    }
}
