#include "StatusWidget.h"

#include "DataAccess.h"
#include "DesktopApi.h"
#include "StatusData.h"
#include "StatusMain.h"
#include "SysSettingApi.h"

#include <QPointer>

namespace {

constexpr int RequiredUserLevel = 3;
constexpr unsigned ContextVariableKind = 8; // the host's flag for the variables of a project

} // namespace

StatusWidget::StatusWidget(StatusData& statusData, QWidget* parent)
    : ZelBaseWidget(&statusData, parent, Qt::FramelessWindowHint)
    , m_statusData(statusData)
{
    setCentralWidget(m_statusData.getCentralWidget());
    connect(m_statusData.mainPage(), &StatusMain::closeApp, this, &StatusWidget::closeAppSlot);
}

bool StatusWidget::setUsedVars(int context, bool used)
{
    if (context != 0 || m_statusData.variableContext == 0)
        return true;
    return setUsedVar(m_statusData.variableContext, used, ContextVariableKind);
}

void StatusWidget::slotIdle()
{
    if (!isVisible())
        return;
    const QPointer<StatusWidget> self(this);
    // A host that does not know residents ticks the widget alone.
    m_statusData.slotIdle();
    if (StatusMain* page = m_statusData.mainPage())
        page->idle();
    SysSettingApi::getInstance()->sysSettingLibIdle();
    if (self)
        idleMarker = 0;
}

void StatusWidget::slotUserLevel()
{
    if (DataAccess::getUserLevel() < RequiredUserLevel)
        closeApplication(true);
}

void StatusWidget::closeAppSlot()
{
    closeApplication(false);
}

void StatusWidget::closeApplication(bool forced)
{
    DesktopApi::closeApplication(DesktopApi::pageIdFromClassName(QStringLiteral("fieldbusstatus")), forced);
}
