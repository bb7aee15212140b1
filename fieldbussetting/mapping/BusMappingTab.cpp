#include "BusMappingTab.h"

#include "MappingService.h"
#include "TouchCheckBox.h"
#include "TouchTable.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QHeaderView>
#include <QLabel>
#include <QTableWidget>

using namespace Mapping;

namespace {

struct Names
{
    const char* tab;
    const char* caption;
    const char* widgets; ///< what the names of the check boxes and the table have in common
};
constexpr std::array<Names, BusCount> AllNames = {{
    // by Mapping::Bus
    {"tab_Mtcp", QT_TRANSLATE_NOOP("ConfigWidget", "Mtcp Slave"), "Mtcp"},
    {"tab_Ethcat", QT_TRANSLATE_NOOP("ConfigWidget", "Ecat Slave"), "Ethcat"},
    {"tab_Eip", QT_TRANSLATE_NOOP("ConfigWidget", "Eip Slave"), "Eip"},
    {"tab_Pfn", QT_TRANSLATE_NOOP("ConfigWidget", "Pfn Slave"), "Pfn"},
    {"tab_ecm", QT_TRANSLATE_NOOP("ConfigWidget", "Ecat Master"), "Ecm"},
    {"tab", QT_TRANSLATE_NOOP("ConfigWidget", "Dn Slave "), "Dns"},
    {"tab_2", QT_TRANSLATE_NOOP("ConfigWidget", "Mtcp Master"), "Mbc"},
    {"tab_3", QT_TRANSLATE_NOOP("ConfigWidget", "Eip Master"), "Eim"},
    {"tab_4", QT_TRANSLATE_NOOP("ConfigWidget", "Pfn Master"), "Pnm"},
    {"tab_5", QT_TRANSLATE_NOOP("ConfigWidget", "Dn Master"), "Dnm"},
}};

struct DirectionNames
{
    const char* suffix;
    const char* caption;
};
constexpr DirectionNames AllDirections[] = { // by Mapping::Direction
    {"RO", QT_TRANSLATE_NOOP("ConfigWidget", "Read Only")},
    {"WO", QT_TRANSLATE_NOOP("ConfigWidget", "Write Only")},
    {"RW", QT_TRANSLATE_NOOP("ConfigWidget", "Read and Write")}};

struct ColumnLook
{
    const char* caption;
    int width; ///< 0: what is left
    Qt::Alignment alignment;
};
constexpr Qt::Alignment Left = Qt::AlignLeft | Qt::AlignVCenter;
constexpr Qt::Alignment Right = Qt::AlignRight | Qt::AlignVCenter;
constexpr std::array<ColumnLook, MappingModel::ColumnCount> Columns = {{
    {QT_TRANSLATE_NOOP("ConfigWidget", "Data Type"), 127, Left},
    {QT_TRANSLATE_NOOP("ConfigWidget", "Quantity"), 96, Right},
    {QT_TRANSLATE_NOOP("ConfigWidget", "Byte"), 54, Right},
    {QT_TRANSLATE_NOOP("ConfigWidget", "Start Address"), 140, Left},
    {QT_TRANSLATE_NOOP("ConfigWidget", "End Address"), 90, Left},
    {QT_TRANSLATE_NOOP("ConfigWidget", "Bus Variable"), 0, Left},
}};

constexpr int RowHeight = 48;
constexpr int RowNumberWidth = 26;
constexpr int HeaderHeight = 46; // two lines
constexpr int Gap = 8;
constexpr int SmallGap = 4;

const Names& namesOf(Bus bus)
{
    return AllNames.at(static_cast<std::size_t>(bus));
}

QTableWidgetItem* makeItem(int column)
{
    auto* item = new QTableWidgetItem;
    item->setTextAlignment(static_cast<int>(Columns.at(static_cast<std::size_t>(column)).alignment));
    return item;
}

void setText(QTableWidgetItem* item, const QString& text)
{
    if (item->text() != text)
        item->setText(text);
}

} // namespace

BusMappingTab::BusMappingTab(Bus bus)
    : m_bus(bus)
    , m_directions(new QButtonGroup(this))
    , m_head(new QHBoxLayout)
    , m_table(new QTableWidget(0, MappingModel::ColumnCount, this))
{
    const Names& names = namesOf(bus);
    setObjectName(QLatin1String(names.tab));

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(SmallGap, SmallGap, SmallGap, SmallGap);
    layout->setSpacing(SmallGap);
    layout->addLayout(m_head);
    layout->addWidget(m_table);
    layout->addStretch(1);

    auto* choices = new QVBoxLayout;
    choices->setSpacing(Gap);
    m_head->setSpacing(Gap);
    m_head->addLayout(choices);
    for (int direction = 0; direction < infoOf(bus).directions; ++direction) {
        auto* choice = new TouchCheckBox(translated(AllDirections[direction].caption), this);
        choice->setObjectName(
            QStringLiteral("checkBox_%1_%2")
                .arg(QLatin1String(names.widgets), QLatin1String(AllDirections[direction].suffix)));
        choice->setChecked(direction == 0);
        choices->addWidget(choice, 0, Qt::AlignLeft);
        m_directions->addButton(choice, direction);
    }
    choices->addStretch(1);
    m_table->setObjectName(QLatin1String("tableView_") + QLatin1String(names.widgets));
    buildTable();
}

void BusMappingTab::buildTable()
{
    TouchTable::prepare(m_table); // marks are the page's, not the finger's
    m_table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_table->setWordWrap(true); // a row has room for two lines
    // As high as its rows when there is room, and scrolled when there is not.
    m_table->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
    m_table->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Maximum);
    m_table->setMinimumHeight(heightOf(1));

    QStringList captions;
    for (const ColumnLook& column : Columns)
        captions << translated(column.caption);
    m_table->setHorizontalHeaderLabels(captions);
    QHeaderView* header = m_table->horizontalHeader();
    header->setHighlightSections(false);
    header->setStretchLastSection(true);
    header->setSectionResizeMode(QHeaderView::Fixed);
    header->setFixedHeight(HeaderHeight);
    header->setDefaultAlignment(QFlag(int(Qt::AlignCenter) | int(Qt::TextWordWrap)));
    for (int column = 0; column < MappingModel::ColumnCount; ++column) {
        if (const int width = Columns.at(static_cast<std::size_t>(column)).width)
            m_table->setColumnWidth(column, width);
    }
    QHeaderView* numbers = m_table->verticalHeader();
    numbers->setHighlightSections(false);
    numbers->setSectionResizeMode(QHeaderView::Fixed);
    numbers->setDefaultSectionSize(RowHeight);
    numbers->setFixedWidth(RowNumberWidth);
    numbers->setDefaultAlignment(Qt::AlignCenter);
}

int BusMappingTab::heightOf(int rows) const
{
    return HeaderHeight + rows * RowHeight + 2 * m_table->frameWidth();
}

QString BusMappingTab::captionOf(Bus bus)
{
    return translated(namesOf(bus).caption);
}

int BusMappingTab::tableNumber() const
{
    return numberOf(m_bus, static_cast<Direction>(m_directions->checkedId()));
}

void BusMappingTab::setRowCount(int count)
{
    if (m_table->rowCount() == count)
        return;
    m_table->setRowCount(count);
    for (int row = 0; row < count; ++row) {
        for (int column = 0; column < MappingModel::ColumnCount; ++column)
            m_table->setItem(row, column, makeItem(column));
        m_table->setVerticalHeaderItem(row, new QTableWidgetItem);
    }
}

void BusMappingTab::showTable(const MappingModel& model, bool editing)
{
    const int number = tableNumber();
    const std::vector<MappingModel::Row> rows = model.rowsOf(number);
    setRowCount(static_cast<int>(rows.size()));
    QItemSelection marked;
    int rowNumber = 0; // of the rows on view
    int row = 0;
    for (const MappingModel::Row& shown : rows) {
        for (int column = 0; column < MappingModel::ColumnCount; ++column) {
            setText(m_table->item(row, column), column == MappingModel::TypeColumn
                                                    ? translated(shown.typeText)
                                                    : shown.cells.at(static_cast<std::size_t>(column)));
            if (editing && model.pressed(number, shown, column).kind != MappingModel::Press::Nothing)
                marked.append(QItemSelectionRange(m_table->model()->index(row, column)));
        }
        if (m_table->isRowHidden(row) != shown.isHidden)
            m_table->setRowHidden(row, shown.isHidden);
        if (!shown.isHidden)
            setText(m_table->verticalHeaderItem(row), QString::number(++rowNumber));
        ++row;
    }
    // A table asks for more than a single row takes.
    if (m_table->maximumHeight() != heightOf(rowNumber))
        m_table->setMaximumHeight(heightOf(rowNumber));
    if (!marked.isEmpty() || m_table->selectionModel()->hasSelection())
        m_table->selectionModel()->select(marked, QItemSelectionModel::ClearAndSelect);
}

void BusMappingTab::takeTips(QLabel* tips)
{
    m_head->addWidget(tips, 1, Qt::AlignTop);
}
