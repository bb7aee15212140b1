#include "EtherCatSettingWidget.h"

#include "BusFileDataManager.h"
#include "FieldbusModule.h"
#include "ui_EtherCatSettingWidget.h"

#include <QCheckBox>

namespace {

constexpr int DirectFunctionRow = 4;

// Items of the combo box.
enum ByteOrder { LittleEndian, BigEndian };

const QString& littleEndianText()
{
    static const QString text = QStringLiteral("littleEndian");
    return text;
}

} // namespace

EtherCatSettingWidget::EtherCatSettingWidget()
    : PageBase("EtherCatSettingWidget")
    , ui(std::make_unique<Ui::EtherCatSettingWidget>())
{
    ui->setupUi(this);
    m_devices = std::make_unique<DeviceTable>(ui->ecatTableWidget);
    applyStyle();
    scheduleOnce(0, &EtherCatSettingWidget::slotGetFileToUi);
}

EtherCatSettingWidget::~EtherCatSettingWidget() = default;

void EtherCatSettingWidget::on_btn_reset_clicked()
{
    m_devices->showFlags(lib()->etherCatSlaveOverride);
}

void EtherCatSettingWidget::on_saveBt_Ecat_clicked()
{
    if (!checkServoOff() || !confirmed(tr("Are you sure to save?")))
        return;
    m_devices->storeFlags(lib()->etherCatSlaveOverride);
    if (writeAndSend(ConfigFile::Override, plain(&FieldbusSettingLib::writeEtherCatFile)) == Outcome::Done)
        offerRestart(Restart::Way::WhenAllowed);
}

void EtherCatSettingWidget::on_btn_saveFbECAT_clicked()
{
    if (!checkServoOff())
        return;
    switch (ask(tr("Are you sure to save?"))) {
    case Answer::Confirmed:
        break;
    case Answer::Second:
        showByteOrder();
        return;
    default:
        return;
    }
    const QString endian =
        ui->cbb_Endian->currentIndex() == LittleEndian ? littleEndianText() : QStringLiteral("bigEndian");
    const QPointer<EtherCatSettingWidget> self(this);
    Busy busy(this);
    const bool sent = BusFileDataManager::getInstance()->writeAndSendFbslave(endian);
    if (!self)
        return;
    busy.release();
    if (!sent) {
        tell(MsgBox::Warning, tr("Failed to write file."));
        return;
    }
    m_endian = endian;
    offerRestart(Restart::Way::WhenAllowed);
}

void EtherCatSettingWidget::BtnsClicxkedSlot()
{
    if (const QCheckBox* box = m_devices->box(DirectFunctionRow))
        lib()->set_ifidbus_ethcat_state(box->isChecked());
}

void EtherCatSettingWidget::slotGetFileToUi()
{
    const Busy busy(this);
    if (lib()->get_ifidbus_anybus_fm() == FieldbusModule::EtherCat) {
        loadByteOrder();
        return;
    }
    ui->stackedWidget->setCurrentWidget(ui->page_fbOther);
    if (fetchAndRead(ConfigFile::Override, plain(&FieldbusSettingLib::readEtherCatFile)) == Outcome::Gone)
        return;
    m_devices->fill(lib()->etherCatSlaveOverride);
    if (const QCheckBox* box = m_devices->box(DirectFunctionRow))
        connect(box, &QCheckBox::clicked, this, &EtherCatSettingWidget::BtnsClicxkedSlot);
}

// A failed read says nothing and shows the byte order that was known before, or big endian.
void EtherCatSettingWidget::loadByteOrder()
{
    const QPointer<EtherCatSettingWidget> self(this);
    QString endian = m_endian;
    BusFileDataManager::getInstance()->getAndReadFbslave(endian);
    if (!self)
        return;
    m_endian = endian;
    showByteOrder();
    ui->stackedWidget->setCurrentWidget(ui->page_fbECAT);
}

void EtherCatSettingWidget::showByteOrder()
{
    const bool little = m_endian.trimmed().compare(littleEndianText(), Qt::CaseInsensitive) == 0;
    ui->cbb_Endian->setCurrentIndex(little ? LittleEndian : BigEndian);
}
