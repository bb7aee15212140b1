#include "Faults.h"
#include "LoneController.h"
#include "MesServer.h"
#include "PaintCounter.h"
#include "PendantFixture.h"
#include "QTouchLineEdit.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTcpServer>
#include <QTcpSocket>

namespace {

const QString FilePath = QStringLiteral("/application/mes/TcpServerConfig.xml");
const QString PortsPath = QStringLiteral("/application/network/netports.xml");
const QString Listen = QStringLiteral("imes.tcp_server_listen");
const QString Active = QStringLiteral("imes.tcp_server_active");
const QString Connected = QStringLiteral("imes.tcp_server_connected");
const QString Update = QStringLiteral("imes.update_tcp_server_cfg");

quint16 freePort()
{
    QTcpServer probe;
    probe.listen(QHostAddress::LocalHost);
    return probe.serverPort();
}

QByteArray fileWith(const QByteArray& port, const QByteArray& index = "1")
{
    return "<TcpServerConfig><Port>" + port +
           "</Port><Mode>1</Mode><Protocol>1</Protocol><IntervalTime>250</IntervalTime><IpPortIndex>" +
           index + "</IpPortIndex></TcpServerConfig>";
}

struct Robot : LoneController
{
    explicit Robot(const QByteArray& file)
        : LoneController(FilePath, file, 50)
    {
    }
    MesServer& server() { return controller().behaviour<MesServer>(); }
};

} // namespace

class TestMes : public QObject
{
    Q_OBJECT

private slots:
    void pageFollowsTheServer();
    void portConflicts();
    void showsAndSaves();
    void startFails();
    void userLevelDropsWhileTheServerIsWaitedFor();
    void serverRefusesWhatIsNoPort_data();
    void serverRefusesWhatIsNoPort();
    void serverOnItsOwn();
};

void TestMes::pageFollowsTheServer()
{
    PendantFixture pendant;
    QVERIFY(pendant.open());
    QVERIFY(pendant.openPage("mesBtn"));
    const auto light = [&pendant] { return pendant.find<QLabel>("led_connect")->styleSheet(); };
    const auto caption = [&pendant] { return pendant.find<QPushButton>("monitorButton")->text(); };
    const auto lock = [&pendant](bool locked) {
        for (const char* name : {"localPortIpCB", "port_edit", "IntervalTime_edit", "mode_comboBox",
                                 "protocal_comboBox", "saveButton"}) {
            if (pendant.find(name)->isEnabled() == locked)
                return false;
        }
        return true;
    };
    QCOMPARE(light(), QString("border-image: url(:/image/C0_Done_Red.png);"));
    const quint16 port = freePort();
    QVERIFY(pendant.enter("port_edit", QString::number(port)));
    PendantFixture::answer({MsgBox::Confirmed, MsgBox::Confirmed});
    QVERIFY(pendant.press("saveButton"));
    QTRY_COMPARE(pendant.variable(Update), 0.0);

    // What was not saved is not what the server is started with.
    QVERIFY(pendant.enter("IntervalTime_edit", "77"));
    QCOMPARE(caption(), QString("Start Monitor"));
    QVERIFY(pendant.press("monitorButton"));
    QVERIFY(pendant.find("monitorButton")->isEnabled());
    QCOMPARE(pendant.find<QTouchLineEdit>("IntervalTime_edit")->text(), QString("100"));
    QCOMPARE(pendant.variable(Active), 1.0);
    QCOMPARE(pendant.variable(Listen), 0.0);
    QTRY_COMPARE(caption(), QString("Stop Monitor"));
    QVERIFY(lock(true));
    QVERIFY(!pendant.find("IP_Edit")->isEnabled());
    QVERIFY(light().contains("Red"));

    QTcpSocket first;
    QTcpSocket second;
    first.connectToHost(QHostAddress::LocalHost, port);
    QTRY_COMPARE(light(), QString("border-image: url(:/image/C0_Done_Green.png);"));
    second.connectToHost(QHostAddress::LocalHost, port);
    auto& server = pendant.controller().behaviour<MesServer>();
    QTRY_COMPARE(server.clients(), 2);
    first.disconnectFromHost();
    QTRY_COMPARE(server.clients(), 1);
    QTest::qWait(150);
    {
        PaintCounter paints;
        QTest::qWait(300);
        QCOMPARE(paints.styleChanges() + paints.paints(), 0);
    }
    QVERIFY(light().contains("Green"));

    QVERIFY(pendant.press("monitorButton"));
    QTRY_COMPARE(second.state(), QTcpSocket::UnconnectedState);
    QTRY_VERIFY(lock(false) && light().contains("Red"));
    QCOMPARE(caption(), QString("Start Monitor"));
    QVERIFY(!pendant.find("IP_Edit")->isEnabled());
    QCOMPARE(server.port(), quint16(0));
}

void TestMes::portConflicts()
{
    PendantFixture pendant;
    QVERIFY(pendant.open());
    QVERIFY(pendant.openPage("mesBtn"));
    const struct
    {
        const char* port;
        const char* service; // null: saved
    } rows[] = {{"502", "Modbus-Tcp"}, {"2222", "Ethernet/IP"}, {"44818", "Ethernet/IP"}, {"8000", "BCC"},
                {"8100", "BCC"},       {"503", nullptr},        {"8001", nullptr},        {"", nullptr},
                {"80x", nullptr},      {"00502", "Modbus-Tcp"}};
    MsgBoxScript::answerByDefault(MsgBox::Confirmed);
    for (const auto& row : rows) {
        pendant.find<QTouchLineEdit>("port_edit")->setText(row.port);
        const QByteArray before = pendant.controllerFile(FilePath);
        const int shown = PendantFixture::messages().size();
        QVERIFY(pendant.press("saveButton"));
        const QStringList messages = PendantFixture::messages().mid(shown);
        if (row.service) {
            QCOMPARE(messages,
                     QStringList(QString("The set port conflicts with %1 default port.").arg(row.service)));
            QCOMPARE(MsgBoxScript::shown().constLast().kind, int(MsgBox::Warning));
            QCOMPARE(pendant.controllerFile(FilePath), before);
        } else {
            QCOMPARE(messages, QStringList({"Are you sure to save?", "Save successfully."}));
            QVERIFY(pendant.controllerFile(FilePath).contains(QByteArray("<Port>") + row.port + "</Port>"));
        }
    }
}

void TestMes::showsAndSaves()
{
    PendantFixture pendant;
    QVERIFY(pendant.put(FilePath, fileWith("9001", "7")));
    QVERIFY(pendant.open());
    QVERIFY(pendant.openPage("mesBtn"));
    auto* localPort = pendant.find<QComboBox>("localPortIpCB");
    const auto ip = [&pendant] { return pendant.find<QLineEdit>("IP_Edit")->text(); };
    // There is no such port: none is chosen, and the controller takes it for ETH3.
    QCOMPARE(localPort->currentIndex(), -1);
    QCOMPARE(ip(), QString("192.168.2.22"));
    localPort->setCurrentIndex(0);
    QCOMPARE(ip(), QString("192.168.1.22"));
    QVERIFY(
        pendant.put(PortsPath, "<NetPorts><Port name=\"ETH2\" ip=\"10.0.0.5\" netmask=\"\"/></NetPorts>"));
    localPort->setCurrentIndex(1);
    QCOMPARE(ip(), QString());
    localPort->setCurrentIndex(0);
    QCOMPARE(ip(), QString("10.0.0.5"));

    // A save without a change writes, sends and announces all the same.
    QCOMPARE(pendant.find<QComboBox>("mode_comboBox")->currentText(), QString("BROADCAST"));
    pendant.find<QTouchLineEdit>("IntervalTime_edit")->setText("soon");
    for (int round = 1; round <= 2; ++round) {
        pendant.controller().traffic().clear();
        PendantFixture::answer({MsgBox::Confirmed, MsgBox::Confirmed});
        QVERIFY(pendant.press("saveButton"));
        QCOMPARE(pendant.controller().traffic().stores(), QStringList({FilePath}));
        QTRY_COMPARE(pendant.controller().behaviour<MesServer>().reloads(), round);
    }
    const QByteArray saved = pendant.controllerFile(FilePath);
    QVERIFY2(saved.endsWith("<TcpServerConfig>\n\t<Port>9001</Port>\n\t<Mode>1</Mode>\n"
                            "\t<Protocol>1</Protocol>\n\t<IntervalTime>0</IntervalTime>\n"
                            "\t<IpPortIndex>0</IpPortIndex>\n</TcpServerConfig>\n"),
             saved.constData());

    for (const int result : {MsgBox::Second, MsgBox::Dismissed}) {
        pendant.controller().traffic().clear();
        PendantFixture::answer({result});
        QVERIFY(pendant.press("saveButton"));
        QCOMPARE(pendant.controller().traffic().stores(), QStringList());
    }
}

// The button waits 1.6 s for a server that does not start, and says nothing.
void TestMes::startFails()
{
    QTcpServer other;
    QVERIFY(other.listen(QHostAddress::LocalHost));
    PendantFixture pendant;
    QVERIFY(pendant.put(FilePath, fileWith(QByteArray::number(other.serverPort()))));
    QVERIFY(pendant.open());
    QVERIFY(pendant.openPage("mesBtn"));
    pendant.controller().traffic().clear();
    QTimer::singleShot(600, this, [&pendant] {
        QVERIFY(!pendant.press("monitorButton"));
        QVERIFY(pendant.find("saveButton")->isEnabled());
    });
    QElapsedTimer taken;
    taken.start();
    QVERIFY(pendant.press("monitorButton"));
    QVERIFY2(taken.elapsed() >= 1500, QByteArray::number(taken.elapsed()));
    QVERIFY(pendant.find("monitorButton")->isEnabled());
    QCOMPARE(pendant.controller().traffic().writeCount(), 1);
    QCOMPARE(pendant.variable(Active), 0.0);
    QCOMPARE(pendant.variable(Listen), 0.0);
    QCOMPARE(pendant.messages(), QStringList());
    QCOMPARE(pendant.find<QPushButton>("monitorButton")->text(), QString("Start Monitor"));

    // With the port free again it starts.
    other.close();
    QVERIFY(pendant.press("monitorButton"));
    QCOMPARE(pendant.variable(Active), 1.0);
}

void TestMes::userLevelDropsWhileTheServerIsWaitedFor()
{
    PendantFixture pendant;
    QVERIFY(pendant.open());
    QVERIFY(pendant.openPage("mesBtn"));
    pendant.controller().faults().set(Faults::CommandNeverTaken, -1, Listen);
    QTimer::singleShot(300, &PendantFixture::dropUserLevel);
    pendant.press("monitorButton");
    QTRY_VERIFY(!pendant.isOpen());
    QVERIFY(pendant.reopensAfterDrop());
    QVERIFY(pendant.openPage("mesBtn"));
    QVERIFY(pendant.find("monitorButton")->isEnabled());
}

void TestMes::serverRefusesWhatIsNoPort_data()
{
    QTest::addColumn<QByteArray>("file");
    for (const char* port : {"", "0", "65536", "8o08"})
        QTest::newRow(*port ? port : "nothing") << fileWith(port);
    QTest::newRow("cut short") << fileWith("8008").left(40);
}

void TestMes::serverRefusesWhatIsNoPort()
{
    QFETCH(QByteArray, file);
    Robot robot(file);
    robot.set(Listen, true);
    QCOMPARE(robot.value(Listen), 1.0);
    QTRY_COMPARE(robot.value(Listen), 0.0);
    QCOMPARE(robot.value(Active), 0.0);
    QVERIFY(!robot.server().complaint().isEmpty());
}

void TestMes::serverOnItsOwn()
{
    const quint16 port = freePort();
    Robot robot(fileWith(QByteArray::number(port)));
    robot.set(Listen, true);
    QTRY_COMPARE(robot.value(Active), 1.0);

    // More clients than it serves, and one that talks without end.
    std::vector<std::unique_ptr<QTcpSocket>> clients;
    for (int i = 0; i < MesServer::MostClients + 2; ++i) {
        clients.push_back(std::make_unique<QTcpSocket>());
        clients.back()->connectToHost(QHostAddress::LocalHost, port);
        QTRY_VERIFY(clients.back()->state() == QTcpSocket::ConnectedState || i >= MesServer::MostClients);
    }
    QTRY_COMPARE(robot.server().clients(), MesServer::MostClients);
    QTRY_COMPARE(clients.back()->state(), QTcpSocket::UnconnectedState);
    clients.front()->write(QByteArray(1000000, 'x'));
    QTRY_COMPARE(clients.front()->bytesToWrite(), 0);
    clients.resize(1);
    QTRY_COMPARE(robot.server().clients(), 1);
    QCOMPARE(robot.value(Connected), 1.0);

    // Announced settings move a server that runs.
    const quint16 other = freePort();
    QVERIFY(robot.controller().files().write(FilePath, fileWith(QByteArray::number(other))));
    robot.set(Update, true);
    QTRY_COMPARE(robot.value(Update), 0.0);
    QCOMPARE(robot.server().port(), other);
    QCOMPARE(robot.value(Connected), 0.0);
}

PENDANT_TEST_MAIN(TestMes)
#include "tst_mes.moc"
