#include "KnownFiles.h"

namespace KnownFiles {

namespace {

#define FIDBUS "/application/fidbus/"

constexpr std::array<KnownFile, FileCount> Files = {{
    {FileId::Heartbeat, "heartbeat.xml", "heartbeat.xml", FIDBUS "heartbeat.xml", "Fidbus"},
    {FileId::Mapping, "field cfg", "fieldbus_config.xml", FIDBUS "fieldbus_config.xml", "FieldbusConfig"},
    {FileId::RoleList, "field xml", "fieldbus.xml", FIDBUS "fieldbus.xml", "Fieldbus"},
    {FileId::SignalMapping, "func Mapp", "signal_mapping.cfg", FIDBUS "signal_mapping.cfg", nullptr},
    {FileId::UserDescription, "user Desc", "user_description.xml", FIDBUS "user_description.xml",
     "UserDescription"},
    {FileId::GroupIo, "group Io", "user_groupio.cfg", FIDBUS "user_groupio.cfg", nullptr},
    {FileId::DeviceNetSlave, "devicenet slave", "devicenet/devicenetSlave.xml",
     FIDBUS "devicenet/devicenetSlave.xml", "devicenet"},
    {FileId::EipMaster, "eip master", "eipMaster/eip_master.xml", FIDBUS "eipMaster/eip_master.xml",
     "EipMasterCommunication"},
    {FileId::PfnMaster, "pfn master", "pfnMaster/pfn_master.xml", FIDBUS "pfnMaster/pfn_master.xml",
     "PfnMasterCommunication"},
    {FileId::FixedDescription, "fixed Desc", "fixed/description_fixed.xml",
     FIDBUS "fixed/description_fixed.xml", "Description"},
    {FileId::EipSlaveFixed, "fixed Dns", "fixed/dns_fixed.cfg", FIDBUS "fixed/dns_fixed.cfg", nullptr},
    {FileId::FixedRoleList, "fixed Field", "fixed/fieldbus_fixed.xml", FIDBUS "fixed/fieldbus_fixed.xml",
     "Fieldbus"},
    {FileId::FixedSignalMapping, "fixed Func", "fixed/signal_mapping_fixed.cfg",
     FIDBUS "fixed/signal_mapping_fixed.cfg", nullptr},
    {FileId::FixedModbus, "fixed Mtcp", "fixed/modbus_fixed.cfg", FIDBUS "fixed/modbus_fixed.cfg", nullptr},
    {FileId::PfbFixed, "fixed Pfb", "fixed/pfb_fixed.cfg", FIDBUS "fixed/pfb_fixed.cfg", nullptr},
    {FileId::FixedDeviceNet, "fixed Dns0", "fixed/dns0_fixed.cfg", FIDBUS "fixed/dns0_fixed.cfg", nullptr},
    {FileId::FreeDescription, "free Desc", "free/description_free.xml", FIDBUS "free/description_free.xml",
     "Description"},
    {FileId::EipSlaveFree, "free Dns", "free/dns_free.cfg", FIDBUS "free/dns_free.cfg", nullptr},
    {FileId::FreeRoleList, "free Field", "free/fieldbus_free.xml", FIDBUS "free/fieldbus_free.xml",
     "Fieldbus"},
    {FileId::FreeSignalMapping, "free Func", "free/signal_mapping_free.cfg",
     FIDBUS "free/signal_mapping_free.cfg", nullptr},
    {FileId::FreeModbus, "free Mtcp", "free/modbus_free.cfg", FIDBUS "free/modbus_free.cfg", nullptr},
    {FileId::PfbFree, "free Pfb", "free/pfb_free.cfg", FIDBUS "free/pfb_free.cfg", nullptr},
    {FileId::FreeDeviceNet, "free Dns0", "free/dns0_free.cfg", FIDBUS "free/dns0_free.cfg", nullptr},
    {FileId::Rs232, "rs232 config", "rs232/rs232FileConfig.xml", FIDBUS "rs232/rs232FileConfig.xml",
     "Rs232Config"},
    {FileId::EtherCatDescription, "ecat file", "SlaveConfig/EtherCAT/ABXS_ECT_V_3_28.xml",
     FIDBUS "SlaveConfig/EtherCAT/ABXS_ECT_V_3_28.xml", "EtherCATInfo"},
    {FileId::EtherNetIpDescription, "eip file", "SlaveConfig/EthernetIP/kliklus_urmc_v2.eds",
     FIDBUS "SlaveConfig/EthernetIP/kliklus_urmc_v2.eds", nullptr},
    {FileId::ProfinetDescription, "pfn file", "SlaveConfig/Profinet/GSDML-V2.33-Kliklus-RP2-20200520.xml",
     FIDBUS "SlaveConfig/Profinet/GSDML-V2.33-Kliklus-RP2-20200520.xml", "ISO15745Profile"},
    {FileId::DeviceNetDescription, "dns slaveconfig", "SlaveConfig/Devicenet/rbxm5034.eds",
     FIDBUS "SlaveConfig/Devicenet/rbxm5034.eds", nullptr},
    {FileId::Modbus, "fa mtcp", "fa/modbus.cfg", "/fa/modbus.cfg", nullptr},
    {FileId::SlaveModule, "fa fbSlave.cfgx", "fa/fbslave.cfgx", "/fa/fbslave.cfgx", "FbSlave"},
    {FileId::EipSlave, "fa dns-1", "fa/dns-1.cfg", "/fa/dns-1.cfg", nullptr},
    {FileId::DeviceNetDriver, "fa dns0", "fa/dns0.cfg", "/fa/dns0.cfg", nullptr},
    {FileId::PfbSlave, "fa pfb", "fa/pfb.cfg", "/fa/pfb.cfg", nullptr},
    {FileId::DeviceNetMaster, "fa dnmst0", "fa/dnmst0.cfg", "/fa/dnmst0.cfg", nullptr},
    {FileId::ProfisafeDescription, "pfs_desc", "pfs_description.xml", FIDBUS "pfs_description.xml",
     "ProfiSafe"},
    {FileId::MtcpMaster, "mtcp_master.xml", "mtcpMaster/mtcp_master.xml", FIDBUS "mtcpMaster/mtcp_master.xml",
     "MtcpMasterCommunication"},
    {FileId::BusSwitch, "bus switches", "Fieldbus.cfg", FIDBUS "Fieldbus.cfg", "FieldbusSettingConfig"},
    {FileId::Override, "override", "fa/override.cfg", "/FA/override.cfg", nullptr},
    {FileId::MesServer, "mes", "mes/TcpServerConfig.xml", "/application/mes/TcpServerConfig.xml",
     "TcpServerConfig"},
    {FileId::FinsClient, "fins", "finstcp/FinsTcpConfig.xml", "/application/finstcp/FinsTcpConfig.xml",
     "ClientConfig"},
    {FileId::NetworkPorts, "network ports", "network/netports.xml", "/application/network/netports.xml",
     "NetPorts"},
}};

#undef FIDBUS

constexpr bool standsById()
{
    for (std::size_t i = 0; i < Files.size(); ++i) {
        if (static_cast<std::size_t>(Files[i].id) != i)
            return false;
    }
    return true;
}
static_assert(standsById(), "the row of a file stands at its id");

} // namespace

const std::array<KnownFile, FileCount>& all()
{
    return Files;
}

const KnownFile& of(FileId file)
{
    return Files[static_cast<std::size_t>(file)];
}

const KnownFile* named(const QString& name)
{
    for (const KnownFile& file : Files) {
        if (name == QLatin1String(file.name))
            return &file;
    }
    return nullptr;
}

} // namespace KnownFiles
