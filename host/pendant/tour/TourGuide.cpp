#include "TourGuide.h"

#include "ApplicationSlot.h"
#include "ControllerLink.h"
#include "DesktopApi.h"
#include "Finger.h"
#include "HomeScreen.h"
#include "MsgBox.h"
#include "NumericKeyboardScript.h"
#include "PendantWindow.h"
#include "ZelBaseWidget.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QLabel>
#include <QPainter>
#include <QPointer>
#include <QRegularExpression>
#include <QStackedWidget>
#include <QTextStream>

#include <algorithm>
#include <utility>

namespace {
constexpr int LoadedAfterQuietMs = 300;
constexpr int LoadingLimitMs = 15000;
constexpr int LookEveryMs = 20;
constexpr int ListLimitMs = 1000;

// What the pages say of a file that they could not get, read, write or send begins with this, whatever the
// kind of the box. They warn of much else on the way, which is no failure. In another language the kind alone
// tells.
constexpr auto FailureText = "Failed to";

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

// How many of the lights in sight are green; -1 when one is red or amber. What is seen counts: a page shows a
// light by its own style sheet or by that of the label.
int greenLights(const QWidget& window)
{
    static const QRegularExpression lightName(QStringLiteral(
        "ConnectStatLb|CouplingStatLb|^connectStatLb|^couplingStatLb|^led_|^label_conStatus$"));
    constexpr int Tint = 16; // of the mean colour; a grey ring has none
    int green = 0;
    const auto labels = window.findChildren<QLabel*>(lightName);
    for (QLabel* label : labels) {
        if (!label->isVisible())
            continue;
        const QColor mean(label->grab()
                              .toImage()
                              .scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                              .pixel(0, 0));
        if (mean.red() > mean.green() + Tint)
            return -1;
        green += mean.green() > mean.red() + Tint ? 1 : 0;
    }
    return green;
}

bool waitUntil(int limitMs, const std::function<bool()>& condition)
{
    QElapsedTimer limit;
    limit.start();
    while (!condition()) {
        if (limit.elapsed() >= limitMs)
            return false;
        TourGuide::wait(LookEveryMs);
    }
    return true;
}
} // namespace

TourGuide::TourGuide(Subject subject, const QString& directory)
    : m_subject(std::move(subject))
    , m_directory(directory)
{
    connect(&m_answering, &QTimer::timeout, this, &TourGuide::answerDialog);
    m_answering.start(LookEveryMs);
}

QWidget* TourGuide::findVisible(const QString& name) const
{
    const auto found = m_subject.window.findChildren<QWidget*>(name);
    const auto visible =
        std::find_if(found.begin(), found.end(), [](const QWidget* widget) { return widget->isVisible(); });
    return visible == found.end() ? nullptr : *visible;
}

QString TourGuide::pageClass() const
{
    const auto* pages = m_subject.window.findChild<QStackedWidget*>(QStringLiteral("fieldbusSetSWidget"));
    const QWidget* page = pages ? pages->currentWidget() : nullptr;
    return page && page->isVisible() ? QString::fromLatin1(page->metaObject()->className()) : QString();
}

bool TourGuide::openBy(const QString& name, const std::function<bool()>& act)
{
    m_failures.clear();
    if (!act() || !settle() || pageClass().isEmpty())
        return fail(tr("%1 shows no page: %2").arg(name, joined(m_failures)));
    return m_failures.isEmpty() || fail(tr("the page of %1 did not load: %2").arg(name, joined(m_failures)));
}

bool TourGuide::open()
{
    const QString tile = HomeScreen::tileName(QStringLiteral("fieldbussetting"));
    return openBy(tile, [this, tile] { return Finger::press(find(tile)); });
}

bool TourGuide::openApplication(const QString& className)
{
    return press(HomeScreen::tileName(className)) && m_subject.window.present();
}

bool TourGuide::leaveApplication()
{
    if (const ApplicationSlot* application = m_subject.window.present())
        DesktopApi::closeApplication(DesktopApi::pageIdFromClassName(application->info().className), false);
    return settle() && !m_subject.window.present();
}

bool TourGuide::leave()
{
    return press(QStringLiteral("exitBtn")) && !find(QStringLiteral("menusGroupBox"));
}

bool TourGuide::reopen()
{
    return leave() && open();
}

bool TourGuide::openPage(const QString& button)
{
    return openBy(button, [this, button] { return Finger::press(find(button)); });
}

bool TourGuide::openHiddenPage(const QString& button)
{
    auto* hidden = m_subject.window.findChild<QAbstractButton*>(button);
    return openBy(button, [hidden] {
        if (hidden)
            hidden->click();
        return hidden != nullptr;
    });
}

bool TourGuide::press(const QString& name)
{
    return Finger::press(find(name)) && settle();
}

bool TourGuide::type(const QString& edit, const QString& text)
{
    NumericKeyboardScript::enterNext(text);
    return press(edit);
}

bool TourGuide::choose(const QString& combo, int index)
{
    const auto* box = find<QComboBox>(combo);
    if (!Finger::press(find(combo)))
        return false;
    QAbstractItemView* list = box->view();
    if (!waitUntil(ListLimitMs, [list] { return list->isVisible(); }))
        return false;
    // The list does not take the second tap of a double one for a choice.
    wait(QApplication::doubleClickInterval() + LookEveryMs);
    const QPointer<QWidget> popup(list->window());
    // What comes of the choice may turn it back at once.
    bool chosen = false;
    const auto watch = connect(box, qOverload<int>(&QComboBox::activated), this,
                               [&chosen, index](int activated) { chosen = activated == index; });
    const QRect entry = list->visualRect(box->model()->index(index, 0));
    const bool closed = Finger::press(list->viewport(), entry.center()) &&
                        waitUntil(ListLimitMs, [popup] { return !popup || !popup->isVisible(); });
    disconnect(watch);
    return closed && chosen;
}

bool TourGuide::waitForVariable(const QString& name, double value) const
{
    return waitUntil(LoadingLimitMs, [&] { return m_subject.controller.readVariable(name) == value; });
}

bool TourGuide::waitForLights(int green) const
{
    int seen = 0;
    const bool reached = waitUntil(LoadingLimitMs, [this, green, &seen] {
        seen = greenLights(m_subject.window);
        return seen == green;
    });
    return reached ||
           fail(seen < 0 ? tr("%1: a light is red").arg(pageClass())
                         : tr("%1: %2 lights are green, not %3").arg(pageClass()).arg(seen).arg(green));
}

void TourGuide::wait(int msec)
{
    QEventLoop loop;
    QTimer::singleShot(msec, &loop, &QEventLoop::quit);
    loop.exec();
}

bool TourGuide::settle()
{
    QElapsedTimer limit;
    QElapsedTimer quiet;
    limit.start();
    quiet.start();
    while (limit.elapsed() < LoadingLimitMs) {
        wait(LookEveryMs);
        const int before = m_fetches.size();
        takeFetches();
        if (m_fetches.size() != before || isBusy())
            quiet.restart();
        if (quiet.elapsed() >= LoadedAfterQuietMs)
            return true;
    }
    return false;
}

bool TourGuide::isBusy() const
{
    const QWidgetList widgets = QApplication::topLevelWidgets();
    if (std::any_of(widgets.begin(), widgets.end(), [this](const QWidget* widget) {
            return widget != m_subject.panel && isDialogOf(widget, m_subject.window);
        }))
        return true;
    const ApplicationSlot* const application = m_subject.window.present();
    if (!application)
        return false;
    const ZelBaseWidget* const widget = application->widget();
    const QWidget* const page = widget && widget->getCentralWidget() ? widget->getCentralWidget() : widget;
    if (application->state() != ApplicationSlot::State::Shown || !page || !page->isVisible())
        return true;
    for (const QWidget* above = page; above; above = above->parentWidget()) {
        if (above->testAttribute(Qt::WA_TransparentForMouseEvents))
            return true;
    }
    return false;
}

bool TourGuide::fetch(const QString& path, QByteArray& content)
{
    takeFetches();
    const bool fetched = m_subject.controller.fetchFile(path, content);
    m_subject.takeFetches();
    return fetched || fail(tr("%1 cannot be fetched").arg(path));
}

void TourGuide::takeFetches()
{
    const Fetches fetches = m_subject.takeFetches();
    m_fetches += fetches.paths;
    if (fetches.failed > 0)
        m_failures.append(tr("%n fetch(es) failed", nullptr, fetches.failed));
}

void TourGuide::noteMessage(const QDialog& dialog)
{
    const auto* box = qobject_cast<const MsgBox*>(&dialog);
    if (!box)
        return;
    m_messages.append(box->text());
    if (box->kind() == MsgBox::Error || box->text().startsWith(QLatin1String(FailureText)))
        m_failures.append(box->text());
}

// Dismisses whatever asks something, so that nothing is changed, and keeps what it said.
void TourGuide::answerDialog()
{
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (!dialog || (m_isReady && !m_isReady(*dialog)))
        return;
    const bool isWanted = !m_wantedDialog.isEmpty() && !m_dialogTaken;
    // A round later it is laid out and painted.
    if (isWanted && !std::exchange(m_dialogSeen, true))
        return;
    noteMessage(*dialog);
    if (isWanted)
        m_dialogTaken = report(m_wantedDialog);
    dialog->reject();
}

bool TourGuide::reportDialog(const QString& name, const QString& button)
{
    return reportDialog(name, [this, button] { return Finger::press(find(button)); });
}

bool TourGuide::reportDialog(const QString& name, const std::function<bool()>& act,
                             std::function<bool(QDialog&)> isReady)
{
    m_wantedDialog = name;
    m_dialogTaken = false;
    m_dialogSeen = false;
    m_isReady = std::move(isReady);
    const bool settled = act() && settle();
    m_wantedDialog.clear();
    m_isReady = nullptr;
    return settled && (m_dialogTaken || fail(tr("no dialog came up for %1").arg(name)));
}

bool TourGuide::report(const QString& name, QWidget* shown)
{
    takeFetches();
    const QString file = QStringLiteral("%1-%2.png")
                             .arg(++m_pictures, 2, 10, QLatin1Char('0'))
                             .arg(name.isEmpty() ? QStringLiteral("nothing") : name);
    if (m_subject.look && !shown)
        m_subject.look(name);
    const QPixmap picture = shown ? shown->grab() : picturePendant(m_subject.window, m_subject.panel);
    const bool saved = picture.save(m_directory.filePath(file));
    QTextStream(stdout) << tr("%1  files fetched: %2  messages: %3  picture: %4")
                               .arg(name, -28)
                               .arg(joined(m_fetches), joined(m_messages), saved ? file : tr("not saved"))
                        << '\n';
    m_fetches.clear();
    m_messages.clear();
    return saved;
}

bool TourGuide::fail(const QString& what)
{
    QTextStream(stderr) << tr("tour: %1").arg(what) << '\n';
    return false;
}
