#ifndef CONTROLLERVARIABLES_H
#define CONTROLLERVARIABLES_H

#include "zelCustomRvar.h"

/// The handles on the controller's variables, constructed when the plug-in is loaded. Each is named as its
/// variable. Pages use the accessors of FieldbusSettingLib; a handle is used directly only for what has none.
namespace ControllerVariables {

// State of the bus configuration
extern zelCustomRvarInt ifidbus_bus_type_state; ///< 1 asks; answered with 0x8000 (taken) or 0x4000 (refused)
extern zelCustomRvarInt ifidbus_anybus_fm;      ///< code of the fieldbus module, 0 while it is not known
extern zelCustomRvarBool ifidbus_is_rp2pro;
extern zelCustomRvarInt ifidbus_commun_state;       ///< bit 2 EtherNet/IP, 3 PROFINET, 5 DeviceNet slave
extern zelCustomRvarInt ifidbus_performance_switch; ///< a bit a bus number
extern zelCustomRvarReal ifidbus_current_time; ///< running clock; stands still while the controller is down
extern zelCustomRvarInt ifidbus_xml_update_state; ///< bit flags of the file handshakes
extern zelCustomRvarBool ifidbus_freebus_enable;

// Roles
extern zelCustomRvarBool ifidbus_ethcat_enable; ///< as the EtherCAT slave file and the cclink group see it
extern zelCustomRvarBool ifidbus_ethcat_state; ///< second handle on "ifidbus.ethcat_enable", never subscribed
extern zelCustomRvarBool ifidbus_eip_enable;
extern zelCustomRvarBool ifidbus_pfn_enable;
extern zelCustomRvarBool ifidbus_mtcp_enable;
extern zelCustomRvarBool ifidbus_dns_enable;
extern zelCustomRvarBool ifidbus_dnm_enable;

// Commands; the controller clears each when it has taken it
extern zelCustomRvarBool ifidbus_ecat2open, ifidbus_ecat2close;
extern zelCustomRvarBool ifidbus_eip2open, ifidbus_eip2close;
extern zelCustomRvarBool ifidbus_pfn2open, ifidbus_pfn2close;
extern zelCustomRvarBool ifidbus_dns2open, ifidbus_dns2close;
extern zelCustomRvarBool ifidbus_dnm2open, ifidbus_dnm2close;

// Heartbeat
extern zelCustomRvarBool ifidbus_mtcp_link_state, ifidbus_ethcat_link_state, ifidbus_pfn_link_state;
extern zelCustomRvarBool ifidbus_eip_link_state, ifidbus_ecm_link_state, ifidbus_dns_link_state;
extern zelCustomRvarBool ifidbus_mbc_link_state, ifidbus_eim_link_state, ifidbus_pnm_link_state;
extern zelCustomRvarBool ifidbus_dnm_link_state;
extern zelCustomRvarBool ifidbus_xml_heartbeat; ///< true: heartbeat.xml has changed

// Modbus TCP master
extern zelCustomRvarBool ifidbus_mbc_enable, ifidbus_mbc_connected, ifidbus_mbc_save_enable;
extern zelCustomRvarBool ifidbus_mbc_open, ifidbus_mbc_auto_con;

// EtherNet/IP and PROFINET master, by slave position
extern zelCustomRvarInt ifidbus_eim_configured;
extern zelCustomRvarBoolVect ifidbus_eim_status;
extern zelCustomRvarBool ifidbus_dynamic_eim_enable;
extern zelCustomRvarIntVect ifidbus_eim_disable_status, ifidbus_eim_enable_status;
extern zelCustomRvarInt ifidbus_pnm_configured;
extern zelCustomRvarBoolVect ifidbus_pnm_status;
extern zelCustomRvarBool ifidbus_dynamic_pnm_enable;
extern zelCustomRvarIntVect ifidbus_pnm_disable_status, ifidbus_pnm_enable_status;

// DeviceNet master, by device
extern zelCustomRvarBoolVect ifidbus_dnm_status;
extern zelCustomRvarIntVect ifidbus_dnm_errorcode;
extern zelCustomRvarBool ifidbus_dnm_save_config;
extern zelCustomRvarInt ifidbus_dnm_slave_num;

// Host links
extern zelCustomRvarBool ifins_tcp_enable, ifins_tcp_error, ifins_tcp_bupdate_cfg, ifins_tcp_connected;
extern zelCustomRvarBool imes_update_tcp_server_cfg, imes_tcp_server_listen;
extern zelCustomRvarBool imes_tcp_server_connected, imes_tcp_server_active;

// ProfiSAFE
extern zelCustomRvarIntVect io_man_profisafe_local_wo; ///< element 0: command word, cleared when carried out
extern zelCustomRvarIntVect io_man_profisafe_local_ro; ///< element 3, bits 0-1: feed voltage mode
extern zelCustomRvarIntVect io_man_profisafe_ext_ro;   ///< process data, 8 bits an element

} // namespace ControllerVariables

#endif
