#include "MtcpMasterFile.h"

#include "HandleBusFiles.h"
#include "XmlRecord.h"

namespace {

constexpr XmlRecord::Place Place = {"MtcpMasterCommunication", "Group"};

constexpr XmlRecord::Field<MtcpMasterConfig> Fields[] = {
    {"SlaveIp", &MtcpMasterConfig::SlaveIp},       {"SlavePort", &MtcpMasterConfig::SlavePort},
    {"SlaveId", &MtcpMasterConfig::SlaveId},       {"TimeOut", &MtcpMasterConfig::TimeOut},
    {"ReadEndian", &MtcpMasterConfig::ReadEndian}, {"WriteEndian", &MtcpMasterConfig::WriteEndian},
    {"Alivetime", &MtcpMasterConfig::Alivetime},
};

} // namespace

bool HandleBusFiles::readMtcpFile(const QString& path, MtcpMasterConfig& record)
{
    return XmlRecord::readFile(path, Place, Fields, record);
}

bool HandleBusFiles::writeMtcpFile(const QString& path, const MtcpMasterConfig& record)
{
    return XmlRecord::writeFile(path, Place, Fields, record);
}
