#ifndef CONTROLLER_REGISTERSERVER_H
#define CONTROLLER_REGISTERSERVER_H

#include "FrameServer.h"
#include "RegisterBank.h"

/// A Modbus TCP server on 127.0.0.1 that serves blocks of holding registers. As such servers do, it answers
/// to its unit id and to the two that mean "whoever is there"; to any other, and to frames of another
/// protocol id, it is silent.
class RegisterServer : public FrameServer
{
    Q_OBJECT

public:
    /// The controller's own without `faults`, else a partner's. All registers are 0.
    RegisterServer(ControllerParts& parts, const std::vector<RegisterBlock>& blocks, int unit,
                   const std::optional<AnswerFaults>& faults = {});

    RegisterBank& registers() { return m_registers; }
    const RegisterBank& registers() const { return m_registers; }

private:
    QByteArray answer(const QByteArray& frame);

    ControllerParts& m_parts;
    RegisterBank m_registers;
    int m_unit;
    bool m_isPartner;
};

#endif
