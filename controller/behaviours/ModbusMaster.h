#ifndef CONTROLLER_MODBUSMASTER_H
#define CONTROLLER_MODBUSMASTER_H

#include "FramedSocket.h"
#include "ModbusFiles.h"
#include "SocketBehaviour.h"

#include <optional>

/// The controller's Modbus TCP master: a real client that connects to the slave of "mtcp_master.xml" when
/// "ifidbus.mbc_open" is set, or by itself while "ifidbus.mbc_auto_con" is. "ifidbus.mbc_connected" is on
/// while the slave answers under its unit id.
///
/// It tries for as long as the saved time-out and then gives up; with automatic connection it begins again. A
/// connection that breaks is tried again in the same way. Only addresses of this machine are reached.
class ModbusMaster : public SocketBehaviour
{
    Q_OBJECT

public:
    explicit ModbusMaster(ControllerParts& controllerParts);

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
    void takeFrame(const QByteArray& bytes);
    void failed(const QString& why);
    void giveUp();
    void hangUp();
    void setConnected(bool connected);

    std::optional<MasterSettings> m_settings;
    FramedSocket m_socket;
    QString m_complaint;       ///< why the last try failed
    quint16 m_transaction = 0; ///< of the last request
    bool m_awaiting = false;   ///< it is not answered yet
    bool m_trying = false;
    bool m_connected = false;
};

#endif
