#ifndef MAPPINGTABLES_H
#define MAPPINGTABLES_H

#include "BusFileData.h"

#include <QString>

#include <array>

/// What is fixed about the I/O mapping of each bus: its tables, their limits in either mode and the texts
/// that tell them. Knows no widget.
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
constexpr std::size_t BusCount = 10;

enum class Direction { ReadOnly, WriteOnly, ReadWrite };

/// How the variables of a bus are laid out.
enum class Layout {
    Bytes,           ///< user rows behind a system area, counted in bytes
    SlaveRegisters,  ///< blocks of registers, each behind its system area
    MasterRegisters, ///< blocks of registers, user rows alone
    MasterBools      ///< a single row of Bools, counted in bytes
};

/// The types of variables, in the order of their rows.
constexpr std::array<BusVariableType, 3> Types = {BusBool, BusInt, BusFloat};

/// A limit that a bus does not have.
constexpr int None = -1;

struct BusInfo
{
    const char* name; ///< role as "fieldbus.xml" and "fieldbus_config.xml" spell it
    Layout layout;
    bool isEdited;  ///< its quantities are entered here and not by the master's own configuration
    int firstTable; ///< number of its read-only table; the other directions follow
    int directions; ///< 2, or 3 with read and write
};

struct ByteRange
{
    int least = None;
    int most = None;
    constexpr bool isGiven() const { return most != None; }
};

struct Limits
{
    std::array<int, 3> quantity{None, None, None}; ///< largest one, by BusVariableType
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
const Limits& limitsOf(int number, bool freeMode);
/// A text of the page in the operator's language; the translations know them all as the page's own.
QString translated(const char* text);
/// The limits of a table in words, for the operator.
QString tipsOf(int number, bool freeMode);

/// The part of a bus's record that a direction shows.
BusAreaInfo BusAddrNumInfo::*areaOf(Direction direction);

} // namespace Mapping

#endif
