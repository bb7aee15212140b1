#include "ByteOrders.h"

#include <algorithm>
#include <iterator>

namespace ByteOrders {

namespace {

constexpr const char* FourBytes = "0x01020304";
constexpr const char* TwoBytes = "0x0102";

// "Middle" is the order of the two words turned against that of the bytes within them.
constexpr Example Examples[] = {
    {"LITTLE_ENDIAN", FourBytes, "04 03 02 01"},
    {"MIDDLE_LITTLE_ENDIAN", FourBytes, "03 04 01 02"},
    {"BIG_ENDIAN", FourBytes, "01 02 03 04"},
    {"MIDDLE_BIG_ENDIAN", FourBytes, "02 01 04 03"},
    {"littleEndian", FourBytes, "04 03 02 01"},
    {"bigEndian", FourBytes, "01 02 03 04"},
    {"BIG_ENDIAN_16", TwoBytes, "01 02"},
    {"LITTLE_ENDIAN_16", TwoBytes, "02 01"},
    {"BIG_ENDIAN_32", FourBytes, "01 02 03 04"},
    {"LITTLE_ENDIAN_32", FourBytes, "04 03 02 01"},
    {"MIDDLE_BIG_ENDIAN_32", FourBytes, "02 01 04 03"},
    {"MIDDLE_LITTLE_ENDIAN_32", FourBytes, "03 04 01 02"},
};

} // namespace

const Example* exampleOf(const QString& name)
{
    const auto* found =
        std::find_if(std::begin(Examples), std::end(Examples),
                     [&name](const Example& example) { return name == QLatin1String(example.name); });
    return found == std::end(Examples) ? nullptr : found;
}

} // namespace ByteOrders
