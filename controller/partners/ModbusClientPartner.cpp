#include "ModbusClientPartner.h"

#include "ControllerParts.h"
#include "ModbusFrame.h"
#include "ModbusSlave.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr int PollMs = 500;

// As the plant wires it: the higher register first.
QString textOf(const MappedVariable& variable, const QMap<int, quint16>& values)
{
    if (!values.contains(variable.address))
        return {};
    const quint16 first = values.value(variable.address);
    switch (variable.type) {
    case MappedVariable::Bool:
        return QStringLiteral("%1").arg(first, 16, 2, QLatin1Char('0'));
    case MappedVariable::Int:
        return QString::number(static_cast<qint16>(first));
    case MappedVariable::Float:
        break;
    }
    const quint32 bits = (static_cast<quint32>(first) << 16) | values.value(variable.address + 1);
    float number = 0;
    std::memcpy(&number, &bits, sizeof number);
    return QString::number(static_cast<double>(number));
}

} // namespace

ModbusClientPartner::ModbusClientPartner(ControllerParts& controllerParts, const ModbusSlave& slave)
    : Partner(controllerParts, "modbus-client", 0)
    , m_slave(slave)
    , m_socket(Wire::Modbus, nullptr)
{
    connect(&m_timer, &QTimer::timeout, this, &ModbusClientPartner::poll);
    connect(&m_socket, &FramedSocket::arrived, this, &ModbusClientPartner::take);
    connect(&m_socket, &FramedSocket::connected, this, [this] {
        note(QStringLiteral("connected to port %1").arg(m_slave.port()));
        loadMapping();
        askNext();
    });
    connect(&m_socket, &FramedSocket::lost, this, [this](const QString& why) { note(why); });
}

bool ModbusClientPartner::start()
{
    m_timer.start(PollMs);
    loadMapping();
    poll();
    return true;
}

void ModbusClientPartner::stop()
{
    m_timer.stop();
    m_socket.hangUp();
}

QString ModbusClientPartner::state() const
{
    if (!isRunning())
        return tr("off");
    return m_socket.isConnected() ? tr("connected to 127.0.0.1:%1").arg(m_slave.port()) : tr("calls");
}

std::vector<ModbusClientPartner::Row> ModbusClientPartner::rows() const
{
    std::vector<Row> rows;
    for (const MappedVariable& variable : m_variables)
        rows.push_back({variable.address + FirstHoldingRegister, variable.name, textOf(variable, m_values)});
    return rows;
}

void ModbusClientPartner::loadMapping()
{
    QByteArray mapping;
    QByteArray texts;
    parts().files.read(QStringLiteral("/application/fidbus/fieldbus_config.xml"), mapping);
    parts().files.read(QStringLiteral("/application/fidbus/user_description.xml"), texts);
    const char* const mode = parts().roles.isOn("FreeBus") ? "free" : "fixed";
    m_variables = readMappedVariables(mapping, texts, mode);
    m_values.clear();
    m_requests.clear();
    for (const RegisterBlock& block : readRegisterBlocks(mapping, mode)) {
        for (int done = 0; done < block.count; done += ModbusFrame::MostRegisters)
            m_requests.emplace_back(block.first + done,
                                    std::min(ModbusFrame::MostRegisters, block.count - done));
    }
}

// Comes round by the timer; within a round one request follows the answer to the one before.
void ModbusClientPartner::poll()
{
    setPort(m_slave.port());
    m_next = 0;
    if (m_socket.isConnected())
        askNext();
    else if (m_slave.port() != 0)
        m_socket.call(QStringLiteral("127.0.0.1"), static_cast<quint16>(m_slave.port()));
}

void ModbusClientPartner::askNext()
{
    if (m_next >= m_requests.size())
        return;
    const auto [address, count] = m_requests[m_next];
    ++m_transaction;
    m_socket.send(ModbusFrame{m_transaction, 0, static_cast<quint8>(ModbusSlave::UnitId),
                              ModbusFrame::readRequest(address, count)}
                      .bytes());
}

void ModbusClientPartner::take(const QByteArray& bytes)
{
    const ModbusFrame frame = ModbusFrame::of(bytes);
    if (frame.transaction != m_transaction || m_next >= m_requests.size())
        return;
    const auto [address, count] = m_requests[m_next];
    // Function, number of bytes, registers.
    if (frame.function() == ModbusFrame::ReadHoldingRegisters && frame.pdu.size() == 2 + 2 * count) {
        for (int i = 0; i < count; ++i)
            m_values.insert(address + i, ModbusFrame::wordAt(frame.pdu, 2 + 2 * i));
    }
    ++m_next;
    askNext();
}
