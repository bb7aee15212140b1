#ifndef MASTERSLAVELIST_H
#define MASTERSLAVELIST_H

#include "MasterSlaveRow.h"

#include <vector>

class QScrollArea;

/// The slave positions of a master under their captions; what does not fit scrolls. It asks for no
/// more height than the positions in sight need.
class MasterSlaveList : public QWidget
{
public:
    static constexpr int PositionCount = MasterSlaveTable::PositionCount;

    /// The style of the page must be applied before: columns are as wide as their captions need.
    MasterSlaveList(const MasterSlaveRow::Names& names, QWidget* parent);

    /// Shows the first `count` positions, 0 to PositionCount.
    void setCount(int count);
    /// `index` counts from 0.
    MasterSlaveRow& row(int index) { return *m_rows[static_cast<std::size_t>(index)]; }

    QSize sizeHint() const override;

    void fill(const MasterSlaveTable& record);
    void store(MasterSlaveTable& record) const;

private:
    MasterSlaveRow::Widths addCaptions();

    QWidget* m_captions;
    QScrollArea* m_scroll;
    int m_count = 0;
    std::vector<MasterSlaveRow*> m_rows;
};

#endif
