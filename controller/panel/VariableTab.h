#ifndef CONTROLLER_PANEL_VARIABLETAB_H
#define CONTROLLER_PANEL_VARIABLETAB_H

#include "PanelTab.h"

/// Every variable, searchable and editable.
class VariableTab : public PanelTab
{
    Q_OBJECT

public:
    explicit VariableTab(SimulatedController& simulated, QWidget* parent = nullptr);

    /// The table follows by itself.
    void refresh() override {}
};

#endif
