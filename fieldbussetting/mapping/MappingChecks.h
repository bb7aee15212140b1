#ifndef MAPPINGCHECKS_H
#define MAPPINGCHECKS_H

#include "MappingTables.h"

#include <QStringList>

#include <optional>
#include <vector>

/// What may not be entered or saved, and the message that says so.
namespace Mapping {

/// As the host's boxes count.
enum class Severity { Information, Warning, Error };

struct Message
{
    Severity severity = Severity::Warning;
    QString text;
};
using Refusal = std::optional<Message>;

/// What the operator has entered.
enum class Entered { Quantity, Start };

/// What tells the ends of a range that an entry lies outside of.
Message rangeRefusal(int least, int most);
/// A quantity against what its type may have in the table.
Refusal quantityRefusal(int number, bool freeMode, BusVariableType type, double value);
/// The bytes of an area with the entered quantity in it.
Refusal bytesRefusal(int number, bool freeMode, const BusAreaInfo& area);
/// The block of a direction, laid out with what was entered, against the other blocks of the bus and the
/// registers that there are.
Refusal slaveBlockRefusal(const BusAddrNumInfo& bus, Direction direction, Entered entered);
Refusal masterBlockRefusal(const BusAddrNumInfo& bus, Direction direction, Entered entered);

/// The first thing that keeps a configuration from being saved. Only the read-only areas of the slaves that
/// are switched on (`busNames`, in any case of letters) are looked at.
Refusal saveRefusal(const std::vector<BusAddrNumInfo>& buses, const QStringList& busNames, bool freeMode);

Message message(Severity severity, const char* text);

} // namespace Mapping

#endif
