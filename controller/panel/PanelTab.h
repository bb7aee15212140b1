#ifndef CONTROLLER_PANEL_PANELTAB_H
#define CONTROLLER_PANEL_PANELTAB_H

#include <QWidget>

class SimulatedController;

/// A tab of the panel. It shows the controller as it is, whoever changed it.
class PanelTab : public QWidget
{
    Q_OBJECT

public:
    explicit PanelTab(SimulatedController& simulated, QWidget* parent = nullptr)
        : QWidget(parent)
        , m_controller(simulated)
    {
    }

    /// Takes the state over; called some times a second while the tab is in sight.
    virtual void refresh() = 0;

protected:
    SimulatedController& controller() const { return m_controller; }

private:
    SimulatedController& m_controller;
};

#endif
