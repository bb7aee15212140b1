#include "CallingPartner.h"

#include "ControllerParts.h"

namespace {
constexpr int LookMs = 500;
constexpr int GarbageSize = 64;
} // namespace

CallingPartner::CallingPartner(ControllerParts& controllerParts, const char* name, Wire::Id wire,
                               const CallFaults& faults)
    : Partner(controllerParts, name, 0)
    , m_faults(faults)
    , m_socket(wire, nullptr)
{
    connect(&m_look, &QTimer::timeout, this, &CallingPartner::follow);
    for (QTimer* const timer : {&m_late, &m_drop})
        timer->setSingleShot(true);
    connect(&m_late, &QTimer::timeout, this, &CallingPartner::call);
    connect(&m_drop, &QTimer::timeout, this, [this] {
        m_socket.hangUp();
        note(QStringLiteral("port %1: hung up").arg(port()));
    });
    connect(&m_socket, &FramedSocket::connected, this, [this] {
        note(QStringLiteral("port %1: connected").arg(port()));
        if (const auto msec = parts().faults.strikesWith(m_faults.drops))
            m_drop.start(*msec);
        attend(true);
    });
    connect(&m_socket, &FramedSocket::lost, this,
            [this](const QString& why) { note(QStringLiteral("port %1: %2").arg(port()).arg(why)); });
}

bool CallingPartner::start()
{
    invite();
    m_look.start(LookMs);
    follow();
    return true;
}

void CallingPartner::stop()
{
    for (QTimer* const timer : {&m_look, &m_late, &m_drop})
        timer->stop();
    m_socket.hangUp();
}

QString CallingPartner::state() const
{
    if (!isRunning())
        return tr("off");
    return m_socket.isConnected() ? tr("connected to 127.0.0.1:%1").arg(port()) : tr("calls");
}

void CallingPartner::follow()
{
    setPort(robotPort());
    Faults& faults = parts().faults;
    if (m_socket.isConnected()) {
        if (faults.strikes(m_faults.garbage))
            m_socket.send(QByteArray(GarbageSize, '\xff'));
        else
            attend(false);
    } else if (port() != 0 && !m_late.isActive() && !faults.strikes(m_faults.silent)) {
        m_drop.stop();
        if (const auto msec = faults.strikesWith(m_faults.slow))
            m_late.start(*msec);
        else
            call();
    }
}

void CallingPartner::call()
{
    setPort(robotPort());
    if (port() != 0)
        m_socket.call(QStringLiteral("127.0.0.1"), static_cast<quint16>(port()));
}
