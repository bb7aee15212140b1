#include "MappingFile.h"

#include "KeptXml.h"

#include <algorithm>
#include <cstring>
#include <memory>

namespace MappingFile {

const std::array<const char*, MappedTypeCount> TypeNames = {"Bool", "Int", "Float"};
const std::array<const char*, MappingDirectionCount> DirectionNames = {"ro", "wo", "rw"};
const std::array<const char*, MappingConfig::ModeCount> ModeNames = {"free", "fixed"};

} // namespace MappingFile

namespace {

constexpr const char* RootElement = "FieldbusConfig";

// Far above what any bus carries, and a byte figure computed from it still fits an int.
constexpr quint32 MostVariables = 65535;

struct RowKind
{
    const char* element;
    MappingRows MappingArea::*rows;
};
constexpr std::array<RowKind, 2> RowKinds = {
    {{"User", &MappingArea::user}, {"System", &MappingArea::system}}};

bool areSame(const char* one, const char* other)
{
    return *one == *other && std::strcmp(one, other) == 0;
}

// The index of `name` in `names`, their number when it is none of them.
template <std::size_t Count>
std::size_t indexOf(const char* name, const std::array<const char*, Count>& names)
{
    std::size_t index = 0;
    while (index < Count && !areSame(names[index], name))
        ++index;
    return index;
}

// Whom the attribute `key` names among the children `element`, in one pass over them: calls `use` with each
// of `names` that is there and the first child that is called so.
template <std::size_t Count, typename Use>
bool forEachNamed(const pugi::xml_node& parent, const char* element, const char* key,
                  const std::array<const char*, Count>& names, Use use)
{
    std::array<bool, Count> isSeen{};
    for (pugi::xml_node child = parent.first_child(); child; child = child.next_sibling()) {
        if (!areSame(child.name(), element))
            continue;
        for (pugi::xml_attribute at = child.first_attribute(); at; at = at.next_attribute()) {
            const std::size_t index = areSame(at.name(), key) ? indexOf(at.value(), names) : Count;
            if (index == Count || isSeen[index])
                continue;
            isSeen[index] = true;
            if (!use(index, child))
                return false;
        }
    }
    return true;
}

bool readAddress(const pugi::xml_attribute& attribute, quint32& address)
{
    if (!attribute)
        return true;
    const std::optional<quint32> number = KeptXml::number(attribute, MappingRow::NoAddress - 1);
    address = number.value_or(MappingRow::NoAddress);
    return number.has_value();
}

// `Info` is a row or an area: both have a start and an end.
template <typename Info>
bool readAddresses(const pugi::xml_node& node, Info& info)
{
    return readAddress(node.attribute("start"), info.start) && readAddress(node.attribute("end"), info.end);
}

bool readRow(const pugi::xml_node& node, MappingRow& row)
{
    const std::optional<quint32> quantity = KeptXml::number(node.attribute("quantity"), MostVariables);
    row.quantity = static_cast<int>(quantity.value_or(0));
    return quantity && readAddresses(node, row);
}

bool readArea(const pugi::xml_node& node, MappingArea& area)
{
    bool isRead = readAddresses(node, area);
    for (const RowKind& kind : RowKinds) {
        const auto read = [&](std::size_t type, const pugi::xml_node& row) {
            return readRow(row, (area.*kind.rows)[type]);
        };
        isRead = isRead && forEachNamed(node, kind.element, "type", MappingFile::TypeNames, read);
    }
    return isRead;
}

bool readBus(const pugi::xml_node& node, MappingBus& bus)
{
    return forEachNamed(
        node, "Area", "direction", MappingFile::DirectionNames,
        [&bus](std::size_t i, const pugi::xml_node& area) { return readArea(area, bus.areas[i]); });
}

void writeAddress(pugi::xml_node node, const char* name, quint32 address)
{
    if (address == MappingRow::NoAddress)
        node.remove_attribute(name);
    else
        KeptXml::set(node, name, QByteArray::number(address));
}

template <typename Info>
void writeAddresses(const pugi::xml_node& node, const Info& info)
{
    writeAddress(node, "start", info.start);
    writeAddress(node, "end", info.end);
}

void writeArea(const pugi::xml_node& node, const MappingArea& area)
{
    writeAddresses(node, area);
    for (const RowKind& kind : RowKinds) {
        for (std::size_t type = 0; type < MappedTypeCount; ++type) {
            const MappingRow& row = (area.*kind.rows)[type];
            const char* name = MappingFile::TypeNames[type];
            // A row that says nothing is not added to a file that does not have it.
            if (row == MappingRow() && !node.find_child_by_attribute(kind.element, "type", name))
                continue;
            const pugi::xml_node rowNode = KeptXml::ensureChild(node, kind.element, "type", name);
            KeptXml::set(rowNode, "quantity", QByteArray::number(row.quantity));
            writeAddresses(rowNode, row);
        }
    }
}

void writeBus(const pugi::xml_node& root, const char* mode, const char* name, const MappingBus& bus)
{
    const pugi::xml_node known =
        root.find_child_by_attribute("Mode", "name", mode).find_child_by_attribute("Bus", "name", name);
    for (std::size_t i = 0; i < MappingDirectionCount; ++i) {
        const char* direction = MappingFile::DirectionNames[i];
        const MappingArea& area = bus.areas[i];
        if (area == MappingArea() && !known.find_child_by_attribute("Area", "direction", direction))
            continue;
        const pugi::xml_node modeNode = KeptXml::ensureChild(root, "Mode", "name", mode);
        const pugi::xml_node busNode = KeptXml::ensureChild(modeNode, "Bus", "name", name);
        writeArea(KeptXml::ensureChild(busNode, "Area", "direction", direction), area);
    }
}

quint32 firstAddress(const MappingRows& rows)
{
    quint32 first = MappingRow::NoAddress;
    for (const MappingRow& row : rows) {
        if (row.quantity > 0)
            first = std::min(first, row.start);
    }
    return first;
}

} // namespace

bool MappingArea::systemComesFirst() const
{
    const quint32 firstUser = firstAddress(user);
    return firstUser != MappingRow::NoAddress && firstAddress(system) < firstUser;
}

const std::array<const char*, MappingConfig::BusCount>& MappingConfig::busNames()
{
    static constexpr std::array<const char*, BusCount> names = {
        "ModbusTcpSlave", "EtherCatSlave",   "EtherNetIPSlave",  "ProfinetSlave",  "EtherCatMaster",
        "DeviceNetSlave", "ModbusTcpMaster", "EtherNetIPMaster", "ProfinetMaster", "DeviceNetMaster"};
    return names;
}

bool operator==(const MappingRow& a, const MappingRow& b)
{
    return a.quantity == b.quantity && a.start == b.start && a.end == b.end;
}

bool operator==(const MappingArea& a, const MappingArea& b)
{
    return a.user == b.user && a.system == b.system && a.start == b.start && a.end == b.end;
}

bool operator==(const MappingBus& a, const MappingBus& b)
{
    return a.areas == b.areas;
}

bool operator==(const MappingConfig& a, const MappingConfig& b)
{
    return a.buses == b.buses;
}

bool MappingFile::read(const QByteArray& bytes, MappingConfig& config)
{
    pugi::xml_document document;
    return KeptXml::load(bytes, RootElement, document) && readFrom(document, config);
}

bool MappingFile::readFrom(const pugi::xml_document& document, MappingConfig& config)
{
    const pugi::xml_node root = document.child(RootElement);
    if (!root)
        return false;
    const auto found = std::make_unique<MappingConfig>(); // some ten kilobytes
    const auto readMode = [&found](std::size_t mode, const pugi::xml_node& node) {
        return forEachNamed(node, "Bus", "name", MappingConfig::busNames(),
                            [&](std::size_t bus, const pugi::xml_node& busNode) {
                                return readBus(busNode, found->buses[mode][bus]);
                            });
    };
    if (!forEachNamed(root, "Mode", "name", ModeNames, readMode))
        return false;
    config = *found;
    return true;
}

QByteArray MappingFile::rewritten(const QByteArray& bytes, const MappingConfig& config)
{
    pugi::xml_document document;
    const pugi::xml_node root = KeptXml::load(bytes, RootElement, document);
    if (!root)
        return {};
    for (std::size_t mode = 0; mode < MappingConfig::ModeCount; ++mode) {
        for (std::size_t bus = 0; bus < MappingConfig::BusCount; ++bus)
            writeBus(root, ModeNames[mode], MappingConfig::busNames()[bus], config.buses[mode][bus]);
    }
    return KeptXml::save(document);
}
