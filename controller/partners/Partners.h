#ifndef CONTROLLER_PARTNERS_H
#define CONTROLLER_PARTNERS_H

#include "FinsPartner.h"
#include "MesPartner.h"
#include "ModbusClientPartner.h"
#include "ModbusServerPartner.h"

#include <array>

class SimulatedController;

/// Everybody whom the controller has a link to.
class Partners
{
public:
    Partners(SimulatedController& controller, ControllerParts& parts);

    FinsPartner& fins() { return m_fins; }
    MesPartner& mes() { return m_mes; }
    ModbusServerPartner& modbusServer() { return m_modbusServer; }
    ModbusClientPartner& modbusClient() { return m_modbusClient; }

    static constexpr int Count = 4;
    std::array<Partner*, Count> all() { return {&m_fins, &m_mes, &m_modbusServer, &m_modbusClient}; }
    /// Null when there is no such partner.
    Partner* find(const QString& name);

    /// Lets every port be one that is free on this machine, the robot's MES server's as well: for many
    /// controllers on one machine. Counts from the next start on.
    void useFreePorts();
    /// Starts all; and the roles of the fieldbus modules, which have no socket, get what stands for their
    /// partner: the cable, the device in "override.cfg", the slaves, the devices of the scan list. False when
    /// a partner could not be started.
    bool startAll();
    /// The robot's ends of the links of those that run are off after a restart.
    void robotCameUp();
    /// Stops all; cables and slaves stay.
    void stopAll();

private:
    SimulatedController& m_controller;
    FinsPartner m_fins;
    MesPartner m_mes;
    ModbusServerPartner m_modbusServer;
    ModbusClientPartner m_modbusClient;
};

#endif
