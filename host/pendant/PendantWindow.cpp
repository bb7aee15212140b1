#include "PendantWindow.h"

#include "ApplicationInfo.h"
#include "ApplicationSlot.h"
#include "BusFileService.h"
#include "ControllerLink.h"
#include "CurrentLink.h"
#include "HomeScreen.h"
#include "LanguageChange.h"
#include "Languages.h"
#include "LogInDialog.h"
#include "PendantPower.h"
#include "StatusBar.h"
#include "TimeScale.h"
#include "UserSession.h"
#include "ZelFunctions.h"

#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QStackedWidget>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace {
constexpr int RestartMs = 3000;
constexpr int RetryMs = 20; ///< while something of an application is still at work
} // namespace

PendantWindow::PendantWindow(const InstalledApplications& applications, QWidget* parent)
    : QWidget(parent)
    , m_statusBar(new StatusBar(this))
    , m_pages(new QStackedWidget(this))
    , m_home(new HomeScreen(applications.all()))
    , m_restarting(new QLabel)
{
    setObjectName(QStringLiteral("pendantWindow"));
    retranslate();
    ZelSetUIStyleSheet(this, QStringLiteral("host"));
    setMinimumSize(screenSize());
    resize(screenSize());

    // On a larger screen what applications are drawn for stays in the middle.
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->setRowStretch(0, 1);
    layout->addWidget(m_statusBar, 1, 0, Qt::AlignHCenter);
    layout->addWidget(m_pages, 2, 0, Qt::AlignHCenter);
    layout->setRowStretch(3, 1);
    m_statusBar->setFixedWidth(Width);
    m_pages->setFixedSize(Width, PageHeight);
    m_restarting->setObjectName(QStringLiteral("restartNotice"));
    m_restarting->setAlignment(Qt::AlignCenter);
    m_pages->addWidget(m_home);
    m_pages->addWidget(m_restarting);

    connect(m_home, &HomeScreen::tilePressed, this, &PendantWindow::openApplication);
    connect(m_home, &HomeScreen::restartPressed, &PendantPower::instance(), &PendantPower::requestRestart);
    connect(m_statusBar, &StatusBar::logInRequested, this, &PendantWindow::logIn);
    connect(m_statusBar, &StatusBar::languageRequested, this, [this] { m_language->choose(); });
    connect(&PendantPower::instance(), &PendantPower::restartRequested, this, &PendantWindow::restart);

    QStringList problems = applications.problems();
    for (const ApplicationInfo& info : applications.all()) {
        auto* area = new QWidget;
        area->setObjectName(QStringLiteral("applicationArea"));
        area->resize(Width, PageHeight);
        m_pages->addWidget(area);
        auto* application = new ApplicationSlot(info, area, this);
        addApplication(application);
        if (!application->load())
            problems.append(application->error());
        Languages::instance().addProgram(info.className);
        application->startResident();
    }
    m_home->setNotice(problems.join(QLatin1Char('\n')));
    m_language = std::make_unique<LanguageChange>(*this);
}

void PendantWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        // What goes by the language beside the texts is in the sheet.
        ZelSetUIStyleSheet(this, QStringLiteral("host"));
        retranslate();
    }
    QWidget::changeEvent(event);
}

void PendantWindow::retranslate()
{
    setWindowTitle(tr("Pendant"));
    m_restarting->setText(tr("\u21BB\nRestarting the pendant ..."));
}

QSize PendantWindow::screenSize()
{
    return {Width, StatusBar::Height + PageHeight};
}

PendantWindow::~PendantWindow()
{
    // An application is a child of its area and has to go before it.
    qDeleteAll(m_applications);
}

void PendantWindow::addApplication(ApplicationSlot* application)
{
    m_applications.push_back(application);
    connect(application, &ApplicationSlot::opened, this,
            [this, application] { showPage(application->area()); });
    connect(application, &ApplicationSlot::closed, this,
            [this, application](bool forced) { applicationClosed(*application, forced); });
    connect(application, &ApplicationSlot::left, this, &PendantWindow::applicationLeft);
}

ApplicationSlot* PendantWindow::application(const QString& className) const
{
    const auto found =
        std::find_if(m_applications.begin(), m_applications.end(),
                     [&className](const ApplicationSlot* one) { return one->info().className == className; });
    return found == m_applications.end() ? nullptr : *found;
}

ApplicationSlot* PendantWindow::present() const
{
    const auto found =
        std::find_if(m_applications.begin(), m_applications.end(), [](const ApplicationSlot* one) {
            return one->state() != ApplicationSlot::State::Empty;
        });
    return found == m_applications.end() ? nullptr : *found;
}

bool PendantWindow::isRestarting() const
{
    return m_pages->currentWidget() == m_restarting;
}

void PendantWindow::openApplication(const QString& className)
{
    ApplicationSlot* const wanted = application(className);
    const ApplicationSlot* const last = present();
    if (!wanted || isRestarting() || (last && last->state() == ApplicationSlot::State::Shown))
        return;
    if (last) {
        m_openWhenLeft = className;
        return;
    }
    const ControllerLink* const link = currentLink();
    if (wanted->info().needsController && link && !link->isUp())
        return;
    m_home->setNotice(QString());
    if (!wanted->open())
        m_home->setNotice(wanted->error());
}

void PendantWindow::showPage(QWidget* page)
{
    m_pages->setCurrentWidget(page);
}

void PendantWindow::applicationClosed(const ApplicationSlot& application, bool forced)
{
    if (isRestarting())
        return;
    if (forced)
        m_home->setNotice(tr("%1 was closed: user level %2 may not use it. "
                             "Log in with a higher level and open it again.")
                              .arg(application.info().shownName())
                              .arg(UserSession::instance().userLevel()));
    showPage(m_home);
}

void PendantWindow::applicationLeft()
{
    finishRestart();
    if (!m_openWhenLeft.isEmpty() && !isRestarting())
        openApplication(std::exchange(m_openWhenLeft, QString()));
}

void PendantWindow::logIn()
{
    const int level = ChoiceDialog::ask(new LogInDialog(UserSession::instance().userLevel(), this));
    if (level >= 0)
        UserSession::instance().setUserLevel(level);
}

void PendantWindow::restart()
{
    if (isRestarting())
        return;
    m_openWhenLeft.clear();
    m_restartShown = false;
    m_home->setNotice(QString());
    showPage(m_restarting);
    for (ApplicationSlot* application : m_applications)
        application->close();
    QTimer::singleShot(static_cast<int>(RestartMs / timeScale()), this, [this] {
        m_restartShown = true;
        finishRestart();
    });
}

// A restart is over when its notice was shown long enough and nothing of the applications is left. What is
// resident begins anew.
void PendantWindow::finishRestart()
{
    if (!m_restartShown || !isRestarting() || present())
        return;
    for (ApplicationSlot* application : m_applications) {
        if (!application->stopResident()) {
            QTimer::singleShot(RetryMs, this, &PendantWindow::finishRestart);
            return;
        }
    }
    BusFileService::instance().resetSession();
    for (ApplicationSlot* application : m_applications)
        application->startResident();
    m_restartShown = false;
    showPage(m_home);
    emit restarted();
}
