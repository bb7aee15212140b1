#ifndef CONTROLLERVARIABLES_H
#define CONTROLLERVARIABLES_H

#include "zelCustomRvar.h"

#include <functional>

/// The handles on the controller's variables, constructed when the plug-in is loaded. Each is named as its
/// variable, and each is one line of ControllerVariables.cpp: its group, its name, and below it its
/// accessors. Pages use the accessors of FieldbusSettingLib; declared here is only what pages use directly.
namespace ControllerVariables {

/// The groups in which the variables are subscribed, in the order in which the host has it done.
enum class Group {
    Mes,
    CcLink,
    Fins,
    Heartbeat,
    BusTypeState,
    ModbusMaster,
    DeviceNetSlaveRole,
    DeviceNetMasterRole,
    ModuleType,
    FileHandshake,
    ProfinetClose,
    ProfinetOpen,
    EtherNetIpClose,
    EtherNetIpOpen,
    DeviceNetSlaveOpen,
    DeviceNetSlaveClose,
    DeviceNetMasterOpen,
    DeviceNetMasterClose,
    CurrentTime,
    Communication,
    EtherNetIpMaster,
    ProfinetMaster,
    DeviceNetMaster,
    Profisafe,
    HostGroups,
    EtherCatOpenClose = HostGroups, ///< nobody subscribes it
    Count,
    None = Count ///< written only, or read as the host last heard of it
};

/// Adds to a group what subscribes a handle; in the order of the calls.
void enlist(Group group, std::function<bool(bool)> setUsed);

/// Subscribes (true) or unsubscribes every handle of the group, in order, whatever the ones before it answer.
bool use(Group group, bool used);

/// All groups of the host, in order; ends at the first that answers false.
bool useHostGroups(bool used);

/// A handle of the host that is a member of a group.
template <typename Handle>
class Member : public Handle
{
public:
    Member(Group group, const char* name)
        : Handle(name, ReadWrite)
    {
        enlist(group, [this](bool used) { return Handle::setUsed(used); });
    }
    Member(Group group, const char* name, int count)
        : Handle(name, count, ReadWrite)
    {
        enlist(group, [this](bool used) { return Handle::setUsed(used); });
    }
    using Handle::operator=;

private:
    static constexpr int ReadWrite = 1;
};

using Bool = Member<zelCustomRvarBool>;
using Int = Member<zelCustomRvarInt>;
using Real = Member<zelCustomRvarReal>;
using IntVector = Member<zelCustomRvarIntVect>;
using BoolVector = Member<zelCustomRvarBoolVect>;

extern Int ifidbus_bus_type_state;
extern Int ifidbus_xml_update_state;
extern Real ifidbus_current_time;

// Commands; the controller clears each when it has taken it
extern Bool ifidbus_ecat2open, ifidbus_ecat2close;
extern Bool ifidbus_eip2open, ifidbus_eip2close;
extern Bool ifidbus_pfn2open, ifidbus_pfn2close;
extern Bool ifidbus_dns2open, ifidbus_dns2close;
extern Bool ifidbus_dnm2open, ifidbus_dnm2close;

extern IntVector io_man_profisafe_local_wo;
extern IntVector io_man_profisafe_local_ro;
extern IntVector io_man_profisafe_ext_ro;

} // namespace ControllerVariables

#endif
