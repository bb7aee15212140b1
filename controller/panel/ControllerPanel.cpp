#include "ControllerPanel.h"

#include "DeviceNetTab.h"
#include "DeviceTab.h"
#include "FaultTab.h"
#include "FrameTab.h"
#include "HostLinkTab.h"
#include "LinkTab.h"
#include "LogTab.h"
#include "PartnerTab.h"
#include "RobotTab.h"
#include "SlaveTab.h"
#include "VariableTab.h"

#include <QTabWidget>
#include <QVBoxLayout>

namespace {
constexpr int RefreshMs = 250;
} // namespace

ControllerPanel::ControllerPanel(SimulatedController& controller, const FinsPageAccess& finsPage,
                                 QWidget* parent)
    : QWidget(parent, Qt::Window)
    , m_tabs(new QTabWidget(this))
{
    setObjectName(QStringLiteral("ControllerPanel"));
    setWindowTitle(tr("Simulated controller"));
    resize(1024, 700);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_tabs);

    addTab(new RobotTab(controller), QStringLiteral("robotTab"), tr("Robot"));
    addTab(new LinkTab(controller), QStringLiteral("linkTab"), tr("Links"));
    addTab(new HostLinkTab(controller, finsPage), QStringLiteral("hostLinkTab"), tr("Host links"));
    addTab(new PartnerTab(controller), QStringLiteral("partnerTab"), tr("Partners"));
    addTab(new FrameTab(controller), QStringLiteral("frameTab"), tr("Frames"));
    addTab(new SlaveTab(controller), QStringLiteral("slaveTab"), tr("Slaves"));
    addTab(new DeviceNetTab(controller), QStringLiteral("deviceNetTab"), tr("DeviceNet"));
    addTab(new DeviceTab(controller), QStringLiteral("deviceTab"), tr("Devices"));
    addTab(new VariableTab(controller), QStringLiteral("variableTab"), tr("Variables"));
    addTab(new FaultTab(controller), QStringLiteral("faultTab"), tr("Faults"));
    addTab(new LogTab(controller), QStringLiteral("logTab"), tr("Log"));

    connect(&m_timer, &QTimer::timeout, this, &ControllerPanel::refresh);
    connect(m_tabs, &QTabWidget::currentChanged, this, &ControllerPanel::refresh);
    m_timer.start(RefreshMs);
    refresh();
}

void ControllerPanel::addTab(PanelTab* tab, const QString& objectName, const QString& caption)
{
    tab->setObjectName(objectName);
    m_tabs->addTab(tab, caption);
}

void ControllerPanel::refresh()
{
    if (auto* const tab = qobject_cast<PanelTab*>(m_tabs->currentWidget()))
        tab->refresh();
}
