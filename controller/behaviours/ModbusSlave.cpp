#include "ModbusSlave.h"

#include "ControllerParts.h"
#include "RegisterServer.h"

#include <QDebug>

namespace {

const QString& role()
{
    static const QString name = QStringLiteral("ModbusTcpSlave");
    return name;
}

bool isRegister(int number)
{
    return number >= FirstHoldingRegister && number <= LastHoldingRegister;
}

quint16 addressOf(int number)
{
    return static_cast<quint16>(number - FirstHoldingRegister);
}

} // namespace

ModbusSlave::ModbusSlave(ControllerParts& controllerParts)
    : SocketBehaviour(controllerParts, "Modbus TCP slave")
{
    parts().links.setPartner(role(), false);
    onCable(role(), [this] { follow(); });
}

ModbusSlave::~ModbusSlave() = default;

void ModbusSlave::setPort(int port)
{
    m_port = port;
    stop();
    follow();
}

int ModbusSlave::port() const
{
    return m_server ? m_server->port() : 0;
}

int ModbusSlave::clientCount() const
{
    return m_server ? m_server->clientCount() : 0;
}

std::optional<quint16> ModbusSlave::registerValue(int number) const
{
    quint16 value = 0;
    if (!m_server || !isRegister(number) ||
        !m_server->registers().data(QModbusDataUnit::HoldingRegisters, addressOf(number), &value))
        return {};
    return value;
}

bool ModbusSlave::setRegister(int number, quint16 value)
{
    return m_server && isRegister(number) &&
           m_server->registers().setData(QModbusDataUnit::HoldingRegisters, addressOf(number), value);
}

void ModbusSlave::restarted()
{
    follow();
}

// The mode of the mapping is a role, too: another one has other registers.
void ModbusSlave::rolesChanged()
{
    stop();
    follow();
}

void ModbusSlave::wentDown()
{
    stop();
}

void ModbusSlave::follow()
{
    const bool wanted = m_port && isInService(role());
    if (wanted && !m_server)
        serve();
    else if (!wanted)
        stop();
}

void ModbusSlave::serve()
{
    QByteArray mapping;
    parts().files.read(QStringLiteral("/application/fidbus/fieldbus_config.xml"), mapping);
    m_server = std::make_unique<RegisterServer>(
        parts(), readRegisterBlocks(mapping, parts().roles.isOn("FreeBus") ? "free" : "fixed"), UnitId);
    const QString why = m_server->listen(*m_port);
    if (!why.isEmpty()) {
        const QString complaint = QStringLiteral("port %1: %2").arg(*m_port).arg(why);
        m_server.reset();
        qWarning().noquote() << "Modbus TCP slave:" << complaint;
        note(complaint);
        return;
    }
    // Whoever was told a port that was picked finds the slave there again.
    m_port = m_server->port();
    connect(m_server.get(), &FrameServer::clientCountChanged, this, &ModbusSlave::tellClients);
    note(QStringLiteral("port %1: listens").arg(*m_port));
}

void ModbusSlave::stop()
{
    m_server.reset();
    parts().links.setPartner(role(), false);
}

void ModbusSlave::tellClients()
{
    note(QStringLiteral("port %1: %2 client(s)").arg(port()).arg(clientCount()));
    parts().links.setPartner(role(), clientCount() > 0);
}
