#include "DeviceTable.h"

#include "EditWatch.h"
#include "TouchTable.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QScrollBar>
#include <QTableWidget>

namespace {

// In pixels.
constexpr int RowHeight = 45;
constexpr int ScrollBarWidth = 30;
constexpr int BoxSize = 40;
constexpr int SpacerHeight = 20;

enum Column { IndexColumn, IdColumn, AddressColumn, NameColumn, ActivateColumn };

struct ColumnTexts
{
    const char* caption;
    int width; // pixels
};

// In the order of Column.
constexpr ColumnTexts Columns[] = {
    {QT_TRANSLATE_NOOP("DeviceTable", "Index"), 80},
    {QT_TRANSLATE_NOOP("DeviceTable", "ID"), 100},
    {QT_TRANSLATE_NOOP("DeviceTable", "Address"), 150},
    {QT_TRANSLATE_NOOP("DeviceTable", "Function Name"), 250},
    {QT_TRANSLATE_NOOP("DeviceTable", "Activate"), 150},
};

QCheckBox* makeBoxIn(QWidget* cell)
{
    auto* box = new QCheckBox(cell);
    box->setFixedSize(BoxSize, BoxSize);
    auto* layout = new QHBoxLayout(cell);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addSpacerItem(new QSpacerItem(BoxSize, SpacerHeight, QSizePolicy::Expanding));
    layout->addWidget(box);
    layout->addSpacerItem(new QSpacerItem(BoxSize, SpacerHeight, QSizePolicy::Expanding));
    return box;
}

} // namespace

DeviceTable::DeviceTable(QTableWidget* table)
    : m_table(table)
{
    TouchTable::prepare(m_table);
    m_table->setRowCount(RowCount);
    m_table->setColumnCount(static_cast<int>(std::size(Columns)));
    int column = 0;
    for (const ColumnTexts& texts : Columns) {
        m_table->setHorizontalHeaderItem(
            column, new QTableWidgetItem(QCoreApplication::translate("DeviceTable", texts.caption)));
        m_table->setColumnWidth(column++, texts.width);
    }
    m_table->horizontalHeader()->setMinimumHeight(RowHeight);
    m_table->horizontalHeader()->setDefaultAlignment(Qt::AlignCenter | Qt::Alignment(Qt::TextWordWrap));
    m_table->horizontalHeader()->setVisible(true);
    m_table->verticalHeader()->setDefaultSectionSize(RowHeight);
    m_table->verticalHeader()->setVisible(false);
    m_table->verticalScrollBar()->setFixedWidth(ScrollBarWidth);
    // A glove that misses the box still meets its cell.
    QObject::connect(m_table, &QTableWidget::cellClicked, m_table, [this](int row, int clickedColumn) {
        if (clickedColumn == ActivateColumn && box(row))
            box(row)->click();
    });
}

void DeviceTable::fill(const OverrideRecord& record)
{
    int shown = 0;
    for (int row = 0; row < RowCount; ++row) {
        const OverrideEntry& entry = record.entries[static_cast<std::size_t>(row)];
        clearRow(row);
        // The entries behind the count are those of a longer file that was read before.
        if (row < record.count && entry.slot > 0)
            fillRow(row, ++shown, entry);
    }
    // By the count, not by what stands in a row: the controller's file lists the used entries first.
    for (int row = 0; row < RowCount; ++row)
        m_table->setRowHidden(row, row >= shown);
    showFlags(record);
}

void DeviceTable::fillRow(int row, int number, const OverrideEntry& entry)
{
    const QString texts[] = {QString::number(number), QString::number(entry.slot),
                             QString::number(entry.number), entry.name};
    int column = 0;
    for (const QString& text : texts) {
        auto* item = new QTableWidgetItem(text);
        item->setTextAlignment(Qt::AlignCenter);
        m_table->setItem(row, column++, item);
    }
    auto* cell = new QWidget;
    cell->setObjectName(QStringLiteral("editableCell"));
    cell->setAttribute(Qt::WA_StyledBackground);
    QCheckBox* box = makeBoxIn(cell);
    box->setAccessibleName(QStringLiteral("%1 %2").arg(number).arg(entry.name));
    m_boxes[static_cast<std::size_t>(row)] = box;
    m_table->setCellWidget(row, ActivateColumn, cell);
}

void DeviceTable::clearRow(int row)
{
    for (int column = IndexColumn; column < ActivateColumn; ++column)
        delete m_table->takeItem(row, column);
    m_table->removeCellWidget(row, ActivateColumn);
    m_boxes[static_cast<std::size_t>(row)] = nullptr;
}

void DeviceTable::showFlags(const OverrideRecord& record)
{
    for (std::size_t row = 0; row < m_boxes.size(); ++row) {
        if (m_boxes[row])
            m_boxes[row]->setChecked(record.entries[row].off);
    }
}

void DeviceTable::watch(EditWatch& edits) const
{
    for (QCheckBox* box : m_boxes) {
        if (box)
            edits.add(box);
    }
}

void DeviceTable::storeFlags(OverrideRecord& record) const
{
    for (std::size_t row = 0; row < m_boxes.size(); ++row) {
        if (m_boxes[row])
            record.entries[row].off = m_boxes[row]->isChecked();
    }
}
