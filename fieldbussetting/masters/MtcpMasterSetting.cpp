#include "MtcpMasterSetting.h"

#include "BusFileDataManager.h"
#include "FieldRanges.h"
#include "FormFields.h"
#include "OutsideMark.h"
#include "ui_MtcpMasterSetting.h"

#include <QSignalBlocker>
#include <QStringList>

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

using Form = Ui_MtcpMasterSetting;
using Record = MtcpMasterConfig;

// What is typed, in the order in which it must not be empty.
constexpr struct
{
    QTouchLineEdit* Form::*edit;
    QString Record::*value;
    const char* name;
} Fields[] = {
    {&Form::le_masterIp, &Record::SlaveIp, QT_TRANSLATE_NOOP("MtcpMasterSetting", "IP")},
    {&Form::le_masterPort, &Record::SlavePort, QT_TRANSLATE_NOOP("MtcpMasterSetting", "Port")},
    {&Form::le_masterId, &Record::SlaveId, QT_TRANSLATE_NOOP("MtcpMasterSetting", "ID")},
    {&Form::le_timeout, &Record::TimeOut, QT_TRANSLATE_NOOP("MtcpMasterSetting", "Timeout")},
};

constexpr struct
{
    QComboBox* Form::*combo;
    QString Record::*value;
} ByteOrders[] = {
    {&Form::cbb_readEndian, &Record::ReadEndian},
    {&Form::cbb_writeEndian, &Record::WriteEndian},
};

// The file holds the index in this list.
constexpr const char* ByteOrderNames[] = {
    "BIG_ENDIAN_16",    "LITTLE_ENDIAN_16",     "BIG_ENDIAN_32",
    "LITTLE_ENDIAN_32", "MIDDLE_BIG_ENDIAN_32", "MIDDLE_LITTLE_ENDIAN_32",
};

constexpr int TimeoutDecimals = 3;

constexpr TransferTexts Texts = {
    MsgBox::Warning, QT_TRANSLATE_NOOP("MtcpMasterSetting", "Failed to get mtcp_master.xml file."),
    QT_TRANSLATE_NOOP("MtcpMasterSetting", "Failed to read mtcp_master.xml file."),
    QT_TRANSLATE_NOOP("MtcpMasterSetting", "Failed to write mtcp_master.xml file."),
    QT_TRANSLATE_NOOP("MtcpMasterSetting", "Failed to send mtcp_master.xml file.")};

// The ports of other services. None is known: the port is another machine's. The check is kept for the day
// on which something is.
const QStringList OccupiedPorts;

// A file may hold an index that is none; the first order is shown for it.
int shownByteOrder(const QString& text)
{
    const int index = text.toInt();
    return index >= 0 && index < static_cast<int>(std::size(ByteOrderNames)) ? index : 0;
}

// Whether the controller would do the same with both: "1" and "1.000" are one time-out. An index beyond the
// list is another one than the index that is shown for it, so that a save puts the file right.
bool isSame(const Record& left, const Record& right)
{
    for (const auto member : {&Record::SlaveIp, &Record::SlavePort, &Record::SlaveId}) {
        if ((left.*member).trimmed() != (right.*member).trimmed())
            return false;
    }
    return left.TimeOut.toDouble() == right.TimeOut.toDouble() &&
           std::all_of(std::begin(ByteOrders), std::end(ByteOrders), [&](const auto& order) {
               return (left.*order.value).toInt() == (right.*order.value).toInt();
           });
}

} // namespace

MtcpMasterSetting::MtcpMasterSetting()
    : PageBase("MtcpMasterSetting")
    , ui(std::make_unique<Ui::MtcpMasterSetting>())
    , m_goodIp(lib()->mtcpMaster.SlaveIp)
    , m_goodPort(lib()->mtcpMaster.SlavePort)
{
    ui->setupUi(this);
    m_connection.emplace(ui->label_conStatus, StatusLight::Face::Enabled);
    prepareFields();
    applyStyle();
    scheduleOnce(1, &MtcpMasterSetting::slotGetFileToUi);
    connect(ui->le_masterIp, &QTouchLineEdit::valueSetted, this, &MtcpMasterSetting::slotCheckIpFormat);
    connect(ui->le_masterPort, &QTouchLineEdit::valueSetted, this, &MtcpMasterSetting::slotCheckPortEffect);
}

MtcpMasterSetting::~MtcpMasterSetting() = default;

void MtcpMasterSetting::prepareFields()
{
    ui->le_masterIp->setCast(QTouchLineEdit::CastIpAddress);
    const std::pair<QTouchLineEdit*, NumberEntry> numbers[] = {
        {ui->le_masterPort, numberEntry(QTouchLineEdit::CastInteger, RangeOf<&Record::SlavePort>)},
        {ui->le_masterId, numberEntry(QTouchLineEdit::CastInteger, RangeOf<&Record::SlaveId>)},
        {ui->le_timeout, numberEntry(QTouchLineEdit::CastReal, RangeOf<&Record::TimeOut>, TimeoutDecimals)},
    };
    for (const auto& [edit, entry] : numbers) {
        prepareEntry(edit, entry);
        OutsideMark::follow(edit, entry.least, entry.most);
    }
    for (const auto& order : ByteOrders) {
        for (const char* name : ByteOrderNames)
            (ui.get()->*order.combo)->addItem(QLatin1String(name));
        QComboBox* combo = ui.get()->*order.combo;
        edits().add(combo);
        connect(combo, qOverload<int>(&QComboBox::activated), combo,
                [combo] { OutsideMark::show(combo, false, {}); });
    }
    for (const auto& field : Fields)
        edits().add(ui.get()->*field.edit);
}

std::vector<PageBase::PageFile> MtcpMasterSetting::files() const
{
    return {{ConfigFile::MtcpMaster, plain(&FieldbusSettingLib::readMtcpFile), Texts}};
}

void MtcpMasterSetting::fill()
{
    fillFromRecord();
    const bool automatic = lib()->get_ifidbus_mbc_autoCon();
    const QSignalBlocker blocker(ui->cBox_autoCon);
    ui->cBox_autoCon->setChecked(automatic);
    // Only the check box gives the button back.
    if (automatic)
        ui->btn_connect->setEnabled(false);
}

void MtcpMasterSetting::fillFromRecord()
{
    const Record& record = lib()->mtcpMaster;
    m_saved = record;
    for (const auto& field : Fields)
        (ui.get()->*field.edit)->setText(record.*field.value);
    for (const auto& order : ByteOrders) {
        QComboBox* combo = ui.get()->*order.combo;
        const QString& value = record.*order.value;
        combo->setCurrentIndex(shownByteOrder(value));
        OutsideMark::show(combo, QString::number(combo->currentIndex()) != value.trimmed(), value);
    }
    m_goodIp = record.SlaveIp;
    m_goodPort = record.SlavePort;
}

MtcpMasterConfig MtcpMasterSetting::entered() const
{
    Record record = lib()->mtcpMaster;
    for (const auto& field : Fields)
        record.*field.value = (ui.get()->*field.edit)->text().trimmed();
    for (const auto& order : ByteOrders)
        record.*order.value = QString::number((ui.get()->*order.combo)->currentIndex());
    return record;
}

void MtcpMasterSetting::on_btn_save_clicked()
{
    if (!isReadyToSave() || !confirmed(tr("Are you sure to save?")))
        return;
    for (const auto& field : Fields) {
        if ((ui.get()->*field.edit)->text().trimmed().isEmpty()) {
            tell(MsgBox::Warning, tr("%1 cannot be empty!").arg(tr(field.name)));
            return;
        }
    }
    Record& record = lib()->mtcpMaster;
    const Record settings = entered();
    // A save that failed has filled the record all the same; then there is still something to save.
    if (isSame(settings, record) && isSame(record, m_saved))
        return;
    record = settings;
    if (writeAndSend(ConfigFile::MtcpMaster, plain(&FieldbusSettingLib::writeMtcpFile), Texts) !=
        Outcome::Done)
        return;
    lib()->set_ifidbus_mbc_save(true);
    m_saved = record;
    tell(MsgBox::Information, tr("Successfully saved."));
}

void MtcpMasterSetting::slotCheckIpFormat(const QString& text)
{
    const QString address = text.trimmed();
    if (BusFileDataManager::checkIPv4Format(address))
        m_goodIp = address;
    else if (tell(MsgBox::Warning, tr("IP address format is wrong!")) != Answer::Gone)
        ui->le_masterIp->setText(m_goodIp);
}

void MtcpMasterSetting::slotCheckPortEffect(const QString& text)
{
    if (!OccupiedPorts.contains(text, Qt::CaseInsensitive))
        m_goodPort = text;
    else if (tell(MsgBox::Warning, tr("The port number is already occupied!")) != Answer::Gone)
        ui->le_masterPort->setText(m_goodPort);
}

void MtcpMasterSetting::on_btn_connect_clicked()
{
    lib()->set_ifidbus_mbc_open(true);
}

void MtcpMasterSetting::on_cBox_autoCon_clicked(bool checked)
{
    ui->btn_connect->setEnabled(!checked);
    lib()->set_ifidbus_mbc_autoCon(checked);
}

void MtcpMasterSetting::refreshStatus()
{
    m_connection->show(lib()->get_ifidbus_mbc_connected());
}
