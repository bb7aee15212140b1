#ifndef CONTROLLER_FINSCLIENT_H
#define CONTROLLER_FINSCLIENT_H

#include "FinsFrame.h"
#include "FramedSocket.h"
#include "HostLinkFiles.h"
#include "SocketBehaviour.h"

/// The controller's FINS TCP client. While "ifins_tcp.enable" is set it connects to the server of
/// "FinsTcpConfig.xml", agrees on the nodes with it, and reads the first DM word again and again.
/// "ifins_tcp.error" says that something went wrong since it last was connected; it then tries again, unless
/// the settings are to blame.
///
/// Only servers on this machine are contacted: any other one is an error.
class FinsClient : public SocketBehaviour
{
    Q_OBJECT

public:
    enum class State {
        Off,
        Connecting, ///< the server is called
        Greeting,   ///< the nodes are agreed on
        Reading,    ///< connected
        Failed      ///< waits before it tries again, or for other settings
    };
    Q_ENUM(State)

    explicit FinsClient(ControllerParts& controllerParts);

    State state() const { return m_state; }
    /// Why it failed the last time; empty when it is connected or off.
    QString complaint() const { return m_complaint; }
    /// The DM word that was read last, and how many were read since the connection.
    quint16 word() const { return m_word; }
    int wordsRead() const { return m_wordsRead; }

    void restarted() override;
    void wentDown() override;

private:
    void switchTo(bool enabled);
    void start();
    void close();
    void fail(const QString& complaint, bool tryAgain = true);
    void greet();
    void takeFrame(const FinsFrame& frame);
    void takeServerNode(const FinsFrame& frame);
    void takeWord(const FinsFrame& frame);
    void readNextWord();
    void sendAndAwait(const FinsFrame& frame);
    void enter(State state);

    FramedSocket m_socket;
    FinsClientSettings m_settings;
    FinsWordRead m_request;
    State m_state = State::Off;
    QString m_complaint;
    quint16 m_word = 0;
    int m_wordsRead = 0;
    bool m_awaiting = false; ///< a request is not answered yet
};

#endif
