#include "DeviceRows.h"
#include "PageTest.h"
#include "Texts.h"

namespace {

const QString Override = QStringLiteral("/FA/override.cfg");
using Texts::Restart;
using Texts::Sure;
constexpr int PageId = 8;

} // namespace

class TestEtherCatMaster : public PageTest
{
    Q_OBJECT

public:
    using PageTest::PageTest;

private slots:
    void savesWithTheServoOn()
    {
        const QByteArray before = controllerFile(Override);
        QVERIFY(show());
        const DeviceRows rows(*this, "ecatTableWidget");
        QCOMPARE(rows.shown(),
                 QStringList({"1 2 3001 EIM_DEVICE x", "2 2 3002 PNM_DEVICE ", "3 2 3003 VALVE_ISLAND ",
                              "4 2 3004 WELD_SOURCE ", "5 2 3005 GLUE_CONTROL x", "6 2 3006  "}));
        QCOMPARE(rows.table()->size(), QSize(762, 342));
        traffic().clear();
        QVERIFY(rows.press(1));
        QVERIFY(press("btn_reset"));
        QVERIFY(!rows.box(1)->isChecked());
        QVERIFY(rows.press(5));
        QVERIFY(rows.press(4));
        // No function of a master acts before the save, nor does the servo matter.
        QCOMPARE(traffic().writeCount(), 0);
        controller().setServoOn(true);
        controller().setRobotRunning(true);
        QVERIFY(save("saveBt_Ecat", {MsgBox::Confirmed, MsgBox::Second}));
        QCOMPARE(messages(), QStringList({Sure, Restart}));
        QCOMPARE(traffic().stores(), QStringList(Override));
        QByteArray expected = before;
        expected.replace("\n;ECAT_SLAVE_OFF 2 3005", "\nECAT_SLAVE_OFF 2 3005");
        expected.replace("\nECAT_SLAVE_OFF 2 3006", "\n;ECAT_SLAVE_OFF 2 3006");
        QCOMPARE(controllerFile(Override), expected);
        QCOMPARE(traffic().restartRequests(), 0);

        answer({MsgBox::Confirmed, MsgBox::Confirmed});
        QVERIFY(press("saveBt_Ecat"));
        QTRY_VERIFY(!isOpen());
        QCOMPARE(traffic().restartRequests(), 1);
    }

    void restartIsAllowedNoMore()
    {
        QVERIFY(show());
        MsgBoxScript::onShown(
            [this](const MsgBox* box) { controller().setRestartAllowed(box->text() != Restart); });
        QVERIFY(save("saveBt_Ecat", {MsgBox::Confirmed, MsgBox::Confirmed}));
        QCOMPARE(messages(), QStringList({Sure, Restart}));
        QCOMPARE(traffic().restartRequests(), 0);
    }

    // The library's record outlives the page, and keeps what a longer file said.
    void shorterFileShowsItsDevicesOnly()
    {
        QVERIFY(show());
        QVERIFY(press("exitBtn"));
        QTRY_VERIFY(!isOpen());
        QVERIFY(show(Override, "ECAT_SLAVE_OFF 2 7;A\n;ECAT_SLAVE_OFF 2 8;EIM_DEVICE\n"));
        QCOMPARE(DeviceRows(*this, "ecatTableWidget").shown(),
                 QStringList({"1 2 7 A ", "2 2 8 EIM_DEVICE x"}));
    }
};

PENDANT_TEST_MAIN(TestEtherCatMaster, {}, PageId)
#include "tst_ethercatmaster.moc"
