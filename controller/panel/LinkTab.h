#ifndef CONTROLLER_PANEL_LINKTAB_H
#define CONTROLLER_PANEL_LINKTAB_H

#include "PanelTab.h"

class QTableWidget;

/// The bus roles: which run, whose cable is plugged in, whose link is up.
class LinkTab : public PanelTab
{
    Q_OBJECT

public:
    explicit LinkTab(SimulatedController& simulated, QWidget* parent = nullptr);

    void refresh() override;

private:
    QTableWidget* m_table;
};

#endif
