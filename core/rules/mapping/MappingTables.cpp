#include "MappingTables.h"

namespace Mapping {

namespace {

// Line ends and runs of blanks are part of the texts: they are what the translations are found by.
constexpr const char* SlaveTips =
    QT_TRANSLATE_NOOP("ConfigWidget", "Tips:\n"
                                      "    Type  Bool  Limit  Range: 0 ~ %1!\n"
                                      "    Type  Int  Limit  Range: 0 ~ %2!                           \n"
                                      "    Type  Float  Limit  Range: 0 ~ %3!\n"
                                      "    Type  Bool,Please  Fill  In  A  Multiple  of  %4!\n"
                                      "    All Bytes Limit Range: %5 ~ %6!");
constexpr const char* EthcatSlaveTips = QT_TRANSLATE_NOOP(
    "ConfigWidget", "Tips:\n"
                    "    Type  Bool  Limit  Range: 0 ~ %1!\n"
                    "    Type  Int  Limit  Range: 0 ~ %2!                           \n"
                    "    Type  Float  Limit  Range: 0 ~ %3!\n"
                    "    Type  Bool,Please  Fill  In  A  Multiple  of  %4!                           \n"
                    "    All Bytes Limit Range: %5 ~ %6!\n");
constexpr const char* SmallBytesTips =
    QT_TRANSLATE_NOOP("ConfigWidget", "Tips:\n"
                                      "    Type  Bool  Limit  Range: 0 ~ %1!\n"
                                      "    Type  Int  Limit  Range: 0 ~ %2!                           \n"
                                      "    Type  Float  Limit  Range: 0 ~ %3!\n"
                                      "    Type  Bool,Please  Fill  In  A  Multiple  of  %4!\n"
                                      "    Bool and Int Bytes Limit Range: %5 ~ %6!\n"
                                      "    All Bytes Limit Range: %7 ~ %8!\n");
constexpr const char* PfnSlaveTips =
    QT_TRANSLATE_NOOP("ConfigWidget", "Tips:\n"
                                      "    Type  Bool  Limit  Range: 0 ~ %1!\n"
                                      "    Type  Int  Limit  Range: 0 ~ %2!                           \n"
                                      "    Type  Float  Limit  Range: 0 ~ %3!\n"
                                      "    Type  Bool,Please  Fill  In  A  Multiple  of  %4!\n"
                                      "    Bool and Int Bytes Limit Range: %5 ~ %6!\n"
                                      "    All Bytes Limit Range: %7 ~ %8!\n"
                                      "    The total number of bytes must be a multiple of 8!\n"
                                      "    Bool and Int Bytes Must Be A Multiple Of %9!");
constexpr const char* MtcpMasterTips =
    QT_TRANSLATE_NOOP("ConfigWidget", "Tips:\n"
                                      "    Type  Bool  Limit  Range: 0 ~ %1!\n"
                                      "    Type  Int  Limit  Range: 0 ~ %2!        \n"
                                      "    Type  Float  Limit  Range: 0 ~ %3!\n"
                                      "    Type  Bool,Please  Fill  In  A  Multiple  of  %4!\n"
                                      "    All Bytes Limit Range: %5 ~ %6!");
constexpr const char* EthcatMasterTips =
    QT_TRANSLATE_NOOP("ConfigWidget", "Tips:\n"
                                      "    The number of Ecat main stations cannot be modified\n"
                                      "                         Type  Bool  Limit  Range: 0 ~ %1!\n"
                                      "                         All Bytes Limit Range: %2 ~ %3!\n");
constexpr const char* EipMasterTips =
    QT_TRANSLATE_NOOP("ConfigWidget", "Tips:\n"
                                      "    The number of EipMaster main stations cannot be modified\n"
                                      "                         Type  Bool  Limit  Range: 0 ~ %1!\n"
                                      "                         All Bytes Limit Range: %2 ~ %3!\n");
constexpr const char* PfnMasterTips =
    QT_TRANSLATE_NOOP("ConfigWidget", "Tips:\n"
                                      "    The number of PfnMaster main stations cannot be modified\n"
                                      "                         Type  Bool  Limit  Range: 0 ~ %1!\n"
                                      "                         All Bytes Limit Range: %2 ~ %3!\n");
constexpr const char* DnMasterTips =
    QT_TRANSLATE_NOOP("ConfigWidget", "Tips:\n"
                                      " Type Bool Limit Range: 0 ~ %1!\n"
                                      "                         Type Bool,Please Fill In A Multiple of %2!\n"
                                      "                        All Bytes Limit Range: %3 ~ %4!\n");

// Quantities of Bool, Int and Float, multiple of Bool, bytes of Bool and Int, all bytes, multiple of the
// bytes of Bool and Int.
constexpr Limits MtcpFree{{2048, 128, 64}, 16, {}, {0, 256}, None, SlaveTips};
constexpr Limits MtcpFixed{{480, 40, 33}, 16, {0, 80}, {0, 132}, None, SmallBytesTips};
constexpr Limits MtcpFixedBoth{{512, 100, 50}, 16, {}, {0, 200}, None, SlaveTips};
constexpr Limits EthcatFree{{1472, 92, 46}, 16, {}, {0, 184}, None, EthcatSlaveTips};
constexpr Limits EthcatFixed{{928, 58, 29}, 16, {}, {0, 116}, None, EthcatSlaveTips};
constexpr Limits EipFree{{1600, 100, 50}, 16, {0, 200}, {8, 200}, None, SmallBytesTips};
constexpr Limits EipFixed{{480, 40, 33}, 16, {0, 80}, {4, 132}, None, SmallBytesTips};
constexpr Limits PfnFree{{1536, 96, 48}, 16, {0, 192}, {8, 192}, 8, PfnSlaveTips};
constexpr Limits PfnFixed{{480, 38, 30}, 16, {4, 76}, {4, 124}, 8, PfnSlaveTips};
constexpr Limits MtcpMasterRead{{2000, 125, 62}, 16, {}, {0, 250}, None, MtcpMasterTips};
constexpr Limits MtcpMasterWrite{{1968, 123, 61}, 16, {}, {0, 246}, None, MtcpMasterTips};
constexpr Limits EthcatMasterAll{{2048, None, None}, None, {}, {0, 256}, None, EthcatMasterTips};
constexpr Limits EipMasterAll{{2048, None, None}, None, {}, {0, 256}, None, EipMasterTips};
constexpr Limits PfnMasterAll{{2048, None, None}, None, {}, {0, 256}, None, PfnMasterTips};
constexpr Limits DnMasterAll{{2048, None, None}, 8, {}, {0, 256}, None, DnMasterTips};

constexpr Direction RO = Direction::ReadOnly;
constexpr Direction WO = Direction::WriteOnly;

constexpr std::array<SubTable, TableCount> Tables = {{
    {Bus::MtcpSlave, RO, "mtcp_ro", "mtcp_sys_ro", "", &MtcpFree, &MtcpFixed},
    {Bus::MtcpSlave, WO, "mtcp_wo", "mtcp_sys_wo", "", &MtcpFree, &MtcpFixed},
    {Bus::MtcpSlave, Direction::ReadWrite, "mtcp_rw", "", "", &MtcpFree, &MtcpFixedBoth},
    {Bus::EthcatSlave, RO, "ethcat_ro", "ethcat_sys_ro", "Bus_Get", &EthcatFree, &EthcatFixed},
    {Bus::EthcatSlave, WO, "ethcat_wo", "ethcat_sys_wo", "Bus_Set", &EthcatFree, &EthcatFixed},
    {Bus::EipSlave, RO, "eip_ro", "eip_sys_ro", "Bus_Get", &EipFree, &EipFixed},
    {Bus::EipSlave, WO, "eip_wo", "eip_sys_wo", "Bus_Set", &EipFree, &EipFixed},
    {Bus::PfnSlave, RO, "pfn_ro", "pfn_sys_ro", "Bus_Get", &PfnFree, &PfnFixed},
    {Bus::PfnSlave, WO, "pfn_wo", "pfn_sys_wo", "Bus_Set", &PfnFree, &PfnFixed},
    {Bus::EthcatMaster, RO, "ecm_ro_b", "", "Bus_Get[0]", &EthcatMasterAll, &EthcatMasterAll},
    {Bus::EthcatMaster, WO, "ecm_wo_b", "", "Bus_Set[0]", &EthcatMasterAll, &EthcatMasterAll},
    {Bus::DnSlave, RO, "dns_ro", "dns_sys_ro", "Bus_Get", &EipFree, &EipFixed},
    {Bus::DnSlave, WO, "dns_wo", "dns_sys_wo", "Bus_Set", &EipFree, &EipFixed},
    {Bus::MtcpMaster, RO, "mbc_ro", "", "", &MtcpMasterRead, &MtcpMasterRead},
    {Bus::MtcpMaster, WO, "mbc_wo", "", "", &MtcpMasterWrite, &MtcpMasterWrite},
    {Bus::EipMaster, RO, "eim_ro_b", "", "Bus_Get[0]", &EipMasterAll, &EipMasterAll},
    {Bus::EipMaster, WO, "eim_wo_b", "", "Bus_Set[0]", &EipMasterAll, &EipMasterAll},
    {Bus::PfnMaster, RO, "pnm_ro_b", "", "Bus_Get[0]", &PfnMasterAll, &PfnMasterAll},
    {Bus::PfnMaster, WO, "pnm_wo_b", "", "Bus_Set[0]", &PfnMasterAll, &PfnMasterAll},
    {Bus::DnMaster, RO, "dnm_ro_b", "", "Bus_Get[0]", &DnMasterAll, &DnMasterAll},
    {Bus::DnMaster, WO, "dnm_wo_b", "", "Bus_Set[0]", &DnMasterAll, &DnMasterAll},
}};

constexpr std::array<BusInfo, BusCount> BusInfos = {{
    {RoleId::ModbusTcpSlave, Layout::SlaveRegisters, true, 0, 3},
    {RoleId::EtherCatSlave, Layout::Bytes, true, 3, 2},
    {RoleId::EtherNetIPSlave, Layout::Bytes, true, 5, 2},
    {RoleId::ProfinetSlave, Layout::Bytes, true, 7, 2},
    {RoleId::EtherCatMaster, Layout::MasterBools, false, 9, 2},
    {RoleId::DeviceNetSlave, Layout::Bytes, true, 11, 2},
    {RoleId::ModbusTcpMaster, Layout::MasterRegisters, true, 13, 2},
    {RoleId::EtherNetIPMaster, Layout::MasterBools, false, 15, 2},
    {RoleId::ProfinetMaster, Layout::MasterBools, false, 17, 2},
    {RoleId::DeviceNetMaster, Layout::MasterBools, true, 19, 2},
}};

} // namespace

const BusInfo& infoOf(Bus bus)
{
    return BusInfos.at(static_cast<std::size_t>(bus));
}

const SubTable& tableOf(int number)
{
    return Tables.at(static_cast<std::size_t>(number));
}

int numberOf(Bus bus, Direction direction)
{
    return infoOf(bus).firstTable + static_cast<int>(direction);
}

const Limits& limitsOf(int number, Mode mode)
{
    const SubTable& table = tableOf(number);
    return mode == MappingConfig::Free ? *table.freeLimits : *table.fixedLimits;
}

MarkedText tipsOf(int number, Mode mode)
{
    const Limits& limits = limitsOf(number, mode);
    MarkedText tips{limits.tips, {}};
    for (const int value :
         {limits.quantity[MappedBool], limits.quantity[MappedInt], limits.quantity[MappedFloat],
          limits.boolMultiple, limits.smallBytes.least, limits.smallBytes.most, limits.allBytes.least,
          limits.allBytes.most, limits.smallMultiple}) {
        if (value != None)
            tips.arguments << QString::number(value);
    }
    return tips;
}

} // namespace Mapping
