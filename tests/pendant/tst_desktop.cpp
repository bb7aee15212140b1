#include "ApplicationInfo.h"
#include "ApplicationSlot.h"
#include "BusFileDataManager.h"
#include "BusObserver.h"
#include "CurrentLink.h"
#include "Desktop.h"
#include "DesktopApi.h"
#include "Finger.h"
#include "HomeScreen.h"
#include "MemoryLink.h"
#include "Options.h"
#include "PendantPower.h"
#include "PendantWindow.h"
#include "TestMain.h"
#include "TimeScale.h"
#include "UserSession.h"
#include "VariableContext.h"
#include "WorkDirectory.h"
#include "ZelBaseWidget.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QToolButton>
#include <QtTest>

namespace {
const QString Plugin = QStringLiteral(TEST_PLUGINS "/libtestplugin2.so");
const QString ClassName = QStringLiteral("fieldbussetting");
const char* const Tile = "tile_fieldbussetting";

InstalledApplications only(const QString& library, bool resident = false)
{
    ApplicationInfo info = ApplicationInfo::ofLibrary(library);
    info.className = ClassName;
    info.resident = resident;
    InstalledApplications installed;
    installed.add(info);
    return installed;
}

/// A pendant on the screen with the test's application.
struct Pendant : PendantWindow
{
    explicit Pendant(const InstalledApplications& installed = only(Plugin))
        : PendantWindow(installed)
    {
        show();
    }
    ApplicationSlot& first() const { return *applications().front(); }
    ApplicationSlot::State state() const { return first().state(); }
};

QStringList journal()
{
    return qApp->property("journal").toStringList();
}

bool press(QWidget& window, const char* name)
{
    return Finger::press(window.findChild<QWidget*>(QLatin1String(name)));
}
} // namespace

class TestDesktop : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { setTimeScale(20.0); }
    void init()
    {
        UserSession::instance().setUserLevel(4);
        qApp->setProperty("refuseWidget", QVariant());
        qApp->setProperty("journal", QVariant());
        qApp->setProperty("dataTicks", QVariant());
    }

    void loadingFails_data();
    void loadingFails();
    void applicationThatDoesNotStart();
    void life();
    void ticksOnlyWhileShown();
    void residentRunsUnseen();
    void oneIsOpenAtATime();
    void tileWaitsForTheController();
    void descriptions_data();
    void descriptions();
    void installing();
    void closing_data();
    void closing();
    void levelTooLowAtOpening();
    void logInDialogChangesLevel();
    void restart();
    void unknownPageIsNotClosed();
    void workDirectory();
    void workDirectoryThatCannotBeMade_data();
    void workDirectoryThatCannotBeMade();
    void options_data();
    void options();
};

void TestDesktop::loadingFails_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("reason");
    const QString folder = QStringLiteral(TEST_PLUGINS);
    QTest::newRow("no file") << folder + "/libnothing.so"
                             << "libnothing";
    QTest::newRow("not a library") << QCoreApplication::applicationFilePath() << "could not be loaded";
    QTest::newRow("no function") << folder + "/libtestplugin0.so"
                                 << "CreateZelCustomData";
    QTest::newRow("one function") << folder + "/libtestplugin1.so"
                                  << "CreateZelCustomWidget";
}

void TestDesktop::loadingFails()
{
    QFETCH(QString, file);
    QFETCH(QString, reason);
    Pendant window(only(file));
    QVERIFY2(window.home().notice().contains(reason), qPrintable(window.home().notice()));

    QVERIFY(press(window, Tile));
    QVERIFY2(window.home().notice().contains(reason), qPrintable(window.home().notice()));
    QVERIFY(window.home().isVisible());
}

void TestDesktop::applicationThatDoesNotStart()
{
    Pendant window;
    qApp->setProperty("refuseWidget", true);
    QVERIFY(press(window, Tile));
    QVERIFY(!window.home().notice().isEmpty());
    QCOMPARE(journal(), QStringList({"data made", "data deleted"}));

    qApp->setProperty("refuseWidget", false);
    QVERIFY(press(window, Tile));
    QCOMPARE(window.state(), ApplicationSlot::State::Shown);
}

void TestDesktop::life()
{
    Pendant window;
    QVERIFY(press(window, Tile));
    QCOMPARE(journal(), QStringList({"data made", "widget made", "variables 0 1"}));
    QCOMPARE(window.first().widget()->size(), QSize(1024, 680));

    emit VariableContext::instance().switched();
    QCOMPARE(journal().mid(3), QStringList({"variables 0 0", "variables 0 1"}));

    QSignalSpy left(&window.first(), &ApplicationSlot::left);
    QVERIFY(press(window, "closeButton"));
    QVERIFY(window.home().isVisible());
    QVERIFY(left.wait());
    emit VariableContext::instance().switched();
    QCOMPARE(journal().mid(5),
             QStringList({"variables 0 0", "slot ended", "widget deleted", "data deleted"}));
}

void TestDesktop::ticksOnlyWhileShown()
{
    Pendant window;
    window.openApplication(ClassName);
    const ZelBaseWidget* application = window.first().widget();
    const auto ticks = [application] { return application->QObject::property("ticks").toInt(); };
    QTRY_VERIFY(ticks() >= 2);
    QCOMPARE(application->QObject::property("marker").toInt(), 1);

    window.hide();
    const int hidden = ticks();
    QTest::qWait(250);
    QCOMPARE(ticks(), hidden);

    window.show();
    QTRY_VERIFY(ticks() > hidden);
}

void TestDesktop::residentRunsUnseen()
{
    Pendant window(only(Plugin, true));
    const auto ticks = [] { return qApp->property("dataTicks").toInt(); };
    QCOMPARE(journal(), QStringList{"data made"});
    QTRY_VERIFY(ticks() >= 2);
    QVERIFY(press(window, Tile));
    QSignalSpy left(&window.first(), &ApplicationSlot::left);
    QVERIFY(press(window, "closeButton"));
    QVERIFY(left.wait());
    QVERIFY2(!journal().contains("data deleted"), "it outlives its widget");
    const int closed = ticks();
    QTRY_VERIFY(ticks() > closed);

    QSignalSpy restarted(&window, &PendantWindow::restarted);
    PendantPower::instance().requestRestart();
    QVERIFY(restarted.wait());
    QCOMPARE(journal().mid(journal().size() - 2), QStringList({"data deleted", "data made"}));
}

void TestDesktop::oneIsOpenAtATime()
{
    InstalledApplications installed = only(Plugin);
    installed.addFile(Plugin);
    Pendant window(installed);
    window.openApplication(QStringLiteral("testplugin2"));
    window.openApplication(ClassName);
    QCOMPARE(window.present()->info().className, QStringLiteral("testplugin2"));
    // Pages differ: one that is closed by its id leaves the other where it is.
    DesktopApi::closeApplication(DesktopApi::pageIdFromClassName(ClassName), false);
    QCOMPARE(window.present()->state(), ApplicationSlot::State::Shown);
    DesktopApi::closeApplication(DesktopApi::pageIdFromClassName(QStringLiteral("testplugin2")), false);
    QVERIFY(window.home().isVisible());
    QVERIFY(press(window, Tile));
    QTRY_COMPARE(window.application(ClassName)->state(), ApplicationSlot::State::Shown);
}

void TestDesktop::tileWaitsForTheController()
{
    MemoryLink link;
    link.up = false;
    setCurrentLink(&link);
    Pendant window;
    QVERIFY(!press(window, Tile));
    window.openApplication(ClassName);
    QVERIFY(!window.present());
    QVERIFY(window.findChild<QToolButton*>(Tile)->text().contains("Controller is restarting"));
    link.up = true;
    emit link.stateChanged();
    QVERIFY(press(window, Tile));
    QVERIFY(window.present());
    setCurrentLink(nullptr);
}

void TestDesktop::descriptions_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("problem"); // empty: it is taken
    const QByteArray good = R"({"class": "a", "library": "liba.so", "name": {"en": "An A", "xx": "X"}})";
    QTest::newRow("good") << good << QString();
    QTest::newRow("cut short") << good.chopped(1) << "unterminated";
    QTest::newRow("empty") << QByteArray() << "illegal";
    QTest::newRow("no class") << QByteArray(good).replace("class", "klass") << "does not tell";
    QTest::newRow("no library") << QByteArray(good).replace("liba.so", "") << "does not tell";
    QTest::newRow("no English name") << QByteArray(good).replace("en", "yy") << "does not tell";
}

void TestDesktop::descriptions()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, problem);
    QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("a.json")));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
    file.close();
    InstalledApplications installed;
    installed.addFolder(folder.path());
    QCOMPARE(installed.all().empty(), !problem.isEmpty());
    if (problem.isEmpty())
        QCOMPARE(installed.all().front().name, QStringLiteral("An A"));
    else
        QVERIFY2(installed.problems().constFirst().contains(problem), qPrintable(installed.problems()[0]));
}

void TestDesktop::installing()
{
    InstalledApplications installed;
    installed.addFile(Plugin);
    installed.addFile(QStringLiteral(TEST_PLUGINS "/applications/fieldbussetting.json"));
    QCOMPARE(installed.all().front().className, QStringLiteral("testplugin2"));
    QVERIFY(QFileInfo::exists(installed.all().back().library));

    // A library takes the place of its namesake's, under the same description.
    const QString other = QStringLiteral("/x/libfieldbussetting.so");
    installed.addFile(other);
    QCOMPARE(installed.all().size(), std::size_t(2));
    QCOMPARE(installed.all().back().library, other);
    QCOMPARE(installed.all().back().shortcuts.size(), std::size_t(1));
}

void TestDesktop::closing_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<bool>("forced");
    QTest::newRow("by its own button") << "closeButton" << false;
    QTest::newRow("by the level, while it waits in a loop") << "loopButton" << true;
    QTest::newRow("by the level, while it processes events") << "eventsButton" << true;
}

// Nothing may be deleted before the slot that was pressed has ended, and it opens again as often as wanted.
void TestDesktop::closing()
{
    QFETCH(QString, button);
    QFETCH(bool, forced);
    Pendant window;
    for (int round = 0; round < 3; ++round) {
        init();
        QVERIFY(press(window, Tile));
        QSignalSpy left(&window.first(), &ApplicationSlot::left);
        if (forced)
            QTimer::singleShot(30, &window, [&window] {
                UserSession::instance().setUserLevel(2);
                // Off the screen at once, and a new one is not made beside the old one.
                QVERIFY(window.home().isVisible());
                UserSession::instance().setUserLevel(4);
                QVERIFY(press(window, Tile));
                QCOMPARE(window.state(), ApplicationSlot::State::Leaving);
            });
        QVERIFY(press(window, qPrintable(button)));
        QCOMPARE(window.state(), ApplicationSlot::State::Leaving);
        QVERIFY(left.wait());
        const QStringList expected = {"variables 0 0", "slot ended", "widget deleted", "data deleted"};
        QCOMPARE(journal().mid(3, 4), expected);
        if (forced) {
            // What was asked for in the meantime follows.
            QCOMPARE(window.state(), ApplicationSlot::State::Shown);
            QVERIFY(press(window, "closeButton"));
            QVERIFY(left.wait());
        }
        QVERIFY(window.home().isVisible());
    }
}

void TestDesktop::levelTooLowAtOpening()
{
    Pendant window;
    UserSession::instance().setUserLevel(1);
    QVERIFY(press(window, Tile));
    QVERIFY(window.home().isVisible());
    QVERIFY2(window.home().notice().contains("level 1"), qPrintable(window.home().notice()));

    UserSession::instance().setUserLevel(3);
    QTRY_COMPARE(window.state(), ApplicationSlot::State::Empty);
    QVERIFY(press(window, Tile));
    QCOMPARE(window.state(), ApplicationSlot::State::Shown);
    QVERIFY(window.home().notice().isEmpty());
}

void TestDesktop::logInDialogChangesLevel()
{
    Pendant window;
    const auto answer = [&window](const char* button) {
        QTimer::singleShot(50, &window, [button] {
            QWidget* dialog = QApplication::activeModalWidget();
            QVERIFY(dialog);
            QVERIFY(press(*dialog, button));
        });
        return press(window, "logInButton");
    };
    QVERIFY(answer("level5"));
    QCOMPARE(UserSession::instance().userLevel(), 5);
    QVERIFY(answer("cancelButton"));
    QCOMPARE(UserSession::instance().userLevel(), 5);
}

void TestDesktop::restart()
{
    struct Observer : BusObserver
    {
        void busNotification(int, const QString&, bool) override { ++notified; }
        int notified = 0;
    } observer;
    observer.setIsFieldXml(true);
    BusFileDataManager::getInstance()->attach(&observer);

    Pendant window;
    QVERIFY(press(window, Tile));
    QSignalSpy restarted(&window, &PendantWindow::restarted);
    // The request comes while the application waits in a slot, as after a save.
    QTimer::singleShot(30, &window, [] { PendantPower::instance().requestRestart(); });
    QVERIFY(press(window, "eventsButton"));
    QVERIFY(!window.home().isVisible());
    QVERIFY(restarted.wait());
    QVERIFY(window.home().isVisible());
    QCOMPARE(journal().mid(3),
             QStringList({"variables 0 0", "slot ended", "widget deleted", "data deleted"}));

    // The session of the bus files is a new one.
    BusFileDataManager::getInstance()->emitGetFieldXml();
    QTest::qWait(50);
    QCOMPARE(observer.notified, 0);
}

void TestDesktop::unknownPageIsNotClosed()
{
    QCOMPARE(DesktopApi::pageIdFromClassName(QStringLiteral("FieldbusSetting")), -1);
    const int id = Desktop::instance().addApplication(QStringLiteral("fieldbussetting"));
    QVERIFY(id > 0);
    QSignalSpy requests(&Desktop::instance(), &Desktop::closeRequested);
    DesktopApi::closeApplication(-1, false);
    DesktopApi::closeApplication(id + 1000, false);
    QCOMPARE(requests.size(), 0);
    DesktopApi::closeApplication(id, true);
    QCOMPARE(requests.size(), 1);
}

void TestDesktop::workDirectory()
{
    const QString before = QDir::currentPath();
    QTemporaryDir folder;
    const QString root = folder.filePath(QStringLiteral("a b/p\u00e4ndant"));
    for (int round = 0; round < 2; ++round) {
        WorkDirectory work(root);
        QVERIFY2(work.enter(), qPrintable(work.error()));
        QCOMPARE(QDir::currentPath(), root + "/bin");
        QVERIFY(QFileInfo(QStringLiteral("../Application/fidbus/im-export")).isDir());
        QVERIFY(QFileInfo(QStringLiteral("../Application/Setup")).isDir());
        // Its sub-folders are the application's to make.
        QVERIFY(QDir(QStringLiteral("../Application/fieldbusSetting")).isEmpty());
    }
    QDir::setCurrent(before);
}

void TestDesktop::workDirectoryThatCannotBeMade_data()
{
    QTest::addColumn<QString>("root");
    // Also root cannot make these.
    QTest::newRow("below a file") << QCoreApplication::applicationFilePath() + "/work";
    QTest::newRow("where nothing can be made") << QStringLiteral("/proc/work");
}

void TestDesktop::workDirectoryThatCannotBeMade()
{
    QFETCH(QString, root);
    const QString before = QDir::currentPath();
    WorkDirectory work(root);
    QVERIFY(!work.enter());
    QVERIFY2(work.error().contains(root), qPrintable(work.error()));
    QCOMPARE(QDir::currentPath(), before);
}

void TestDesktop::options_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<bool>("accepted");
    QTest::addColumn<QString>("tourDirectory");
    const QString here = QDir::currentPath();
    QTest::newRow("tour alone") << QStringList{"--tour"} << true << here + "/tour";
    QTest::newRow("tour, then an option") << QStringList{"--tour", "--panel"} << true << here + "/tour";
    QTest::newRow("tour=folder") << QStringList{"--tour=/x/../y"} << true << "/y";
    QTest::newRow("stray word") << QStringList{"word"} << false << QString();
    QTest::newRow("level 6") << QStringList{"--user-level", "6"} << false << QString();
    QTest::newRow("port 65536") << QStringList{"--mtcp-port", "65536"} << false << QString();
    QTest::newRow("scale nan") << QStringList{"--time-scale", "nan"} << false << QString();
    QTest::newRow("scale 10") << QStringList{"--time-scale", "10"} << true << QString();
}

void TestDesktop::options()
{
    QFETCH(QStringList, arguments);
    QFETCH(bool, accepted);
    QFETCH(QString, tourDirectory);
    const Options options = Options::parse(QStringList{"pendant"} + arguments, {"fetch-fails"});
    QVERIFY2(options.problem.isEmpty() == accepted, qPrintable(options.problem));
    if (accepted)
        QCOMPARE(options.tourDirectory, tourDirectory);
}

PENDANT_TEST_MAIN(TestDesktop)

#include "tst_desktop.moc"
