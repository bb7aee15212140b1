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
    BusAreaInfo BusAddrNumInfo::*below; // null: nothing
    const char* startTooLow;
    BusAreaInfo BusAddrNumInfo::*above; // null: the end of the registers
    const char* endTooHigh;
};
constexpr std::array<Neighbours, 3> SlaveNeighbours = {{
    // by Direction
    {&BusAddrNumInfo::writeOnly,
     QT_TRANSLATE_NOOP("ConfigWidget", "The start address of ModbusTcp read-only input must be greater than "
                                       "the end address of write only!"),
     &BusAddrNumInfo::readWrite,
     QT_TRANSLATE_NOOP(
         "ConfigWidget",
         "The current input read-only end address is %1, and the ModbusTcp read-only end address "
         "must be less than\n the readable and writable start address. Please re-enter")},
    {nullptr, nullptr, &BusAddrNumInfo::readOnly,
     QT_TRANSLATE_NOOP("ConfigWidget",
                       "The current input only write end address is %1, and ModbusTcp only write end address "
                       "must be less than\n the read-only start address. Please re-enter")},
    {&BusAddrNumInfo::readOnly,
     QT_TRANSLATE_NOOP(
         "ConfigWidget",
         "The start address of the ModbusTcp readable and writable input must be greater than the "
         "end address of the read-only input!"),
     nullptr, EndTooHigh},
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

// What bytes must be a multiple of when they are saved, and what the system area adds to them before.
struct Multiple
{
    int system = 0;
    int of = None;
};
struct SaveCheck
{
    Bus bus;
    const char* nameInMessages;
    Multiple freeSmall, freeAll;
    Multiple fixedSmall, fixedAll;
};
// In the order in which they are made. The free PROFINET slave's tips tell a multiple of its Bool and Int
// bytes, but it is not checked.
constexpr SaveCheck SaveChecks[] = {
    {Bus::EipSlave, "EtheretIP", {}, {}, {}, {}},
    {Bus::PfnSlave, "Profinet", {}, {0, 8}, {20, 8}, {68, 8}},
    {Bus::DnSlave, "DeviceNet", {}, {}, {}, {}},
    {Bus::EthcatSlave, "EtherCat", {}, {}, {}, {}},
};

Message warning(const QString& text)
{
    return {Severity::Warning, text};
}

bool isMultiple(int bytes, const Multiple& multiple)
{
    return multiple.of == None || (multiple.system + bytes) % multiple.of == 0;
}

Refusal savedBytesRefusal(const SaveCheck& check, bool freeMode, const Rows& rows)
{
    const Limits& limits = limitsOf(numberOf(check.bus, Direction::ReadOnly), freeMode);
    const Multiple& small = freeMode ? check.freeSmall : check.fixedSmall;
    const Multiple& all = freeMode ? check.freeAll : check.fixedAll;
    const QString name = QLatin1String(check.nameInMessages);
    const auto outside = [&name](const char* text, const ByteRange& range) {
        return warning(translated(text).arg(name).arg(range.least).arg(range.most));
    };
    const auto uneven = [&name](const char* text, int multiple) {
        return warning(translated(text).arg(name).arg(multiple));
    };
    // The least bytes of Bool and Int stand in the message only.
    if (limits.smallBytes.isGiven() && smallBytesOf(rows) > limits.smallBytes.most)
        return outside(NamedSmallBytesRange, limits.smallBytes);
    if (!isMultiple(smallBytesOf(rows), small))
        return uneven(NamedSmallBytesMultiple, small.of);
    if (bytesOf(rows) < limits.allBytes.least || bytesOf(rows) > limits.allBytes.most)
        return outside(NamedBytesRange, limits.allBytes);
    if (!isMultiple(bytesOf(rows), all))
        return uneven(NamedBytesMultiple, all.of);
    return {};
}

} // namespace

Message message(Severity severity, const char* text)
{
    return {severity, translated(text)};
}

Message rangeRefusal(int least, int most)
{
    return warning(translated(QuantityRange).arg(least).arg(most));
}

Refusal quantityRefusal(int number, bool freeMode, BusVariableType type, double value)
{
    const int most = limitsOf(number, freeMode).quantity[type];
    // Also what is no number is outside.
    if (value >= 0 && value <= most)
        return {};
    return rangeRefusal(0, most);
}

Refusal bytesRefusal(int number, bool freeMode, const BusAreaInfo& area)
{
    const SubTable& table = tableOf(number);
    const Limits& limits = limitsOf(number, freeMode);
    if (infoOf(table.bus).layout == Layout::MasterRegisters)
        return {}; // its block has a message of its own
    if (bytesOf(area.user) > limits.allBytes.most)
        return warning(translated(BytesRange).arg(0).arg(limits.allBytes.most));
    if (table.bus == Bus::MtcpSlave && limits.smallBytes.isGiven() &&
        smallBytesOf(area.user) > limits.smallBytes.most)
        return warning(
            translated(MtcpSmallBytesRange).arg(limits.smallBytes.least).arg(limits.smallBytes.most));
    return {};
}

Refusal slaveBlockRefusal(const BusAddrNumInfo& bus, Direction direction, Entered entered)
{
    const BusAreaInfo& area = bus.*areaOf(direction);
    const Neighbours& neighbours = SlaveNeighbours.at(static_cast<std::size_t>(direction));
    if (isEmpty(area.user))
        return message(Severity::Error, TotalZero);
    const int most = limitsOf(numberOf(Bus::MtcpSlave, direction), true).allBytes.most;
    if (bytesOf(area.user) > most)
        return warning(translated(SlaveBytes).arg(bytesOf(area.user)));
    if (entered == Entered::Start && neighbours.below) {
        const quint32 below = (bus.*neighbours.below).end;
        if (below != NoBusAddress && area.start <= below)
            return warning(translated(neighbours.startTooLow));
    }
    const quint64 end = blockEnd(area, area.start);
    if (neighbours.above) {
        if (end >= (bus.*neighbours.above).start)
            return warning(translated(neighbours.endTooHigh).arg(end));
    } else if (end > LastSlaveRegister) { // the last register itself is admitted, whatever the text says
        return warning(translated(neighbours.endTooHigh).arg(end).arg(LastSlaveRegister));
    }
    return {};
}

Refusal masterBlockRefusal(const BusAddrNumInfo& bus, Direction direction, Entered entered)
{
    const BusAreaInfo& area = bus.*areaOf(direction);
    const int bytes = bytesOf(area.user);
    const int most = limitsOf(numberOf(Bus::MtcpMaster, direction), true).allBytes.most;
    if (bytes > most)
        return warning(translated(MasterBytes).arg(bytes).arg(most));
    if (isEmpty(area.user))
        return {};

    const bool isReadOnly = direction == Direction::ReadOnly;
    const BusAreaInfo& other = isReadOnly ? bus.writeOnly : bus.readOnly;
    const quint64 end = blockEnd(area, area.start);
    if (!isEmpty(other.user) && area.start <= other.end && other.start <= end) {
        const MasterTexts& texts = MasterConflicts.at(isReadOnly ? 0 : 1);
        return warning(entered == Entered::Start ? translated(texts.enteredConflicts)
                                                 : translated(texts.defaultConflicts).arg(area.start));
    }
    // The last register itself is admitted, whatever the text says.
    if (end > LastMasterRegister)
        return warning(translated(EndTooHigh).arg(end).arg(LastMasterRegister));
    return {};
}

Refusal saveRefusal(const std::vector<BusAddrNumInfo>& buses, const QStringList& busNames, bool freeMode)
{
    for (const SaveCheck& check : SaveChecks) {
        if (!busNames.contains(QLatin1String(infoOf(check.bus).name), Qt::CaseInsensitive))
            continue;
        const BusAddrNumInfo& bus = buses.at(static_cast<std::size_t>(check.bus));
        if (Refusal refusal = savedBytesRefusal(check, freeMode, bus.readOnly.user))
            return refusal;
    }
    return {};
}

} // namespace Mapping
