#ifndef CONTROLLER_PANEL_ROBOTTAB_H
#define CONTROLLER_PANEL_ROBOTTAB_H

#include "PanelTab.h"

#include <functional>
#include <vector>

class QCheckBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QSpinBox;

/// The robot's state, the module in the fieldbus slot, the user who is logged in, the USB drive.
class RobotTab : public PanelTab
{
    Q_OBJECT

public:
    explicit RobotTab(SimulatedController& simulated, QWidget* parent = nullptr);

    void refresh() override;

private:
    template <typename Widget, typename Value>
    struct Row
    {
        Widget* widget;
        std::function<Value()> get;
    };

    void addSwitches(QFormLayout* form);
    void addSwitch(QFormLayout* form, const QString& objectName, const QString& caption,
                   const std::function<bool()>& get, const std::function<void(bool)>& set);
    void addNumber(QFormLayout* form, const QString& objectName, const QString& caption, int maximum,
                   const std::function<int()>& get, const std::function<void(int)>& set);
    QWidget* makeUsbRow();
    std::function<double()> reading(const QString& variable) const;
    std::function<void(double)> writing(const QString& variable) const;

    std::vector<Row<QCheckBox, bool>> m_switches;
    std::vector<Row<QSpinBox, int>> m_numbers;
    QLabel* m_power;
    QLabel* m_usb = nullptr;
    QLineEdit* m_usbPath = nullptr;
};

#endif
