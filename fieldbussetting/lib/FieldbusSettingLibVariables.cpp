// The variables of FieldbusSettingLib: accessors and subscription groups.
#include "ControllerVariables.h"
#include "FieldbusSettingLib.h"

using namespace ControllerVariables;

namespace {

// Every handle is asked, in order, whatever the ones before it answered.
template <typename... Handles>
bool useAll(bool used, Handles&... handles)
{
    (static_cast<void>(handles.setUsed(used)), ...);
    return true;
}

} // namespace

int FieldbusSettingLib::get_ifidbus_bus_type_state() const
{
    return ifidbus_bus_type_state;
}

int FieldbusSettingLib::get_ifidbus_anybus_fm() const
{
    return ifidbus_anybus_fm;
}

bool FieldbusSettingLib::get_ifidbus_ctr_type() const
{
    return ifidbus_is_rp2pro;
}

int FieldbusSettingLib::get_ifidbus_commun_state() const
{
    return ifidbus_commun_state;
}

int FieldbusSettingLib::get_ifidbus_performance_switch() const
{
    return ifidbus_performance_switch;
}

void FieldbusSettingLib::set_ifidbus_performance_switch(int value)
{
    ifidbus_performance_switch = value;
}

int FieldbusSettingLib::get_freebus_busconfig_xml_update_state() const
{
    return ifidbus_xml_update_state;
}

void FieldbusSettingLib::set_freebus_busconfig_xml_update(int value)
{
    ifidbus_xml_update_state = value;
}

bool FieldbusSettingLib::get_ifidbus_freebus_state() const
{
    return ifidbus_freebus_enable;
}

void FieldbusSettingLib::set_ifidbus_freebus_state(bool value)
{
    ifidbus_freebus_enable = value;
}

bool FieldbusSettingLib::get_ifidbus_ethcat_enable() const
{
    return ifidbus_ethcat_enable;
}

void FieldbusSettingLib::set_ifidbus_ethcat_enable(bool value)
{
    ifidbus_ethcat_enable = value;
}

void FieldbusSettingLib::set_ifidbus_ethcat_state(bool value)
{
    ifidbus_ethcat_state = value;
}

void FieldbusSettingLib::set_ifidbus_eip_state(bool value)
{
    ifidbus_eip_enable = value;
}

void FieldbusSettingLib::set_ifidbus_pfn_state(bool value)
{
    ifidbus_pfn_enable = value;
}

void FieldbusSettingLib::set_ifidbus_mtcp_state(bool value)
{
    ifidbus_mtcp_enable = value;
}

void FieldbusSettingLib::set_ifidbus_dns_state(bool value)
{
    ifidbus_dns_enable = value;
}

void FieldbusSettingLib::set_ifidbus_dnm_state(bool value)
{
    ifidbus_dnm_enable = value;
}

bool FieldbusSettingLib::get_ifidbus_heatbeatdet_mtcp_link_state() const
{
    return ifidbus_mtcp_link_state;
}

bool FieldbusSettingLib::get_ifidbus_heatbeatdet_ethcat_link_state() const
{
    return ifidbus_ethcat_link_state;
}

bool FieldbusSettingLib::get_ifidbus_heatbeatdet_pfbdp_link_state() const
{
    return ifidbus_pfn_link_state;
}

bool FieldbusSettingLib::get_ifidbus_heatbeatdet_eip_link_state() const
{
    return ifidbus_eip_link_state;
}

bool FieldbusSettingLib::get_ifidbus_heatbeatdet_ecm_link_state() const
{
    return ifidbus_ecm_link_state;
}

bool FieldbusSettingLib::get_ifidbus_heatbeatdet_dns_link_state() const
{
    return ifidbus_dns_link_state;
}

bool FieldbusSettingLib::get_ifidbus_heatbeatdet_mbc_link_state() const
{
    return ifidbus_mbc_link_state;
}

bool FieldbusSettingLib::get_ifidbus_heatbeatdet_eim_link_state() const
{
    return ifidbus_eim_link_state;
}

bool FieldbusSettingLib::get_ifidbus_heatbeatdet_pnm_link_state() const
{
    return ifidbus_pnm_link_state;
}

bool FieldbusSettingLib::get_ifidbus_heatbeatdet_dnm_link_state() const
{
    return ifidbus_dnm_link_state;
}

void FieldbusSettingLib::set_ifidbus_heatbeatdet_xml_update(bool value)
{
    ifidbus_xml_heartbeat = value;
}

bool FieldbusSettingLib::get_ifidbus_mbc_enable() const
{
    return ifidbus_mbc_enable;
}

void FieldbusSettingLib::set_ifidbus_mbc_enable(bool value)
{
    ifidbus_mbc_enable = value;
}

bool FieldbusSettingLib::get_ifidbus_mbc_connected() const
{
    return ifidbus_mbc_connected;
}

void FieldbusSettingLib::set_ifidbus_mbc_save(bool value)
{
    ifidbus_mbc_save_enable = value;
}

bool FieldbusSettingLib::get_ifidbus_mbc_open() const
{
    return ifidbus_mbc_open;
}

void FieldbusSettingLib::set_ifidbus_mbc_open(bool value)
{
    ifidbus_mbc_open = value;
}

bool FieldbusSettingLib::get_ifidbus_mbc_autoCon() const
{
    return ifidbus_mbc_auto_con;
}

void FieldbusSettingLib::set_ifidbus_mbc_autoCon(bool value)
{
    ifidbus_mbc_auto_con = value;
}

int FieldbusSettingLib::get_ifidbus_eim_configured() const
{
    return ifidbus_eim_configured;
}

void FieldbusSettingLib::set_ifidbus_eim_configured(bool value)
{
    ifidbus_eim_configured = value;
}

bool FieldbusSettingLib::get_ifidbus_eim_status(int index) const
{
    return ifidbus_eim_status[index].getValue();
}

bool FieldbusSettingLib::get_ifidbus_dynamic_eim_enable() const
{
    return ifidbus_dynamic_eim_enable;
}

void FieldbusSettingLib::set_ifidbus_dynamic_eim_enable(bool value)
{
    ifidbus_dynamic_eim_enable = value;
}

int FieldbusSettingLib::get_ifidbus_eim_disable_status(int index) const
{
    return ifidbus_eim_disable_status[index].getValue();
}

int FieldbusSettingLib::get_ifidbus_eim_enable_status(int index) const
{
    return ifidbus_eim_enable_status[index].getValue();
}

int FieldbusSettingLib::get_ifidbus_pnm_configured() const
{
    return ifidbus_pnm_configured;
}

void FieldbusSettingLib::set_ifidbus_pnm_configured(bool value)
{
    ifidbus_pnm_configured = value;
}

bool FieldbusSettingLib::get_ifidbus_pnm_status(int index) const
{
    return ifidbus_pnm_status[index].getValue();
}

bool FieldbusSettingLib::get_ifidbus_dynamic_pnm_enable() const
{
    return ifidbus_dynamic_pnm_enable;
}

void FieldbusSettingLib::set_ifidbus_dynamic_pnm_enable(bool value)
{
    ifidbus_dynamic_pnm_enable = value;
}

int FieldbusSettingLib::get_ifidbus_pnm_disable_status(int index) const
{
    return ifidbus_pnm_disable_status[index].getValue();
}

int FieldbusSettingLib::get_ifidbus_pnm_enable_status(int index) const
{
    return ifidbus_pnm_enable_status[index].getValue();
}

bool FieldbusSettingLib::get_ifidbus_dnm_status(int index) const
{
    return ifidbus_dnm_status[index].getValue();
}

int FieldbusSettingLib::get_ifidbus_dnm_errorcode(int index) const
{
    return ifidbus_dnm_errorcode[index].getValue();
}

void FieldbusSettingLib::set_ifidbus_dnm_save_config(bool value)
{
    ifidbus_dnm_save_config = value;
}

void FieldbusSettingLib::set_ifidbus_dnm_slave_num(int value)
{
    ifidbus_dnm_slave_num = value;
}

bool FieldbusSettingLib::get_ifins_tcp_enable() const
{
    return ifins_tcp_enable;
}

void FieldbusSettingLib::set_ifins_tcp_enable(bool value)
{
    ifins_tcp_enable = value;
}

bool FieldbusSettingLib::get_ifins_tcp_error() const
{
    return ifins_tcp_error;
}

void FieldbusSettingLib::set_ifins_tcp_error(bool value)
{
    ifins_tcp_error = value;
}

bool FieldbusSettingLib::get_ifins_tcp_bupdate_cfg() const
{
    return ifins_tcp_bupdate_cfg;
}

void FieldbusSettingLib::set_ifins_tcp_bupdate_cfg(bool value)
{
    ifins_tcp_bupdate_cfg = value;
}

bool FieldbusSettingLib::get_ifins_tcp_connected() const
{
    return ifins_tcp_connected;
}

void FieldbusSettingLib::set_ifins_tcp_connected(bool value)
{
    ifins_tcp_connected = value;
}

bool FieldbusSettingLib::get_imes_update_tcp_server_cfg() const
{
    return imes_update_tcp_server_cfg;
}

void FieldbusSettingLib::set_imes_update_tcp_server_cfg(bool value)
{
    imes_update_tcp_server_cfg = value;
}

bool FieldbusSettingLib::get_imes_tcp_server_listen() const
{
    return imes_tcp_server_listen;
}

void FieldbusSettingLib::set_imes_tcp_server_listen(bool value)
{
    imes_tcp_server_listen = value;
}

bool FieldbusSettingLib::get_imes_tcp_server_connected() const
{
    return imes_tcp_server_connected;
}

void FieldbusSettingLib::set_imes_tcp_server_connected(bool value)
{
    imes_tcp_server_connected = value;
}

bool FieldbusSettingLib::get_imes_tcp_server_active() const
{
    return imes_tcp_server_active;
}

void FieldbusSettingLib::set_imes_tcp_server_active(bool value)
{
    imes_tcp_server_active = value;
}

bool FieldbusSettingLib::setUsedVars_mes(bool used)
{
    return useAll(used, imes_update_tcp_server_cfg, imes_tcp_server_listen, imes_tcp_server_connected,
                  imes_tcp_server_active);
}

bool FieldbusSettingLib::setUsedVars_cclink(bool used)
{
    return useAll(used, ifidbus_ethcat_enable);
}

bool FieldbusSettingLib::setUsedVars_ifins(bool used)
{
    return useAll(used, ifins_tcp_enable, ifins_tcp_error, ifins_tcp_bupdate_cfg, ifins_tcp_connected);
}

bool FieldbusSettingLib::setUsedVars_heartbeatdet(bool used)
{
    return useAll(used, ifidbus_mtcp_link_state, ifidbus_ethcat_link_state, ifidbus_pfn_link_state,
                  ifidbus_eip_link_state, ifidbus_ecm_link_state, ifidbus_dns_link_state,
                  ifidbus_mbc_link_state, ifidbus_eim_link_state, ifidbus_pnm_link_state,
                  ifidbus_dnm_link_state);
}

bool FieldbusSettingLib::setUsedVars_ifidbus_bus_type_state(bool used)
{
    return useAll(used, ifidbus_bus_type_state);
}

bool FieldbusSettingLib::setUsedVars_mtcpMaster(bool used)
{
    return useAll(used, ifidbus_mbc_enable, ifidbus_mbc_connected, ifidbus_mbc_save_enable, ifidbus_mbc_open,
                  ifidbus_mbc_auto_con);
}

bool FieldbusSettingLib::setUsed_ifidbus_dns_status(bool used)
{
    return useAll(used, ifidbus_dns_enable);
}

bool FieldbusSettingLib::setUsed_ifidbus_dnm_status(bool used)
{
    return ifidbus_dnm_enable.setUsed(used);
}

bool FieldbusSettingLib::setUsedVars_ifidbus_ctr_Anybus_type(bool used)
{
    return useAll(used, ifidbus_is_rp2pro, ifidbus_anybus_fm);
}

bool FieldbusSettingLib::setUsedVars_freebus_busconfig_xml_update(bool used)
{
    return useAll(used, ifidbus_xml_update_state);
}

bool FieldbusSettingLib::setUsed_ifidbus_pfn_close(bool used)
{
    return useAll(used, ifidbus_pfn2close);
}

bool FieldbusSettingLib::setUsed_ifidbus_pfn_open(bool used)
{
    return useAll(used, ifidbus_pfn2open);
}

bool FieldbusSettingLib::setUsed_ifidbus_eip_close(bool used)
{
    return useAll(used, ifidbus_eip2close);
}

bool FieldbusSettingLib::setUsed_ifidbus_eip_open(bool used)
{
    return useAll(used, ifidbus_eip2open);
}

bool FieldbusSettingLib::setUsed_ifidbus_dns_open(bool used)
{
    return useAll(used, ifidbus_dns2open);
}

bool FieldbusSettingLib::setUsed_ifidbus_dns_close(bool used)
{
    return useAll(used, ifidbus_dns2close);
}

bool FieldbusSettingLib::setUsed_ifidbus_dnm_open(bool used)
{
    return ifidbus_dnm2open.setUsed(used);
}

bool FieldbusSettingLib::setUsed_ifidbus_dnm_close(bool used)
{
    return ifidbus_dnm2close.setUsed(used);
}

bool FieldbusSettingLib::setUsed_ifidbus_ecat_openClose(bool used)
{
    return useAll(used, ifidbus_ecat2open, ifidbus_ecat2close);
}

bool FieldbusSettingLib::setUsedVars_ifidbus_current_time(bool used)
{
    return useAll(used, ifidbus_current_time);
}

bool FieldbusSettingLib::setUsedVars_ethernet(bool used)
{
    return useAll(used, ifidbus_commun_state, ifidbus_performance_switch);
}

bool FieldbusSettingLib::setUsedVars_eipMaster(bool used)
{
    return useAll(used, ifidbus_eim_configured, ifidbus_eim_status, ifidbus_dynamic_eim_enable,
                  ifidbus_eim_disable_status, ifidbus_eim_enable_status);
}

bool FieldbusSettingLib::setUsedVars_pnm(bool used)
{
    return useAll(used, ifidbus_pnm_configured, ifidbus_pnm_status, ifidbus_dynamic_pnm_enable,
                  ifidbus_pnm_disable_status, ifidbus_pnm_enable_status);
}

bool FieldbusSettingLib::setUsedVars_dnm(bool used)
{
    return useAll(used, ifidbus_dnm_status, ifidbus_dnm_errorcode);
}

bool FieldbusSettingLib::setUsedVars_pfs(bool used)
{
    return useAll(used, io_man_profisafe_local_wo, io_man_profisafe_local_ro, io_man_profisafe_ext_ro);
}
