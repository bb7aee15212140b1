#include "MtcpMasterFile.h"

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

bool MtcpMasterFile::read(const QByteArray& content, MtcpMasterConfig& record, bool* recognised)
{
    return XmlRecord::read(content, Place, Fields, record, recognised);
}

void MtcpMasterFile::readFrom(const pugi::xml_document& document, MtcpMasterConfig& record)
{
    XmlRecord::read(XmlRecord::nodeAt(document, Place), Fields, record);
}

QByteArray MtcpMasterFile::written(const MtcpMasterConfig& record)
{
    return XmlRecord::written(Place, Fields, record);
}
