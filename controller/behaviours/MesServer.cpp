#include "MesServer.h"

#include "ControllerParts.h"
#include "HostLinkFiles.h"

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
    : SocketBehaviour(controllerParts, "MES server")
    , m_server(controllerParts, Wire::Mes, [](const QByteArray& /*discarded*/) { return QByteArray(); })
{
    m_server.setMostClients(MostClients);
    connect(&m_server, &FrameServer::clientCountChanged, this, [this] {
        note(QStringLiteral("port %1: %2 client(s)").arg(port()).arg(clients()));
        showState();
    });
    onRequest(
        Listen, ToggleMs, [this] { toggle(); }, Faults::CommandNeverTaken);
    onRequest(UpdateAnnounced, ReloadMs, [this] { reload(); });
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
    m_server.close();
    showState();
}

void MesServer::toggle()
{
    if (m_server.isListening())
        m_server.close();
    else
        start();
    showState();
}

// A server that runs goes on with the new settings; its clients have to connect anew.
void MesServer::reload()
{
    if (m_server.isListening()) {
        m_server.close();
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
    // Port 0 would be any free one.
    m_complaint = port == 0 ? QStringLiteral("no port") : m_server.listen(port);
    note(QStringLiteral("port %1: %2")
             .arg(port)
             .arg(m_complaint.isEmpty() ? QStringLiteral("listens") : m_complaint));
}

void MesServer::showState()
{
    parts().variables.set(QLatin1String(Active), m_server.isListening() ? 1.0 : 0.0);
    parts().variables.set(QLatin1String(Connected), clients() > 0 ? 1.0 : 0.0);
}
