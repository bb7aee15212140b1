#ifndef CONTROLLER_PANEL_LOGTAB_H
#define CONTROLLER_PANEL_LOGTAB_H

#include "PanelTab.h"

/// Every transfer and write since the panel was opened.
class LogTab : public PanelTab
{
    Q_OBJECT

public:
    explicit LogTab(SimulatedController& simulated, QWidget* parent = nullptr);

    /// The log follows by itself.
    void refresh() override {}
};

#endif
