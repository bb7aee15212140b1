#include "FinsClientFile.h"

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

bool FinsClientFile::read(const QByteArray& content, FinsClientConfig& record, bool* recognised)
{
    return XmlRecord::read(content, Place, Fields, record, recognised);
}

void FinsClientFile::readFrom(const pugi::xml_document& document, FinsClientConfig& record)
{
    XmlRecord::read(XmlRecord::nodeAt(document, Place), Fields, record);
}

QByteArray FinsClientFile::written(const FinsClientConfig& record)
{
    return XmlRecord::written(Place, Fields, record);
}
