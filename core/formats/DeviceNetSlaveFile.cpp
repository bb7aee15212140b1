#include "DeviceNetSlaveFile.h"

#include "XmlRecord.h"

namespace {

constexpr XmlRecord::Place Place = {"devicenet", "Dns"};

constexpr XmlRecord::Field<DeviceNetSlaveConfig> Fields[] = {
    {"Dns_MACID", &DeviceNetSlaveConfig::Dns_MACID},
    {"Dns_BAUDRATE", &DeviceNetSlaveConfig::Dns_BAUDRATE},
};

} // namespace

bool DeviceNetSlaveFile::read(const QByteArray& content, DeviceNetSlaveConfig& record, bool* recognised)
{
    return XmlRecord::read(content, Place, Fields, record, recognised);
}

void DeviceNetSlaveFile::readFrom(const pugi::xml_document& document, DeviceNetSlaveConfig& record)
{
    XmlRecord::read(XmlRecord::nodeAt(document, Place), Fields, record);
}

QByteArray DeviceNetSlaveFile::written(const DeviceNetSlaveConfig& record)
{
    return XmlRecord::written(Place, Fields, record);
}
