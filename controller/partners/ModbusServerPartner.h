#ifndef CONTROLLER_MODBUSSERVERPARTNER_H
#define CONTROLLER_MODBUSSERVERPARTNER_H

#include "Partner.h"
#include "RegisterServer.h"

/// A device of the plant: the slave of the robot's Modbus TCP master, with the unit id 1.
class ModbusServerPartner : public Partner
{
    Q_OBJECT

public:
    static constexpr int DefaultPort = 1503; ///< as the factory settings of the master have it
    static constexpr int UnitId = 1;

    explicit ModbusServerPartner(ControllerParts& parts);

    bool start() override;
    void stop() override { m_server.close(); }
    void invite() override;
    bool isRunning() const override { return m_server.isListening(); }
    QString state() const override;

private:
    RegisterServer m_server;
};

#endif
