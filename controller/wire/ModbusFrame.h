#ifndef CONTROLLER_MODBUSFRAME_H
#define CONTROLLER_MODBUSFRAME_H

#include <QByteArray>

/// Frames of Modbus TCP: transaction, protocol (always 0), length of what follows it (two bytes each, the
/// higher first), unit, function code and its data.
struct ModbusFrame
{
    enum Function : quint8 { ReadHoldingRegisters = 3 };
    enum Exception : quint8 { IllegalDataAddress = 2, GatewayPath = 10, GatewayTarget = 11 };

    quint16 transaction = 0;
    quint16 protocol = 0;
    quint8 unit = 0;
    QByteArray pdu; ///< function code and data, 1 to 253 bytes

    QByteArray bytes() const;
    /// `whole` is one frame by `sizeOf`.
    static ModbusFrame of(const QByteArray& whole);
    /// As `Wire::sizeOf`. A frame of another protocol id is a frame.
    static int sizeOf(const QByteArray& received);

    /// What asks for `count` registers (1 to 125) from `address` on.
    static QByteArray readRequest(int address, int count);
    static constexpr int MostRegisters = 125;

    quint8 function() const { return static_cast<quint8>(pdu.at(0)); }
    static constexpr quint8 ExceptionBit = 0x80;
    /// The exception that the frame tells of, 0 when it tells of none; 1 to 255.
    int exception() const;
    /// An answer that tells of an exception.
    static QByteArray exceptionOf(quint8 function, int code);

    /// Two bytes, the higher first. `at` must lie two bytes before the end.
    static quint16 wordAt(const QByteArray& bytes, int at);
};

#endif
