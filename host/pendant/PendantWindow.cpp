#include "PendantWindow.h"

#include "ApplicationSlot.h"
#include "BusFileService.h"
#include "HomeScreen.h"
#include "LogInDialog.h"
#include "PendantPower.h"
#include "StatusBar.h"
#include "TimeScale.h"
#include "UserSession.h"
#include "ZelFunctions.h"

#include <QLabel>
#include <QPointer>
#include <QStackedWidget>
#include <QTimer>
#include <QVBoxLayout>

namespace {
constexpr int RestartMs = 3000;
} // namespace

PendantWindow::PendantWindow(const QString& plugin, QWidget* parent)
    : QWidget(parent)
    , m_statusBar(new StatusBar(this))
    , m_pages(new QStackedWidget(this))
    , m_home(new HomeScreen)
    , m_area(new QWidget)
    , m_restarting(new QLabel(tr("\u21BB\nRestarting the pendant ...")))
    , m_application(new ApplicationSlot(plugin, QStringLiteral("fieldbussetting"), m_area, this))
{
    setObjectName(QStringLiteral("pendantWindow"));
    setWindowTitle(tr("Pendant"));
    ZelSetUIStyleSheet(this, QStringLiteral("host"));
    setFixedSize(Width, StatusBar::Height + PageHeight);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_statusBar);
    layout->addWidget(m_pages);
    m_pages->setFixedSize(Width, PageHeight);
    m_area->setObjectName(QStringLiteral("applicationArea"));
    m_area->resize(Width, PageHeight);
    m_restarting->setObjectName(QStringLiteral("restartNotice"));
    m_restarting->setAlignment(Qt::AlignCenter);
    for (QWidget* page : {static_cast<QWidget*>(m_home), m_area, static_cast<QWidget*>(m_restarting)})
        m_pages->addWidget(page);

    connect(m_home, &HomeScreen::tilePressed, this, &PendantWindow::openApplication);
    connect(m_statusBar, &StatusBar::logInRequested, this, &PendantWindow::logIn);
    connect(m_application, &ApplicationSlot::opened, this, [this] { showPage(m_area); });
    connect(m_application, &ApplicationSlot::closed, this, &PendantWindow::applicationClosed);
    connect(m_application, &ApplicationSlot::left, this, &PendantWindow::applicationLeft);
    connect(&PendantPower::instance(), &PendantPower::restartRequested, this, &PendantWindow::restart);

    if (!m_application->load())
        m_home->setNotice(m_application->error());
}

PendantWindow::~PendantWindow()
{
    // The application is a child of the area and has to go before it.
    delete m_application;
}

void PendantWindow::openApplication()
{
    if (m_pages->currentWidget() == m_restarting || m_application->state() == ApplicationSlot::State::Shown)
        return;
    if (m_application->state() == ApplicationSlot::State::Leaving) {
        m_openWhenLeft = true;
        return;
    }
    m_home->setNotice(QString());
    if (!m_application->open())
        m_home->setNotice(m_application->error());
}

void PendantWindow::showPage(QWidget* page)
{
    m_pages->setCurrentWidget(page);
}

void PendantWindow::applicationClosed(bool forced)
{
    if (m_pages->currentWidget() == m_restarting)
        return;
    if (forced)
        m_home->setNotice(tr("Fieldbus settings was closed: user level %1 may not use it. "
                             "Log in with a higher level and open it again.")
                              .arg(UserSession::instance().userLevel()));
    showPage(m_home);
}

void PendantWindow::applicationLeft()
{
    finishRestart();
    if (m_openWhenLeft && m_pages->currentWidget() != m_restarting) {
        m_openWhenLeft = false;
        openApplication();
    }
}

void PendantWindow::logIn()
{
    const QPointer<LogInDialog> dialog(new LogInDialog(UserSession::instance().userLevel(), this));
    const int result = dialog->exec();
    if (!dialog)
        return;
    const int level = dialog->level();
    delete dialog.data();
    if (result == QDialog::Accepted)
        UserSession::instance().setUserLevel(level);
}

void PendantWindow::restart()
{
    if (m_pages->currentWidget() == m_restarting)
        return;
    m_openWhenLeft = false;
    m_restartShown = false;
    m_home->setNotice(QString());
    showPage(m_restarting);
    m_application->close();
    QTimer::singleShot(static_cast<int>(RestartMs / timeScale()), this, [this] {
        m_restartShown = true;
        finishRestart();
    });
}

// A restart is over when its notice was shown long enough and nothing of the application is left.
void PendantWindow::finishRestart()
{
    if (!m_restartShown || m_pages->currentWidget() != m_restarting ||
        m_application->state() != ApplicationSlot::State::Empty)
        return;
    BusFileService::instance().resetSession();
    m_restartShown = false;
    showPage(m_home);
    emit restarted();
}
