#include "PageRegistry.h"

#include "BusSettingWidget.h"
#include "ConfigWidget.h"
#include "DeviceNetMasterSetting.h"
#include "DeviceNetSlaverSetting.h"
#include "EcatMasterSettingWidget.h"
#include "EipMasterSettingWidget.h"
#include "EtherCatSettingWidget.h"
#include "EtherNetSettingWidget.h"
#include "FinsTcpSettingWidget.h"
#include "HeartbeatDetectionWidget.h"
#include "MesSettingWidget.h"
#include "MtcpMasterSetting.h"
#include "MtcpSlaveSetting.h"
#include "Pfb_PfnSettingWidget.h"
#include "PfnMasterSetting.h"
#include "ProfiSAFESlaveWidget.h"
#include "RoleTable.h"

namespace PageRegistry {

namespace {

template <typename Page>
PageBase* create()
{
    return new Page;
}

using RoleTable::nameOf;

constexpr const char* NoButton = nullptr;
constexpr const char* NoBus = nullptr;

} // namespace

const std::array<Entry, PageCount>& entries()
{
    // id, button, caption, row, shown, bus, page, blocks input, needs free mode
    static constexpr std::array<Entry, PageCount> table = {{
        {0, "mesBtn", QT_TRANSLATE_NOOP("FbMainWidget", "Mes"), 1, Shown::WhenOn, nameOf(RoleId::Mes),
         create<MesSettingWidget>, true, false},
        {1, "pfbPfnBtn", QT_TRANSLATE_NOOP("FbMainWidget", "Pfn"), 4, Shown::WhenOn,
         nameOf(RoleId::ProfinetSlave), create<Pfb_PfnSettingWidget>, true, true},
        {2, NoButton, "", 0, Shown::Never, NoBus, create<FinsTcpSettingWidget>, false, false},
        {3, "etherCatBtn", QT_TRANSLATE_NOOP("FbMainWidget", "EthCat"), 5, Shown::WhenOn,
         nameOf(RoleId::EtherCatSlave), create<EtherCatSettingWidget>, true, false},
        {4, "etherNetBtn", QT_TRANSLATE_NOOP("FbMainWidget", "Eip"), 7, Shown::WhenOn,
         nameOf(RoleId::EtherNetIPSlave), create<EtherNetSettingWidget>, true, true},
        {5, "busSetting", QT_TRANSLATE_NOOP("FbMainWidget", "BusSetting"), 0, Shown::Always, NoBus,
         create<BusSettingWidget>, true, false},
        {6, "heartbeatBtn", QT_TRANSLATE_NOOP("FbMainWidget", "Heartbeat"), 14, Shown::Always, NoBus,
         create<HeartbeatDetectionWidget>, true, false},
        {7, "configBtn", QT_TRANSLATE_NOOP("FbMainWidget", "Configuration"), 15, Shown::Always, NoBus,
         create<ConfigWidget>, true, false},
        {8, "etherCatMBtn", QT_TRANSLATE_NOOP("FbMainWidget", "Ecm"), 8, Shown::WhenOn,
         nameOf(RoleId::EtherCatMaster), create<EcatMasterSettingWidget>, true, false},
        {9, "deviceBtn", QT_TRANSLATE_NOOP("FbMainWidget", "Dns"), 9, Shown::WhenOn,
         nameOf(RoleId::DeviceNetSlave), create<DeviceNetSlaverSetting>, true, false},
        {10, "mtcpMasterBtn", QT_TRANSLATE_NOOP("FbMainWidget", "Mbc"), 3, Shown::WhenOn,
         nameOf(RoleId::ModbusTcpMaster), create<MtcpMasterSetting>, true, false},
        {11, "eipMasterBtn", QT_TRANSLATE_NOOP("FbMainWidget", "Eim"), 10, Shown::WhenOn,
         nameOf(RoleId::EtherNetIPMaster), create<EipMasterSettingWidget>, true, false},
        {12, "pnmBtn", QT_TRANSLATE_NOOP("FbMainWidget", "Pnm"), 11, Shown::WhenOn,
         nameOf(RoleId::ProfinetMaster), create<PfnMasterSetting>, true, false},
        {13, "devicemBtn", QT_TRANSLATE_NOOP("FbMainWidget", "Dnm"), 12, Shown::WhenOn,
         nameOf(RoleId::DeviceNetMaster), create<DeviceNetMasterSetting>, true, false},
        {14, "btn_pfss", QT_TRANSLATE_NOOP("FbMainWidget", "Pfss"), 13, Shown::WithProfisafe, NoBus,
         create<ProfiSAFESlaveWidget>, false, false},
        {15, "btn_mtcp", QT_TRANSLATE_NOOP("FbMainWidget", "Mtcp"), 2, Shown::Always, NoBus,
         create<MtcpSlaveSetting>, false, false},
    }};
    return table;
}

const std::array<int, 13>& idleOrder()
{
    static constexpr std::array<int, 13> order = {0, 2, 6, 5, 7, 4, 1, 9, 10, 11, 12, 13, 14};
    return order;
}

} // namespace PageRegistry
