#include "LinkTab.h"

#include "FieldbusManager.h"
#include "LinkStates.h"
#include "SimulatedController.h"

#include <QHeaderView>
#include <QSignalBlocker>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {

enum Column { RoleColumn, RunsColumn, CableColumn, LinkColumn, WatchColumn, ColumnCount };

QTableWidgetItem* makeItem(const QString& text, Qt::ItemFlags flags)
{
    auto* item = new QTableWidgetItem(text);
    item->setFlags(flags);
    return item;
}

} // namespace

LinkTab::LinkTab(SimulatedController& simulated, QWidget* parent)
    : PanelTab(simulated, parent)
    , m_table(new QTableWidget(static_cast<int>(LinkedBusRoles.size()), ColumnCount))
{
    m_table->setObjectName(QStringLiteral("linkTable"));
    m_table->setHorizontalHeaderLabels(
        {tr("Role"), tr("Runs"), tr("Cable plugged in"), tr("Link"), tr("Watched")});
    m_table->verticalHeader()->hide();
    m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    for (int row = 0; row < m_table->rowCount(); ++row) {
        const QString role = QLatin1String(LinkedBusRoles[static_cast<std::size_t>(row)].name);
        m_table->setItem(row, RoleColumn, makeItem(role, Qt::ItemIsEnabled));
        for (const int column : {LinkColumn, WatchColumn})
            m_table->setItem(row, column, makeItem({}, Qt::ItemIsEnabled));
        for (const int column : {RunsColumn, CableColumn})
            m_table->setItem(row, column, makeItem({}, Qt::ItemIsEnabled | Qt::ItemIsUserCheckable));
    }
    connect(m_table, &QTableWidget::itemChanged, this, [this](const QTableWidgetItem* item) {
        const QString role = m_table->item(item->row(), RoleColumn)->text();
        const bool checked = item->checkState() == Qt::Checked;
        if (item->column() == RunsColumn)
            controller().setRoleOn(role, checked);
        else if (item->column() == CableColumn)
            controller().setLinkUp(role, checked);
        refresh();
    });
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_table);
    refresh();
}

void LinkTab::refresh()
{
    const QSignalBlocker blocker(m_table);
    const auto& manager = controller().behaviour<FieldbusManager>();
    const auto& links = controller().behaviour<LinkStates>();
    for (int row = 0; row < m_table->rowCount(); ++row) {
        const BusRole& role = LinkedBusRoles[static_cast<std::size_t>(row)];
        const QString name = QLatin1String(role.name);
        const HeartbeatWatch watch = manager.watchOf(name);
        const bool up = controller().variables().value(QLatin1String(role.linkVariable)) != 0.0;
        m_table->item(row, RunsColumn)
            ->setCheckState(controller().roles().isOn(name) ? Qt::Checked : Qt::Unchecked);
        m_table->item(row, LinkColumn)->setText(up ? tr("up") : tr("down"));
        m_table->item(row, CableColumn)
            ->setCheckState(links.isCablePlugged(name) ? Qt::Checked : Qt::Unchecked);
        m_table->item(row, WatchColumn)
            ->setText(watch.on ? tr("%1 s").arg(watch.timeout, 0, 'f', 3) : QStringLiteral("-"));
    }
}
