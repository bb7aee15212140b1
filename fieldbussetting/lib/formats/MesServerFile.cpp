#include "MesServerFile.h"

#include "HandleBusFiles.h"
#include "XmlRecord.h"

namespace {

constexpr XmlRecord::Place Place = {"TcpServerConfig"};

constexpr XmlRecord::Field<MesServerConfig> Fields[] = {
    {"Port", &MesServerConfig::Port},
    {"Mode", &MesServerConfig::Mode},
    {"Protocol", &MesServerConfig::Protocol},
    {"IntervalTime", &MesServerConfig::IntervalTime},
    {"IpPortIndex", &MesServerConfig::IpPortIndex},
};

} // namespace

bool HandleBusFiles::readMesSetFile(const QString& path, MesServerConfig& record)
{
    return XmlRecord::readFile(path, Place, Fields, record);
}

bool HandleBusFiles::writeMesSetFile(const QString& path, const MesServerConfig& record)
{
    return XmlRecord::writeFile(path, Place, Fields, record);
}
