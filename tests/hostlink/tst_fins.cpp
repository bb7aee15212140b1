#include "ControllerPanel.h"
#include "Faults.h"
#include "FinsClient.h"
#include "FinsShortcut.h"
#include "LoneController.h"
#include "PaintCounter.h"
#include "PendantFixture.h"
#include "QTouchLineEdit.h"
#include "UserSession.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QTcpServer>
#include <QTcpSocket>

namespace {

const QString FilePath = QStringLiteral("/application/finstcp/FinsTcpConfig.xml");
const QString PortsPath = QStringLiteral("/application/network/netports.xml");
const QString LocalPath = QStringLiteral("../Application/fieldbusSetting/FinsTcpConfig.xml");
const QString Enable = QStringLiteral("ifins_tcp.enable");
const QString Connected = QStringLiteral("ifins_tcp.connected");
const QString Error = QStringLiteral("ifins_tcp.error");
const QString Update = QStringLiteral("ifins_tcp.bupdate_cfg");
constexpr int FinsPage = 2;

// Spelled out, so that the client's own idea of a frame is not what it is tested against.
const QByteArray Magic = "46494e53";
const QByteArray GoodNodes = Magic + "00000010 00000001 00000000 00000016 00000003";
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

class TestFins : public QObject
{
    Q_OBJECT

private slots:
    void pageIsReachedFromThePanel();
    void pageFollowsTheClient();
    void showsTheFile_data();
    void showsTheFile();
    void nodeFollowsThePort();
    void saves();
    void transferFaults_data();
    void transferFaults();
    void userLevelDrops_data();
    void userLevelDrops();
    void clientAsksRightly();
    void clientMeetsWrongAnswers_data();
    void clientMeetsWrongAnswers();
    void clientRefusesSettings_data();
    void clientRefusesSettings();
    void clientLosesAndFindsItsServer();
};

void TestFins::pageIsReachedFromThePanel()
{
    PendantFixture pendant;
    ControllerPanel panel(pendant.controller(),
                          {[&pendant] { return FinsShortcut::isAtHand(pendant.window()); },
                           [&pendant] { FinsShortcut::show(pendant.window()); }});
    panel.show();
    auto* tabs = panel.findChild<QTabWidget*>();
    tabs->setCurrentWidget(panel.findChild<QWidget*>("hostLinkTab"));
    auto* show = panel.findChild<QPushButton*>("showFinsPage");
    QVERIFY(!show->isEnabled()); // the application is not open
    QVERIFY(pendant.open());
    QVERIFY(pendant.openPage("mesBtn"));
    QTRY_VERIFY(show->isEnabled());
    show->click();
    QTRY_VERIFY(pendant.find("FinsTcpSettingWidget") && pendant.find("FinsTcpSettingWidget")->isVisible());
    // No menu button claims the page; the next one that is pressed is the only one that is down.
    const auto isDown = [&pendant](const char* name) { return pendant.find<QPushButton>(name)->isChecked(); };
    QVERIFY(!isDown("mesBtn") && !isDown("heartbeatBtn"));
    for (const char* name : {"mesBtn", "heartbeatBtn"}) {
        QVERIFY(pendant.openPage(name));
        QVERIFY(isDown(name) && isDown("mesBtn") != isDown("heartbeatBtn"));
    }
}

void TestFins::pageFollowsTheClient()
{
    PendantFixture pendant(10);
    Plc plc;
    QVERIFY(pendant.open());
    QVERIFY(pendant.selectPage(FinsPage));
    QVERIFY(!pendant.find("autoConnectCB")->isVisible());
    auto* box = pendant.find<QCheckBox>("enable_checkBox");
    const auto light = [&pendant] { return pendant.find<QLabel>("led_finsConnect")->styleSheet(); };
    const auto errorShown = [&pendant](bool shown) {
        return pendant.find("label_error")->isVisible() == shown &&
               pendant.find("led_finsError")->isVisible() == shown;
    };
    const auto settled = [&](const char* color, bool error) {
        return light() == QString("border-image: url(:/image/C0_Done_%1.png);").arg(color) &&
               errorShown(error);
    };
    QVERIFY(settled("Grey", false));
    // Off is grey whatever the connection is said to be.
    pendant.controller().variables().set(Connected, 1.0);
    QTest::qWait(250);
    QVERIFY(settled("Grey", false));
    pendant.controller().variables().set(Connected, 0.0);
    QTest::qWait(250); // until the page has seen it: it follows changes only

    QVERIFY(pendant.enter("serverIP_Edit", "127.0.0.1"));
    QVERIFY(pendant.enter("serverPort_edit", QString::number(plc.serverPort())));
    PendantFixture::answer({MsgBox::Confirmed, MsgBox::Confirmed});
    QVERIFY(pendant.press("saveFinsButton"));
    QVERIFY(LoneController::wasWritten(pendant.controller(), Update));
    QTRY_COMPARE(pendant.variable(Update), 0.0);
    QCOMPARE(plc.requests.size(), 0); // saving alone calls nobody

    QVERIFY(pendant.press("enable_checkBox"));
    QElapsedTimer guard;
    guard.start();
    QCOMPARE(pendant.variable(Enable), 1.0);
    QVERIFY(!box->isEnabled());
    QVERIFY(!pendant.press("enable_checkBox"));
    QTRY_VERIFY(settled("Green", false));
    QTRY_COMPARE(pendant.controller().behaviour<FinsClient>().word(), quint16(1234));
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
    QTRY_VERIFY(settled("Green", false));

    // The controller undoes the switch; the box follows even while it is locked.
    pendant.controller().variables().changedByPendant(Enable, 0, 0.0);
    QTRY_VERIFY(!box->isChecked() && settled("Grey", false));
    QTRY_VERIFY_WITH_TIMEOUT(box->isEnabled(), 4000);
    QVERIFY2(guard.elapsed() >= 2800, QByteArray::number(guard.elapsed()));
    QCOMPARE(pendant.messages().size(), 2);
}

void TestFins::showsTheFile_data()
{
    QTest::addColumn<QByteArray>("more");
    QTest::addColumn<QString>("node");
    QTest::addColumn<QString>("port");
    QTest::addColumn<QString>("saved"); // AutoConnect, IpPortIndex
    QTest::newRow("the first port leaves the node") << QByteArray("<AutoConnect>1</AutoConnect>") << "22"
                                                    << "ETH2"
                                                    << "1 0";
    QTest::newRow("the second port gives its own") << QByteArray("<IpPortIndex>1</IpPortIndex>") << "77"
                                                   << "ETH3"
                                                   << "0 1";
    QTest::newRow("no such port") << QByteArray("<IpPortIndex>2</IpPortIndex>") << "77"
                                  << ""
                                  << "0 -1";
}

void TestFins::showsTheFile()
{
    QFETCH(QByteArray, more);
    QFETCH(QString, node);
    PendantFixture pendant;
    QVERIFY(pendant.controller().files().write(
        PortsPath,
        "<NetPorts><Port name=\"ETH2\" ip=\"10.0.0.5\"/><Port name=\"ETH3\" ip=\"10.0.0.77\"/></NetPorts>"));
    QVERIFY(pendant.controller().files().write(FilePath, fileWith("here", "9x", more)));
    QVERIFY(pendant.open());
    QVERIFY(pendant.selectPage(FinsPage));
    QCOMPARE(pendant.find<QLineEdit>("serverIP_Edit")->text(), QString("here"));
    QCOMPARE(pendant.find<QLineEdit>("serverPort_edit")->text(), QString("9x"));
    QCOMPARE(pendant.find<QLineEdit>("clientNode_edit")->text(), node);
    QCOMPARE(pendant.find<QLineEdit>("readAddress_edit")->text(), QString("1000"));
    QCOMPARE(pendant.find<QLineEdit>("writeAddress_edit")->text(), QString("0"));
    QTEST(pendant.find<QComboBox>("interfaceCB")->currentText(), "port");
    QCOMPARE(pendant.messages(), QStringList());

    MsgBoxScript::answerByDefault(MsgBox::Confirmed);
    QVERIFY(pendant.press("saveFinsButton"));
    const QByteArray file = pendant.controllerFile(FilePath);
    const auto element = [&file](const QByteArray& name) {
        const int at = file.indexOf("<" + name + ">") + name.size() + 2;
        return QString::fromUtf8(file.mid(at, file.indexOf('<', at) - at));
    };
    QTEST(element("AutoConnect") + " " + element("IpPortIndex"), "saved");
    QCOMPARE(element("ClientNode"), node);
}

void TestFins::nodeFollowsThePort()
{
    PendantFixture pendant;
    QVERIFY(pendant.open());
    QVERIFY(pendant.selectPage(FinsPage));
    auto* port = pendant.find<QComboBox>("interfaceCB");
    const struct
    {
        const char* address;
        const char* node;
    } rows[] = {{"192.168.1.23", "23"}, {"nodots", ""}, {"", ""}, {"1.", ""}, {"a.b", "b"}};
    for (const auto& row : rows) {
        QVERIFY(pendant.controller().files().write(
            PortsPath, QByteArray("<NetPorts><Port name=\"ETH3\" ip=\"") + row.address + "\"/></NetPorts>"));
        pendant.find<QLineEdit>("clientNode_edit")->setText("99");
        port->setCurrentIndex(1 - port->currentIndex());
        if (port->currentIndex() == 0) // ETH2 has no address here
            port->setCurrentIndex(1);
        QCOMPARE(pendant.find<QLineEdit>("clientNode_edit")->text(), QString(row.node));
        pendant.find<QLineEdit>("clientNode_edit")->setText("99");
        port->setCurrentIndex(0);
        QCOMPARE(pendant.find<QLineEdit>("clientNode_edit")->text(), QString());
    }
}

void TestFins::saves()
{
    PendantFixture pendant;
    QVERIFY(pendant.open());
    QVERIFY(pendant.selectPage(FinsPage));
    QVERIFY(pendant.enter("serverIP_Edit", "127.0.0.9"));
    QVERIFY(pendant.enter("serverPort_edit", "99999"));
    QVERIFY(pendant.enter("writeAddress_edit", "-7"));
    pendant.find<QLineEdit>("clientNode_edit")->setText("a node");
    pendant.find<QLineEdit>("readAddress_edit")->setText("");
    for (const int result : {MsgBox::Second, MsgBox::Dismissed}) {
        pendant.controller().traffic().clear();
        PendantFixture::answer({result});
        QVERIFY(pendant.press("saveFinsButton"));
        QCOMPARE(pendant.controller().traffic().stores(), QStringList());
    }
    QCOMPARE(pendant.find<QLineEdit>("serverIP_Edit")->text(), QString("127.0.0.9"));
    PendantFixture::answer({MsgBox::Confirmed, MsgBox::Confirmed});
    QVERIFY(pendant.press("saveFinsButton"));
    QCOMPARE(pendant.messages().mid(2), QStringList({"Are you sure to save?", "Save successfully."}));
    QCOMPARE(pendant.controller().traffic().stores(), QStringList({FilePath}));
    const QByteArray saved = pendant.controllerFile(FilePath);
    QVERIFY2(
        saved.endsWith("<ClientConfig>\n\t<ServerIP>127.0.0.9</ServerIP>\n\t<ServerPort>99999</ServerPort>\n"
                       "\t<ClientNode>0</ClientNode>\n\t<AutoConnect>0</AutoConnect>\n"
                       "\t<ReadDmAddress>0</ReadDmAddress>\n\t<WriteDmAddress>-7</WriteDmAddress>\n"
                       "\t<IpPortIndex>1</IpPortIndex>\n</ClientConfig>\n"),
        saved.constData());
}

void TestFins::transferFaults_data()
{
    QTest::addColumn<QString>("fault");
    QTest::addColumn<QString>("message");
    QTest::newRow("the fetch fails") << "fetch-fails"
                                     << "Failed to get file.";
    QTest::newRow("half a file arrives") << "fetch-cut-short"
                                         << "Failed to read file.";
    QTest::newRow("the write fails") << ""
                                     << "Failed to write file.";
    QTest::newRow("the send is refused") << "send-fails"
                                         << "Failed to send file.";
}

void TestFins::transferFaults()
{
    QFETCH(QString, fault);
    QFETCH(QString, message);
    PendantFixture pendant;
    const QByteArray before = pendant.controllerFile(FilePath);
    QVERIFY(pendant.open());
    MsgBoxScript::answerByDefault(MsgBox::Confirmed);
    if (fault.startsWith("fetch")) {
        QVERIFY(pendant.controller().faults().setFromText(fault + ":10:" + FilePath));
        // The page is not in its place yet: the box must be in sight nevertheless.
        bool seen = false;
        MsgBoxScript::onShown([&seen](const MsgBox* box) {
            seen = box->isVisible() && box->parentWidget() && box->parentWidget()->isVisible();
        });
        QVERIFY(pendant.selectPage(FinsPage));
        QVERIFY(seen);
        QCOMPARE(pendant.find<QLineEdit>("serverIP_Edit")->text(), QString("192.168.1.22"));
        QCOMPARE(pendant.find<QLineEdit>("clientNode_edit")->text(), QString("22"));
    } else {
        QVERIFY(pendant.selectPage(FinsPage));
        if (fault.isEmpty())
            QVERIFY(QFile::remove(LocalPath) && QDir().mkdir(LocalPath));
        else
            QVERIFY(pendant.controller().faults().setFromText(fault));
        QVERIFY(pendant.press("saveFinsButton"));
    }
    QCOMPARE(pendant.messages().constLast(), message);
    QCOMPARE(MsgBoxScript::shown().constLast().kind, int(MsgBox::Warning));
    QCOMPARE(pendant.controllerFile(FilePath), before);
    QVERIFY(!LoneController::wasWritten(pendant.controller(), Update));
}

void TestFins::userLevelDrops_data()
{
    QTest::addColumn<QString>("when");
    QTest::addColumn<QStringList>("messages");
    QTest::newRow("while the page is made and fetches") << "fetch" << QStringList();
    QTest::newRow("while the page is made and complains")
        << "failure" << QStringList({"Failed to get file."});
    QTest::newRow("while the confirmation is open") << "question" << QStringList({"Are you sure to save?"});
    QTest::newRow("while the switch is locked") << "switch" << QStringList();
}

void TestFins::userLevelDrops()
{
    QFETCH(QString, when);
    PendantFixture pendant;
    QVERIFY(pendant.open());
    const auto drop = [] { UserSession::instance().setUserLevel(1); };
    if (when == "fetch" || when == "failure") {
        pendant.controller().faults().set(Faults::FetchFails);
        if (when == "fetch")
            QTimer::singleShot(350, drop);
        else
            MsgBoxScript::onShown([drop](const MsgBox* /*box*/) { drop(); });
        pendant.selectPage(FinsPage);
    } else {
        QVERIFY(pendant.selectPage(FinsPage));
        if (when == "question")
            MsgBoxScript::onShown([drop](const MsgBox* /*box*/) { drop(); });
        QVERIFY(pendant.press(when == "question" ? "saveFinsButton" : "enable_checkBox"));
        if (when == "switch")
            drop();
    }
    QTRY_VERIFY(!pendant.isOpen());
    QTest::qWait(when == "switch" ? 3200 : 300);
    QTEST(pendant.messages(), "messages");
    for (const QWidget* window : QApplication::topLevelWidgets())
        QVERIFY(!(window->isVisible() && window->inherits("MsgBox")));

    MsgBoxScript::onShown({});
    pendant.controller().faults().clearAll();
    UserSession::instance().setUserLevel(4);
    QVERIFY(pendant.open());
    QVERIFY(pendant.selectPage(FinsPage));
    QVERIFY(pendant.find("enable_checkBox")->isEnabled());
    QTRY_COMPARE(pendant.find<QCheckBox>("enable_checkBox")->isChecked(), when == "switch");
}

void TestFins::clientAsksRightly()
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

void TestFins::clientMeetsWrongAnswers_data()
{
    QTest::addColumn<QByteArray>("nodes");
    QTest::addColumn<QByteArray>("word");
    QTest::addColumn<QString>("complaint");
    const QByteArray& n = GoodNodes;
    const QByteArray& w = GoodWord;
    const auto with = [](QByteArray frame, const char* from, const char* to) {
        return frame.replace(from, to);
    };
    const QString wrong = "wrong answer";
    const QString late = "timed out";
    QTest::newRow("never") << QByteArray() << w << late;
    QTest::newRow("nothing but the header") << n.left(34) << w << late;
    QTest::newRow("cut short") << n.left(n.size() - 2) << w << late;
    QTest::newRow("another protocol") << QByteArray("485454502f312e31") << w << wrong;
    QTest::newRow("one wrong byte") << QByteArray("47") << w << wrong;
    QTest::newRow("a length below the header") << Magic + "00000007 00000001" << w << wrong;
    QTest::newRow("a length without end") << Magic + "ffffffff 00000001" << w << wrong;
    QTest::newRow("the client's own command") << with(n, "00000001", "00000000") << w << wrong;
    QTest::newRow("an error code") << with(n, "00000001 00000000", "00000001 00000021") << w
                                   << "error code 33";
    QTest::newRow("an error and no nodes") << Magic + "00000008 00000001 00000020" << w << "error code 32";
    QTest::newRow("one node") << with(n, "00000010", "0000000c").left(n.size() - 8) << w << wrong;
    QTest::newRow("another client") << with(n, "00000016", "00000017") << w << wrong;
    QTest::newRow("a server without node") << with(n, "00000003", "00000000") << w << wrong;
    QTest::newRow("a server node beyond the network") << with(n, "00000003", "000000ff") << w << wrong;
    QTest::newRow("unasked frames behind") << n + w << w << wrong;

    QTest::newRow("read: never") << n << QByteArray() << late;
    QTest::newRow("read: cut short") << n << w.left(w.size() - 4) << late;
    QTest::newRow("read: an error frame") << n << Magic + "00000008 00000003 00000003"
                                          << "error code 3";
    QTest::newRow("read: another request's") << n << with(w, "ss", "63") << wrong;
    QTest::newRow("read: a command") << n << with(w, "c0000200", "80000200") << wrong;
    QTest::newRow("read: another command's") << n << with(w, "0101", "0102") << wrong;
    QTest::newRow("read: another frame") << n << with(w, "00000002", "00000001") << wrong;
    QTest::newRow("read: an end code") << n << with(w, "0101 0000", "0101 1103") << "end code 1103";
    QTest::newRow("read: two words") << n << with(w, "00000018", "0000001a") + "0001" << wrong;
    QTest::newRow("read: no word") << n << with(w, "00000018", "00000016").left(w.size() - 5) << wrong;
    QTest::newRow("read: nothing in the frame") << n << Magic + "00000008 00000002 00000000" << wrong;
}

void TestFins::clientMeetsWrongAnswers()
{
    QFETCH(QByteArray, nodes);
    QFETCH(QByteArray, word);
    QFETCH(QString, complaint);
    Plc plc;
    Robot robot(plc);
    plc.nodes = nodes;
    plc.word = word;
    robot.set(Enable, true);
    QTRY_COMPARE(robot.value(Error), 1.0);
    QCOMPARE(robot.value(Connected), 0.0);
    QCOMPARE(robot.client().state(), FinsClient::State::Failed);
    QVERIFY2(robot.client().complaint().startsWith(complaint), qPrintable(robot.client().complaint()));
    QTRY_VERIFY(plc.findChildren<QTcpSocket*>().isEmpty());
    // Nothing of it is left for the next connection.
    plc.nodes = GoodNodes;
    plc.word = GoodWord;
    robot.set(Update, true);
    QTRY_COMPARE(robot.value(Connected), 1.0);
    QCOMPARE(robot.value(Error), 0.0);
}

void TestFins::clientRefusesSettings_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::newRow("a server elsewhere") << fileWith("192.168.2.10", "9600");
    QTest::newRow("the network") << fileWith("0.0.0.0", "9600");
    QTest::newRow("a name") << fileWith("localhost", "9600");
    QTest::newRow("port 0") << fileWith("127.0.0.1", "0");
    QTest::newRow("a port too high") << fileWith("127.0.0.1", "65537");
    QTest::newRow("a node too high") << fileWith("127.0.0.1", "9600").replace(">22<", ">255<");
    QTest::newRow("a negative word") << fileWith("127.0.0.1", "9600").replace(">1000<", ">-1<");
    QTest::newRow("a word behind the last") << fileWith("127.0.0.1", "9600").replace(">1000<", ">32768<");
    QTest::newRow("cut short") << fileWith("127.0.0.1", "9600").left(60);
}

// Nobody is called, and nobody again later.
void TestFins::clientRefusesSettings()
{
    QFETCH(QByteArray, file);
    Robot robot(file);
    robot.controller().setTimeScale(1000);
    robot.set(Enable, true);
    QTRY_COMPARE(robot.value(Error), 1.0);
    const QString complaint = robot.client().complaint();
    QVERIFY(!complaint.isEmpty());
    QTest::qWait(30);
    QCOMPARE(robot.client().complaint(), complaint);
    QCOMPARE(robot.client().state(), FinsClient::State::Failed);
    robot.set(Enable, false);
    QTRY_COMPARE(robot.value(Error), 0.0);
    QCOMPARE(robot.client().state(), FinsClient::State::Off);
}

void TestFins::clientLosesAndFindsItsServer()
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
    robot.controller().files().write(FilePath, fileWith("127.0.0.1", QByteArray::number(other.serverPort())));
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

PENDANT_TEST_MAIN(TestFins)
#include "tst_fins.moc"
