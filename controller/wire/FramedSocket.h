#ifndef CONTROLLER_FRAMEDSOCKET_H
#define CONTROLLER_FRAMEDSOCKET_H

#include "Wire.h"

#include <QObject>

class FrameLog;
class QTcpSocket;

/// One end of a TCP connection that carries frames.
class FramedSocket : public QObject
{
    Q_OBJECT

public:
    /// Every frame is told to `frames`, which may be null. Takes over `socket`; without one it can `call`.
    FramedSocket(Wire::Id wire, FrameLog* frames, QTcpSocket* socket = nullptr, QObject* parent = nullptr);

    /// Calls a server on this machine, which must be at a loopback address; hangs up before.
    void call(const QString& address, quint16 port);
    void send(const QByteArray& frame);
    /// Cuts the connection; nothing is told of it.
    void hangUp();
    bool isConnected() const;

signals:
    void connected();
    void arrived(const QByteArray& frame);
    /// Bytes that are no frame arrived.
    void nonsense();
    /// The connection is gone, or did not come about.
    void lost(const QString& why);

private:
    void takeBytes();
    void keep(const QByteArray& frame, bool received);

    Wire::Id m_wire;
    bool m_isServer; ///< this end was called
    FrameLog* m_frames;
    QTcpSocket* m_socket;
    QByteArray m_received;
};

#endif
