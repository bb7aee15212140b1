#ifndef CONTROLLER_PANEL_FAULTTAB_H
#define CONTROLLER_PANEL_FAULTTAB_H

#include "PanelTab.h"

class QTableWidget;
class QTableWidgetItem;

/// What can go wrong: each fault with how often it still strikes (-1: always, 0: never) and whom.
class FaultTab : public PanelTab
{
    Q_OBJECT

public:
    explicit FaultTab(SimulatedController& simulated, QWidget* parent = nullptr);

    void refresh() override;

private:
    void takeEdit(const QTableWidgetItem* item);

    QTableWidget* m_table;
};

#endif
