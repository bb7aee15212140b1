#include "BusSwitches.h"

#include "ControllerVariables.h"
#include "FieldbusSettingLib.h"

#include <QtGlobal>

using namespace ControllerVariables;

namespace BusSwitches {

namespace {

// The value of the performance switch word, halved, of the bus that is meant. The word has a bit a bus: the
// EtherNet/IP slave's 4 gives 2; the PROFINET slave's 8 gives 4, so that its performance is never taken away
// here. Controllers in the field count on that word staying as it is.
constexpr int EipPerformance = 2;
constexpr int PfnPerformance = 3;

} // namespace

const std::array<Row, Count>& rows()
{
    static constexpr std::array<Row, Count> table = {{
        {"mesSwitch", QT_TRANSLATE_NOOP("BusSettingWidget", "Mes Switch"), "Mes"},
        {"ethcatSwitch", QT_TRANSLATE_NOOP("BusSettingWidget", "EtherCatSlave Switch"), "EtherCatSlave"},
        {"ethcatMSwitch", QT_TRANSLATE_NOOP("BusSettingWidget", "EtherCatMaster Switch"), "EtherCatMaster"},
        {"ethnetSwitch", QT_TRANSLATE_NOOP("BusSettingWidget", "EthernetIPSlave Switch"), "EtherNetIPSlave"},
        {"eipMSwitch", QT_TRANSLATE_NOOP("BusSettingWidget", "EthernetIPMaster Switch"), "EtherNetIPMaster"},
        {"pftSwitch", QT_TRANSLATE_NOOP("BusSettingWidget", "ProfinetSlave Switch"), "ProfinetSlave"},
        {"pfnMasterSwitch", QT_TRANSLATE_NOOP("BusSettingWidget", "ProfinetMaster Switch"), "ProfinetMaster"},
        {"devnetSwitch", QT_TRANSLATE_NOOP("BusSettingWidget", "DeviceNetSlave Switch"), "DeviceNetSlave"},
        {"devnetmSwitch", QT_TRANSLATE_NOOP("BusSettingWidget", "DeviceNetMaster Switch"), "DeviceNetMaster"},
        {"mbcSwitch", QT_TRANSLATE_NOOP("BusSettingWidget", "ModbusTcpMaster Switch"), "ModbusTcpMaster"},
        {"freeBusSwitch", QT_TRANSLATE_NOOP("BusSettingWidget", " FreeBus Switch"), "FreeBus"},
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

const char* mastersObjection(const States& on)
{
    return int(on[EipMaster]) + int(on[EtherCatMaster]) + int(on[PfnMaster]) < 2
               ? nullptr
               : QT_TRANSLATE_NOOP("BusSettingWidget",
                                   "EthernetIP master EtherCat master and Profinet master cannot be "
                                   "enabled at the same time!");
}

const char* freeConfigurationObjection(const QString& objectName, int index, bool freeBusOn,
                                       bool profisafePresent)
{
    if (index != On || freeBusOn)
        return nullptr;
    if (profisafePresent)
        return QT_TRANSLATE_NOOP("BusSettingWidget",
                                 "If ModbusTcp Master or Profinet Slave switch is ON,\n the bus free "
                                 "configuration switch needs to be ON!");
    if (!objectName.contains(QLatin1String("mbc")))
        return nullptr;
    return QT_TRANSLATE_NOOP("BusSettingWidget", "If ModbusTcp Master switch is ON,\n the bus free "
                                                 "configuration switch needs to be ON!");
}

bool losesPerformance(int performanceSwitch, bool eipSlaveOn, bool pfnSlaveOn)
{
    const int holder = performanceSwitch / 2;
    return (holder == EipPerformance && !eipSlaveOn) || (holder == PfnPerformance && !pfnSlaveOn);
}

} // namespace BusSwitches
