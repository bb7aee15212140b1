#include "Rules.h"

#include "AsciiText.h"
#include "EndianNames.h"
#include "TextTemplate.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace Rules {

namespace {

using Field = HeartbeatConfig::Field;

const RoleInfo* roleOf(const Field& field)
{
    const auto found =
        std::find_if(RoleTable::Roles.begin(), RoleTable::Roles.end(), [&field](const RoleInfo& role) {
            return role.heartbeatKey && std::strcmp(role.heartbeatKey, field.bus) == 0;
        });
    return found == RoleTable::Roles.end() ? nullptr : found;
}

FindingList::About atTimeout(RoleId role, const Field& field)
{
    return {role, FileId::Heartbeat, {'<' + QByteArray(field.timeoutElement)}};
}

// A watch shorter than what its role needs to find out that all is well.
void shortWatch(const Configuration& configuration, FindingList& found, RoleId role, const Field& field)
{
    constexpr double MsPerSecond = 1000;
    const double timeout = configuration.heartbeat.*field.timeout;
    const bool isScanned = role == RoleId::DeviceNetMaster && configuration.isRead(FileId::DeviceNetMaster);
    const bool isAsked = role == RoleId::ModbusTcpMaster && configuration.isRead(FileId::MtcpMaster);
    if (!isScanned && !isAsked)
        return;
    const double needed = isScanned ? configuration.deviceNetMaster.PACHET_RATIO / MsPerSecond
                                    : configuration.mtcpMaster.TimeOut.toDouble();
    if (timeout >= needed)
        return;
    const FileId file = isScanned ? FileId::DeviceNetMaster : FileId::MtcpMaster;
    const QString fact = isScanned ? QStringLiteral("PACHET_RATIO") : QStringLiteral("TimeOut");
    const QString shown = isScanned ? QString::number(configuration.deviceNetMaster.PACHET_RATIO)
                                    : configuration.mtcpMaster.TimeOut;
    found.add(isScanned ? FindingCode::WatchShorterThanScan : FindingCode::WatchShorterThanTimeOut,
              atTimeout(role, field),
              {titleOf(role), HeartbeatConfig::timeoutText(timeout), QString::number(needed)},
              {FindingList::fact(QStringLiteral("time-out of the watch"), FileId::Heartbeat,
                                 HeartbeatConfig::timeoutText(timeout)),
               FindingList::fact(fact, file, shown)});
}

void watch(const Configuration& configuration, FindingList& found, const Field& field, const RoleInfo& role)
{
    const bool isWatched = configuration.heartbeat.*field.nodSwitch;
    const double timeout = configuration.heartbeat.*field.timeout;
    const bool isOn = configuration.isOn(role.id) || role.id == RoleId::ModbusTcpSlave ||
                      !configuration.isRead(FileId::RoleList);
    if (isWatched != isOn) {
        if (isWatched || configuration.isRead(FileId::RoleList))
            found.add(
                isWatched ? FindingCode::WatchOfNothing : FindingCode::NotWatched,
                {role.id, FileId::Heartbeat, {'<' + QByteArray(field.switchElement)}}, {titleOf(role.id)},
                {FindingList::fact(QLatin1String(field.switchElement), FileId::Heartbeat, isWatched ? 1 : 0),
                 found.factOf(role.id)});
        return;
    }
    if (!isWatched)
        return;
    if (std::isfinite(timeout) && timeout > 0)
        return shortWatch(configuration, found, role.id, field);
    found.add(timeout == 0 ? FindingCode::WatchWithoutTime : FindingCode::WatchNoTime,
              atTimeout(role.id, field), {titleOf(role.id)},
              {FindingList::fact(QLatin1String(field.timeoutElement), FileId::Heartbeat,
                                 QString::number(timeout))});
}

bool isEndianName(std::string_view word)
{
    return std::any_of(EndianNames.begin(), EndianNames.end(),
                       [word](const char* name) { return word == name; });
}

// What the driver goes by: the line behind RUN_ALWAYS.
std::string_view endianOf(const QByteArray& bytes)
{
    std::string_view endian;
    bool isNext = false;
    TextTemplate::forEachLine(bytes, [&](std::string_view line, std::string_view) {
        const std::string_view word = AsciiText::trimmed(line);
        if (isNext && !word.empty() && word.front() != ';') {
            endian = word;
            return false;
        }
        isNext = isNext || word == "RUN_ALWAYS";
        return true;
    });
    return endian;
}

struct Driver
{
    RoleId role;
    FileId file, free, fixed;
};
constexpr Driver Drivers[] = {
    {RoleId::ProfinetSlave, FileId::PfbSlave, FileId::PfbFree, FileId::PfbFixed},
    {RoleId::EtherNetIPSlave, FileId::EipSlave, FileId::EipSlaveFree, FileId::EipSlaveFixed},
};

void variant(const Configuration& configuration, FindingList& found, const Driver& driver, FileId other,
             FindingCode code)
{
    if (!configuration.isRead(other))
        return;
    const std::string_view own = endianOf(configuration.bytes(driver.file));
    const std::string_view others = endianOf(configuration.bytes(other));
    if (own != others)
        found.add(code, {driver.role, other, {"RUN_ALWAYS"}}, {titleOf(driver.role)},
                  {FindingList::fact(QStringLiteral("byte order"), driver.file, AsciiText::text(own)),
                   FindingList::fact(QStringLiteral("byte order"), other, AsciiText::text(others))});
}

} // namespace

void watches(const Configuration& configuration, FindingList& found)
{
    if (!configuration.isRead(FileId::Heartbeat))
        return;
    for (const Field& field : HeartbeatConfig::fields()) {
        if (const RoleInfo* role = roleOf(field))
            watch(configuration, found, field, *role);
    }
}

void byteOrders(const Configuration& configuration, FindingList& found)
{
    for (const Driver& driver : Drivers) {
        if (!configuration.isRead(driver.file))
            continue;
        const std::string_view word = endianOf(configuration.bytes(driver.file));
        if (!isEndianName(word)) {
            const QString endian = AsciiText::text(word);
            found.add(FindingCode::EndianUnknown, {driver.role, driver.file, {"RUN_ALWAYS"}},
                      {titleOf(driver.role), endian},
                      {FindingList::fact(QStringLiteral("byte order"), driver.file, endian)});
        }
        variant(configuration, found, driver, driver.free, FindingCode::EndianDiffersFromFree);
        variant(configuration, found, driver, driver.fixed, FindingCode::EndianDiffersFromFixed);
    }
    if (configuration.isRead(FileId::DeviceNetMaster)) {
        const QByteArray word = AsciiText::bytes(configuration.deviceNetMaster.ENDIAN);
        if (!isEndianName(AsciiText::view(word)))
            found.add(FindingCode::EndianUnknown,
                      {RoleId::DeviceNetMaster, FileId::DeviceNetMaster, {"\nENDIAN"}},
                      {titleOf(RoleId::DeviceNetMaster), configuration.deviceNetMaster.ENDIAN},
                      {FindingList::fact(QStringLiteral("ENDIAN"), FileId::DeviceNetMaster,
                                         configuration.deviceNetMaster.ENDIAN)});
    }
}

} // namespace Rules
