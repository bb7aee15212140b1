#include "ModbusMaster.h"

#include "ControllerParts.h"
#include "ModbusFrame.h"

namespace {

constexpr auto Connected = "ifidbus.mbc_connected";
constexpr auto SaveAnnounced = "ifidbus.mbc_save_enable";
constexpr auto OpenAsked = "ifidbus.mbc_open";
constexpr auto Automatic = "ifidbus.mbc_auto_con";
constexpr auto SettingsXml = "/application/fidbus/mtcpMaster/mtcp_master.xml";

constexpr int CommandMs = 50;
constexpr int RetryMs = 100;  // while it tries
constexpr int PauseMs = 1000; // after it gave up, with automatic connection

// Keys of what is delayed.
const QString Retry = QStringLiteral("retry");
const QString Patience = QStringLiteral("patience");
const QString Alive = QStringLiteral("alive");
const QString Answer = QStringLiteral("answer");

const QString& role()
{
    static const QString name = QStringLiteral("ModbusTcpMaster");
    return name;
}

} // namespace

ModbusMaster::ModbusMaster(ControllerParts& controllerParts)
    : SocketBehaviour(controllerParts, "Modbus TCP master")
    , m_socket(Wire::Modbus, &controllerParts.frames)
{
    connect(&m_socket, &FramedSocket::connected, this, &ModbusMaster::proveUnit);
    connect(&m_socket, &FramedSocket::arrived, this, &ModbusMaster::takeFrame);
    connect(&m_socket, &FramedSocket::nonsense, this,
            [this] { failed(QStringLiteral("wrong answer: no frame")); });
    connect(&m_socket, &FramedSocket::lost, this, &ModbusMaster::failed);
    parts().links.setPartner(role(), false);
    onCable(role(), [this] { follow(); });
    onRequest(SaveAnnounced, CommandMs, [this] { reload(); });
    onRequest(OpenAsked, CommandMs, [this] {
        if (!m_connected)
            begin();
    });
    parts().variables.watch(QLatin1String(Automatic), [this](int /*element*/, double /*value*/) {
        later(QLatin1String(Automatic), CommandMs, [this] { follow(); });
    });
}

void ModbusMaster::restarted()
{
    for (const char* command : {SaveAnnounced, OpenAsked})
        parts().variables.set(QLatin1String(command), 0.0);
    loadSettings();
    follow();
}

void ModbusMaster::wentDown()
{
    hangUp();
}

void ModbusMaster::reload()
{
    const bool wasActive = m_trying || m_connected;
    hangUp();
    loadSettings();
    if (wasActive || isAutomatic())
        begin();
}

void ModbusMaster::loadSettings()
{
    QByteArray bytes;
    m_settings = parts().files.read(QLatin1String(SettingsXml), bytes) ? readMasterSettings(bytes)
                                                                       : std::optional<MasterSettings>();
}

bool ModbusMaster::isAutomatic() const
{
    return parts().variables.value(QLatin1String(Automatic)) != 0.0;
}

// Brings the connection in line with what it hangs on.
void ModbusMaster::follow()
{
    if (!isInService(role()))
        hangUp();
    else if (isAutomatic() && !m_trying && !m_connected)
        begin();
}

void ModbusMaster::begin()
{
    hangUp();
    if (!isInService(role()))
        return;
    if (!m_settings) {
        note(QStringLiteral("the settings make no sense"));
        return;
    }
    m_trying = true;
    m_complaint = QStringLiteral("no answer in time");
    whenUnanswered(Patience, m_settings->timeoutMs, [this] { giveUp(); });
    connectToSlave();
}

void ModbusMaster::connectToSlave()
{
    // A simulated controller has no business in a real plant. Nobody answers at such an address.
    if (!m_settings->address.isLoopback()) {
        m_complaint = QStringLiteral("not on this machine");
        return;
    }
    m_socket.call(m_settings->address.toString(), m_settings->port);
}

void ModbusMaster::proveUnit()
{
    ++m_transaction;
    m_awaiting = true;
    whenUnanswered(Answer, m_settings->timeoutMs, [this] { failed(QStringLiteral("no answer in time")); });
    m_socket.send(
        ModbusFrame{m_transaction, 0, static_cast<quint8>(m_settings->unit), ModbusFrame::readRequest(0, 1)}
            .bytes());
}

// What answers another request, or speaks for another unit, is not what is waited for.
void ModbusMaster::takeFrame(const QByteArray& bytes)
{
    const ModbusFrame frame = ModbusFrame::of(bytes);
    if (!m_awaiting || frame.protocol != 0 || frame.transaction != m_transaction ||
        frame.unit != m_settings->unit)
        return;
    m_awaiting = false;
    drop(Answer);
    // An exception is an answer as well, unless a gateway says that there is nobody behind it.
    const int exception = frame.exception();
    if (exception == ModbusFrame::GatewayPath || exception == ModbusFrame::GatewayTarget) {
        failed(QStringLiteral("exception %1").arg(exception));
        return;
    }
    drop(Patience);
    m_trying = false;
    setConnected(true);
    if (m_settings->aliveMs > 0)
        later(Alive, m_settings->aliveMs, [this] { proveUnit(); });
}

void ModbusMaster::failed(const QString& why)
{
    m_complaint = why;
    m_awaiting = false;
    m_socket.hangUp();
    for (const QString& key : {Alive, Answer})
        drop(key);
    const bool broken = m_connected;
    setConnected(false);
    if (broken)
        later(Retry, RetryMs, [this] { begin(); });
    else if (m_trying)
        later(Retry, RetryMs, [this] { connectToSlave(); });
}

void ModbusMaster::giveUp()
{
    hangUp();
    note(QStringLiteral("%1:%2: no answer from unit %3: %4")
             .arg(m_settings->address.toString())
             .arg(m_settings->port)
             .arg(m_settings->unit)
             .arg(m_complaint));
    later(Retry, PauseMs, [this] { follow(); });
}

void ModbusMaster::hangUp()
{
    for (const QString& key : {Retry, Patience, Alive, Answer})
        drop(key);
    m_trying = false;
    m_awaiting = false;
    m_socket.hangUp();
    setConnected(false);
}

void ModbusMaster::setConnected(bool connected)
{
    if (m_connected == connected)
        return;
    m_connected = connected;
    const QString why = connected               ? QStringLiteral("connected")
                        : m_complaint.isEmpty() ? QStringLiteral("disconnected")
                                                : QStringLiteral("disconnected: ") + m_complaint;
    note(QStringLiteral("%1:%2: %3").arg(m_settings->address.toString()).arg(m_settings->port).arg(why));
    m_complaint.clear();
    parts().variables.set(QLatin1String(Connected), connected ? 1.0 : 0.0);
    parts().links.setPartner(role(), connected);
}
