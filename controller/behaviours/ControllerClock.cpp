#include "ControllerClock.h"

#include "ControllerParts.h"

void ControllerClock::restarted()
{
    m_sinceTick.start();
}

void ControllerClock::tick()
{
    const QString name = QStringLiteral("ifidbus.current_time");
    // By the time that went by, not by ticks: a pendant that is busy delays them.
    const double seconds = static_cast<double>(m_sinceTick.restart()) / 1000.0 * parts().time.scale();
    parts().variables.set(name, parts().variables.value(name) + seconds);
}
