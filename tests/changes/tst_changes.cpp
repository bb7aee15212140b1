#include "RoleTable.h"
#include "Rows.h"
#include "StatusPendant.h"
#include "TestMain.h"

#include <QCryptographicHash>
#include <QLockFile>

namespace {

const QString Heartbeat = QStringLiteral("/application/fidbus/heartbeat.xml");
const QString EipSlave = QStringLiteral("/FA/dns-1.cfg");
const QString ServoText = QStringLiteral("Please turn off the servo first!");
const QString RestartText =
    QStringLiteral("Save successfully, Are you sure to restart robot to make it effect?");
constexpr int Yes = MsgBox::Confirmed;
constexpr int No = MsgBox::Second;

QByteArray changed(QByteArray content, const QString& path)
{
    return path == Heartbeat ? content.replace("</Fidbus>", "<!-- changed --></Fidbus>")
                             : content + "; changed\n";
}

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(missing)");
}

} // namespace

/// What the pendant has sent and how it comes back, what it has seen, and what goes onto a drive for service.
class TestChanges : public QObject
{
    Q_OBJECT

private slots:
    void putBack_data();
    void putBack();
    void importIsOneChange();
    void levelDropsInTheMiddle();
    void linksAreRecorded();
    void bundle();
    void bundleFails_data();
    void bundleFails();
};

void TestChanges::putBack_data()
{
    // The file, what happens ("at the question: ..."), the answers, what the last box says, whether it is put
    // back.
    const Rows<QString, QString, QVector<int>, QString, bool> row;
    row("no restart needed", Heartbeat, "", {Yes, Yes}, "Save successfully.", true);
    row("restart asked for", EipSlave, "", {Yes, No}, RestartText, true);
    row("declined", Heartbeat, "", {No}, "Put these files back", false);
    row("servo on", Heartbeat, "servo", {Yes}, ServoText, false);
    row("servo on at the question", Heartbeat, "at the question: servo", {Yes, Yes}, ServoText, false);
    row("running at the question", Heartbeat, "at the question: running", {Yes, Yes}, ServoText, false);
    row("saved since", Heartbeat, "at the question: saved", {Yes, Yes}, "was changed since", false);
    row("put back already", Heartbeat, "at the question: former", {Yes, Yes}, "already", true);
    row("controller gives nothing", Heartbeat, "at the question: fetch-fails:99", {Yes, Yes}, "does not give",
        false);
    row("one broken fetch", Heartbeat, "at the question: fetch-garbage:1", {Yes, Yes}, "Save successfully.",
        true);
    row("controller takes nothing", Heartbeat, "at the question: send-fails:1", {Yes, Yes}, "did not arrive",
        false);
    row("import under way", Heartbeat, "import", {Yes, Yes}, "still coming to its end", false);
    row("no room to keep the present", Heartbeat, "at the question: no room", {Yes, Yes}, "cannot keep",
        false);
}

void TestChanges::putBack()
{
    const auto [path, event, answers, told, isBack] =
        Rows<QString, QString, QVector<int>, QString, bool>::current();
    StatusPendant pendant;
    const QByteArray former = pendant.controllerFile(path);
    const QByteArray sent = changed(former, path);
    QVERIFY(former != sent && pendant.send(path, sent));
    QVERIFY(pendant.openStatus(QStringLiteral("changesBtn")));
    QTRY_COMPARE(pendant.rows(QStringLiteral("changesTable")).size(), 1);
    QVERIFY(!pendant.find<QPushButton>(QStringLiteral("putBackBtn"))->isEnabled());
    QVERIFY(pendant.pressCell(QStringLiteral("changesTable"), 0, 1));
    QVERIFY(pendant.settle());

    // Its own copies are complete: the faults to come are those of the putting back.
    const auto isRead = [&pendant] {
        return pendant.text(QStringLiteral("label_contact")).startsWith("Read from");
    };
    QTRY_VERIFY_WITH_TIMEOUT(isRead(), 60000);

    QByteArray expected = isBack ? former : sent;
    QLockFile import(QStringLiteral("../Application/fidbus/import.lock"));
    const auto happen = [&, file = path](const QString& what) {
        if (what == "servo")
            pendant.controller().setServoOn(true);
        else if (what == "running")
            pendant.controller().setRobotRunning(true);
        else if (what == "saved")
            pendant.put(file, expected = "<Fidbus/>");
        else if (what == "import")
            QVERIFY(import.tryLock());
        else if (what == "former")
            pendant.put(file, former);
        else if (what == "no room")
            QVERIFY(QFile::rename(pendant.versions() + "/index.jsonl", pendant.versions() + "/aside") &&
                    QDir().mkdir(pendant.versions() + "/index.jsonl"));
        else if (!what.isEmpty())
            QVERIFY(pendant.fail(what));
    };
    const QString atQuestion = QStringLiteral("at the question: ");
    MsgBoxScript::onShown([&, what = event](const MsgBox* box) {
        if (what.startsWith(atQuestion) && box->text().startsWith("Put these files back"))
            happen(what.mid(atQuestion.size()));
    });
    if (!event.startsWith(atQuestion))
        happen(event);
    const int before = PendantFixture::messages().size();
    pendant.traffic().clear();
    for (const int answer : answers)
        MsgBoxScript::answerNext(answer);
    QVERIFY(pendant.press(QStringLiteral("putBackBtn")));
    QTRY_VERIFY(PendantFixture::messages().size() >= before + answers.size());
    QVERIFY(pendant.settle());
    QVERIFY2(PendantFixture::messages().constLast().contains(told),
             qPrintable(PendantFixture::messages().join('|')));
    QCOMPARE(pendant.controllerFile(path), expected);
    const bool isSent = isBack && event != atQuestion + "former";
    if (!event.contains("send-fails"))
        QCOMPARE(pendant.traffic().stores().size(), isSent ? 1 : 0);
    QCOMPARE(pendant.writesOf(QStringLiteral("ifidbus.xml_heartbeat")).contains(1.0),
             isSent && path == Heartbeat);
    QCOMPARE(pendant.traffic().restartRequests(), 0);
    if (isSent) { // and what was put back can be put back
        QTRY_COMPARE(pendant.rows(QStringLiteral("changesTable")).size(), 2);
        QVERIFY(pendant.rows(QStringLiteral("changesTable")).front().contains("Put back: "));
    }
}

void TestChanges::importIsOneChange()
{
    StatusPendant pendant;
    const QStringList paths = {Heartbeat, EipSlave};
    QMap<QString, QByteArray> former;
    for (const QString& path : paths) {
        former[path] = pendant.controllerFile(path);
        QVERIFY(pendant.send(path, changed(former[path], path)));
    }
    // As an import leaves them: one group.
    const QString index = pendant.versions() + "/index.jsonl";
    const QByteArray lines =
        contentOf(index).replace("\"group\":2", "\"group\":1").replace("saved", "imported");
    QFile file(index);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(lines) == lines.size());
    file.close();
    QVERIFY(pendant.openStatus(QStringLiteral("changesBtn")));
    QTRY_COMPARE(pendant.rows(QStringLiteral("changesTable")).size(), 1);
    QVERIFY(pendant.rows(QStringLiteral("changesTable")).front().contains("Import"));
    QVERIFY(pendant.pressCell(QStringLiteral("changesTable"), 0, 1) && pendant.settle());
    // One was saved since: none is put back.
    QVERIFY(pendant.put(Heartbeat, "<Fidbus/>"));
    PendantFixture::answer({Yes, Yes});
    QVERIFY(pendant.press(QStringLiteral("putBackBtn")) && pendant.settle());
    QTRY_VERIFY(PendantFixture::messages().constLast().contains("Nothing was put back."));
    QCOMPARE(pendant.controllerFile(EipSlave), changed(former[EipSlave], EipSlave));
    QVERIFY(pendant.put(Heartbeat, changed(former[Heartbeat], Heartbeat)));
    PendantFixture::answer({Yes, No});
    QVERIFY(pendant.press(QStringLiteral("putBackBtn")) && pendant.settle());
    for (const QString& path : paths)
        QTRY_COMPARE(pendant.controllerFile(path), former[path]);
}

void TestChanges::levelDropsInTheMiddle()
{
    StatusPendant pendant;
    const QByteArray former = pendant.controllerFile(Heartbeat);
    const QByteArray sent = changed(former, Heartbeat);
    QVERIFY(pendant.send(Heartbeat, sent));
    QVERIFY(pendant.openStatus(QStringLiteral("changesBtn")));
    QVERIFY(pendant.pressCell(QStringLiteral("changesTable"), 0, 1) && pendant.settle());
    MsgBoxScript::onShown([](MsgBox*) { PendantFixture::dropUserLevel(); });
    PendantFixture::answer({Yes});
    pendant.press(QStringLiteral("putBackBtn"));
    QTRY_VERIFY(!pendant.page());
    QTest::qWait(50);
    QCOMPARE(pendant.controllerFile(Heartbeat), sent);
    QVERIFY(!QApplication::activeModalWidget());
    UserSession::instance().setUserLevel(4);
}

// Also while the application is not shown.
void TestChanges::linksAreRecorded()
{
    StatusPendant pendant;
    QTest::qWait(500); // what was there at the start is known
    for (const double up : {1.0, 0.0, 1.0}) {
        pendant.set(QStringLiteral("ifidbus.eip_link_state"), up);
        QTest::qWait(300);
    }
    QVERIFY(pendant.send(EipSlave, pendant.controllerFile(EipSlave).replace("192.168.", "192.169.")));
    QVERIFY(pendant.openStatus(QStringLiteral("historyBtn")));
    const auto told = [&pendant] { return pendant.rows(QStringLiteral("historyTable")).join('\n'); };
    QTRY_VERIFY2(told().contains("dns-1.cfg was sent"), qPrintable(told()));
    QVERIFY2(told().contains("IP address"), qPrintable(told()));
    QVERIFY(told().contains("EtherNet/IP slave | Link lost") && told().contains("Link back after"));
    QVERIFY(told().endsWith("The pendant was started"));
    // Of one role, with the time-out of its watch.
    pendant.choose(QStringLiteral("roleFilter"), 1 + int(RoleId::EtherNetIPSlave));
    QTRY_VERIFY(!told().contains("The pendant was started") && told().contains("Link lost"));
    QVERIFY(pendant.text(QStringLiteral("label_longest")).startsWith("Longest loss: "));
    // A file that holds no event any more does no harm.
    QVERIFY(QFile::remove(QStringLiteral("../Application/fieldbusStatus/history.jsonl")));
    pendant.set(QStringLiteral("ifidbus.eip_link_state"), 0.0);
    QTRY_COMPARE(pendant.rows(QStringLiteral("historyTable")).size(), 1);
}

void TestChanges::bundle()
{
    StatusPendant pendant;
    UsbDrive::instance().insert(pendant.usbDirectory());
    QVERIFY(pendant.openStatus(QStringLiteral("supportBtn")));
    pendant.traffic().clear();
    PendantFixture::answer({Yes});
    QVERIFY(pendant.press(QStringLiteral("writeBundleBtn")));
    QTRY_VERIFY_WITH_TIMEOUT(!PendantFixture::messages().isEmpty(), 30000);
    QVERIFY2(PendantFixture::messages().constLast().contains("is on the USB drive"),
             qPrintable(PendantFixture::messages().constLast()));
    const QDir drive(pendant.usbDirectory());
    const QString name = drive.entryList({"fidbus_*"}, QDir::Dirs).value(0);
    QVERIFY(contentOf(drive.filePath(name + ".html")).contains("Fieldbus configuration"));
    QVERIFY(contentOf(drive.filePath(name + ".history.jsonl")).contains("started"));
    const QList<QByteArray> lines = contentOf(drive.filePath(name + ".sha256")).split('\n');
    QCOMPARE(lines.size(), 36 + 1);
    for (const QByteArray& line : lines.mid(0, 36)) {
        const QByteArray content = contentOf(drive.filePath(QString::fromUtf8(line.mid(66))));
        QCOMPARE(QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex(), line.left(64));
        const QString file = QString::fromUtf8(line.mid(66 + name.size() + 1));
        QCOMPARE(content,
                 pendant.controllerFile((file.startsWith("fa/") ? "/" : "/application/fidbus/") + file));
    }
    QCOMPARE(pendant.traffic().stores(), QStringList());
}

void TestChanges::bundleFails_data()
{
    // What is wrong, what is told, whether anything may be on the drive.
    const Rows<QString, QString, bool> row;
    row("no drive", "no drive", "No device found!", false);
    row("full", "full", "does not take", true);
    row("read only", "read only", "does not take", true);
    row("device fails", "fails after 10", "does not take", true);
    row("controller gives nothing", "fetch-fails:9999", "does not give heartbeat.xml", false);
    row("pulled out", "pulled out", "pulled out", true);
}

void TestChanges::bundleFails()
{
    const auto [fault, told, mayHold] = Rows<QString, QString, bool>::current();
    StatusPendant pendant;
    if (fault != "no drive")
        UsbDrive::instance().insert(pendant.usbDirectory());
    UsbDrive::instance().setFull(fault == "full");
    UsbDrive::instance().setReadOnly(fault == "read only");
    if (fault == "fails after 10")
        UsbDrive::instance().failAfterCopies(10);
    QVERIFY(pendant.openStatus(QStringLiteral("supportBtn")));
    if (fault.startsWith("fetch"))
        QVERIFY(pendant.fail(fault));
    QTimer look; // in the middle of the writing
    QObject::connect(&look, &QTimer::timeout, [&pendant] {
        if (pendant.text(QStringLiteral("label_progress")).section(' ', 0, 0).toInt() >= 40)
            UsbDrive::instance().pullOut();
    });
    if (fault == "pulled out")
        look.start(0);
    PendantFixture::answer({Yes});
    QVERIFY(pendant.press(QStringLiteral("writeBundleBtn")));
    QTRY_VERIFY_WITH_TIMEOUT(!PendantFixture::messages().isEmpty(), 30000);
    QVERIFY2(PendantFixture::messages().constLast().contains(told),
             qPrintable(PendantFixture::messages().constLast()));
    QVERIFY(mayHold || QDir(pendant.usbDirectory()).isEmpty());
    QTRY_VERIFY(pendant.find<QPushButton>(QStringLiteral("writeBundleBtn"))->isEnabled());
}

PENDANT_TEST_MAIN(TestChanges)
#include "tst_changes.moc"
