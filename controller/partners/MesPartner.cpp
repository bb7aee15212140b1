#include "MesPartner.h"

#include "MesServer.h"

#include <QTcpServer>

namespace {
constexpr int MessageSize = 1000;
constexpr int MostMessages = 10000;
} // namespace

MesPartner::MesPartner(ControllerParts& controllerParts, const MesServer& server)
    : CallingPartner(controllerParts, "mes", Wire::Mes,
                     {Faults::MesSilent, Faults::MesSlow, Faults::MesDrops, Faults::MesGarbage})
    , m_server(server)
{
}

void MesPartner::moveServer()
{
    QTcpServer probe;
    probe.listen(QHostAddress::LocalHost);
    changeSettings("/application/mes/TcpServerConfig.xml", "TcpServerConfig", "",
                   {{"Port", QByteArray::number(probe.serverPort())}});
}

void MesPartner::invite()
{
    // The request is a toggle; made again before it is taken, it counts once.
    if (m_server.port() == 0)
        ask("imes.tcp_server_listen");
}

int MesPartner::robotPort() const
{
    return m_server.port();
}

void MesPartner::flood(int messages)
{
    const QByteArray message = QByteArray(MessageSize - 1, 'x') + '\n';
    for (int i = 0; i < qMin(messages, MostMessages); ++i)
        socket().send(message);
}
