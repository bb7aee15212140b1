#include "ConfigExport.h"
#include "Rows.h"
#include "UsbPendant.h"

#include <QRegularExpression>

namespace {

const QString Success = QStringLiteral("Export file success!");
const QString Failure = QStringLiteral("Export file failed!");
const QString NoDrive = QStringLiteral("Usb path is not exist!");

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(missing)");
}

// Acts at one step; a false of what it does ends the copying.
class CountingWatch : public TransferWatch
{
public:
    CountingWatch(int step, std::function<bool()> act)
        : m_left(step)
        , m_act(std::move(act))
    {
    }
    bool step() override
    {
        if (--m_left == 0)
            m_wanted = m_act();
        return m_wanted;
    }
    bool isWanted() const override { return m_wanted; }

private:
    int m_left;
    std::function<bool()> m_act;
    bool m_wanted = true;
};

QStringList filesBelow(const QString& folder)
{
    QStringList files;
    QDirIterator walk(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (walk.hasNext())
        files << walk.next().mid(folder.size() + 1);
    files.sort();
    return files;
}

} // namespace

class TestUsbExport : public QObject
{
    Q_OBJECT

private slots:
    void copiesTheSet()
    {
        UsbPendant pendant;
        QVERIFY(pendant.open());
        // What an earlier export left must not get onto the drive.
        QVERIFY(QDir().mkpath("../Application/fidbus/im-export/fixed"));
        QFile left("../Application/fidbus/im-export/fixed/left.cfg");
        QVERIFY(left.open(QIODevice::WriteOnly));
        left.close();
        pendant.controller().traffic().clear();
        const QDateTime before = QDateTime::currentDateTime();
        QCOMPARE(pendant.runExport(), Success);
        QCOMPARE(pendant.messages(), QStringList({"Do you want to export the current robot\n bus related "
                                                  "configuration file to the USB drive?",
                                                  Success}));
        QVERIFY(!pendant.progressDialog()->isVisible());
        QCOMPARE(pendant.find<QProgressBar>("progressBar")->value(), 100);

        QCOMPARE(pendant.folders().size(), 1);
        const QString folder = pendant.folders().constFirst();
        const QDateTime named = QDateTime::fromString(folder, "'fidbus_'yyyyMMdd_hhmmss");
        QVERIFY(named.isValid() && before.secsTo(named) >= -1 &&
                named.secsTo(QDateTime::currentDateTime()) >= 0);
        QStringList expected = exportedFiles();
        QStringList order;
        for (const QString& name : exportedFiles()) {
            order << controllerPath(name) << controllerPath(name); // and compared
            QCOMPARE(contentOf(pendant.usbDirectory() + '/' + folder + '/' + name),
                     pendant.controllerFile(controllerPath(name)));
        }
        expected.sort();
        QCOMPARE(filesBelow(pendant.usbDirectory() + '/' + folder), expected);
        QCOMPARE(expected.size(), 36);
        QCOMPARE(pendant.controller().traffic().fetches(), order);

        const QStringList made =
            UsbPendant::logged().filter(QRegularExpression("^fidbus make dir\\(.*\\) result:true$"));
        QCOMPARE(made.size(), 14);
        QVERIFY(made.at(7).contains("/SlaveConfig)") && made.at(8).contains("/SlaveConfig/EtherCAT)"));

        // A second one makes a folder of its own, also in the same second.
        QVERIFY(pendant.vary("/fa/pfb.cfg", "changed"));
        QCOMPARE(pendant.runExport(), Success);
        QCOMPARE(pendant.folders().size(), 2);
        QCOMPARE(contentOf(pendant.usbDirectory() + '/' + pendant.folders().constLast() + "/fa/pfb.cfg"),
                 pendant.controllerFile("/fa/pfb.cfg"));
    }

    void refusedBeforeAnything_data()
    {
        const Rows<QString, int, QString> row;
        const QString servo = "Please turn off the servo first!";
        row("servo on", "servo", int(MsgBox::Confirmed), servo);
        row("running", "running", int(MsgBox::Confirmed), servo);
        row("not confirmed", "", int(MsgBox::Second), "Do you want to export");
        row("dismissed", "", int(MsgBox::Dismissed), "Do you want to export");
        row("no drive", "out", int(MsgBox::Confirmed), "No device found!");
    }

    void refusedBeforeAnything()
    {
        const auto [state, answer, message] = Rows<QString, int, QString>::current();
        UsbPendant pendant;
        QVERIFY(pendant.open());
        pendant.controller().setServoOn(state == "servo");
        pendant.controller().setRobotRunning(state == "running");
        if (state == "out")
            UsbDrive::instance().pullOut();
        pendant.controller().traffic().clear();
        MsgBoxScript::answerNext(answer);
        const QString last = pendant.runExport();
        QVERIFY2(last.startsWith(message), qPrintable(last));
        QCOMPARE(pendant.controller().traffic().count(Traffic::Fetch), 0);
        QVERIFY(!pendant.progressDialog());
        QVERIFY(QDir(pendant.usbDirectory()).isEmpty());
    }

    void faultAtEveryStep_data()
    {
        const Rows<QString> row;
        row("drive goes", "goes");
        row("drive takes no more files", "worn out");
        row("nobody wants it any more", "unwanted");
    }

    // Without the dialog and its waits.
    void faultAtEveryStep()
    {
        const auto [fault] = Rows<QString>::current();
        UsbPendant pendant;
        UsbDrive& drive = UsbDrive::instance();
        int step = 0;
        TransferResult result;
        do {
            pendant.clearDrive();
            UsbPendant::logged().clear();
            CountingWatch watch(++step, [&, fault = fault] {
                if (fault == "worn out")
                    drive.failAfterCopies(0);
                else if (fault == "goes")
                    drive.pullOut();
                return fault != "unwanted";
            });
            result = ConfigExport(pendant.usbDirectory(), watch).run();
            drive.failAfterCopies(-1);
            pendant.insertDrive();

            const bool isGone = result.code == TransferResult::DriveGone;
            QCOMPARE(UsbPendant::logged().contains(NoDrive), isGone);
            if (!result.isDone()) {
                QCOMPARE(isGone, fault == "goes");
                QCOMPARE(result.code == TransferResult::DriveFailed, fault == "worn out");
            }
            const bool fetching = step < 36 && fault != "worn out";
            QCOMPARE(UsbPendant::logged().contains("Bus failed to obtain file from controller!"),
                     fetching || (step == 36 && fault == "unwanted"));
            QVERIFY(fault == "worn out" || pendant.folders().size() == (step > 36 ? 1 : 0));
        } while (!result.isDone() && step < 200);
        // 36 files fetched, 14 folders made, 36 files copied. What happens after the last one, happens too
        // late.
        QCOMPARE(step, 36 + 14 + 36 + (fault == "unwanted" ? 1 : 0));
    }

    void driveGoes()
    {
        UsbPendant pendant;
        QVERIFY(pendant.open());
        QCOMPARE(pendant.runExport(), Success);
        // One that comes back under another path is another one.
        QTemporaryDir other;
        bool isOther = false;
        for (const int step : {1, 35, 36, 50, 85}) {
            pendant.atStep(step, [&] {
                UsbDrive::instance().pullOut();
                if (std::exchange(isOther, !isOther))
                    UsbDrive::instance().insert(other.path());
            });
            QCOMPARE(pendant.runExport(), Failure);
            pendant.insertDrive();
            QVERIFY(!pendant.progressDialog()->isVisible());
            QVERIFY(QDir(other.path()).isEmpty());
        }
        QCOMPARE(pendant.runExport(), Success);
    }

    void driveTakesNoMore_data()
    {
        const Rows<int> row;
        for (const int copies : {0, 35})
            row(QStringLiteral("worn out after %1").arg(copies), copies);
        row("read-only", -1);
        row("full", -2);
    }

    void driveTakesNoMore()
    {
        const auto [copies] = Rows<int>::current();
        UsbPendant pendant;
        QVERIFY(pendant.open());
        if (copies >= 0)
            UsbDrive::instance().failAfterCopies(copies);
        UsbDrive::instance().setReadOnly(copies == -1);
        UsbDrive::instance().setFull(copies == -2);
        QCOMPARE(pendant.runExport(), Failure);
        QVERIFY(!pendant.progressDialog()->isVisible());
        QCOMPARE(
            UsbPendant::logged().filter(QRegularExpression("^Copying .* file to USB drive failed!$")).size(),
            1);
        QCOMPARE(filesBelow(pendant.usbDirectory()).size(), qMax(copies, 0));
    }

    // Prepared on the drive, a folder or a link of the name that an export is about to use.
    void writesIntoNothingThatIsThere()
    {
        UsbPendant pendant;
        QVERIFY(pendant.open());
        QTemporaryDir elsewhere;
        const QDateTime now = QDateTime::currentDateTime();
        for (int second = 0; second < 3; ++second) {
            const QString path =
                pendant.usbDirectory() + now.addSecs(second).toString("'/fidbus_'yyyyMMdd_hhmmss");
            QVERIFY(second == 1 ? QDir().mkpath(path) : QFile::link(elsewhere.path(), path));
        }
        QCOMPARE(pendant.runExport(), Success);
        QVERIFY(QDir(elsewhere.path()).isEmpty());
        QCOMPARE(filesBelow(pendant.usbDirectory() + '/' + pendant.folders().constLast()).size(), 36);

        // Neither is the pendant's own directory left by a link, which is not followed to be cleared either.
        const QString staging = "../Application/fidbus/im-export";
        QVERIFY(QDir(staging).removeRecursively() && QFile::link(elsewhere.path(), staging));
        QFile file(elsewhere.filePath("precious"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(pendant.runExport(), Failure);
        QCOMPARE(filesBelow(elsewhere.path()), QStringList("precious"));
    }

    void wrongTransfers_data()
    {
        const Rows<int, int, bool> row;
        row("one cut short", int(Faults::FetchCutShort), 1, true);
        row("one empty", int(Faults::FetchEmpty), 1, true);
        row("all cut short", int(Faults::FetchCutShort), -1, false);
        row("too large to be imported", int(Faults::FaultCount), 0, false);
    }

    void wrongTransfers()
    {
        const auto [fault, times, exported] = Rows<int, int, bool>::current();
        UsbPendant pendant;
        QVERIFY(pendant.open());
        if (fault == Faults::FaultCount)
            QVERIFY(pendant.put("/fa/pfb.cfg", QByteArray(4 * 1024 * 1024 + 1, 'x')));
        else
            pendant.controller().faults().set(static_cast<Faults::Fault>(fault), times);
        QCOMPARE(pendant.runExport(), exported ? Success : Failure);
        pendant.controller().faults().clearAll();
        QCOMPARE(pendant.folders().size(), exported ? 1 : 0);
        for (const QString& name : exported ? exportedFiles() : QStringList())
            QCOMPARE(contentOf(pendant.usbDirectory() + '/' + pendant.folders().constLast() + '/' + name),
                     pendant.controllerFile(controllerPath(name)));
    }

    // The dialog stays, but holds nothing up, and the next export takes it over.
    void controllerDoesNotAnswer()
    {
        UsbPendant pendant;
        QVERIFY(pendant.open());
        const QString last = controllerPath(exportedFiles().constLast());
        pendant.controller().faults().set(Faults::FetchFails, 30, last);
        QCOMPARE(pendant.runExport(), Failure);
        QCOMPARE(pendant.controller().faults().timesLeft(Faults::FetchFails), 0);
        QVERIFY(UsbPendant::logged().contains("Get fidbus mtcp_master.xml file failed!"));
        QVERIFY(UsbPendant::logged().contains("Bus failed to obtain file from controller!"));
        QPointer<QDialog> dialog = pendant.progressDialog();
        QVERIFY(dialog->isVisible() && !QApplication::activeModalWidget());
        QCOMPARE(pendant.find<QProgressBar>("progressBar")->value(), 35);
        QVERIFY(pendant.folders().isEmpty());

        bool held = false;
        pendant.atStep(10, [&] { held = QApplication::activeModalWidget() == dialog; });
        QCOMPARE(pendant.runExport(), Success);
        QVERIFY(held);
        QCOMPARE(pendant.progressDialog(), dialog.data());
        QVERIFY(!dialog->isVisible());

        // It does not outlive the page.
        pendant.controller().faults().set(Faults::FetchFails, 30,
                                          controllerPath(exportedFiles().constFirst()));
        QCOMPARE(pendant.runExport(), Failure);
        QVERIFY(dialog->isVisible());
        QVERIFY(pendant.press("exitBtn"));
        QTRY_VERIFY(!dialog);
    }

    // The message and the log at each file. A staging folder that cannot be made fails a fetch at once,
    // without the seconds that a silent controller takes.
    void anyFileCannotBeFetched()
    {
        UsbPendant pendant;
        QVERIFY(pendant.open());
        QCOMPARE(pendant.runExport(), Success);
        pendant.clearDrive();
        const std::vector<TransferFile>& set = FileLocations::transferSet();
        for (std::size_t i = 0; i < set.size(); ++i) {
            const QString folder = QFileInfo(set[i].staging).path();
            const auto block = [&] {
                QDir(folder).removeRecursively();
                QFile file(folder);
                QVERIFY(file.open(QIODevice::WriteOnly));
            };
            if (i > 0)
                pendant.atStep(static_cast<int>(i), block);
            else
                pendant.controller().faults().set(Faults::FetchFails, 30, set[i].controller);
            UsbPendant::logged().clear();
            QCOMPARE(pendant.runExport(), Failure);
            QCOMPARE(UsbPendant::logged().filter("failed"),
                     QStringList({QStringLiteral("Get fidbus %1 file failed!").arg(set[i].label),
                                  QStringLiteral("Bus failed to obtain file from controller!")}));
            QVERIFY(pendant.folders().isEmpty());
            QFile::remove(folder);
        }
    }

    void cannotBeInterrupted()
    {
        UsbPendant pendant;
        QVERIFY(pendant.open());
        QCOMPARE(pendant.runExport(), Success);
        pendant.controller().traffic().clear();
        int boxes = 0;
        for (const int step : {5, 70}) {
            pendant.atStep(step, [&] {
                boxes = pendant.messages().size();
                QDialog* dialog = pendant.progressDialog();
                QTest::keyClick(dialog, Qt::Key_Escape);
                dialog->reject();
                for (const char* button :
                     {"btn_export", "btn_import", "saveBusBt", "exitBtn", "heartbeatBtn"})
                    pendant.press(button);
                QVERIFY(dialog->isVisible() && dialog->isModal());
                QVERIFY(dialog->windowFlags() & Qt::WindowStaysOnTopHint);
                QVERIFY(dialog->windowFlags() & Qt::FramelessWindowHint);
                QCOMPARE(dialog->pos(), QPoint(320, 330));
                QCOMPARE(dialog->findChild<QLabel*>("label")->text(), QString("Exporting..."));
            });
            QCOMPARE(pendant.runExport(), Success);
            QVERIFY(pendant.stepReached());
            QCOMPARE(pendant.messages().size(), boxes + 1);
            QVERIFY(pendant.isOpen());
        }
        QCOMPARE(pendant.controller().traffic().count(Traffic::Fetch), 144);
    }

    void userLevelDrops_data()
    {
        const Rows<int, QString> row;
        for (const int step : {36, 86})
            row(QStringLiteral("at step %1").arg(step), step, "");
        row("while asked", 0, "Do you want to export");
        row("while told", 0, Success);
        row("while fetched again and again", -1, "");
    }

    void userLevelDrops()
    {
        const auto [step, box] = Rows<int, QString>::current();
        UsbPendant pendant;
        QVERIFY(pendant.open());
        const auto drop = [] { UserSession::instance().setUserLevel(1); };
        MsgBoxScript::answerByDefault(MsgBox::Confirmed);
        if (step > 0) {
            QCOMPARE(pendant.runExport(), Success);
            pendant.atStep(step, [drop] { QTimer::singleShot(0, drop); }); // in the next wait

        } else if (step < 0) {
            pendant.controller().faults().set(Faults::FetchFails);
            QTimer::singleShot(350, drop);
        } else {
            pendant.whileShown = [&, box = box](const QString& text) {
                if (text.startsWith(box))
                    drop();
            };
        }
        pendant.press("btn_export");
        QTRY_VERIFY(!pendant.isOpen() && !QApplication::activeModalWidget());
        QTRY_COMPARE(pendant.application()->state(), ApplicationSlot::State::Empty);
        pendant.whileShown = nullptr;
        pendant.controller().faults().clearAll();
        UserSession::instance().setUserLevel(4);
        QVERIFY(pendant.open());
        QCOMPARE(pendant.runExport(), Success);
    }
};

PENDANT_TEST_MAIN(TestUsbExport)
#include "tst_usbexport.moc"
