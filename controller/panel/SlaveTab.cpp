#include "SlaveTab.h"

#include "MasterSlaveStates.h"
#include "SimulatedController.h"

#include <QHeaderView>
#include <QSignalBlocker>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {

enum Column { MasterColumn, PositionColumn, ServiceColumn, PluggedColumn, FirstStateColumn };

// In the order of MasterSlaveStates::Master.
constexpr const char* MasterNames[] = {"EtherNet/IP", "PROFINET"};
// In the order of MasterSlaveStates::Service.
constexpr const char* ServiceNames[] = {"-", QT_TRANSLATE_NOOP("SlaveTab", "fixed"),
                                        QT_TRANSLATE_NOOP("SlaveTab", "dynamic")};
// By master; each column of states shows one variable.
constexpr const char* StateVariables[][MasterSlaveStates::MasterCount] = {
    {"ifidbus.eim_status", "ifidbus.pnm_status"},
    {"ifidbus.eim_enable_status", "ifidbus.pnm_enable_status"},
    {"ifidbus.eim_disable_status", "ifidbus.pnm_disable_status"},
};
constexpr int StateCount = static_cast<int>(std::size(StateVariables));

MasterSlaveStates::Master masterOf(int row)
{
    return static_cast<MasterSlaveStates::Master>(row / MasterSlaveStates::PositionCount);
}

int positionOf(int row)
{
    return row % MasterSlaveStates::PositionCount;
}

} // namespace

SlaveTab::SlaveTab(SimulatedController& simulated, QWidget* parent)
    : PanelTab(simulated, parent)
    , m_table(new QTableWidget(MasterSlaveStates::MasterCount * MasterSlaveStates::PositionCount,
                               FirstStateColumn + StateCount))
{
    m_table->setObjectName(QStringLiteral("slaveTable"));
    m_table->setHorizontalHeaderLabels({tr("Master"), tr("Position"), tr("Served as"), tr("Plugged in"),
                                        tr("Connected"), tr("Coupling"), tr("Decoupling")});
    m_table->verticalHeader()->hide();
    m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    for (int row = 0; row < m_table->rowCount(); ++row) {
        for (int column = 0; column < m_table->columnCount(); ++column) {
            auto* item = new QTableWidgetItem;
            item->setFlags(column == PluggedColumn ? Qt::ItemIsEnabled | Qt::ItemIsUserCheckable
                                                   : Qt::ItemIsEnabled);
            m_table->setItem(row, column, item);
        }
        m_table->item(row, MasterColumn)->setText(QLatin1String(MasterNames[masterOf(row)]));
        m_table->item(row, PositionColumn)->setText(QString::number(positionOf(row) + 1));
    }
    connect(m_table, &QTableWidget::itemChanged, this, [this](const QTableWidgetItem* item) {
        if (item->column() == PluggedColumn)
            controller().behaviour<MasterSlaveStates>().setSlaveConnected(
                masterOf(item->row()), positionOf(item->row()), item->checkState() == Qt::Checked);
        refresh();
    });
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_table);
    refresh();
}

void SlaveTab::refresh()
{
    const QSignalBlocker blocker(m_table);
    const auto& states = controller().behaviour<MasterSlaveStates>();
    for (int row = 0; row < m_table->rowCount(); ++row) {
        const MasterSlaveStates::Master master = masterOf(row);
        const int position = positionOf(row);
        const auto service = static_cast<std::size_t>(states.serviceOf(master, position));
        const QString text = tr(ServiceNames[service]);
        m_table->item(row, ServiceColumn)
            ->setText(states.hasDevice(master) ? text : tr("%1, device off").arg(text));
        m_table->item(row, PluggedColumn)
            ->setCheckState(states.isSlavePlugged(master, position) ? Qt::Checked : Qt::Unchecked);
        for (int state = 0; state < StateCount; ++state) {
            const QString name = QLatin1String(StateVariables[state][master]);
            m_table->item(row, FirstStateColumn + state)
                ->setText(QString::number(controller().variables().value(name, position)));
        }
    }
}
