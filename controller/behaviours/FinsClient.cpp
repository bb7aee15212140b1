#include "FinsClient.h"

#include "ControllerParts.h"

namespace {

constexpr auto Enable = "ifins_tcp.enable";
constexpr auto UpdateAnnounced = "ifins_tcp.bupdate_cfg";
constexpr auto Connected = "ifins_tcp.connected";
constexpr auto Error = "ifins_tcp.error";
constexpr auto SettingsFile = "/application/finstcp/FinsTcpConfig.xml";

constexpr auto SwitchAction = "switch";
constexpr auto PatienceAction = "patience"; // the one timer of the connection: patience, next read, next try
constexpr int SwitchMs = 50;
constexpr int ReloadMs = 50;
constexpr int PatienceMs = 3000; // for a connection and for each answer
constexpr int ReadEveryMs = 500;
constexpr int TryAgainMs = 5000;

constexpr quint32 LowestNode = 1;
constexpr quint32 HighestNode = 254;

} // namespace

FinsClient::FinsClient(ControllerParts& controllerParts)
    : SocketBehaviour(controllerParts, "FINS client")
    , m_socket(Wire::Fins, &controllerParts.frames)
{
    connect(&m_socket, &FramedSocket::connected, this, &FinsClient::greet);
    connect(&m_socket, &FramedSocket::arrived, this,
            [this](const QByteArray& frame) { takeFrame(FinsFrame::of(frame)); });
    connect(&m_socket, &FramedSocket::nonsense, this,
            [this] { fail(QStringLiteral("wrong answer: no frame")); });
    connect(&m_socket, &FramedSocket::lost, this, [this](const QString& why) { fail(why); });

    parts().variables.watch(QLatin1String(Enable), [this](int /*element*/, double value) {
        later(QLatin1String(SwitchAction), SwitchMs, [this, value] { switchTo(value != 0.0); });
    });
    onRequest(UpdateAnnounced, ReloadMs, [this] {
        if (m_state != State::Off)
            start();
    });
}

void FinsClient::restarted()
{
    QByteArray bytes;
    parts().files.read(QLatin1String(SettingsFile), bytes);
    const bool autoConnect = readFinsClient(bytes).autoConnect;
    parts().variables.set(QLatin1String(UpdateAnnounced), 0.0);
    parts().variables.set(QLatin1String(Enable), autoConnect ? 1.0 : 0.0);
    switchTo(autoConnect);
}

void FinsClient::wentDown()
{
    switchTo(false);
}

void FinsClient::switchTo(bool enabled)
{
    if (!enabled) {
        close();
        m_complaint.clear();
        parts().variables.set(QLatin1String(Error), 0.0);
        enter(State::Off);
    } else if (m_state == State::Off) {
        start();
    }
}

void FinsClient::start()
{
    close();
    QByteArray bytes;
    parts().files.read(QLatin1String(SettingsFile), bytes);
    m_settings = readFinsClient(bytes);
    if (!m_settings.complaint.isEmpty()) {
        fail(m_settings.complaint, false);
        return;
    }
    enter(State::Connecting);
    whenUnanswered(QLatin1String(PatienceAction), PatienceMs, [this] { fail(QStringLiteral("timed out")); });
    m_socket.call(m_settings.server.toString(), m_settings.port);
}

void FinsClient::close()
{
    drop(QLatin1String(PatienceAction));
    m_socket.hangUp();
    m_awaiting = false;
}

void FinsClient::fail(const QString& complaint, bool tryAgain)
{
    close();
    // The same failure at every try is one line of the log.
    if (m_complaint != complaint)
        note(QStringLiteral("%1:%2: %3")
                 .arg(m_settings.server.toString())
                 .arg(m_settings.port)
                 .arg(complaint));
    m_complaint = complaint;
    parts().variables.set(QLatin1String(Error), 1.0);
    enter(State::Failed);
    if (tryAgain)
        later(QLatin1String(PatienceAction), TryAgainMs, [this] { start(); });
}

void FinsClient::greet()
{
    enter(State::Greeting);
    sendAndAwait({FinsFrame::ClientNode, 0, FinsFrame::number(static_cast<quint32>(m_settings.clientNode))});
}

void FinsClient::takeFrame(const FinsFrame& frame)
{
    // Only looks whether somebody is there.
    if (frame.command == FinsFrame::Confirmation)
        return;
    if (frame.hasError())
        fail(QStringLiteral("error code %1").arg(frame.error));
    else if (!m_awaiting)
        fail(QStringLiteral("wrong answer: nothing was asked"));
    else if (m_state == State::Greeting)
        takeServerNode(frame);
    else
        takeWord(frame);
}

void FinsClient::takeServerNode(const FinsFrame& frame)
{
    const QByteArray& nodes = frame.data;
    if (frame.command != FinsFrame::ServerNode || nodes.size() != 8) {
        fail(QStringLiteral("wrong answer: no node"));
        return;
    }
    const quint32 clientNode = FinsFrame::numberAt(nodes, 0);
    const quint32 serverNode = FinsFrame::numberAt(nodes, 4);
    const auto isNode = [](quint32 node) { return node >= LowestNode && node <= HighestNode; };
    const auto wanted = static_cast<quint32>(m_settings.clientNode);
    if (!isNode(clientNode) || !isNode(serverNode) || (wanted != 0 && clientNode != wanted)) {
        fail(QStringLiteral("wrong answer: nodes %1 and %2").arg(clientNode).arg(serverNode));
        return;
    }
    m_request = {static_cast<quint8>(serverNode), static_cast<quint8>(clientNode), 0,
                 static_cast<quint16>(m_settings.readAddress)};
    m_wordsRead = 0;
    m_complaint.clear();
    note(QStringLiteral("%1:%2: connected").arg(m_settings.server.toString()).arg(m_settings.port));
    parts().variables.set(QLatin1String(Error), 0.0);
    enter(State::Reading);
    readNextWord();
}

void FinsClient::takeWord(const FinsFrame& frame)
{
    const auto response = m_request.response(frame.data);
    if (frame.command != FinsFrame::Message || !response) {
        fail(QStringLiteral("wrong answer: no DM word"));
        return;
    }
    if (response->endCode != 0) {
        fail(QStringLiteral("end code %1").arg(response->endCode, 4, 16, QLatin1Char('0')));
        return;
    }
    m_word = response->word;
    ++m_wordsRead;
    m_awaiting = false;
    later(QLatin1String(PatienceAction), ReadEveryMs, [this] { readNextWord(); });
}

void FinsClient::readNextWord()
{
    ++m_request.service;
    sendAndAwait({FinsFrame::Message, 0, m_request.request()});
}

void FinsClient::sendAndAwait(const FinsFrame& frame)
{
    m_awaiting = true;
    whenUnanswered(QLatin1String(PatienceAction), PatienceMs, [this] { fail(QStringLiteral("timed out")); });
    m_socket.send(frame.bytes());
}

void FinsClient::enter(State state)
{
    m_state = state;
    parts().variables.set(QLatin1String(Connected), state == State::Reading ? 1.0 : 0.0);
}
