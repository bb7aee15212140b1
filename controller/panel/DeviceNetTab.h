#ifndef CONTROLLER_PANEL_DEVICENETTAB_H
#define CONTROLLER_PANEL_DEVICENETTAB_H

#include "PanelTab.h"

class QTableWidget;

/// The simulated DeviceNet network: which MAC IDs are on it, and what the master says of those it scans.
class DeviceNetTab : public PanelTab
{
    Q_OBJECT

public:
    explicit DeviceNetTab(SimulatedController& simulated, QWidget* parent = nullptr);

    void refresh() override;

private:
    QTableWidget* m_table;
};

#endif
