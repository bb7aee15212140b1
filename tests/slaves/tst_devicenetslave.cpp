#include "Faults.h"
#include "Finger.h"
#include "PageTest.h"
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

} // namespace

class TestDeviceNetSlave : public PageTest
{
    Q_OBJECT

public:
    using PageTest::PageTest;

private slots:
    void showsTheFile_data()
    {
        const Rows<QByteArray, QString, QString> row;
        row("white space in the rate", fileWith("62", " 2 5\t0\n"), "250", "62");
        row("no such rate", fileWith("8", "1000"), "125", "8");
        row("an odd MAC ID stands", fileWith("7", "500"), "500", "7");
        row("no MAC ID", "<devicenet><Dns><Dns_BAUDRATE>500</Dns_BAUDRATE></Dns></devicenet>", "500", "");
    }

    void showsTheFile()
    {
        const auto [file, baudRate, macId] = Rows<QByteArray, QString, QString>::current();
        QVERIFY(showDeviceNet(file));
        QCOMPARE(text("cbb_baud"), baudRate);
        QCOMPARE(text("le_macid"), macId);
        QCOMPARE(messages(), QStringList());
    }

    void onlyEvenMacIds()
    {
        QVERIFY(showDeviceNet(fileWith("7", "125")));
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
                answer({MsgBox::Confirmed});
            QVERIFY(enter("le_macid", entry.typed));
            QVERIFY(settle());
            QCOMPARE(text("le_macid"), QString(entry.shown));
            refusals += entry.isOdd;
            QCOMPARE(messages().size(), refusals);
        }
        QCOMPARE(MsgBoxScript::shown().constFirst().text, NotEven);
        QCOMPARE(MsgBoxScript::shown().constFirst().kind, int(MsgBox::Warning));
    }

    void savesWhatIsEntered()
    {
        QVERIFY(showDeviceNet());
        QVERIFY(enter("le_macid", "44"));
        auto* rates = find<QComboBox>("cbb_baud");
        QTest::keyClick(rates, Qt::Key_Down);
        traffic().clear();
        QVERIFY(pressSave({MsgBox::Confirmed}));
        QVERIFY(controllerFile(FilePath).contains(fileWith("44", "500")));
        QCOMPARE(writesOf(UpdateState), QVector<double>({Asked}));
        QVERIFY(!pressSave()); // one handshake at a time
        QVERIFY(handshake()->isActive());
        QCOMPARE(handshake()->interval(), 500);
        answer({MsgBox::Second});
        QTRY_COMPARE(messages().constLast(), Texts::Restart);
        QCOMPARE(writesOf(UpdateState), QVector<double>({Asked, 0}));
        QCOMPARE(traffic().restartRequests(), 0);
        QVERIFY(settle());
        QCOMPARE(variable(UpdateState), 0.0);

        QVERIFY(pressSave({MsgBox::Confirmed, MsgBox::Confirmed}));
        QTRY_COMPARE(traffic().restartRequests(), 1);
        QTRY_VERIFY(!isOpen()); // the pendant restarts as well
        QCOMPARE(messages(), QStringList({Texts::Sure, Texts::Restart, Texts::Sure, Texts::Restart}));
    }

    // Twelve polls are waited through at the first save and ten at each later one; the poll after that gives
    // up. A handshake that succeeds leaves nothing to the next one's count.
    void handshakeIsGivenUp()
    {
        QVERIFY(showDeviceNet());
        controller().faults().set(Faults::SlaveNeverAnswered);
        MsgBoxScript::answerByDefault(MsgBox::Confirmed);
        int boxes = 0;
        for (const int polls : {13, 11, 11}) {
            QVERIFY(pressSave());
            QCOMPARE(variable(UpdateState), double(Asked));
            QCOMPARE(pollToTheEnd(), polls);
            QVERIFY(settle());
            boxes += 2;
            QCOMPARE(messages().size(), boxes);
            QCOMPARE(messages().constLast(), SaveFailed);
            QCOMPARE(variable(UpdateState), 0.0);
        }
        QCOMPARE(MsgBoxScript::shown().constLast().kind, int(MsgBox::Warning));

        // The answer comes with the last poll: it counts.
        QVERIFY(pressSave());
        for (int poll = 0; poll < 10; ++poll)
            QMetaObject::invokeMethod(page(), "getFileSaveStatus");
        set(UpdateState, 0x2000);
        answer({MsgBox::Second});
        QTest::qWait(20); // until the pendant knows
        QMetaObject::invokeMethod(page(), "getFileSaveStatus");
        QCOMPARE(messages().constLast(), Texts::Restart);
        QVERIFY(pressSave({MsgBox::Confirmed, MsgBox::Confirmed}));
        QCOMPARE(pollToTheEnd(), 11);
    }

    // With the page's own clock and the controller's latest answer.
    void answeredLateInRealTime()
    {
        QVERIFY(showDeviceNet());
        controller().faults().set(Faults::SlaveAnsweredLate);
        QElapsedTimer elapsed;
        elapsed.start();
        QVERIFY(pressSave({MsgBox::Confirmed}));
        answer({MsgBox::Second});
        QTRY_COMPARE_WITH_TIMEOUT(messages().constLast(), Texts::Restart, 8000);
        QVERIFY2(elapsed.elapsed() > 5000, qPrintable(QString::number(elapsed.elapsed())));
    }

    // The variable carries other handshakes too: asking adds bits.
    void otherBitsStay()
    {
        QVERIFY(showDeviceNet());
        set(UpdateState, 0x4003);
        QTest::qWait(50);
        controller().faults().set(Faults::SlaveNeverAnswered);
        QVERIFY(pressSave({MsgBox::Confirmed}));
        QCOMPARE(writesOf(UpdateState), QVector<double>({Asked | 0x4003}));
    }

    void userLevelDrops_data()
    {
        const Rows<QString> row;
        row("while a MAC ID is refused", NotEven);
        row("while the failure is shown", SaveFailed);
        row("while the handshake runs", "");
    }

    // The application goes away under a slot that waits, or with its timer running.
    void userLevelDrops()
    {
        const auto [box] = Rows<QString>::current();
        QVERIFY(showDeviceNet());
        if (box == SaveFailed || box.isEmpty())
            controller().faults().set(Faults::SlaveNeverAnswered);
        MsgBoxScript::onShown([box = box](const MsgBox* shown) {
            if (shown->text() == box)
                dropUserLevel();
        });
        if (box == NotEven)
            enter("le_macid", "7");
        else
            QVERIFY(pressSave({MsgBox::Confirmed}));
        if (box.isEmpty())
            dropUserLevel();
        else if (box == SaveFailed)
            pollToTheEnd();
        QTRY_VERIFY(!isOpen());
        QTest::qWait(box.isEmpty() ? 700 : 0); // the timer would have polled
        QVERIFY(reopensAfterDrop());
        QVERIFY(showAgain());
        QVERIFY(saveButton()->isEnabled());
    }

private:
    bool showDeviceNet(const QByteArray& file = fileWith("12", "250"))
    {
        return controller().setRoleOn("DeviceNetSlave", true) && show(FilePath, file);
    }
    QWidget* page() const { return find("DeviceNetSlaverSetting"); }
    QWidget* saveButton() const { return findOn("DeviceNetSlaverSetting", "btn_save"); }
    QTimer* handshake() const { return page()->findChild<QTimer*>(); }
    bool pressSave(std::initializer_list<int> answers = {})
    {
        answer(answers);
        return Finger::press(saveButton());
    }
    /// Lets the handshake poll, without its half seconds, until it ends; gives the number of polls.
    int pollToTheEnd()
    {
        int polls = 0;
        for (; page() && handshake()->isActive() && polls < 100; ++polls)
            QMetaObject::invokeMethod(page(), "getFileSaveStatus");
        return polls;
    }
};

PENDANT_TEST_MAIN(TestDeviceNetSlave, Button)
#include "tst_devicenetslave.moc"
