#include "BusMappingFile.h"

#include "XmlBytes.h"

#include <algorithm>

namespace {

constexpr auto Root = "FieldbusConfig";
constexpr std::array<const char*, 2> ModeNames{"free", "fixed"};        // as BusMappingFile::Mode counts
constexpr std::array<const char*, 3> TypeNames{"Bool", "Int", "Float"}; // as BusVariableType counts
constexpr std::array<const char*, 10> BusNames{
    "ModbusTcpSlave", "EtherCatSlave",   "EtherNetIPSlave",  "ProfinetSlave",  "EtherCatMaster",
    "DeviceNetSlave", "ModbusTcpMaster", "EtherNetIPMaster", "ProfinetMaster", "DeviceNetMaster"};

struct Direction
{
    const char* name;
    BusAreaInfo BusAddrNumInfo::*area;
};
constexpr std::array<Direction, 3> Directions{{{"ro", &BusAddrNumInfo::readOnly},
                                               {"wo", &BusAddrNumInfo::writeOnly},
                                               {"rw", &BusAddrNumInfo::readWrite}}};

struct RowKind
{
    const char* element;
    std::array<BusRowInfo, 3> BusAreaInfo::*rows;
};
constexpr std::array<RowKind, 2> RowKinds{{{"User", &BusAreaInfo::user}, {"System", &BusAreaInfo::system}}};

// Far above what any bus carries, and a byte figure computed from it still fits an int.
constexpr quint32 MaxQuantity = 65535;

bool readAddress(const pugi::xml_attribute& attribute, quint32& address)
{
    address = NoBusAddress;
    return !attribute || readNumber(attribute, NoBusAddress - 1, address);
}

// `Info` is a row or an area: both have a start and an end.
template <typename Info>
bool readAddresses(const pugi::xml_node& node, Info& info)
{
    return readAddress(node.attribute("start"), info.start) && readAddress(node.attribute("end"), info.end);
}

bool readArea(const pugi::xml_node& node, BusAreaInfo& area)
{
    if (!readAddresses(node, area))
        return false;
    for (const RowKind& kind : RowKinds) {
        for (std::size_t type = 0; type < TypeNames.size(); ++type) {
            const pugi::xml_node rowNode =
                node.find_child_by_attribute(kind.element, "type", TypeNames[type]);
            if (!rowNode)
                continue;
            BusRowInfo& row = (area.*kind.rows)[type];
            quint32 quantity = 0;
            if (!readNumber(rowNode.attribute("quantity"), MaxQuantity, quantity) ||
                !readAddresses(rowNode, row))
                return false;
            row.quantity = static_cast<int>(quantity);
        }
    }
    return true;
}

bool readBuses(const pugi::xml_node& mode, std::vector<BusAddrNumInfo>& buses)
{
    for (const char* name : BusNames) {
        BusAddrNumInfo& bus = buses.emplace_back();
        bus.busName = QLatin1String(name);
        const pugi::xml_node node = mode.find_child_by_attribute("Bus", "name", name);
        for (const Direction& direction : Directions) {
            if (!readArea(node.find_child_by_attribute("Area", "direction", direction.name),
                          bus.*direction.area))
                return false;
        }
    }
    return true;
}

void writeAddress(pugi::xml_node node, const char* name, quint32 address)
{
    if (address == NoBusAddress)
        node.remove_attribute(name);
    else
        ensureAttribute(node, name).set_value(address);
}

template <typename Info>
void writeAddresses(const pugi::xml_node& node, const Info& info)
{
    writeAddress(node, "start", info.start);
    writeAddress(node, "end", info.end);
}

void writeArea(const pugi::xml_node& node, const BusAreaInfo& area)
{
    writeAddresses(node, area);
    for (const RowKind& kind : RowKinds) {
        for (std::size_t type = 0; type < TypeNames.size(); ++type) {
            const BusRowInfo& row = (area.*kind.rows)[type];
            // A row that says nothing is not added to a file that does not have it.
            if (row == BusRowInfo() && !node.find_child_by_attribute(kind.element, "type", TypeNames[type]))
                continue;
            const pugi::xml_node rowNode = ensureChild(node, kind.element, "type", TypeNames[type]);
            ensureAttribute(rowNode, "quantity").set_value(row.quantity);
            writeAddresses(rowNode, row);
        }
    }
}

void writeBuses(const pugi::xml_node& root, const char* mode, const std::vector<BusAddrNumInfo>& buses)
{
    for (const BusAddrNumInfo& bus : buses) {
        const QByteArray name = bus.busName.toLatin1();
        for (const Direction& direction : Directions) {
            const BusAreaInfo& area = bus.*direction.area;
            const pugi::xml_node known = root.find_child_by_attribute("Mode", "name", mode)
                                             .find_child_by_attribute("Bus", "name", name)
                                             .find_child_by_attribute("Area", "direction", direction.name);
            if (area == BusAreaInfo() && !known)
                continue;
            const pugi::xml_node busNode =
                ensureChild(ensureChild(root, "Mode", "name", mode), "Bus", "name", name);
            writeArea(ensureChild(busNode, "Area", "direction", direction.name), area);
        }
    }
}

} // namespace

bool BusMappingFile::parse(const QByteArray& bytes)
{
    pugi::xml_document document;
    if (!loadXml(bytes, Root, document))
        return false;
    std::array<std::vector<BusAddrNumInfo>, 2> buses;
    for (std::size_t mode = 0; mode < ModeNames.size(); ++mode) {
        const pugi::xml_node node =
            document.child(Root).find_child_by_attribute("Mode", "name", ModeNames[mode]);
        if (!readBuses(node, buses[mode]))
            return false;
    }
    m_source = bytes;
    m_buses = std::move(buses);
    return true;
}

QByteArray BusMappingFile::toBytes() const
{
    pugi::xml_document document;
    if (!loadXml(m_source, Root, document))
        return {};
    for (std::size_t mode = 0; mode < ModeNames.size(); ++mode)
        writeBuses(document.child(Root), ModeNames[mode], m_buses[mode]);
    return saveXml(document);
}

void BusMappingFile::setBuses(Mode mode, const std::vector<BusAddrNumInfo>& buses)
{
    for (const BusAddrNumInfo& changed : buses) {
        for (BusAddrNumInfo& bus : m_buses[mode]) {
            if (bus.busName == changed.busName)
                bus = changed;
        }
    }
}
