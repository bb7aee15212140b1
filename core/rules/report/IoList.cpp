#include "IoList.h"

#include "MappingLayout.h"

namespace {

// Parts of the names of the variables.
constexpr const char* VariableTypes[] = {"_b", "_i", "_r"};
constexpr const char* DirectionTexts[] = {"read only", "write only", "read and write"};

constexpr int BoolsPerByte = 8;
constexpr int BoolsPerRegister = 16;

void addRows(std::vector<IoRow>& rows, const IoRow& pattern, const MappingRows& mapped, const char* key,
             bool hasOwnKey)
{
    for (const MappedType type : Mapping::Types) {
        const MappingRow& row = mapped[type];
        if (row.quantity == 0)
            continue;
        IoRow range = pattern;
        range.type = type;
        range.key = QLatin1String(key) + QLatin1String(hasOwnKey ? "" : VariableTypes[type]);
        range.firstIndex = 0;
        range.lastIndex = row.quantity - 1;
        if (row.start != MappingRow::NoAddress)
            range.first = row.start;
        if (row.end != MappingRow::NoAddress)
            range.last = row.end;
        rows.push_back(range);
    }
}

void addArea(std::vector<IoRow>& rows, const Mapping::SubTable& table, const MappingArea& area,
             MappingConfig::Mode mode)
{
    const Mapping::BusInfo& bus = Mapping::infoOf(table.bus);
    // A master's single row is called what its table is called.
    const bool hasOwnKey = bus.layout == Mapping::Layout::MasterBools;
    const bool isRegister =
        bus.layout == Mapping::Layout::SlaveRegisters || bus.layout == Mapping::Layout::MasterRegisters;
    IoRow pattern = {
        &RoleTable::of(bus.role), table.direction, MappedBool, false, mode, {}, 0, 0, isRegister, {}, {}, {}};
    IoRow system = pattern;
    system.isSystem = true;
    const bool hasSystem = mode == MappingConfig::Fixed && *table.systemKey;
    if (hasSystem && area.systemComesFirst())
        addRows(rows, system, area.system, table.systemKey, false);
    addRows(rows, pattern, area.user, table.userKey, hasOwnKey);
    if (hasSystem && !area.systemComesFirst())
        addRows(rows, system, area.system, table.systemKey, false);
}

quint32 unitsOf(const IoRow& row)
{
    return static_cast<quint32>(row.isRegister ? Mapping::registersOf(row.type, 1)
                                               : Mapping::bytesOf(row.type, 1));
}

} // namespace

QString IoRow::variable() const
{
    return firstIndex == lastIndex ? QStringLiteral("%1[%2]").arg(key).arg(firstIndex)
                                   : QStringLiteral("%1[%2..%3]").arg(key).arg(firstIndex).arg(lastIndex);
}

QString IoRow::directionText() const
{
    return QLatin1String(DirectionTexts[static_cast<std::size_t>(direction)]);
}

const char* IoRow::typeName() const
{
    return MappingFile::TypeNames[type];
}

const char* IoRow::modeName() const
{
    return MappingFile::ModeNames[mode];
}

std::vector<IoRow> IoList::ranges(const Configuration& configuration, MappingConfig::Mode mode,
                                  const RoleInfo* only)
{
    std::vector<IoRow> rows;
    for (int number = 0; number < Mapping::TableCount; ++number) {
        const Mapping::SubTable& table = Mapping::tableOf(number);
        const RoleId role = Mapping::infoOf(table.bus).role;
        if (only ? only->id != role : !configuration.isOn(role))
            continue;
        const MappingBus& bus = configuration.mapping.buses[mode][static_cast<std::size_t>(table.bus)];
        addArea(rows, table, Mapping::areaOf(bus, table.direction), mode);
    }
    return rows;
}

void IoList::forEachPoint(const IoRow& range, const std::function<void(const IoRow& point)>& use)
{
    const quint32 boolsPerUnit = range.isRegister ? BoolsPerRegister : BoolsPerByte;
    for (int index = range.firstIndex; index <= range.lastIndex; ++index) {
        IoRow point = range;
        point.firstIndex = point.lastIndex = index;
        const auto offset = static_cast<quint32>(index);
        if (range.type == MappedBool)
            point.bit = static_cast<int>(offset % boolsPerUnit);
        if (range.first) {
            const quint32 units = range.type == MappedBool ? 1 : unitsOf(range);
            point.first = *range.first + (range.type == MappedBool ? offset / boolsPerUnit : offset * units);
            point.last = *point.first + units - 1;
        }
        use(point);
    }
}

namespace {

QString textOf(const std::optional<quint32>& number)
{
    return number ? QString::number(*number) : QString();
}

} // namespace

const QStringList& IoList::header()
{
    static const QStringList cells = {"bus",   "direction", "type", "variable", "owner",
                                      "first", "last",      "bit",  "unit",     "mode"};
    return cells;
}

QStringList IoList::cellsOf(const IoRow& row)
{
    return {QLatin1String(row.role->title),
            row.directionText(),
            QLatin1String(row.typeName()),
            row.variable(),
            QLatin1String(row.isSystem ? "system" : "user"),
            textOf(row.first),
            textOf(row.last),
            row.bit ? QString::number(*row.bit) : QString(),
            QLatin1String(row.isRegister ? "register" : "byte"),
            QLatin1String(row.modeName())};
}
