#include "ModbusSlave.h"
#include "PendantFixture.h"
#include "Rows.h"

#include <QLabel>
#include <QModbusTcpClient>
#include <QProcess>
#include <QStandardPaths>
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
    void servesTheMappedRegisters_data()
    {
        const Rows<int, int, QString, bool> row;
        // written: by the client
        row("first that the robot sets", 40001, 1, "11", false);
        row("last that the robot sets", 40096, 1, "12", false);
        row("behind it", 40097, 1, "exception", false);
        row("first that the robot gets", 40101, 2, "13 0", true);
        row("first of both ways", 40301, 1, "14", true);
        row("highest address", 105536, 1, "exception", false);
    }

    void servesTheMappedRegisters()
    {
        const auto [number, count, read, written] = Rows<int, int, QString, bool>::current();
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
        QCOMPARE(client.read(number, count), read);
        QCOMPARE(client.read(number, count, ModbusSlave::UnitId + 1), QString("silence"));
        const std::optional<quint16> before = slave.registerValue(number);
        QCOMPARE(client.write(number, QVector<quint16>(count, 77)) != "exception", written);
        QCOMPARE(slave.registerValue(number), written ? std::optional<quint16>(77) : before);
    }

    void mappingsThatMapNothing_data()
    {
        const Rows<QByteArray> row;
        row("no addresses", QByteArray("<Area direction='ro'/>"));
        row("an empty block", QByteArray("<Area direction='ro' start='40001' end='40000'/>"));
        row("beyond the last", QByteArray("<Area direction='rw' start='40001' end='4294967294'/>"));
        row("negative", QByteArray("<Area direction='rw' start='-9223372036854775808' end='40001'/>"));
    }

    void mappingsThatMapNothing()
    {
        const auto [areas] = Rows<QByteArray>::current();
        const QTemporaryDir folder;
        SimulatedController controller(folder.path());
        QVERIFY(controller.files().write(Mapping,
                                         "<FieldbusConfig><Mode name='free'><Bus name='ModbusTcpSlave'>" +
                                             areas + "</Bus></Mode></FieldbusConfig>"));
        controller.setModbusPort(0);
        Client client(controller.modbusPort());
        QVERIFY(client.isConnected());
        QCOMPARE(client.read(40001), QString("exception"));
        QCOMPARE(client.write(40001, {1}), QString("exception"));
    }

    // Requests and answers spelled out in hexadecimal. The next row is answered on the same connection unless
    // the one before closes it.
    void framesOnTheWire()
    {
        const struct
        {
            const char* name;
            const char* request;
            const char* answer; // "": none
            bool closes;
        } rows[] = {
            {"its unit", "0001 0000 0006 01 03 0064 0001", "0001 0000 0005 01 03 02 0000", false},
            {"unit 0", "0002 0000 0006 00 03 0064 0001", "0002 0000 0005 00 03 02 0000", false},
            {"unit 255", "0003 0000 0006 ff 03 0064 0001", "0003 0000 0005 ff 03 02 0000", false},
            {"another unit", "0004 0000 0006 02 03 0064 0001", "", false},
            {"another protocol id", "0005 0001 0006 01 03 0064 0001", "", false},
            {"write of what the robot sets", "0006 0000 0006 01 06 0000 0001", "0006 0000 0003 01 86 02",
             false},
            {"several of them", "0007 0000 0009 01 10 0000 0001 02 0001", "0007 0000 0003 01 90 02", false},
            {"write of what the robot gets", "0008 0000 0006 01 06 0064 0007",
             "0008 0000 0006 01 06 0064 0007", false},
            {"between the blocks", "0009 0000 0006 01 03 0061 0001", "0009 0000 0003 01 83 02", false},
            {"a function that is none", "000a 0000 0002 01 f0", "000a 0000 0003 01 f0 01", false},
            {"two in one piece", "000b 0000 0006 01 03 0064 0001 000c 0000 0006 01 03 0064 0001",
             "000b 0000 0005 01 03 02 0007 000c 0000 0005 01 03 02 0007", false},
            {"no length", "000d 0000 0000 01 03", "", true},
            {"another protocol", "474554202f20485454502f312e310d0a", "", true},
        };
        const QTemporaryDir folder;
        SimulatedController controller(folder.path());
        controller.setModbusPort(0);
        QTcpSocket client;
        for (const auto& row : rows) {
            if (client.state() != QTcpSocket::ConnectedState)
                client.connectToHost(QHostAddress::LocalHost, static_cast<quint16>(controller.modbusPort()));
            QTRY_COMPARE(client.state(), QTcpSocket::ConnectedState);
            client.write(QByteArray::fromHex(row.request));
            const QByteArray answer = QByteArray::fromHex(row.answer);
            if (row.closes)
                QTRY_VERIFY2(client.state() == QTcpSocket::UnconnectedState, row.name);
            else if (answer.isEmpty())
                QTest::qWait(50);
            else
                QTRY_VERIFY2(client.bytesAvailable() >= answer.size(), row.name);
            QVERIFY2(client.readAll() == answer, row.name);
        }

        // A master that others have written.
        const QString mbpoll = QStandardPaths::findExecutable(QStringLiteral("mbpoll"));
        if (mbpoll.isEmpty())
            QSKIP("mbpoll is not installed");
        QVERIFY(controller.behaviour<ModbusSlave>().setRegister(40101, 4711));
        const struct
        {
            const char* number;
            const char* written;
            const char* told;
        } polls[] = {
            {"101", "", "4711"}, {"102", "7", "Written 1 references"}, {"1", "7", "Illegal data address"}};
        for (const auto& row : polls) {
            QProcess poll;
            poll.setProcessChannelMode(QProcess::MergedChannels);
            QStringList arguments = {"-m",       "tcp", "-a",
                                     "1",        "-r",  row.number,
                                     "-1",       "-p",  QString::number(controller.modbusPort()),
                                     "127.0.0.1"};
            if (*row.written)
                arguments << row.written;
            poll.start(mbpoll, arguments);
            QTRY_COMPARE(poll.state(), QProcess::NotRunning);
            const QByteArray told = poll.readAll();
            QVERIFY2(told.contains(row.told), told.constData());
        }
    }

    void modeAndRestartChangeTheRegisters()
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

    void heartbeatLightFollowsTheClient()
    {
        PendantFixture pendant;
        QVERIFY(pendant.controller().files().write(
            QStringLiteral("/application/fidbus/heartbeat.xml"),
            "<Fidbus><Mtcp><Mtcp_Nod_Switch>1</Mtcp_Nod_Switch><Mtcp_Timeout>1</Mtcp_Timeout></Mtcp></"
            "Fidbus>"));
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

    void linkNeedsClientRoleAndCable()
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

        const auto drives = {
            std::function<bool(bool)>([&](bool on) { return controller.setLinkUp(Role, on); }),
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

    void takenPort()
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
};

PENDANT_TEST_MAIN(TestModbusSlave)
#include "tst_modbusslave.moc"
