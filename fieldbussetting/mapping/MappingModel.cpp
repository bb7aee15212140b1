#include "MappingModel.h"

#include <QCoreApplication>

#include <algorithm>
#include <utility>

using namespace Mapping;

namespace {

using Row = MappingModel::Row;

constexpr BusVariableType Types[] = {BusBool, BusInt, BusFloat};

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

constexpr const char* SystemIsFixed = QT_TRANSLATE_NOOP("ConfigWidget", "System Quantity Can Not Edit!");
constexpr const char* NoStartOfNothing =
    QT_TRANSLATE_NOOP("ConfigWidget", "Cannot set start address for quantity 0!");

const QString NoValue = QStringLiteral("--");

// Placeholders that stay to be seen where a block has no system rows in the fixed mode: the numbers of its
// rows run to 5.
constexpr int PlaceholdersShown = 2;
constexpr int SlaveTailRows = 3;
constexpr int MtcpTailRows = 4;

QString translated(const char* text)
{
    return QCoreApplication::translate("ConfigWidget", text);
}

QString inBrackets(qint64 number)
{
    return QStringLiteral("[%1]").arg(number);
}

QString registerText(quint32 address)
{
    return address == NoBusAddress ? NoValue : QString::number(address);
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
    row.cells[MappingModel::TypeColumn] = translated(typeText);
    return row;
}

Row placeholder(bool isHidden)
{
    Row row = emptyRow(Row::Reserved, QT_TRANSLATE_NOOP("ConfigWidget", "Reserved"));
    row.isHidden = isHidden;
    return row;
}

void fillAddresses(Row& row, const SubTable& table, const BusRowInfo& info)
{
    QString& start = row.cells[MappingModel::StartAddress];
    QString& end = row.cells[MappingModel::EndAddress];
    switch (infoOf(table.bus).layout) {
    case Layout::Bytes:
        if (info.start != NoBusAddress)
            start = QLatin1String(table.prefix) + QLatin1Char(':') + inBrackets(info.start);
        if (info.end != NoBusAddress)
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
        end = inBrackets(bytesOf(BusBool, info.quantity) - 1);
        break;
    }
}

Row dataRow(Row::Kind kind, const char* typeText, BusVariableType type, const SubTable& table,
            const BusRowInfo& info, const QString& variable)
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
    for (const BusVariableType type : Types)
        rows.push_back(dataRow(kind, typeTexts[type], type, table, infos[type],
                               key + QLatin1String(VariableTypes[type])));
}

Row totalRow(const BusAreaInfo& area, bool freeMode)
{
    Row row = emptyRow(Row::Total, QT_TRANSLATE_NOOP("ConfigWidget", "Total"));
    row.cells[MappingModel::Byte] = QString::number(bytesOf(area.user));
    if (freeMode) {
        row.cells[MappingModel::StartAddress] = registerText(area.start);
        row.cells[MappingModel::EndAddress] = registerText(area.end);
    }
    return row;
}

std::vector<Row> slaveRows(const SubTable& table, const BusAreaInfo& area, bool freeMode)
{
    std::vector<Row> rows;
    const bool isMtcp = table.bus == Bus::MtcpSlave;
    const bool hasSystem = !freeMode && *table.systemKey;
    if (isMtcp) {
        rows.push_back(totalRow(area, freeMode));
        rows.back().isHidden = !freeMode && !hasSystem;
    }
    addDataRows(rows, Row::User, UserTypes, table, area.user);
    int tail = isMtcp ? MtcpTailRows : SlaveTailRows;
    if (hasSystem) {
        addDataRows(rows, Row::System, SystemTypes, table, area.system);
        tail -= SlaveTailRows;
    }
    const int shown = freeMode || hasSystem ? 0 : PlaceholdersShown;
    for (int i = 0; i < tail; ++i)
        rows.push_back(placeholder(i >= shown));
    return rows;
}

MappingModel::Press refusedPress(Severity severity, const char* text)
{
    MappingModel::Press press;
    press.refusal = message(severity, text);
    return press;
}

int roundedUp(int value, int multiple)
{
    const int rest = multiple == None ? 0 : value % multiple;
    return rest == 0 ? value : value - rest + multiple;
}

bool isSamePlace(const BusAreaInfo& a, const BusAreaInfo& b)
{
    const auto same = [](const auto& one, const auto& other) {
        return one.start == other.start && one.end == other.end;
    };
    return same(a, b) && std::equal(a.user.begin(), a.user.end(), b.user.begin(), same);
}

} // namespace

MappingModel::MappingModel()
{
    load({}, false);
}

void MappingModel::load(const std::vector<BusAddrNumInfo>& buses, bool freeMode)
{
    m_free = freeMode;
    m_buses.assign(BusCount, {});
    for (std::size_t i = 0; i < BusCount; ++i) {
        m_buses[i].busName = QLatin1String(infoOf(static_cast<Bus>(i)).name);
        for (const BusAddrNumInfo& bus : buses) {
            if (bus.busName == m_buses[i].busName)
                m_buses[i] = bus;
        }
    }
}

const BusAddrNumInfo& MappingModel::recordOf(Bus bus) const
{
    return m_buses[static_cast<std::size_t>(bus)];
}

const BusAreaInfo& MappingModel::shownArea(int number) const
{
    const SubTable& table = tableOf(number);
    return recordOf(table.bus).*areaOf(table.direction);
}

std::vector<BusAddrNumInfo> MappingModel::editedBuses() const
{
    std::vector<BusAddrNumInfo> edited;
    for (std::size_t i = 0; i < BusCount; ++i) {
        if (infoOf(static_cast<Bus>(i)).isEdited)
            edited.push_back(m_buses[i]);
    }
    return edited;
}

std::vector<Row> MappingModel::rowsOf(int number) const
{
    const SubTable& table = tableOf(number);
    const BusAreaInfo& area = shownArea(number);
    switch (infoOf(table.bus).layout) {
    case Layout::MasterBools:
        return {dataRow(Row::User, MasterTypes[BusBool], BusBool, table, area.user[BusBool],
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
    return slaveRows(table, area, m_free);
}

MappingModel::Press MappingModel::pressed(int number, const Row& row, int column) const
{
    const BusInfo& bus = infoOf(tableOf(number).bus);
    if (!bus.isEdited || row.kind == Row::Reserved)
        return {};
    if (column == Quantity)
        return pressedQuantity(number, row);
    if (column != StartAddress)
        return {};
    if (bus.layout == Layout::MasterRegisters)
        return shownArea(number).user[row.type].quantity > 0
                   ? pressedStart(number)
                   : refusedPress(Severity::Warning, NoStartOfNothing);
    return m_free && row.kind == Row::Total ? pressedStart(number) : Press();
}

MappingModel::Press MappingModel::pressedQuantity(int number, const Row& row) const
{
    if (row.kind == Row::System)
        return refusedPress(Severity::Information, SystemIsFixed);
    if (row.kind != Row::User)
        return {};
    Press press;
    press.kind = Press::EnterQuantity;
    press.value = row.cells[Quantity].section(QLatin1Char(' '), 0, 0).toInt();
    press.range = {0, limitsOf(number, m_free).quantity[row.type]};
    return press;
}

MappingModel::Press MappingModel::pressedStart(int number) const
{
    const SubTable& table = tableOf(number);
    const Layout layout = infoOf(table.bus).layout;
    Press press;
    press.kind = Press::EnterStart;
    press.value = blockStart(recordOf(table.bus), layout, table.direction);
    press.range = {int(FirstRegister), int(lastRegister(layout))};
    return press;
}

MappingModel::Entry MappingModel::enterQuantity(int number, BusVariableType type, double value)
{
    if (const Refusal refusal = quantityRefusal(number, m_free, type, value))
        return {refusal};
    const SubTable& table = tableOf(number);
    BusAddrNumInfo changed = recordOf(table.bus);
    BusAreaInfo& area = changed.*areaOf(table.direction);
    const int quantity = static_cast<int>(value);
    area.user[type].quantity =
        type == BusBool ? roundedUp(quantity, limitsOf(number, m_free).boolMultiple) : quantity;
    if (const Refusal refusal = bytesRefusal(number, m_free, area))
        return {refusal};
    const quint32 start = blockStart(changed, infoOf(table.bus).layout, table.direction);
    return take(number, std::move(changed), start, Entered::Quantity);
}

MappingModel::Entry MappingModel::enterStart(int number, double value)
{
    const SubTable& table = tableOf(number);
    const Layout layout = infoOf(table.bus).layout;
    if (layout != Layout::MasterRegisters && layout != Layout::SlaveRegisters)
        return {};
    if (layout == Layout::MasterRegisters && isEmpty(shownArea(number).user))
        return {message(Severity::Warning, NoStartOfNothing)};
    if (!(value >= FirstRegister && value < NoBusAddress))
        return {rangeRefusal(int(FirstRegister), int(lastRegister(layout)))};
    return take(number, recordOf(table.bus), static_cast<quint32>(value), Entered::Start);
}

MappingModel::Entry MappingModel::take(int number, BusAddrNumInfo changed, quint32 start, Entered entered)
{
    const SubTable& table = tableOf(number);
    const Layout layout = infoOf(table.bus).layout;
    layOut(changed.*areaOf(table.direction), layout, start);
    const bool isFreeSlave = layout == Layout::SlaveRegisters && m_free;
    Refusal refusal;
    if (isFreeSlave)
        refusal = slaveBlockRefusal(changed, table.direction, entered);
    else if (layout == Layout::MasterRegisters)
        refusal = masterBlockRefusal(changed, table.direction, entered);
    if (refusal)
        return {refusal};
    const bool moved = isFreeSlave && !isSamePlace(shownArea(number), changed.*areaOf(table.direction));
    m_buses[static_cast<std::size_t>(table.bus)] = std::move(changed);
    return {{}, moved};
}
