#include "Partners.h"

#include "DeviceNetMaster.h"
#include "MasterSlaveStates.h"
#include "MesServer.h"
#include "ModbusSlave.h"
#include "SimulatedController.h"

Partners::Partners(SimulatedController& controller, ControllerParts& parts)
    : m_controller(controller)
    , m_fins(parts)
    , m_mes(parts, controller.behaviour<MesServer>())
    , m_modbusServer(parts)
    , m_modbusClient(parts, controller.behaviour<ModbusSlave>())
{
}

Partner* Partners::find(const QString& name)
{
    for (Partner* const partner : all()) {
        if (partner->name() == name)
            return partner;
    }
    return nullptr;
}

void Partners::useFreePorts()
{
    m_fins.setPort(0);
    m_modbusServer.setPort(0);
    m_mes.moveServer();
}

bool Partners::startAll()
{
    for (const BusRole& role : LinkedBusRoles)
        m_controller.setLinkUp(QLatin1String(role.name), true);
    auto& slaves = m_controller.behaviour<MasterSlaveStates>();
    for (const auto master : {MasterSlaveStates::EtherNetIp, MasterSlaveStates::Profinet}) {
        slaves.useDevice(master);
        for (int position = 0; position < MasterSlaveStates::PositionCount; ++position)
            slaves.setSlaveConnected(master, position, true);
    }
    auto& deviceNet = m_controller.behaviour<DeviceNetMaster>();
    for (const int macId : deviceNet.scanList())
        deviceNet.setOnNetwork(macId, true);
    bool started = true;
    for (Partner* const partner : all())
        started = (partner->isRunning() || partner->start()) && started;
    return started;
}

void Partners::robotCameUp()
{
    for (Partner* const partner : all()) {
        if (partner->isRunning())
            partner->invite();
    }
}

void Partners::stopAll()
{
    for (Partner* const partner : all())
        partner->stop();
}
