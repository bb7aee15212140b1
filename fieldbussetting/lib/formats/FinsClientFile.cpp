#include "FinsClientFile.h"

#include "HandleBusFiles.h"
#include "XmlRecord.h"

namespace {

constexpr XmlRecord::Place Place = {"ClientConfig"};

constexpr XmlRecord::Field<FinsClientConfig> Fields[] = {
    {"ServerIP", &FinsClientConfig::ServerIP},
    {"ServerPort", &FinsClientConfig::ServerPort},
    {"ClientNode", &FinsClientConfig::ClientNode},
    {"AutoConnect", &FinsClientConfig::AutoConnect},
    {"ReadDmAddress", &FinsClientConfig::ReadDmAddress},
    {"WriteDmAddress", &FinsClientConfig::WriteDmAddress},
    {"IpPortIndex", &FinsClientConfig::IpPortIndex},
};

} // namespace

bool HandleBusFiles::readFinsTcpFile(const QString& path, FinsClientConfig& record)
{
    return XmlRecord::readFile(path, Place, Fields, record);
}

bool HandleBusFiles::writeFinsTcpFile(const QString& path, const FinsClientConfig& record)
{
    return XmlRecord::writeFile(path, Place, Fields, record);
}
