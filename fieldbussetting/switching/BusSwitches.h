#ifndef BUSSWITCHES_H
#define BUSSWITCHES_H

#include "RoleTable.h"
#include "zelCustomRvar.h"

#include <array>

class FieldbusSettingLib;

/// The bus roles that the operator switches, and what of them the controller is told.
namespace BusSwitches {

/// In the order in which the page shows them.
enum Switch {
    Mes,
    EtherCatSlave,
    EtherCatMaster,
    EipSlave,
    EipMaster,
    PfnSlave,
    PfnMaster,
    DeviceNetSlave,
    DeviceNetMaster,
    MtcpMaster,
    FreeBus,
    Count
};

/// Position in a switch's list.
enum Index { Off = 0, On = 1 };

struct Row
{
    const char* objectName; ///< of the switch
    const char* label;      ///< beside it
    RoleId role;

    const char* busName() const { return RoleTable::nameOf(role); }
};
const std::array<Row, Count>& rows();

/// A role whose driver the controller opens and closes by command before the restart.
struct Command
{
    Switch which;
    zelCustomRvarBool& open;
    zelCustomRvarBool& close;
    const char* name; ///< in the message about a command that was not taken

    /// Whether the controller has still to take it: it clears what it has taken.
    bool isPending() const { return open || close; }
};
constexpr std::size_t CommandCount = 4;
/// In the order in which they are given.
const std::array<Command, CommandCount>& commands();
/// In the order in which the operator is told about those that were not taken.
const std::array<const Command*, CommandCount>& reportedCommands();

/// A variable that tells the controller at once whether a role is wanted.
struct RoleVariable
{
    Switch which;
    void (FieldbusSettingLib::*set)(bool);
};
/// In the order in which they are written.
const std::array<RoleVariable, 7>& roleVariables();

} // namespace BusSwitches

#endif
