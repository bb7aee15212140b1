#include "TransferTable.h"

#include <QHeaderView>
#include <QTableWidget>

namespace {
constexpr int TargetHeight = 56; // of a row that is chosen
constexpr int TextHeight = 40;   // of one that is only read
} // namespace

void TransferTable::prepare(QTableWidget& table, const QStringList& captions,
                            QAbstractItemView::SelectionMode selection)
{
    table.setColumnCount(captions.size());
    table.setHorizontalHeaderLabels(captions);
    table.setSelectionMode(selection);
    table.setSelectionBehavior(QAbstractItemView::SelectRows);
    table.setEditTriggers(QAbstractItemView::NoEditTriggers);
    table.setFocusPolicy(Qt::NoFocus);
    table.setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    table.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    table.verticalHeader()->hide();
    // A long name takes two lines.
    const bool isTarget = selection != QAbstractItemView::NoSelection;
    table.verticalHeader()->setMinimumSectionSize(isTarget ? TargetHeight : TextHeight);
    table.verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    table.horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    table.horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    table.horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    table.horizontalHeader()->setHighlightSections(false);
}

void TransferTable::addRow(QTableWidget& table, const QStringList& texts, bool stressed)
{
    const int row = table.rowCount();
    table.insertRow(row);
    for (int column = 0; column < texts.size(); ++column) {
        auto* item = new QTableWidgetItem(texts[column]);
        QFont font = item->font();
        font.setBold(stressed);
        item->setData(Qt::FontRole, stressed ? QVariant(font) : QVariant());
        table.setItem(row, column, item);
    }
}
