#include "DeviceRows.h"
#include "Faults.h"
#include "Texts.h"

#include <QComboBox>
#include <QLabel>
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

void fit(PendantFixture& pendant, int module)
{
    pendant.controller().variables().set(QStringLiteral("ifidbus.anybus_fm"), module);
}

bool openPage(PendantFixture& pendant, int module = 0)
{
    fit(pendant, module);
    return pendant.openPastStartPage() && pendant.openPage(Button);
}

const QString Enable = QStringLiteral("ifidbus.ethcat_enable");

QByteArray endianFile(const QByteArray& endian)
{
    return "<FbSlave>\n\t<Endian>" + endian + "</Endian>\n\t<Watchdog>100</Watchdog>\n</FbSlave>\n";
}

} // namespace

class TestEtherCatSlave : public QObject
{
    Q_OBJECT

private slots:
    void faceFollowsTheModule_data();
    void faceFollowsTheModule();
    void tableShowsTheFile_data();
    void tableShowsTheFile();
    void savesTheTable();
    void fifthFunctionActsAtOnce();
    void saveIsRefused_data();
    void saveIsRefused();
    void moduleFileIsNotFetched();
    void byteOrderIsShown_data();
    void byteOrderIsShown();
    void byteOrderIsSaved_data();
    void byteOrderIsSaved();
    void tableScrollsByFinger();
};

void TestEtherCatSlave::faceFollowsTheModule_data()
{
    QTest::addColumn<int>("module");
    QTest::addColumn<QString>("face");
    QTest::newRow("no module") << 0 << "page_fbOther";
    QTest::newRow("one below") << 12 << "page_fbOther";
    QTest::newRow("EtherCAT") << EtherCatModule << "page_fbECAT";
    QTest::newRow("one above") << 14 << "page_fbOther";
}

void TestEtherCatSlave::faceFollowsTheModule()
{
    QFETCH(int, module);
    QFETCH(QString, face);
    PendantFixture pendant;
    QVERIFY(openPage(pendant, module));
    QTEST(pendant.find<QStackedWidget>("stackedWidget")->currentWidget()->objectName(), "face");
    const QStringList fetches = pendant.controller().traffic().fetches();
    QCOMPARE(fetches.contains(Override), module != EtherCatModule);
    QCOMPARE(fetches.contains(Module), module == EtherCatModule);
    QVERIFY(pendant.find(module == EtherCatModule ? "btn_saveFbECAT" : "saveBt_Ecat")->isVisible());
    QCOMPARE(pendant.messages(), QStringList());
}

void TestEtherCatSlave::tableShowsTheFile_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QStringList>("rows");
    QTest::newRow("three functions, among lines of others")
        << QByteArray("A 1\nECAT_SLAVE_OFF 1 7 ;first\n;ECAT_SLAVE_OFF 2 8;EIM_DEVICE\n"
                      ";ecat_slave_off 1 9;second\n;ECAT_SLAVE_OFF 1 4294967295\n")
        << QStringList({"1 1 7 FIRST ", "2 1 9 SECOND x", "3 1 4294967295  x"});
    QTest::newRow("none") << QByteArray("ECAT_SLAVE_OFF 2 7;EIM_DEVICE\n") << QStringList();
    // A line without a slot keeps its row, and the last row is lost from sight.
    QTest::newRow("a line that is no directive")
        << QByteArray("ECAT_SLAVE_OFF x 1 ;odd\nECAT_SLAVE_OFF 1 7 ;first\nECAT_SLAVE_OFF 1 8 ;second\n")
        << QStringList({"    -", "1 1 7 FIRST "});
}

void TestEtherCatSlave::tableShowsTheFile()
{
    QFETCH(QByteArray, file);
    PendantFixture pendant;
    QVERIFY(pendant.put(Override, file));
    QVERIFY(openPage(pendant));
    const DeviceRows rows(pendant, "ecatTableWidget");
    QTEST(rows.shown(), "rows");
    QCOMPARE(rows.table()->size(), QSize(762, 342));
    QCOMPARE(rows.table()->rowCount(), 20);
    QCOMPARE(rows.table()->verticalScrollBar()->width(), 30);
}

void TestEtherCatSlave::savesTheTable()
{
    PendantFixture pendant;
    const QByteArray before = pendant.controllerFile(Override);
    QVERIFY(openPage(pendant));
    const DeviceRows rows(pendant, "ecatTableWidget");
    QVERIFY(rows.press(0));                                                       // the box
    QVERIFY(pendant.pressCell("ecatTableWidget", 1, DeviceRows::ActivateColumn)); // beside it
    QVERIFY(rows.box(0)->isChecked() && !rows.box(1)->isChecked());
    QVERIFY(pendant.press("btn_reset"));
    QVERIFY(!rows.box(0)->isChecked() && rows.box(1)->isChecked());

    QVERIFY(rows.press(0));
    pendant.controller().traffic().clear();
    PendantFixture::answer({MsgBox::Confirmed, MsgBox::Second});
    QVERIFY(pendant.press("saveBt_Ecat"));
    QVERIFY(pendant.settle());
    QCOMPARE(pendant.messages(), QStringList({Sure, Restart}));
    QCOMPARE(pendant.controller().traffic().stores(), QStringList(Override));
    QByteArray expected = before;
    expected.replace("\nECAT_SLAVE_OFF 1 1001", "\n;ECAT_SLAVE_OFF 1 1001");
    QCOMPARE(pendant.controllerFile(Override), expected);
    QCOMPARE(pendant.controller().traffic().restartRequests(), 0);
    QVERIFY(pendant.writesOf(Enable).isEmpty());

    // What was saved is what a reset goes back to; and a yes restarts.
    QVERIFY(pendant.press("btn_reset"));
    QVERIFY(rows.box(0)->isChecked());
    PendantFixture::answer({MsgBox::Confirmed, MsgBox::Confirmed});
    QVERIFY(pendant.press("saveBt_Ecat"));
    QTRY_VERIFY(!pendant.isOpen());
    QCOMPARE(pendant.controller().traffic().restartRequests(), 1);
}

void TestEtherCatSlave::fifthFunctionActsAtOnce()
{
    PendantFixture pendant;
    QVERIFY(openPage(pendant));
    const DeviceRows rows(pendant, "ecatTableWidget");
    QVERIFY(rows.box(4)->isChecked());
    pendant.controller().traffic().clear();
    for (const int row : {0, 1, 2, 3, 5})
        QVERIFY(rows.press(row));
    QVERIFY(pendant.writesOf(Enable).isEmpty());
    QVERIFY(rows.press(4));
    QVERIFY(pendant.pressCell("ecatTableWidget", 4, DeviceRows::ActivateColumn));
    QCOMPARE(pendant.writesOf(Enable), QVector<double>({0.0, 1.0}));
    QVERIFY(rows.press(4));

    // A reset shows the record and takes nothing back; nor does a save that is refused.
    QVERIFY(pendant.press("btn_reset"));
    pendant.controller().setServoOn(true);
    PendantFixture::answer({MsgBox::Confirmed});
    QVERIFY(pendant.press("saveBt_Ecat"));
    QVERIFY(pendant.settle());
    QCOMPARE(pendant.messages(), QStringList(ServoFirst));
    QCOMPARE(pendant.variable(Enable), 0.0);
}

void TestEtherCatSlave::saveIsRefused_data()
{
    QTest::addColumn<int>("module");
    QTest::addColumn<QString>("cause");
    QTest::addColumn<QStringList>("messages");
    for (const int module : {0, EtherCatModule}) {
        const char* face = module == 0 ? "table" : "module";
        QTest::addRow("%s: servo on", face) << module << "servo" << QStringList(ServoFirst);
        QTest::addRow("%s: robot runs", face) << module << "runs" << QStringList(ServoFirst);
        QTest::addRow("%s: not confirmed", face) << module << "dismissed" << QStringList(Sure);
        // The save goes through; only the restart does not come.
        QTest::addRow("%s: no restart allowed", face)
            << module << "no restart" << QStringList({Sure, Restart});
    }
}

void TestEtherCatSlave::saveIsRefused()
{
    QFETCH(int, module);
    QFETCH(QString, cause);
    PendantFixture pendant;
    QVERIFY(openPage(pendant, module));
    pendant.controller().setServoOn(cause == QLatin1String("servo"));
    pendant.controller().setRobotRunning(cause == QLatin1String("runs"));
    pendant.controller().setRestartAllowed(cause != QLatin1String("no restart"));
    pendant.controller().traffic().clear();
    MsgBoxScript::answerByDefault(cause == QLatin1String("dismissed") ? MsgBox::Dismissed
                                                                      : MsgBox::Confirmed);
    QVERIFY(pendant.press(module == 0 ? "saveBt_Ecat" : "btn_saveFbECAT"));
    QVERIFY(pendant.settle());
    QTEST(pendant.messages(), "messages");
    if (cause != QLatin1String("dismissed"))
        QCOMPARE(MsgBoxScript::shown().constFirst().kind,
                 int(cause == QLatin1String("no restart") ? MsgBox::Information : MsgBox::Warning));
    QCOMPARE(pendant.controller().traffic().stores().size(), cause == QLatin1String("no restart") ? 1 : 0);
    QCOMPARE(pendant.controller().traffic().restartRequests(), 0);
}

// A page that cannot learn the module's byte order says nothing.
void TestEtherCatSlave::moduleFileIsNotFetched()
{
    PendantFixture pendant;
    fit(pendant, EtherCatModule);
    QVERIFY(pendant.openPastStartPage());
    pendant.controller().faults().set(Faults::FetchFails);
    QVERIFY(pendant.openPage(Button));
    QCOMPARE(pendant.find<QComboBox>("cbb_Endian")->currentIndex(), 1);
    QCOMPARE(pendant.messages(), QStringList());
}

void TestEtherCatSlave::byteOrderIsShown_data()
{
    QTest::addColumn<QByteArray>("endian");
    QTest::addColumn<int>("item");
    QTest::newRow("little") << QByteArray("littleEndian") << 0;
    QTest::newRow("little in another case, blanks around") << QByteArray(" LITTLEENDIAN ") << 0;
    QTest::newRow("big") << QByteArray("bigEndian") << 1;
    QTest::newRow("nonsense") << QByteArray("middleEndian") << 1;
}

void TestEtherCatSlave::byteOrderIsShown()
{
    QFETCH(QByteArray, endian);
    PendantFixture pendant;
    QVERIFY(pendant.put(Module, endianFile(endian)));
    QVERIFY(openPage(pendant, EtherCatModule));
    QTEST(pendant.find<QComboBox>("cbb_Endian")->currentIndex(), "item");
}

void TestEtherCatSlave::byteOrderIsSaved_data()
{
    QTest::addColumn<int>("chosen");
    QTest::addColumn<int>("answer");
    QTest::addColumn<QByteArray>("saved");
    QTest::addColumn<int>("shown");
    QTest::newRow("big") << 1 << int(MsgBox::Confirmed) << QByteArray("bigEndian") << 1;
    QTest::newRow("little") << 0 << int(MsgBox::Confirmed) << QByteArray("littleEndian") << 0;
    QTest::newRow("taken back") << 1 << int(MsgBox::Second) << QByteArray("littleEndian") << 0;
    QTest::newRow("closed") << 1 << int(MsgBox::Dismissed) << QByteArray("littleEndian") << 1;
}

void TestEtherCatSlave::byteOrderIsSaved()
{
    QFETCH(int, chosen);
    QFETCH(int, answer);
    QFETCH(QByteArray, saved);
    PendantFixture pendant;
    QVERIFY(pendant.put(Module, endianFile("littleEndian")));
    QVERIFY(openPage(pendant, EtherCatModule));
    auto* combo = pendant.find<QComboBox>("cbb_Endian");
    combo->setCurrentIndex(chosen);
    PendantFixture::answer({answer});
    if (answer == MsgBox::Confirmed)
        PendantFixture::answer({MsgBox::Second});
    QVERIFY(pendant.press("btn_saveFbECAT"));
    QVERIFY(pendant.settle());
    QTEST(combo->currentIndex(), "shown");
    const QByteArray written = pendant.controllerFile(Module);
    QVERIFY2(written.contains("<Endian>" + saved + "</Endian>") && written.contains("<Watchdog>100<"),
             written);

    // What was saved is what the second button goes back to.
    combo->setCurrentIndex(1 - chosen);
    PendantFixture::answer({MsgBox::Second});
    QVERIFY(pendant.press("btn_saveFbECAT"));
    QVERIFY(pendant.settle());
    QCOMPARE(combo->currentIndex(), saved == "littleEndian" ? 0 : 1);
}

void TestEtherCatSlave::tableScrollsByFinger()
{
    PendantFixture pendant;
    QByteArray file;
    for (int number = 1; number <= 25; ++number)
        file += "ECAT_SLAVE_OFF 1 " + QByteArray::number(number) + " ;DEVICE\n";
    QVERIFY(pendant.put(Override, file));
    QVERIFY(openPage(pendant));
    const DeviceRows rows(pendant, "ecatTableWidget");
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

PENDANT_TEST_MAIN(TestEtherCatSlave)
#include "tst_ethercatslave.moc"
