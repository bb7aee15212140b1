#include "Faults.h"
#include "FieldbusSettingLib.h"
#include "PaintCounter.h"
#include "PendantFixture.h"
#include "QTouchLineEdit.h"
#include "UserSession.h"

#include <QCheckBox>
#include <QLabel>

#if defined(__SANITIZE_ADDRESS__)
// Of the sanitizer's runtime; gcc ships no header for it.
extern "C" int __sanitizer_install_malloc_and_free_hooks(void (*malloced)(const volatile void*, std::size_t),
                                                         void (*freed)(const volatile void*));
#endif

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

bool isAnnounced(PendantFixture& pendant)
{
    const auto& writes = pendant.controller().traffic().writes();
    return std::any_of(writes.begin(), writes.end(),
                       [](const Traffic::Write& write) { return write.name == Announced; });
}

long long allocations = 0;
#if defined(__SANITIZE_ADDRESS__)
void countAllocation(const volatile void* /*pointer*/, std::size_t /*size*/)
{
    ++allocations;
}
void ignoreFree(const volatile void* /*pointer*/) {}
#endif

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
    void transferFaults_data();
    void transferFaults();
    void fileCutShortAtEveryByte();
    void lightsFollowTheRecord();
    void tickWithoutChangeCostsNothing();
    void userLevelDrops_data();
    void userLevelDrops();
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
    QVERIFY(pendant.controller().files().write(FilePath, fileWith("Eip", nodSwitch, timeout)));
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
    QVERIFY(pendant.controller().files().write(FilePath, fileWith("Dnm", "1", "7")));
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
    QVERIFY(isAnnounced(pendant));
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
    QVERIFY(pendant.controller().files().write(FilePath, fileWith("Mtcp", "0", "1")));
    QVERIFY(pendant.open());
    QVERIFY(pendant.openPage(Button));
    QVERIFY(pendant.press("modbusCheckBox"));
    pendant.controller().traffic().clear();
    PendantFixture::answer({result, MsgBox::Confirmed});
    QVERIFY(pendant.press("saveButton"));
    QVERIFY(pendant.settle());
    QTEST(pendant.find<QCheckBox>("modbusCheckBox")->isChecked(), "editsKept");
    QCOMPARE(pendant.controller().traffic().stores().size(), saved ? 1 : 0);
    QCOMPARE(isAnnounced(pendant), saved);
}

void TestHeartbeat::transferFaults_data()
{
    QTest::addColumn<QString>("fault");
    QTest::addColumn<bool>("whileLoading");
    QTest::addColumn<QString>("message");
    QTest::newRow("every fetch fails") << "fetch-fails" << true << "Failed to get file.";
    QTest::newRow("nine fetches fail") << "fetch-fails:9" << true << "";
    QTest::newRow("ten fetches fail") << "fetch-fails:10" << true << "Failed to get file.";
    QTest::newRow("garbage arrives") << "fetch-garbage" << true << "Failed to read file.";
    QTest::newRow("an empty file arrives") << "fetch-empty" << true << "Failed to read file.";
    QTest::newRow("half a file arrives") << "fetch-cut-short" << true << "Failed to read file.";
    QTest::newRow("the send is refused") << "send-fails" << false << "Failed to send file.";
}

void TestHeartbeat::transferFaults()
{
    QFETCH(QString, fault);
    QFETCH(bool, whileLoading);
    QFETCH(QString, message);
    PendantFixture pendant;
    const QByteArray before = pendant.controllerFile(FilePath);
    QVERIFY(pendant.open());
    if (whileLoading)
        QVERIFY(pendant.controller().faults().setFromText(fault));
    MsgBoxScript::answerByDefault(MsgBox::Confirmed);
    QVERIFY(pendant.openPage(Button));
    if (!whileLoading) {
        QVERIFY(pendant.controller().faults().setFromText(fault));
        pendant.controller().traffic().clear();
        QVERIFY(pendant.press("saveButton"));
        QVERIFY(pendant.settle());
    }
    QCOMPARE(pendant.messages().mid(whileLoading ? 0 : 1),
             message.isEmpty() ? QStringList() : QStringList(message));
    QCOMPARE(pendant.controllerFile(FilePath), before);
    QVERIFY(!isAnnounced(pendant));

    // The page is usable again: with the cause gone a save goes through.
    pendant.controller().faults().clearAll();
    QVERIFY(pendant.press("saveButton"));
    QVERIFY(pendant.settle());
    QCOMPARE(pendant.messages().constLast(), QString("Save successfully."));
}

void TestHeartbeat::fileCutShortAtEveryByte()
{
    QTemporaryDir directory;
    const QString path = directory.filePath("heartbeat.xml");
    FieldbusSettingLib* lib = FieldbusSettingLib::getInstance();
    lib->heartbeat = HeartbeatConfig();
    lib->heartbeat.Ecm_Nod_Switch = true;
    lib->heartbeat.Ecm_Timeout = 3.25;
    QVERIFY(lib->writeHeartbeatDetectionFile(path));
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    const QByteArray whole = file.readAll().trimmed();
    for (int length = whole.size(); length >= 0; --length) {
        QVERIFY(file.resize(0) && file.seek(0) && file.write(whole.left(length)) == length && file.flush());
        lib->heartbeat.Mtcp_Nod_Switch = true;
        QCOMPARE(lib->readHeartbeatDetectionFile(path), length == whole.size());
        QVERIFY(!lib->heartbeat.Mtcp_Nod_Switch);
        QCOMPARE(lib->heartbeat.Ecm_Timeout, length == whole.size() ? 3.25 : 0.0);
    }
}

void TestHeartbeat::lightsFollowTheRecord()
{
    PendantFixture pendant;
    QVERIFY(pendant.controller().files().write(FilePath, fileWith("Eip", "1", "1")));
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

void TestHeartbeat::tickWithoutChangeCostsNothing()
{
    PendantFixture pendant;
    QVERIFY(pendant.open());
    QVERIFY(pendant.openPage(Button));
    QTest::qWait(300);
    QWidget* page = pendant.find("HeartbeatDetectionWidget");
    QVERIFY(page);
    QWidget* application = nullptr;
    for (QWidget* above = page; above; above = above->parentWidget()) {
        if (above->metaObject()->indexOfSlot("slotIdle()") >= 0)
            application = above;
    }
    QVERIFY(application);
    QMetaMethod idle =
        application->metaObject()->method(application->metaObject()->indexOfSlot("slotIdle()"));
    QVERIFY(idle.invoke(application));
    PaintCounter paints;
#if defined(__SANITIZE_ADDRESS__)
    __sanitizer_install_malloc_and_free_hooks(countAllocation, ignoreFree);
#endif
    allocations = 0;
    for (int tick = 0; tick < 100; ++tick)
        idle.invoke(application);
    const long long counted = allocations; // before the comparison, which allocates itself
    QCOMPARE(counted, 0LL);
    QCoreApplication::processEvents();
    QCOMPARE(paints.styleChanges(), 0);
    QCOMPARE(paints.paints(), 0);
}

void TestHeartbeat::userLevelDrops_data()
{
    QTest::addColumn<QString>("when");
    QTest::newRow("while the file is fetched again and again") << "fetch";
    QTest::newRow("while the confirmation is open") << "question";
    QTest::newRow("while the failure is shown") << "failure";
}

// The application goes away under a slot that waits; nothing may be touched afterwards.
void TestHeartbeat::userLevelDrops()
{
    QFETCH(QString, when);
    PendantFixture pendant;
    const QByteArray before = pendant.controllerFile(FilePath);
    QVERIFY(pendant.open());
    const auto drop = [] { UserSession::instance().setUserLevel(1); };
    if (when == QLatin1String("fetch")) {
        pendant.controller().faults().set(Faults::FetchFails);
        QTimer::singleShot(350, drop);
        pendant.press(Button);
    } else {
        const QString text =
            when == QLatin1String("question") ? "Are you sure to save the data ?" : "Failed to send file.";
        QVERIFY(pendant.openPage(Button));
        pendant.controller().faults().set(Faults::SendFails);
        MsgBoxScript::onShown([drop, text](const MsgBox* box) {
            if (box->text() == text)
                drop();
            else
                MsgBoxScript::answerByDefault(MsgBox::Confirmed);
        });
        if (when == QLatin1String("failure"))
            PendantFixture::answer({MsgBox::Confirmed});
        pendant.press("saveButton");
    }
    QTRY_VERIFY(!pendant.isOpen());
    QTest::qWait(300);
    QVERIFY(!QApplication::activeModalWidget());
    QCOMPARE(pendant.controllerFile(FilePath), before);

    // It opens again and works.
    MsgBoxScript::onShown({});
    MsgBoxScript::answerByDefault(std::nullopt);
    pendant.controller().faults().clearAll();
    UserSession::instance().setUserLevel(4);
    QVERIFY(pendant.open());
    QVERIFY(pendant.openPage(Button));
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
