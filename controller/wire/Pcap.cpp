#include "Pcap.h"

#include <QMap>
#include <QPair>
#include <QtEndian>

namespace {

// The head of the file, in this machine's byte order, which its first number tells.
constexpr quint32 FileHead[] = {0xa1b2c3d4, (4U << 16) | 2U, 0, 0, 0xffff /* longest packet */,
                                101 /* raw IP */};

constexpr int IpHeadSize = 20;
constexpr quint8 TcpProtocol = 6;
constexpr quint16 PushAndAck = 0x5018; // head of five words, PSH and ACK
constexpr quint32 Loopback = 0x7f000001;

void append16(QByteArray& bytes, quint16 value)
{
    const quint16 big = qToBigEndian(value);
    bytes.append(reinterpret_cast<const char*>(&big), sizeof big);
}

void append32(QByteArray& bytes, quint32 value)
{
    append16(bytes, static_cast<quint16>(value >> 16));
    append16(bytes, static_cast<quint16>(value & 0xffff));
}

// Of the internet protocols: the complement of the sum of all words.
quint16 checksum(QByteArray bytes)
{
    if (bytes.size() % 2 != 0)
        bytes.append('\0');
    quint32 sum = 0;
    for (int at = 0; at < bytes.size(); at += 2)
        sum += qFromBigEndian<quint16>(bytes.constData() + at);
    while (sum > 0xffff)
        sum = (sum & 0xffff) + (sum >> 16);
    return static_cast<quint16>(~sum);
}

void putChecksum(QByteArray& bytes, int at, quint16 value)
{
    qToBigEndian(value, bytes.data() + at);
}

QByteArray tcpSegment(quint16 from, quint16 to, quint32 sequence, quint32 acknowledged,
                      const QByteArray& data)
{
    QByteArray segment;
    append16(segment, from);
    append16(segment, to);
    append32(segment, sequence);
    append32(segment, acknowledged);
    append16(segment, PushAndAck);
    append16(segment, 0xffff); // window
    append32(segment, 0);      // checksum, urgent pointer
    segment += data;
    QByteArray summed;
    append32(summed, Loopback);
    append32(summed, Loopback);
    append16(summed, TcpProtocol);
    append16(summed, static_cast<quint16>(segment.size()));
    putChecksum(segment, 16, checksum(summed + segment));
    return segment;
}

QByteArray ipPacket(const QByteArray& segment)
{
    QByteArray head;
    append16(head, 0x4500);
    append16(head, static_cast<quint16>(IpHeadSize + segment.size()));
    append32(head, 0x4000); // identification 0, not to be fragmented
    append16(head, (64 << 8) | TcpProtocol);
    append16(head, 0);
    append32(head, Loopback);
    append32(head, Loopback);
    putChecksum(head, 10, checksum(head));
    return head + segment;
}

void appendNative(QByteArray& bytes, quint32 value)
{
    bytes.append(reinterpret_cast<const char*>(&value), sizeof value);
}

} // namespace

QByteArray pcapOf(const QVector<LoggedFrame>& frames)
{
    QByteArray file(reinterpret_cast<const char*>(FileHead), sizeof FileHead);
    QMap<QPair<quint16, quint16>, quint32> sent; // bytes of each direction
    for (const LoggedFrame& frame : frames) {
        const quint16 from = frame.received ? frame.partnerPort : frame.controllerPort;
        const quint16 to = frame.received ? frame.controllerPort : frame.partnerPort;
        const QByteArray packet = ipPacket(
            tcpSegment(from, to, 1 + sent.value({from, to}), 1 + sent.value({to, from}), frame.bytes));
        sent[{from, to}] += static_cast<quint32>(frame.bytes.size());
        const qint64 msec = frame.time.toMSecsSinceEpoch();
        appendNative(file, static_cast<quint32>(msec / 1000));
        appendNative(file, static_cast<quint32>(msec % 1000) * 1000);
        appendNative(file, static_cast<quint32>(packet.size()));
        appendNative(file, static_cast<quint32>(packet.size()));
        file += packet;
    }
    return file;
}
