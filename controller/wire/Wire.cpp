#include "Wire.h"

#include "FinsFrame.h"
#include "ModbusFrame.h"

#include <algorithm>

namespace {

// What a manufacturing execution system sends has no frames that this project knows; nor needs a picture of
// it more than this.
constexpr int MostOfMes = 1024;

int sizeOfMes(const QByteArray& received)
{
    return std::min(received.size(), MostOfMes);
}

// As Wire::Id counts.
constexpr Wire Wires[] = {{"FINS", FinsFrame::sizeOf}, {"Modbus", ModbusFrame::sizeOf}, {"MES", sizeOfMes}};
static_assert(sizeof Wires / sizeof Wires[0] == Wire::Count, "a row a protocol");

} // namespace

const Wire& Wire::of(Id id)
{
    return Wires[id];
}
