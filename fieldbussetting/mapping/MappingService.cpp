#include "MappingService.h"

#include <QCoreApplication>

using namespace Mapping;

namespace {

static_assert(NoBusAddress == MappingRow::NoAddress, "no address is the same to both");

constexpr BusAreaInfo BusAddrNumInfo::*Areas[MappingDirectionCount] = {
    &BusAddrNumInfo::readOnly, &BusAddrNumInfo::writeOnly, &BusAddrNumInfo::readWrite};

// Rows and areas of both kinds have members of the same names.
template <typename From, typename To>
void copyRows(const From& from, To& to)
{
    for (std::size_t type = 0; type < from.size(); ++type) {
        to[type].quantity = from[type].quantity;
        to[type].start = from[type].start;
        to[type].end = from[type].end;
    }
}

template <typename From, typename To>
void copyArea(const From& from, To& to)
{
    copyRows(from.user, to.user);
    copyRows(from.system, to.system);
    to.start = from.start;
    to.end = from.end;
}

} // namespace

Buses MappingService::fromService(const std::vector<BusAddrNumInfo>& records)
{
    Buses buses;
    for (std::size_t bus = 0; bus < BusCount; ++bus) {
        for (const BusAddrNumInfo& record : records) {
            if (record.busName != QLatin1String(infoOf(static_cast<Bus>(bus)).name()))
                continue;
            for (std::size_t direction = 0; direction < buses[bus].areas.size(); ++direction)
                copyArea(record.*Areas[direction], buses[bus].areas[direction]);
        }
    }
    return buses;
}

std::vector<BusAddrNumInfo> MappingService::editedBuses(const Buses& buses)
{
    std::vector<BusAddrNumInfo> edited;
    for (std::size_t bus = 0; bus < BusCount; ++bus) {
        const BusInfo& info = infoOf(static_cast<Bus>(bus));
        if (!info.isEdited)
            continue;
        BusAddrNumInfo& record = edited.emplace_back();
        record.busName = QLatin1String(info.name());
        for (std::size_t direction = 0; direction < buses[bus].areas.size(); ++direction)
            copyArea(buses[bus].areas[direction], record.*Areas[direction]);
    }
    return edited;
}

QString Mapping::translated(const char* text)
{
    return QCoreApplication::translate("ConfigWidget", text);
}

QString Mapping::translated(const MarkedText& text)
{
    return text.filled(translated(text.text));
}
