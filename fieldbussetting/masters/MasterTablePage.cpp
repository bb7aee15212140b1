#include "MasterTablePage.h"

#include "BusFileDataManager.h"
#include "FingerScroll.h"
#include "ui_MasterSettingsPanel.h"

#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>

namespace {

constexpr int ProfisafePresent = 1;
constexpr double LongestTimeout = 999999;
constexpr int RowSpacing = 8; // pixels

struct Caption
{
    const char* name;
    const char* text;
};

// A caption a column of a slave position.
constexpr std::array<Caption, MasterSlaveRow::ColumnCount> Captions = {{
    {"label_conneted", QT_TRANSLATE_NOOP("MasterTablePage", "Number")},
    {"label_conneted_2", QT_TRANSLATE_NOOP("MasterTablePage", "Fixed  Status")},
    {"label_conneted_3", QT_TRANSLATE_NOOP("MasterTablePage", " Dynamic Status")},
    {"label_conneted_4", QT_TRANSLATE_NOOP("MasterTablePage", " Connected Status")},
    {"label_conneted_5", QT_TRANSLATE_NOOP("MasterTablePage", "Coupling Status")},
    {"label_conneted_6", QT_TRANSLATE_NOOP("MasterTablePage", "Decoupling Status")},
}};

TransferTexts deviceTexts()
{
    TransferTexts texts;
    texts.kind = MsgBox::Error;
    return texts;
}

// The files carry numbers: what is none is written as 0.
QString wholeNumber(const QLineEdit* edit)
{
    return QString::number(edit->text().trimmed().toInt());
}

} // namespace

MasterTablePage::MasterTablePage(const Master& master)
    : PageBase(master.className)
    , m_master(master)
    , m_settings(std::make_unique<Ui::MasterSettingsPanel>())
    , m_settingsPanel(new QWidget(this))
{
    m_settings->setupUi(m_settingsPanel);
    m_settings->dynalm_checkbox->setObjectName(QLatin1String(master.dynamicAlarmBox));
    m_settings->lineEdit_slave_count->setCast(QTouchLineEdit::CastUnsigned);
    m_settings->lineEdit_slave_count->setValueRange(0, Positions);
    for (QTouchLineEdit* edit : {m_settings->lineEdit_disable_timeout, m_settings->lineEdit_enable_timeout}) {
        edit->setCast(QTouchLineEdit::CastUnsigned);
        edit->setValueRange(0, LongestTimeout);
    }
}

MasterTablePage::~MasterTablePage() = default;

void MasterTablePage::build(QTableWidget* deviceTable, QBoxLayout* besideTable, QBoxLayout* page)
{
    m_devices = std::make_unique<DeviceTable>(deviceTable);
    besideTable->addWidget(m_settingsPanel);
    applyStyle();
    page->addWidget(makeSlaveArea(), 1);
    showPositions(0);
    scheduleOnce(1, &MasterTablePage::slotGetFileToUi);
}

QWidget* MasterTablePage::makeSlaveArea()
{
    auto* area = new QWidget(this);
    auto* lines = new QVBoxLayout(area);
    lines->setContentsMargins(0, 0, 0, 0);

    auto* captions = new QWidget(area);
    MasterSlaveRow::Widths widths{};
    auto* captionColumns = MasterSlaveRow::makeColumns(captions, widths);
    for (std::size_t column = 0; column < Captions.size(); ++column) {
        auto* caption = new QLabel(tr(Captions[column].text), captions);
        caption->setObjectName(QLatin1String(Captions[column].name));
        caption->setAlignment(Qt::AlignCenter);
        caption->setWordWrap(true);
        caption->ensurePolished();
        widths[column] = caption->minimumSizeHint().width();
        captionColumns->addWidget(caption, 0, static_cast<int>(column));
    }
    lines->addWidget(captions);

    auto* scroll = new QScrollArea(area);
    scroll->setWidgetResizable(true);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto* content = new QWidget;
    auto* rows = new QVBoxLayout(content);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(RowSpacing);
    for (int number = 1; number <= Positions; ++number) {
        m_rows.push_back(new MasterSlaveRow(number, m_master.rowNames, widths, content));
        rows->addWidget(m_rows.back());
    }
    rows->addStretch();
    scroll->setWidget(content);
    scrollByFinger(scroll);
    lines->addWidget(scroll, 1);
    // The captions stay above their columns when the scroll bar comes.
    connect(scroll->verticalScrollBar(), &QScrollBar::rangeChanged, captions,
            [captions, scroll](int /*minimum*/, int maximum) {
                const int bar = maximum > 0 ? scroll->verticalScrollBar()->sizeHint().width() : 0;
                captions->layout()->setContentsMargins(0, 0, bar, 0);
            });
    return area;
}

bool MasterTablePage::usesDevices() const
{
    return !m_master.yieldsToProfisafe ||
           BusFileDataManager::getInstance()->checkProfiSAFEStatus() != ProfisafePresent;
}

void MasterTablePage::slotGetFileToUi()
{
    const Busy busy(this);
    if (usesDevices() &&
        fetchAndRead(ConfigFile::Override, plain(m_master.readDevices), deviceTexts()) == Outcome::Gone)
        return;
    if (fetchAndRead(m_master.slaveFile, plain(m_master.readSlaves), m_master.slaveTexts) == Outcome::Gone)
        return;
    m_devices->fill(devices());
    fillSlaves();
}

void MasterTablePage::on_btn_reset_clicked()
{
    m_devices->showFlags(devices());
    fillSlaves();
}

void MasterTablePage::save()
{
    const bool allowed = m_master.saveWhen == SaveWhen::ServoOff ? checkServoOff() : Restart::isAllowed();
    if (!allowed || !confirmed(tr("Are you sure to save?")))
        return;
    if (usesDevices()) {
        m_devices->storeFlags(devices());
        const auto writeDevices = [write = m_master.writeDevices](const QString& localPath) {
            return (lib()->*write)(localPath, static_cast<int>(OverrideMode::WriteRecord));
        };
        if (writeAndSend(ConfigFile::Override, writeDevices, deviceTexts()) != Outcome::Done)
            return;
    }
    // Asked before the second file is written: the operator answers once, and the restart comes last.
    const Answer restart = askRestart();
    if (restart == Answer::Gone)
        return;
    storeSlaves();
    if (writeAndSend(m_master.slaveFile, plain(m_master.writeSlaves), m_master.slaveTexts) != Outcome::Done)
        return;
    if (restart == Answer::Confirmed)
        Restart::perform(Restart::Way::WhenAllowed);
}

void MasterTablePage::switchDynamicAlarm()
{
    (lib()->*m_master.setDynamicAlarm)(m_settings->dynalm_checkbox->isChecked());
}

void MasterTablePage::fillSlaves()
{
    const MasterSlaveTable& record = slaves();
    m_settings->lineEdit_slave_count->setText(record.SlaveNum);
    m_settings->lineEdit_disable_timeout->setText(record.DisableTimeout);
    m_settings->lineEdit_enable_timeout->setText(record.EnableTimeout);
    // No file has this one: it is what the controller holds.
    m_settings->dynalm_checkbox->setChecked((lib()->*m_master.dynamicAlarm)());
    for (MasterSlaveRow* row : m_rows)
        row->fill(record);
    refreshStatus();
}

void MasterTablePage::storeSlaves() const
{
    MasterSlaveTable& record = slaves();
    record.SlaveNum = wholeNumber(m_settings->lineEdit_slave_count);
    record.DisableTimeout = wholeNumber(m_settings->lineEdit_disable_timeout);
    record.EnableTimeout = wholeNumber(m_settings->lineEdit_enable_timeout);
    for (const MasterSlaveRow* row : m_rows)
        row->store(record);
}

void MasterTablePage::refreshStatus()
{
    const int count = shownCount();
    showPositions(count);
    for (int index = 0; index < Positions; ++index) {
        MasterSlaveRow* row = m_rows[static_cast<std::size_t>(index)];
        row->showPhases((lib()->*m_master.coupling)(index), (lib()->*m_master.decoupling)(index));
        if (index < count)
            row->showConnected((lib()->*m_master.connected)(index));
    }
}

int MasterTablePage::shownCount() const
{
    return qBound(0, m_settings->lineEdit_slave_count->text().trimmed().toInt(), Positions);
}

void MasterTablePage::showPositions(int count)
{
    if (count == m_rowsInSight)
        return;
    m_rowsInSight = count;
    QWidget* const withSlaves[] = {
        m_settings->label_dyn_alm,         m_settings->dynalm_checkbox,
        m_settings->label_disable_timeout, m_settings->lineEdit_disable_timeout,
        m_settings->label_enable_timeout,  m_settings->lineEdit_enable_timeout,
    };
    for (QWidget* widget : withSlaves)
        widget->setVisible(count > 0);
    for (int index = 0; index < Positions; ++index)
        m_rows[static_cast<std::size_t>(index)]->setVisible(index < count);
}
