#include "MesPartner.h"

#include "ControllerParts.h"
#include "MesServer.h"

#include <QTcpServer>

namespace {
constexpr int LookMs = 250;
constexpr int MessageSize = 1000;
constexpr int MostMessages = 10000;
constexpr int GarbageSize = 64;
constexpr auto Listen = "imes.tcp_server_listen";
} // namespace

MesPartner::MesPartner(ControllerParts& controllerParts, const MesServer& server)
    : Partner(controllerParts, "mes", 0)
    , m_server(server)
    , m_socket(Wire::Mes, nullptr)
{
    connect(&m_timer, &QTimer::timeout, this, &MesPartner::follow);
    for (QTimer* const timer : {&m_late, &m_drop})
        timer->setSingleShot(true);
    connect(&m_late, &QTimer::timeout, this, &MesPartner::call);
    connect(&m_drop, &QTimer::timeout, &m_socket, &FramedSocket::hangUp);
    connect(&m_socket, &FramedSocket::connected, this, [this] {
        note(QStringLiteral("connected to port %1").arg(m_server.port()));
        if (const auto msec = parts().faults.strikesWith(Faults::MesDrops))
            m_drop.start(*msec);
    });
    connect(&m_socket, &FramedSocket::lost, this, [this](const QString& why) { note(why); });
}

void MesPartner::moveServer()
{
    QTcpServer probe;
    probe.listen(QHostAddress::LocalHost);
    changeSettings("/application/mes/TcpServerConfig.xml", "TcpServerConfig", "",
                   {{"Port", QByteArray::number(probe.serverPort())}});
}

bool MesPartner::start()
{
    // The request is a toggle: one that is on the way is not to be made twice.
    if (m_server.port() == 0 && parts().variables.value(QLatin1String(Listen)) == 0.0)
        ask(Listen);
    m_timer.start(LookMs);
    follow();
    return true;
}

void MesPartner::stop()
{
    for (QTimer* const timer : {&m_timer, &m_late, &m_drop})
        timer->stop();
    m_socket.hangUp();
}

QString MesPartner::state() const
{
    if (!isRunning())
        return tr("off");
    return m_socket.isConnected() ? tr("connected") : tr("calls");
}

void MesPartner::flood(int messages)
{
    const QByteArray message = QByteArray(MessageSize - 1, 'x') + '\n';
    for (int i = 0; i < qMin(messages, MostMessages); ++i)
        m_socket.send(message);
}

void MesPartner::follow()
{
    setPort(m_server.port());
    Faults& faults = parts().faults;
    if (m_socket.isConnected()) {
        if (faults.strikes(Faults::MesGarbage))
            m_socket.send(QByteArray(GarbageSize, '\xff'));
    } else if (m_server.port() != 0 && !m_late.isActive() && !faults.strikes(Faults::MesSilent)) {
        m_drop.stop();
        if (const auto msec = faults.strikesWith(Faults::MesSlow))
            m_late.start(*msec);
        else
            call();
    }
}

void MesPartner::call()
{
    if (m_server.port() != 0)
        m_socket.call(QStringLiteral("127.0.0.1"), m_server.port());
}
