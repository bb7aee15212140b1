#include "ModbusClientPartner.h"

#include "ControllerParts.h"
#include "ModbusFrame.h"
#include "ModbusSlave.h"

#include <algorithm>
#include <cstring>

namespace {

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
    : CallingPartner(controllerParts, "modbus-client", Wire::Modbus,
                     {Faults::PollSilent, Faults::PollSlow, Faults::PollDrops, Faults::PollGarbage})
    , m_slave(slave)
{
    connect(&socket(), &FramedSocket::arrived, this, &ModbusClientPartner::take);
}

bool ModbusClientPartner::start()
{
    loadMapping(); // what is mapped shows before anything is read
    return CallingPartner::start();
}

int ModbusClientPartner::robotPort() const
{
    return m_slave.port();
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

// Every look begins a round, in which one request follows the answer to the one before.
void ModbusClientPartner::attend(bool isNew)
{
    if (isNew)
        loadMapping();
    m_next = 0;
    askNext();
}

void ModbusClientPartner::askNext()
{
    if (m_next >= m_requests.size())
        return;
    const auto [address, count] = m_requests[m_next];
    ++m_transaction;
    const int unit = parts().faults.strikesWith(Faults::PollWrongUnit).value_or(ModbusSlave::UnitId);
    socket().send(
        ModbusFrame{m_transaction, 0, static_cast<quint8>(unit), ModbusFrame::readRequest(address, count)}
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
