#ifndef CONTROLLER_REGISTERBANK_H
#define CONTROLLER_REGISTERBANK_H

#include "ModbusFiles.h"

#include <QModbusServer>

#include <vector>

/// The holding registers of a Modbus device, and what it answers to requests for them; without a socket. What
/// lies between the blocks, and a write to a block that is not writable, is answered with "illegal data
/// address".
class RegisterBank : public QModbusServer
{
    Q_OBJECT

public:
    /// All registers are 0.
    explicit RegisterBank(const std::vector<RegisterBlock>& blocks);

    /// The answer to a request without its frame, at least one byte.
    QByteArray answer(const QByteArray& pdu);

protected:
    bool readData(QModbusDataUnit* unit) const override;
    bool writeData(const QModbusDataUnit& unit) override;
    bool open() override { return true; }
    void close() override {}

private:
    enum Access : quint8 { None, Read, ReadAndWrite };
    bool allows(const QModbusDataUnit& unit, Access wanted) const;

    std::vector<Access> m_access; ///< by address
    bool m_answering = false;
    bool m_refused = false; ///< the request that is answered wrote to what is not a client's
};

#endif
