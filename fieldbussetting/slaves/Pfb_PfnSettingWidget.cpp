#include "Pfb_PfnSettingWidget.h"

#include "FieldRanges.h"
#include "FieldbusModule.h"
#include "ui_Pfb_PfnSettingWidget.h"

namespace {

using Form = Ui_Pfb_PfnSettingWidget;
using Record = PfbSlaveConfig;

constexpr TextFileSlave::Role Profinet = {
    3,
    ConfigFile::PfbSlave,
    ConfigFile::PfbFree,
    ConfigFile::PfbFixed,
    &FieldbusSettingLib::readPfbCfgFile,
    &FieldbusSettingLib::writePfbCfgFile,
    &FieldbusSettingLib::writePfbFreeFixFile,
};

constexpr FormField<Form, Record> Fields[] = {
    {&Form::pfbAddressLE, &Record::ProfibusAddress,
     numberEntry(QTouchLineEdit::CastInteger, RangeOf<&Record::ProfibusAddress>)},
    {&Form::pfbAlarmSwitchCB, &Record::ComAlarmEnabled},
    {&Form::cbb_largeSmall, &Record::ProfibusEndian},
};

} // namespace

Pfb_PfnSettingWidget::Pfb_PfnSettingWidget()
    : PageBase("Pfb_PfnSettingWidget")
    , ui(std::make_unique<Ui::Pfb_PfnSettingWidget>())
{
    ui->setupUi(this);
    m_slave.emplace(this, Profinet, ui->led_status, ui->cBox, ui->cbb_largeSmall);
    m_fields.bind(*ui, lib()->pfbSlave, Fields, edits());
    applyStyle();
    scheduleOnce(0, &Pfb_PfnSettingWidget::slotGetFileToUi);
}

Pfb_PfnSettingWidget::~Pfb_PfnSettingWidget() = default;

void Pfb_PfnSettingWidget::showEvent(QShowEvent* event)
{
    m_slave->performanceBox().pageShown();
    PageBase::showEvent(event);
}

void Pfb_PfnSettingWidget::beginLoad()
{
    m_profisafeActive = FieldbusModule::isProfisafePresent();
    ui->groupBox_set->setVisible(!m_profisafeActive);
    // Without the settings there is nothing to save: what the record holds was never fetched.
    ui->saveBt->setVisible(!m_profisafeActive);
}

std::vector<PageBase::PageFile> Pfb_PfnSettingWidget::files() const
{
    return m_profisafeActive ? std::vector<PageFile>() : std::vector<PageFile>{m_slave->file()};
}

void Pfb_PfnSettingWidget::fill()
{
    if (!m_profisafeActive)
        m_fields.show();
    m_slave->performanceBox().load();
}

void Pfb_PfnSettingWidget::on_saveBt_clicked()
{
    if (!isReadyToSave() || !confirmed(tr("Are you sure to save?")))
        return;
    m_fields.store();
    m_slave->save();
}

void Pfb_PfnSettingWidget::on_cBox_clicked(bool checked)
{
    m_slave->performanceBox().clicked(checked);
}
