#include "ModbusMaster.h"

#include "ControllerParts.h"

#include <QModbusTcpClient>
#include <QVariant>

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

const QString& role()
{
    static const QString name = QStringLiteral("ModbusTcpMaster");
    return name;
}

// An exception is an answer as well, unless a gateway says that there is nobody behind it.
bool isAnswer(const QModbusReply& reply)
{
    switch (reply.error()) {
    case QModbusDevice::NoError:
        return true;
    case QModbusDevice::ProtocolError:
        return reply.rawResult().exceptionCode() != QModbusPdu::GatewayPathUnavailable &&
               reply.rawResult().exceptionCode() != QModbusPdu::GatewayTargetDeviceFailedToRespond;
    default:
        return false;
    }
}

} // namespace

ModbusMaster::ModbusMaster(ControllerParts& controllerParts)
    : Behaviour(controllerParts)
{
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

// Without a word to the variables: whoever follows them may be gone already.
ModbusMaster::~ModbusMaster()
{
    dropClient();
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
    later(
        Patience, m_settings->timeoutMs, [this] { giveUp(); }, Pace::Real);
    connectToSlave();
}

void ModbusMaster::connectToSlave()
{
    // A simulated controller has no business in a real plant. Nobody answers at such an address.
    if (!m_settings->address.isLoopback()) {
        note(QStringLiteral("%1 is not on this machine").arg(m_settings->address.toString()));
        return;
    }
    dropClient();
    m_client = std::make_unique<QModbusTcpClient>();
    m_client->setConnectionParameter(QModbusDevice::NetworkAddressParameter, m_settings->address.toString());
    m_client->setConnectionParameter(QModbusDevice::NetworkPortParameter, m_settings->port);
    m_client->setTimeout(m_settings->timeoutMs);
    m_client->setNumberOfRetries(0);
    connect(m_client.get(), &QModbusDevice::stateChanged, this, [this](QModbusDevice::State state) {
        if (!m_client)
            return;
        if (state == QModbusDevice::ConnectedState)
            proveUnit();
        else if (state == QModbusDevice::UnconnectedState)
            failed();
    });
    if (!m_client->connectDevice())
        failed();
}

void ModbusMaster::proveUnit()
{
    QModbusReply* const reply =
        m_client->sendReadRequest({QModbusDataUnit::HoldingRegisters, 0, 1}, m_settings->unit);
    if (!reply) {
        failed();
        return;
    }
    connect(reply, &QModbusReply::finished, this, [this, reply] {
        reply->deleteLater();
        if (m_client)
            takeAnswer(*reply);
    });
}

void ModbusMaster::takeAnswer(const QModbusReply& reply)
{
    if (!isAnswer(reply)) {
        failed();
        return;
    }
    drop(Patience);
    m_trying = false;
    setConnected(true);
    if (m_settings->aliveMs > 0)
        later(
            Alive, m_settings->aliveMs, [this] { proveUnit(); }, Pace::Real);
}

// Called while the client is at work, so that it is let go of only later.
void ModbusMaster::failed()
{
    drop(Alive);
    const bool broken = m_connected;
    setConnected(false);
    if (broken)
        later(
            Retry, RetryMs, [this] { begin(); }, Pace::Real);
    else if (m_trying)
        later(
            Retry, RetryMs, [this] { connectToSlave(); }, Pace::Real);
}

void ModbusMaster::giveUp()
{
    hangUp();
    note(QStringLiteral("no answer from unit %1 at %2:%3")
             .arg(m_settings->unit)
             .arg(m_settings->address.toString())
             .arg(m_settings->port));
    later(
        Retry, PauseMs, [this] { follow(); }, Pace::Real);
}

void ModbusMaster::hangUp()
{
    for (const QString& key : {Retry, Patience, Alive})
        drop(key);
    m_trying = false;
    dropClient();
    setConnected(false);
}

// Not from one of the client's own signals.
void ModbusMaster::dropClient()
{
    // Taken away first: what it says while it goes is not for us.
    const std::unique_ptr<QModbusTcpClient> gone = std::move(m_client);
}

void ModbusMaster::setConnected(bool connected)
{
    if (m_connected == connected)
        return;
    m_connected = connected;
    note(connected ? QStringLiteral("connected") : QStringLiteral("disconnected"));
    parts().variables.set(QLatin1String(Connected), connected ? 1.0 : 0.0);
    parts().links.setPartner(role(), connected);
}

void ModbusMaster::note(const QString& text)
{
    parts().traffic.addNote(QStringLiteral("Modbus TCP master: ") + text);
}
