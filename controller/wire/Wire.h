#ifndef CONTROLLER_WIRE_H
#define CONTROLLER_WIRE_H

#include <QByteArray>

/// A protocol on a TCP connection: how a stream of bytes falls into frames.
struct Wire
{
    enum Id { Fins, Modbus, Mes, Count };

    /// What `sizeOf` says of bytes that are no whole frame.
    static constexpr int Incomplete = 0;
    static constexpr int Garbage = -1; ///< no frame begins like this, whatever may follow

    const char* name;
    /// The size of the first frame in `received`, which is not empty.
    int (*sizeOf)(const QByteArray& received);

    static const Wire& of(Id id);
};

#endif
