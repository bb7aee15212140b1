#include "ModbusSlave.h"
#include "PendantFixture.h"

#include <QLabel>
#include <QModbusTcpClient>
#include <QTcpServer>
#include <QTcpSocket>

namespace {

const QString Role = QStringLiteral("ModbusTcpSlave");
const QString Link = QStringLiteral("ifidbus.mtcp_link_state");
const QString Mapping = QStringLiteral("/application/fidbus/fieldbus_config.xml");

constexpr int TimeoutMs = 300;

// A device of the plant that talks to the robot. Registers by their number, from 40001 on.
class Client
{
public:
    explicit Client(int port, const QString& address = QStringLiteral("127.0.0.1"))
    {
        m_client.setConnectionParameter(QModbusDevice::NetworkAddressParameter, address);
        m_client.setConnectionParameter(QModbusDevice::NetworkPortParameter, port);
        m_client.setTimeout(TimeoutMs);
        m_client.setNumberOfRetries(0);
        m_client.connectDevice();
    }
    bool isConnected()
    {
        return QTest::qWaitFor([this] { return m_client.state() != QModbusDevice::ConnectingState; }) &&
               m_client.state() == QModbusDevice::ConnectedState;
    }
    void hangUp() { m_client.disconnectDevice(); }

    /// What was read, or "exception" or "silence".
    QString read(int number, int count = 1, int unit = ModbusSlave::UnitId)
    {
        return answerTo(m_client.sendReadRequest(unitAt(number, QVector<quint16>(count)), unit));
    }
    QString write(int number, const QVector<quint16>& values)
    {
        return answerTo(m_client.sendWriteRequest(unitAt(number, values), ModbusSlave::UnitId));
    }

private:
    static QModbusDataUnit unitAt(int number, const QVector<quint16>& values)
    {
        return {QModbusDataUnit::HoldingRegisters, number - 40001, values};
    }
    static QString answerTo(QModbusReply* reply)
    {
        const std::unique_ptr<QModbusReply> owned(reply);
        if (!reply || !QTest::qWaitFor([reply] { return reply->isFinished(); }) ||
            reply->error() == QModbusDevice::TimeoutError)
            return QStringLiteral("silence");
        if (reply->error() != QModbusDevice::NoError)
            return QStringLiteral("exception");
        QStringList values;
        for (const quint16 value : reply->result().values())
            values << QString::number(value);
        return values.join(QLatin1Char(' '));
    }

    QModbusTcpClient m_client;
};

} // namespace

class TestModbusSlave : public QObject
{
    Q_OBJECT

private slots:
    void servesTheMappedRegisters_data();
    void servesTheMappedRegisters();
    void mappingsThatMapNothing_data();
    void mappingsThatMapNothing();
    void modeAndRestartChangeTheRegisters();
    void heartbeatLightFollowsTheClient();
    void linkNeedsClientRoleAndCable();
    void takenPort();
};

void TestModbusSlave::servesTheMappedRegisters_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("read");
    QTest::addColumn<bool>("written"); // by the client
    QTest::newRow("first that the robot sets") << 40001 << 1 << "11" << false;
    QTest::newRow("last that the robot sets") << 40096 << 1 << "12" << false;
    QTest::newRow("behind it") << 40097 << 1 << "exception" << false;
    QTest::newRow("first that the robot gets") << 40101 << 2 << "13 0" << true;
    QTest::newRow("first of both ways") << 40301 << 1 << "14" << true;
    QTest::newRow("highest address") << 105536 << 1 << "exception" << false;
}

void TestModbusSlave::servesTheMappedRegisters()
{
    QFETCH(int, number);
    QFETCH(int, count);
    QFETCH(bool, written);
    const QTemporaryDir folder;
    SimulatedController controller(folder.path());
    QCOMPARE(controller.modbusPort(), 0);
    controller.setModbusPort(0);
    auto& slave = controller.behaviour<ModbusSlave>();
    const QVector<int> numbers = {40001, 40096, 40101, 40301, 40364};
    for (int i = 0; i < numbers.size(); ++i)
        QVERIFY(slave.setRegister(numbers[i], static_cast<quint16>(11 + i)));
    for (const int nowhere : {-1, 0, 40000, 40250, 40365, 40001 + 65536})
        QVERIFY(!slave.setRegister(nowhere, 1) && !slave.registerValue(nowhere));

    Client client(controller.modbusPort());
    QVERIFY(client.isConnected());
    QTEST(client.read(number, count), "read");
    QCOMPARE(client.read(number, count, ModbusSlave::UnitId + 1), QString("silence"));
    const std::optional<quint16> before = slave.registerValue(number);
    QCOMPARE(client.write(number, QVector<quint16>(count, 77)) != "exception", written);
    QCOMPARE(slave.registerValue(number), written ? std::optional<quint16>(77) : before);
}

void TestModbusSlave::mappingsThatMapNothing_data()
{
    QTest::addColumn<QByteArray>("areas");
    QTest::newRow("no addresses") << QByteArray("<Area direction='ro'/>");
    QTest::newRow("an empty block") << QByteArray("<Area direction='ro' start='40001' end='40000'/>");
    QTest::newRow("beyond the last") << QByteArray("<Area direction='rw' start='40001' end='4294967294'/>");
    QTest::newRow("negative") << QByteArray(
        "<Area direction='rw' start='-9223372036854775808' end='40001'/>");
}

void TestModbusSlave::mappingsThatMapNothing()
{
    QFETCH(QByteArray, areas);
    const QTemporaryDir folder;
    SimulatedController controller(folder.path());
    QVERIFY(
        controller.files().write(Mapping, "<FieldbusConfig><Mode name='free'><Bus name='ModbusTcpSlave'>" +
                                              areas + "</Bus></Mode></FieldbusConfig>"));
    controller.setModbusPort(0);
    Client client(controller.modbusPort());
    QVERIFY(client.isConnected());
    QCOMPARE(client.read(40001), QString("exception"));
    QCOMPARE(client.write(40001, {1}), QString("exception"));
}

void TestModbusSlave::modeAndRestartChangeTheRegisters()
{
    const QTemporaryDir folder;
    SimulatedController controller(folder.path());
    controller.setTimeScale(50);
    controller.setModbusPort(0);
    const int port = controller.modbusPort();
    const auto reads = [port](int number) {
        Client client(port);
        return client.isConnected() ? client.read(number) : QStringLiteral("nobody");
    };
    QCOMPARE(reads(40100), QString("exception"));
    QVERIFY(controller.setRoleOn("FreeBus", false));
    QCOMPARE(reads(40100), QString("0")); // mapped in the fixed mode only
    QByteArray mapping;
    QVERIFY(controller.files().read(Mapping, mapping));
    QVERIFY(controller.files().write(Mapping, mapping.replace("end=\"40280\"", "end=\"40290\"")));
    QCOMPARE(reads(40290), QString("exception"));
    controller.requestRestart();
    QTRY_VERIFY(!controller.isUp());
    QCOMPARE(reads(40290), QString("nobody"));
    QTRY_VERIFY(controller.isUp());
    QCOMPARE(controller.modbusPort(), port);
    QCOMPARE(reads(40290), QString("0"));
}

void TestModbusSlave::heartbeatLightFollowsTheClient()
{
    PendantFixture pendant;
    QVERIFY(pendant.controller().files().write(
        QStringLiteral("/application/fidbus/heartbeat.xml"),
        "<Fidbus><Mtcp><Mtcp_Nod_Switch>1</Mtcp_Nod_Switch><Mtcp_Timeout>1</Mtcp_Timeout></Mtcp></Fidbus>"));
    pendant.controller().setModbusPort(0);
    QVERIFY(pendant.open());
    QVERIFY(pendant.openPage("heartbeatBtn"));
    const auto light = [&pendant] { return pendant.find<QLabel>("mdbConnectStatLb")->styleSheet(); };
    QTRY_VERIFY(light().contains("C0_Done_Red"));
    Client client(pendant.controller().modbusPort());
    QVERIFY(client.isConnected());
    QCOMPARE(client.read(40101), QString("0"));
    QTRY_VERIFY(light().contains("C0_Done_Green"));
    client.hangUp();
    QTRY_VERIFY(light().contains("C0_Done_Red"));
}

void TestModbusSlave::linkNeedsClientRoleAndCable()
{
    const QTemporaryDir folder;
    SimulatedController controller(folder.path());
    const QString communication = QStringLiteral("ifidbus.commun_state");
    controller.setModbusPort(0);
    const int port = controller.modbusPort();
    QCOMPARE(controller.readVariable(Link), 0.0);
    auto first = std::make_unique<Client>(port);
    Client second(port);
    QVERIFY(first->isConnected() && second.isConnected());
    QTRY_COMPARE(controller.behaviour<ModbusSlave>().clientCount(), 2);
    QCOMPARE(controller.readVariable(Link), 1.0);
    QCOMPARE(static_cast<int>(controller.readVariable(communication)) & 1, 1);
    first.reset(); // one is enough
    QTRY_COMPARE(controller.behaviour<ModbusSlave>().clientCount(), 1);
    QCOMPARE(controller.readVariable(Link), 1.0);

    const auto drives = {std::function<bool(bool)>([&](bool on) { return controller.setLinkUp(Role, on); }),
                         std::function<bool(bool)>([&](bool on) { return controller.setRoleOn(Role, on); })};
    for (const auto& drive : drives) {
        Client client(port);
        QVERIFY(client.isConnected());
        QTRY_COMPARE(controller.readVariable(Link), 1.0);
        QVERIFY(drive(false));
        QCOMPARE(controller.readVariable(Link), 0.0);
        QCOMPARE(static_cast<int>(controller.readVariable(communication)) & 1, 0);
        QVERIFY(!Client(port).isConnected());
        QVERIFY(drive(true));
        QCOMPARE(controller.readVariable(Link), 0.0); // a plug alone is no link
        QCOMPARE(controller.modbusPort(), port);
    }
    // This machine only, and of it the one address.
    QVERIFY(!Client(port, QStringLiteral("127.0.0.2")).isConnected());
}

void TestModbusSlave::takenPort()
{
    QTcpServer squatter;
    QVERIFY(squatter.listen(QHostAddress::LocalHost));
    const QTemporaryDir folder;
    SimulatedController controller(folder.path());
    QSignalSpy log(&controller.traffic(), &Traffic::logged);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("Modbus TCP slave: port \\d+: .*in use"));
    controller.setModbusPort(squatter.serverPort());
    QCOMPARE(controller.modbusPort(), 0);
    QCOMPARE(log.size(), 1);
    QVERIFY2(log[0][0].toString().contains(QString::number(squatter.serverPort())),
             qPrintable(log[0][0].toString()));
    QTcpSocket client;
    client.connectToHost(QHostAddress(QHostAddress::LocalHost), squatter.serverPort());
    QTRY_VERIFY(squatter.hasPendingConnections());
    QCOMPARE(controller.readVariable(Link), 0.0);

    // Free again, it is taken at the next occasion.
    client.abort();
    const int port = squatter.serverPort();
    delete squatter.nextPendingConnection();
    squatter.close();
    QVERIFY(controller.setLinkUp(Role, false));
    QVERIFY(controller.setLinkUp(Role, true));
    QCOMPARE(controller.modbusPort(), port);
}

PENDANT_TEST_MAIN(TestModbusSlave)
#include "tst_modbusslave.moc"
