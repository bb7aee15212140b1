#include "DeviceNetSlaveFile.h"

#include "HandleBusFiles.h"
#include "XmlRecord.h"

namespace {

constexpr XmlRecord::Place Place = {"devicenet", "Dns"};

constexpr XmlRecord::Field<DeviceNetSlaveConfig> Fields[] = {
    {"Dns_MACID", &DeviceNetSlaveConfig::Dns_MACID},
    {"Dns_BAUDRATE", &DeviceNetSlaveConfig::Dns_BAUDRATE},
};

} // namespace

bool HandleBusFiles::readDeviceNetFile(const QString& path, DeviceNetSlaveConfig& record)
{
    return XmlRecord::readFile(path, Place, Fields, record);
}

bool HandleBusFiles::writeDeviceNetFile(const QString& path, const DeviceNetSlaveConfig& record)
{
    return XmlRecord::writeFile(path, Place, Fields, record);
}
