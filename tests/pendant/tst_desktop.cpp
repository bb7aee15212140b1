#include "ApplicationInfo.h"
#include "ApplicationSlot.h"
#include "BusFileDataManager.h"
#include "BusObserver.h"
#include "CurrentLink.h"
#include "Desktop.h"
#include "DesktopApi.h"
#include "Finger.h"
#include "FolderLock.h"
#include "HomeScreen.h"
#include "MemoryLink.h"
#include "Options.h"
#include "PendantPower.h"
#include "PendantWindow.h"
#include "Rows.h"
#include "Screen.h"
#include "SmallScreen.h"
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

using Holds = std::function<bool(const Options&)>;
Q_DECLARE_METATYPE(Holds)

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

using LoadingFailsRows = Rows<QString, QString>;
using DescriptionsRows = Rows<QByteArray, QString>;
using ClosingRows = Rows<QString, bool>;
using WorkDirectoryThatCannotBeMadeRows = Rows<QString>;
using ScreenOfAnySizeRows = Rows<QSize>;
using ScreenIsChosenRows = Rows<QString, QByteArray, QByteArray, bool>;

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

    void loadingFails_data()
    {
        const LoadingFailsRows row;
        const QString folder = QStringLiteral(TEST_PLUGINS);
        row("no file", folder + "/libnothing.so", "libnothing");
        row("not a library", QCoreApplication::applicationFilePath(), "could not be loaded");
        row("no function", folder + "/libtestplugin0.so", "CreateZelCustomData");
        row("one function", folder + "/libtestplugin1.so", "CreateZelCustomWidget");
    }

    void loadingFails()
    {
        const auto [file, reason] = LoadingFailsRows::current();
        Pendant window(only(file));
        QVERIFY2(window.home().notice().contains(reason), qPrintable(window.home().notice()));

        QVERIFY(press(window, Tile));
        QVERIFY2(window.home().notice().contains(reason), qPrintable(window.home().notice()));
        QVERIFY(window.home().isVisible());
    }

    void applicationThatDoesNotStart()
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

    void life()
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

    void ticksOnlyWhileShown()
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

    void residentRunsUnseen()
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

    void oneIsOpenAtATime()
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

    void tileWaitsForTheController()
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

    void descriptions_data()
    {
        const DescriptionsRows row;
        const QByteArray good = R"({"class": "a", "library": "liba.so", "name": {"en": "An A", "xx": "X"}})";
        row("good", good, QString());
        row("cut short", good.chopped(1), "unterminated");
        row("empty", QByteArray(), "illegal");
        row("no class", QByteArray(good).replace("class", "klass"), "does not tell");
        row("no library", QByteArray(good).replace("liba.so", ""), "does not tell");
        row("no English name", QByteArray(good).replace("en", "yy"), "does not tell");
    }

    void descriptions()
    {
        const auto [text, problem] = DescriptionsRows::current();
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
            QVERIFY2(installed.problems().constFirst().contains(problem),
                     qPrintable(installed.problems()[0]));
    }

    void installing()
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

    void closing_data()
    {
        const ClosingRows row;
        row("by its own button", "closeButton", false);
        row("by the level, while it waits in a loop", "loopButton", true);
        row("by the level, while it processes events", "eventsButton", true);
    }

    // Nothing may be deleted before the slot that was pressed has ended, and it opens again as often as
    // wanted.
    void closing()
    {
        const auto [button, forced] = ClosingRows::current();
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

    void levelTooLowAtOpening()
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

    void logInDialogChangesLevel()
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

    void restart()
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

    void unknownPageIsNotClosed()
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

    void workDirectory()
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

    void workDirectoryThatCannotBeMade_data()
    {
        const WorkDirectoryThatCannotBeMadeRows row;
        // Also root cannot make these.
        row("below a file", QCoreApplication::applicationFilePath() + "/work");
        row("where nothing can be made", QStringLiteral("/proc/work"));
    }

    void workDirectoryThatCannotBeMade()
    {
        const auto [root] = WorkDirectoryThatCannotBeMadeRows::current();
        const QString before = QDir::currentPath();
        WorkDirectory work(root);
        QVERIFY(!work.enter());
        QVERIFY2(work.error().contains(root), qPrintable(work.error()));
        QCOMPARE(QDir::currentPath(), before);
    }

    void options_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("problem"); // empty: accepted
        QTest::addColumn<Holds>("holds");
        const auto row = [](const char* arguments, const char* problem, const Holds& holds = {}) {
            QTest::newRow(arguments) << QString::fromLatin1(arguments).split(' ')
                                     << QString::fromLatin1(problem) << holds;
        };
        const QString here = QDir::currentPath();
        row("--tour", "", [here](const Options& o) { return o.tour && o.tourDirectory == here + "/tour"; });
        row("--tour --panel", "",
            [here](const Options& o) { return o.panel && o.tourDirectory == here + "/tour"; });
        row("--tour=/x/../y", "", [](const Options& o) { return o.tourDirectory == "/y"; });
        row("word", "word");
        row("--plugin x", "plugin");
        row("--application a.so --application=/b.json", "", [here](const Options& o) {
            return o.applications == QStringList({here + "/a.so", "/b.json"});
        });
        row("--controller c --workdir ../w", "", [here](const Options& o) {
            return o.controllerStore == here + "/c" && o.workDirectory == QDir::cleanPath(here + "/../w");
        });
        row("--usb /nowhere", "/nowhere");
        row("--usb /tmp", "", [](const Options& o) { return o.usb == "/tmp"; });
        row("--fault a:1 --fault b", "", [](const Options& o) {
            return o.faults == QStringList({"a:1", "b"});
        });
        row("--user-level 6", "0 to 5");
        row("--user-level 0", "", [](const Options& o) { return o.userLevel == 0; });
        row("--user-level 1.5", "0 to 5");
        row("--mtcp-port 65536", "1 to 65535");
        row("--mtcp-port 1502", "", [](const Options& o) { return o.mtcpPort == 1502; });
        row("--time-scale nan", "--time-scale");
        row("--time-scale 0", "--time-scale");
        row("--time-scale 10", "", [](const Options& o) { return o.timeScale == 10.0; });
        row("--language fr", "zh_CN");
        row("--language zh_CN", "", [](const Options& o) { return o.language == "zh_CN"; });
        row("--scale 0.75", "1 to 4");
        row("--scale 1.5", "", [](const Options& o) { return o.drawingScale() == 1.5 && o.size.isEmpty(); });
        row("--size 800x600", "",
            [](const Options& o) { return o.drawingScale() == 1.0 && o.size == QSize(800, 600); });
        row("--size 1280x800", "", [](const Options& o) { return o.drawingScale() == 800 / 768.0; });
        row("--size 800", "--size");
        row("--verbose", "", [](const Options& o) { return o.verbose; });
        row("--help", "", [](const Options& o) { return o.help && o.helpText.contains("fetch-fails"); });
    }

    void options()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, problem);
        QFETCH(Holds, holds);
        const Options options = Options::parse(QStringList{"pendant"} + arguments, {"fetch-fails"});
        QCOMPARE(options.problem.isEmpty(), problem.isEmpty());
        QVERIFY2(options.problem.contains(problem), qPrintable(options.problem));
        QVERIFY(!holds || holds(options));
    }

    void foldersAreNotShared()
    {
        QTemporaryDir folder;
        const QString store = folder.filePath(QStringLiteral("store"));
        auto first = std::make_unique<FolderLock>();
        QVERIFY(first->take(store));
        QVERIFY(first->take(folder.filePath(QStringLiteral("other"))));
        FolderLock second;
        QVERIFY(!second.take(store + "/../store/"));
        QVERIFY2(second.problem().contains(QString::number(QCoreApplication::applicationPid())),
                 qPrintable(second.problem()));
        first.reset();
        QVERIFY(second.take(store));
        QVERIFY(WorkDirectory(QString(), "/a").root() != WorkDirectory(QString(), "/b").root());
    }

    void screenOfAnySize_data()
    {
        const ScreenOfAnySizeRows row;
        row("as drawn", QSize(1024, 768));
        row("wider", QSize(1280, 768));
        row("higher", QSize(1024, 900));
    }

    // What applications are drawn for stays whole, in the middle, and the rest is painted.
    void screenOfAnySize()
    {
        const auto [size] = ScreenOfAnySizeRows::current();
        Pendant window;
        window.resize(size);
        window.openApplication(ClassName);
        const QWidget* page = window.first().widget();
        QCOMPARE(page->size(), QSize(1024, 680));
        const QRect place(page->mapTo(&window, QPoint()), page->size());
        QCOMPARE(place.center().x(), window.rect().center().x());
        QVERIFY(window.rect().contains(place));
    }

    // A finger brings the end of the pendant into sight; what lies there can be pressed.
    void smallScreenReachesAll()
    {
        Pendant window;
        QVERIFY(SmallScreen::isNeeded(QSize(800, 600)) && !SmallScreen::isNeeded(QSize(1024, 768)));
        SmallScreen screen(window);
        screen.resize(800, 600);
        screen.show();
        QWidget* button = window.findChild<QWidget*>("restartButton");
        QVERIFY(!screen.rect().contains(QRect(button->mapTo(&screen, QPoint()), button->size())));
        screen.ensureWidgetVisible(button);
        QVERIFY(screen.rect().contains(QRect(button->mapTo(&screen, QPoint()), button->size())));
        QSignalSpy restarted(&window, &PendantWindow::restarted);
        QVERIFY(Finger::press(button));
        QVERIFY(restarted.wait());
    }

    void screenIsChosen_data()
    {
        const ScreenIsChosenRows row;
        row("a compositor that is gone", "", QByteArray(), QByteArray(), false);
        row("X11", "", QByteArray(":0"), QByteArray(), true);
        row("the tour needs none", "--tour", QByteArray(), QByteArray("offscreen"), true);
        row("neither does help", "--help", QByteArray(), QByteArray("offscreen"), true);
        row("nor the version", "--version", QByteArray(), QByteArray("offscreen"), true);
        row("Qt was told", "-platform minimal", QByteArray(), QByteArray(), true);
    }

    void screenIsChosen()
    {
        const auto [arguments, x11, platform, isThere] = ScreenIsChosenRows::current();
        const char* const names[] = {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY", "XDG_RUNTIME_DIR"};
        QMap<QByteArray, QByteArray> before;
        for (const char* name : names) {
            before[name] = qgetenv(name);
            qputenv(name, {});
        }
        qputenv("DISPLAY", x11);
        const QTemporaryDir runtime;
        QVERIFY(QFile(runtime.filePath("wayland-0")).open(QIODevice::WriteOnly));
        qputenv("XDG_RUNTIME_DIR", runtime.path().toUtf8());
        const QByteArray text = "pendant " + arguments.toLatin1();
        QByteArrayList words = text.simplified().split(' ');
        std::vector<char*> argv;
        for (QByteArray& word : words)
            argv.push_back(word.data());
        const Screen screen(static_cast<int>(argv.size()), argv.data());
        const QString problem = screen.prepare(Options::parse(screen.arguments(), {}));
        const QByteArray chosen = qgetenv("QT_QPA_PLATFORM");
        for (auto it = before.cbegin(); it != before.cend(); ++it)
            qputenv(it.key(), it.value());
        QCOMPARE(problem.isEmpty(), isThere);
        QCOMPARE(chosen, platform);
    }
};

PENDANT_TEST_MAIN(TestDesktop)

#include "tst_desktop.moc"
