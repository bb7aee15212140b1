#ifndef DEVICETABLE_H
#define DEVICETABLE_H

#include "OverrideFile.h"

#include <array>

class EditWatch;
class QCheckBox;
class QTableWidget;

/// The table of the devices that the override file can switch off, a row a device, with a check box
/// "Activate" in each. It sets up and fills a table widget of the page's form, which must outlive it.
class DeviceTable
{
public:
    static constexpr int RowCount = OverrideRecord::MaxEntries;

    /// Columns, row heights, scrolling; the size is the form's business.
    explicit DeviceTable(QTableWidget* table);
    DeviceTable(const DeviceTable&) = delete;
    DeviceTable& operator=(const DeviceTable&) = delete;

    /// Makes the rows anew, with new check boxes, and shows the record's flags. An entry stands in the row of
    /// its own index, also when entries before it have no slot; as many rows are shown as entries have one.
    void fill(const OverrideRecord& record);
    /// Sets the check boxes by the record.
    void showFlags(const OverrideRecord& record);
    /// Takes the check boxes over into the record. An entry without a check box keeps its flag.
    void storeFlags(OverrideRecord& record) const;

    /// Has the check boxes watched; those of the fill before are gone.
    void watch(EditWatch& edits) const;

    /// The check box of a row, 0 to RowCount - 1; null when the row has none.
    QCheckBox* box(int row) const { return m_boxes[static_cast<std::size_t>(row)]; }

private:
    void fillRow(int row, int number, const OverrideEntry& entry);
    void clearRow(int row);

    QTableWidget* m_table;
    std::array<QCheckBox*, RowCount> m_boxes{};
};

#endif
