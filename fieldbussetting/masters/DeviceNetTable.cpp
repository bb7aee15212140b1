#include "DeviceNetTable.h"

#include "TouchTable.h"

#include <QHeaderView>

namespace {

using List = DeviceNetScanList;

struct TableColumn
{
    const char* caption;
    int width; // pixels
};

// In the order of DeviceNetScanList::Column; captions are the same in every language. Together with the
// scroll bar and the frame they are as wide as the table, 808 px.
constexpr TableColumn Columns[] = {
    {"DEVICEID", 91}, {"MACID", 71},     {"IN", 56},       {"OUT", 56},      {"VENDOR", 106},
    {"PROD", 86},     {"REVISION", 116}, {"CFG_FLAG", 74}, {"CONNECT", 120},
};
static_assert(std::size(Columns) == List::ColumnCount);

constexpr int TableWidth = 808;
constexpr int HeaderHeight = 35;
constexpr int RowHeight = 40;
constexpr int MarkSize = 16;

// What is wider than its column is set narrower rather than smaller.
constexpr int CaptionStretch = 75; // per cent
constexpr int FlagStretch = 85;    // "0x4444"
constexpr int StateStretch = 68;   // "Disconnected::12"

// A file may hold what could not be entered.
bool isOutside(const List& list, int row, int column)
{
    const List::Range range = List::rangeOf(column);
    const double number = list.number(row, column);
    return number < range.minimum || number > range.maximum;
}

void markOutside(QTableWidgetItem* cell, bool isOutside)
{
    if (cell->icon().isNull() == isOutside)
        cell->setIcon(isOutside ? QIcon(QStringLiteral(":/image/C0_Done_warning.png")) : QIcon());
}

QFont stretched(int percent)
{
    QFont font;
    font.setStretch(percent);
    return font;
}

} // namespace

DeviceNetTable::DeviceNetTable(QWidget* parent)
    : QTableWidget(0, List::ColumnCount, parent)
{
    setFixedWidth(TableWidth);
    TouchTable::prepare(this);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // Of a state that is still too long the code at its end is what matters.
    setWordWrap(false);
    setIconSize({MarkSize, MarkSize});
    setTextElideMode(Qt::ElideLeft);
    verticalHeader()->hide();
    horizontalHeader()->setFixedHeight(HeaderHeight);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setStretchLastSection(true); // without a scroll bar
    horizontalHeader()->setFont(stretched(CaptionStretch));
    for (int column = 0; column < List::ColumnCount; ++column) {
        setHorizontalHeaderItem(column, new QTableWidgetItem(caption(column)));
        setColumnWidth(column, Columns[column].width);
    }
}

QString DeviceNetTable::caption(int column)
{
    return QLatin1String(Columns[column].caption);
}

void DeviceNetTable::showList(const DeviceNetScanList& list)
{
    setRowCount(0);
    for (int row = 0; row < list.count(); ++row)
        showRow(list, row);
}

void DeviceNetTable::showRow(const DeviceNetScanList& list, int row)
{
    if (row == rowCount()) {
        insertRow(row);
        setRowHeight(row, RowHeight);
        for (int column = 0; column < List::ColumnCount; ++column) {
            auto* cell = new QTableWidgetItem;
            cell->setTextAlignment(Qt::AlignCenter);
            setItem(row, column, cell);
        }
        item(row, List::CfgFlag)->setFont(stretched(FlagStretch));
        item(row, List::Connect)->setFont(stretched(StateStretch));
    }
    for (int column = 0; column < List::Connect; ++column) {
        item(row, column)->setText(list.text(row, column));
        markOutside(item(row, column), List::isEditable(column) && isOutside(list, row, column));
    }
}

// Delete takes the last row.
void DeviceNetTable::markEditable(bool isEditing)
{
    QItemSelection editable;
    for (int row = 0; row < rowCount(); ++row) {
        const bool isNext = isEditing && row == rowCount() - 1;
        item(row, List::DeviceId)
            ->setIcon(isNext ? QIcon(QStringLiteral(":/image/row_to_delete.png")) : QIcon());
        for (int column = 0; isEditing && column < List::ColumnCount; ++column) {
            if (List::isEditable(column))
                editable.append(QItemSelectionRange(model()->index(row, column)));
        }
    }
    selectionModel()->select(editable, QItemSelectionModel::ClearAndSelect);
}

void DeviceNetTable::showConnection(int row, const QString& text)
{
    item(row, List::Connect)->setText(text);
}
