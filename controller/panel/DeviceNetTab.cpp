#include "DeviceNetTab.h"

#include "DeviceNetMaster.h"
#include "SimulatedController.h"

#include <QHeaderView>
#include <QSignalBlocker>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {
enum Column { MacIdColumn, NetworkColumn, DeviceColumn, StateColumn, ColumnCount };
} // namespace

DeviceNetTab::DeviceNetTab(SimulatedController& simulated, QWidget* parent)
    : PanelTab(simulated, parent)
    , m_table(new QTableWidget(DeviceNetMaster::HighestMacId, ColumnCount))
{
    m_table->setObjectName(QStringLiteral("deviceNetTable"));
    m_table->setHorizontalHeaderLabels({tr("MAC ID"), tr("On the network"), tr("Device"), tr("State")});
    m_table->verticalHeader()->hide();
    m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    for (int row = 0; row < m_table->rowCount(); ++row) {
        for (int column = 0; column < ColumnCount; ++column) {
            auto* item = new QTableWidgetItem;
            item->setFlags(column == NetworkColumn ? Qt::ItemIsEnabled | Qt::ItemIsUserCheckable
                                                   : Qt::ItemFlags(Qt::ItemIsEnabled));
            m_table->setItem(row, column, item);
        }
        m_table->item(row, MacIdColumn)->setText(QString::number(row + 1));
    }
    connect(m_table, &QTableWidget::itemChanged, this, [this](const QTableWidgetItem* item) {
        if (item->column() == NetworkColumn)
            controller().behaviour<DeviceNetMaster>().setOnNetwork(item->row() + 1,
                                                                   item->checkState() == Qt::Checked);
    });
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_table);
    refresh();
}

void DeviceNetTab::refresh()
{
    const QSignalBlocker blocker(m_table);
    const auto& master = controller().behaviour<DeviceNetMaster>();
    for (int row = 0; row < m_table->rowCount(); ++row) {
        const int macId = row + 1;
        const int device = master.scanList().indexOf(macId);
        QString state;
        if (device >= 0) {
            const VariableStore& variables = controller().variables();
            const double code = variables.value(QStringLiteral("ifidbus.dnm_errorcode"), device);
            state = variables.value(QStringLiteral("ifidbus.dnm_status"), device) != 0.0
                        ? tr("connected")
                        : tr("disconnected, code %1").arg(code);
        }
        m_table->item(row, NetworkColumn)
            ->setCheckState(master.isOnNetwork(macId) ? Qt::Checked : Qt::Unchecked);
        m_table->item(row, DeviceColumn)->setText(device < 0 ? QString() : QString::number(device + 1));
        m_table->item(row, StateColumn)->setText(state);
    }
}
