#include "LanguageChange.h"

#include "ApplicationSlot.h"
#include "ChoiceDialog.h"
#include "Languages.h"
#include "MsgBox.h"
#include "PendantWindow.h"
#include "ZelBaseWidget.h"

#include <QApplication>
#include <QPointer>

#include <algorithm>
#include <utility>

namespace {
constexpr int LookEveryMs = 50;
constexpr int RestMs = 200; // an application that has done nothing for so long has opened
constexpr int PatienceMs = 15000;
constexpr int Columns = 2;

bool anySays(const QWidget& widget, const char* property, bool value)
{
    const QList<QObject*> parts = widget.findChildren<QObject*>();
    return std::any_of(parts.begin(), parts.end(), [property, value](const QObject* part) {
        const QVariant said = part->property(property);
        return said.isValid() && said.toBool() == value;
    });
}

int ask(MsgBox* made)
{
    const QPointer<MsgBox> box(made);
    const int answer = box->exec();
    delete box.data();
    return answer;
}

bool isAtRest(const QWidget& widget)
{
    if (!widget.isVisible() || QApplication::activeModalWidget())
        return false;
    for (const QWidget* above = &widget; above; above = above->parentWidget()) {
        if (above->testAttribute(Qt::WA_TransparentForMouseEvents))
            return false;
    }
    return true;
}
} // namespace

LanguageChange::LanguageChange(PendantWindow& window)
    : m_window(window)
{
    m_returning.setInterval(LookEveryMs);
    connect(&m_returning, &QTimer::timeout, this, &LanguageChange::returnToPage);
    for (ApplicationSlot* application : window.applications()) {
        connect(application, &ApplicationSlot::left, this,
                [this, application] { applicationLeft(application->info().className); });
    }
}

void LanguageChange::choose()
{
    std::vector<ChoiceDialog::Choice> choices;
    for (const Languages::Language& language : Languages::all())
        choices.push_back({QStringLiteral("language_%1").arg(QLatin1String(language.code)),
                           QString::fromUtf8(language.name)});
    auto* dialog =
        new ChoiceDialog(tr("Language"), choices, Languages::instance().index(), Columns, &m_window);
    dialog->setObjectName(QStringLiteral("languageDialog"));
    const int chosen = ChoiceDialog::ask(dialog);
    if (chosen >= 0)
        change(QLatin1String(Languages::all()[static_cast<std::size_t>(chosen)].code));
}

void LanguageChange::change(const QString& code)
{
    if (Languages::indexOf(code) == Languages::instance().index() || !m_code.isEmpty())
        return;
    ApplicationSlot* const application = m_window.present();
    if (!application) {
        Languages::instance().use(code);
        return;
    }
    if (application->state() != ApplicationSlot::State::Shown || !isAllowed(*application))
        return;
    m_place = application->info().page;
    m_page.reset();
    const QObject* const teller = application->widget()->findChild<QObject*>(m_place.object);
    if (teller && !m_place.object.isEmpty())
        m_page = teller->property(qPrintable(m_place.property)).toInt();
    m_code = code;
    application->close();
}

// The boxes wait: whether the application is still there is for the caller of `close` to find out, which does
// nothing for one that is gone.
bool LanguageChange::isAllowed(ApplicationSlot& application)
{
    const QPointer<ZelBaseWidget> widget(application.widget());
    if (anySays(*widget, "leavable", false)) {
        ask(new MsgBox(MsgBox::Warning,
                       tr("The application is at work. Change the language when it is done."), &m_window,
                       MsgBox::Ok));
        return false;
    }
    if (anySays(*widget, "edited", true) &&
        ask(new MsgBox(MsgBox::Warning,
                       tr("What was entered and is not saved will be lost.\nChange the language?"), &m_window,
                       MsgBox::YesNo)) != MsgBox::Confirmed)
        return false;
    return widget && application.state() == ApplicationSlot::State::Shown;
}

void LanguageChange::applicationLeft(const QString& className)
{
    if (m_code.isEmpty())
        return;
    Languages::instance().use(std::exchange(m_code, QString()));
    m_window.openApplication(className);
    m_firstPage = -1;
    m_restMs = m_waitedMs = 0;
    if (m_page)
        m_returning.start();
}

// As a finger would: when the application has opened, unless somebody was faster.
void LanguageChange::returnToPage()
{
    const ApplicationSlot* const application = m_window.present();
    m_waitedMs += LookEveryMs;
    if (!application || !application->widget() || m_waitedMs > PatienceMs) {
        m_returning.stop();
        return;
    }
    QWidget* const object = application->widget()->findChild<QWidget*>(m_place.object);
    const QVariant shown = object ? object->property(qPrintable(m_place.property)) : QVariant();
    if (shown.isValid() && m_firstPage < 0)
        m_firstPage = shown.toInt();
    if (shown.isValid() && shown.toInt() != m_firstPage) {
        m_returning.stop();
        return;
    }
    m_restMs = object && shown.isValid() && isAtRest(*object) ? m_restMs + LookEveryMs : 0;
    if (m_restMs < RestMs)
        return;
    m_returning.stop();
    if (shown.toInt() != *m_page)
        QMetaObject::invokeMethod(object, qPrintable(m_place.slot), Q_ARG(int, *m_page));
}
