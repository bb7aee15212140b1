#include "RegisterBank.h"

#include "ModbusFrame.h"

#include <QScopedValueRollback>

#include <algorithm>

RegisterBank::RegisterBank(const std::vector<RegisterBlock>& blocks)
{
    for (const RegisterBlock& block : blocks) {
        const auto end = static_cast<std::size_t>(block.first) + static_cast<std::size_t>(block.count);
        m_access.resize(std::max(m_access.size(), end), None);
        std::fill_n(m_access.begin() + block.first, block.count, block.writable ? ReadAndWrite : Read);
    }
    if (!m_access.empty()) {
        const QVector<quint16> values(static_cast<int>(m_access.size()), 0);
        setMap({{QModbusDataUnit::HoldingRegisters, {QModbusDataUnit::HoldingRegisters, 0, values}}});
    }
}

QByteArray RegisterBank::answer(const QByteArray& pdu)
{
    const auto function = static_cast<quint8>(pdu.at(0));
    if ((function & ModbusFrame::ExceptionBit) != 0)
        return ModbusFrame::exceptionOf(function, QModbusPdu::IllegalFunction);
    const QScopedValueRollback<bool> answering(m_answering, true);
    m_refused = false;
    const QModbusResponse response =
        processRequest(QModbusRequest(static_cast<QModbusPdu::FunctionCode>(function), pdu.mid(1)));
    // The base class takes a register that it may not write for a device that failed.
    if (m_refused)
        return ModbusFrame::exceptionOf(function, ModbusFrame::IllegalDataAddress);
    if (response.isException())
        return ModbusFrame::exceptionOf(function, response.exceptionCode());
    return QByteArray(1, static_cast<char>(function)) + response.data();
}

bool RegisterBank::readData(QModbusDataUnit* unit) const
{
    return (!unit || allows(*unit, Read)) && QModbusServer::readData(unit);
}

bool RegisterBank::writeData(const QModbusDataUnit& unit)
{
    if (m_answering && !allows(unit, ReadAndWrite)) {
        m_refused = true;
        return false;
    }
    return allows(unit, Read) && QModbusServer::writeData(unit);
}

bool RegisterBank::allows(const QModbusDataUnit& unit, Access wanted) const
{
    const int first = unit.startAddress();
    const int end = first + static_cast<int>(unit.valueCount());
    return unit.registerType() == QModbusDataUnit::HoldingRegisters && first >= 0 &&
           end <= static_cast<int>(m_access.size()) &&
           std::all_of(m_access.begin() + first, m_access.begin() + end,
                       [wanted](Access access) { return access >= wanted; });
}
