#include "VariableTableModel.h"

#include "VariableStore.h"

#include <QMetaEnum>

VariableTableModel::VariableTableModel(VariableStore& variables, QObject* parent)
    : QAbstractTableModel(parent)
    , m_variables(variables)
{
    for (const QString& name : m_variables.names()) {
        for (int element = 0; element < m_variables.countOf(name); ++element) {
            m_rows.insert({name, element}, static_cast<int>(m_elements.size()));
            m_elements.emplace_back(name, element);
        }
    }
    connect(&m_variables, &VariableStore::changed, this, [this](const QString& name, int element) {
        const auto row = m_rows.constFind({name, element});
        if (row != m_rows.constEnd())
            emit dataChanged(index(*row, ValueColumn), index(*row, ValueColumn));
    });
}

int VariableTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_elements.size());
}

int VariableTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant VariableTableModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::EditRole))
        return {};
    const auto& [name, element] = m_elements[static_cast<std::size_t>(index.row())];
    switch (index.column()) {
    case NameColumn:
        return m_variables.countOf(name) > 1 ? QStringLiteral("%1[%2]").arg(name).arg(element) : name;
    case TypeColumn:
        return QLatin1String(QMetaEnum::fromType<VariableStore::Type>().valueToKey(
            static_cast<int>(m_variables.typeOf(name))));
    default:
        return QString::number(m_variables.value(name, element), 'g', 10);
    }
}

QVariant VariableTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole || orientation != Qt::Horizontal || section < 0 || section >= ColumnCount)
        return {};
    const QString captions[ColumnCount] = {tr("Variable"), tr("Type"), tr("Value")};
    return captions[section];
}

Qt::ItemFlags VariableTableModel::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags common = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    return index.column() == ValueColumn ? common | Qt::ItemIsEditable : common;
}

bool VariableTableModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    if (!index.isValid() || index.column() != ValueColumn || role != Qt::EditRole || !isNumber)
        return false;
    const auto& [name, element] = m_elements[static_cast<std::size_t>(index.row())];
    m_variables.set(name, element, number);
    return true;
}
