#include "MesServerFile.h"

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

bool MesServerFile::read(const QByteArray& content, MesServerConfig& record, bool* recognised)
{
    return XmlRecord::read(content, Place, Fields, record, recognised);
}

void MesServerFile::readFrom(const pugi::xml_document& document, MesServerConfig& record)
{
    XmlRecord::read(XmlRecord::nodeAt(document, Place), Fields, record);
}

QByteArray MesServerFile::written(const MesServerConfig& record)
{
    return XmlRecord::written(Place, Fields, record);
}
