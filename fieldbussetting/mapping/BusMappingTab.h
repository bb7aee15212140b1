#ifndef BUSMAPPINGTAB_H
#define BUSMAPPINGTAB_H

#include "MappingModel.h"

#include <QWidget>

class QBoxLayout;
class QButtonGroup;
class QLabel;
class QTableWidget;

/// The tab of one bus: its directions, one of which is chosen, and the table that shows it.
class BusMappingTab : public QWidget
{
    Q_OBJECT

public:
    explicit BusMappingTab(Mapping::Bus bus);

    static QString captionOf(Mapping::Bus bus);

    Mapping::Bus bus() const { return m_bus; }
    /// The buttons by Mapping::Direction.
    QButtonGroup* directions() const { return m_directions; }
    /// The table that the tab and its chosen direction stand for.
    int tableNumber() const;
    QTableWidget* table() const { return m_table; }

    /// Brings the table to what the model says, and marks what can be entered while it is edited. What is the
    /// same is not touched.
    void showTable(const MappingModel& model, bool editing);
    /// Puts the limits of the table beside its directions. A label can be in one tab only, the one on view.
    void takeTips(QLabel* tips);

private:
    void buildTable();
    void setRowCount(int count);
    int heightOf(int rows) const;

    Mapping::Bus m_bus;
    QButtonGroup* m_directions;
    QBoxLayout* m_head;
    QTableWidget* m_table;
};

#endif
