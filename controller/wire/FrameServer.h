#ifndef CONTROLLER_FRAMESERVER_H
#define CONTROLLER_FRAMESERVER_H

#include "Faults.h"
#include "Wire.h"

#include <QMap>
#include <QTcpServer>

#include <functional>
#include <optional>

struct ControllerParts;
class FramedSocket;

/// The faults that hit what a partner answers.
struct AnswerFaults
{
    Faults::Fault silent;
    Faults::Fault slow;  ///< number: milliseconds
    Faults::Fault drops; ///< number: answers that go well on a connection before it is cut
    Faults::Fault garbage;
};

/// A TCP server on 127.0.0.1 that answers frames. A client whose bytes are no frames is cut off.
class FrameServer : public QObject
{
    Q_OBJECT

public:
    /// The answer to a frame; empty when there is none.
    using Answer = std::function<QByteArray(const QByteArray& frame)>;

    /// The controller's own end without `faults`, else a partner's: the frames of the first are kept.
    FrameServer(ControllerParts& parts, Wire::Id wire, Answer answer,
                const std::optional<AnswerFaults>& faults = {});
    ~FrameServer() override;

    /// More clients than that are turned away.
    void setMostClients(int most) { m_most = most; }
    /// Serves on `port`, 0 for any free one. Says why it cannot; empty when it does.
    QString listen(int port);
    /// Cuts every connection and serves no more.
    void close();
    bool isListening() const { return m_server.isListening(); }
    /// The port that is served, 0 when none is.
    quint16 port() const { return isListening() ? m_server.serverPort() : 0; }
    int clientCount() const { return m_answers.size(); }

signals:
    void clientCountChanged();

private:
    void takeClients();
    void serve(FramedSocket* client, const QByteArray& frame);
    void letGo(FramedSocket* client);
    void note(const QString& text);

    ControllerParts& m_parts;
    Wire::Id m_wire;
    Answer m_answer;
    std::optional<AnswerFaults> m_faults;
    QTcpServer m_server;
    QMap<FramedSocket*, int> m_answers; ///< by client; the clients are children
    int m_most = 64;
};

#endif
