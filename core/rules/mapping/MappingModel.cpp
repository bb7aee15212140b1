#include "MappingModel.h"

#include "MappingCells.h"

#include <algorithm>
#include <utility>

using namespace Mapping;

namespace {

constexpr const char* SystemIsFixed = QT_TRANSLATE_NOOP("ConfigWidget", "System Quantity Can Not Edit!");
constexpr const char* NoStartOfNothing =
    QT_TRANSLATE_NOOP("ConfigWidget", "Cannot set start address for quantity 0!");

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

bool isSamePlace(const MappingArea& a, const MappingArea& b)
{
    const auto same = [](const auto& one, const auto& other) {
        return one.start == other.start && one.end == other.end;
    };
    return same(a, b) && std::equal(a.user.begin(), a.user.end(), b.user.begin(), same);
}

} // namespace

void MappingModel::load(const Buses& buses, Mode mode)
{
    m_buses = buses;
    m_mode = mode;
}

const MappingBus& MappingModel::recordOf(Bus bus) const
{
    return m_buses[static_cast<std::size_t>(bus)];
}

const MappingArea& MappingModel::shownArea(int number) const
{
    const SubTable& table = tableOf(number);
    return areaOf(recordOf(table.bus), table.direction);
}

std::vector<MappingModel::Row> MappingModel::rowsOf(int number) const
{
    return Mapping::rowsOf(tableOf(number), shownArea(number), m_mode);
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
    return isFree() && row.kind == Row::Total ? pressedStart(number) : Press();
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
    press.range = {0, limitsOf(number, m_mode).quantity[row.type]};
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

MappingModel::Entry MappingModel::enterQuantity(int number, MappedType type, double value)
{
    if (const Refusal refusal = quantityRefusal(number, m_mode, type, value))
        return {refusal};
    const SubTable& table = tableOf(number);
    MappingBus changed = recordOf(table.bus);
    MappingArea& area = areaOf(changed, table.direction);
    const int quantity = static_cast<int>(value);
    area.user[type].quantity =
        type == MappedBool ? roundedUp(quantity, limitsOf(number, m_mode).boolMultiple) : quantity;
    if (const Refusal refusal = bytesRefusal(number, m_mode, area))
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
    if (!(value >= FirstRegister && value < MappingRow::NoAddress))
        return {rangeRefusal(int(FirstRegister), int(lastRegister(layout)))};
    return take(number, recordOf(table.bus), static_cast<quint32>(value), Entered::Start);
}

MappingModel::Entry MappingModel::take(int number, MappingBus changed, quint32 start, Entered entered)
{
    const SubTable& table = tableOf(number);
    const Layout layout = infoOf(table.bus).layout;
    layOut(areaOf(changed, table.direction), layout, start);
    const bool isFreeSlave = layout == Layout::SlaveRegisters && isFree();
    Refusal refusal;
    if (isFreeSlave)
        refusal = slaveBlockRefusal(changed, table.direction, entered);
    else if (layout == Layout::MasterRegisters)
        refusal = masterBlockRefusal(changed, table.direction, entered);
    if (refusal)
        return {refusal};
    const bool moved = isFreeSlave && !isSamePlace(shownArea(number), areaOf(changed, table.direction));
    m_buses[static_cast<std::size_t>(table.bus)] = std::move(changed);
    return {{}, moved};
}
