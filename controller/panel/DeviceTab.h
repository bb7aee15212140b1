#ifndef CONTROLLER_PANEL_DEVICETAB_H
#define CONTROLLER_PANEL_DEVICETAB_H

#include "PanelTab.h"

#include <vector>

class QFormLayout;
class QLineEdit;
class QSpinBox;
class QTableWidget;

/// The network ports and the ProfiSAFE device.
class DeviceTab : public PanelTab
{
    Q_OBJECT

public:
    explicit DeviceTab(SimulatedController& simulated, QWidget* parent = nullptr);

    void refresh() override;

private:
    struct PortRow
    {
        QString port;
        QLineEdit* ip;
        QLineEdit* netmask;
    };

    void addPort(QFormLayout* form, const QString& port);
    void makeBitTable();

    std::vector<PortRow> m_ports;
    QSpinBox* m_feedVoltage;
    QTableWidget* m_bits; // a column a block
};

#endif
