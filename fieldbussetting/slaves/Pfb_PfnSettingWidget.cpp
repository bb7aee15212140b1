#include "Pfb_PfnSettingWidget.h"

#include "FieldRanges.h"
#include "FieldbusModule.h"
#include "ui_Pfb_PfnSettingWidget.h"

namespace {

constexpr int ProfinetBus = 3;

} // namespace

Pfb_PfnSettingWidget::Pfb_PfnSettingWidget()
    : TextFileSlavePage(role())
    , ui(std::make_unique<Ui::Pfb_PfnSettingWidget>())
{
    ui->setupUi(this);
    bind(ui->led_status, ui->cBox, ui->cbb_largeSmall);
    ui->pfbAddressLE->setCast(QTouchLineEdit::CastInteger);
    ui->pfbAddressLE->setValueRange(RangeOf<&PfbSlaveConfig::ProfibusAddress>.least,
                                    RangeOf<&PfbSlaveConfig::ProfibusAddress>.most);
    applyStyle();
    scheduleOnce(0, &Pfb_PfnSettingWidget::slotGetFileToUi);
}

Pfb_PfnSettingWidget::~Pfb_PfnSettingWidget() = default;

const TextFileSlavePage::Role& Pfb_PfnSettingWidget::role()
{
    static const Role profinet = {"Pfb_PfnSettingWidget",
                                  ProfinetBus,
                                  ConfigFile::PfbSlave,
                                  ConfigFile::PfbFree,
                                  ConfigFile::PfbFixed,
                                  &FieldbusSettingLib::readPfbCfgFile,
                                  &FieldbusSettingLib::writePfbCfgFile,
                                  &FieldbusSettingLib::writePfbFreeFixFile};
    return profinet;
}

void Pfb_PfnSettingWidget::on_saveBt_clicked()
{
    if (!confirmed(tr("Are you sure to save?")))
        return;
    lib()->pfbSlave = {ui->pfbAddressLE->text(), ui->pfbAlarmSwitchCB->currentIndex(),
                       ui->cbb_largeSmall->currentText()};
    saveFiles();
}

void Pfb_PfnSettingWidget::slotGetFileToUi()
{
    Busy busy(this);
    m_profisafeActive = FieldbusModule::isProfisafePresent();
    ui->groupBox_set->setVisible(!m_profisafeActive);
    // Without the settings there is nothing to save: what the record holds was never fetched.
    ui->saveBt->setVisible(!m_profisafeActive);
    if (!m_profisafeActive) {
        if (load() == Outcome::Gone)
            return;
        fillFromRecord();
    }
    busy.release();
    performanceBox().load();
}

void Pfb_PfnSettingWidget::on_cBox_clicked(bool checked)
{
    performanceBox().clicked(checked);
}

void Pfb_PfnSettingWidget::fillFromRecord()
{
    const PfbSlaveConfig& record = lib()->pfbSlave;
    ui->pfbAddressLE->setText(record.ProfibusAddress);
    ui->pfbAlarmSwitchCB->setCurrentIndex(record.ComAlarmEnabled);
    showEndian(ui->cbb_largeSmall, record.ProfibusEndian);
}
