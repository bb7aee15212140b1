#include "LayoutAudit.h"

#include "ApplicationInfo.h"
#include "BusFileService.h"
#include "CurrentLink.h"
#include "Languages.h"
#include "Partners.h"
#include "PendantFixture.h"
#include "Rows.h"
#include "TimeScale.h"
#include "Tour.h"

#include <QTranslator>

namespace {

constexpr double Pace = 10.0; // times real time
constexpr auto Lengthened = "lengthened";

/// English as it would be in a language whose words are longer by two fifths. What texts have in them that is
/// no word stays: "%1", paths, names of files.
class Lengthener : public QTranslator
{
public:
    QString translate(const char* /*context*/, const char* source, const char* /*disambiguation*/,
                      int /*n*/) const override
    {
        const QString text = QString::fromUtf8(source);
        if (text.startsWith(QLatin1String("../")))
            return text;
        QString longer;
        int owed = 0;
        for (int at = 0; at < text.size(); ++at) {
            longer += text[at];
            const bool isWord = text[at].isLetter() && (at == 0 || text[at - 1] != QLatin1Char('%'));
            owed += isWord ? 2 : 0;
            if (isWord && owed >= 5) {
                longer += text[at].toLower();
                owed -= 5;
            }
        }
        return longer;
    }
    bool isEmpty() const override { return false; }
};

} // namespace

/// Walks the whole tour and looks at each of its stops.
class LayoutTest : public QObject
{
    Q_OBJECT

private slots:
    void everyStop_data();
    void everyStop();
};

void LayoutTest::everyStop_data()
{
    const Rows<QString> row;
    row("English", "en");
    row(Lengthened, Lengthened);
    row("German", "de");
    row("Japanese", "ja");
    row("Chinese", "zh_CN");
}

void LayoutTest::everyStop()
{
    const auto [language] = Rows<QString>::current();
    const bool isLengthened = language == QLatin1String(Lengthened);
    Lengthener lengthener;
    Languages::instance().use(isLengthened ? QStringLiteral("en") : language);
    if (isLengthened)
        QCoreApplication::installTranslator(&lengthener);

    const QTemporaryDir directory;
    WorkDirectory work(directory.path());
    QVERIFY2(work.enter(), qPrintable(work.error()));
    setTimeScale(Pace);
    SimulatedController controller(work.controllerStore());
    controller.setTimeScale(Pace);
    controller.setModbusPort(0);
    setCurrentLink(&controller);
    BusFileService::instance().resetSession();
    InstalledApplications installed;
    installed.addFolder(
        QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("applications")));
    LayoutAudit audit(language == QLatin1String("en"));
    {
        PendantWindow window(installed);
        window.show();
        TourGuide::Subject subject{window, controller, nullptr, controller.modbusPort(), {}, {}, {}, {}, {}};
        subject.setServo = [&controller](bool on) { controller.setServoOn(on); };
        subject.takeFetches = [&controller] {
            const TourGuide::Fetches fetches = {controller.traffic().fetches(),
                                                controller.traffic().failed(Traffic::Fetch)};
            controller.traffic().clear();
            return fetches;
        };
        subject.switchPartners = [&controller](bool on) {
            if (on)
                controller.partners().useFreePorts();
            else
                controller.partners().stopAll();
            return !on || controller.partners().startAll();
        };
        subject.switchRole = [&controller](const QString& role, bool on) { controller.setRoleOn(role, on); };
        subject.look = [&audit](const QString& name) {
            const QWidgetList windows = QApplication::topLevelWidgets();
            for (QWidget* shown : windows) {
                if (shown->isVisible() && shown->windowType() != Qt::ToolTip)
                    audit.look(*shown, name);
            }
        };
        QCOMPARE(makeTour(subject, directory.filePath(QStringLiteral("pictures"))), 0);
    }
    setCurrentLink(nullptr);
    QDir::setCurrent(QCoreApplication::applicationDirPath());
    for (const QString& note : audit.notes())
        qWarning("%s", qPrintable(note));
    QCOMPARE(audit.notes().size(), 0);
}

PENDANT_TEST_MAIN(LayoutTest)

#include "LayoutTest.moc"
