#include "DeviceNetSlaverSetting.h"

#include "QTouchLineEdit.h"
#include "ui_DeviceNetSlaverSetting.h"

#include <QRegularExpression>

namespace {

constexpr double LowestMacId = 1;
constexpr double HighestMacId = 63;

constexpr int DeviceNetLinkBit = 32; // of the communication state

// Bits of the file handshake: the pendant asks, the controller answers.
constexpr int SlaveFileSent = 0x9000;
constexpr int SlaveFileTaken = 0x2000;

// Polls without an answer until a save has failed; the first one of a page is given a second more.
constexpr int PollMs = 500;
constexpr int FirstPollLimit = 12;
constexpr int PollLimit = 10;

} // namespace

DeviceNetSlaverSetting::DeviceNetSlaverSetting()
    : PageBase("DeviceNetSlaverSetting")
    , ui(std::make_unique<Ui::DeviceNetSlaverSetting>())
{
    ui->setupUi(this);
    ui->le_macid->setCast(QTouchLineEdit::CastUnsigned);
    ui->le_macid->setValueRange(LowestMacId, HighestMacId);
    m_light.emplace(ui->led_status);
    connect(ui->le_macid, &QTouchLineEdit::valueSetted, this, &DeviceNetSlaverSetting::slotCheckMACIDFormat);
    connect(&m_handshake, &QTimer::timeout, this, &DeviceNetSlaverSetting::getFileSaveStatus);
    applyStyle();
    scheduleOnce(1, &DeviceNetSlaverSetting::slotGetFileToUi);
}

DeviceNetSlaverSetting::~DeviceNetSlaverSetting() = default;

void DeviceNetSlaverSetting::slotGetFileToUi()
{
    Busy busy(this);
    if (fetchAndRead(ConfigFile::DeviceNetSlave, plain(&FieldbusSettingLib::readDeviceNetFile)) ==
        Outcome::Gone)
        return;
    busy.release();
    const DeviceNetSlaveConfig& record = lib()->deviceNetSlave;
    const QString baudRate = QString(record.Dns_BAUDRATE).remove(QRegularExpression(QStringLiteral("\\s")));
    ui->cbb_baud->setCurrentIndex(qMax(0, ui->cbb_baud->findText(baudRate, Qt::MatchFixedString)));
    ui->le_macid->setText(record.Dns_MACID);
    m_acceptedMacId = record.Dns_MACID;
}

// Only what is entered is checked: an odd MAC ID of the file is shown, and saved, as it stands.
void DeviceNetSlaverSetting::slotCheckMACIDFormat(const QString& text)
{
    if (text.trimmed().toInt() % 2 == 0)
        m_acceptedMacId = text;
    else if (tell(MsgBox::Warning, tr("MACID value must be even!")) != Answer::Gone)
        ui->le_macid->setText(m_acceptedMacId);
}

void DeviceNetSlaverSetting::refreshStatus()
{
    m_light->show((lib()->get_ifidbus_commun_state() & DeviceNetLinkBit) != 0);
}

void DeviceNetSlaverSetting::on_btn_save_clicked()
{
    if (!confirmed(tr("Are you sure to save?")))
        return;
    lib()->deviceNetSlave = {ui->cbb_baud->currentText(), ui->le_macid->text()};
    if (writeAndSend(ConfigFile::DeviceNetSlave, plain(&FieldbusSettingLib::writeDeviceNetFile)) ==
        Outcome::Done)
        beginHandshake();
}

// The save button is off until the handshake ends: the poll limit and the answering bit are those of one
// save.
void DeviceNetSlaverSetting::beginHandshake()
{
    m_pollLimit = m_firstSave ? FirstPollLimit : PollLimit;
    m_firstSave = false;
    // An answer that came after a handshake was given up is not the one to this file.
    const int state = lib()->get_freebus_busconfig_xml_update_state() & ~SlaveFileTaken;
    lib()->set_freebus_busconfig_xml_update(state | SlaveFileSent);
    ui->btn_save->setEnabled(false);
    m_handshake.start(PollMs);
}

void DeviceNetSlaverSetting::endHandshake()
{
    lib()->set_freebus_busconfig_xml_update(0);
    m_polls = 0;
    m_handshake.stop();
    ui->btn_save->setEnabled(true);
}

void DeviceNetSlaverSetting::getFileSaveStatus()
{
    // The answer first: one that came since the last poll counts even when the patience is used up.
    if ((lib()->get_freebus_busconfig_xml_update_state() & SlaveFileTaken) != 0) {
        endHandshake();
        offerRestart(Restart::Way::AtOnce);
    } else if (m_polls != m_pollLimit) {
        ++m_polls;
    } else {
        endHandshake();
        tell(MsgBox::Warning, tr("Save failed!"));
    }
}
