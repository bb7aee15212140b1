#include "LibFixture.h"
#include "PendantFixture.h"
#include "QTouchLineEdit.h"

#include <QCheckBox>
#include <QLabel>

namespace {

const QString FilePath = QStringLiteral("/application/fidbus/heartbeat.xml");
const QString Button = QStringLiteral("heartbeatBtn");
const QString Announced = QStringLiteral("ifidbus.xml_heartbeat");

QByteArray fileWith(const QByteArray& bus, const QByteArray& nodSwitch, const QByteArray& timeout)
{
    return "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<Fidbus>\n\t<" + bus + ">\n\t\t<" + bus +
           "_Nod_Switch>" + nodSwitch + "</" + bus + "_Nod_Switch>\n\t\t<" + bus + "_Timeout>" + timeout +
           "</" + bus + "_Timeout>\n\t</" + bus + ">\n</Fidbus>\n";
}

// A file without its time of writing.
QByteArray undated(QByteArray content)
{
    const int at = content.indexOf("<!--");
    return at < 0 ? content : content.remove(at, content.indexOf("-->") + 3 - at);
}

} // namespace

class TestHeartbeat : public QObject
{
    Q_OBJECT

private slots:
    void showsTheFile_data();
    void showsTheFile();
    void savesWhatIsEntered();
    void confirmationResults_data();
    void confirmationResults();
    void fileCutShortAtEveryByte();
    void lightsFollowTheRecord();
    void outlandishNumbers_data();
    void outlandishNumbers();
};

void TestHeartbeat::showsTheFile_data()
{
    QTest::addColumn<QByteArray>("nodSwitch");
    QTest::addColumn<QByteArray>("timeout");
    QTest::addColumn<bool>("on");
    QTest::addColumn<QString>("shown");
    QTest::newRow("plain") << QByteArray("1") << QByteArray("2.500") << true << "2.500";
    QTest::newRow("a word for on") << QByteArray("true") << QByteArray("0.1") << true << "0.100";
    QTest::newRow("two is not on") << QByteArray("2") << QByteArray("12") << false << "12.000";
    QTest::newRow("three decimals") << QByteArray("0") << QByteArray("1.23456") << false << "1.235";
    QTest::newRow("not a number") << QByteArray("") << QByteArray("soon") << false << "0.000";
    QTest::newRow("a comma ends the number") << QByteArray("Yes") << QByteArray("1,5") << true << "1.000";
    QTest::newRow("infinite") << QByteArray("1") << QByteArray("inf") << true << "0.000";
    QTest::newRow("nan") << QByteArray("1") << QByteArray("nan") << true << "0.000";
    QTest::newRow("negative") << QByteArray("1") << QByteArray("-3.5") << true << "-3.500";
    QTest::newRow("blanks around") << QByteArray("1") << QByteArray(" 4.25 ") << true << "4.250";
}

void TestHeartbeat::showsTheFile()
{
    QFETCH(QByteArray, nodSwitch);
    QFETCH(QByteArray, timeout);
    PendantFixture pendant;
    QVERIFY(pendant.put(FilePath, fileWith("Eip", nodSwitch, timeout)));
    QVERIFY(pendant.open());
    QVERIFY(pendant.openPage(Button));
    QTEST(pendant.find<QCheckBox>("ethernetCheckBox")->isChecked(), "on");
    QTEST(pendant.find<QTouchLineEdit>("ethernetLineEdit")->text(), "shown");
    // What the file does not name is off.
    QVERIFY(!pendant.find<QCheckBox>("modbusCheckBox")->isChecked());
    QCOMPARE(pendant.messages(), QStringList());
}

void TestHeartbeat::savesWhatIsEntered()
{
    PendantFixture pendant;
    QVERIFY(pendant.put(FilePath, fileWith("Dnm", "1", "7")));
    QVERIFY(pendant.open());
    QVERIFY(pendant.openPage(Button));
    QVERIFY(pendant.press("modbusCheckBox"));
    QVERIFY(pendant.enter("modbusLineEdit", "2.5"));
    pendant.controller().traffic().clear();
    PendantFixture::answer({MsgBox::Confirmed, MsgBox::Confirmed});
    QVERIFY(pendant.press("saveButton"));
    QVERIFY(pendant.settle());

    QCOMPARE(pendant.messages(), QStringList({"Are you sure to save the data ?", "Save successfully."}));
    QCOMPARE(pendant.controller().traffic().stores(), QStringList({FilePath}));
    QByteArray expected = "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n\n<Fidbus>\n";
    for (const QByteArray bus :
         {"Mtcp", "Ethcat", "Pfnet", "Eip", "Ecm", "Dns", "Mbc", "Eim", "Pnm", "Dnm"}) {
        const bool on = bus == "Mtcp" || bus == "Dnm";
        const QByteArray timeout = bus == "Mtcp" ? "2.500" : bus == "Dnm" ? "7.000" : "0.000";
        expected += "\t<" + bus + ">\n\t\t<" + bus + "_Nod_Switch>" + (on ? "1" : "0") + "</" + bus +
                    "_Nod_Switch>\n\t\t<" + bus + "_Timeout>" + timeout + "</" + bus + "_Timeout>\n\t</" +
                    bus + ">\n";
    }
    expected += "</Fidbus>\n";
    QCOMPARE(undated(pendant.controllerFile(FilePath)), expected);

    // The controller takes the announced file over and clears the announcement.
    QVERIFY(!pendant.writesOf(Announced).isEmpty());
    QTRY_COMPARE(pendant.variable(Announced), 0.0);
    // Watched from now on, and no client is there.
    QTRY_VERIFY(pendant.find<QLabel>("mdbConnectStatLb")->styleSheet().contains("Red"));
}

void TestHeartbeat::confirmationResults_data()
{
    QTest::addColumn<int>("result");
    QTest::addColumn<bool>("editsKept");
    QTest::addColumn<bool>("saved");
    QTest::newRow("second button discards") << int(MsgBox::Second) << false << false;
    QTest::newRow("dismissed keeps") << int(MsgBox::Dismissed) << true << false;
    QTest::newRow("confirmed saves") << int(MsgBox::Confirmed) << true << true;
}

void TestHeartbeat::confirmationResults()
{
    QFETCH(int, result);
    QFETCH(bool, saved);
    PendantFixture pendant;
    QVERIFY(pendant.put(FilePath, fileWith("Mtcp", "0", "1")));
    QVERIFY(pendant.open());
    QVERIFY(pendant.openPage(Button));
    QVERIFY(pendant.press("modbusCheckBox"));
    pendant.controller().traffic().clear();
    PendantFixture::answer({result, MsgBox::Confirmed});
    QVERIFY(pendant.press("saveButton"));
    QVERIFY(pendant.settle());
    QTEST(pendant.find<QCheckBox>("modbusCheckBox")->isChecked(), "editsKept");
    QCOMPARE(pendant.controller().traffic().stores().size(), saved ? 1 : 0);
    QCOMPARE(!pendant.writesOf(Announced).isEmpty(), saved);
}

void TestHeartbeat::fileCutShortAtEveryByte()
{
    const LibFixture fixture;
    const QString path = LibFixture::local("heartbeat.xml");
    FieldbusSettingLib& lib = LibFixture::lib();
    lib.heartbeat.Ecm_Timeout = 3.25;
    QVERIFY(fixture.isReady() && lib.writeHeartbeatDetectionFile(path));
    // Nothing of it counts: the record is not left as it was, it is emptied.
    QCOMPARE(LibFixture::cutAtEveryByte(path,
                                        [&] {
                                            lib.heartbeat.Mtcp_Nod_Switch = true;
                                            const bool isRead = lib.readHeartbeatDetectionFile(path);
                                            return isRead || lib.heartbeat.Mtcp_Nod_Switch ||
                                                   lib.heartbeat.Ecm_Timeout != 0.0;
                                        }),
             -1);
}

void TestHeartbeat::lightsFollowTheRecord()
{
    PendantFixture pendant;
    QVERIFY(pendant.put(FilePath, fileWith("Eip", "1", "1")));
    QVERIFY(pendant.controller().setLinkUp("EtherNetIPSlave", true));
    QVERIFY(pendant.controller().setLinkUp("ProfinetSlave", true));
    QVERIFY(pendant.open());
    QVERIFY(pendant.openPage(Button));
    const auto light = [&pendant](const char* name) { return pendant.find<QLabel>(name)->styleSheet(); };
    QTRY_VERIFY(light("ethernConnectStatLb").contains("C0_Done_Green"));
    QVERIFY(pendant.controller().setLinkUp("EtherNetIPSlave", false));
    QTRY_VERIFY(light("ethernConnectStatLb").contains("C0_Done_Red"));
    // A switch that is not saved yet is not watched yet.
    QVERIFY(pendant.press("profinetCheckBox"));
    QTest::qWait(300);
    QVERIFY(light("pfnConnectStatLb").contains("C0_Done_Grey"));
}

void TestHeartbeat::outlandishNumbers_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QByteArray>("written");
    QTest::newRow("longer than the edit") << "123456789.125" << QByteArray("123456789.125");
    QTest::newRow("a comma does not convert") << "2,5" << QByteArray("0.000");
    QTest::newRow("negative") << "-1.5" << QByteArray("-1.500");
    QTest::newRow("a word") << "soon" << QByteArray("0.000");
    QTest::newRow("infinite") << "inf" << QByteArray("0.000");
}

// Texts that the numeric keyboard would not let through, as a script of the host could set them.
void TestHeartbeat::outlandishNumbers()
{
    QFETCH(QString, typed);
    QFETCH(QByteArray, written);
    PendantFixture pendant;
    QVERIFY(pendant.open());
    QVERIFY(pendant.openPage(Button));
    pendant.find<QTouchLineEdit>("dnsLineEdit")->setText(typed);
    MsgBoxScript::answerByDefault(MsgBox::Confirmed);
    QVERIFY(pendant.press("saveButton"));
    QVERIFY(pendant.settle());
    QVERIFY2(pendant.controllerFile(FilePath).contains("<Dns_Timeout>" + written + "</Dns_Timeout>"),
             pendant.controllerFile(FilePath).constData());
}

PENDANT_TEST_MAIN(TestHeartbeat)
#include "tst_heartbeat.moc"
