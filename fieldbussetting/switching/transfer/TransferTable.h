#ifndef TRANSFERTABLE_H
#define TRANSFERTABLE_H

#include <QAbstractItemView>
#include <QStringList>

class QTableWidget;

/// The read-only tables of the import's dialogs: rows for a finger, scrolled by a finger.
namespace TransferTable {

/// Sets a table of a form up; the first column takes the room that is left.
void prepare(QTableWidget& table, const QStringList& captions, QAbstractItemView::SelectionMode selection);

/// Appends a row; `stressed` shows it in bold.
void addRow(QTableWidget& table, const QStringList& texts, bool stressed = false);

} // namespace TransferTable

#endif
