#ifndef MAPPINGCHECKS_H
#define MAPPINGCHECKS_H

#include "MappingTables.h"

#include <optional>

/// What may not be entered or saved, and the message that says so; its texts are of the page's context.
namespace Mapping {

/// As the host's boxes count.
enum class Severity { Information, Warning, Error };

struct Message
{
    Severity severity = Severity::Warning;
    MarkedText text;
};
using Refusal = std::optional<Message>;

/// What the operator has entered.
enum class Entered { Quantity, Start };

/// What tells the ends of a range that an entry lies outside of.
Message rangeRefusal(int least, int most);
/// A quantity against what its type may have in the table.
Refusal quantityRefusal(int number, Mode mode, MappedType type, double value);
/// The bytes of an area with the entered quantity in it.
Refusal bytesRefusal(int number, Mode mode, const MappingArea& area);
/// The block of a direction, laid out with what was entered, against the other blocks of the bus and the
/// registers that there are.
Refusal slaveBlockRefusal(const MappingBus& bus, Direction direction, Entered entered);
Refusal masterBlockRefusal(const MappingBus& bus, Direction direction, Entered entered);

/// The first thing that keeps a configuration from being saved. Only the read-only areas of the slaves that
/// are switched on (`busNames`, in any case of letters) are looked at.
Refusal saveRefusal(const Buses& buses, const QStringList& busNames, Mode mode);

/// What bytes must be a multiple of when they are saved, the system area's `system` bytes added.
struct Multiple
{
    int system = 0;
    int of = None;

    int bytes(int user) const { return system + user; }
    bool isMet(int user) const { return of == None || bytes(user) % of == 0; }
};
struct Multiples
{
    Multiple small; ///< of Bool and Int together
    Multiple all;
};
/// Of the read-only area of a bus.
Multiples multiplesOf(Bus bus, Mode mode);

Message message(Severity severity, const char* text);

} // namespace Mapping

#endif
