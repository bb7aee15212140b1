#include "ControllerVariables.h"

namespace ControllerVariables {

namespace {
constexpr int ReadWrite = 1;
constexpr int SlavePositions = 9;
constexpr int DeviceNetDevices = 16;
constexpr int ProfisafeLocal = 8;
constexpr int ProfisafeExternal = 16;
} // namespace

zelCustomRvarInt ifidbus_bus_type_state("ifidbus.bus_type_state", ReadWrite);
zelCustomRvarInt ifidbus_anybus_fm("ifidbus.anybus_fm", ReadWrite);
zelCustomRvarBool ifidbus_is_rp2pro("ifidbus.is_rp2pro", ReadWrite);
zelCustomRvarInt ifidbus_commun_state("ifidbus.commun_state", ReadWrite);
zelCustomRvarInt ifidbus_performance_switch("ifidbus.performance_switch", ReadWrite);
zelCustomRvarReal ifidbus_current_time("ifidbus.current_time", ReadWrite);
zelCustomRvarInt ifidbus_xml_update_state("ifidbus.xml_update_state", ReadWrite);
zelCustomRvarBool ifidbus_freebus_enable("ifidbus.freebus_enable", ReadWrite);

zelCustomRvarBool ifidbus_ethcat_enable("ifidbus.ethcat_enable", ReadWrite);
zelCustomRvarBool ifidbus_ethcat_state("ifidbus.ethcat_enable", ReadWrite);
zelCustomRvarBool ifidbus_eip_enable("ifidbus.eip_enable", ReadWrite);
zelCustomRvarBool ifidbus_pfn_enable("ifidbus.pfn_enable", ReadWrite);
zelCustomRvarBool ifidbus_mtcp_enable("ifidbus.mtcp_enable", ReadWrite);
zelCustomRvarBool ifidbus_dns_enable("ifidbus.dns_enable", ReadWrite);
zelCustomRvarBool ifidbus_dnm_enable("ifidbus.dnm_enable", ReadWrite);

zelCustomRvarBool ifidbus_ecat2open("ifidbus.ecat2open", ReadWrite);
zelCustomRvarBool ifidbus_ecat2close("ifidbus.ecat2close", ReadWrite);
zelCustomRvarBool ifidbus_eip2open("ifidbus.eip2open", ReadWrite);
zelCustomRvarBool ifidbus_eip2close("ifidbus.eip2close", ReadWrite);
zelCustomRvarBool ifidbus_pfn2open("ifidbus.pfn2open", ReadWrite);
zelCustomRvarBool ifidbus_pfn2close("ifidbus.pfn2close", ReadWrite);
zelCustomRvarBool ifidbus_dns2open("ifidbus.dns2open", ReadWrite);
zelCustomRvarBool ifidbus_dns2close("ifidbus.dns2close", ReadWrite);
zelCustomRvarBool ifidbus_dnm2open("ifidbus.dnm2open", ReadWrite);
zelCustomRvarBool ifidbus_dnm2close("ifidbus.dnm2close", ReadWrite);

zelCustomRvarBool ifidbus_mtcp_link_state("ifidbus.mtcp_link_state", ReadWrite);
zelCustomRvarBool ifidbus_ethcat_link_state("ifidbus.ethcat_link_state", ReadWrite);
zelCustomRvarBool ifidbus_pfn_link_state("ifidbus.pfn_link_state", ReadWrite);
zelCustomRvarBool ifidbus_eip_link_state("ifidbus.eip_link_state", ReadWrite);
zelCustomRvarBool ifidbus_ecm_link_state("ifidbus.ecm_link_state", ReadWrite);
zelCustomRvarBool ifidbus_dns_link_state("ifidbus.dns_link_state", ReadWrite);
zelCustomRvarBool ifidbus_mbc_link_state("ifidbus.mbc_link_state", ReadWrite);
zelCustomRvarBool ifidbus_eim_link_state("ifidbus.eim_link_state", ReadWrite);
zelCustomRvarBool ifidbus_pnm_link_state("ifidbus.pnm_link_state", ReadWrite);
zelCustomRvarBool ifidbus_dnm_link_state("ifidbus.dnm_link_state", ReadWrite);
zelCustomRvarBool ifidbus_xml_heartbeat("ifidbus.xml_heartbeat", ReadWrite);

zelCustomRvarBool ifidbus_mbc_enable("ifidbus.mbc_enable", ReadWrite);
zelCustomRvarBool ifidbus_mbc_connected("ifidbus.mbc_connected", ReadWrite);
zelCustomRvarBool ifidbus_mbc_save_enable("ifidbus.mbc_save_enable", ReadWrite);
zelCustomRvarBool ifidbus_mbc_open("ifidbus.mbc_open", ReadWrite);
zelCustomRvarBool ifidbus_mbc_auto_con("ifidbus.mbc_auto_con", ReadWrite);

zelCustomRvarInt ifidbus_eim_configured("ifidbus.eim_configured", ReadWrite);
zelCustomRvarBoolVect ifidbus_eim_status("ifidbus.eim_status", SlavePositions, ReadWrite);
zelCustomRvarBool ifidbus_dynamic_eim_enable("ifidbus.dynamic_eim_enable", ReadWrite);
zelCustomRvarIntVect ifidbus_eim_disable_status("ifidbus.eim_disable_status", SlavePositions, ReadWrite);
zelCustomRvarIntVect ifidbus_eim_enable_status("ifidbus.eim_enable_status", SlavePositions, ReadWrite);
zelCustomRvarInt ifidbus_pnm_configured("ifidbus.pnm_configured", ReadWrite);
zelCustomRvarBoolVect ifidbus_pnm_status("ifidbus.pnm_status", SlavePositions, ReadWrite);
zelCustomRvarBool ifidbus_dynamic_pnm_enable("ifidbus.dynamic_pnm_enable", ReadWrite);
zelCustomRvarIntVect ifidbus_pnm_disable_status("ifidbus.pnm_disable_status", SlavePositions, ReadWrite);
zelCustomRvarIntVect ifidbus_pnm_enable_status("ifidbus.pnm_enable_status", SlavePositions, ReadWrite);

zelCustomRvarBoolVect ifidbus_dnm_status("ifidbus.dnm_status", DeviceNetDevices, ReadWrite);
zelCustomRvarIntVect ifidbus_dnm_errorcode("ifidbus.dnm_errorcode", DeviceNetDevices, ReadWrite);
zelCustomRvarBool ifidbus_dnm_save_config("ifidbus.dnm_save_config", ReadWrite);
zelCustomRvarInt ifidbus_dnm_slave_num("ifidbus.dnm_slave_num", ReadWrite);

zelCustomRvarBool ifins_tcp_enable("ifins_tcp.enable", ReadWrite);
zelCustomRvarBool ifins_tcp_error("ifins_tcp.error", ReadWrite);
zelCustomRvarBool ifins_tcp_bupdate_cfg("ifins_tcp.bupdate_cfg", ReadWrite);
zelCustomRvarBool ifins_tcp_connected("ifins_tcp.connected", ReadWrite);
zelCustomRvarBool imes_update_tcp_server_cfg("imes.update_tcp_server_cfg", ReadWrite);
zelCustomRvarBool imes_tcp_server_listen("imes.tcp_server_listen", ReadWrite);
zelCustomRvarBool imes_tcp_server_connected("imes.tcp_server_connected", ReadWrite);
zelCustomRvarBool imes_tcp_server_active("imes.tcp_server_active", ReadWrite);

zelCustomRvarIntVect io_man_profisafe_local_wo("io_man.profisafe_local_wo", ProfisafeLocal, ReadWrite);
zelCustomRvarIntVect io_man_profisafe_local_ro("io_man.profisafe_local_ro", ProfisafeLocal, ReadWrite);
zelCustomRvarIntVect io_man_profisafe_ext_ro("io_man.profisafe_ext_ro", ProfisafeExternal, ReadWrite);

} // namespace ControllerVariables
