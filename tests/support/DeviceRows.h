#ifndef TESTS_DEVICEROWS_H
#define TESTS_DEVICEROWS_H

#include "Finger.h"
#include "PendantFixture.h"

#include <QCheckBox>
#include <QTableWidget>

/// The device table of a page, as an operator sees it.
class DeviceRows
{
public:
    static constexpr int ActivateColumn = 4;

    DeviceRows(PendantFixture& pendant, const QString& table)
        : m_table(pendant.find<QTableWidget>(table))
    {
    }

    QTableWidget* table() const { return m_table; }

    /// Null when the row has none.
    QCheckBox* box(int row) const
    {
        const QWidget* cell = m_table->cellWidget(row, ActivateColumn);
        return cell ? cell->findChild<QCheckBox*>() : nullptr;
    }

    bool press(int row) const
    {
        m_table->scrollTo(m_table->model()->index(row, 0));
        return Finger::press(box(row));
    }

    /// A text a row in sight, the cells joined by blanks, "x" for a box that is ticked.
    QStringList shown() const
    {
        QStringList rows;
        for (int row = 0; row < m_table->rowCount(); ++row) {
            if (m_table->isRowHidden(row))
                continue;
            QStringList cells;
            for (int column = 0; column < ActivateColumn; ++column)
                cells << (m_table->item(row, column) ? m_table->item(row, column)->text() : QString());
            cells << (!box(row)               ? QStringLiteral("-")
                      : box(row)->isChecked() ? QStringLiteral("x")
                                              : QString());
            rows << cells.join(QLatin1Char(' '));
        }
        return rows;
    }

private:
    QTableWidget* m_table;
};

#endif
