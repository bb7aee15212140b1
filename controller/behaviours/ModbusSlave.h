#ifndef CONTROLLER_MODBUSSLAVE_H
#define CONTROLLER_MODBUSSLAVE_H

#include "SocketBehaviour.h"

#include <memory>
#include <optional>

class RegisterServer;

/// The controller's Modbus TCP slave: a real server on this machine's loopback interface, with the registers
/// that the mapping has in the mode that runs. It serves while the role runs, its cable is plugged in and a
/// port was given. A mapping that is changed comes to run with the next restart.
class ModbusSlave : public SocketBehaviour
{
    Q_OBJECT

public:
    static constexpr int DefaultPort = 1502; ///< Modbus has 502, which is for root only
    static constexpr int UnitId = 1;

    explicit ModbusSlave(ControllerParts& controllerParts);
    ~ModbusSlave() override;

    /// Serves on `port` from now on, 0 for any free one. A port that is taken is told in the log, and tried
    /// again when the controller comes up or the cable is plugged in.
    void setPort(int port);
    /// The port that is served, 0 when none is.
    int port() const;
    int clientCount() const;

    /// The register with that number, from 40001 on; none when it is not served.
    std::optional<quint16> registerValue(int number) const;
    /// False when it is not served.
    bool setRegister(int number, quint16 value);

    void restarted() override;
    void rolesChanged() override;
    void wentDown() override;

private:
    void follow();
    void serve();
    void stop();
    void tellClients();

    std::unique_ptr<RegisterServer> m_server;
    std::optional<int> m_port;
};

#endif
