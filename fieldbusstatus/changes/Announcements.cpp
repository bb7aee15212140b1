#include "Announcements.h"

#include "BusFileDataManager.h"
#include "DeviceNetMasterFile.h"
#include "zelCustomRvar.h"

namespace {

constexpr int ReadWrite = 1;

// Bits of "ifidbus.xml_update_state". The answer to an announcement before is not the one to this one.
constexpr int Rejected = 0x800;
constexpr int Taken = 0x4000;
constexpr int Announced = 0x8000;

zelCustomRvarInt updateState("ifidbus.xml_update_state", ReadWrite);
zelCustomRvarBool scanListSaved("ifidbus.dnm_save_config", ReadWrite);
zelCustomRvarInt scanListDevices("ifidbus.dnm_slave_num", ReadWrite);

// Of files that the controller reads anew as soon as it is told.
zelCustomRvarBool heartbeat("ifidbus.xml_heartbeat", ReadWrite);
zelCustomRvarBool modbusMaster("ifidbus.mbc_save_enable", ReadWrite);
zelCustomRvarBool finsClient("ifins_tcp.bupdate_cfg", ReadWrite);
zelCustomRvarBool mesServer("imes.update_tcp_server_cfg", ReadWrite);

zelCustomRvarBool* variableOf(FileId file)
{
    switch (file) {
    case FileId::Heartbeat:
        return &heartbeat;
    case FileId::MtcpMaster:
        return &modbusMaster;
    case FileId::FinsClient:
        return &finsClient;
    case FileId::MesServer:
        return &mesServer;
    default:
        return nullptr;
    }
}

} // namespace

void Announcements::beforeSend(FileId file)
{
    if (file == FileId::DeviceNetMaster)
        scanListSaved = true;
}

void Announcements::afterSend(FileId file, const QByteArray& content)
{
    if (zelCustomRvarBool* variable = variableOf(file))
        *variable = true;
    DeviceNetMasterConfig scanList;
    if (file == FileId::DeviceNetMaster && DeviceNetMasterFile::read(content, scanList))
        scanListDevices = scanList.count;
    // The service would write what it holds over the file with the next save of a page.
    if (file == FileId::Mapping) {
        updateState = (updateState & ~(Taken | Rejected)) | Announced;
        BusFileDataManager::getInstance()->emitGetFieldbusCfg();
    }
    if (file == FileId::RoleList)
        BusFileDataManager::getInstance()->emitGetFieldXml();
}

bool Announcements::needsRestart(FileId file)
{
    return !variableOf(file);
}
