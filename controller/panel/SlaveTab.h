#ifndef CONTROLLER_PANEL_SLAVETAB_H
#define CONTROLLER_PANEL_SLAVETAB_H

#include "PanelTab.h"

class QTableWidget;

/// The slave positions of the EtherNet/IP and the PROFINET master: how each is served, whether its slave is
/// plugged in, and what the master says of it.
class SlaveTab : public PanelTab
{
    Q_OBJECT

public:
    explicit SlaveTab(SimulatedController& simulated, QWidget* parent = nullptr);

    void refresh() override;

private:
    QTableWidget* m_table;
};

#endif
