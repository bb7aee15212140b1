#include "Faults.h"

#include <iterator>

namespace {

struct Description
{
    const char* name;
    const char* meaning;
};

// As Faults::Fault counts.
constexpr Description Descriptions[] = {
    {"fetch-fails", "a fetch of a file fails"},
    {"send-fails", "a store of a file fails"},
    {"fetch-cut-short", "a fetched file arrives with its second half missing"},
    {"fetch-empty", "a fetched file arrives empty"},
    {"fetch-garbage", "a fetched file arrives with other bytes"},
    {"command-never-taken",
     "an open, close or ProfiSAFE command, or the request to the MES server, stays set"},
    {"bus-type-refused", "the bus type is answered with the refusing bit"},
    {"bus-type-never-answered", "the bus type gets no answer"},
    {"mapping-never-answered", "the I/O mapping file is not acknowledged"},
    {"mapping-answered-late", "the I/O mapping file is acknowledged at the last moment"},
    {"mapping-rejected", "the I/O mapping file is rejected"},
    {"slave-never-answered", "the DeviceNet slave file is not acknowledged"},
    {"slave-answered-late", "the DeviceNet slave file is acknowledged at the last moment"},
    {"restart-ignored", "a restart request has no effect"},
    {"variable-not-offered", "subscribing the target variable fails"},
    {"heartbeat-not-reloaded", "the announced heartbeat file is not read"},
};
static_assert(std::size(Descriptions) == Faults::FaultCount, "a row a fault");

} // namespace

void Faults::set(Fault fault, int times, const QString& target, int spared)
{
    if (times == 0)
        clear(fault);
    else
        m_states.insert(fault, {times, target, spared});
}

void Faults::clear(Fault fault)
{
    m_states.remove(fault);
}

void Faults::clearAll()
{
    m_states.clear();
}

bool Faults::isSet(Fault fault) const
{
    return m_states.contains(fault);
}

int Faults::timesLeft(Fault fault) const
{
    return m_states.value(fault).times;
}

QString Faults::targetOf(Fault fault) const
{
    return m_states.value(fault).target;
}

bool Faults::strikes(Fault fault, const QString& target)
{
    const auto state = m_states.find(fault);
    // Controller paths ignore case, and no two variables differ only in case.
    if (state == m_states.end() ||
        (!state->target.isEmpty() && state->target.compare(target, Qt::CaseInsensitive) != 0))
        return false;
    if (state->spared > 0) {
        --state->spared;
        return false;
    }
    if (state->times > 0 && --state->times == 0)
        m_states.erase(state);
    return true;
}

QString Faults::nameOf(Fault fault)
{
    return fault >= 0 && fault < FaultCount ? QLatin1String(Descriptions[fault].name) : QString();
}

QString Faults::meaningOf(Fault fault)
{
    return fault >= 0 && fault < FaultCount ? QLatin1String(Descriptions[fault].meaning) : QString();
}

bool Faults::setFromText(const QString& text)
{
    const QString name = text.section(QLatin1Char(':'), 0, 0);
    const QString times = text.section(QLatin1Char(':'), 1, 1);
    const QString target = text.section(QLatin1Char(':'), 2);
    bool isNumber = true;
    const int count = times.isEmpty() ? -1 : times.toInt(&isNumber);
    for (int fault = 0; fault < FaultCount; ++fault) {
        if (name == QLatin1String(Descriptions[fault].name) && isNumber && count >= -1) {
            set(static_cast<Fault>(fault), count, target);
            return true;
        }
    }
    return false;
}
