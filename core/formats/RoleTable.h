#ifndef ROLETABLE_H
#define ROLETABLE_H

#include "BusSwitchFile.h"

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
    /// In "fieldbus.xml", "Fieldbus.cfg" and "fieldbus_config.xml", as the factory spells it.
    const char* name;
    /// For people; a proper name and not translated.
    const char* title;
    /// In the record of "Fieldbus.cfg"; null for a role that it does not list.
    bool BusSwitchSet::*switchFlag;
    /// How the spelling of the name there is compared.
    Qt::CaseSensitivity spelling;
    ExclusionGroup group;
    FreeNeed freeNeed;
    /// Its bit in the performance switch word, NoPerformance for none.
    int performanceBus;
    /// Device in "override.cfg" without which the role does nothing; null for none.
    const char* overrideDevice;
    /// What its elements in "heartbeat.xml" begin with; null when it is not watched.
    const char* heartbeatKey;
    /// Variable that tells whether its link is up; null without a link.
    const char* linkVariable;
    /// Variable that tells the controller that it is wanted; null without one.
    const char* enableVariable;
};

namespace RoleTable {

constexpr std::array<RoleInfo, RoleCount> Roles = {{
    {RoleId::Mes, "Mes", "MES server", &BusSwitchSet::Mes, Qt::CaseInsensitive, ExclusionGroup::None,
     FreeNeed::Never, RoleInfo::NoPerformance, nullptr, nullptr, "imes.tcp_server_connected", nullptr},
    {RoleId::FinsTcp, "FinsTcp", "FINS client", &BusSwitchSet::FinsTcp, Qt::CaseSensitive,
     ExclusionGroup::None, FreeNeed::Never, RoleInfo::NoPerformance, nullptr, nullptr, "ifins_tcp.connected",
     "ifins_tcp.enable"},
    {RoleId::ModbusTcpSlave, "ModbusTcpSlave", "Modbus TCP slave", nullptr, Qt::CaseInsensitive,
     ExclusionGroup::None, FreeNeed::Never, 0, nullptr, "Mtcp", "ifidbus.mtcp_link_state",
     "ifidbus.mtcp_enable"},
    {RoleId::ModbusTcpMaster, "ModbusTcpMaster", "Modbus TCP master", &BusSwitchSet::ModbusTcpMaster,
     Qt::CaseInsensitive, ExclusionGroup::None, FreeNeed::Always, RoleInfo::NoPerformance, nullptr, "Mbc",
     "ifidbus.mbc_link_state", "ifidbus.mbc_enable"},
    {RoleId::ProfinetSlave, "ProfinetSlave", "PROFINET slave", &BusSwitchSet::ProfinetSlave,
     Qt::CaseInsensitive, ExclusionGroup::None, FreeNeed::WithProfisafe, 3, nullptr, "Pfnet",
     "ifidbus.pfn_link_state", "ifidbus.pfn_enable"},
    {RoleId::ProfinetMaster, "ProfinetMaster", "PROFINET master", &BusSwitchSet::ProfinetMaster,
     Qt::CaseInsensitive, ExclusionGroup::Masters, FreeNeed::Never, RoleInfo::NoPerformance, "PNM_DEVICE",
     "Pnm", "ifidbus.pnm_link_state", nullptr},
    {RoleId::EtherCatSlave, "EtherCatSlave", "EtherCAT slave", &BusSwitchSet::EtherCatSlave,
     Qt::CaseInsensitive, ExclusionGroup::None, FreeNeed::Never, RoleInfo::NoPerformance, "ANYBUS", "Ethcat",
     "ifidbus.ethcat_link_state", "ifidbus.ethcat_enable"},
    {RoleId::EtherCatMaster, "EtherCatMaster", "EtherCAT master", &BusSwitchSet::EtherCatMaster,
     Qt::CaseInsensitive, ExclusionGroup::Masters, FreeNeed::Never, RoleInfo::NoPerformance, nullptr, "Ecm",
     "ifidbus.ecm_link_state", nullptr},
    {RoleId::EtherNetIPSlave, "EtherNetIPSlave", "EtherNet/IP slave", &BusSwitchSet::EtherNetIPSlave,
     Qt::CaseInsensitive, ExclusionGroup::None, FreeNeed::Never, 2, nullptr, "Eip", "ifidbus.eip_link_state",
     "ifidbus.eip_enable"},
    {RoleId::EtherNetIPMaster, "EtherNetIPMaster", "EtherNet/IP master", &BusSwitchSet::EtherNetIPMaster,
     Qt::CaseSensitive, ExclusionGroup::Masters, FreeNeed::Never, RoleInfo::NoPerformance, "EIM_DEVICE",
     "Eim", "ifidbus.eim_link_state", nullptr},
    {RoleId::DeviceNetSlave, "DeviceNetSlave", "DeviceNet slave", &BusSwitchSet::DeviceNetSlave,
     Qt::CaseInsensitive, ExclusionGroup::DeviceNet, FreeNeed::Never, RoleInfo::NoPerformance, nullptr, "Dns",
     "ifidbus.dns_link_state", "ifidbus.dns_enable"},
    {RoleId::DeviceNetMaster, "DeviceNetMaster", "DeviceNet master", &BusSwitchSet::DeviceNetMaster,
     Qt::CaseInsensitive, ExclusionGroup::DeviceNet, FreeNeed::Never, RoleInfo::NoPerformance, nullptr, "Dnm",
     "ifidbus.dnm_link_state", "ifidbus.dnm_enable"},
    {RoleId::FreeBus, "FreeBus", "free configuration", &BusSwitchSet::FreeBus, Qt::CaseInsensitive,
     ExclusionGroup::None, FreeNeed::Never, RoleInfo::NoPerformance, nullptr, nullptr, nullptr,
     "ifidbus.freebus_enable"},
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
