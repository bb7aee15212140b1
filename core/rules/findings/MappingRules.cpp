#include "Rules.h"

#include "MappingChecks.h"
#include "MappingLayout.h"

#include <algorithm>

namespace Rules {

namespace {

using namespace Mapping;

constexpr FileId File = FileId::Mapping;
constexpr const char* DirectionTitles[] = {"read only", "write only", "read and write"};

bool countsRegisters(Layout layout)
{
    return layout == Layout::SlaveRegisters || layout == Layout::MasterRegisters;
}

QString addressText(quint32 address)
{
    return address == MappingRow::NoAddress ? QStringLiteral("none") : QString::number(address);
}

// One direction of a bus in the mode that runs.
class AreaRules
{
public:
    AreaRules(const Configuration& configuration, int table, FindingList& found)
        : m_number(table)
        , m_mode(configuration.mode())
        , m_table(tableOf(table))
        , m_info(infoOf(m_table.bus))
        , m_area(areaOf(configuration.mapping.buses[m_mode][static_cast<std::size_t>(m_table.bus)],
                        m_table.direction))
        , m_found(found)
    {
    }

    void check()
    {
        quantities();
        bytes();
        rows();
        if (countsRegisters(m_info.layout))
            block();
    }

private:
    FindingList::About about(const char* element = nullptr) const
    {
        const auto quoted = [](const char* text) { return '"' + QByteArray(text) + '"'; };
        FindingList::About place{
            m_info.role,
            File,
            {"<Mode name=" + quoted(MappingFile::ModeNames[m_mode]), "<Bus name=" + quoted(m_info.name()),
             "<Area direction=" +
                 quoted(MappingFile::DirectionNames[static_cast<std::size_t>(m_table.direction)])}};
        if (element)
            place.at.push_back(quoted(element));
        return place;
    }
    // Only what is found has a title: most rows are in order.
    QString title() const
    {
        return titleOf(m_info.role) + QStringLiteral(", ") +
               QLatin1String(DirectionTitles[static_cast<int>(m_table.direction)]);
    }
    Evidence fact(const QString& name, const QString& value) const
    {
        return FindingList::fact(name, File, value);
    }
    static QString rowTitle(bool isSystem, MappedType type)
    {
        return QLatin1String(isSystem ? "System " : "User ") + QLatin1String(MappingFile::TypeNames[type]);
    }

    void quantities()
    {
        const Limits& limits = limitsOf(m_number, m_mode);
        for (const MappedType type : Types) {
            const char* name = MappingFile::TypeNames[type];
            const int quantity = m_area.user[type].quantity;
            const int most = std::max(limits.quantity[type], 0);
            const bool isUneven =
                type == MappedBool && limits.boolMultiple != None && quantity % limits.boolMultiple != 0;
            if (quantity <= most && !isUneven)
                continue;
            const std::vector<Evidence> facts{fact(QLatin1String(name), QString::number(quantity))};
            if (quantity > most)
                m_found.add(FindingCode::QuantityAboveLimit, about(name),
                            {title(), QString::number(quantity), QLatin1String(name), QString::number(most)},
                            facts);
            if (isUneven)
                m_found.add(FindingCode::BoolsNotMultiple, about(name),
                            {title(), QString::number(quantity), QString::number(limits.boolMultiple)},
                            facts);
        }
    }

    void bytes()
    {
        const Limits& limits = limitsOf(m_number, m_mode);
        const int all = bytesOf(m_area.user);
        const int small = smallBytesOf(m_area.user);
        // The least is asked of what the robot reads alone, when it is saved.
        const bool isRead = m_table.direction == Direction::ReadOnly;
        outside(FindingCode::BytesOutside, all, isRead ? limits.allBytes.least : 0, limits.allBytes.most);
        if (limits.smallBytes.isGiven())
            outside(FindingCode::SmallBytesOutside, small, 0, limits.smallBytes.most);
        if (!isRead)
            return;
        const Multiples multiples = multiplesOf(m_table.bus, m_mode);
        uneven(multiples.small, small);
        uneven(multiples.all, all);
    }
    void outside(FindingCode code, int value, int least, int most)
    {
        if (value < least || value > most)
            m_found.add(code, about(),
                        {title(), QString::number(value), QString::number(least), QString::number(most)},
                        {fact(QStringLiteral("bytes"), QString::number(value))});
    }
    void uneven(const Multiple& multiple, int value)
    {
        if (multiple.isMet(value))
            return;
        const QString sum = QString::number(multiple.bytes(value));
        m_found.add(FindingCode::BytesNotMultiple, about(), {title(), sum, QString::number(multiple.of)},
                    {fact(QStringLiteral("bytes"), sum)});
    }

    struct Placed
    {
        const MappingRow* row;
        bool isSystem;
        MappedType type;
        QString title() const { return rowTitle(isSystem, type); }
    };

    int sizeOf(MappedType type, int quantity) const
    {
        return countsRegisters(m_info.layout) ? registersOf(type, quantity) : bytesOf(type, quantity);
    }

    static Evidence placeFact(const Placed& placed)
    {
        return FindingList::fact(placed.title(), File,
                                 QStringLiteral("%1 at %2 to %3")
                                     .arg(placed.row->quantity)
                                     .arg(addressText(placed.row->start), addressText(placed.row->end)));
    }

    void rows()
    {
        std::vector<Placed> placed;
        placed.reserve(2 * MappedTypeCount);
        for (const bool isSystem : {false, true}) {
            const MappingRows& all = isSystem ? m_area.system : m_area.user;
            for (const MappedType type : Types) {
                const Placed row{&all[type], isSystem, type};
                if (sizeOf(type, all[type].quantity) > 0 && isPlaced(row))
                    placed.push_back(row);
            }
        }
        std::sort(placed.begin(), placed.end(),
                  [](const Placed& one, const Placed& other) { return one.row->start < other.row->start; });
        for (std::size_t i = 1; i < placed.size(); ++i) {
            if (placed[i].row->start <= placed[i - 1].row->end)
                m_found.add(FindingCode::RowsOverlap, about(MappingFile::TypeNames[placed[i].type]),
                            {title(), placed[i - 1].title(), placed[i].title()},
                            {placeFact(placed[i - 1]), placeFact(placed[i])});
        }
    }

    // Whether its place can be compared with that of others. The system rows' quantities are the robot's own.
    bool isPlaced(const Placed& placed)
    {
        const MappingRow& row = *placed.row;
        const bool hasPlace = row.start != MappingRow::NoAddress && row.end != MappingRow::NoAddress;
        if (hasPlace && row.end < row.start) {
            m_found.add(FindingCode::EndBeforeStart, about(MappingFile::TypeNames[placed.type]),
                        {title(), placed.title(), addressText(row.start), addressText(row.end)},
                        {placeFact(placed)});
            return false;
        }
        const auto size = static_cast<quint32>(sizeOf(placed.type, row.quantity));
        if (!placed.isSystem && (!hasPlace || row.end - row.start + 1 != size))
            m_found.add(FindingCode::RowOfOtherLength, about(MappingFile::TypeNames[placed.type]),
                        {title(), placed.title()}, {placeFact(placed)});
        return hasPlace;
    }

    void block()
    {
        if (m_area.start == MappingRow::NoAddress || isEmpty(m_area.user))
            return;
        const quint32 last = lastRegister(m_info.layout);
        const bool isTurned = m_area.end < m_area.start;
        if (isTurned || m_area.start < FirstRegister || m_area.end > last)
            m_found.add(FindingCode::RegistersOutside, about(),
                        {title(), addressText(m_area.start), addressText(m_area.end),
                         QString::number(FirstRegister), QString::number(last)},
                        {fact(QStringLiteral("start"), addressText(m_area.start)),
                         fact(QStringLiteral("end"), addressText(m_area.end))});
    }

    int m_number;
    Mode m_mode;
    const SubTable& m_table;
    const BusInfo& m_info;
    const MappingArea& m_area;
    FindingList& m_found;
};

void blocksOverlap(const Configuration& configuration, Bus bus, FindingList& found)
{
    const MappingBus& areas =
        configuration.mapping.buses[configuration.mode()][static_cast<std::size_t>(bus)];
    const RoleId role = infoOf(bus).role;
    for (int one = 0; one < infoOf(bus).directions; ++one) {
        for (int other = 0; other < one; ++other) {
            const MappingArea& a = areas.areas[static_cast<std::size_t>(other)];
            const MappingArea& b = areas.areas[static_cast<std::size_t>(one)];
            if (isEmpty(a.user) || isEmpty(b.user) || a.start == MappingRow::NoAddress ||
                b.start == MappingRow::NoAddress || a.start > b.end || b.start > a.end)
                continue;
            const auto fact = [](int direction, const MappingArea& area) {
                return FindingList::fact(QLatin1String(DirectionTitles[direction]), File,
                                         addressText(area.start) + QStringLiteral(" to ") +
                                             addressText(area.end));
            };
            found.add(
                FindingCode::BlocksOverlap,
                {role,
                 File,
                 {"<Mode name=\"" + QByteArray(MappingFile::ModeNames[configuration.mode()]),
                  "<Bus name=\"" + QByteArray(infoOf(bus).name())}},
                {titleOf(role), QLatin1String(DirectionTitles[other]), QLatin1String(DirectionTitles[one])},
                {fact(other, a), fact(one, b)});
        }
    }
}

void use(const Configuration& configuration, Bus bus, FindingList& found)
{
    int bytes = 0;
    for (const MappingArea& area :
         configuration.mapping.buses[configuration.mode()][static_cast<std::size_t>(bus)].areas)
        bytes += bytesOf(area.user);
    const RoleId role = infoOf(bus).role;
    const bool isOn = role == RoleId::ModbusTcpSlave || configuration.isOn(role);
    if (isOn == (bytes > 0))
        return;
    const QByteArray name = infoOf(bus).name();
    const Evidence fact = FindingList::fact(
        QStringLiteral("bytes mapped (%1)").arg(QLatin1String(MappingFile::ModeNames[configuration.mode()])),
        File, bytes);
    found.add(isOn ? FindingCode::RoleWithoutRows : FindingCode::RowsWithoutRole,
              {role, File, {"<Bus name=\"" + name}}, {titleOf(role)}, {fact, found.factOf(role)});
}

} // namespace

void mapping(const Configuration& configuration, FindingList& found)
{
    // Without the roles it is open which mode runs.
    if (!configuration.isRead(File) || !configuration.isRead(FileId::RoleList))
        return;
    for (int table = 0; table < TableCount; ++table) {
        const BusInfo& info = infoOf(tableOf(table).bus);
        // What nobody uses is told once, not row by row.
        if (configuration.isOn(info.role) || info.role == RoleId::ModbusTcpSlave)
            AreaRules(configuration, table, found).check();
    }
    for (std::size_t i = 0; i < BusCount; ++i) {
        const Bus bus = static_cast<Bus>(i);
        if (countsRegisters(infoOf(bus).layout))
            blocksOverlap(configuration, bus, found);
        use(configuration, bus, found);
    }
}

} // namespace Rules
