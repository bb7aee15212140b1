#include "EtherCatSettingWidget.h"

#include "BusFileDataManager.h"
#include "FieldbusModule.h"
#include "FormerFiles.h"
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

const FunctionTable::Section& section()
{
    static const FunctionTable::Section slave = {
        &FieldbusSettingLib::etherCatSlaveOverride,
        &FieldbusSettingLib::readEtherCatFile,
        PageBase::plain(&FieldbusSettingLib::writeEtherCatFile),
        PageBase::SaveWhen::ServoOff,
    };
    return slave;
}

} // namespace

EtherCatSettingWidget::EtherCatSettingWidget()
    : PageBase("EtherCatSettingWidget")
    , ui(std::make_unique<Ui::EtherCatSettingWidget>())
{
    ui->setupUi(this);
    m_functions.emplace(this, ui->ecatTableWidget, section());
    edits().add(ui->cbb_Endian);
    applyStyle();
    scheduleOnce(0, &EtherCatSettingWidget::slotGetFileToUi);
}

EtherCatSettingWidget::~EtherCatSettingWidget() = default;

void EtherCatSettingWidget::on_btn_saveFbECAT_clicked()
{
    if (!isReadyToSave() || !checkServoOff())
        return;
    switch (ask(tr("Are you sure to save?"))) {
    case Answer::Confirmed:
        break;
    case Answer::Second:
        refill();
        return;
    default:
        return;
    }
    const QString endian =
        ui->cbb_Endian->currentIndex() == LittleEndian ? littleEndianText() : QStringLiteral("bigEndian");
    const QPointer<EtherCatSettingWidget> self(this);
    Busy busy(this);
    FormerFiles::instance().serviceBegins(QLatin1String(FileLocations::SlaveModule));
    const bool sent = BusFileDataManager::getInstance()->writeAndSendFbslave(endian);
    FormerFiles::instance().serviceEnds(QLatin1String(FileLocations::SlaveModule), sent);
    if (!self)
        return;
    busy.release();
    noteServiceSent(ConfigFile::SlaveModule, sent);
    if (!sent) {
        tell(MsgBox::Warning, tr("Failed to write file."));
        return;
    }
    *m_endian = endian;
    offerRestart(Restart::Way::WhenAllowed);
}

void EtherCatSettingWidget::BtnsClicxkedSlot()
{
    if (const QCheckBox* box = m_functions->box(DirectFunctionRow))
        lib()->set_ifidbus_ethcat_state(box->isChecked());
}

void EtherCatSettingWidget::beginLoad()
{
    m_isModule = lib()->get_ifidbus_anybus_fm() == FieldbusModule::EtherCat;
    if (!m_isModule)
        ui->stackedWidget->setCurrentWidget(ui->page_fbOther);
}

// A failed reading leaves the byte order that was known before, or big endian.
std::vector<PageBase::PageFile> EtherCatSettingWidget::files() const
{
    if (!m_isModule)
        return {m_functions->file()};
    const auto readByteOrder = [endian = m_endian](const QString&) {
        QString text = *endian;
        const bool isRead = BusFileDataManager::getInstance()->getAndReadFbslave(text);
        if (isRead)
            *endian = text;
        return isRead;
    };
    return {{ConfigFile::SlaveModule, readByteOrder}};
}

void EtherCatSettingWidget::fill()
{
    if (m_isModule) {
        showByteOrder();
        ui->stackedWidget->setCurrentWidget(ui->page_fbECAT);
        return;
    }
    m_functions->fill();
    if (const QCheckBox* box = m_functions->box(DirectFunctionRow))
        connect(box, &QCheckBox::clicked, this, &EtherCatSettingWidget::BtnsClicxkedSlot);
}

void EtherCatSettingWidget::showByteOrder()
{
    const bool little = m_endian->trimmed().compare(littleEndianText(), Qt::CaseInsensitive) == 0;
    ui->cbb_Endian->setCurrentIndex(little ? LittleEndian : BigEndian);
}
