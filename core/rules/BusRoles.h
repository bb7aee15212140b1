#ifndef BUSROLES_H
#define BUSROLES_H

#include <QString>

#include <array>

/// The bus roles of the robot: what they are called wherever they are met, and what the rules between them
/// go by. The only table of them.
enum class RoleId {
    Mes,
    FinsTcp,
    ModbusTcpSlave,
    ModbusTcpMaster,
    ProfinetSlave,
    ProfinetMaster,
    EtherCatSlave,
    EtherCatMaster,
    EtherNetIPSlave,
    EtherNetIPMaster,
    DeviceNetSlave,
    DeviceNetMaster,
    FreeBus
};
constexpr std::size_t RoleCount = 13;

/// Roles of one group may not be on together.
enum class ExclusionGroup { None, Masters, DeviceNet };

/// When a role runs with the bus free configuration only.
enum class FreeNeed { Never, WithProfisafe, Always };

struct RoleInfo
{
    static constexpr int NoPerformance = -1;

    RoleId id;
    const char*
        name; ///< in "fieldbus.xml", "Fieldbus.cfg" and "fieldbus_config.xml", as the factory spells it
    const char* title; ///< for people; a proper name and not translated
    /// How the spelling of the name in "Fieldbus.cfg" is compared.
    Qt::CaseSensitivity spelling;
    ExclusionGroup group;
    FreeNeed freeNeed;
    int performanceBus; ///< its bit in the performance switch word, NoPerformance for none
    const char*
        overrideDevice; ///< device in "override.cfg" without which the role does nothing; null for none
    const char*
        heartbeatKey; ///< what its elements in "heartbeat.xml" begin with; null when it is not watched
    const char* linkVariable;   ///< whether its link is up
    const char* enableVariable; ///< what tells the controller that it is wanted; null without one
};

namespace RoleTable {

constexpr std::array<RoleInfo, RoleCount> Roles = {{
    {RoleId::Mes, "Mes", "MES server", Qt::CaseInsensitive, ExclusionGroup::None, FreeNeed::Never,
     RoleInfo::NoPerformance, nullptr, nullptr, "imes.tcp_server_connected", nullptr},
    {RoleId::FinsTcp, "FinsTcp", "FINS client", Qt::CaseSensitive, ExclusionGroup::None, FreeNeed::Never,
     RoleInfo::NoPerformance, nullptr, nullptr, "ifins_tcp.connected", "ifins_tcp.enable"},
    {RoleId::ModbusTcpSlave, "ModbusTcpSlave", "Modbus TCP slave", Qt::CaseInsensitive, ExclusionGroup::None,
     FreeNeed::Never, 0, nullptr, "Mtcp", "ifidbus.mtcp_link_state", "ifidbus.mtcp_enable"},
    {RoleId::ModbusTcpMaster, "ModbusTcpMaster", "Modbus TCP master", Qt::CaseInsensitive,
     ExclusionGroup::None, FreeNeed::Always, RoleInfo::NoPerformance, nullptr, "Mbc",
     "ifidbus.mbc_link_state", "ifidbus.mbc_enable"},
    {RoleId::ProfinetSlave, "ProfinetSlave", "PROFINET slave", Qt::CaseInsensitive, ExclusionGroup::None,
     FreeNeed::WithProfisafe, 3, nullptr, "Pfnet", "ifidbus.pfn_link_state", "ifidbus.pfn_enable"},
    {RoleId::ProfinetMaster, "ProfinetMaster", "PROFINET master", Qt::CaseInsensitive,
     ExclusionGroup::Masters, FreeNeed::Never, RoleInfo::NoPerformance, "PNM_DEVICE", "Pnm",
     "ifidbus.pnm_link_state", nullptr},
    {RoleId::EtherCatSlave, "EtherCatSlave", "EtherCAT slave", Qt::CaseInsensitive, ExclusionGroup::None,
     FreeNeed::Never, RoleInfo::NoPerformance, "ANYBUS", "Ethcat", "ifidbus.ethcat_link_state",
     "ifidbus.ethcat_enable"},
    {RoleId::EtherCatMaster, "EtherCatMaster", "EtherCAT master", Qt::CaseInsensitive,
     ExclusionGroup::Masters, FreeNeed::Never, RoleInfo::NoPerformance, nullptr, "Ecm",
     "ifidbus.ecm_link_state", nullptr},
    {RoleId::EtherNetIPSlave, "EtherNetIPSlave", "EtherNet/IP slave", Qt::CaseInsensitive,
     ExclusionGroup::None, FreeNeed::Never, 2, nullptr, "Eip", "ifidbus.eip_link_state",
     "ifidbus.eip_enable"},
    {RoleId::EtherNetIPMaster, "EtherNetIPMaster", "EtherNet/IP master", Qt::CaseSensitive,
     ExclusionGroup::Masters, FreeNeed::Never, RoleInfo::NoPerformance, "EIM_DEVICE", "Eim",
     "ifidbus.eim_link_state", nullptr},
    {RoleId::DeviceNetSlave, "DeviceNetSlave", "DeviceNet slave", Qt::CaseInsensitive,
     ExclusionGroup::DeviceNet, FreeNeed::Never, RoleInfo::NoPerformance, nullptr, "Dns",
     "ifidbus.dns_link_state", "ifidbus.dns_enable"},
    {RoleId::DeviceNetMaster, "DeviceNetMaster", "DeviceNet master", Qt::CaseInsensitive,
     ExclusionGroup::DeviceNet, FreeNeed::Never, RoleInfo::NoPerformance, nullptr, "Dnm",
     "ifidbus.dnm_link_state", "ifidbus.dnm_enable"},
    {RoleId::FreeBus, "FreeBus", "free configuration", Qt::CaseInsensitive, ExclusionGroup::None,
     FreeNeed::Never, RoleInfo::NoPerformance, nullptr, nullptr, nullptr, "ifidbus.freebus_enable"},
}};

constexpr const RoleInfo& of(RoleId role)
{
    return Roles[static_cast<std::size_t>(role)];
}

constexpr const char* nameOf(RoleId role)
{
    return of(role).name;
}

/// The role that is spelt like that to the letter, null when there is none.
const RoleInfo* named(const QString& name);

/// By RoleId: which of them are on.
using States = std::array<bool, RoleCount>;

inline bool isOn(const States& on, RoleId role)
{
    return on[static_cast<std::size_t>(role)];
}

} // namespace RoleTable

#endif
