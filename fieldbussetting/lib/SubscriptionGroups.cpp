// The subscription groups of FieldbusSettingLib.
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
