#include "VariableTab.h"

#include "SimulatedController.h"
#include "VariableTableModel.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QSortFilterProxyModel>
#include <QTableView>
#include <QVBoxLayout>

VariableTab::VariableTab(SimulatedController& simulated, QWidget* parent)
    : PanelTab(simulated, parent)
{
    auto* model = new VariableTableModel(controller().variables(), this);
    auto* filter = new QSortFilterProxyModel(this);
    filter->setSourceModel(model);
    filter->setFilterCaseSensitivity(Qt::CaseInsensitive);
    filter->setFilterKeyColumn(VariableTableModel::NameColumn);

    auto* search = new QLineEdit;
    search->setObjectName(QStringLiteral("variableSearch"));
    search->setPlaceholderText(tr("Part of a name"));
    search->setClearButtonEnabled(true);
    connect(search, &QLineEdit::textChanged, filter, &QSortFilterProxyModel::setFilterFixedString);

    auto* table = new QTableView;
    table->setObjectName(QStringLiteral("variableTable"));
    table->setModel(filter);
    table->verticalHeader()->hide();
    table->horizontalHeader()->setSectionResizeMode(VariableTableModel::NameColumn, QHeaderView::Stretch);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(search);
    layout->addWidget(table);
}
