#ifndef MAPPINGTABLES_H
#define MAPPINGTABLES_H

#include "RoleTable.h"
#include "MappingFile.h"
#include "MarkedText.h"

/// What is fixed about the I/O mapping of each bus: its tables, their limits in either mode and the texts
/// that tell them. The texts are of the translation context "ConfigWidget", the page's.
namespace Mapping {

/// The buses, by the position of their tab.
enum class Bus {
    MtcpSlave,
    EthcatSlave,
    EipSlave,
    PfnSlave,
    EthcatMaster,
    DnSlave,
    MtcpMaster,
    EipMaster,
    PfnMaster,
    DnMaster
};
constexpr std::size_t BusCount = MappingConfig::BusCount;
/// By Bus.
using Buses = std::array<MappingBus, BusCount>;

/// As index of a bus's areas.
enum class Direction { ReadOnly, WriteOnly, ReadWrite };

/// Free bus configuration, or the fixed one with system areas.
using Mode = MappingConfig::Mode;

/// How the variables of a bus are laid out.
enum class Layout {
    Bytes,           ///< user rows behind a system area, counted in bytes
    SlaveRegisters,  ///< blocks of registers, each behind its system area
    MasterRegisters, ///< blocks of registers, user rows alone
    MasterBools      ///< a single row of Bools, counted in bytes
};

/// The types of variables, in the order of their rows.
constexpr std::array<MappedType, 3> Types = {MappedBool, MappedInt, MappedFloat};

/// A limit that a bus does not have.
constexpr int None = -1;

struct BusInfo
{
    RoleId role;
    Layout layout;
    bool isEdited;  ///< its quantities are entered here and not by the master's own configuration
    int firstTable; ///< number of its read-only table; the other directions follow
    int directions; ///< 2, or 3 with read and write

    const char* name() const { return RoleTable::nameOf(role); }
};

struct ByteRange
{
    int least = None;
    int most = None;
    constexpr bool isGiven() const { return most != None; }
};

struct Limits
{
    std::array<int, 3> quantity{None, None, None}; ///< largest one, by MappedType
    int boolMultiple = None;                       ///< what a Bool quantity must be a multiple of
    ByteRange smallBytes;                          ///< of Bool and Int together
    ByteRange allBytes;
    int smallMultiple = None; ///< what the Bool and Int bytes must be a multiple of
    const char* tips = "";    ///< the limits in words, with a placeholder for each one that is given
};

/// One of the 21 tables: a direction of a bus.
struct SubTable
{
    Bus bus;
    Direction direction;
    const char* userKey;   ///< what the names of its user variables begin with
    const char* systemKey; ///< ... of its system variables in the fixed mode; empty without any
    const char* prefix;    ///< of its bus addresses; empty where registers count
    const Limits* freeLimits;
    const Limits* fixedLimits;
};
constexpr int TableCount = 21;

const BusInfo& infoOf(Bus bus);
/// The table of `number`, 0 to 20.
const SubTable& tableOf(int number);
int numberOf(Bus bus, Direction direction);
const Limits& limitsOf(int number, Mode mode);
/// The limits of a table in words, for the operator.
MarkedText tipsOf(int number, Mode mode);

/// The part of a bus's record that a direction shows.
inline MappingArea& areaOf(MappingBus& bus, Direction direction)
{
    return bus.areas[static_cast<std::size_t>(direction)];
}
inline const MappingArea& areaOf(const MappingBus& bus, Direction direction)
{
    return bus.areas[static_cast<std::size_t>(direction)];
}

} // namespace Mapping

#endif
