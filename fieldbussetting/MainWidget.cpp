#include "MainWidget.h"

#include "BaseZelCustomData.h"
#include "ControllerVariables.h"
#include "DataAccess.h"
#include "DesktopApi.h"
#include "FbMainWidget.h"
#include "ZelCustomData.h"

#include <QPointer>

namespace {

constexpr int RequiredUserLevel = 3;
constexpr unsigned ContextVariableKind = 8; // the host's flag for the variables of a project

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
    return ControllerVariables::useHostGroups(used);
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
    // Every request is passed on, also when one is under way: the host may refuse any of them.
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
