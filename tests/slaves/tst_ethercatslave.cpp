#include "DeviceRows.h"
#include "Faults.h"
#include "PageTest.h"
#include "Texts.h"

#include <QScrollBar>
#include <QStackedWidget>

namespace {

const QString Override = QStringLiteral("/FA/override.cfg");
const QString Module = QStringLiteral("/fa/fbslave.cfgx");
const QString Button = QStringLiteral("etherCatBtn");
using Texts::Restart;
using Texts::ServoFirst;
using Texts::Sure;

constexpr int EtherCatModule = 13;

const QString Enable = QStringLiteral("ifidbus.ethcat_enable");

QByteArray endianFile(const QByteArray& endian)
{
    return "<FbSlave>\n\t<Endian>" + endian + "</Endian>\n\t<Watchdog>100</Watchdog>\n</FbSlave>\n";
}

} // namespace

class TestEtherCatSlave : public PageTest
{
    Q_OBJECT

public:
    using PageTest::PageTest;

private slots:
    void faceFollowsTheModule_data()
    {
        const Rows<int, QString> row;
        row("no module", 0, "page_fbOther");
        row("one below", 12, "page_fbOther");
        row("EtherCAT", EtherCatModule, "page_fbECAT");
        row("one above", 14, "page_fbOther");
    }

    void faceFollowsTheModule()
    {
        const auto [module, face] = Rows<int, QString>::current();
        QVERIFY(showFitted(module));
        QCOMPARE(find<QStackedWidget>("stackedWidget")->currentWidget()->objectName(), face);
        const QStringList fetches = traffic().fetches();
        QCOMPARE(fetches.contains(Override), module != EtherCatModule);
        QCOMPARE(fetches.contains(Module), module == EtherCatModule);
        QVERIFY(find(module == EtherCatModule ? "btn_saveFbECAT" : "saveBt_Ecat")->isVisible());
        QCOMPARE(messages(), QStringList());
    }

    void tableShowsTheFile_data()
    {
        const Rows<QByteArray, QStringList> row;
        row("three functions, among lines of others",
            "A 1\nECAT_SLAVE_OFF 1 7 ;first\n;ECAT_SLAVE_OFF 2 8;EIM_DEVICE\n"
            ";ecat_slave_off 1 9;second\n;ECAT_SLAVE_OFF 1 4294967295\n",
            {"1 1 7 FIRST ", "2 1 9 SECOND x", "3 1 4294967295  x"});
        row("none", "ECAT_SLAVE_OFF 2 7;EIM_DEVICE\n", {});
        // A line without a slot keeps its row, and the last row is lost from sight.
        row("a line that is no directive",
            "ECAT_SLAVE_OFF x 1 ;odd\nECAT_SLAVE_OFF 1 7 ;first\nECAT_SLAVE_OFF 1 8 ;second\n",
            {"    -", "1 1 7 FIRST "});
    }

    void tableShowsTheFile()
    {
        const auto [file, shown] = Rows<QByteArray, QStringList>::current();
        QVERIFY(show(Override, file));
        const DeviceRows rows(*this, "ecatTableWidget");
        QCOMPARE(rows.shown(), shown);
        QCOMPARE(rows.table()->size(), QSize(762, 342));
        QCOMPARE(rows.table()->rowCount(), 20);
        QCOMPARE(rows.table()->verticalScrollBar()->width(), 30);
    }

    void savesTheTable()
    {
        const QByteArray before = controllerFile(Override);
        QVERIFY(show());
        const DeviceRows rows(*this, "ecatTableWidget");
        QVERIFY(rows.press(0));                                               // the box
        QVERIFY(pressCell("ecatTableWidget", 1, DeviceRows::ActivateColumn)); // beside it
        QVERIFY(rows.box(0)->isChecked() && !rows.box(1)->isChecked());
        QVERIFY(press("btn_reset"));
        QVERIFY(!rows.box(0)->isChecked() && rows.box(1)->isChecked());

        QVERIFY(rows.press(0));
        QVERIFY(save("saveBt_Ecat", {MsgBox::Confirmed, MsgBox::Second}));
        QCOMPARE(messages(), QStringList({Sure, Restart}));
        QCOMPARE(traffic().stores(), QStringList(Override));
        QByteArray expected = before;
        expected.replace("\nECAT_SLAVE_OFF 1 1001", "\n;ECAT_SLAVE_OFF 1 1001");
        QCOMPARE(controllerFile(Override), expected);
        QCOMPARE(traffic().restartRequests(), 0);
        QVERIFY(writesOf(Enable).isEmpty());

        // What was saved is what a reset goes back to; and a yes restarts.
        QVERIFY(press("btn_reset"));
        QVERIFY(rows.box(0)->isChecked());
        answer({MsgBox::Confirmed, MsgBox::Confirmed});
        QVERIFY(press("saveBt_Ecat"));
        QTRY_VERIFY(!isOpen());
        QCOMPARE(traffic().restartRequests(), 1);
    }

    void fifthFunctionActsAtOnce()
    {
        QVERIFY(show());
        const DeviceRows rows(*this, "ecatTableWidget");
        QVERIFY(rows.box(4)->isChecked());
        traffic().clear();
        for (const int row : {0, 1, 2, 3, 5})
            QVERIFY(rows.press(row));
        QVERIFY(writesOf(Enable).isEmpty());
        QVERIFY(rows.press(4));
        QVERIFY(pressCell("ecatTableWidget", 4, DeviceRows::ActivateColumn));
        QCOMPARE(writesOf(Enable), QVector<double>({0.0, 1.0}));
        QVERIFY(rows.press(4));

        // A reset shows the record and takes nothing back; nor does a save that is refused.
        QVERIFY(press("btn_reset"));
        controller().setServoOn(true);
        QVERIFY(save("saveBt_Ecat", {MsgBox::Confirmed}));
        QCOMPARE(messages(), QStringList(ServoFirst));
        QCOMPARE(variable(Enable), 0.0);
    }

    // A page that cannot learn the module's byte order says nothing.
    void moduleFileIsNotFetched()
    {
        set("ifidbus.anybus_fm", EtherCatModule);
        QVERIFY(openPastStartPage());
        controller().faults().set(Faults::FetchFails);
        QVERIFY(showAgain());
        QCOMPARE(chosen("cbb_Endian"), 1);
        QCOMPARE(messages(), QStringList());
    }

    void byteOrderIsShown_data()
    {
        const Rows<QByteArray, int> row;
        row("little", "littleEndian", 0);
        row("little in another case, blanks around", " LITTLEENDIAN ", 0);
        row("big", "bigEndian", 1);
        row("nonsense", "middleEndian", 1);
    }

    void byteOrderIsShown()
    {
        const auto [endian, item] = Rows<QByteArray, int>::current();
        QVERIFY(put(Module, endianFile(endian)) && showFitted(EtherCatModule));
        QCOMPARE(chosen("cbb_Endian"), item);
    }

    void byteOrderIsSaved_data()
    {
        const Rows<int, int, QByteArray, int> row;
        row("big", 1, MsgBox::Confirmed, "bigEndian", 1);
        row("little", 0, MsgBox::Confirmed, "littleEndian", 0);
        row("taken back", 1, MsgBox::Second, "littleEndian", 0);
        row("closed", 1, MsgBox::Dismissed, "littleEndian", 1);
    }

    void byteOrderIsSaved()
    {
        const auto [entry, result, saved, shown] = Rows<int, int, QByteArray, int>::current();
        QVERIFY(put(Module, endianFile("littleEndian")) && showFitted(EtherCatModule));
        choose("cbb_Endian", entry);
        answer({result});
        QVERIFY(result == MsgBox::Confirmed ? save("btn_saveFbECAT", {MsgBox::Second})
                                            : save("btn_saveFbECAT", {}));
        QCOMPARE(chosen("cbb_Endian"), shown);
        const QByteArray written = controllerFile(Module);
        QVERIFY2(written.contains("<Endian>" + saved + "</Endian>") && written.contains("<Watchdog>100<"),
                 written);

        // What was saved is what the second button goes back to.
        choose("cbb_Endian", 1 - entry);
        QVERIFY(save("btn_saveFbECAT", {MsgBox::Second}));
        QCOMPARE(chosen("cbb_Endian"), saved == "littleEndian" ? 0 : 1);
    }

    void tableScrollsByFinger()
    {
        QByteArray file;
        for (int number = 1; number <= 25; ++number)
            file += "ECAT_SLAVE_OFF 1 " + QByteArray::number(number) + " ;DEVICE\n";
        QVERIFY(show(Override, file));
        const DeviceRows rows(*this, "ecatTableWidget");
        QCOMPARE(rows.shown().size(), 20);
        QVERIFY(!Finger::press(rows.box(19)));
        QScrollBar* bar = rows.table()->verticalScrollBar();
        QTest::mousePress(bar, Qt::LeftButton, Qt::NoModifier, QPoint(15, 20));
        QMouseEvent drawn(QEvent::MouseMove, QPoint(15, bar->height()), Qt::LeftButton, Qt::LeftButton,
                          Qt::NoModifier);
        QCoreApplication::sendEvent(bar, &drawn);
        QTest::mouseRelease(bar, Qt::LeftButton, Qt::NoModifier, QPoint(15, bar->height()));
        QVERIFY(Finger::press(rows.box(19)));
        QVERIFY(rows.box(19)->isChecked());
    }

private:
    bool showFitted(int module)
    {
        set("ifidbus.anybus_fm", module);
        return show();
    }
};

PENDANT_TEST_MAIN(TestEtherCatSlave, Button)
#include "tst_ethercatslave.moc"
