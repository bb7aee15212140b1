#include "Rules.h"

#include <algorithm>
#include <map>

namespace Rules {

namespace {

using Device = DeviceNetMasterDevice;
constexpr RoleId Master = RoleId::DeviceNetMaster;
constexpr FileId MasterFile = FileId::DeviceNetMaster;

constexpr int HighestMacId = 63;
constexpr int MostBytes = 64; // of a direction, on the page
constexpr int BitsInByte = 8;
constexpr int BitsInRegister = 16;
constexpr int BaudRates[] = {125, 250, 500}; // kbps

// The devices are numbered from 1, as their comments number them.
QString numberOf(int device)
{
    return QString::number(device + 1);
}

std::vector<QByteArray> placeOf(int device)
{
    return {";   Device " + QByteArray::number(device + 1)};
}

const Device& deviceAt(const Configuration& configuration, int device)
{
    return configuration.deviceNetMaster.devices[static_cast<std::size_t>(device)];
}

Evidence macFact(const Configuration& configuration, int device)
{
    return FindingList::fact(QStringLiteral("Device %1 MAC ID").arg(device + 1), MasterFile,
                             deviceAt(configuration, device).MAC_ID);
}

void macIds(const Configuration& configuration, FindingList& found)
{
    std::map<int, int> first; // device by MAC ID
    for (int i = 0; i < configuration.deviceNetMaster.count; ++i) {
        const int macId = deviceAt(configuration, i).MAC_ID;
        const QString text = QString::number(macId);
        const FindingList::About about{Master, MasterFile, placeOf(i)};
        if (macId < 1 || macId > HighestMacId) {
            found.add(FindingCode::MacIdOutside, about, {text, numberOf(i)}, {macFact(configuration, i)});
            continue;
        }
        if (macId == configuration.deviceNetMaster.WS_ID)
            found.add(FindingCode::MacIdIsScanners, about, {text, numberOf(i)},
                      {macFact(configuration, i), FindingList::fact(QStringLiteral("WS_ID"), MasterFile,
                                                                    configuration.deviceNetMaster.WS_ID)});
        const auto [other, isNew] = first.emplace(macId, i);
        if (!isNew)
            found.add(FindingCode::MacIdTwice, about, {text},
                      {macFact(configuration, other->second), macFact(configuration, i)});
    }
}

// What differs between the inputs and the outputs of the devices.
struct Way
{
    int Device::*bytes;
    int Device::*block;
    const char* keyword;
    MappingDirection direction;
    FindingCode aboveMapping;
};
constexpr Way Ways[] = {
    {&Device::inputBytes, &Device::BLOCK_TO_RBX, "BLOCK_TO_RBX", ReadOnlyArea,
     FindingCode::InputsAboveMapping},
    {&Device::outputBytes, &Device::BLOCK_FROM_RBX, "BLOCK_FROM_RBX", WriteOnlyArea,
     FindingCode::OutputsAboveMapping},
};

int mappedBits(const Configuration& configuration, const Way& way)
{
    constexpr std::size_t Bus = MappingConfig::BusCount - 1; // the DeviceNet master is the last one
    return configuration.mapping.buses[configuration.mode()][Bus]
        .areas[way.direction]
        .user[MappedBool]
        .quantity;
}

void sizes(const Configuration& configuration, FindingList& found, const Way& way)
{
    if (!configuration.isRead(FileId::Mapping))
        return;
    const int bits = mappedBits(configuration, way);
    int sum = 0;
    for (int i = 0; i < configuration.deviceNetMaster.count; ++i)
        sum += deviceAt(configuration, i).*way.bytes;
    if (sum > bits / BitsInByte) {
        found.add(way.aboveMapping, {Master, MasterFile},
                  {QString::number(sum), QString::number(bits / BitsInByte)},
                  {FindingList::fact(QStringLiteral("bytes of all devices"), MasterFile, sum),
                   FindingList::fact(QStringLiteral("mapped Bools"), FileId::Mapping, bits)});
        return;
    }
    const int last = DeviceNetMasterConfig::FirstRegister + (bits + BitsInRegister - 1) / BitsInRegister +
                     configuration.deviceNetMaster.count - 1; // each device begins at a register of its own
    for (int i = 0; i < configuration.deviceNetMaster.count; ++i) {
        const Device& device = deviceAt(configuration, i);
        const int end = device.*way.block + DeviceNetMasterConfig::registerCount(device.*way.bytes) - 1;
        if (device.*way.bytes == 0 ||
            (device.*way.block >= DeviceNetMasterConfig::FirstRegister && end <= last))
            continue;
        std::vector<QByteArray> place = placeOf(i);
        place.push_back(way.keyword);
        found.add(FindingCode::RegistersBeyondArea, {Master, MasterFile, place},
                  {numberOf(i), QString::number(end), QString::number(last)},
                  {FindingList::fact(QLatin1String(way.keyword), MasterFile, device.*way.block)});
    }
}

void overlaps(const Configuration& configuration, FindingList& found, const Way& way)
{
    std::vector<int> order;
    for (int i = 0; i < configuration.deviceNetMaster.count; ++i) {
        if (deviceAt(configuration, i).*way.bytes > 0)
            order.push_back(i);
    }
    const auto start = [&](int device) { return deviceAt(configuration, device).*way.block; };
    std::sort(order.begin(), order.end(), [&](int one, int other) { return start(one) < start(other); });
    for (std::size_t i = 1; i < order.size(); ++i) {
        const int before = order[i - 1];
        const int end = start(before) +
                        DeviceNetMasterConfig::registerCount(deviceAt(configuration, before).*way.bytes) - 1;
        if (start(order[i]) > end)
            continue;
        std::vector<QByteArray> place = placeOf(order[i]);
        place.push_back(way.keyword);
        found.add(FindingCode::RegistersOverlap, {Master, MasterFile, place},
                  {numberOf(before), numberOf(order[i])},
                  {FindingList::fact(QLatin1String(way.keyword), MasterFile, start(before)),
                   FindingList::fact(QLatin1String(way.keyword), MasterFile, start(order[i]))});
    }
}

void devicesAlone(const Configuration& configuration, FindingList& found)
{
    for (int i = 0; i < configuration.deviceNetMaster.count; ++i) {
        const Device& device = deviceAt(configuration, i);
        const int most = std::max(device.inputBytes, device.outputBytes);
        if (most > 0 && most <= MostBytes)
            continue;
        const FindingList::About about{Master, MasterFile, placeOf(i)};
        const std::vector<Evidence> facts{
            FindingList::fact(QStringLiteral("input bytes"), MasterFile, device.inputBytes),
            FindingList::fact(QStringLiteral("output bytes"), MasterFile, device.outputBytes)};
        if (most == 0)
            found.add(FindingCode::DeviceWithoutData, about, {numberOf(i)}, facts);
        else
            found.add(FindingCode::DeviceTooLarge, about, {numberOf(i), QString::number(most)}, facts);
    }
}

void baudRate(RoleId role, FileId file, const char* keyword, const QString& text, FindingList& found)
{
    bool isNumber = false;
    const int rate = text.trimmed().toInt(&isNumber);
    if (!isNumber || std::find(std::begin(BaudRates), std::end(BaudRates), rate) == std::end(BaudRates))
        found.add(FindingCode::BaudRateOutside, {role, file, {keyword}}, {titleOf(role), text},
                  {FindingList::fact(QLatin1String(keyword), file, text)});
}

} // namespace

void scanList(const Configuration& configuration, FindingList& found)
{
    if (!configuration.isRead(MasterFile))
        return;
    if (configuration.deviceNetMaster.count == 0)
        found.add(FindingCode::ScanListEmpty, {Master, MasterFile}, {},
                  {FindingList::fact(QStringLiteral("devices"), MasterFile, 0)});
    baudRate(Master, MasterFile, "BAUDRATE", QString::number(configuration.deviceNetMaster.BAUDRATE), found);
    macIds(configuration, found);
    devicesAlone(configuration, found);
    for (const Way& way : Ways) {
        sizes(configuration, found, way);
        overlaps(configuration, found, way);
    }
}

void deviceNetSlave(const Configuration& configuration, FindingList& found)
{
    constexpr RoleId Role = RoleId::DeviceNetSlave;
    constexpr FileId File = FileId::DeviceNetSlave;
    if (!configuration.isRead(File))
        return;
    const QString text = configuration.deviceNetSlave.Dns_MACID;
    const std::vector<Evidence> facts{FindingList::fact(QStringLiteral("Dns_MACID"), File, text)};
    const FindingList::About about{Role, File, {"<Dns_MACID"}};
    bool isNumber = false;
    const int macId = text.trimmed().toInt(&isNumber);
    if (!isNumber || macId < 1 || macId > HighestMacId)
        found.add(FindingCode::SlaveMacIdOutside, about, {text}, facts);
    else if (macId % 2 != 0)
        found.add(FindingCode::SlaveMacIdOdd, about, {text}, facts);
    baudRate(Role, File, "Dns_BAUDRATE", configuration.deviceNetSlave.Dns_BAUDRATE, found);
}

} // namespace Rules
