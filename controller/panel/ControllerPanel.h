#ifndef CONTROLLER_PANEL_CONTROLLERPANEL_H
#define CONTROLLER_PANEL_CONTROLLERPANEL_H

#include "FinsPageAccess.h"

#include <QTimer>
#include <QWidget>

class PanelTab;
class QTabWidget;
class SimulatedController;

/// The window that shows and drives the simulated controller, and what the pendant has around it. The
/// controller must outlive it.
class ControllerPanel : public QWidget
{
    Q_OBJECT

public:
    explicit ControllerPanel(SimulatedController& controller, const FinsPageAccess& finsPage = {},
                             QWidget* parent = nullptr);

private:
    void addTab(PanelTab* tab, const QString& objectName, const QString& caption);
    void refresh();

    QTabWidget* m_tabs;
    QTimer m_timer;
};

#endif
