#include "Behaviour.h"

#include "ControllerParts.h"

#include <utility>

void Behaviour::dropDelayed()
{
    for (const auto& [key, delayed] : m_delayed)
        delayed->timer.stop();
}

void Behaviour::later(const QString& key, int msec, std::function<void()> action, Pace pace)
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
    delayed->timer.start(pace == Pace::Simulated ? m_parts.time.real(msec) : msec);
}

void Behaviour::drop(const QString& key)
{
    const auto delayed = m_delayed.find(key);
    if (delayed != m_delayed.end())
        delayed->second->timer.stop();
}
