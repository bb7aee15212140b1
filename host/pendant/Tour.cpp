#include "Tour.h"

#include "ApplicationSlot.h"
#include "ControllerLink.h"
#include "Finger.h"
#include "MsgBox.h"
#include "PendantWindow.h"
#include "ZelBaseWidget.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QPainter>
#include <QStackedWidget>
#include <QTextStream>

#include <algorithm>
#include <utility>

namespace {
constexpr int LoadedAfterQuietMs = 300;
constexpr int LoadingLimitMs = 15000;
constexpr int LookEveryMs = 20;

QTextStream& out()
{
    static QTextStream stream(stdout);
    return stream;
}

void wait(int ms)
{
    QEventLoop loop;
    QTimer::singleShot(ms, &loop, &QEventLoop::quit);
    loop.exec();
}

bool isDialogOf(const QWidget* widget, const QWidget& window)
{
    return widget->isWindow() && widget->isVisible() && widget->windowType() != Qt::ToolTip &&
           widget != &window && (!widget->parentWidget() || widget->parentWidget()->window() == &window);
}

// The pendant with all that lies over it: dialogs are windows of their own and not in the window's picture.
QPixmap picturePendant(QWidget& window, const QWidget* panel)
{
    QPixmap picture = window.grab();
    QPainter painter(&picture);
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (QWidget* widget : widgets) {
        if (widget != panel && isDialogOf(widget, window))
            painter.drawPixmap(widget->pos() - window.pos(), widget->grab());
    }
    return picture;
}

QString joined(const QStringList& texts)
{
    return texts.isEmpty() ? QStringLiteral("-") : texts.join(QStringLiteral(" | "));
}
} // namespace

const Tour::Station Tour::Stations[] = {
    {"home", &Tour::visitHome},
    {"menu", &Tour::visitMenu},
    {"pages", &Tour::visitPages},
    {"heartbeat-lights", &Tour::visitHeartbeatLights},
    {"message", &Tour::visitMessage},
    {"numeric-keyboard", &Tour::visitNumericKeyboard},
    {"log-in", &Tour::visitLogIn},
    {"panel", &Tour::visitPanel},
    {"bus-switches", &Tour::visitBusSwitches},
    {"exit", &Tour::visitExit},
};

Tour::Tour(Subject subject, const QString& directory)
    : m_subject(std::move(subject))
    , m_directory(directory)
{
    m_answering.setInterval(LookEveryMs);
    connect(&m_answering, &QTimer::timeout, this, &Tour::answerDialog);
}

int Tour::run()
{
    if (!QDir().mkpath(m_directory.absolutePath())) {
        fail(tr("the folder %1 cannot be made").arg(m_directory.absolutePath()));
        return 2;
    }
    m_answering.start();
    int failures = 0;
    for (const Station& station : Stations) {
        if (!(this->*station.visit)()) {
            ++failures;
            fail(tr("station \"%1\" was not reached").arg(QLatin1String(station.name)));
        }
    }
    m_answering.stop();
    out() << tr("%n picture(s) in %1", nullptr, m_pictures)
                 .arg(QDir::toNativeSeparators(m_directory.absolutePath()))
          << '\n';
    out().flush();
    return failures == 0 ? 0 : 1;
}

bool Tour::visitHome()
{
    return settle() && report(QStringLiteral("home"));
}

bool Tour::visitMenu()
{
    const QString problem = m_subject.window.application().error();
    if (!problem.isEmpty())
        return fail(problem);
    if (!pressAndSettle(find(QStringLiteral("applicationTile"))))
        return false;
    QWidget* menu = find(QStringLiteral("menusGroupBox"));
    return menu && menu->isVisible() && report(QStringLiteral("menu"));
}

bool Tour::visitPages()
{
    const QWidget* menu = find(QStringLiteral("menusGroupBox"));
    if (!menu)
        return false;
    // By name: a page may change which buttons there are.
    QStringList names;
    const auto buttons = menu->findChildren<QAbstractButton*>();
    for (const QAbstractButton* button : buttons) {
        if (button->isVisible() && button->objectName() != QLatin1String("exitBtn"))
            names.append(button->objectName());
    }
    bool allLoaded = !names.isEmpty();
    for (const QString& name : qAsConst(names)) {
        const bool loaded = openPage(name) && !m_errorShown;
        if (!loaded)
            fail(tr("the page of %1 did not load").arg(name));
        allLoaded = report(pageClass()) && loaded && allLoaded;
    }
    return allLoaded;
}

bool Tour::visitHeartbeatLights()
{
    if (!openPage(QStringLiteral("heartbeatBtn")))
        return false;
    // Every second link is up. A role that is switched off keeps its grey ring.
    constexpr const char* Links[] = {"mtcp", "ethcat", "pfn", "eip", "ecm",
                                     "dns",  "mbc",    "eim", "pnm", "dnm"};
    bool up = true;
    for (const char* link : Links) {
        m_subject.controller.writeVariable(QStringLiteral("ifidbus.%1_link_state").arg(QLatin1String(link)),
                                           0, up ? 1.0 : 0.0);
        up = !up;
    }
    return settle() && report(QStringLiteral("heartbeat-lights"));
}

bool Tour::visitMessage()
{
    return openPage(QStringLiteral("heartbeatBtn")) &&
           pictureOfDialog(QStringLiteral("message"), QStringLiteral("saveButton"));
}

bool Tour::visitNumericKeyboard()
{
    return openPage(QStringLiteral("heartbeatBtn")) &&
           pictureOfDialog(QStringLiteral("numeric-keyboard"), QStringLiteral("modbusLineEdit"));
}

bool Tour::visitLogIn()
{
    return pictureOfDialog(QStringLiteral("log-in"), QStringLiteral("logInButton"));
}

bool Tour::visitPanel()
{
    if (!m_subject.panel)
        return true;
    const bool wasVisible = m_subject.panel->isVisible();
    m_subject.panel->show();
    const bool reported = settle() && report(QStringLiteral("panel"), m_subject.panel);
    m_subject.panel->setVisible(wasVisible);
    return reported;
}

bool Tour::visitBusSwitches()
{
    if (!openPage(QStringLiteral("busSetting")))
        return false;
    // Of the two DeviceNet roles one is refused while the other is on.
    auto* master = qobject_cast<QComboBox*>(find(QStringLiteral("devnetmSwitch")));
    auto* slave = qobject_cast<QComboBox*>(find(QStringLiteral("devnetSwitch")));
    if (!master || !slave)
        return false;
    slave->setCurrentIndex(0);
    master->setCurrentIndex(1);
    const bool warned = pictureOfDialog(QStringLiteral("bus-switch-warning"), [slave] {
        slave->setCurrentIndex(1);
        return true;
    });
    // Cancelled, which takes the switches back; then confirmed, which changes nothing and shows the wait.
    if (!warned || !pictureOfDialog(QStringLiteral("bus-switch-question"), QStringLiteral("saveBusBt")))
        return false;
    m_confirmNext = true;
    return Finger::press(find(QStringLiteral("saveBusBt"))) && report(QStringLiteral("bus-switch-wait")) &&
           settle() && report(QStringLiteral("bus-switch-saved"));
}

bool Tour::visitExit()
{
    // Opened again from the home screen, so that a second life of the application is seen as well.
    for (int round = 0; round < 2; ++round) {
        if (!pressAndSettle(find(QStringLiteral("exitBtn"))) || find(QStringLiteral("menusGroupBox")))
            return false;
        if (round == 0 && !pressAndSettle(find(QStringLiteral("applicationTile"))))
            return false;
    }
    return report(QStringLiteral("home-again"));
}

bool Tour::openPage(const QString& button)
{
    return pressAndSettle(find(button)) && !pageClass().isEmpty();
}

bool Tour::pictureOfDialog(const QString& name, const QString& button)
{
    return pictureOfDialog(name, [this, button] { return Finger::press(find(button)); });
}

bool Tour::pictureOfDialog(const QString& name, const std::function<bool()>& act)
{
    m_wantedDialog = name;
    m_dialogTaken = false;
    m_dialogSeen = false;
    const bool settled = act() && settle();
    m_wantedDialog.clear();
    return settled && m_dialogTaken;
}

bool Tour::pressAndSettle(QWidget* target)
{
    return Finger::press(target) && settle();
}

// A page is loaded when it lets the finger through, asks nothing, and nothing was fetched for a while.
bool Tour::settle()
{
    QElapsedTimer limit;
    QElapsedTimer quiet;
    limit.start();
    quiet.start();
    while (limit.elapsed() < LoadingLimitMs) {
        wait(LookEveryMs);
        const QStringList fetches = m_subject.takeFetches();
        m_fetches += fetches;
        if (!fetches.isEmpty() || isBusy())
            quiet.restart();
        if (quiet.elapsed() >= LoadedAfterQuietMs)
            return true;
    }
    return false;
}

bool Tour::isBusy() const
{
    const QWidgetList widgets = QApplication::topLevelWidgets();
    if (std::any_of(widgets.begin(), widgets.end(), [this](const QWidget* widget) {
            return widget != m_subject.panel && isDialogOf(widget, m_subject.window);
        }))
        return true;
    switch (m_subject.window.application().state()) {
    case ApplicationSlot::State::Empty:
        return false;
    case ApplicationSlot::State::Leaving:
        return true;
    case ApplicationSlot::State::Shown:
        break;
    }
    const QWidget* menu = find(QStringLiteral("menusGroupBox"));
    if (!menu || !menu->isVisible())
        return true;
    for (const QWidget* above = menu; above; above = above->parentWidget()) {
        if (above->testAttribute(Qt::WA_TransparentForMouseEvents))
            return true;
    }
    return false;
}

// What is visible is meant: a page that is not shown may have a button of the same name.
QWidget* Tour::find(const QString& name) const
{
    const auto found = m_subject.window.findChildren<QWidget*>(name);
    const auto visible =
        std::find_if(found.begin(), found.end(), [](const QWidget* widget) { return widget->isVisible(); });
    return visible == found.end() ? nullptr : *visible;
}

QString Tour::pageClass() const
{
    const auto* pages = m_subject.window.findChild<QStackedWidget*>(QStringLiteral("fieldbusSetSWidget"));
    const QWidget* page = pages ? pages->currentWidget() : nullptr;
    return page && page->isVisible() ? QString::fromLatin1(page->metaObject()->className()) : QString();
}

// Dismisses whatever asks something, so that nothing is changed, and keeps what it said.
void Tour::answerDialog()
{
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (!dialog)
        return;
    if (!m_wantedDialog.isEmpty() && !m_dialogTaken) {
        // A round later it is laid out and painted.
        if (!std::exchange(m_dialogSeen, true))
            return;
        if (const auto* box = qobject_cast<MsgBox*>(dialog))
            m_messages.append(box->text());
        m_dialogTaken = report(m_wantedDialog);
    } else if (const auto* box = qobject_cast<MsgBox*>(dialog)) {
        m_messages.append(box->text());
        m_errorShown = m_errorShown || box->kind() == MsgBox::Error;
    }
    auto* confirm = dialog->findChild<QAbstractButton*>(QStringLiteral("confirmButton"));
    if (std::exchange(m_confirmNext, false) && confirm)
        confirm->click();
    else
        dialog->reject();
}

bool Tour::report(const QString& name, QWidget* shown)
{
    m_fetches += m_subject.takeFetches();
    const QString file = QStringLiteral("%1-%2.png")
                             .arg(++m_pictures, 2, 10, QLatin1Char('0'))
                             .arg(name.isEmpty() ? QStringLiteral("nothing") : name);
    const QPixmap picture = shown ? shown->grab() : picturePendant(m_subject.window, m_subject.panel);
    const bool saved = picture.save(m_directory.filePath(file));
    out() << tr("%1  files fetched: %2  messages: %3  picture: %4")
                 .arg(name, -28)
                 .arg(joined(m_fetches), joined(m_messages), saved ? file : tr("not saved"))
          << '\n';
    out().flush();
    m_fetches.clear();
    m_messages.clear();
    m_errorShown = false;
    return saved;
}

bool Tour::fail(const QString& what)
{
    QTextStream(stderr) << tr("tour: %1").arg(what) << '\n';
    return false;
}
