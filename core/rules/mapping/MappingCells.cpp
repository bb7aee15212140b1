#include "MappingCells.h"

namespace Mapping {

using Row = MappingModel::Row;

namespace {

constexpr const char* UserTypes[] = {QT_TRANSLATE_NOOP("ConfigWidget", "User Bool"),
                                     QT_TRANSLATE_NOOP("ConfigWidget", "User Int"),
                                     QT_TRANSLATE_NOOP("ConfigWidget", "User Float")};
constexpr const char* SystemTypes[] = {QT_TRANSLATE_NOOP("ConfigWidget", "System Bool"),
                                       QT_TRANSLATE_NOOP("ConfigWidget", "System Int"),
                                       QT_TRANSLATE_NOOP("ConfigWidget", "System Float")};
constexpr const char* MasterTypes[] = {QT_TRANSLATE_NOOP("ConfigWidget", "Bool"),
                                       QT_TRANSLATE_NOOP("ConfigWidget", "Int"),
                                       QT_TRANSLATE_NOOP("ConfigWidget", "Float")};

// Parts of the names of the bus variables.
constexpr const char* VariableTypes[] = {"_b", "_i", "_r"};

const QString NoValue = QStringLiteral("--");

// Placeholders that stay to be seen where a block has no system rows in the fixed mode: the numbers of its
// rows run to 5.
constexpr int PlaceholdersShown = 2;
constexpr int SlaveTailRows = 3;
constexpr int MtcpTailRows = 4;

QString inBrackets(qint64 number)
{
    return QStringLiteral("[%1]").arg(number);
}

QString registerText(quint32 address)
{
    return address == MappingRow::NoAddress ? NoValue : QString::number(address);
}

QString variableText(const QString& name, int quantity)
{
    return name + QStringLiteral(":[0]~") + inBrackets(quantity - 1);
}

Row emptyRow(Row::Kind kind, const char* typeText)
{
    Row row;
    row.kind = kind;
    row.cells.fill(NoValue);
    row.cells[MappingModel::TypeColumn].clear();
    row.typeText = typeText;
    return row;
}

Row placeholder(bool isHidden)
{
    Row row = emptyRow(Row::Reserved, QT_TRANSLATE_NOOP("ConfigWidget", "Reserved"));
    row.isHidden = isHidden;
    return row;
}

void fillAddresses(Row& row, const SubTable& table, const MappingRow& info)
{
    QString& start = row.cells[MappingModel::StartAddress];
    QString& end = row.cells[MappingModel::EndAddress];
    switch (infoOf(table.bus).layout) {
    case Layout::Bytes:
        if (info.start != MappingRow::NoAddress)
            start = QLatin1String(table.prefix) + QLatin1Char(':') + inBrackets(info.start);
        if (info.end != MappingRow::NoAddress)
            end = inBrackets(info.end);
        break;
    case Layout::SlaveRegisters:
    case Layout::MasterRegisters:
        start = registerText(info.start);
        end = registerText(info.end);
        break;
    case Layout::MasterBools:
        // What the master was given, whatever the file says of addresses.
        start = QLatin1String(table.prefix);
        end = inBrackets(bytesOf(MappedBool, info.quantity) - 1);
        break;
    }
}

Row dataRow(Row::Kind kind, const char* typeText, MappedType type, const SubTable& table,
            const MappingRow& info, const QString& variable)
{
    Row row = emptyRow(kind, typeText);
    row.type = type;
    row.cells[MappingModel::Quantity] = QString::number(info.quantity);
    row.cells[MappingModel::Byte] = QString::number(bytesOf(type, info.quantity));
    if (info.quantity > 0) {
        fillAddresses(row, table, info);
        row.cells[MappingModel::BusVariable] = variableText(variable, info.quantity);
    }
    return row;
}

void addDataRows(std::vector<Row>& rows, Row::Kind kind, const char* const (&typeTexts)[3],
                 const SubTable& table, const Rows& infos)
{
    const QString key = QLatin1String(kind == Row::System ? table.systemKey : table.userKey);
    for (const MappedType type : Types)
        rows.push_back(dataRow(kind, typeTexts[type], type, table, infos[type],
                               key + QLatin1String(VariableTypes[type])));
}

Row totalRow(const MappingArea& area, Mode mode)
{
    Row row = emptyRow(Row::Total, QT_TRANSLATE_NOOP("ConfigWidget", "Total"));
    row.cells[MappingModel::Byte] = QString::number(bytesOf(area.user));
    if (mode == MappingConfig::Free) {
        row.cells[MappingModel::StartAddress] = registerText(area.start);
        row.cells[MappingModel::EndAddress] = registerText(area.end);
    }
    return row;
}

std::vector<Row> slaveRows(const SubTable& table, const MappingArea& area, Mode mode)
{
    std::vector<Row> rows;
    const bool isMtcp = table.bus == Bus::MtcpSlave;
    const bool isFree = mode == MappingConfig::Free;
    const bool hasSystem = !isFree && *table.systemKey;
    if (isMtcp) {
        rows.push_back(totalRow(area, mode));
        rows.back().isHidden = !isFree && !hasSystem;
    }
    addDataRows(rows, Row::User, UserTypes, table, area.user);
    int tail = isMtcp ? MtcpTailRows : SlaveTailRows;
    if (hasSystem) {
        addDataRows(rows, Row::System, SystemTypes, table, area.system);
        tail -= SlaveTailRows;
    }
    const int shown = isFree || hasSystem ? 0 : PlaceholdersShown;
    for (int i = 0; i < tail; ++i)
        rows.push_back(placeholder(i >= shown));
    return rows;
}

} // namespace

std::vector<Row> rowsOf(const SubTable& table, const MappingArea& area, Mode mode)
{
    switch (infoOf(table.bus).layout) {
    case Layout::MasterBools:
        return {dataRow(Row::User, MasterTypes[MappedBool], MappedBool, table, area.user[MappedBool],
                        QLatin1String(table.userKey))};
    case Layout::MasterRegisters: {
        std::vector<Row> rows;
        addDataRows(rows, Row::User, MasterTypes, table, area.user);
        return rows;
    }
    case Layout::Bytes:
    case Layout::SlaveRegisters:
        break;
    }
    return slaveRows(table, area, mode);
}

} // namespace Mapping
