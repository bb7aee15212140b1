#ifndef DEVICENETTABLE_H
#define DEVICENETTABLE_H

#include "DeviceNetScanList.h"

#include <QTableWidget>

/// Shows a scan list, a row a device, with the connection states in the last column.
class DeviceNetTable : public QTableWidget
{
    Q_OBJECT

public:
    explicit DeviceNetTable(QWidget* parent = nullptr);

    /// Caption of a column: the keyword of the file, in every language.
    static QString caption(int column);

    /// Builds all rows anew.
    void showList(const DeviceNetScanList& list);
    /// Shows a device in its row, which is appended when the table does not have it yet.
    void showRow(const DeviceNetScanList& list, int row);
    /// Tints what a press changes, and marks the row that would be deleted, while the list is edited.
    void markEditable(bool isEditing);
    void showConnection(int row, const QString& text);
};

#endif
