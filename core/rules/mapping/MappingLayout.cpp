#include "MappingLayout.h"

#include <algorithm>

namespace Mapping {

namespace {

constexpr int BoolsPerByte = 8;
constexpr int BytesPerInt = 2;
constexpr int BytesPerFloat = 4;
constexpr int BoolsPerRegister = 16;
constexpr int RegistersPerFloat = 2;

using SizeOf = int (*)(MappedType, int);

int sumOf(const Rows& rows, SizeOf sizeOf)
{
    int sum = 0;
    for (const MappedType type : Types)
        sum += sizeOf(type, rows[type].quantity);
    return sum;
}

// The rows one after another; returns what follows the last one.
quint32 placeRows(Rows& rows, quint32 start, SizeOf sizeOf)
{
    for (const MappedType type : Types) {
        MappingRow& row = rows[type];
        row.start = row.end = MappingRow::NoAddress;
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
quint32 behindSystem(const MappingArea& area, quint32 otherwise)
{
    bool found = false;
    quint32 last = 0;
    for (const MappingRow& row : area.system) {
        if (row.quantity == 0 || row.end == MappingRow::NoAddress)
            continue;
        found = true;
        last = std::max(last, row.end);
    }
    return found ? last + 1 : otherwise;
}

// What follows a block of the Modbus TCP master.
quint32 behindMasterBlock(const MappingArea& area)
{
    if (area.user[MappedFloat].start != MappingRow::NoAddress)
        return area.user[MappedFloat].end + 1;
    return area.end == MappingRow::NoAddress ? FirstRegister : area.end + 1;
}

} // namespace

quint32 lastRegister(Layout layout)
{
    return layout == Layout::MasterRegisters ? LastMasterRegister : LastSlaveRegister;
}

int bytesOf(MappedType type, int quantity)
{
    switch (type) {
    case MappedBool:
        return quantity / BoolsPerByte;
    case MappedInt:
        return quantity * BytesPerInt;
    case MappedFloat:
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
    return bytesOf(rows) - bytesOf(MappedFloat, rows[MappedFloat].quantity);
}

int registersOf(MappedType type, int quantity)
{
    switch (type) {
    case MappedBool:
        return quantity / BoolsPerRegister;
    case MappedInt:
        return quantity;
    case MappedFloat:
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
    return std::all_of(rows.begin(), rows.end(), [](const MappingRow& row) { return row.quantity == 0; });
}

quint32 blockStart(const MappingBus& bus, Layout layout, Direction direction)
{
    const MappingArea& area = areaOf(bus, direction);
    if (area.start != MappingRow::NoAddress)
        return area.start;
    if (layout == Layout::MasterRegisters) {
        // A block that was emptied has left its place with its Float row.
        if (area.user[MappedFloat].start != MappingRow::NoAddress)
            return area.user[MappedFloat].start;
        return direction == Direction::WriteOnly ? behindMasterBlock(bus.areas[ReadOnlyArea]) : FirstRegister;
    }
    // The blocks of the slave lie in the order write only, read only, read and write.
    if (direction == Direction::ReadWrite && bus.areas[ReadOnlyArea].end != MappingRow::NoAddress)
        return bus.areas[ReadOnlyArea].end + 1;
    if (direction != Direction::WriteOnly && bus.areas[WriteOnlyArea].end != MappingRow::NoAddress)
        return bus.areas[WriteOnlyArea].end + 1;
    return FirstRegister;
}

quint64 blockEnd(const MappingArea& area, quint32 start)
{
    return quint64(start) + quint64(registersOf(area.user)) - 1;
}

void layOut(MappingArea& area, Layout layout, quint32 start)
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
        MappingRow& floats = area.user[MappedFloat];
        // An empty Float row keeps the place where it would lie: the block's own when all of it is empty, and
        // the one that the other direction may begin at.
        if (floats.quantity == 0) {
            floats.start = behind;
            floats.end = behind - 1;
        }
        area.start = isEmpty(area.user) ? MappingRow::NoAddress : start;
        area.end = isEmpty(area.user) ? MappingRow::NoAddress : behind - 1;
        break;
    }
    }
}

} // namespace Mapping
