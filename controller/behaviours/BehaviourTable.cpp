#include "BehaviourTable.h"

#include "ControllerClock.h"
#include "DeviceNetMaster.h"
#include "FieldbusManager.h"
#include "FinsClient.h"
#include "LinkStates.h"
#include "MasterSlaveStates.h"
#include "MesServer.h"
#include "ModbusMaster.h"
#include "ModbusSlave.h"
#include "ProfisafeDevice.h"

namespace {

using Maker = std::unique_ptr<Behaviour> (*)(ControllerParts&);

template <typename T>
std::unique_ptr<Behaviour> make(ControllerParts& parts)
{
    return std::make_unique<T>(parts);
}

// The manager first: the others come up with the roles that it switched on.
constexpr Maker Makers[] = {
    make<FieldbusManager>, make<ControllerClock>, make<LinkStates>,        make<MesServer>,
    make<FinsClient>,      make<ProfisafeDevice>, make<MasterSlaveStates>, make<ModbusSlave>,
    make<ModbusMaster>,    make<DeviceNetMaster>,
};

} // namespace

std::vector<std::unique_ptr<Behaviour>> makeBehaviours(ControllerParts& parts)
{
    std::vector<std::unique_ptr<Behaviour>> behaviours;
    for (const Maker maker : Makers)
        behaviours.push_back(maker(parts));
    return behaviours;
}
