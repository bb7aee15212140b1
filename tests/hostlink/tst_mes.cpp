#include "Faults.h"
#include "LoneController.h"
#include "MesServer.h"
#include "PageTest.h"
#include "PaintCounter.h"
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

class TestMes : public PageTest
{
    Q_OBJECT

public:
    using PageTest::PageTest;

private slots:
    void pageFollowsTheServer()
    {
        QVERIFY(show());
        const auto light = [this] { return find<QLabel>("led_connect")->styleSheet(); };
        const auto caption = [this] { return text("monitorButton"); };
        const auto lock = [this](bool locked) {
            for (const char* name : {"localPortIpCB", "port_edit", "IntervalTime_edit", "mode_comboBox",
                                     "protocal_comboBox", "saveButton"}) {
                if (find(name)->isEnabled() == locked)
                    return false;
            }
            return true;
        };
        QCOMPARE(light(), QString("border-image: url(:/image/C0_Done_Red.png);"));
        const quint16 port = freePort();
        QVERIFY(enter("port_edit", QString::number(port)));
        answer({MsgBox::Confirmed, MsgBox::Confirmed});
        QVERIFY(press("saveButton"));
        QTRY_COMPARE(variable(Update), 0.0);

        // What was not saved is not what the server is started with.
        QVERIFY(enter("IntervalTime_edit", "77"));
        QCOMPARE(caption(), QString("Start Monitor"));
        QVERIFY(press("monitorButton"));
        QVERIFY(find("monitorButton")->isEnabled());
        QCOMPARE(text("IntervalTime_edit"), QString("100"));
        QCOMPARE(variable(Active), 1.0);
        QCOMPARE(variable(Listen), 0.0);
        QTRY_COMPARE(caption(), QString("Stop Monitor"));
        QVERIFY(lock(true));
        QVERIFY(!find("IP_Edit")->isEnabled());
        QVERIFY(light().contains("Red"));

        QTcpSocket first;
        QTcpSocket second;
        first.connectToHost(QHostAddress::LocalHost, port);
        QTRY_COMPARE(light(), QString("border-image: url(:/image/C0_Done_Green.png);"));
        second.connectToHost(QHostAddress::LocalHost, port);
        auto& server = controller().behaviour<MesServer>();
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

        QVERIFY(press("monitorButton"));
        QTRY_COMPARE(second.state(), QTcpSocket::UnconnectedState);
        QTRY_VERIFY(lock(false) && light().contains("Red"));
        QCOMPARE(caption(), QString("Start Monitor"));
        QVERIFY(!find("IP_Edit")->isEnabled());
        QCOMPARE(server.port(), quint16(0));
    }

    void portConflicts()
    {
        QVERIFY(show());
        const struct
        {
            const char* port;
            const char* service; // null: saved
        } rows[] = {{"502", "Modbus-Tcp"}, {"2222", "Ethernet/IP"}, {"44818", "Ethernet/IP"}, {"8000", "BCC"},
                    {"8100", "BCC"},       {"503", nullptr},        {"8001", nullptr},        {"", nullptr},
                    {"80x", nullptr},      {"00502", "Modbus-Tcp"}};
        MsgBoxScript::answerByDefault(MsgBox::Confirmed);
        for (const auto& row : rows) {
            find<QTouchLineEdit>("port_edit")->setText(row.port);
            const QByteArray before = controllerFile(FilePath);
            const int shown = messages().size();
            QVERIFY(press("saveButton"));
            const QStringList told = messages().mid(shown);
            if (row.service) {
                QCOMPARE(told, QStringList(
                                   QString("The set port conflicts with %1 default port.").arg(row.service)));
                QCOMPARE(MsgBoxScript::shown().constLast().kind, int(MsgBox::Warning));
                QCOMPARE(controllerFile(FilePath), before);
            } else {
                QCOMPARE(told, QStringList({"Are you sure to save?", "Save successfully."}));
                QVERIFY(controllerFile(FilePath).contains(QByteArray("<Port>") + row.port + "</Port>"));
            }
        }
    }

    void showsAndSaves()
    {
        QVERIFY(show(FilePath, fileWith("9001", "7")));
        auto* localPort = find<QComboBox>("localPortIpCB");
        const auto ip = [this] { return text("IP_Edit"); };
        // There is no such port: none is chosen, and the controller takes it for ETH3.
        QCOMPARE(localPort->currentIndex(), -1);
        QCOMPARE(ip(), QString("192.168.2.22"));
        localPort->setCurrentIndex(0);
        QCOMPARE(ip(), QString("192.168.1.22"));
        QVERIFY(put(PortsPath, "<NetPorts><Port name=\"ETH2\" ip=\"10.0.0.5\" netmask=\"\"/></NetPorts>"));
        localPort->setCurrentIndex(1);
        QCOMPARE(ip(), QString());
        localPort->setCurrentIndex(0);
        QCOMPARE(ip(), QString("10.0.0.5"));

        // A save without a change writes, sends and announces all the same.
        QCOMPARE(text("mode_comboBox"), QString("BROADCAST"));
        find<QTouchLineEdit>("IntervalTime_edit")->setText("soon");
        for (int round = 1; round <= 2; ++round) {
            traffic().clear();
            answer({MsgBox::Confirmed, MsgBox::Confirmed});
            QVERIFY(press("saveButton"));
            QCOMPARE(traffic().stores(), QStringList({FilePath}));
            QTRY_COMPARE(controller().behaviour<MesServer>().reloads(), round);
        }
        const QByteArray saved = controllerFile(FilePath);
        QVERIFY2(saved.endsWith("<TcpServerConfig>\n\t<Port>9001</Port>\n\t<Mode>1</Mode>\n"
                                "\t<Protocol>1</Protocol>\n\t<IntervalTime>0</IntervalTime>\n"
                                "\t<IpPortIndex>0</IpPortIndex>\n</TcpServerConfig>\n"),
                 saved.constData());
    }

    // The button waits 1.6 s for a server that does not start, and says nothing.
    void startFails()
    {
        QTcpServer other;
        QVERIFY(other.listen(QHostAddress::LocalHost));
        QVERIFY(show(FilePath, fileWith(QByteArray::number(other.serverPort()))));
        traffic().clear();
        QTimer::singleShot(600, this, [this] {
            QVERIFY(!press("monitorButton"));
            QVERIFY(find("saveButton")->isEnabled());
        });
        QElapsedTimer taken;
        taken.start();
        QVERIFY(press("monitorButton"));
        QVERIFY2(taken.elapsed() >= 1500, QByteArray::number(taken.elapsed()));
        QVERIFY(find("monitorButton")->isEnabled());
        QCOMPARE(traffic().writeCount(), 1);
        QCOMPARE(variable(Active), 0.0);
        QCOMPARE(variable(Listen), 0.0);
        QCOMPARE(messages(), QStringList());
        QCOMPARE(text("monitorButton"), QString("Start Monitor"));

        // With the port free again it starts.
        other.close();
        QVERIFY(press("monitorButton"));
        QCOMPARE(variable(Active), 1.0);
    }

    void userLevelDropsWhileTheServerIsWaitedFor()
    {
        QVERIFY(show());
        controller().faults().set(Faults::CommandNeverTaken, -1, Listen);
        QTimer::singleShot(300, &dropUserLevel);
        press("monitorButton");
        QTRY_VERIFY(!isOpen());
        QVERIFY(reopensAfterDrop());
        QVERIFY(showAgain());
        QVERIFY(find("monitorButton")->isEnabled());
    }

    void serverRefusesWhatIsNoPort_data()
    {
        const Rows<QByteArray> row;
        for (const char* port : {"", "0", "65536", "8o08"})
            row(*port ? port : "nothing", fileWith(port));
        row("cut short", fileWith("8008").left(40));
    }

    void serverRefusesWhatIsNoPort()
    {
        const auto [file] = Rows<QByteArray>::current();
        Robot robot(file);
        robot.set(Listen, true);
        QCOMPARE(robot.value(Listen), 1.0);
        QTRY_COMPARE(robot.value(Listen), 0.0);
        QCOMPARE(robot.value(Active), 0.0);
        QVERIFY(!robot.server().complaint().isEmpty());
    }

    void serverOnItsOwn()
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
};

PENDANT_TEST_MAIN(TestMes, "mesBtn")
#include "tst_mes.moc"
