#include "Faults.h"

#include <iterator>

namespace {

// What the target of a fault says. A path or a variable, or a port, names whom alone the fault hits; of a
// number the fault makes use.
constexpr const char* None = "";
constexpr const char* Path = "path";
constexpr const char* Variable = "variable";
constexpr const char* Port = "port";

struct Description
{
    const char* name;
    const char* target;
    const char* meaning;
    int usual = -1; // number of a fault whose target is one; -1: it is none
    int most = 0;   // the highest such number
};

constexpr int Hour = 3600 * 1000;

// As Faults::Fault counts.
constexpr Description Descriptions[] = {
    {"fetch-fails", Path, "a fetch of a file fails"},
    {"send-fails", Path, "a store of a file fails"},
    {"fetch-cut-short", Path, "a fetched file arrives with its second half missing"},
    {"fetch-empty", Path, "a fetched file arrives empty"},
    {"fetch-garbage", Path, "a fetched file arrives with other bytes"},
    {"command-never-taken", Variable,
     "an open, close or ProfiSAFE command, or the request to the MES server, stays set"},
    {"bus-type-refused", None, "the bus type is answered with the refusing bit"},
    {"bus-type-never-answered", None, "the bus type gets no answer"},
    {"mapping-never-answered", None, "the I/O mapping file is not acknowledged"},
    {"mapping-answered-late", None, "the I/O mapping file is acknowledged at the last moment, after 14.75 s"},
    {"mapping-rejected", None, "the I/O mapping file is rejected"},
    {"slave-never-answered", None, "the DeviceNet slave file is not acknowledged"},
    {"slave-answered-late", None,
     "the DeviceNet slave file is acknowledged at the last moment, after 5.25 s"},
    {"restart-ignored", None, "a restart request has no effect"},
    {"variable-not-offered", Variable, "subscribing a variable fails"},
    {"heartbeat-not-reloaded", None, "the announced heartbeat file is not read"},
    {"port-taken", Port, "a server of the robot or of a partner finds its port taken"},
    {"fins-silent", None, "the FINS server gives no answer"},
    {"fins-slow", "milliseconds", "the FINS server answers so much later", 1000, Hour},
    {"fins-drops", "answers", "the FINS server closes a connection after so many answers", 1, 0xffff},
    {"fins-garbage", None, "the FINS server answers with bytes that are no frame"},
    {"fins-error-code", "code", "the FINS server answers the client's node with this error code", 0x21,
     0xffff},
    {"fins-end-code", "code", "the FINS server answers a read with this end code", 0x1103, 0xffff},
    {"modbus-silent", None, "the Modbus TCP server gives no answer"},
    {"modbus-slow", "milliseconds", "the Modbus TCP server answers so much later", 1000, Hour},
    {"modbus-drops", "answers", "the Modbus TCP server closes a connection after so many answers", 1, 0xffff},
    {"modbus-garbage", None, "the Modbus TCP server answers with bytes that are no frame"},
    {"modbus-exception", "code", "the Modbus TCP server answers with this exception", 2, 255},
    {"modbus-wrong-unit", "unit", "the Modbus TCP server answers under this unit id", 99, 255},
    {"mes-silent", None, "the MES client does not call"},
    {"mes-slow", "milliseconds", "the MES client calls so much later", 1000, Hour},
    {"mes-drops", "milliseconds", "the MES client hangs up so long after it was connected", 1000, Hour},
    {"mes-garbage", None, "the MES client sends bytes that are no text, twice a second"},
    {"poll-silent", None, "the Modbus TCP client does not call"},
    {"poll-slow", "milliseconds", "the Modbus TCP client calls so much later", 1000, Hour},
    {"poll-drops", "milliseconds", "the Modbus TCP client hangs up so long after it was connected", 1000,
     Hour},
    {"poll-garbage", None, "the Modbus TCP client sends bytes that are no frame instead of a request"},
    {"poll-wrong-unit", "unit", "the Modbus TCP client asks for this unit id", 99, 255},
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
    if (state == m_states.end() || (Descriptions[fault].usual < 0 && !state->target.isEmpty() &&
                                    state->target.compare(target, Qt::CaseInsensitive) != 0))
        return false;
    if (state->spared > 0) {
        --state->spared;
        return false;
    }
    if (state->times > 0 && --state->times == 0)
        m_states.erase(state);
    return true;
}

int Faults::numberOf(Fault fault) const
{
    bool isNumber = false;
    const int number = targetOf(fault).toInt(&isNumber, 0); // "0x1103", too
    return isNumber ? number : Descriptions[fault].usual;
}

std::optional<int> Faults::strikesWith(Fault fault)
{
    const int number = numberOf(fault);
    return strikes(fault) ? std::optional<int>(number) : std::nullopt;
}

QString Faults::nameOf(Fault fault)
{
    return fault >= 0 && fault < FaultCount ? QLatin1String(Descriptions[fault].name) : QString();
}

QString Faults::meaningOf(Fault fault)
{
    return fault >= 0 && fault < FaultCount ? QLatin1String(Descriptions[fault].meaning) : QString();
}

QString Faults::targetMeaningOf(Fault fault)
{
    const Description& description = Descriptions[fault];
    const QString target = QLatin1String(description.target);
    if (description.usual < 0)
        return target;
    const bool isCode = target == QLatin1String("code"); // as it is published
    return QStringLiteral("%1 (%2)").arg(target, isCode ? QStringLiteral("0x%1").arg(description.usual, 0, 16)
                                                        : QString::number(description.usual));
}

QString Faults::table()
{
    QString lines;
    for (int number = 0; number < FaultCount; ++number) {
        const auto fault = static_cast<Fault>(number);
        lines += QStringLiteral("  %1 %2 %3\n")
                     .arg(nameOf(fault), -24)
                     .arg(targetMeaningOf(fault), -20)
                     .arg(meaningOf(fault));
    }
    return lines;
}

bool Faults::setFromText(const QString& text)
{
    const QString name = text.section(QLatin1Char(':'), 0, 0);
    const QString times = text.section(QLatin1Char(':'), 1, 1);
    const QString target = text.section(QLatin1Char(':'), 2);
    bool isNumber = true;
    const int count = times.isEmpty() ? -1 : times.toInt(&isNumber);
    for (int fault = 0; fault < FaultCount; ++fault) {
        const Description& description = Descriptions[fault];
        if (name != QLatin1String(description.name) || !isNumber || count < -1)
            continue;
        bool isTarget = true;
        if (description.usual >= 0 && !target.isEmpty())
            isTarget = target.toUInt(&isTarget, 0) <= static_cast<uint>(description.most) && isTarget;
        if (isTarget)
            set(static_cast<Fault>(fault), count, target);
        return isTarget;
    }
    return false;
}
