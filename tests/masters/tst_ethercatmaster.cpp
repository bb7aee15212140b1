#include "DeviceRows.h"
#include "Texts.h"

namespace {

const QString Override = QStringLiteral("/FA/override.cfg");
using Texts::Restart;
using Texts::Sure;
constexpr int PageId = 8;

bool openPage(PendantFixture& pendant)
{
    return pendant.open() && pendant.selectPage(PageId);
}

} // namespace

class TestEtherCatMaster : public QObject
{
    Q_OBJECT

private slots:
    void savesWithTheServoOn();
    void savesNothing_data();
    void savesNothing();
    void restartIsAllowedNoMore();
    void shorterFileShowsItsDevicesOnly();
};

void TestEtherCatMaster::savesWithTheServoOn()
{
    PendantFixture pendant;
    const QByteArray before = pendant.controllerFile(Override);
    QVERIFY(openPage(pendant));
    const DeviceRows rows(pendant, "ecatTableWidget");
    QCOMPARE(rows.shown(),
             QStringList({"1 2 3001 EIM_DEVICE x", "2 2 3002 PNM_DEVICE ", "3 2 3003 VALVE_ISLAND ",
                          "4 2 3004 WELD_SOURCE ", "5 2 3005 GLUE_CONTROL x", "6 2 3006  "}));
    QCOMPARE(rows.table()->size(), QSize(762, 342));
    pendant.controller().traffic().clear();
    QVERIFY(rows.press(1));
    QVERIFY(pendant.press("btn_reset"));
    QVERIFY(!rows.box(1)->isChecked());
    QVERIFY(rows.press(5));
    QVERIFY(rows.press(4));
    // No function of a master acts before the save, nor does the servo matter.
    QCOMPARE(pendant.controller().traffic().writeCount(), 0);
    pendant.controller().setServoOn(true);
    pendant.controller().setRobotRunning(true);
    PendantFixture::answer({MsgBox::Confirmed, MsgBox::Second});
    QVERIFY(pendant.press("saveBt_Ecat"));
    QVERIFY(pendant.settle());
    QCOMPARE(pendant.messages(), QStringList({Sure, Restart}));
    QCOMPARE(pendant.controller().traffic().stores(), QStringList(Override));
    QByteArray expected = before;
    expected.replace("\n;ECAT_SLAVE_OFF 2 3005", "\nECAT_SLAVE_OFF 2 3005");
    expected.replace("\nECAT_SLAVE_OFF 2 3006", "\n;ECAT_SLAVE_OFF 2 3006");
    QCOMPARE(pendant.controllerFile(Override), expected);
    QCOMPARE(pendant.controller().traffic().restartRequests(), 0);

    PendantFixture::answer({MsgBox::Confirmed, MsgBox::Confirmed});
    QVERIFY(pendant.press("saveBt_Ecat"));
    QTRY_VERIFY(!pendant.isOpen());
    QCOMPARE(pendant.controller().traffic().restartRequests(), 1);
}

void TestEtherCatMaster::savesNothing_data()
{
    QTest::addColumn<bool>("restartAllowed");
    QTest::addColumn<QStringList>("messages");
    QTest::newRow("no restart allowed: silence") << false << QStringList();
    QTest::newRow("not confirmed") << true << QStringList(Sure);
}

void TestEtherCatMaster::restartIsAllowedNoMore()
{
    PendantFixture pendant;
    QVERIFY(openPage(pendant));
    MsgBoxScript::answerByDefault(MsgBox::Confirmed);
    MsgBoxScript::onShown([&pendant](const MsgBox* shown) {
        if (shown->text() == Restart)
            pendant.controller().setRestartAllowed(false);
    });
    QVERIFY(pendant.press("saveBt_Ecat"));
    QVERIFY(pendant.settle());
    QCOMPARE(pendant.messages(), QStringList({Sure, Restart}));
    QCOMPARE(pendant.controller().traffic().restartRequests(), 0);
}

// The library's record outlives the page, and keeps what a longer file said.
void TestEtherCatMaster::shorterFileShowsItsDevicesOnly()
{
    PendantFixture pendant;
    QVERIFY(openPage(pendant));
    QVERIFY(pendant.press("exitBtn"));
    QTRY_VERIFY(!pendant.isOpen());
    QVERIFY(pendant.put(Override, "ECAT_SLAVE_OFF 2 7;A\n;ECAT_SLAVE_OFF 2 8;EIM_DEVICE\n"));
    QVERIFY(openPage(pendant));
    QCOMPARE(DeviceRows(pendant, "ecatTableWidget").shown(), QStringList({"1 2 7 A ", "2 2 8 EIM_DEVICE x"}));
}

void TestEtherCatMaster::savesNothing()
{
    QFETCH(bool, restartAllowed);
    PendantFixture pendant;
    QVERIFY(openPage(pendant));
    pendant.controller().setRestartAllowed(restartAllowed);
    pendant.controller().traffic().clear();
    MsgBoxScript::answerByDefault(MsgBox::Second);
    QVERIFY(pendant.press("saveBt_Ecat"));
    QVERIFY(pendant.settle());
    QTEST(pendant.messages(), "messages");
    QCOMPARE(pendant.controller().traffic().count(Traffic::Fetch), 0);
    QCOMPARE(pendant.controller().traffic().count(Traffic::Store), 0);
}

PENDANT_TEST_MAIN(TestEtherCatMaster)
#include "tst_ethercatmaster.moc"
