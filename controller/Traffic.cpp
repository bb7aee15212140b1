#include "Traffic.h"

namespace {

constexpr const char* KindNames[] = {"fetch", "store", "remove"}; // as Traffic::Kind counts

template <typename List>
void dropOldest(List& list)
{
    // Half at a time, so that a long run does not move the list for every entry.
    if (list.size() > Traffic::MaxEntries)
        list.erase(list.begin(), list.begin() + Traffic::MaxEntries / 2);
}

} // namespace

void Traffic::clear()
{
    for (int kind = Fetch; kind <= Remove; ++kind) {
        m_paths[kind].clear();
        m_counts[kind] = 0;
        m_failed[kind] = 0;
    }
    m_writes.clear();
    m_writeCount = 0;
    m_restartRequests = 0;
}

void Traffic::addTransfer(Kind kind, const QString& path, bool success)
{
    m_paths[kind].append(path);
    dropOldest(m_paths[kind]);
    ++m_counts[kind];
    m_failed[kind] += success ? 0 : 1;
    emit logged(QStringLiteral("%1 %2 %3")
                    .arg(QLatin1String(KindNames[kind]), path,
                         success ? QStringLiteral("ok") : QStringLiteral("FAILED")));
}

void Traffic::addWrite(const QString& name, int element, double value)
{
    m_writes.append({name, element, value});
    dropOldest(m_writes);
    ++m_writeCount;
    emit logged(QStringLiteral("write %1[%2] = %3").arg(name).arg(element).arg(value, 0, 'g', 10));
}

void Traffic::addNote(const QString& text)
{
    emit logged(text);
}

void Traffic::addRestartRequest(bool taken)
{
    ++m_restartRequests;
    emit logged(taken ? QStringLiteral("restart") : QStringLiteral("restart IGNORED"));
}
