#include "BusSwitches.h"

#include "ControllerVariables.h"
#include "FieldbusSettingLib.h"

using namespace ControllerVariables;

namespace BusSwitches {

const std::array<Row, Count>& rows()
{
    static constexpr std::array<Row, Count> table = {{
        {"mesSwitch", QT_TRANSLATE_NOOP("BusSettingWidget", "Mes Switch"), RoleId::Mes},
        {"ethcatSwitch", QT_TRANSLATE_NOOP("BusSettingWidget", "EtherCatSlave Switch"),
         RoleId::EtherCatSlave},
        {"ethcatMSwitch", QT_TRANSLATE_NOOP("BusSettingWidget", "EtherCatMaster Switch"),
         RoleId::EtherCatMaster},
        {"ethnetSwitch", QT_TRANSLATE_NOOP("BusSettingWidget", "EthernetIPSlave Switch"),
         RoleId::EtherNetIPSlave},
        {"eipMSwitch", QT_TRANSLATE_NOOP("BusSettingWidget", "EthernetIPMaster Switch"),
         RoleId::EtherNetIPMaster},
        {"pftSwitch", QT_TRANSLATE_NOOP("BusSettingWidget", "ProfinetSlave Switch"), RoleId::ProfinetSlave},
        {"pfnMasterSwitch", QT_TRANSLATE_NOOP("BusSettingWidget", "ProfinetMaster Switch"),
         RoleId::ProfinetMaster},
        {"devnetSwitch", QT_TRANSLATE_NOOP("BusSettingWidget", "DeviceNetSlave Switch"),
         RoleId::DeviceNetSlave},
        {"devnetmSwitch", QT_TRANSLATE_NOOP("BusSettingWidget", "DeviceNetMaster Switch"),
         RoleId::DeviceNetMaster},
        {"mbcSwitch", QT_TRANSLATE_NOOP("BusSettingWidget", "ModbusTcpMaster Switch"),
         RoleId::ModbusTcpMaster},
        {"freeBusSwitch", QT_TRANSLATE_NOOP("BusSettingWidget", " FreeBus Switch"), RoleId::FreeBus},
    }};
    return table;
}

const std::array<Command, CommandCount>& commands()
{
    static const std::array<Command, CommandCount> table = {{
        {EipSlave, ifidbus_eip2open, ifidbus_eip2close, "EthernetIP"},
        {PfnSlave, ifidbus_pfn2open, ifidbus_pfn2close, "Profinet"},
        {DeviceNetSlave, ifidbus_dns2open, ifidbus_dns2close, "DeviceNet"},
        {DeviceNetMaster, ifidbus_dnm2open, ifidbus_dnm2close, "DeviceNet Master"},
    }};
    return table;
}

const std::array<const Command*, CommandCount>& reportedCommands()
{
    static const std::array<const Command*, CommandCount> order = {&commands()[1], &commands()[0],
                                                                   &commands()[2], &commands()[3]};
    return order;
}

const std::array<RoleVariable, 7>& roleVariables()
{
    static constexpr std::array<RoleVariable, 7> table = {{
        {EtherCatSlave, &FieldbusSettingLib::set_ifidbus_ethcat_state},
        {PfnSlave, &FieldbusSettingLib::set_ifidbus_pfn_state},
        {EipSlave, &FieldbusSettingLib::set_ifidbus_eip_state},
        {DeviceNetSlave, &FieldbusSettingLib::set_ifidbus_dns_state},
        {FreeBus, &FieldbusSettingLib::set_ifidbus_freebus_state},
        {MtcpMaster, &FieldbusSettingLib::set_ifidbus_mbc_enable},
        {DeviceNetMaster, &FieldbusSettingLib::set_ifidbus_dnm_state},
    }};
    return table;
}

} // namespace BusSwitches
