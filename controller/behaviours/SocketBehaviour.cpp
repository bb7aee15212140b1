#include "SocketBehaviour.h"

#include "ControllerParts.h"

#include <algorithm>

namespace {
constexpr int LookMs = 100;
} // namespace

void SocketBehaviour::whenUnanswered(const QString& key, int msec, const std::function<void()>& action)
{
    const int step = std::min(msec, LookMs);
    later(key, step, [this, key, rest = msec - step, action] {
        if (rest > 0)
            whenUnanswered(key, rest, action);
        else
            action();
    });
}

void SocketBehaviour::note(const QString& text)
{
    parts().traffic.addNote(QStringLiteral("%1: %2").arg(QLatin1String(m_name), text));
}
