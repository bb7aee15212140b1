#include "RegisterServer.h"

#include "ControllerParts.h"
#include "ModbusFrame.h"

namespace {
constexpr int AnyUnit[] = {0, 255};
} // namespace

RegisterServer::RegisterServer(ControllerParts& parts, const std::vector<RegisterBlock>& blocks, int unit,
                               const std::optional<AnswerFaults>& faults)
    : FrameServer(
          parts, Wire::Modbus, [this](const QByteArray& frame) { return answer(frame); }, faults)
    , m_parts(parts)
    , m_registers(blocks)
    , m_unit(unit)
    , m_isPartner(faults.has_value())
{
}

QByteArray RegisterServer::answer(const QByteArray& frame)
{
    ModbusFrame request = ModbusFrame::of(frame);
    if (request.protocol != 0 ||
        (request.unit != m_unit && request.unit != AnyUnit[0] && request.unit != AnyUnit[1]))
        return {};
    const quint8 function = request.function();
    request.pdu = m_registers.answer(request.pdu);
    if (m_isPartner) {
        if (const auto code = m_parts.faults.strikesWith(Faults::ModbusException))
            request.pdu = ModbusFrame::exceptionOf(function, *code);
        if (const auto unit = m_parts.faults.strikesWith(Faults::ModbusWrongUnit))
            request.unit = static_cast<quint8>(*unit);
    }
    return request.bytes();
}
