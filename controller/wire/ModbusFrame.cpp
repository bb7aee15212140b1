#include "ModbusFrame.h"

#include "Wire.h"

#include <QtEndian>

namespace {

constexpr int LengthOffset = 4;
constexpr int UnitOffset = 6;
constexpr int PduOffset = 7;
// The length counts the unit as well.
constexpr int LeastLength = 2;
constexpr int MostLength = 254;

QByteArray word(int value)
{
    QByteArray bytes(2, '\0');
    qToBigEndian(static_cast<quint16>(value), bytes.data());
    return bytes;
}

} // namespace

quint16 ModbusFrame::wordAt(const QByteArray& bytes, int at)
{
    return qFromBigEndian<quint16>(bytes.constData() + at);
}

QByteArray ModbusFrame::bytes() const
{
    return word(transaction) + word(protocol) + word(pdu.size() + 1) + static_cast<char>(unit) + pdu;
}

ModbusFrame ModbusFrame::of(const QByteArray& whole)
{
    return {wordAt(whole, 0), wordAt(whole, 2), static_cast<quint8>(whole.at(UnitOffset)),
            whole.mid(PduOffset)};
}

int ModbusFrame::sizeOf(const QByteArray& received)
{
    if (received.size() < UnitOffset)
        return Wire::Incomplete;
    const int length = wordAt(received, LengthOffset);
    if (length < LeastLength || length > MostLength)
        return Wire::Garbage;
    return received.size() < UnitOffset + length ? Wire::Incomplete : UnitOffset + length;
}

QByteArray ModbusFrame::readRequest(int address, int count)
{
    return QByteArray(1, static_cast<char>(ReadHoldingRegisters)) + word(address) + word(count);
}

int ModbusFrame::exception() const
{
    return (function() & ExceptionBit) != 0 && pdu.size() > 1 ? static_cast<quint8>(pdu.at(1)) : 0;
}

QByteArray ModbusFrame::exceptionOf(quint8 function, int code)
{
    return QByteArray(1, static_cast<char>(function | ExceptionBit)) + static_cast<char>(code);
}
