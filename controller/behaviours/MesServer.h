#ifndef CONTROLLER_MESSERVER_H
#define CONTROLLER_MESSERVER_H

#include "FrameServer.h"
#include "SocketBehaviour.h"

/// The controller's TCP server for a manufacturing execution system. A request in "imes.tcp_server_listen"
/// starts it at the port of "TcpServerConfig.xml", or stops it when it runs. It listens on loopback only.
/// What a client sends is discarded.
class MesServer : public SocketBehaviour
{
    Q_OBJECT

public:
    /// More clients than that are turned away.
    static constexpr int MostClients = 8;

    explicit MesServer(ControllerParts& controllerParts);

    /// The port that it listens on, 0 while it is stopped.
    quint16 port() const { return m_server.port(); }
    int clients() const { return m_server.clientCount(); }
    /// Why it could not be started the last time; empty when it could.
    QString complaint() const { return m_complaint; }
    /// Announced settings that were taken over.
    int reloads() const { return m_reloads; }

    void restarted() override;
    void wentDown() override;

private:
    void toggle();
    void reload();
    void start();
    void showState();

    FrameServer m_server;
    QString m_complaint;
    int m_reloads = 0;
};

#endif
