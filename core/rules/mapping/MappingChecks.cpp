#include "MappingChecks.h"

#include "MappingLayout.h"

namespace Mapping {

namespace {

constexpr const char* QuantityRange =
    QT_TRANSLATE_NOOP("ConfigWidget", "Limit Range: %1 ~ %2, Please Fill In Again!");
constexpr const char* BytesRange =
    QT_TRANSLATE_NOOP("ConfigWidget", "Bytes Limit Range: %1 ~ %2, Please Fill In Again!");
constexpr const char* MtcpSmallBytesRange = QT_TRANSLATE_NOOP(
    "ConfigWidget", "ModbusTCP:User Bool and User Int Bytes Limit Range: %2 ~ %3, Please Fill In Again!");
constexpr const char* TotalZero = QT_TRANSLATE_NOOP("ConfigWidget", "The total quantity cannot be zero!");
constexpr const char* SlaveBytes = QT_TRANSLATE_NOOP(
    "ConfigWidget",
    "The current total input bytes are %1, \nexceeding the maximum bytes of 256. Please re-enter");
constexpr const char* MasterBytes = QT_TRANSLATE_NOOP(
    "ConfigWidget",
    "The current total input bytes are %1, \nexceeding the maximum bytes of %2. Please re-enter");
constexpr const char* EndTooHigh = QT_TRANSLATE_NOOP(
    "ConfigWidget",
    "The current input end address is %1. The end address\n must be less than %2. Please re-enter!");

constexpr const char* NamedSmallBytesRange = QT_TRANSLATE_NOOP(
    "ConfigWidget", "%1:User Bool and User Int Bytes Limit Range: %2 ~ %3, Please Fill In Again!");
constexpr const char* NamedSmallBytesMultiple = QT_TRANSLATE_NOOP(
    "ConfigWidget", "%1:The total number of bytes of all bool variables and int variables in user and system "
                    "variables must be a multiple of %2, Please Fill In Again!");
constexpr const char* NamedBytesRange =
    QT_TRANSLATE_NOOP("ConfigWidget", "%1:Bytes Limit Range: %2 ~ %3, Please Fill In Again!");
constexpr const char* NamedBytesMultiple = QT_TRANSLATE_NOOP(
    "ConfigWidget", "%1:The Total Number Of Bytes Must Be A Multiple Of %2, Please Fill In Again!");

// The free slave's blocks lie in the order write only, read only, read and write.
struct Neighbours
{
    std::optional<Direction> below; // none: nothing
    const char* startTooLow;
    std::optional<Direction> above; // none: the end of the registers
    const char* endTooHigh;
};
constexpr std::array<Neighbours, 3> SlaveNeighbours = {{
    // by Direction
    {Direction::WriteOnly,
     QT_TRANSLATE_NOOP("ConfigWidget", "The start address of ModbusTcp read-only input must be greater than "
                                       "the end address of write only!"),
     Direction::ReadWrite,
     QT_TRANSLATE_NOOP(
         "ConfigWidget",
         "The current input read-only end address is %1, and the ModbusTcp read-only end address "
         "must be less than\n the readable and writable start address. Please re-enter")},
    {std::nullopt, nullptr, Direction::ReadOnly,
     QT_TRANSLATE_NOOP("ConfigWidget",
                       "The current input only write end address is %1, and ModbusTcp only write end address "
                       "must be less than\n the read-only start address. Please re-enter")},
    {Direction::ReadOnly,
     QT_TRANSLATE_NOOP(
         "ConfigWidget",
         "The start address of the ModbusTcp readable and writable input must be greater than the "
         "end address of the read-only input!"),
     std::nullopt, EndTooHigh},
}};

struct MasterTexts
{
    const char* defaultConflicts;
    const char* enteredConflicts;
};
constexpr std::array<MasterTexts, 2> MasterConflicts = {{
    // by Direction
    {QT_TRANSLATE_NOOP(
         "ConfigWidget",
         "The current read-only start address is calculated by default from %1,\n which conflicts "
         "with writing only the address!"),
     QT_TRANSLATE_NOOP("ConfigWidget", "Conflicting with duplicate address writing only!")},
    {QT_TRANSLATE_NOOP("ConfigWidget",
                       "Currently, only the starting address is calculated by default from %1,\n which "
                       "conflicts with a read-only address!"),
     QT_TRANSLATE_NOOP("ConfigWidget", "Conflicting with duplicate address reading only!")},
}};

struct SaveCheck
{
    Bus bus;
    const char* nameInMessages;
    Multiples free;
    Multiples fixed;
};
// In the order in which they are made. The free PROFINET slave's tips tell a multiple of its Bool and Int
// bytes, but it is not checked.
constexpr SaveCheck SaveChecks[] = {
    {Bus::EipSlave, "EtheretIP", {}, {}},
    {Bus::PfnSlave, "Profinet", {{}, {0, 8}}, {{20, 8}, {68, 8}}},
    {Bus::DnSlave, "DeviceNet", {}, {}},
    {Bus::EthcatSlave, "EtherCat", {}, {}},
};

QString word(const QString& text)
{
    return text;
}
template <typename Number>
QString word(Number number)
{
    return QString::number(number);
}

template <typename... Arguments>
Message warning(const char* text, const Arguments&... arguments)
{
    return {Severity::Warning, {text, {word(arguments)...}}};
}

Refusal savedBytesRefusal(const SaveCheck& check, Mode mode, const Rows& rows)
{
    const Limits& limits = limitsOf(numberOf(check.bus, Direction::ReadOnly), mode);
    const Multiples& multiples = mode == MappingConfig::Free ? check.free : check.fixed;
    const QString name = QLatin1String(check.nameInMessages);
    const auto outside = [&name](const char* text, const ByteRange& range) {
        return warning(text, name, range.least, range.most);
    };
    const auto uneven = [&name](const char* text, int multiple) { return warning(text, name, multiple); };
    // The least bytes of Bool and Int stand in the message only.
    if (limits.smallBytes.isGiven() && smallBytesOf(rows) > limits.smallBytes.most)
        return outside(NamedSmallBytesRange, limits.smallBytes);
    if (!multiples.small.isMet(smallBytesOf(rows)))
        return uneven(NamedSmallBytesMultiple, multiples.small.of);
    if (bytesOf(rows) < limits.allBytes.least || bytesOf(rows) > limits.allBytes.most)
        return outside(NamedBytesRange, limits.allBytes);
    if (!multiples.all.isMet(bytesOf(rows)))
        return uneven(NamedBytesMultiple, multiples.all.of);
    return {};
}

} // namespace

Multiples multiplesOf(Bus bus, Mode mode)
{
    for (const SaveCheck& check : SaveChecks) {
        if (check.bus == bus)
            return mode == MappingConfig::Free ? check.free : check.fixed;
    }
    return {};
}

Message message(Severity severity, const char* text)
{
    return {severity, {text, {}}};
}

Message rangeRefusal(int least, int most)
{
    return warning(QuantityRange, least, most);
}

Refusal quantityRefusal(int number, Mode mode, MappedType type, double value)
{
    const int most = limitsOf(number, mode).quantity[type];
    // Also what is no number is outside.
    if (value >= 0 && value <= most)
        return {};
    return rangeRefusal(0, most);
}

Refusal bytesRefusal(int number, Mode mode, const MappingArea& area)
{
    const SubTable& table = tableOf(number);
    const Limits& limits = limitsOf(number, mode);
    if (infoOf(table.bus).layout == Layout::MasterRegisters)
        return {}; // its block has a message of its own
    if (bytesOf(area.user) > limits.allBytes.most)
        return warning(BytesRange, 0, limits.allBytes.most);
    if (table.bus == Bus::MtcpSlave && limits.smallBytes.isGiven() &&
        smallBytesOf(area.user) > limits.smallBytes.most)
        return warning(MtcpSmallBytesRange, QString(), limits.smallBytes.least, limits.smallBytes.most);
    return {};
}

Refusal slaveBlockRefusal(const MappingBus& bus, Direction direction, Entered entered)
{
    const MappingArea& area = areaOf(bus, direction);
    const Neighbours& neighbours = SlaveNeighbours.at(static_cast<std::size_t>(direction));
    if (isEmpty(area.user))
        return message(Severity::Error, TotalZero);
    const int most = limitsOf(numberOf(Bus::MtcpSlave, direction), MappingConfig::Free).allBytes.most;
    if (bytesOf(area.user) > most)
        return warning(SlaveBytes, bytesOf(area.user));
    if (entered == Entered::Start && neighbours.below) {
        const quint32 below = areaOf(bus, *neighbours.below).end;
        if (below != MappingRow::NoAddress && area.start <= below)
            return warning(neighbours.startTooLow);
    }
    const quint64 end = blockEnd(area, area.start);
    if (neighbours.above) {
        if (end >= areaOf(bus, *neighbours.above).start)
            return warning(neighbours.endTooHigh, end);
    } else if (end > LastSlaveRegister) { // the last register itself is admitted, whatever the text says
        return warning(neighbours.endTooHigh, end, LastSlaveRegister);
    }
    return {};
}

Refusal masterBlockRefusal(const MappingBus& bus, Direction direction, Entered entered)
{
    const MappingArea& area = areaOf(bus, direction);
    const int bytes = bytesOf(area.user);
    const int most = limitsOf(numberOf(Bus::MtcpMaster, direction), MappingConfig::Free).allBytes.most;
    if (bytes > most)
        return warning(MasterBytes, bytes, most);
    if (isEmpty(area.user))
        return {};

    const bool isReadOnly = direction == Direction::ReadOnly;
    const MappingArea& other = isReadOnly ? bus.areas[WriteOnlyArea] : bus.areas[ReadOnlyArea];
    const quint64 end = blockEnd(area, area.start);
    if (!isEmpty(other.user) && area.start <= other.end && other.start <= end) {
        const MasterTexts& texts = MasterConflicts.at(isReadOnly ? 0 : 1);
        return entered == Entered::Start ? warning(texts.enteredConflicts)
                                         : warning(texts.defaultConflicts, area.start);
    }
    // The last register itself is admitted, whatever the text says.
    if (end > LastMasterRegister)
        return warning(EndTooHigh, end, LastMasterRegister);
    return {};
}

Refusal saveRefusal(const Buses& buses, const QStringList& busNames, Mode mode)
{
    for (const SaveCheck& check : SaveChecks) {
        if (!busNames.contains(QLatin1String(infoOf(check.bus).name()), Qt::CaseInsensitive))
            continue;
        const MappingBus& bus = buses.at(static_cast<std::size_t>(check.bus));
        if (Refusal refusal = savedBytesRefusal(check, mode, bus.areas[ReadOnlyArea].user))
            return refusal;
    }
    return {};
}

} // namespace Mapping
