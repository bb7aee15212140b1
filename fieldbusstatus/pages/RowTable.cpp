#include "RowTable.h"

#include <QHeaderView>

#include <algorithm>

namespace {
constexpr int TargetHeight = 48;
constexpr int SignSize = 30;
constexpr int HeaderLine = 24;
} // namespace

RowTable::RowTable(const char* name, const QString& title, const QStringList& headers, int wide,
                   QWidget* parent)
    : QTableWidget(0, headers.size(), parent)
{
    setObjectName(QLatin1String(name));
    setAccessibleName(title);
    setHorizontalHeaderLabels(headers);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionMode(QAbstractItemView::NoSelection);
    setFocusPolicy(Qt::NoFocus);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setShowGrid(false);
    setAlternatingRowColors(true);
    setWordWrap(true);
    setIconSize({SignSize, SignSize});
    verticalHeader()->hide();
    verticalHeader()->setMinimumSectionSize(TargetHeight);
    horizontalHeader()->setSectionsClickable(false);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setSectionResizeMode(wide, QHeaderView::Stretch);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter |
                                            Qt::Alignment(Qt::TextWordWrap));
    const int lines = 1 + static_cast<int>(headers.join(QString()).contains(QLatin1Char('\n')));
    horizontalHeader()->setFixedHeight((lines + 1) * HeaderLine - HeaderLine / 2);
    connect(this, &QTableWidget::cellClicked, this, [this](int row, int /*column*/) {
        const int target = m_rows[static_cast<std::size_t>(row)].target;
        if (target != Row::NoTarget)
            emit targetPressed(target);
    });
}

void RowTable::setWidths(std::initializer_list<int> widths)
{
    int column = 0;
    for (const int width : widths)
        setColumnWidth(column++, width);
}

void RowTable::show(const Rows& rows)
{
    const std::size_t kept = std::min(rows.size(), m_rows.size());
    setRowCount(static_cast<int>(rows.size()));
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (i >= kept || !(rows[i] == m_rows[i]))
            showRow(static_cast<int>(i), rows[i]);
    }
    m_rows = rows;
}

void RowTable::showRow(int index, const Row& row)
{
    const int span = row.isHeading ? columnCount() : 1;
    if (columnSpan(index, 0) != span)
        setSpan(index, 0, 1, span);
    for (int column = 0; column < columnCount(); ++column) {
        auto* cell = new QTableWidgetItem(row.cells.value(column));
        cell->setTextAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        if (column == 0 && row.sign)
            cell->setIcon(QIcon(QStringLiteral(":/status/%1.png").arg(QLatin1String(row.sign))));
        if (row.isHeading) {
            QFont bold = font();
            bold.setBold(true);
            cell->setFont(bold);
        }
        setItem(index, column, cell);
    }
    fitRow(index);
}

void RowTable::fitRow(int row)
{
    // A heading has the whole width, which the size hint of its cell does not know.
    const bool isHeading = columnSpan(row, 0) > 1;
    setRowHeight(row, isHeading ? TargetHeight : std::max(TargetHeight, sizeHintForRow(row)));
}

void RowTable::resizeEvent(QResizeEvent* event)
{
    QTableWidget::resizeEvent(event);
    for (int row = 0; row < rowCount(); ++row)
        fitRow(row);
}
