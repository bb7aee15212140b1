// A variable a block: its handle with the group that subscribes it and its name on the controller, and the
// accessors of FieldbusSettingLib. What subscribes a group stands below the last of its variables.
#include "ControllerVariables.h"

#include "FieldbusSettingLib.h"

using namespace ControllerVariables;
using Lib = FieldbusSettingLib;

namespace {
constexpr int SlavePositions = 9;
constexpr int DeviceNetDevices = 16;
constexpr int ProfisafeLocal = 8;
constexpr int ProfisafeExternal = 16;
} // namespace

// A line each: what matters is which variable an accessor stands for.
// clang-format off

// State of the bus configuration

// 1 asks; answered with 0x8000 (taken) or 0x4000 (refused)
Int ControllerVariables::ifidbus_bus_type_state(Group::BusTypeState, "ifidbus.bus_type_state");
int Lib::get_ifidbus_bus_type_state() const { return ifidbus_bus_type_state; }
bool Lib::setUsedVars_ifidbus_bus_type_state(bool used) { return use(Group::BusTypeState, used); }

// true: a controller with a slot for a fieldbus module
static Bool ifidbus_is_rp2pro(Group::ModuleType, "ifidbus.is_rp2pro");
bool Lib::get_ifidbus_ctr_type() const { return ifidbus_is_rp2pro; }

// code of the fieldbus module, 0 while it is not known
static Int ifidbus_anybus_fm(Group::ModuleType, "ifidbus.anybus_fm");
int Lib::get_ifidbus_anybus_fm() const { return ifidbus_anybus_fm; }
bool Lib::setUsedVars_ifidbus_ctr_Anybus_type(bool used) { return use(Group::ModuleType, used); }

// bit 2 EtherNet/IP, 3 PROFINET, 5 DeviceNet slave
static Int ifidbus_commun_state(Group::Communication, "ifidbus.commun_state");
int Lib::get_ifidbus_commun_state() const { return ifidbus_commun_state; }

static Int ifidbus_performance_switch(Group::Communication, "ifidbus.performance_switch"); // a bit a bus number
int Lib::get_ifidbus_performance_switch() const { return ifidbus_performance_switch; }
void Lib::set_ifidbus_performance_switch(int value) { ifidbus_performance_switch = value; }
bool Lib::setUsedVars_ethernet(bool used) { return use(Group::Communication, used); }

// running clock; stands still while the controller is down
Real ControllerVariables::ifidbus_current_time(Group::CurrentTime, "ifidbus.current_time");
bool Lib::setUsedVars_ifidbus_current_time(bool used) { return use(Group::CurrentTime, used); }

// bit flags of the file handshakes
Int ControllerVariables::ifidbus_xml_update_state(Group::FileHandshake, "ifidbus.xml_update_state");
int Lib::get_freebus_busconfig_xml_update_state() const { return ifidbus_xml_update_state; }
void Lib::set_freebus_busconfig_xml_update(int value) { ifidbus_xml_update_state = value; }
bool Lib::setUsedVars_freebus_busconfig_xml_update(bool used) { return use(Group::FileHandshake, used); }

// true: the quantities of the buses are chosen freely
static Bool ifidbus_freebus_enable(Group::None, "ifidbus.freebus_enable");
bool Lib::get_ifidbus_freebus_state() const { return ifidbus_freebus_enable; }
void Lib::set_ifidbus_freebus_state(bool value) { ifidbus_freebus_enable = value; }

// Roles: true is on

// as the EtherCAT slave file and the cclink group see it
static Bool ifidbus_ethcat_enable(Group::CcLink, "ifidbus.ethcat_enable");
bool Lib::get_ifidbus_ethcat_enable() const { return ifidbus_ethcat_enable; }
void Lib::set_ifidbus_ethcat_enable(bool value) { ifidbus_ethcat_enable = value; }
bool Lib::setUsedVars_cclink(bool used) { return use(Group::CcLink, used); }

// second handle on "ifidbus.ethcat_enable", never subscribed
static Bool ifidbus_ethcat_state(Group::None, "ifidbus.ethcat_enable");
void Lib::set_ifidbus_ethcat_state(bool value) { ifidbus_ethcat_state = value; }

static Bool ifidbus_eip_enable(Group::None, "ifidbus.eip_enable");
void Lib::set_ifidbus_eip_state(bool value) { ifidbus_eip_enable = value; }

static Bool ifidbus_pfn_enable(Group::None, "ifidbus.pfn_enable");
void Lib::set_ifidbus_pfn_state(bool value) { ifidbus_pfn_enable = value; }

static Bool ifidbus_mtcp_enable(Group::None, "ifidbus.mtcp_enable");
void Lib::set_ifidbus_mtcp_state(bool value) { ifidbus_mtcp_enable = value; }

static Bool ifidbus_dns_enable(Group::DeviceNetSlaveRole, "ifidbus.dns_enable");
void Lib::set_ifidbus_dns_state(bool value) { ifidbus_dns_enable = value; }
bool Lib::setUsed_ifidbus_dns_status(bool used) { return use(Group::DeviceNetSlaveRole, used); }

static Bool ifidbus_dnm_enable(Group::DeviceNetMasterRole, "ifidbus.dnm_enable");
void Lib::set_ifidbus_dnm_state(bool value) { ifidbus_dnm_enable = value; }
bool Lib::setUsed_ifidbus_dnm_status(bool used) { return use(Group::DeviceNetMasterRole, used); }

// Commands; the controller clears each when it has taken it. The groups of the DeviceNet master answer with their
// handle, those of the slave do not: VariableGroups.cpp says why.

Bool ControllerVariables::ifidbus_ecat2open(Group::EtherCatOpenClose, "ifidbus.ecat2open");
Bool ControllerVariables::ifidbus_ecat2close(Group::EtherCatOpenClose, "ifidbus.ecat2close");
bool Lib::setUsed_ifidbus_ecat_openClose(bool used) { return use(Group::EtherCatOpenClose, used); }
Bool ControllerVariables::ifidbus_eip2open(Group::EtherNetIpOpen, "ifidbus.eip2open");
bool Lib::setUsed_ifidbus_eip_open(bool used) { return use(Group::EtherNetIpOpen, used); }
Bool ControllerVariables::ifidbus_eip2close(Group::EtherNetIpClose, "ifidbus.eip2close");
bool Lib::setUsed_ifidbus_eip_close(bool used) { return use(Group::EtherNetIpClose, used); }
Bool ControllerVariables::ifidbus_pfn2open(Group::ProfinetOpen, "ifidbus.pfn2open");
bool Lib::setUsed_ifidbus_pfn_open(bool used) { return use(Group::ProfinetOpen, used); }
Bool ControllerVariables::ifidbus_pfn2close(Group::ProfinetClose, "ifidbus.pfn2close");
bool Lib::setUsed_ifidbus_pfn_close(bool used) { return use(Group::ProfinetClose, used); }
Bool ControllerVariables::ifidbus_dns2open(Group::DeviceNetSlaveOpen, "ifidbus.dns2open");
bool Lib::setUsed_ifidbus_dns_open(bool used) { return use(Group::DeviceNetSlaveOpen, used); }
Bool ControllerVariables::ifidbus_dns2close(Group::DeviceNetSlaveClose, "ifidbus.dns2close");
bool Lib::setUsed_ifidbus_dns_close(bool used) { return use(Group::DeviceNetSlaveClose, used); }
Bool ControllerVariables::ifidbus_dnm2open(Group::DeviceNetMasterOpen, "ifidbus.dnm2open");
bool Lib::setUsed_ifidbus_dnm_open(bool used) { return use(Group::DeviceNetMasterOpen, used); }
Bool ControllerVariables::ifidbus_dnm2close(Group::DeviceNetMasterClose, "ifidbus.dnm2close");
bool Lib::setUsed_ifidbus_dnm_close(bool used) { return use(Group::DeviceNetMasterClose, used); }

// Heartbeat: true while the link is up

static Bool ifidbus_mtcp_link_state(Group::Heartbeat, "ifidbus.mtcp_link_state");
bool Lib::get_ifidbus_heatbeatdet_mtcp_link_state() const { return ifidbus_mtcp_link_state; }

static Bool ifidbus_ethcat_link_state(Group::Heartbeat, "ifidbus.ethcat_link_state");
bool Lib::get_ifidbus_heatbeatdet_ethcat_link_state() const { return ifidbus_ethcat_link_state; }

static Bool ifidbus_pfn_link_state(Group::Heartbeat, "ifidbus.pfn_link_state");
bool Lib::get_ifidbus_heatbeatdet_pfbdp_link_state() const { return ifidbus_pfn_link_state; }

static Bool ifidbus_eip_link_state(Group::Heartbeat, "ifidbus.eip_link_state");
bool Lib::get_ifidbus_heatbeatdet_eip_link_state() const { return ifidbus_eip_link_state; }

static Bool ifidbus_ecm_link_state(Group::Heartbeat, "ifidbus.ecm_link_state");
bool Lib::get_ifidbus_heatbeatdet_ecm_link_state() const { return ifidbus_ecm_link_state; }

static Bool ifidbus_dns_link_state(Group::Heartbeat, "ifidbus.dns_link_state");
bool Lib::get_ifidbus_heatbeatdet_dns_link_state() const { return ifidbus_dns_link_state; }

static Bool ifidbus_mbc_link_state(Group::Heartbeat, "ifidbus.mbc_link_state");
bool Lib::get_ifidbus_heatbeatdet_mbc_link_state() const { return ifidbus_mbc_link_state; }

static Bool ifidbus_eim_link_state(Group::Heartbeat, "ifidbus.eim_link_state");
bool Lib::get_ifidbus_heatbeatdet_eim_link_state() const { return ifidbus_eim_link_state; }

static Bool ifidbus_pnm_link_state(Group::Heartbeat, "ifidbus.pnm_link_state");
bool Lib::get_ifidbus_heatbeatdet_pnm_link_state() const { return ifidbus_pnm_link_state; }

static Bool ifidbus_dnm_link_state(Group::Heartbeat, "ifidbus.dnm_link_state");
bool Lib::get_ifidbus_heatbeatdet_dnm_link_state() const { return ifidbus_dnm_link_state; }
bool Lib::setUsedVars_heartbeatdet(bool used) { return use(Group::Heartbeat, used); }

static Bool ifidbus_xml_heartbeat(Group::None, "ifidbus.xml_heartbeat"); // true: heartbeat.xml has changed
void Lib::set_ifidbus_heatbeatdet_xml_update(bool value) { ifidbus_xml_heartbeat = value; }

// Modbus TCP master

static Bool ifidbus_mbc_enable(Group::ModbusMaster, "ifidbus.mbc_enable"); // the role is on
bool Lib::get_ifidbus_mbc_enable() const { return ifidbus_mbc_enable; }
void Lib::set_ifidbus_mbc_enable(bool value) { ifidbus_mbc_enable = value; }

static Bool ifidbus_mbc_connected(Group::ModbusMaster, "ifidbus.mbc_connected"); // the slave answers
bool Lib::get_ifidbus_mbc_connected() const { return ifidbus_mbc_connected; }

// true: mtcp_master.xml has changed; cleared when taken
static Bool ifidbus_mbc_save_enable(Group::ModbusMaster, "ifidbus.mbc_save_enable");
void Lib::set_ifidbus_mbc_save(bool value) { ifidbus_mbc_save_enable = value; }

static Bool ifidbus_mbc_open(Group::ModbusMaster, "ifidbus.mbc_open"); // true: connect once; cleared when taken
bool Lib::get_ifidbus_mbc_open() const { return ifidbus_mbc_open; }
void Lib::set_ifidbus_mbc_open(bool value) { ifidbus_mbc_open = value; }

// the controller connects by itself, again and again
static Bool ifidbus_mbc_auto_con(Group::ModbusMaster, "ifidbus.mbc_auto_con");
bool Lib::get_ifidbus_mbc_autoCon() const { return ifidbus_mbc_auto_con; }
void Lib::set_ifidbus_mbc_autoCon(bool value) { ifidbus_mbc_auto_con = value; }
bool Lib::setUsedVars_mtcpMaster(bool used) { return use(Group::ModbusMaster, used); }

// EtherNet/IP and PROFINET master; a vector has an element a slave position. The enable and disable states tell of
// the coupling and the decoupling of a dynamic slave: 0 nothing, 1 done, any other failed.

static Int ifidbus_eim_configured(Group::EtherNetIpMaster, "ifidbus.eim_configured"); // 0 or 1; no page uses it
int Lib::get_ifidbus_eim_configured() const { return ifidbus_eim_configured; }
void Lib::set_ifidbus_eim_configured(bool value) { ifidbus_eim_configured = value; }

// the slave is connected
static BoolVector ifidbus_eim_status(Group::EtherNetIpMaster, "ifidbus.eim_status", SlavePositions);
bool Lib::get_ifidbus_eim_status(int index) const { return ifidbus_eim_status[index].getValue(); }

// alarms for dynamic slaves
static Bool ifidbus_dynamic_eim_enable(Group::EtherNetIpMaster, "ifidbus.dynamic_eim_enable");
bool Lib::get_ifidbus_dynamic_eim_enable() const { return ifidbus_dynamic_eim_enable; }
void Lib::set_ifidbus_dynamic_eim_enable(bool value) { ifidbus_dynamic_eim_enable = value; }

static IntVector ifidbus_eim_disable_status(Group::EtherNetIpMaster, "ifidbus.eim_disable_status", SlavePositions);
int Lib::get_ifidbus_eim_disable_status(int index) const { return ifidbus_eim_disable_status[index].getValue(); }

static IntVector ifidbus_eim_enable_status(Group::EtherNetIpMaster, "ifidbus.eim_enable_status", SlavePositions);
int Lib::get_ifidbus_eim_enable_status(int index) const { return ifidbus_eim_enable_status[index].getValue(); }
bool Lib::setUsedVars_eipMaster(bool used) { return use(Group::EtherNetIpMaster, used); }

static Int ifidbus_pnm_configured(Group::ProfinetMaster, "ifidbus.pnm_configured");
int Lib::get_ifidbus_pnm_configured() const { return ifidbus_pnm_configured; }
void Lib::set_ifidbus_pnm_configured(bool value) { ifidbus_pnm_configured = value; }

static BoolVector ifidbus_pnm_status(Group::ProfinetMaster, "ifidbus.pnm_status", SlavePositions);
bool Lib::get_ifidbus_pnm_status(int index) const { return ifidbus_pnm_status[index].getValue(); }

static Bool ifidbus_dynamic_pnm_enable(Group::ProfinetMaster, "ifidbus.dynamic_pnm_enable");
bool Lib::get_ifidbus_dynamic_pnm_enable() const { return ifidbus_dynamic_pnm_enable; }
void Lib::set_ifidbus_dynamic_pnm_enable(bool value) { ifidbus_dynamic_pnm_enable = value; }

static IntVector ifidbus_pnm_disable_status(Group::ProfinetMaster, "ifidbus.pnm_disable_status", SlavePositions);
int Lib::get_ifidbus_pnm_disable_status(int index) const { return ifidbus_pnm_disable_status[index].getValue(); }

static IntVector ifidbus_pnm_enable_status(Group::ProfinetMaster, "ifidbus.pnm_enable_status", SlavePositions);
int Lib::get_ifidbus_pnm_enable_status(int index) const { return ifidbus_pnm_enable_status[index].getValue(); }
bool Lib::setUsedVars_pnm(bool used) { return use(Group::ProfinetMaster, used); }

// DeviceNet master; a vector has an element a device of the scan list

// the device is connected
static BoolVector ifidbus_dnm_status(Group::DeviceNetMaster, "ifidbus.dnm_status", DeviceNetDevices);
bool Lib::get_ifidbus_dnm_status(int index) const { return ifidbus_dnm_status[index].getValue(); }

// why it is not: the controller's code, shown as it is
static IntVector ifidbus_dnm_errorcode(Group::DeviceNetMaster, "ifidbus.dnm_errorcode", DeviceNetDevices);
int Lib::get_ifidbus_dnm_errorcode(int index) const { return ifidbus_dnm_errorcode[index].getValue(); }
bool Lib::setUsedVars_dnm(bool used) { return use(Group::DeviceNetMaster, used); }

// true: the next dnmst0.cfg is taken over; cleared then
static Bool ifidbus_dnm_save_config(Group::None, "ifidbus.dnm_save_config");
void Lib::set_ifidbus_dnm_save_config(bool value) { ifidbus_dnm_save_config = value; }

static Int ifidbus_dnm_slave_num(Group::None, "ifidbus.dnm_slave_num"); // devices of the scan list, 0 to 16
void Lib::set_ifidbus_dnm_slave_num(int value) { ifidbus_dnm_slave_num = value; }

// FINS client

static Bool ifins_tcp_enable(Group::Fins, "ifins_tcp.enable"); // the client runs
bool Lib::get_ifins_tcp_enable() const { return ifins_tcp_enable; }
void Lib::set_ifins_tcp_enable(bool value) { ifins_tcp_enable = value; }

static Bool ifins_tcp_error(Group::Fins, "ifins_tcp.error"); // something went wrong since it was last connected
bool Lib::get_ifins_tcp_error() const { return ifins_tcp_error; }
void Lib::set_ifins_tcp_error(bool value) { ifins_tcp_error = value; }

// true: FinsTcpConfig.xml has changed; cleared when taken
static Bool ifins_tcp_bupdate_cfg(Group::Fins, "ifins_tcp.bupdate_cfg");
bool Lib::get_ifins_tcp_bupdate_cfg() const { return ifins_tcp_bupdate_cfg; }
void Lib::set_ifins_tcp_bupdate_cfg(bool value) { ifins_tcp_bupdate_cfg = value; }

static Bool ifins_tcp_connected(Group::Fins, "ifins_tcp.connected"); // means nothing while the client is off
bool Lib::get_ifins_tcp_connected() const { return ifins_tcp_connected; }
void Lib::set_ifins_tcp_connected(bool value) { ifins_tcp_connected = value; }
bool Lib::setUsedVars_ifins(bool used) { return use(Group::Fins, used); }

// MES server

// true: TcpServerConfig.xml has changed; cleared
static Bool imes_update_tcp_server_cfg(Group::Mes, "imes.update_tcp_server_cfg");
bool Lib::get_imes_update_tcp_server_cfg() const { return imes_update_tcp_server_cfg; }
void Lib::set_imes_update_tcp_server_cfg(bool value) { imes_update_tcp_server_cfg = value; }

// true: start the server, or stop it when it runs
static Bool imes_tcp_server_listen(Group::Mes, "imes.tcp_server_listen");
bool Lib::get_imes_tcp_server_listen() const { return imes_tcp_server_listen; }
void Lib::set_imes_tcp_server_listen(bool value) { imes_tcp_server_listen = value; }

static Bool imes_tcp_server_connected(Group::Mes, "imes.tcp_server_connected"); // a client is there
bool Lib::get_imes_tcp_server_connected() const { return imes_tcp_server_connected; }
void Lib::set_imes_tcp_server_connected(bool value) { imes_tcp_server_connected = value; }

static Bool imes_tcp_server_active(Group::Mes, "imes.tcp_server_active"); // the server listens
bool Lib::get_imes_tcp_server_active() const { return imes_tcp_server_active; }
void Lib::set_imes_tcp_server_active(bool value) { imes_tcp_server_active = value; }
bool Lib::setUsedVars_mes(bool used) { return use(Group::Mes, used); }

// ProfiSAFE

// element 0: command word, cleared when carried out
IntVector ControllerVariables::io_man_profisafe_local_wo(Group::Profisafe, "io_man.profisafe_local_wo", ProfisafeLocal);
// element 3, bits 0-1: feed voltage mode
IntVector ControllerVariables::io_man_profisafe_local_ro(Group::Profisafe, "io_man.profisafe_local_ro", ProfisafeLocal);
// process data, 8 bits an element
IntVector ControllerVariables::io_man_profisafe_ext_ro(Group::Profisafe, "io_man.profisafe_ext_ro", ProfisafeExternal);
bool Lib::setUsedVars_pfs(bool used) { return use(Group::Profisafe, used); }

// clang-format on
