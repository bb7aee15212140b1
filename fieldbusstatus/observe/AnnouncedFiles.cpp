#include "AnnouncedFiles.h"

namespace {

constexpr qint64 CommandMs = 5000;
constexpr qint64 MappingMs = 16000; // the pages wait 15 s for the answer

} // namespace

const std::vector<AnnouncedFiles>& announcedFiles()
{
    static const std::vector<AnnouncedFiles> all = {
        {"ifidbus.xml_heartbeat", ~0, CommandMs, {}, {FileId::Heartbeat}},
        {"ifidbus.mbc_save_enable", ~0, CommandMs, RoleId::ModbusTcpMaster, {FileId::MtcpMaster}},
        {"ifidbus.dnm_save_config", ~0, CommandMs, RoleId::DeviceNetMaster, {FileId::DeviceNetMaster}},
        {"ifins_tcp.bupdate_cfg", ~0, CommandMs, RoleId::FinsTcp, {FileId::FinsClient}},
        {"imes.update_tcp_server_cfg", ~0, CommandMs, RoleId::Mes, {FileId::MesServer}},
        {"ifidbus.xml_update_state", 0x8000, MappingMs, {}, {FileId::Mapping, FileId::DeviceNetSlave}},
        {"ifidbus.bus_type_state", 1, CommandMs, {}, {FileId::RoleList, FileId::BusSwitch, FileId::Override}},
        {"ifidbus.ecat2open", ~0, CommandMs, RoleId::EtherCatSlave, {FileId::Override, FileId::SlaveModule}},
        {"ifidbus.ecat2close", ~0, CommandMs, RoleId::EtherCatSlave, {FileId::Override, FileId::SlaveModule}},
        {"ifidbus.eip2open", ~0, CommandMs, RoleId::EtherNetIPSlave, {FileId::EipSlave}},
        {"ifidbus.eip2close", ~0, CommandMs, RoleId::EtherNetIPSlave, {FileId::EipSlave}},
        {"ifidbus.pfn2open", ~0, CommandMs, RoleId::ProfinetSlave, {FileId::PfbSlave}},
        {"ifidbus.pfn2close", ~0, CommandMs, RoleId::ProfinetSlave, {FileId::PfbSlave}},
        {"ifidbus.dns2open", ~0, CommandMs, RoleId::DeviceNetSlave, {FileId::DeviceNetSlave}},
        {"ifidbus.dns2close", ~0, CommandMs, RoleId::DeviceNetSlave, {FileId::DeviceNetSlave}},
        {"ifidbus.dnm2open", ~0, CommandMs, RoleId::DeviceNetMaster, {FileId::DeviceNetMaster}},
        {"ifidbus.dnm2close", ~0, CommandMs, RoleId::DeviceNetMaster, {FileId::DeviceNetMaster}},
    };
    return all;
}
