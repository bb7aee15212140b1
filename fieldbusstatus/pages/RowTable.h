#ifndef ROWTABLE_H
#define ROWTABLE_H

#include <QTableWidget>

#include <vector>

/// A table under a finger whose rows are shown as a whole: what is the same as before is not touched, so that
/// it costs no paint and stays where it was scrolled to. Long texts are wrapped.
class RowTable : public QTableWidget
{
    Q_OBJECT

public:
    struct Row
    {
        static constexpr int NoTarget = -1;

        QStringList cells;
        const char* sign = nullptr; ///< in the first cell: picture below ":/status/", without ".png"
        bool isHeading = false;     ///< the first cell over the whole width
        int target = NoTarget;      ///< what a touch of the row asks for

        bool operator==(const Row& other) const
        {
            return cells == other.cells && sign == other.sign && isHeading == other.isHeading &&
                   target == other.target;
        }
    };
    using Rows = std::vector<Row>;

    /// `name` is the object name, `title` what the table is called for who cannot see it. The column `wide`
    /// takes the width that the others leave.
    RowTable(const char* name, const QString& title, const QStringList& headers, int wide, QWidget* parent);

    void setWidths(std::initializer_list<int> widths);
    void show(const Rows& rows);
    const Rows& rows() const { return m_rows; }

signals:
    void targetPressed(int target);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void showRow(int index, const Row& row);
    void fitRow(int row);

    Rows m_rows;
};

#endif
