#include "MainWidget.h"

#include "BaseZelCustomData.h"
#include "DataAccess.h"
#include "DesktopApi.h"
#include "FbMainWidget.h"
#include "FieldbusSettingLib.h"
#include "ZelCustomData.h"

#include <QPointer>

#include <algorithm>
#include <iterator>

namespace {

constexpr int RequiredUserLevel = 3;
constexpr unsigned ContextVariableKind = 8; // the host's flag for the variables of a project

using SubscriptionGroup = bool (FieldbusSettingLib::*)(bool);

// The host subscribes in this order.
constexpr SubscriptionGroup Groups[] = {
    &FieldbusSettingLib::setUsedVars_mes,
    &FieldbusSettingLib::setUsedVars_cclink,
    &FieldbusSettingLib::setUsedVars_ifins,
    &FieldbusSettingLib::setUsedVars_heartbeatdet,
    &FieldbusSettingLib::setUsedVars_ifidbus_bus_type_state,
    &FieldbusSettingLib::setUsedVars_mtcpMaster,
    &FieldbusSettingLib::setUsed_ifidbus_dns_status,
    &FieldbusSettingLib::setUsed_ifidbus_dnm_status,
    &FieldbusSettingLib::setUsedVars_ifidbus_ctr_Anybus_type,
    &FieldbusSettingLib::setUsedVars_freebus_busconfig_xml_update,
    &FieldbusSettingLib::setUsed_ifidbus_pfn_close,
    &FieldbusSettingLib::setUsed_ifidbus_pfn_open,
    &FieldbusSettingLib::setUsed_ifidbus_eip_close,
    &FieldbusSettingLib::setUsed_ifidbus_eip_open,
    &FieldbusSettingLib::setUsed_ifidbus_dns_open,
    &FieldbusSettingLib::setUsed_ifidbus_dns_close,
    &FieldbusSettingLib::setUsed_ifidbus_dnm_open,
    &FieldbusSettingLib::setUsed_ifidbus_dnm_close,
    &FieldbusSettingLib::setUsedVars_ifidbus_current_time,
    &FieldbusSettingLib::setUsedVars_ethernet,
    &FieldbusSettingLib::setUsedVars_eipMaster,
    &FieldbusSettingLib::setUsedVars_pnm,
    &FieldbusSettingLib::setUsedVars_dnm,
    &FieldbusSettingLib::setUsedVars_pfs,
};

} // namespace

MainWidget::MainWidget(BaseZelCustomData* applicationData, QWidget* parent)
    : ZelBaseWidget(applicationData, parent, Qt::FramelessWindowHint)
{
}

MainWidget::~MainWidget()
{
    // The base would delete the menu page, which is not its own.
    setCentralWidget(nullptr);
}

BaseZelCustomData* MainWidget::customData() const
{
    return static_cast<BaseZelCustomData*>(widgetData());
}

bool MainWidget::setUsedVars(int context, bool used)
{
    if (context != 0)
        return true;
    const BaseZelCustomData* application = customData();
    if (application && application->variableContext != 0 &&
        !setUsedVar(application->variableContext, used, ContextVariableKind))
        return false;
    FieldbusSettingLib* lib = FieldbusSettingLib::getInstance();
    return std::all_of(std::begin(Groups), std::end(Groups),
                       [lib, used](SubscriptionGroup group) { return (lib->*group)(used); });
}

void MainWidget::slotIdle()
{
    if (!isVisible())
        return;
    const QPointer<MainWidget> self(this);
    if (FbMainWidget* menu = ZelCustomData::menuPage())
        menu->idle();
    // A page's idle work may wait, and the host may drop the application meanwhile.
    if (self)
        idleMarker = 0;
}

void MainWidget::slotUserLevel()
{
    if (DataAccess::getUserLevel() >= RequiredUserLevel)
        return;
    closeApplication(true);
}

void MainWidget::closeAppSlot()
{
    closeApplication(false);
}

void MainWidget::closeApplication(bool hideCurrent)
{
    // A forced close is told to the host also when an ordinary one is under way: that one may be refused.
    if (m_closing && !hideCurrent)
        return;
    m_closing = true;
    setCentralWidget(nullptr);
    ZelCustomData::deleteMenuPage();
    BaseZelCustomData* application = customData();
    if (hideCurrent && application && application->currentWidget) {
        application->currentWidget->hide();
        application->currentWidget = nullptr;
    }
    DesktopApi::closeApplication(DesktopApi::pageIdFromClassName(QStringLiteral("fieldbussetting")),
                                 hideCurrent);
}
