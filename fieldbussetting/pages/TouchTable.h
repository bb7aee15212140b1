#ifndef TOUCHTABLE_H
#define TOUCHTABLE_H

class QTableWidget;

/// A table under a finger.
namespace TouchTable {

/// Cells tell of a press and do nothing else: no editor opens, nothing is marked, no key goes there. Rows
/// move with the finger and not one at a time.
void prepare(QTableWidget* table);

} // namespace TouchTable

#endif
