#include "DeviceNetSlaverSetting.h"

#include "FieldRanges.h"
#include "QTouchLineEdit.h"
#include "UpdateState.h"
#include "ui_DeviceNetSlaverSetting.h"

namespace {

using Form = Ui_DeviceNetSlaverSetting;
using Record = DeviceNetSlaveConfig;

constexpr FormField<Form, Record> Fields[] = {
    {&Form::cbb_baud, &Record::Dns_BAUDRATE},
    {&Form::le_macid, &Record::Dns_MACID,
     numberEntry(QTouchLineEdit::CastUnsigned, RangeOf<&Record::Dns_MACID>)},
};

constexpr int DeviceNetLinkBit = 32; // of the communication state

// Half-second polls without an answer before a save has failed; the first one of a page is given a second
// more.
constexpr Poll::Rule FirstHandshake = {500, 12};
constexpr Poll::Rule Handshake = {500, 10};

} // namespace

DeviceNetSlaverSetting::DeviceNetSlaverSetting()
    : PageBase("DeviceNetSlaverSetting")
    , ui(std::make_unique<Ui::DeviceNetSlaverSetting>())
    , m_handshake(FirstHandshake, this)
{
    ui->setupUi(this);
    m_fields.bind(*ui, lib()->deviceNetSlave, Fields, edits());
    m_light.emplace(ui->led_status, StatusLight::Face::Enabled);
    connect(ui->le_macid, &QTouchLineEdit::valueSetted, this, &DeviceNetSlaverSetting::slotCheckMACIDFormat);
    applyStyle();
    scheduleOnce(1, &DeviceNetSlaverSetting::slotGetFileToUi);
}

DeviceNetSlaverSetting::~DeviceNetSlaverSetting() = default;

std::vector<PageBase::PageFile> DeviceNetSlaverSetting::files() const
{
    return {{ConfigFile::DeviceNetSlave, plain(&FieldbusSettingLib::readDeviceNetFile)}};
}

void DeviceNetSlaverSetting::fill()
{
    m_fields.show();
    m_acceptedMacId = lib()->deviceNetSlave.Dns_MACID;
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
    if (!isReadyToSave() || !confirmed(tr("Are you sure to save?")))
        return;
    m_fields.store();
    if (writeAndSend(ConfigFile::DeviceNetSlave, plain(&FieldbusSettingLib::writeDeviceNetFile)) ==
        Outcome::Done)
        beginHandshake();
}

// The save button is off until the handshake ends: patience and the answering bit are those of one save.
void DeviceNetSlaverSetting::beginHandshake()
{
    // An answer that came after a handshake was given up is not the one to this file.
    const int state = lib()->get_freebus_busconfig_xml_update_state() & ~UpdateState::SlaveTaken;
    lib()->set_freebus_busconfig_xml_update(state | UpdateState::SlaveAnnounced);
    ui->btn_save->setEnabled(false);
    m_handshake.start(
        m_firstSave ? FirstHandshake : Handshake,
        [] { return (lib()->get_freebus_busconfig_xml_update_state() & UpdateState::SlaveTaken) != 0; },
        [this](Poll::Answer answer) { endHandshake(answer == Poll::Answer::Yes); });
    m_firstSave = false;
}

void DeviceNetSlaverSetting::getFileSaveStatus()
{
    m_handshake.ask();
}

void DeviceNetSlaverSetting::endHandshake(bool taken)
{
    lib()->set_freebus_busconfig_xml_update(0);
    ui->btn_save->setEnabled(true);
    if (taken)
        offerRestart(Restart::Way::AtOnce);
    else
        tell(MsgBox::Warning, tr("Save failed!"));
}
