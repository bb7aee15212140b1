#include "ControllerPanel.h"
#include "Faults.h"
#include "FinsClient.h"
#include "LoneController.h"
#include "PageTest.h"
#include "PaintCounter.h"
#include "QTouchLineEdit.h"
#include "Shortcut.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QTcpServer>
#include <QTcpSocket>

namespace {

const QString FilePath = QStringLiteral("/application/finstcp/FinsTcpConfig.xml");
const QString PortsPath = QStringLiteral("/application/network/netports.xml");
const QString Enable = QStringLiteral("ifins_tcp.enable");
const QString Connected = QStringLiteral("ifins_tcp.connected");
const QString Error = QStringLiteral("ifins_tcp.error");
const QString Update = QStringLiteral("ifins_tcp.bupdate_cfg");
constexpr int FinsPage = 2;

// Spelled out, so that the client's own idea of a frame is not what it is tested against.
const QByteArray Magic = "46494e53";
const QByteArray GoodNodes = Magic + "00000010 00000001 00000000 00000016 00000003";
const QByteArray NodesWithError = Magic + "00000010 00000001 00000021 00000016 00000003";
const QByteArray GoodWord = Magic + "00000018 00000002 00000000 c00002001600000300ss 0101 0000 04d2";

// A PLC that answers every request with what it was told to, whatever is asked: first the handshake, then the
// reads. "ss" stands for the number of the request.
class Plc : public QTcpServer
{
public:
    Plc() { listen(QHostAddress::LocalHost); }

    QByteArray nodes = GoodNodes;
    QByteArray word = GoodWord;
    bool bytewise = false;
    QList<QByteArray> requests; ///< in hexadecimal

    void hangUp()
    {
        for (QTcpSocket* client : findChildren<QTcpSocket*>())
            client->disconnectFromHost();
    }

protected:
    void incomingConnection(qintptr handle) override
    {
        auto* client = new QTcpSocket(this);
        client->setSocketDescriptor(handle);
        client->setSocketOption(QAbstractSocket::LowDelayOption, 1);
        requests.clear();
        connect(client, &QTcpSocket::disconnected, client, &QTcpSocket::deleteLater);
        connect(client, &QTcpSocket::readyRead, this, [this, client] {
            const QByteArray request = client->readAll().toHex();
            QByteArray answer = requests.isEmpty() ? nodes : word;
            requests << request;
            answer.replace("ss", request.mid(50, 2));
            const QByteArray bytes = QByteArray::fromHex(answer);
            for (int at = 0; at < bytes.size(); at += bytewise ? 1 : bytes.size()) {
                client->write(bytes.mid(at, bytewise ? 1 : -1));
                client->flush();
            }
        });
    }
};

QByteArray fileWith(const QByteArray& server, const QByteArray& port, const QByteArray& more = {})
{
    return "<ClientConfig><ServerIP>" + server + "</ServerIP><ServerPort>" + port +
           "</ServerPort><ClientNode>22</ClientNode><ReadDmAddress>1000</ReadDmAddress>" + more +
           "</ClientConfig>";
}

struct Robot : LoneController
{
    explicit Robot(const QByteArray& file)
        : LoneController(FilePath, file, 10)
    {
    }
    explicit Robot(const Plc& plc)
        : Robot(fileWith("127.0.0.1", QByteArray::number(plc.serverPort())))
    {
    }
    FinsClient& client() { return controller().behaviour<FinsClient>(); }
};

} // namespace

class TestFins : public PageTest
{
    Q_OBJECT

public:
    using PageTest::PageTest;

private slots:
    void pageIsReachedFromThePanel()
    {
        const Shortcut finsPage(window(), QStringLiteral("finsPage"));
        ControllerPanel panel(controller(),
                              {[finsPage] { return finsPage.isAtHand(); }, [finsPage] { finsPage.show(); }});
        panel.show();
        auto* tabs = panel.findChild<QTabWidget*>();
        tabs->setCurrentWidget(panel.findChild<QWidget*>("hostLinkTab"));
        auto* show = panel.findChild<QPushButton*>("showFinsPage");
        QVERIFY(!show->isEnabled()); // the application is not open
        QVERIFY(open());
        QVERIFY(openPage("mesBtn"));
        QTRY_VERIFY(show->isEnabled());
        show->click();
        QTRY_VERIFY(find("FinsTcpSettingWidget") && find("FinsTcpSettingWidget")->isVisible());
        // No menu button claims the page; the next one that is pressed is the only one that is down.
        const auto isDown = [this](const char* name) { return isChecked(name); };
        QVERIFY(!isDown("mesBtn") && !isDown("heartbeatBtn"));
        for (const char* name : {"mesBtn", "heartbeatBtn"}) {
            QVERIFY(openPage(name));
            QVERIFY(isDown(name) && isDown("mesBtn") != isDown("heartbeatBtn"));
        }
    }

    // The page fetches while it is made: input is not blocked, and the box with its complaint must be in
    // sight although the page is not in its place yet.
    void chosenAgainWhileItIsMade()
    {
        QVERIFY(open());
        controller().faults().set(Faults::FetchFails, -1, FilePath);
        bool inSight = false;
        MsgBoxScript::answerByDefault(MsgBox::Confirmed);
        MsgBoxScript::onShown([&inSight](const MsgBox* box) {
            inSight = box->isVisible() && box->parentWidget() && box->parentWidget()->window()->isVisible();
        });
        QTimer::singleShot(200, &window(), [this] { Shortcut(window(), QStringLiteral("finsPage")).show(); });
        QVERIFY(showAgain());
        QVERIFY(find("FinsTcpSettingWidget")->isVisible());
        QCOMPARE(messages().size(), 1);
        QVERIFY(inSight);
        QCOMPARE(text("serverIP_Edit"), QString("192.168.1.22"));
        QCOMPARE(text("clientNode_edit"), QString("22"));
    }

    void pageFollowsTheClient()
    {
        restartAt(10);
        Plc plc;
        QVERIFY(show());
        QVERIFY(!find("autoConnectCB")->isVisible());
        auto* box = find<QCheckBox>("enable_checkBox");
        const auto light = [this] { return find<QLabel>("led_finsConnect")->styleSheet(); };
        const auto errorShown = [this](bool shown) {
            return find("label_error")->isVisible() == shown && find("led_finsError")->isVisible() == shown;
        };
        const auto settled = [&](const char* color, bool error) {
            return light() == QString("border-image: url(:/image/C0_Done_%1.png);").arg(color) &&
                   errorShown(error);
        };
        QVERIFY(settled("Grey", false));
        // Off is grey whatever the connection is said to be.
        set(Connected, 1.0);
        QTest::qWait(250);
        QVERIFY(settled("Grey", false));
        set(Connected, 0.0);
        QTest::qWait(250); // until the page has seen it: it follows changes only

        QVERIFY(enter("serverIP_Edit", "127.0.0.1"));
        QVERIFY(enter("serverPort_edit", QString::number(plc.serverPort())));
        answer({MsgBox::Confirmed, MsgBox::Confirmed});
        QVERIFY(press("saveFinsButton"));
        QVERIFY(!writesOf(Update).isEmpty());
        QTRY_COMPARE(variable(Update), 0.0);
        QCOMPARE(plc.requests.size(), 0); // saving alone calls nobody

        QVERIFY(press("enable_checkBox"));
        QElapsedTimer guard;
        guard.start();
        QCOMPARE(variable(Enable), 1.0);
        QVERIFY(!box->isEnabled());
        QVERIFY(!press("enable_checkBox"));
        QTRY_VERIFY(settled("Green", false));
        QTRY_COMPARE(controller().behaviour<FinsClient>().word(), quint16(1234));
        {
            PaintCounter paints;
            QTest::qWait(300);
            QCOMPARE(paints.styleChanges() + paints.paints(), 0);
        }

        // The PLC is switched off, and on again.
        const quint16 port = plc.serverPort();
        plc.close();
        plc.hangUp();
        QTRY_VERIFY(settled("Red", true));
        QVERIFY(plc.listen(QHostAddress::LocalHost, port));
        QTRY_VERIFY_WITH_TIMEOUT(settled("Green", false), 8000);

        // The controller undoes the switch; the box follows even while it is locked.
        controller().variables().changedByPendant(Enable, 0, 0.0);
        QTRY_VERIFY(!box->isChecked() && settled("Grey", false));
        QTRY_VERIFY_WITH_TIMEOUT(box->isEnabled(), 4000);
        QVERIFY2(guard.elapsed() >= 2800, QByteArray::number(guard.elapsed()));
        QCOMPARE(messages().size(), 2);
    }

    void pageShowsWrongAnswers()
    {
        Plc plc;
        plc.nodes = NodesWithError;
        QVERIFY(put(FilePath, fileWith("127.0.0.1", QByteArray::number(plc.serverPort()))));
        controller().writeVariable(Update, 0, 1.0);
        QTRY_COMPARE(variable(Update), 0.0);
        QVERIFY(show());
        const auto shows = [this](const char* color, bool error) {
            return find<QLabel>("led_finsConnect")->styleSheet().contains(color) &&
                   find("label_error")->isVisible() == error && find("led_finsError")->isVisible() == error;
        };
        QVERIFY(shows("Grey", false));
        QVERIFY(press("enable_checkBox"));
        // The press itself is what the light has seen: it stays grey until the connection stands.
        QTRY_VERIFY(shows("Grey", true));
        plc.nodes = GoodNodes; // the next try goes well
        QTRY_VERIFY_WITH_TIMEOUT(shows("Green", false), 10000);
    }

    void showsTheFile_data()
    {
        // saved: AutoConnect, IpPortIndex
        const Rows<QByteArray, QString, QString, QString> row;
        row("the first port leaves the node", "<AutoConnect>1</AutoConnect>", "22", "ETH2", "1 0");
        row("the second port gives its own", "<IpPortIndex>1</IpPortIndex>", "77", "ETH3", "0 1");
        row("no such port", "<IpPortIndex>2</IpPortIndex>", "77", "", "0 2");
    }

    void showsTheFile()
    {
        const auto [more, node, port, saved] = Rows<QByteArray, QString, QString, QString>::current();
        QVERIFY(put(PortsPath, "<NetPorts><Port name=\"ETH2\" ip=\"10.0.0.5\"/><Port name=\"ETH3\" "
                               "ip=\"10.0.0.77\"/></NetPorts>"));
        QVERIFY(show(FilePath, fileWith("here", "9x", more)));
        QCOMPARE(text("serverIP_Edit"), QString("here"));
        QCOMPARE(text("serverPort_edit"), QString("9x"));
        QCOMPARE(text("clientNode_edit"), node);
        QCOMPARE(text("readAddress_edit"), QString("1000"));
        QCOMPARE(text("writeAddress_edit"), QString("0"));
        QCOMPARE(text("interfaceCB"), port);
        QCOMPARE(messages(), QStringList());

        MsgBoxScript::answerByDefault(MsgBox::Confirmed);
        QVERIFY(press("saveFinsButton"));
        const QByteArray file = controllerFile(FilePath);
        const auto element = [&file](const QByteArray& name) {
            const int at = file.indexOf("<" + name + ">") + name.size() + 2;
            return QString::fromUtf8(file.mid(at, file.indexOf('<', at) - at));
        };
        QCOMPARE(element("AutoConnect") + " " + element("IpPortIndex"), saved);
        QCOMPARE(element("ClientNode"), node);
    }

    void nodeFollowsThePort()
    {
        QVERIFY(show());
        auto* port = find<QComboBox>("interfaceCB");
        const struct
        {
            const char* address;
            const char* node;
        } rows[] = {{"192.168.1.23", "23"}, {"nodots", ""}, {"", ""}, {"1.", ""}, {"a.b", "b"}};
        for (const auto& row : rows) {
            QVERIFY(put(PortsPath,
                        QByteArray("<NetPorts><Port name=\"ETH3\" ip=\"") + row.address + "\"/></NetPorts>"));
            find<QLineEdit>("clientNode_edit")->setText("99");
            port->setCurrentIndex(1 - port->currentIndex());
            if (port->currentIndex() == 0) // ETH2 has no address here
                port->setCurrentIndex(1);
            QCOMPARE(text("clientNode_edit"), QString(row.node));
            find<QLineEdit>("clientNode_edit")->setText("99");
            port->setCurrentIndex(0);
            QCOMPARE(text("clientNode_edit"), QString());
        }
    }

    void saves()
    {
        QVERIFY(show());
        QVERIFY(enter("serverIP_Edit", "127.0.0.9"));
        // What no port is, and no address of a word: the keyboard refuses.
        QVERIFY(enter("serverPort_edit", "65536") && enter("writeAddress_edit", "-7"));
        QCOMPARE(NumericKeyboardScript::refusals().size(), 2);
        QVERIFY(enter("serverPort_edit", "65535") && enter("writeAddress_edit", "65535"));
        find<QLineEdit>("clientNode_edit")->setText("a node");
        find<QLineEdit>("readAddress_edit")->setText("");
        answer({MsgBox::Confirmed, MsgBox::Confirmed});
        QVERIFY(press("saveFinsButton"));
        QCOMPARE(messages(), QStringList({"Are you sure to save?", "Save successfully."}));
        QCOMPARE(traffic().stores(), QStringList({FilePath}));
        const QByteArray saved = controllerFile(FilePath);
        QVERIFY2(saved.endsWith(
                     "<ClientConfig>\n\t<ServerIP>127.0.0.9</ServerIP>\n\t<ServerPort>65535</ServerPort>\n"
                     "\t<ClientNode>0</ClientNode>\n\t<AutoConnect>0</AutoConnect>\n"
                     "\t<ReadDmAddress>0</ReadDmAddress>\n\t<WriteDmAddress>65535</WriteDmAddress>\n"
                     "\t<IpPortIndex>1</IpPortIndex>\n</ClientConfig>\n"),
                 saved.constData());
    }

    void userLevelDropsWhileTheSwitchIsLocked()
    {
        QVERIFY(show());
        QVERIFY(press("enable_checkBox"));
        dropUserLevel();
        QTest::qWait(3200); // the lock would have ended
        QVERIFY(reopensAfterDrop());
        QVERIFY(showAgain());
        QVERIFY(find("enable_checkBox")->isEnabled());
        QTRY_VERIFY(isChecked("enable_checkBox"));
    }

    void clientAsksRightly()
    {
        Plc plc;
        Robot robot(plc);
        plc.bytewise = true;
        robot.set(Enable, true);
        QTRY_COMPARE(robot.client().wordsRead(), 2);
        QCOMPARE(robot.value(Connected), 1.0);
        QCOMPARE(robot.value(Error), 0.0);
        QCOMPARE(robot.client().word(), quint16(1234));
        QCOMPARE(plc.requests.at(0), Magic + "0000000c000000000000000000000016");
        QCOMPARE(plc.requests.at(1), Magic + "0000001a0000000200000000"
                                             "80000200030000160001"
                                             "01018203e8000001");
        QCOMPARE(plc.requests.at(2).mid(50, 2), QByteArray("02"));

        robot.set(Enable, false);
        QTRY_COMPARE(robot.value(Connected), 0.0);
        QTRY_VERIFY(plc.findChildren<QTcpSocket*>().isEmpty());
        QCOMPARE(robot.value(Error), 0.0);
    }

    // All at once: the client's patience is real time. Without a complaint the client stays connected.
    void clientMeetsAnswers()
    {
        const QByteArray& n = GoodNodes;
        const QByteArray& w = GoodWord;
        const auto with = [](QByteArray frame, const char* from, const char* to) {
            return frame.replace(from, to);
        };
        const struct
        {
            const char* name;
            QByteArray nodes;
            QByteArray word;
            const char* complaint;
        } rows[] = {
            {"never", {}, w, "timed out"},
            {"cut short", n.left(n.size() - 2), w, "timed out"},
            {"another protocol", "485454502f312e31", w, "wrong answer"},
            {"a length without end", Magic + "ffffffff 00000001", w, "wrong answer"},
            {"an error code", NodesWithError, w, "error code 33"},
            {"another client", with(n, "00000016", "00000017"), w, "wrong answer"},
            {"read: never", n, {}, "timed out"},
            {"read: another request's", n, with(w, "ss", "63"), "wrong answer"},
            {"read: an end code", n, with(w, "0101 0000", "0101 1103"), "end code 1103"},
            {"read: no word", n, with(w, "00000018", "00000016").left(w.size() - 5), "wrong answer"},
            {"read: not passed on", n, Magic + "00000008 00000003 00000022", "error code 34"},
            {"read: an error code that means nothing", n, with(w, "00000002 00000000", "00000002 00000021"),
             ""},
            {"a confirmation is thrown away", n, Magic + "00000008 00000006 00000021" + w, ""},
        };
        std::vector<std::unique_ptr<Plc>> plcs;
        std::vector<std::unique_ptr<Robot>> robots;
        for (const auto& row : rows) {
            plcs.push_back(std::make_unique<Plc>());
            plcs.back()->nodes = row.nodes;
            plcs.back()->word = row.word;
            robots.push_back(std::make_unique<Robot>(*plcs.back()));
            robots.back()->set(Enable, true);
        }
        for (std::size_t i = 0; i < std::size(rows); ++i) {
            Robot& robot = *robots[i];
            const QByteArray complaint = rows[i].complaint;
            QTRY_VERIFY2(robot.value(Error) == 1.0 || robot.client().wordsRead() > 2, rows[i].name);
            QVERIFY2(robot.client().complaint().contains(complaint) &&
                         robot.client().complaint().isEmpty() == complaint.isEmpty(),
                     qPrintable(rows[i].name + (": " + robot.client().complaint())));
            QCOMPARE(robot.value(Connected), complaint.isEmpty() ? 1.0 : 0.0);
            // Nothing of it is left for the next connection.
            plcs[i]->nodes = GoodNodes;
            plcs[i]->word = GoodWord;
            robot.set(Update, true);
            QTRY_COMPARE(robot.value(Update), 0.0);
            QTRY_COMPARE(robot.value(Connected), 1.0);
            QCOMPARE(robot.value(Error), 0.0);
        }
    }

    // Nobody is called, and nobody again later.
    void clientRefusesSettings()
    {
        for (const QByteArray& file : {fileWith("192.168.2.10", "9600"), fileWith("127.0.0.1", "65537"),
                                       fileWith("127.0.0.1", "9600").replace(">1000<", ">32768<")}) {
            Robot robot(file);
            QSignalSpy log(&robot.controller().traffic(), &Traffic::logged);
            robot.set(Enable, true);
            QTRY_COMPARE(robot.value(Error), 1.0);
            QCOMPARE(robot.client().state(), FinsClient::State::Failed);
            QVERIFY(!robot.client().complaint().isEmpty());
            QVERIFY(log.constLast()[0].toString().endsWith(robot.client().complaint()));
            robot.set(Enable, false);
            QTRY_COMPARE(robot.value(Error), 0.0);
            QCOMPARE(robot.client().state(), FinsClient::State::Off);
        }
    }

    void clientLosesAndFindsItsServer()
    {
        Plc plc;
        Robot robot(plc);
        const quint16 port = plc.serverPort();
        plc.close();
        robot.set(Enable, true);
        QTRY_COMPARE(robot.value(Error), 1.0);
        QVERIFY2(robot.client().complaint().contains("refused"), qPrintable(robot.client().complaint()));
        // Announced settings are taken over at once, not at the next try.
        Plc other;
        robot.controller().files().write(FilePath,
                                         fileWith("127.0.0.1", QByteArray::number(other.serverPort())));
        robot.set(Update, true);
        QTRY_COMPARE(robot.value(Connected), 1.0);
        QCOMPARE(robot.value(Update), 0.0);
        QCOMPARE(robot.value(Error), 0.0);

        // A restart ends it; "connect automatically" brings it up again.
        robot.controller().files().write(
            FilePath, fileWith("127.0.0.1", QByteArray::number(port), "<AutoConnect>1</AutoConnect>"));
        QVERIFY(plc.listen(QHostAddress::LocalHost, port));
        robot.controller().requestRestart();
        QTRY_COMPARE(robot.value(Connected), 0.0);
        QTRY_COMPARE(robot.value(Connected), 1.0);
        QCOMPARE(robot.value(Enable), 1.0);
        QVERIFY(!plc.requests.isEmpty());
    }
};

PENDANT_TEST_MAIN(TestFins, {}, FinsPage)
#include "tst_fins.moc"
