#include "HeartbeatDetectionWidget.h"

#include "FieldRanges.h"
#include "FormFields.h"
#include "OutsideMark.h"
#include "QTouchLineEdit.h"
#include "TouchCheckBox.h"
#include "ui_HeartbeatDetectionWidget.h"

#include <QLabel>

#include <array>

namespace {

struct Row
{
    const char* caption;
    const char* checkBox;
    const char* edit;
    const char* light;
    bool (FieldbusSettingLib::*linkState)() const;
};

// In the order of HeartbeatConfig::fields().
constexpr std::array<Row, HeartbeatConfig::BusCount> Rows = {{
    {QT_TRANSLATE_NOOP("HeartbeatDetectionWidget", "ModbusTcp Slave"), "modbusCheckBox", "modbusLineEdit",
     "mdbConnectStatLb", &FieldbusSettingLib::get_ifidbus_heatbeatdet_mtcp_link_state},
    {QT_TRANSLATE_NOOP("HeartbeatDetectionWidget", "EtherCat Slave"), "ethercatCheckBox", "ethercatLineEdit",
     "etherCatConnectStatLb", &FieldbusSettingLib::get_ifidbus_heatbeatdet_ethcat_link_state},
    {QT_TRANSLATE_NOOP("HeartbeatDetectionWidget", "Profinet Slave"), "profinetCheckBox", "profinetLineEdit",
     "pfnConnectStatLb", &FieldbusSettingLib::get_ifidbus_heatbeatdet_pfbdp_link_state},
    {QT_TRANSLATE_NOOP("HeartbeatDetectionWidget", "EthernetIP Slave"), "ethernetCheckBox",
     "ethernetLineEdit", "ethernConnectStatLb", &FieldbusSettingLib::get_ifidbus_heatbeatdet_eip_link_state},
    {QT_TRANSLATE_NOOP("HeartbeatDetectionWidget", "EtherCat Master"), "ecmCheckBox", "ecmLineEdit",
     "ecmConnectStatLb", &FieldbusSettingLib::get_ifidbus_heatbeatdet_ecm_link_state},
    {QT_TRANSLATE_NOOP("HeartbeatDetectionWidget", "DeviceNet Slave"), "dnsCheckBox", "dnsLineEdit",
     "dnsConnectStatLb", &FieldbusSettingLib::get_ifidbus_heatbeatdet_dns_link_state},
    {QT_TRANSLATE_NOOP("HeartbeatDetectionWidget", "ModbusTcp Master"), "mbcCheckBox", "mbcLineEdit",
     "mbcConnectStatLb", &FieldbusSettingLib::get_ifidbus_heatbeatdet_mbc_link_state},
    {QT_TRANSLATE_NOOP("HeartbeatDetectionWidget", "EthernetIP Master"), "eimCheckBox", "eimLineEdit",
     "eimConnectStatLb", &FieldbusSettingLib::get_ifidbus_heatbeatdet_eim_link_state},
    {QT_TRANSLATE_NOOP("HeartbeatDetectionWidget", "Profinet Master"), "pnmCheckBox", "pnmLineEdit",
     "pnmConnectStatLb", &FieldbusSettingLib::get_ifidbus_heatbeatdet_pnm_link_state},
    {QT_TRANSLATE_NOOP("HeartbeatDetectionWidget", "DeviceNet Master"), "dnmCheckBox", "dnmLineEdit",
     "dnmConnectStatLb", &FieldbusSettingLib::get_ifidbus_heatbeatdet_dnm_link_state},
}};

constexpr int TimeoutDecimals = 3;

constexpr TransferTexts Texts = {MsgBox::Error};

} // namespace

HeartbeatDetectionWidget::HeartbeatDetectionWidget()
    : PageBase("HeartbeatDetectionWidget")
    , ui(std::make_unique<Ui::HeartbeatDetectionWidget>())
{
    ui->setupUi(this);
    buildRows();
    applyStyle();
    scheduleOnce(1, &HeartbeatDetectionWidget::slotGetFileToUi);
}

HeartbeatDetectionWidget::~HeartbeatDetectionWidget() = default;

void HeartbeatDetectionWidget::buildRows()
{
    int line = ui->rowsLayout->rowCount();
    for (const Row& row : Rows) {
        auto* caption = new QLabel(tr(row.caption), this);
        auto* checkBox = new TouchCheckBox(this);
        checkBox->setObjectName(QLatin1String(row.checkBox));
        caption->setBuddy(checkBox);
        auto* edit = new QTouchLineEdit(this);
        edit->setObjectName(QLatin1String(row.edit));
        prepareEntry(edit, numberEntry(QTouchLineEdit::CastReal, RangeOf<&HeartbeatConfig::Mtcp_Timeout>,
                                       TimeoutDecimals));
        edit->setProperty("caption", tr(row.caption));
        edit->setAccessibleName(tr("%1, time").arg(tr(row.caption)));
        auto* light = new QLabel(this);
        light->setObjectName(QLatin1String(row.light));

        ui->rowsLayout->addWidget(caption, line, 0);
        ui->rowsLayout->addWidget(checkBox, line, 1);
        ui->rowsLayout->addWidget(edit, line, 2);
        ui->rowsLayout->addWidget(new QLabel(tr("s"), this), line, 3);
        ui->rowsLayout->addWidget(light, line, 4);
        ++line;

        m_switches.push_back(checkBox);
        m_timeouts.push_back(edit);
        m_lights.emplace_back(light, StatusLight::Face::ImageGreyAgain);
        edits().add(checkBox);
        edits().add(edit);
        connect(edit, &QLineEdit::textChanged, edit, [edit] { OutsideMark::show(edit, false, {}); });
    }
}

std::vector<PageBase::PageFile> HeartbeatDetectionWidget::files() const
{
    return {{ConfigFile::Heartbeat, plain(&FieldbusSettingLib::readHeartbeatDetectionFile), Texts}};
}

void HeartbeatDetectionWidget::on_saveButton_clicked()
{
    if (!isReadyToSave())
        return;
    switch (ask(tr("Are you sure to save the data ?"))) {
    case Answer::Confirmed:
        break;
    case Answer::Second:
        refill();
        return;
    default:
        return;
    }
    storeToRecord();
    if (writeAndSend(ConfigFile::Heartbeat, plain(&FieldbusSettingLib::writeHeartbeatDetectionFile), Texts) !=
        Outcome::Done)
        return;
    lib()->set_ifidbus_heatbeatdet_xml_update(true);
    tell(MsgBox::Information, tr("Save successfully."));
}

void HeartbeatDetectionWidget::refreshStatus()
{
    // The record, not the check boxes: what is not saved yet is not watched yet.
    const HeartbeatConfig& record = lib()->heartbeat;
    for (std::size_t i = 0; i < m_lights.size(); ++i) {
        const bool watched = record.*HeartbeatConfig::fields()[i].nodSwitch;
        const bool linked = (lib()->*Rows[i].linkState)();
        m_lights[i].show(!watched ? StatusLight::Grey : linked ? StatusLight::Green : StatusLight::Red);
    }
}

void HeartbeatDetectionWidget::fill()
{
    const HeartbeatConfig& record = lib()->heartbeat;
    for (std::size_t i = 0; i < m_switches.size(); ++i) {
        const HeartbeatConfig::Field& field = HeartbeatConfig::fields()[i];
        m_switches[i]->setChecked(record.*field.nodSwitch);
        m_timeouts[i]->setText(HeartbeatConfig::timeoutText(record.*field.timeout));
        const double timeout = record.*field.timeout;
        OutsideMark::show(m_timeouts[i],
                          !(timeout >= 0.0 && timeout <= RangeOf<&HeartbeatConfig::Mtcp_Timeout>.most),
                          QString::number(timeout));
    }
}

void HeartbeatDetectionWidget::storeToRecord()
{
    HeartbeatConfig& record = lib()->heartbeat;
    for (std::size_t i = 0; i < m_switches.size(); ++i) {
        const HeartbeatConfig::Field& field = HeartbeatConfig::fields()[i];
        record.*field.nodSwitch = m_switches[i]->isChecked();
        record.*field.timeout = m_timeouts[i]->text().toDouble();
    }
}
