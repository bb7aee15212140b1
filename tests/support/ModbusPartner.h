#ifndef TESTS_MODBUSPARTNER_H
#define TESTS_MODBUSPARTNER_H

#include <QModbusTcpServer>
#include <QTcpServer>
#include <QTcpSocket>

#include <memory>

/// A Modbus TCP server on loopback that is none of the controller's: a device of the plant.
class ModbusPartner
{
public:
    explicit ModbusPartner(int unit = 1)
        : m_unit(unit)
    {
        start();
    }
    ~ModbusPartner() { kill(); }
    ModbusPartner(const ModbusPartner&) = delete;
    ModbusPartner& operator=(const ModbusPartner&) = delete;

    /// Any free port at the first time, the same one from then on.
    bool start()
    {
        m_server = std::make_unique<QModbusTcpServer>();
        m_server->setMap({{QModbusDataUnit::HoldingRegisters, {QModbusDataUnit::HoldingRegisters, 0, 100}}});
        m_server->setServerAddress(m_unit);
        m_server->setConnectionParameter(QModbusDevice::NetworkAddressParameter, QStringLiteral("127.0.0.1"));
        m_server->setConnectionParameter(QModbusDevice::NetworkPortParameter, m_port);
        const bool served = m_server->connectDevice();
        m_port = m_server->findChild<QTcpServer*>()->serverPort();
        return served;
    }
    /// Cuts every connection and serves no more.
    void kill()
    {
        if (m_server)
            qDeleteAll(m_server->findChildren<QTcpSocket*>());
        m_server.reset();
    }
    /// Answers to another unit id from now on, as a device that was replaced does.
    void becomeUnit(int unit) { m_server->setServerAddress(unit); }

    int port() const { return m_port; }
    QString portText() const { return QString::number(m_port); }
    int clients() const { return m_server ? m_server->findChildren<QTcpSocket*>().size() : 0; }

private:
    std::unique_ptr<QModbusTcpServer> m_server;
    int m_unit;
    int m_port = 0;
};

#endif
