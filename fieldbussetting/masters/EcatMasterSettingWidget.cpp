#include "EcatMasterSettingWidget.h"

#include "ui_EcatMasterSettingWidget.h"

namespace {

bool writeRecord(const QString& localPath)
{
    return FieldbusSettingLib::getInstance()->writeEtherCatMFile(localPath,
                                                                 static_cast<int>(OverrideMode::WriteRecord));
}

} // namespace

EcatMasterSettingWidget::EcatMasterSettingWidget()
    : PageBase("EcatMasterSettingWidget")
    , ui(std::make_unique<Ui::EcatMasterSettingWidget>())
{
    ui->setupUi(this);
    m_devices = std::make_unique<DeviceTable>(ui->ecatTableWidget);
    applyStyle();
    scheduleOnce(0, &EcatMasterSettingWidget::slotGetFileToUi);
}

EcatMasterSettingWidget::~EcatMasterSettingWidget() = default;

void EcatMasterSettingWidget::on_btn_reset_clicked()
{
    m_devices->showFlags(lib()->etherCatMasterOverride);
}

// Whether the servo is on does not matter here: what is saved takes effect with a restart only.
void EcatMasterSettingWidget::on_saveBt_Ecat_clicked()
{
    if (!Restart::isAllowed() || !confirmed(tr("Are you sure to save?")))
        return;
    m_devices->storeFlags(lib()->etherCatMasterOverride);
    if (writeAndSend(ConfigFile::Override, writeRecord) == Outcome::Done)
        offerRestart(Restart::Way::WhenAllowed);
}

void EcatMasterSettingWidget::slotGetFileToUi()
{
    const Busy busy(this);
    if (fetchAndRead(ConfigFile::Override, plain(&FieldbusSettingLib::readEtherCatMFile)) != Outcome::Gone)
        m_devices->fill(lib()->etherCatMasterOverride);
}
