#include "Faults.h"
#include "Finger.h"
#include "PendantFixture.h"
#include "QTouchLineEdit.h"
#include "Texts.h"

#include <QComboBox>
#include <QLabel>

namespace {

const QString FilePath = QStringLiteral("/application/fidbus/devicenet/devicenetSlave.xml");
const QString Button = QStringLiteral("deviceBtn");
const QString UpdateState = QStringLiteral("ifidbus.xml_update_state");

const QString NotEven = QStringLiteral("MACID value must be even!");
const QString SaveFailed = QStringLiteral("Save failed!");

constexpr int Asked = 0x9000;

QByteArray fileWith(const QByteArray& macId, const QByteArray& baudRate)
{
    return "<devicenet>\n\t<Dns>\n\t\t<Dns_MACID>" + macId + "</Dns_MACID>\n\t\t<Dns_BAUDRATE>" + baudRate +
           "</Dns_BAUDRATE>\n\t</Dns>\n</devicenet>\n";
}

/// A pendant with the page opened on a file.
class DeviceNetPage : public PendantFixture
{
public:
    explicit DeviceNetPage(const QByteArray& file = fileWith("12", "250"))
    {
        m_isReady = controller().setRoleOn("DeviceNetSlave", true) && put(FilePath, file) && open() &&
                    openPage(Button);
    }

    bool isReady() const { return m_isReady; }
    QWidget* page() const { return find("DeviceNetSlaverSetting"); }
    QString macId() const { return find<QTouchLineEdit>("le_macid")->text(); }
    QString baudRate() const { return find<QComboBox>("cbb_baud")->currentText(); }
    bool isLinked() const { return page()->findChild<QLabel*>("led_status")->isEnabled(); }
    QWidget* saveButton() const { return findOn("DeviceNetSlaverSetting", "btn_save"); }
    bool pressSave() const { return Finger::press(saveButton()); }
    QTimer* handshake() const { return page()->findChild<QTimer*>(); }

    bool save()
    {
        answer({MsgBox::Confirmed});
        return pressSave();
    }

    /// Lets the handshake poll, without its half seconds, until it ends; gives the number of polls.
    int pollToTheEnd()
    {
        int polls = 0;
        for (; page() && handshake()->isActive() && polls < 100; ++polls)
            QMetaObject::invokeMethod(page(), "getFileSaveStatus");
        return polls;
    }

private:
    bool m_isReady = false;
};

} // namespace

class TestDeviceNetSlave : public QObject
{
    Q_OBJECT

private slots:
    void showsTheFile_data();
    void showsTheFile();
    void onlyEvenMacIds();
    void savesWhatIsEntered();
    void handshakeIsGivenUp();
    void answeredLateInRealTime();
    void otherBitsStay();
    void lightFollowsItsBit();
    void userLevelDrops_data();
    void userLevelDrops();
};

void TestDeviceNetSlave::showsTheFile_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("baudRate");
    QTest::addColumn<QString>("macId");
    const auto row = [](const char* name, const QByteArray& file, const char* baudRate, const char* macId) {
        QTest::newRow(name) << file << QString(baudRate) << QString(macId);
    };
    row("white space in the rate", fileWith("62", " 2 5\t0\n"), "250", "62");
    row("no such rate", fileWith("8", "1000"), "125", "8");
    row("an odd MAC ID stands", fileWith("7", "500"), "500", "7");
    row("no MAC ID", "<devicenet><Dns><Dns_BAUDRATE>500</Dns_BAUDRATE></Dns></devicenet>", "500", "");
}

void TestDeviceNetSlave::showsTheFile()
{
    QFETCH(QByteArray, file);
    DeviceNetPage pendant(file);
    QVERIFY(pendant.isReady());
    QTEST(pendant.baudRate(), "baudRate");
    QTEST(pendant.macId(), "macId");
    QCOMPARE(pendant.messages(), QStringList());
}

void TestDeviceNetSlave::onlyEvenMacIds()
{
    DeviceNetPage pendant(fileWith("7", "125"));
    QVERIFY(pendant.isReady());
    const struct
    {
        const char* typed;
        const char* shown;
        bool isOdd;
    } entries[] = {{"9", "7", true},    {"8", "8", false},  {"63", "8", true}, {"62", "62", false},
                   {"64", "62", false}, {"0", "62", false}, {"1", "62", true}, {"02", "2", false}};
    int refusals = 0;
    for (const auto& entry : entries) {
        if (entry.isOdd)
            PendantFixture::answer({MsgBox::Confirmed});
        QVERIFY(pendant.enter("le_macid", entry.typed));
        QVERIFY(pendant.settle());
        QCOMPARE(pendant.macId(), QString(entry.shown));
        refusals += entry.isOdd;
        QCOMPARE(pendant.messages().size(), refusals);
    }
    QCOMPARE(MsgBoxScript::shown().constFirst().text, NotEven);
    QCOMPARE(MsgBoxScript::shown().constFirst().kind, int(MsgBox::Warning));
}

void TestDeviceNetSlave::savesWhatIsEntered()
{
    DeviceNetPage pendant;
    QVERIFY(pendant.isReady());
    QVERIFY(pendant.enter("le_macid", "44"));
    auto* rates = pendant.find<QComboBox>("cbb_baud");
    QTest::keyClick(rates, Qt::Key_Down);
    pendant.controller().traffic().clear();

    // Declined, nothing leaves the pendant.
    PendantFixture::answer({MsgBox::Second});
    QVERIFY(pendant.pressSave());
    QVERIFY(pendant.settle());
    QCOMPARE(pendant.controller().traffic().stores(), QStringList());

    QVERIFY(pendant.save());
    QVERIFY(pendant.controllerFile(FilePath).contains(fileWith("44", "500")));
    QCOMPARE(pendant.writesOf(UpdateState), QVector<double>({Asked}));
    QVERIFY(!pendant.pressSave()); // one handshake at a time
    QVERIFY(pendant.handshake()->isActive());
    QCOMPARE(pendant.handshake()->interval(), 500);
    PendantFixture::answer({MsgBox::Second});
    QTRY_COMPARE(pendant.messages().constLast(), Texts::Restart);
    QCOMPARE(pendant.writesOf(UpdateState), QVector<double>({Asked, 0}));
    QCOMPARE(pendant.controller().traffic().restartRequests(), 0);
    QVERIFY(pendant.settle());
    QCOMPARE(pendant.variable(UpdateState), 0.0);

    PendantFixture::answer({MsgBox::Confirmed, MsgBox::Confirmed});
    QVERIFY(pendant.pressSave());
    QTRY_COMPARE(pendant.controller().traffic().restartRequests(), 1);
    QTRY_VERIFY(!pendant.isOpen()); // the pendant restarts as well
    QCOMPARE(pendant.messages(),
             QStringList({Texts::Sure, Texts::Sure, Texts::Restart, Texts::Sure, Texts::Restart}));
}

// Twelve polls are waited through at the first save and ten at each later one; the poll after that gives up.
// A handshake that succeeds leaves nothing to the next one's count.
void TestDeviceNetSlave::handshakeIsGivenUp()
{
    DeviceNetPage pendant;
    QVERIFY(pendant.isReady());
    pendant.controller().faults().set(Faults::SlaveNeverAnswered);
    MsgBoxScript::answerByDefault(MsgBox::Confirmed);
    int boxes = 0;
    for (const int polls : {13, 11, 11}) {
        QVERIFY(pendant.pressSave());
        QCOMPARE(pendant.variable(UpdateState), double(Asked));
        QCOMPARE(pendant.pollToTheEnd(), polls);
        QVERIFY(pendant.settle());
        boxes += 2;
        QCOMPARE(pendant.messages().size(), boxes);
        QCOMPARE(pendant.messages().constLast(), SaveFailed);
        QCOMPARE(pendant.variable(UpdateState), 0.0);
    }
    QCOMPARE(MsgBoxScript::shown().constLast().kind, int(MsgBox::Warning));

    // The answer comes with the last poll: it counts.
    QVERIFY(pendant.pressSave());
    for (int poll = 0; poll < 10; ++poll)
        QMetaObject::invokeMethod(pendant.page(), "getFileSaveStatus");
    pendant.controller().variables().set(UpdateState, 0x2000);
    PendantFixture::answer({MsgBox::Second});
    QTest::qWait(20); // until the pendant knows
    QMetaObject::invokeMethod(pendant.page(), "getFileSaveStatus");
    QCOMPARE(pendant.messages().constLast(), Texts::Restart);
    PendantFixture::answer({MsgBox::Confirmed, MsgBox::Confirmed});
    QVERIFY(pendant.pressSave());
    QCOMPARE(pendant.pollToTheEnd(), 11);
}

// With the page's own clock and the controller's latest answer.
void TestDeviceNetSlave::answeredLateInRealTime()
{
    DeviceNetPage pendant;
    QVERIFY(pendant.isReady());
    pendant.controller().faults().set(Faults::SlaveAnsweredLate);
    QElapsedTimer elapsed;
    elapsed.start();
    QVERIFY(pendant.save());
    PendantFixture::answer({MsgBox::Second});
    QTRY_COMPARE_WITH_TIMEOUT(pendant.messages().constLast(), Texts::Restart, 8000);
    QVERIFY2(elapsed.elapsed() > 5000, qPrintable(QString::number(elapsed.elapsed())));
}

// The variable carries other handshakes too: asking adds bits.
void TestDeviceNetSlave::otherBitsStay()
{
    DeviceNetPage pendant;
    QVERIFY(pendant.isReady());
    pendant.controller().variables().set(UpdateState, 0x4003);
    QTest::qWait(50);
    pendant.controller().faults().set(Faults::SlaveNeverAnswered);
    QVERIFY(pendant.save());
    QCOMPARE(pendant.writesOf(UpdateState), QVector<double>({Asked | 0x4003}));
}

void TestDeviceNetSlave::lightFollowsItsBit()
{
    DeviceNetPage pendant;
    QVERIFY(pendant.isReady());
    QTRY_VERIFY(pendant.isLinked());
    QVERIFY(pendant.controller().setLinkUp("DeviceNetSlave", false));
    QTRY_VERIFY(!pendant.isLinked());
    // Every bit but its own.
    pendant.controller().variables().set("ifidbus.commun_state", ~32);
    QTest::qWait(250);
    QVERIFY(!pendant.isLinked());
    pendant.controller().variables().set("ifidbus.commun_state", 32);
    QTRY_VERIFY(pendant.isLinked());
}

void TestDeviceNetSlave::userLevelDrops_data()
{
    QTest::addColumn<QString>("box");
    QTest::newRow("while a MAC ID is refused") << NotEven;
    QTest::newRow("while the failure is shown") << SaveFailed;
    QTest::newRow("while the handshake runs") << "";
}

// The application goes away under a slot that waits, or with its timer running.
void TestDeviceNetSlave::userLevelDrops()
{
    QFETCH(QString, box);
    DeviceNetPage pendant;
    QVERIFY(pendant.isReady());
    if (box == SaveFailed || box.isEmpty())
        pendant.controller().faults().set(Faults::SlaveNeverAnswered);
    MsgBoxScript::onShown([box](const MsgBox* shown) {
        if (shown->text() == box)
            PendantFixture::dropUserLevel();
    });
    if (box == NotEven)
        pendant.enter("le_macid", "7");
    else
        QVERIFY(pendant.save());
    if (box.isEmpty())
        PendantFixture::dropUserLevel();
    else if (box == SaveFailed)
        pendant.pollToTheEnd();
    QTRY_VERIFY(!pendant.isOpen());
    QTest::qWait(box.isEmpty() ? 700 : 0); // the timer would have polled
    QVERIFY(pendant.reopensAfterDrop());
    QVERIFY(pendant.openPage(Button));
    QVERIFY(pendant.saveButton()->isEnabled());
}

PENDANT_TEST_MAIN(TestDeviceNetSlave)
#include "tst_devicenetslave.moc"
