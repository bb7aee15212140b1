#include "MappingLayout.h"

#include <algorithm>

namespace Mapping {

namespace {

constexpr int BoolsPerByte = 8;
constexpr int BytesPerInt = 2;
constexpr int BytesPerFloat = 4;
constexpr int BoolsPerRegister = 16;
constexpr int RegistersPerFloat = 2;

using SizeOf = int (*)(BusVariableType, int);

int sumOf(const Rows& rows, SizeOf sizeOf)
{
    int sum = 0;
    for (const BusVariableType type : Types)
        sum += sizeOf(type, rows[type].quantity);
    return sum;
}

// The rows one after another; returns what follows the last one.
quint32 placeRows(Rows& rows, quint32 start, SizeOf sizeOf)
{
    for (const BusVariableType type : Types) {
        BusRowInfo& row = rows[type];
        row.start = row.end = NoBusAddress;
        const int size = sizeOf(type, row.quantity);
        if (size == 0) // Bools that do not fill one byte or register have no place either
            continue;
        row.start = start;
        start += static_cast<quint32>(size);
        row.end = start - 1;
    }
    return start;
}

// What follows the system rows, `otherwise` without any.
quint32 behindSystem(const BusAreaInfo& area, quint32 otherwise)
{
    bool found = false;
    quint32 last = 0;
    for (const BusRowInfo& row : area.system) {
        if (row.quantity == 0 || row.end == NoBusAddress)
            continue;
        found = true;
        last = std::max(last, row.end);
    }
    return found ? last + 1 : otherwise;
}

// What follows a block of the Modbus TCP master.
quint32 behindMasterBlock(const BusAreaInfo& area)
{
    if (area.user[BusFloat].start != NoBusAddress)
        return area.user[BusFloat].end + 1;
    return area.end == NoBusAddress ? FirstRegister : area.end + 1;
}

} // namespace

quint32 lastRegister(Layout layout)
{
    return layout == Layout::MasterRegisters ? LastMasterRegister : LastSlaveRegister;
}

int bytesOf(BusVariableType type, int quantity)
{
    switch (type) {
    case BusBool:
        return quantity / BoolsPerByte;
    case BusInt:
        return quantity * BytesPerInt;
    case BusFloat:
        break;
    }
    return quantity * BytesPerFloat;
}

int bytesOf(const Rows& rows)
{
    return sumOf(rows, bytesOf);
}

int smallBytesOf(const Rows& rows)
{
    return bytesOf(rows) - bytesOf(BusFloat, rows[BusFloat].quantity);
}

int registersOf(BusVariableType type, int quantity)
{
    switch (type) {
    case BusBool:
        return quantity / BoolsPerRegister;
    case BusInt:
        return quantity;
    case BusFloat:
        break;
    }
    return quantity * RegistersPerFloat;
}

int registersOf(const Rows& rows)
{
    return sumOf(rows, registersOf);
}

bool isEmpty(const Rows& rows)
{
    return std::all_of(rows.begin(), rows.end(), [](const BusRowInfo& row) { return row.quantity == 0; });
}

quint32 blockStart(const BusAddrNumInfo& bus, Layout layout, Direction direction)
{
    const BusAreaInfo& area = bus.*areaOf(direction);
    if (area.start != NoBusAddress)
        return area.start;
    if (layout == Layout::MasterRegisters) {
        // A block that was emptied has left its place with its Float row.
        if (area.user[BusFloat].start != NoBusAddress)
            return area.user[BusFloat].start;
        return direction == Direction::WriteOnly ? behindMasterBlock(bus.readOnly) : FirstRegister;
    }
    // The blocks of the slave lie in the order write only, read only, read and write.
    if (direction == Direction::ReadWrite && bus.readOnly.end != NoBusAddress)
        return bus.readOnly.end + 1;
    if (direction != Direction::WriteOnly && bus.writeOnly.end != NoBusAddress)
        return bus.writeOnly.end + 1;
    return FirstRegister;
}

quint64 blockEnd(const BusAreaInfo& area, quint32 start)
{
    return quint64(start) + quint64(registersOf(area.user)) - 1;
}

void layOut(BusAreaInfo& area, Layout layout, quint32 start)
{
    switch (layout) {
    case Layout::Bytes:
    case Layout::MasterBools:
        placeRows(area.user, behindSystem(area, 0), bytesOf);
        break;
    case Layout::SlaveRegisters:
        area.end = placeRows(area.user, behindSystem(area, start), registersOf) - 1;
        area.start = start;
        break;
    case Layout::MasterRegisters: {
        const quint32 behind = placeRows(area.user, start, registersOf);
        BusRowInfo& floats = area.user[BusFloat];
        // An empty Float row keeps the place where it would lie: the block's own when all of it is empty, and
        // the one that the other direction may begin at.
        if (floats.quantity == 0) {
            floats.start = behind;
            floats.end = behind - 1;
        }
        area.start = isEmpty(area.user) ? NoBusAddress : start;
        area.end = isEmpty(area.user) ? NoBusAddress : behind - 1;
        break;
    }
    }
}

} // namespace Mapping
