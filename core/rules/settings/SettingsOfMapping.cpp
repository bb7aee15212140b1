// The tables of the I/O mapping.

#include "MappingFile.h"
#include "SettingReaders.h"

namespace Settings {

namespace {

constexpr const char* ModeTexts[] = {QT_TRANSLATE_NOOP("Settings", "free"),
                                     QT_TRANSLATE_NOOP("Settings", "fixed")};
constexpr const char* DirectionTexts[] = {QT_TRANSLATE_NOOP("Settings", "read only"),
                                          QT_TRANSLATE_NOOP("Settings", "write only"),
                                          QT_TRANSLATE_NOOP("Settings", "read and write")};

struct RowKind
{
    MappingRows MappingArea::*rows;
    const char* quantities[MappedTypeCount];
    const char* addresses[MappedTypeCount];
};
constexpr RowKind RowKinds[] = {
    {&MappingArea::user,
     {QT_TRANSLATE_NOOP("Settings", "Bool"), QT_TRANSLATE_NOOP("Settings", "Int"),
      QT_TRANSLATE_NOOP("Settings", "Float")},
     {QT_TRANSLATE_NOOP("Settings", "Bool addresses"), QT_TRANSLATE_NOOP("Settings", "Int addresses"),
      QT_TRANSLATE_NOOP("Settings", "Float addresses")}},
    {&MappingArea::system,
     {QT_TRANSLATE_NOOP("Settings", "system Bool"), QT_TRANSLATE_NOOP("Settings", "system Int"),
      QT_TRANSLATE_NOOP("Settings", "system Float")},
     {QT_TRANSLATE_NOOP("Settings", "system Bool addresses"),
      QT_TRANSLATE_NOOP("Settings", "system Int addresses"),
      QT_TRANSLATE_NOOP("Settings", "system Float addresses")}},
};

// Bytes or registers from the first to the last.
QString addressText(quint32 start, quint32 end)
{
    const auto text = [](quint32 address) {
        return address == MappingRow::NoAddress ? QStringLiteral("--") : QString::number(address);
    };
    return start == MappingRow::NoAddress && end == MappingRow::NoAddress
               ? QString()
               : QStringLiteral("%1 to %2").arg(text(start), text(end));
}

void appendArea(Group& group, const MappingArea& area)
{
    group.fields.push_back(
        {translated(QT_TRANSLATE_NOOP("Settings", "block")), addressText(area.start, area.end), true});
    for (const RowKind& kind : RowKinds) {
        for (std::size_t type = 0; type < MappedTypeCount; ++type) {
            const MappingRow& row = (area.*kind.rows)[type];
            group.fields.push_back({translated(kind.quantities[type]), QString::number(row.quantity), false});
            group.fields.push_back({translated(kind.addresses[type]), addressText(row.start, row.end), true});
        }
    }
}

} // namespace

std::optional<std::vector<Group>> mapping(const QByteArray& bytes)
{
    MappingConfig config;
    if (!MappingFile::read(bytes, config))
        return std::nullopt;
    std::vector<Group> groups;
    for (std::size_t mode = 0; mode < MappingConfig::ModeCount; ++mode) {
        for (std::size_t bus = 0; bus < MappingConfig::BusCount; ++bus) {
            const RoleInfo* role = RoleTable::named(QLatin1String(MappingConfig::busNames()[bus]));
            for (std::size_t direction = 0; direction < MappingDirectionCount; ++direction) {
                // Only one bus has a third direction; elsewhere it is told when a file brings one.
                const MappingArea& area = config.buses[mode][bus].areas[direction];
                if (direction == ReadWriteArea && area == MappingArea())
                    continue;
                Group group = {translated(QT_TRANSLATE_NOOP("Settings", "mapping %1, %2, %3"))
                                   .arg(QLatin1String(role ? role->title : MappingConfig::busNames()[bus]),
                                        translated(ModeTexts[mode]), translated(DirectionTexts[direction])),
                               role,
                               true,
                               {}};
                appendArea(group, area);
                groups.push_back(group);
            }
        }
    }
    return groups;
}

} // namespace Settings
