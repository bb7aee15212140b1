#include "MesServer.h"

#include "ControllerParts.h"
#include "HostLinkFiles.h"

#include <QTcpSocket>

#include <utility>

namespace {

constexpr auto Listen = "imes.tcp_server_listen";
constexpr auto UpdateAnnounced = "imes.update_tcp_server_cfg";
constexpr auto Active = "imes.tcp_server_active";
constexpr auto Connected = "imes.tcp_server_connected";
constexpr auto SettingsFile = "/application/mes/TcpServerConfig.xml";

// Far within the 1.6 s that the pendant waits for a start or a stop.
constexpr int ToggleMs = 100;
constexpr int ReloadMs = 50;

} // namespace

MesServer::MesServer(ControllerParts& controllerParts)
    : Behaviour(controllerParts)
{
    connect(&m_server, &QTcpServer::newConnection, this, &MesServer::takeClient);
    onRequest(
        Listen, ToggleMs, [this] { toggle(); }, Faults::CommandNeverTaken);
    onRequest(UpdateAnnounced, ReloadMs, [this] { reload(); });
}

MesServer::~MesServer()
{
    stop();
}

void MesServer::restarted()
{
    for (const char* request : {Listen, UpdateAnnounced})
        parts().variables.set(QLatin1String(request), 0.0);
    m_complaint.clear();
    showState();
}

void MesServer::wentDown()
{
    stop();
    showState();
}

void MesServer::toggle()
{
    if (m_server.isListening())
        stop();
    else
        start();
    showState();
}

// A server that runs goes on with the new settings; its clients have to connect anew.
void MesServer::reload()
{
    if (m_server.isListening()) {
        stop();
        start();
    }
    ++m_reloads;
    showState();
}

void MesServer::start()
{
    QByteArray bytes;
    parts().files.read(QLatin1String(SettingsFile), bytes);
    const quint16 port = readMesServer(bytes).port;
    m_complaint.clear();
    // Port 0 would be any free one.
    if (port == 0)
        m_complaint = QStringLiteral("no port");
    else if (!m_server.listen(QHostAddress::LocalHost, port))
        m_complaint = m_server.errorString();
}

void MesServer::stop()
{
    m_server.close();
    for (QTcpSocket* client : std::exchange(m_clients, {})) {
        client->disconnect(this);
        delete client;
    }
}

void MesServer::takeClient()
{
    while (QTcpSocket* const client = m_server.nextPendingConnection()) {
        if (m_clients.size() >= MostClients) {
            client->abort();
            client->deleteLater();
            continue;
        }
        m_clients.append(client);
        connect(client, &QTcpSocket::readyRead, this, [client] { client->readAll(); });
        connect(client, &QTcpSocket::disconnected, this, [this, client] {
            m_clients.removeOne(client);
            client->deleteLater();
            showState();
        });
    }
    showState();
}

void MesServer::showState()
{
    parts().variables.set(QLatin1String(Active), m_server.isListening() ? 1.0 : 0.0);
    parts().variables.set(QLatin1String(Connected), m_clients.isEmpty() ? 0.0 : 1.0);
}
