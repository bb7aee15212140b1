#include "FramedSocket.h"

#include "FrameLog.h"

#include <QHostAddress>
#include <QPointer>
#include <QSignalBlocker>
#include <QTcpSocket>

namespace {
// Of what arrived and was not looked at yet.
constexpr int ReadBufferSize = 4096;
} // namespace

FramedSocket::FramedSocket(Wire::Id wire, FrameLog* frames, QTcpSocket* socket, QObject* parent)
    : QObject(parent)
    , m_wire(wire)
    , m_isServer(socket != nullptr)
    , m_frames(frames)
    , m_socket(socket ? socket : new QTcpSocket)
{
    m_socket->setParent(this);
    m_socket->setReadBufferSize(ReadBufferSize);
    connect(m_socket, &QTcpSocket::connected, this, &FramedSocket::connected);
    connect(m_socket, &QTcpSocket::readyRead, this, &FramedSocket::takeBytes);
    connect(m_socket, &QTcpSocket::errorOccurred, this, [this] { emit lost(m_socket->errorString()); });
}

void FramedSocket::call(const QString& address, quint16 port)
{
    hangUp();
    m_socket->connectToHost(QHostAddress(address), port);
}

void FramedSocket::send(const QByteArray& frame)
{
    if (!isConnected())
        return;
    keep(frame, false);
    m_socket->write(frame);
}

void FramedSocket::hangUp()
{
    const QSignalBlocker blocker(m_socket);
    m_socket->abort();
    m_received.clear();
}

bool FramedSocket::isConnected() const
{
    return m_socket->state() == QAbstractSocket::ConnectedState;
}

void FramedSocket::takeBytes()
{
    m_received += m_socket->readAll();
    // A frame may end the connection, and with it this end.
    const QPointer<FramedSocket> self(this);
    while (self && !m_received.isEmpty()) {
        const int size = Wire::of(m_wire).sizeOf(m_received);
        if (size == Wire::Incomplete)
            return;
        if (size == Wire::Garbage) {
            keep(m_received, true);
            m_received.clear();
            emit nonsense();
            return;
        }
        const QByteArray frame = m_received.left(size);
        m_received.remove(0, size);
        keep(frame, true);
        emit arrived(frame);
    }
}

void FramedSocket::keep(const QByteArray& frame, bool received)
{
    if (m_frames)
        m_frames->add({QDateTime::currentDateTime(), m_wire, received, m_isServer, m_socket->localPort(),
                       m_socket->peerPort(), frame});
}
