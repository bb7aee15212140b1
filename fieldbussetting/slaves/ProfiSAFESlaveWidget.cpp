#include "ProfiSAFESlaveWidget.h"

#include "BusFileDataManager.h"
#include "ControllerVariables.h"
#include "ui_ProfiSAFESlaveWidget.h"

#include <QSignalBlocker>

using ControllerVariables::io_man_profisafe_ext_ro;
using ControllerVariables::io_man_profisafe_local_ro;
using ControllerVariables::io_man_profisafe_local_wo;

namespace {

constexpr int CommandElement = 0;
constexpr int NoCommand = 0;
constexpr int ErrorConfirmationCommand = 1;
constexpr int EmergencyResetCommand = 2;

constexpr int VoltageElement = 3;
constexpr int VoltageMask = 3;
constexpr const char* VoltageTexts[] = {
    QT_TRANSLATE_NOOP("ProfiSAFESlaveWidget", "not used"),
    QT_TRANSLATE_NOOP("ProfiSAFESlaveWidget", "from KRC"),
    QT_TRANSLATE_NOOP("ProfiSAFESlaveWidget", "from external plc"),
    QT_TRANSLATE_NOOP("ProfiSAFESlaveWidget", "not used"),
};

constexpr int RowCount = 16;
constexpr int BitsPerElement = 8;
constexpr int DescriptionDelayMs = 100;

// The columns of a block.
struct Column
{
    const char* caption; // null: the block's
    int width;           // pixels
};
enum { BitColumn, LightColumn, TextColumn };
constexpr Column Columns[] = {
    {nullptr, 96}, {"", 56}, {QT_TRANSLATE_NOOP("ProfiSAFESlaveWidget", "Desc"), 205}};
constexpr int ColumnsPerBlock = static_cast<int>(std::size(Columns));
constexpr const char* BlockCaptions[] = {QT_TRANSLATE_NOOP("ProfiSAFESlaveWidget", "Output"),
                                         QT_TRANSLATE_NOOP("ProfiSAFESlaveWidget", "Input")};
constexpr int HeaderHeight = 32;
constexpr int LightSize = 28;
constexpr int RowHeight = 36;

int command()
{
    return io_man_profisafe_local_wo[CommandElement].getValue();
}

} // namespace

ProfiSAFESlaveWidget::ProfiSAFESlaveWidget()
    : PageBase("ProfiSAFESlaveWidget")
    , ui(std::make_unique<Ui::ProfiSAFESlaveWidget>())
{
    ui->setupUi(this);
    m_errorConfirmation = {ui->btn_errorConfir, ErrorConfirmationCommand, false};
    m_emergencyReset = {ui->btn_emgReset, EmergencyResetCommand, false};
    buildTable();
    applyStyle();
}

ProfiSAFESlaveWidget::~ProfiSAFESlaveWidget() = default;

void ProfiSAFESlaveWidget::buildTable()
{
    QTableWidget* table = ui->tableWidget;
    table->setRowCount(RowCount);
    table->setColumnCount(static_cast<int>(m_blocks.size()) * ColumnsPerBlock);
    table->horizontalHeader()->setMinimumHeight(HeaderHeight);
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table->verticalHeader()->setMinimumSectionSize(RowHeight);
    table->verticalHeader()->setDefaultSectionSize(RowHeight);

    QStringList captions;
    int column = 0;
    for (std::size_t index = 0; index < m_blocks.size(); ++index) {
        m_blocks[index].firstColumn = column;
        for (const Column& kind : Columns) {
            captions.append(tr(kind.caption ? kind.caption : BlockCaptions[index]));
            table->setColumnWidth(column++, kind.width);
        }
        for (int row = 0; row < RowCount; ++row)
            buildRow(m_blocks[index], row);
    }
    table->setHorizontalHeaderLabels(captions);
}

void ProfiSAFESlaveWidget::buildRow(Block& block, int row)
{
    QTableWidget* table = ui->tableWidget;
    auto* bit = new QTableWidgetItem;
    bit->setTextAlignment(Qt::AlignCenter);
    table->setItem(row, block.firstColumn + BitColumn, bit);
    table->setItem(row, block.firstColumn + TextColumn, new QTableWidgetItem);

    auto* cell = new QWidget(table);
    auto* layout = new QHBoxLayout(cell);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* light = new QLabel(cell);
    light->setObjectName(QStringLiteral("pfs[%1]_%2").arg(&block - m_blocks.data()).arg(row));
    light->setProperty("light", true);
    layout->addWidget(light, 0, Qt::AlignCenter);
    table->setCellWidget(row, block.firstColumn + LightColumn, cell);
    block.lights.emplace_back(light, StatusLight::Face::Enabled, LightSize);
}

void ProfiSAFESlaveWidget::showEvent(QShowEvent* event)
{
    if (!m_descriptionsLoaded)
        scheduleOnce(DescriptionDelayMs, &ProfiSAFESlaveWidget::slotGetDescData);
    PageBase::showEvent(event);
}

void ProfiSAFESlaveWidget::slotGetDescData()
{
    const QPointer<ProfiSAFESlaveWidget> self(this);
    QMap<int, QString> outputs;
    QMap<int, QString> inputs;
    const bool read = BusFileDataManager::getInstance()->getAndReadPfsDesc(outputs, inputs);
    if (!self || !read)
        return;
    m_blocks[0].descriptions = outputs;
    m_blocks[1].descriptions = inputs;
    m_descriptionsLoaded = true;
    for (const Block& block : m_blocks)
        showDescriptions(block);
    ui->tableWidget->resizeRowsToContents();
}

// The vector has more bits than the table has rows; a description of one of those has no place.
void ProfiSAFESlaveWidget::showDescriptions(const Block& block)
{
    for (auto bit = block.descriptions.begin(); bit != block.descriptions.end(); ++bit) {
        if (bit.key() < 0 || bit.key() >= RowCount)
            continue;
        ui->tableWidget->item(bit.key(), block.firstColumn + BitColumn)->setText(QString::number(bit.key()));
        ui->tableWidget->item(bit.key(), block.firstColumn + TextColumn)->setText(bit.value());
    }
}

void ProfiSAFESlaveWidget::on_btn_emgReset_clicked()
{
    give(m_emergencyReset);
}

void ProfiSAFESlaveWidget::on_btn_errorConfir_clicked()
{
    give(m_errorConfirmation);
}

void ProfiSAFESlaveWidget::give(Command& command)
{
    const bool given = command.button->isChecked();
    io_man_profisafe_local_wo[CommandElement].setValue(given ? command.value : NoCommand);
    command.pending = command.pending || given;
}

void ProfiSAFESlaveWidget::refreshStatus()
{
    refreshCommands();
    refreshVoltage();
    // Until then nothing is cached, so that what stood before the descriptions came is shown with them.
    if (m_descriptionsLoaded)
        refreshProcessData();
}

// A command that was found standing at the first refresh is not pending: it was not given here.
void ProfiSAFESlaveWidget::refreshCommands()
{
    const int word = command();
    for (Command* command : {&m_errorConfirmation, &m_emergencyReset}) {
        const QSignalBlocker blocker(command->button);
        if (m_firstRefresh && (word & command->value) != 0)
            command->button->setChecked(true);
        if (command->pending && word == NoCommand) {
            command->pending = false;
            command->button->setChecked(false);
        }
    }
    m_firstRefresh = false;
}

void ProfiSAFESlaveWidget::refreshVoltage()
{
    const int mode = io_man_profisafe_local_ro[VoltageElement].getValue() & VoltageMask;
    if (mode == m_feedVoltage)
        return;
    m_feedVoltage = mode;
    ui->label_voltage->setText(tr(VoltageTexts[mode]));
}

void ProfiSAFESlaveWidget::refreshProcessData()
{
    for (int element = 0; element < ElementCount; ++element) {
        const int value = io_man_profisafe_ext_ro[element].getValue();
        int& shown = m_processData[static_cast<std::size_t>(element)];
        if (value == shown)
            continue;
        showChangedBits(element, static_cast<unsigned>(value ^ shown), static_cast<unsigned>(value));
        shown = value;
    }
}

// The outputs are the first half of the elements, the inputs the second.
void ProfiSAFESlaveWidget::showChangedBits(int element, unsigned changed, unsigned value)
{
    constexpr int ElementsPerBlock = ElementCount / 2;
    Block& block = m_blocks[static_cast<std::size_t>(element / ElementsPerBlock)];
    for (int bit = 0; bit < BitsPerElement; ++bit) {
        const int row = element % ElementsPerBlock * BitsPerElement + bit;
        if ((changed >> bit & 1U) != 0 && row < RowCount && block.descriptions.contains(row))
            block.lights[static_cast<std::size_t>(row)].show((value >> bit & 1U) != 0);
    }
}
