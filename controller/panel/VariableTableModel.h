#ifndef CONTROLLER_PANEL_VARIABLETABLEMODEL_H
#define CONTROLLER_PANEL_VARIABLETABLEMODEL_H

#include <QAbstractTableModel>
#include <QHash>
#include <QPair>
#include <QString>

#include <vector>

class VariableStore;

/// Every element of every controller variable: name, type, value. The value can be edited, as a change that
/// the controller makes by itself. Variables that are defined later are not shown.
class VariableTableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { NameColumn, TypeColumn, ValueColumn, ColumnCount };

    explicit VariableTableModel(VariableStore& variables, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

private:
    using Element = QPair<QString, int>;

    VariableStore& m_variables;
    std::vector<Element> m_elements;
    QHash<Element, int> m_rows;
};

#endif
