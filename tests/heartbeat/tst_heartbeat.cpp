#include "Finger.h"
#include "LibFixture.h"
#include "PageTest.h"
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

class TestHeartbeat : public PageTest
{
    Q_OBJECT

public:
    using PageTest::PageTest;

private slots:
    // A glove that meets the caption, or the cell beside the box.
    void allOfTheCellIsTheTarget()
    {
        QVERIFY(show());
        auto* box = find<QCheckBox>("modbusCheckBox");
        const auto labels = window().findChildren<QLabel*>();
        const auto caption = std::find_if(labels.begin(), labels.end(),
                                          [box](const QLabel* label) { return label->buddy() == box; });
        const bool before = box->isChecked();
        QVERIFY(caption != labels.end() && Finger::press(*caption));
        QCOMPARE(box->isChecked(), !before);
        QVERIFY(Finger::press(box, box->rect().center() + QPoint(box->width() / 2 - 2, 0)));
        QCOMPARE(box->isChecked(), before);
    }

    void showsTheFile_data()
    {
        const Rows<QByteArray, QByteArray, bool, QString> row;
        row("plain", "1", "2.500", true, "2.500");
        row("a word for on", "true", "0.1", true, "0.100");
        row("two is not on", "2", "12", false, "12.000");
        row("three decimals", "0", "1.23456", false, "1.235");
        row("not a number", "", "soon", false, "0.000");
        row("a comma ends the number", "Yes", "1,5", true, "1.000");
        row("infinite", "1", "inf", true, "0.000");
        row("nan", "1", "nan", true, "0.000");
        row("negative", "1", "-3.5", true, "-3.500");
        row("blanks around", "1", " 4.25 ", true, "4.250");
    }

    void showsTheFile()
    {
        const auto [nodSwitch, timeout, on, shown] = Rows<QByteArray, QByteArray, bool, QString>::current();
        QVERIFY(show(FilePath, fileWith("Eip", nodSwitch, timeout)));
        QCOMPARE(isChecked("ethernetCheckBox"), on);
        QCOMPARE(text("ethernetLineEdit"), shown);
        // What the file does not name is off.
        QVERIFY(!isChecked("modbusCheckBox"));
        QCOMPARE(messages(), QStringList());
    }

    void savesWhatIsEntered()
    {
        QVERIFY(show(FilePath, fileWith("Dnm", "1", "7")));
        QVERIFY(press("modbusCheckBox"));
        QVERIFY(enter("modbusLineEdit", "2.5"));
        QVERIFY(save("saveButton", {MsgBox::Confirmed, MsgBox::Confirmed}));

        QCOMPARE(messages(), QStringList({"Are you sure to save the data ?", "Save successfully."}));
        QCOMPARE(traffic().stores(), QStringList({FilePath}));
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
        QCOMPARE(undated(controllerFile(FilePath)), expected);

        // The controller takes the announced file over and clears the announcement.
        QVERIFY(!writesOf(Announced).isEmpty());
        QTRY_COMPARE(variable(Announced), 0.0);
        // Watched from now on, and no client is there.
        QTRY_VERIFY(find<QLabel>("mdbConnectStatLb")->styleSheet().contains("Red"));
    }

    void fileCutShortAtEveryByte()
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

    void lightsFollowTheRecord()
    {
        QVERIFY(put(FilePath, fileWith("Eip", "1", "1")));
        QVERIFY(controller().setLinkUp("EtherNetIPSlave", true));
        QVERIFY(controller().setLinkUp("ProfinetSlave", true));
        QVERIFY(show());
        const auto light = [this](const char* name) { return find<QLabel>(name)->styleSheet(); };
        QTRY_VERIFY(light("ethernConnectStatLb").contains("C0_Done_Green"));
        QVERIFY(controller().setLinkUp("EtherNetIPSlave", false));
        QTRY_VERIFY(light("ethernConnectStatLb").contains("C0_Done_Red"));
        // A switch that is not saved yet is not watched yet.
        QVERIFY(press("profinetCheckBox"));
        QTest::qWait(300);
        QVERIFY(light("pfnConnectStatLb").contains("C0_Done_Grey"));
    }

    void outlandishNumbers_data()
    {
        const Rows<QString, QByteArray> row;
        row("longer than the edit", "123456789.125", "123456789.125");
        row("a comma does not convert", "2,5", "0.000");
        row("negative", "-1.5", "-1.500");
        row("a word", "soon", "0.000");
        row("infinite", "inf", "0.000");
    }

    // Texts that the numeric keyboard would not let through, as a script of the host could set them.
    void outlandishNumbers()
    {
        const auto [typed, written] = Rows<QString, QByteArray>::current();
        QVERIFY(show());
        find<QTouchLineEdit>("dnsLineEdit")->setText(typed);
        QVERIFY(save("saveButton", {MsgBox::Confirmed, MsgBox::Confirmed}));
        QVERIFY2(controllerFile(FilePath).contains("<Dns_Timeout>" + written + "</Dns_Timeout>"),
                 controllerFile(FilePath).constData());
    }
};

PENDANT_TEST_MAIN(TestHeartbeat, Button)
#include "tst_heartbeat.moc"
