// The accessors of FieldbusSettingLib to the controller's variables. The subscription groups are in
// SubscriptionGroups.cpp.
#include "ControllerVariables.h"
#include "FieldbusSettingLib.h"

using namespace ControllerVariables;
using Lib = FieldbusSettingLib;

// A line each: what matters is which variable an accessor stands for.
// clang-format off

// Bus state
int Lib::get_ifidbus_bus_type_state() const { return ifidbus_bus_type_state; }
int Lib::get_ifidbus_anybus_fm() const { return ifidbus_anybus_fm; }
bool Lib::get_ifidbus_ctr_type() const { return ifidbus_is_rp2pro; }
int Lib::get_ifidbus_commun_state() const { return ifidbus_commun_state; }
int Lib::get_ifidbus_performance_switch() const { return ifidbus_performance_switch; }
void Lib::set_ifidbus_performance_switch(int value) { ifidbus_performance_switch = value; }
int Lib::get_freebus_busconfig_xml_update_state() const { return ifidbus_xml_update_state; }
void Lib::set_freebus_busconfig_xml_update(int value) { ifidbus_xml_update_state = value; }
bool Lib::get_ifidbus_freebus_state() const { return ifidbus_freebus_enable; }
void Lib::set_ifidbus_freebus_state(bool value) { ifidbus_freebus_enable = value; }

// Roles
bool Lib::get_ifidbus_ethcat_enable() const { return ifidbus_ethcat_enable; }
void Lib::set_ifidbus_ethcat_enable(bool value) { ifidbus_ethcat_enable = value; }
void Lib::set_ifidbus_ethcat_state(bool value) { ifidbus_ethcat_state = value; }
void Lib::set_ifidbus_eip_state(bool value) { ifidbus_eip_enable = value; }
void Lib::set_ifidbus_pfn_state(bool value) { ifidbus_pfn_enable = value; }
void Lib::set_ifidbus_mtcp_state(bool value) { ifidbus_mtcp_enable = value; }
void Lib::set_ifidbus_dns_state(bool value) { ifidbus_dns_enable = value; }
void Lib::set_ifidbus_dnm_state(bool value) { ifidbus_dnm_enable = value; }

// Heartbeat
bool Lib::get_ifidbus_heatbeatdet_mtcp_link_state() const { return ifidbus_mtcp_link_state; }
bool Lib::get_ifidbus_heatbeatdet_ethcat_link_state() const { return ifidbus_ethcat_link_state; }
bool Lib::get_ifidbus_heatbeatdet_pfbdp_link_state() const { return ifidbus_pfn_link_state; }
bool Lib::get_ifidbus_heatbeatdet_eip_link_state() const { return ifidbus_eip_link_state; }
bool Lib::get_ifidbus_heatbeatdet_ecm_link_state() const { return ifidbus_ecm_link_state; }
bool Lib::get_ifidbus_heatbeatdet_dns_link_state() const { return ifidbus_dns_link_state; }
bool Lib::get_ifidbus_heatbeatdet_mbc_link_state() const { return ifidbus_mbc_link_state; }
bool Lib::get_ifidbus_heatbeatdet_eim_link_state() const { return ifidbus_eim_link_state; }
bool Lib::get_ifidbus_heatbeatdet_pnm_link_state() const { return ifidbus_pnm_link_state; }
bool Lib::get_ifidbus_heatbeatdet_dnm_link_state() const { return ifidbus_dnm_link_state; }
void Lib::set_ifidbus_heatbeatdet_xml_update(bool value) { ifidbus_xml_heartbeat = value; }

// Masters
bool Lib::get_ifidbus_mbc_enable() const { return ifidbus_mbc_enable; }
void Lib::set_ifidbus_mbc_enable(bool value) { ifidbus_mbc_enable = value; }
bool Lib::get_ifidbus_mbc_connected() const { return ifidbus_mbc_connected; }
void Lib::set_ifidbus_mbc_save(bool value) { ifidbus_mbc_save_enable = value; }
bool Lib::get_ifidbus_mbc_open() const { return ifidbus_mbc_open; }
void Lib::set_ifidbus_mbc_open(bool value) { ifidbus_mbc_open = value; }
bool Lib::get_ifidbus_mbc_autoCon() const { return ifidbus_mbc_auto_con; }
void Lib::set_ifidbus_mbc_autoCon(bool value) { ifidbus_mbc_auto_con = value; }
int Lib::get_ifidbus_eim_configured() const { return ifidbus_eim_configured; }
void Lib::set_ifidbus_eim_configured(bool value) { ifidbus_eim_configured = value; }
bool Lib::get_ifidbus_eim_status(int index) const { return ifidbus_eim_status[index].getValue(); }
bool Lib::get_ifidbus_dynamic_eim_enable() const { return ifidbus_dynamic_eim_enable; }
void Lib::set_ifidbus_dynamic_eim_enable(bool value) { ifidbus_dynamic_eim_enable = value; }
int Lib::get_ifidbus_eim_disable_status(int index) const { return ifidbus_eim_disable_status[index].getValue(); }
int Lib::get_ifidbus_eim_enable_status(int index) const { return ifidbus_eim_enable_status[index].getValue(); }
int Lib::get_ifidbus_pnm_configured() const { return ifidbus_pnm_configured; }
void Lib::set_ifidbus_pnm_configured(bool value) { ifidbus_pnm_configured = value; }
bool Lib::get_ifidbus_pnm_status(int index) const { return ifidbus_pnm_status[index].getValue(); }
bool Lib::get_ifidbus_dynamic_pnm_enable() const { return ifidbus_dynamic_pnm_enable; }
void Lib::set_ifidbus_dynamic_pnm_enable(bool value) { ifidbus_dynamic_pnm_enable = value; }
int Lib::get_ifidbus_pnm_disable_status(int index) const { return ifidbus_pnm_disable_status[index].getValue(); }
int Lib::get_ifidbus_pnm_enable_status(int index) const { return ifidbus_pnm_enable_status[index].getValue(); }
bool Lib::get_ifidbus_dnm_status(int index) const { return ifidbus_dnm_status[index].getValue(); }
int Lib::get_ifidbus_dnm_errorcode(int index) const { return ifidbus_dnm_errorcode[index].getValue(); }
void Lib::set_ifidbus_dnm_save_config(bool value) { ifidbus_dnm_save_config = value; }
void Lib::set_ifidbus_dnm_slave_num(int value) { ifidbus_dnm_slave_num = value; }

// Host links
bool Lib::get_ifins_tcp_enable() const { return ifins_tcp_enable; }
void Lib::set_ifins_tcp_enable(bool value) { ifins_tcp_enable = value; }
bool Lib::get_ifins_tcp_error() const { return ifins_tcp_error; }
void Lib::set_ifins_tcp_error(bool value) { ifins_tcp_error = value; }
bool Lib::get_ifins_tcp_bupdate_cfg() const { return ifins_tcp_bupdate_cfg; }
void Lib::set_ifins_tcp_bupdate_cfg(bool value) { ifins_tcp_bupdate_cfg = value; }
bool Lib::get_ifins_tcp_connected() const { return ifins_tcp_connected; }
void Lib::set_ifins_tcp_connected(bool value) { ifins_tcp_connected = value; }
bool Lib::get_imes_update_tcp_server_cfg() const { return imes_update_tcp_server_cfg; }
void Lib::set_imes_update_tcp_server_cfg(bool value) { imes_update_tcp_server_cfg = value; }
bool Lib::get_imes_tcp_server_listen() const { return imes_tcp_server_listen; }
void Lib::set_imes_tcp_server_listen(bool value) { imes_tcp_server_listen = value; }
bool Lib::get_imes_tcp_server_connected() const { return imes_tcp_server_connected; }
void Lib::set_imes_tcp_server_connected(bool value) { imes_tcp_server_connected = value; }
bool Lib::get_imes_tcp_server_active() const { return imes_tcp_server_active; }
void Lib::set_imes_tcp_server_active(bool value) { imes_tcp_server_active = value; }

// clang-format on
