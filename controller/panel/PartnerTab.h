#ifndef CONTROLLER_PANEL_PARTNERTAB_H
#define CONTROLLER_PANEL_PARTNERTAB_H

#include "Faults.h"
#include "PanelTab.h"

#include <utility>
#include <vector>

class Partner;
class QCheckBox;
class QGridLayout;
class QLabel;
class QSpinBox;
class QTableWidget;

/// The machines at the other end of the controller's links: one click starts each, with the memory of the
/// FINS server and the registers that the Modbus TCP client reads.
class PartnerTab : public PanelTab
{
    Q_OBJECT

public:
    explicit PartnerTab(SimulatedController& simulated, QWidget* parent = nullptr);

    void refresh() override;

private:
    struct Row
    {
        Partner* partner;
        QCheckBox* on;
        QSpinBox* port;
        QLabel* state;
    };

    void addPartner(QGridLayout* grid, Partner* partner, const QString& caption, bool serves);
    QWidget* makeActions();
    QWidget* makeFinsBox();
    QWidget* makeRegisterBox();
    void takeWord(int row);

    std::vector<Row> m_rows;
    std::vector<std::pair<Faults::Fault, QSpinBox*>> m_codes; ///< 0 while the fault is not set
    QTableWidget* m_words;
    QTableWidget* m_registers;
};

#endif
