#include "FrameServer.h"

#include "ControllerParts.h"
#include "FramedSocket.h"

#include <QTcpSocket>
#include <QTimer>

#include <utility>

FrameServer::FrameServer(ControllerParts& parts, Wire::Id wire, Answer answer,
                         const std::optional<AnswerFaults>& faults)
    : m_parts(parts)
    , m_wire(wire)
    , m_answer(std::move(answer))
    , m_faults(faults)
{
    connect(&m_server, &QTcpServer::newConnection, this, &FrameServer::takeClients);
}

FrameServer::~FrameServer() = default;

QString FrameServer::listen(int port)
{
    close();
    if (m_parts.faults.strikes(Faults::PortTaken, QString::number(port)))
        return tr("The bound address is already in use");
    return m_server.listen(QHostAddress::LocalHost, static_cast<quint16>(port)) ? QString()
                                                                                : m_server.errorString();
}

void FrameServer::close()
{
    m_server.close();
    const QMap<FramedSocket*, int> clients = std::exchange(m_answers, {});
    for (auto client = clients.begin(); client != clients.end(); ++client)
        letGo(client.key());
}

void FrameServer::takeClients()
{
    while (QTcpSocket* const socket = m_server.nextPendingConnection()) {
        if (clientCount() >= m_most) {
            socket->abort();
            socket->deleteLater();
            note(QStringLiteral("one client too many is turned away"));
            continue;
        }
        auto* const client = new FramedSocket(m_wire, m_faults ? nullptr : &m_parts.frames, socket, this);
        m_answers.insert(client, 0);
        connect(client, &FramedSocket::arrived, this,
                [this, client](const QByteArray& frame) { serve(client, frame); });
        const auto gone = [this, client] {
            if (m_answers.remove(client) == 0)
                return;
            letGo(client);
            emit clientCountChanged();
        };
        connect(client, &FramedSocket::nonsense, this, [this, gone] {
            note(QStringLiteral("bytes that are no frame, the client is cut off"));
            gone();
        });
        connect(client, &FramedSocket::lost, this, gone);
        emit clientCountChanged();
    }
}

void FrameServer::serve(FramedSocket* client, const QByteArray& frame)
{
    QByteArray answer = m_answer(frame);
    if (answer.isEmpty() || !m_answers.contains(client))
        return;
    int delay = 0;
    if (m_faults) {
        Faults& faults = m_parts.faults;
        if (faults.strikes(m_faults->silent))
            return;
        if (m_answers.value(client) >= faults.numberOf(m_faults->drops) && faults.strikes(m_faults->drops)) {
            client->hangUp();
            emit client->lost({});
            return;
        }
        // Text of another protocol, which neither of the two takes for the beginning of a frame.
        if (faults.strikes(m_faults->garbage))
            answer = "HTTP/1.1 400 Bad Request\r\n\r\n";
        const int slow = faults.numberOf(m_faults->slow);
        delay = faults.strikes(m_faults->slow) ? slow : 0;
    }
    ++m_answers[client];
    if (delay > 0)
        QTimer::singleShot(delay, client, [client, answer] { client->send(answer); });
    else
        client->send(answer);
}

void FrameServer::note(const QString& text)
{
    m_parts.traffic.addNote(QStringLiteral("%1 server: port %2: %3")
                                .arg(QLatin1String(Wire::of(m_wire).name))
                                .arg(port())
                                .arg(text));
}

void FrameServer::letGo(FramedSocket* client)
{
    client->disconnect(this);
    client->hangUp();
    client->deleteLater(); // it may be at work
}
