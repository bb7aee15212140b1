#include "ApplicationSlot.h"

#include "BaseZelCustomData.h"
#include "Desktop.h"
#include "HostLog.h"
#include "PendantApplication.h"
#include "UserSession.h"
#include "VariableContext.h"
#include "ZelBaseWidget.h"

#include <QFileInfo>
#include <QScopedValueRollback>
#include <QThread>

namespace {
constexpr int IdlePeriodMs = 100;
constexpr int ReaperPeriodMs = 5;
} // namespace

ApplicationSlot::ApplicationSlot(const ApplicationInfo& info, QWidget* area, QObject* parent)
    : QObject(parent)
    , m_info(info)
    , m_library(info.library)
    , m_pageId(Desktop::instance().addApplication(info.className))
    , m_area(area)
{
    // All symbols at load: one that is missing then gives a message here instead of a crash later.
    m_library.setLoadHints(QLibrary::ResolveAllSymbolsHint);
    m_idle.setInterval(IdlePeriodMs);
    m_reaper.setInterval(ReaperPeriodMs);
    connect(&m_idle, &QTimer::timeout, this, &ApplicationSlot::tick);
    connect(&m_reaper, &QTimer::timeout, this, &ApplicationSlot::deleteWhenIdle);
    connect(&UserSession::instance(), &UserSession::userLevelChanged, this,
            [this] { deliver("slotUserLevel"); });
    connect(&Desktop::instance(), &Desktop::closeRequested, this, [this](int pageId, bool forced) {
        if (pageId == m_pageId)
            close(forced);
    });
    connect(&VariableContext::instance(), &VariableContext::switched, this, [this] {
        if (!m_variablesUsed)
            return;
        switchVariables(false);
        switchVariables(true);
    });
}

ApplicationSlot::~ApplicationSlot()
{
    if (m_state == State::Shown)
        close();
    deleteApplication();
    stopResident();
}

void ApplicationSlot::startResident()
{
    if (!m_info.resident || m_data || !load())
        return;
    m_data.reset(m_createData());
    m_idle.start();
}

bool ApplicationSlot::stopResident()
{
    if (m_state != State::Empty || m_dataTicking)
        return false;
    m_idle.stop();
    m_data.reset();
    return true;
}

bool ApplicationSlot::load()
{
    if (m_createData && m_createWidget)
        return true;
    m_error.clear();
    if (!m_library.load()) {
        m_error = tr("The application could not be loaded: %1").arg(m_library.errorString());
        return false;
    }
    m_createData = reinterpret_cast<CreateData>(m_library.resolve("CreateZelCustomData"));
    m_createWidget = reinterpret_cast<CreateWidget>(m_library.resolve("CreateZelCustomWidget"));
    if (m_createData && m_createWidget)
        return true;
    m_error = tr("%1 is not an application of this pendant: the function %2 is missing.")
                  .arg(QFileInfo(m_library.fileName()).fileName(),
                       m_createData ? QStringLiteral("CreateZelCustomWidget")
                                    : QStringLiteral("CreateZelCustomData"));
    return false;
}

ZelBaseWidget* ApplicationSlot::widget() const
{
    return m_widget;
}

bool ApplicationSlot::open()
{
    if (m_state != State::Empty || !m_area || !load())
        return false;

    startResident();
    if (!m_data)
        m_data.reset(m_createData());
    QWidget* made = m_data ? m_createWidget(m_data.get(), m_area) : nullptr;
    m_widget = qobject_cast<ZelBaseWidget*>(made);
    if (!m_widget) {
        m_error = tr("The application did not start.");
        delete made;
        forgetData();
        return false;
    }

    m_state = State::Shown;
    m_loopLevel = QThread::currentThread()->loopLevel();
    m_widget->setGeometry(m_area->rect());
    m_data->currentWidget = m_widget;
    switchVariables(true);
    m_widget->show();
    m_idle.start();
    emit opened();
    // Whoever is logged in may be nobody that this application admits; it decides that itself.
    deliver("slotUserLevel");
    return true;
}

void ApplicationSlot::close(bool forced)
{
    if (m_state != State::Shown)
        return;
    m_state = State::Leaving;
    if (!m_info.resident)
        m_idle.stop();
    if (m_widget) {
        switchVariables(false);
        m_widget->hide();
    }
    m_data->currentWidget = nullptr;
    m_reaper.start();
    emit closed(forced);
}

void ApplicationSlot::deliver(const char* slot)
{
    if (m_state == State::Shown && m_widget &&
        !QMetaObject::invokeMethod(m_widget, slot, Qt::DirectConnection))
        qCWarning(lcHost) << "the application has no slot" << slot;
}

void ApplicationSlot::tick()
{
    tickData();
    // A tick that waits inside the application is not overtaken by the next one.
    if (m_ticking || m_state != State::Shown || !m_widget || !m_widget->isVisible())
        return;
    const QScopedValueRollback<bool> ticking(m_ticking, true);
    m_widget->idleMarker = 1;
    deliver("slotIdle");
}

// The data of an application need not be an object of Qt's; one that is not gets no ticks.
void ApplicationSlot::tickData()
{
    auto* data = m_info.resident ? dynamic_cast<QObject*>(m_data.get()) : nullptr;
    if (!data || m_dataTicking || data->metaObject()->indexOfSlot("slotIdle()") < 0)
        return;
    const QScopedValueRollback<bool> ticking(m_dataTicking, true);
    QMetaObject::invokeMethod(data, "slotIdle", Qt::DirectConnection);
}

void ApplicationSlot::switchVariables(bool used)
{
    if (!m_widget || m_variablesUsed == used)
        return;
    m_variablesUsed = used;
    if (!m_widget->setUsedVars(0, used))
        qCWarning(lcHost) << "a variable of the application could not be"
                          << (used ? "subscribed" : "released");
}

bool ApplicationSlot::nothingOnTheStack() const
{
    if (qobject_cast<PendantApplication*>(QCoreApplication::instance()))
        return PendantApplication::depth() <= 1;
    // Sees only waits that run an event loop of their own.
    return QThread::currentThread()->loopLevel() <= m_loopLevel;
}

void ApplicationSlot::deleteWhenIdle()
{
    if (!nothingOnTheStack())
        return;
    m_reaper.stop();
    deleteApplication();
    emit left();
}

void ApplicationSlot::deleteApplication()
{
    m_reaper.stop();
    delete m_widget;
    forgetData();
    m_state = State::Empty;
}

void ApplicationSlot::forgetData()
{
    if (!m_info.resident)
        m_data.reset();
}
