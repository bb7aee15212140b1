#include "ApplicationInfo.h"
#include "ControllerPanel.h"
#include "CurrentLink.h"
#include "Faults.h"
#include "FolderLock.h"
#include "HomeScreen.h"
#include "Languages.h"
#include "ModbusSlave.h"
#include "Options.h"
#include "Partners.h"
#include "PendantApplication.h"
#include "PendantWindow.h"
#include "Scenario.h"
#include "Screen.h"
#include "Shortcut.h"
#include "SimulatedController.h"
#include "SmallScreen.h"
#include "TimeScale.h"
#include "Tour.h"
#include "Traffic.h"
#include "UsbDrive.h"
#include "UserSession.h"
#include "WorkDirectory.h"

#include <QDir>
#include <QFile>
#include <QHostAddress>
#include <QLoggingCategory>
#include <QScreen>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QTextStream>

#include <memory>
#include <optional>

namespace {
constexpr int ExitUsage = 2;

/// Connects the pendant to `link` for as long as it lives.
class Connection
{
public:
    explicit Connection(ControllerLink& link) { setCurrentLink(&link); }
    ~Connection() { setCurrentLink(nullptr); }
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;
};

/// Says what is wrong with the file; empty when it was taken.
QString load(Scenario& scenario, const QString& path)
{
    QFile file(path);
    if (path.isEmpty())
        return {};
    const QString wrong = file.open(QIODevice::ReadOnly) ? scenario.load(file.readAll()) : file.errorString();
    return wrong.isEmpty() ? wrong : QStringLiteral("%1: %2").arg(path, wrong);
}

bool switchPartners(Partners& partners, bool on)
{
    // Several tours may be on the way at a time.
    if (on)
        partners.useFreePorts();
    else
        partners.stopAll();
    return !on || partners.startAll();
}

int refuse(const QString& problem)
{
    QTextStream(stderr) << "pendant: " << problem << '\n';
    return ExitUsage;
}

TourGuide::Fetches takeFetches(Traffic& traffic)
{
    TourGuide::Fetches fetches = {traffic.fetches(), traffic.failed(Traffic::Fetch)};
    traffic.clear();
    return fetches;
}

/// Empty when the controller and what is around the pendant are as the options want them.
QString setUp(SimulatedController& controller, const Options& options)
{
    if (!controller.error().isEmpty())
        return controller.error();
    for (const QString& fault : options.faults) {
        if (!controller.faults().setFromText(fault))
            return Options::tr("There is no fault \"%1\"; --help tells their names.").arg(fault);
    }
    setTimeScale(options.timeScale.value_or(1.0));
    controller.setTimeScale(timeScale());
    if (options.userLevel)
        UserSession::instance().setUserLevel(*options.userLevel);
    if (!options.usb.isEmpty())
        UsbDrive::instance().insert(options.usb);
    return {};
}

/// Debug lines are for those who ask for them.
void setUpLog(bool verbose)
{
    QLoggingCategory::setFilterRules(verbose ? QStringLiteral("*.debug=true\nqt.*.debug=false")
                                             : QStringLiteral("*.debug=false"));
    if (verbose)
        qSetMessagePattern(QStringLiteral("%{time hh:mm:ss.zzz} %{category}: %{message}"));
}

/// What is to be told on the home screen about a port that another program has; empty when it is free.
QString takenPortNotice(int port)
{
    QTcpServer probe;
    if (port == 0 || probe.listen(QHostAddress::LocalHost, static_cast<quint16>(port)))
        return {};
    return Options::tr("Port %1 of this machine is taken, so the controller's Modbus TCP slave cannot be "
                       "reached. Another port is given with --mtcp-port.")
        .arg(port);
}

/// Those of the system, those beside the program (where it was built), and what the options add.
InstalledApplications installedApplications(const Options& options)
{
    InstalledApplications installed;
    const QDir program(QCoreApplication::applicationDirPath());
    for (const char* folder : {INSTALLED_APPLICATIONS, "applications"})
        installed.addFolder(QDir::cleanPath(program.filePath(QLatin1String(folder))));
    for (const QString& file : options.applications)
        installed.addFile(file);
    return installed;
}

/// Shows the pendant, through a window onto it where the screen is too small; null where it is not.
std::unique_ptr<SmallScreen> show(PendantWindow& window, const Options& options)
{
    std::unique_ptr<SmallScreen> screen;
    const QSize room = options.size.isEmpty() ? QGuiApplication::primaryScreen()->availableSize()
                                              : options.size / options.drawingScale();
    // The tour's pictures show the whole pendant.
    if (!options.tour && SmallScreen::isNeeded(room)) {
        screen = std::make_unique<SmallScreen>(window);
        screen->resize(room);
        screen->show();
    } else if (!options.size.isEmpty()) {
        window.resize(room);
    }
    window.show();
    return screen;
}

/// The pendant and the controller's panel, until the window is closed or the tour is over.
int runWith(SimulatedController& controller, Scenario& scenario, const Options& options)
{
    const Connection connection(controller);
    PendantWindow window(installedApplications(options));
    const Shortcut finsPage(window, QStringLiteral("finsPage"));
    ControllerPanel panel(controller,
                          {[finsPage] { return finsPage.isAtHand(); }, [finsPage] { finsPage.show(); }});
    // After the panel, whose log tells when the port is taken. Several tours may be on the way at a time.
    const int port = options.mtcpPort.value_or(options.tour ? 0 : ModbusSlave::DefaultPort);
    const QString notice = takenPortNotice(port);
    if (!notice.isEmpty())
        window.home().setNotice(notice);
    controller.setModbusPort(port);
    const std::unique_ptr<SmallScreen> smallScreen = show(window, options);
    if (options.panel) {
        panel.move(window.frameGeometry().topRight() + QPoint(16, 0));
        panel.show();
    }
    scenario.start();
    if (!options.tour)
        return PendantApplication::exec();
    return makeTour({window,
                     controller,
                     &panel,
                     controller.modbusPort(),
                     [&controller](bool on) { controller.setServoOn(on); },
                     [&controller] { return takeFetches(controller.traffic()); },
                     [&controller](bool on) { return switchPartners(controller.partners(), on); },
                     [&controller](const QString& role, bool on) { controller.setRoleOn(role, on); },
                     {}},
                    options.tourDirectory);
}
} // namespace

int main(int argc, char* argv[])
{
    const Screen screen(argc, argv);
    const QString noScreen = screen.prepare(Options::parse(screen.arguments(), {}));
    if (!noScreen.isEmpty())
        return refuse(noScreen);
    PendantApplication application(argc, argv);
    // Without those that Qt takes for itself.
    const Options options = Options::parse(QCoreApplication::arguments(), {Options::tr("see the end")});
    QCoreApplication::setOrganizationName(QStringLiteral("Fieldbus Pendant"));
    QCoreApplication::setApplicationName(QStringLiteral("fieldbus-pendant"));
    setUpLog(options.verbose);
    Languages::instance().use(options.language.isEmpty() ? QStringLiteral("en") : options.language);
    if (!options.problem.isEmpty())
        return refuse(options.problem);
    if (options.version) {
        QTextStream(stdout) << Options::versionText() << '\n';
        return 0;
    }
    if (options.help) {
        QTextStream(stdout) << options.helpText << '\n' << Options::tr("Faults:") << '\n' << Faults::table();
        return 0;
    }

    // A tour meets the state of the factory, and leaves nothing for the next one.
    std::optional<QTemporaryDir> scratch;
    if (options.tour && options.workDirectory.isEmpty())
        scratch.emplace();
    WorkDirectory work(scratch ? scratch->path() : options.workDirectory, options.controllerStore);
    if (!work.enter())
        return refuse(work.error());

    const QString store =
        options.controllerStore.isEmpty() ? work.controllerStore() : options.controllerStore;
    FolderLock lock;
    if (!lock.take(work.root()) || !lock.take(store))
        return refuse(lock.problem());
    SimulatedController controller(store);
    QString problem = setUp(controller, options);
    Scenario scenario(controller, [](int level) { UserSession::instance().setUserLevel(level); });
    if (problem.isEmpty())
        problem = load(scenario, options.scenario);
    return problem.isEmpty() ? runWith(controller, scenario, options) : refuse(problem);
}
