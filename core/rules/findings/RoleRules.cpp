#include "Rules.h"

#include "SwitchRules.h"

namespace Rules {

namespace {

void excluded(const Configuration& configuration, FindingList& found, ExclusionGroup group, FindingCode code)
{
    std::vector<Evidence> evidence;
    std::optional<RoleId> last;
    for (const RoleInfo& role : RoleTable::Roles) {
        if (role.group != group || !configuration.isOn(role.id))
            continue;
        evidence.push_back(found.factOf(role.id));
        last = role.id;
    }
    if (evidence.size() < 2)
        return;
    const QByteArray name = RoleTable::nameOf(*last);
    found.add(code, {last, FileId::RoleList, {'"' + name + '"'}}, {}, evidence);
}

void switchFile(const Configuration& configuration, FindingList& found)
{
    if (!configuration.isRead(FileId::BusSwitch) || !configuration.isRead(FileId::RoleList))
        return;
    for (const RoleInfo& role : RoleTable::Roles) {
        const bool inFile = role.switchFlag && configuration.switches.*role.switchFlag;
        if (!role.switchFlag || inFile == configuration.isOn(role.id))
            continue;
        const QByteArray name = role.name;
        found.add(FindingCode::SwitchFileDiffers, {role.id, FileId::BusSwitch, {'"' + name + '"'}},
                  {titleOf(role.id)},
                  {found.factOf(role.id),
                   FindingList::fact(QLatin1String(name), FileId::BusSwitch, inFile ? 1 : 0)});
    }
}

const OverrideEntry* entryNamed(const OverrideRecord& record, const char* name)
{
    for (int i = 0; i < record.count; ++i) {
        const OverrideEntry& entry = record.entries[static_cast<std::size_t>(i)];
        if (entry.name.contains(QLatin1String(name)))
            return &entry;
    }
    return nullptr;
}

Evidence factOf(const OverrideEntry& entry)
{
    return FindingList::fact(
        entry.name.isEmpty() ? QString::number(entry.number) : entry.name, FileId::Override,
        (entry.off ? QStringLiteral(";ECAT_SLAVE_OFF %1 %2") : QStringLiteral("ECAT_SLAVE_OFF %1 %2"))
            .arg(entry.slot)
            .arg(entry.number));
}

void deviceOf(const RoleInfo& role, const Configuration& configuration, FindingList& found)
{
    const bool isSlave = role.id == RoleId::EtherCatSlave;
    const OverrideEntry* entry =
        entryNamed(isSlave ? configuration.slaveDevices : configuration.masterDevices, role.overrideDevice);
    const bool isInUse = entry && entry->off;
    const FindingList::About about{role.id, FileId::Override, {QByteArray(role.overrideDevice)}};
    std::vector<Evidence> evidence{found.factOf(role.id)};
    if (entry)
        evidence.push_back(factOf(*entry));
    else
        evidence.push_back(FindingList::fact(QLatin1String(role.overrideDevice), FileId::Override,
                                             QStringLiteral("no line")));
    const QStringList arguments{titleOf(role.id), QLatin1String(role.overrideDevice)};
    if (configuration.isOn(role.id) && !isInUse)
        found.add(FindingCode::NoDevice, about, arguments, evidence);
    if (!configuration.isOn(role.id) && isInUse)
        found.add(FindingCode::DeviceWithoutRole, about, arguments, evidence);
}

// Another line may take the same device out of use again; what counts is that two have it in use.
void doubled(const OverrideRecord& record, FindingList& found)
{
    for (int i = 0; i < record.count; ++i) {
        const OverrideEntry& entry = record.entries[static_cast<std::size_t>(i)];
        for (int k = 0; k < i; ++k) {
            const OverrideEntry& other = record.entries[static_cast<std::size_t>(k)];
            if (entry.off && other.off && entry.number == other.number) {
                const QByteArray number = QByteArray::number(entry.number);
                found.add(FindingCode::DeviceUsedTwice, {{}, FileId::Override, {number, number}},
                          {QString::fromLatin1(number)}, {factOf(other), factOf(entry)});
            }
        }
    }
}

void sharedCard(const Configuration& configuration, FindingList& found)
{
    QStringList names;
    std::vector<Evidence> evidence;
    QByteArray last;
    for (const RoleInfo& role : RoleTable::Roles) {
        const OverrideEntry* entry = role.group == ExclusionGroup::Masters && role.overrideDevice
                                         ? entryNamed(configuration.masterDevices, role.overrideDevice)
                                         : nullptr;
        if (!entry || !entry->off)
            continue;
        names << entry->name;
        evidence.push_back(factOf(*entry));
        last = role.overrideDevice;
    }
    if (names.size() > 1)
        found.add(FindingCode::MastersShareCard, {{}, FileId::Override, {last}},
                  {names.join(QStringLiteral(", "))}, evidence);
}

} // namespace

void roles(const Configuration& configuration, FindingList& found, bool profisafePresent)
{
    if (!configuration.isRead(FileId::RoleList))
        return;
    excluded(configuration, found, ExclusionGroup::Masters, FindingCode::MastersTogether);
    excluded(configuration, found, ExclusionGroup::DeviceNet, FindingCode::DeviceNetTogether);
    for (const RoleInfo& role : RoleTable::Roles) {
        if (SwitchRules::freeConfigurationObjection(role.id, configuration.on, profisafePresent))
            found.add(FindingCode::NeedsFreeConfiguration,
                      {role.id, FileId::RoleList, {'"' + QByteArray(role.name) + '"'}}, {titleOf(role.id)},
                      {found.factOf(role.id), found.factOf(RoleId::FreeBus)});
    }
    if (!configuration.isOn(RoleId::ModbusTcpSlave))
        found.add(FindingCode::ModbusSlaveOff,
                  {RoleId::ModbusTcpSlave, FileId::RoleList, {"\"ModbusTcpSlave\""}}, {},
                  {found.factOf(RoleId::ModbusTcpSlave)});
    switchFile(configuration, found);
}

void devices(const Configuration& configuration, FindingList& found)
{
    if (!configuration.isRead(FileId::Override) || !configuration.isRead(FileId::RoleList))
        return;
    for (const RoleInfo& role : RoleTable::Roles) {
        if (role.overrideDevice)
            deviceOf(role, configuration, found);
    }
    doubled(configuration.slaveDevices, found);
    doubled(configuration.masterDevices, found);
    sharedCard(configuration, found);
}

} // namespace Rules
