#ifndef ENDIANNAMES_H
#define ENDIANNAMES_H

#include <array>

/// The byte orders that the driver files of the slaves know. They are keywords of the files and the same in
/// every language; pages offer them in this order.
constexpr std::array<const char*, 4> EndianNames = {
    "LITTLE_ENDIAN",
    "MIDDLE_LITTLE_ENDIAN",
    "BIG_ENDIAN",
    "MIDDLE_BIG_ENDIAN",
};

#endif
