#ifndef BUSROLENAMES_H
#define BUSROLENAMES_H

/// The bus roles as the controller's files and the bus file data service spell them. Some of those who read
/// them regard the case, some do not; this is the spelling of the factory files.
namespace BusRoleNames {

constexpr const char* Mes = "Mes";
constexpr const char* FinsTcp = "FinsTcp";
constexpr const char* FreeBus = "FreeBus";
constexpr const char* EtherCatSlave = "EtherCatSlave";
constexpr const char* EtherCatMaster = "EtherCatMaster";
constexpr const char* ProfinetSlave = "ProfinetSlave";
constexpr const char* ProfinetMaster = "ProfinetMaster";
constexpr const char* EtherNetIPSlave = "EtherNetIPSlave";
constexpr const char* EtherNetIPMaster = "EtherNetIPMaster";
constexpr const char* DeviceNetSlave = "DeviceNetSlave";
constexpr const char* DeviceNetMaster = "DeviceNetMaster";
constexpr const char* ModbusTcpSlave = "ModbusTcpSlave";
constexpr const char* ModbusTcpMaster = "ModbusTcpMaster";

} // namespace BusRoleNames

#endif
