#include "Scenario.h"

#include "Partners.h"
#include "SimulatedController.h"

#include <QRegularExpression>
#include <QTimer>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr double LongestSeconds = 24 * 3600;
constexpr int HighestUserLevel = 9;

} // namespace

Scenario::Scenario(SimulatedController& controller, std::function<void(int)> setUserLevel)
    : m_controller(controller)
    , m_setUserLevel(std::move(setUserLevel))
{
}

QString Scenario::load(const QByteArray& text)
{
    m_steps.clear();
    m_played = 0;
    int number = 0;
    for (const QByteArray& bytes : text.split('\n')) {
        ++number;
        const QString line = QString::fromUtf8(bytes).section(QLatin1Char('#'), 0, 0).simplified();
        if (line.isEmpty())
            continue;
        QStringList words = line.split(QLatin1Char(' '));
        bool isTime = false;
        const double seconds = words.takeFirst().toDouble(&isTime);
        QString why;
        std::function<void()> act;
        if (!isTime || !(seconds >= 0.0 && seconds <= LongestSeconds) || words.isEmpty()) {
            why = tr("a line is a time in seconds, an action, and what it takes");
        } else {
            const QString action = words.takeFirst();
            act = actionOf(action, words, why);
        }
        if (!why.isEmpty())
            return tr("line %1: %2").arg(number).arg(why);
        m_steps.push_back({static_cast<int>(std::lround(seconds * 1000)), line, act});
    }
    std::stable_sort(m_steps.begin(), m_steps.end(),
                     [](const Step& one, const Step& other) { return one.msec < other.msec; });
    return {};
}

std::function<void()> Scenario::actionOf(const QString& name, const Words& words, QString& why)
{
    static constexpr struct
    {
        const char* name;
        int words;
        const char* usage;
        std::function<void()> (Scenario::*make)(const Words&, QString&);
    } Actions[] = {
        {"cable", 2, "cable ROLE in|out", &Scenario::cable},
        {"fault", 1, "fault NAME[:N[:TARGET]], N 0 ends it", &Scenario::fault},
        {"variable", 2, "variable NAME[ELEMENT] VALUE", &Scenario::variable},
        {"partner", 2, "partner NAME|all on|off", &Scenario::partner},
        {"user-level", 1, "user-level 0..9", &Scenario::userLevel},
        {"restart", 0, "restart", &Scenario::restart},
    };
    for (const auto& action : Actions) {
        if (name != QLatin1String(action.name))
            continue;
        std::function<void()> act;
        if (words.size() == action.words)
            act = (this->*action.make)(words, why);
        if (!act && why.isEmpty())
            why = tr("it is: %1").arg(QLatin1String(action.usage));
        return act;
    }
    why = tr("there is no action \"%1\"").arg(name);
    return {};
}

std::function<void()> Scenario::cable(const Words& words, QString& why)
{
    const bool known =
        std::any_of(LinkedBusRoles.begin(), LinkedBusRoles.end(),
                    [&words](const BusRole& role) { return words[0] == QLatin1String(role.name); });
    if (!known)
        why = tr("there is no role \"%1\"").arg(words[0]);
    const bool in = words[1] == QLatin1String("in");
    if (!known || (!in && words[1] != QLatin1String("out")))
        return {};
    return [this, role = words[0], in] { m_controller.setLinkUp(role, in); };
}

std::function<void()> Scenario::fault(const Words& words, QString& why)
{
    if (!Faults().setFromText(words[0])) {
        why = tr("there is no fault \"%1\"").arg(words[0]);
        return {};
    }
    return [this, text = words[0]] { m_controller.faults().setFromText(text); };
}

std::function<void()> Scenario::variable(const Words& words, QString& why)
{
    const QRegularExpressionMatch match =
        QRegularExpression(QStringLiteral("^([\\w.]+)(?:\\[(\\d{1,4})\\])?$")).match(words[0]);
    const QString name = match.captured(1);
    const int element = match.captured(2).toInt();
    bool isNumber = false;
    const double value = words[1].toDouble(&isNumber);
    if (!match.hasMatch() || !m_controller.variables().contains(name, element)) {
        why = tr("there is no variable \"%1\"").arg(words[0]);
        return {};
    }
    if (!isNumber || !std::isfinite(value))
        return {};
    return [this, name, element, value] { m_controller.variables().set(name, element, value); };
}

std::function<void()> Scenario::partner(const Words& words, QString& why)
{
    const bool all = words[0] == QLatin1String("all");
    Partner* const partner = m_controller.partners().find(words[0]);
    const bool on = words[1] == QLatin1String("on");
    if (!all && !partner)
        why = tr("there is no partner \"%1\"").arg(words[0]);
    if ((!all && !partner) || (!on && words[1] != QLatin1String("off")))
        return {};
    if (partner) {
        return [partner, on] {
            if (!on)
                partner->stop();
            else if (!partner->isRunning())
                partner->start();
        };
    }
    return [this, on] {
        if (on)
            m_controller.partners().startAll();
        else
            m_controller.partners().stopAll();
    };
}

std::function<void()> Scenario::userLevel(const Words& words, QString& /*why*/)
{
    bool isNumber = false;
    const int level = words[0].toInt(&isNumber);
    if (!isNumber || level < 0 || level > HighestUserLevel)
        return {};
    return [this, level] {
        if (m_setUserLevel)
            m_setUserLevel(level);
    };
}

std::function<void()> Scenario::restart(const Words& /*words*/, QString& /*why*/)
{
    return [this] { m_controller.requestRestart(); };
}

void Scenario::start()
{
    m_played = 0;
    const int first = m_steps.empty() ? 0 : m_steps.front().msec;
    QTimer::singleShot(m_controller.realTime(first), Qt::PreciseTimer, this, &Scenario::playDue);
}

// One line a turn of the event loop: what one sets off is seen before the next.
void Scenario::playDue()
{
    if (isOver()) {
        emit over();
        return;
    }
    const Step& step = m_steps[m_played++];
    m_controller.traffic().addNote(tr("scenario: %1").arg(step.line));
    step.act();
    emit played(step.line);
    const int wait = isOver() ? 0 : m_steps[m_played].msec - step.msec;
    QTimer::singleShot(m_controller.realTime(wait), Qt::PreciseTimer, this, &Scenario::playDue);
}
