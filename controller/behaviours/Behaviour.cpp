#include "Behaviour.h"

#include "ControllerParts.h"

#include <utility>

bool Behaviour::isControllerUp() const
{
    return m_parts.isUp;
}

bool Behaviour::isInService(const QString& role) const
{
    return m_parts.isUp && m_parts.roles.isOn(role) && m_parts.links.isPlugged(role);
}

void Behaviour::onCable(const QString& role, std::function<void()> action)
{
    connect(&m_parts.links, &Links::cableChanged, this,
            [role, action = std::move(action)](const QString& changed) {
                if (changed == role)
                    action();
            });
}

void Behaviour::onRequest(const char* variable, int msec, std::function<void()> action,
                          std::optional<Faults::Fault> ignoring)
{
    const QString name = QLatin1String(variable);
    m_parts.variables.watch(
        name, [this, name, msec, action = std::move(action), ignoring](int /*element*/, double value) {
            drop(name);
            if (value == 0.0 || (ignoring && m_parts.faults.strikes(*ignoring, name)))
                return;
            later(name, msec, [this, name, action] {
                action();
                m_parts.variables.set(name, 0.0);
            });
        });
}

void Behaviour::dropDelayed()
{
    for (const auto& [key, delayed] : m_delayed)
        delayed->timer.stop();
}

void Behaviour::later(const QString& key, int msec, std::function<void()> action, std::optional<Pace> pace)
{
    std::unique_ptr<Delayed>& delayed = m_delayed[key];
    if (!delayed) {
        // Kept for good: an action may ask for its own next one while its timer fires.
        delayed = std::make_unique<Delayed>();
        delayed->timer.setSingleShot(true);
        delayed->timer.setTimerType(Qt::PreciseTimer);
        connect(&delayed->timer, &QTimer::timeout, this,
                [entry = delayed.get()] { std::exchange(entry->action, nullptr)(); });
    }
    delayed->action = std::move(action);
    delayed->timer.start(pace.value_or(m_pace) == Pace::Simulated ? m_parts.time.real(msec) : msec);
}

void Behaviour::drop(const QString& key)
{
    const auto delayed = m_delayed.find(key);
    if (delayed != m_delayed.end())
        delayed->second->timer.stop();
}
