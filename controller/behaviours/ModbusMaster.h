#ifndef CONTROLLER_MODBUSMASTER_H
#define CONTROLLER_MODBUSMASTER_H

#include "Behaviour.h"
#include "ModbusFiles.h"

#include <memory>
#include <optional>

class QModbusReply;
class QModbusTcpClient;

/// The controller's Modbus TCP master: a real client that connects to the slave of "mtcp_master.xml" when
/// "ifidbus.mbc_open" is set, or by itself while "ifidbus.mbc_auto_con" is. "ifidbus.mbc_connected" is on
/// while the slave answers under its unit id.
///
/// It tries for as long as the saved time-out and then gives up; with automatic connection it begins again. A
/// connection that breaks is tried again in the same way. Sockets live in real time, so no wait for one
/// follows the time scale. Only addresses of this machine are reached.
class ModbusMaster : public Behaviour
{
    Q_OBJECT

public:
    explicit ModbusMaster(ControllerParts& controllerParts);
    ~ModbusMaster() override;

    /// What runs; none when the file makes no sense.
    const std::optional<MasterSettings>& settings() const { return m_settings; }

    void restarted() override;
    void rolesChanged() override { follow(); }
    void wentDown() override;

private:
    void reload();
    void loadSettings();
    void follow();
    bool isAutomatic() const;
    void begin();
    void connectToSlave();
    void proveUnit();
    void takeAnswer(const QModbusReply& reply);
    void failed();
    void giveUp();
    void hangUp();
    void dropClient();
    void setConnected(bool connected);
    void note(const QString& text);

    std::optional<MasterSettings> m_settings;
    std::unique_ptr<QModbusTcpClient> m_client;
    bool m_trying = false;
    bool m_connected = false;
};

#endif
