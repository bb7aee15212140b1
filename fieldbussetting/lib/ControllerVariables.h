#ifndef CONTROLLERVARIABLES_H
#define CONTROLLERVARIABLES_H

#include "zelCustomRvar.h"

/// The handles on the controller's variables, constructed when the plug-in is loaded. Each is named as its
/// variable. Pages use the accessors of FieldbusSettingLib; a handle is used directly only for what has none.
namespace ControllerVariables {

// State of the bus configuration
extern zelCustomRvarInt ifidbus_bus_type_state; ///< 1 asks; answered with 0x8000 (taken) or 0x4000 (refused)
extern zelCustomRvarInt ifidbus_anybus_fm;      ///< code of the fieldbus module, 0 while it is not known
extern zelCustomRvarBool ifidbus_is_rp2pro;     ///< true: a controller with a slot for a fieldbus module
extern zelCustomRvarInt ifidbus_commun_state;   ///< bit 2 EtherNet/IP, 3 PROFINET, 5 DeviceNet slave
extern zelCustomRvarInt ifidbus_performance_switch; ///< a bit a bus number
extern zelCustomRvarReal ifidbus_current_time; ///< running clock; stands still while the controller is down
extern zelCustomRvarInt ifidbus_xml_update_state; ///< bit flags of the file handshakes
extern zelCustomRvarBool ifidbus_freebus_enable;  ///< true: the quantities of the buses are chosen freely

// Roles: true is on
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

// Heartbeat: true while the link is up
extern zelCustomRvarBool ifidbus_mtcp_link_state, ifidbus_ethcat_link_state, ifidbus_pfn_link_state;
extern zelCustomRvarBool ifidbus_eip_link_state, ifidbus_ecm_link_state, ifidbus_dns_link_state;
extern zelCustomRvarBool ifidbus_mbc_link_state, ifidbus_eim_link_state, ifidbus_pnm_link_state;
extern zelCustomRvarBool ifidbus_dnm_link_state;
extern zelCustomRvarBool ifidbus_xml_heartbeat; ///< true: heartbeat.xml has changed

// Modbus TCP master
extern zelCustomRvarBool ifidbus_mbc_enable;      ///< the role is on
extern zelCustomRvarBool ifidbus_mbc_connected;   ///< the slave answers
extern zelCustomRvarBool ifidbus_mbc_save_enable; ///< true: mtcp_master.xml has changed; cleared when taken
extern zelCustomRvarBool ifidbus_mbc_open;        ///< true: connect once; cleared when taken
extern zelCustomRvarBool ifidbus_mbc_auto_con;    ///< the controller connects by itself, again and again

// EtherNet/IP and PROFINET master; a vector has an element a slave position, 0 to 8. The enable and disable
// states tell of the coupling and the decoupling of a dynamic slave: 0 nothing, 1 done, any other failed.
extern zelCustomRvarInt ifidbus_eim_configured;      ///< 0 or 1; no page uses it
extern zelCustomRvarBoolVect ifidbus_eim_status;     ///< the slave is connected
extern zelCustomRvarBool ifidbus_dynamic_eim_enable; ///< alarms for dynamic slaves
extern zelCustomRvarIntVect ifidbus_eim_disable_status, ifidbus_eim_enable_status;
extern zelCustomRvarInt ifidbus_pnm_configured; // as their twins above
extern zelCustomRvarBoolVect ifidbus_pnm_status;
extern zelCustomRvarBool ifidbus_dynamic_pnm_enable;
extern zelCustomRvarIntVect ifidbus_pnm_disable_status, ifidbus_pnm_enable_status;

// DeviceNet master; a vector has an element a device of the scan list, 0 to 15
extern zelCustomRvarBoolVect ifidbus_dnm_status;   ///< the device is connected
extern zelCustomRvarIntVect ifidbus_dnm_errorcode; ///< why it is not: the controller's code, shown as it is
extern zelCustomRvarBool ifidbus_dnm_save_config;  ///< true: the next dnmst0.cfg is taken over; cleared then
extern zelCustomRvarInt ifidbus_dnm_slave_num;     ///< devices of the scan list, 0 to 16

// FINS client
extern zelCustomRvarBool ifins_tcp_enable;      ///< the client runs
extern zelCustomRvarBool ifins_tcp_error;       ///< something went wrong since it was last connected
extern zelCustomRvarBool ifins_tcp_bupdate_cfg; ///< true: FinsTcpConfig.xml has changed; cleared when taken
extern zelCustomRvarBool ifins_tcp_connected;   ///< means nothing while the client is off

// MES server
extern zelCustomRvarBool imes_update_tcp_server_cfg; ///< true: TcpServerConfig.xml has changed; cleared
extern zelCustomRvarBool imes_tcp_server_listen;     ///< true: start the server, or stop it when it runs
extern zelCustomRvarBool imes_tcp_server_connected;  ///< a client is there
extern zelCustomRvarBool imes_tcp_server_active;     ///< the server listens

// ProfiSAFE
extern zelCustomRvarIntVect io_man_profisafe_local_wo; ///< element 0: command word, cleared when carried out
extern zelCustomRvarIntVect io_man_profisafe_local_ro; ///< element 3, bits 0-1: feed voltage mode
extern zelCustomRvarIntVect io_man_profisafe_ext_ro;   ///< process data, 8 bits an element

} // namespace ControllerVariables

#endif
