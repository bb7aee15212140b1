#include "SimulatedController.h"

#include "BehaviourTable.h"
#include "FieldbusManager.h"
#include "LinkStates.h"
#include "ModbusSlave.h"
#include "Partners.h"

#include <utility>

namespace {

constexpr int TickMs = 100;

// Other bytes of the same length, which are neither markup nor a keyword.
QByteArray garbageOf(QByteArray content)
{
    for (char& byte : content)
        byte = static_cast<char>(byte ^ 0x5a);
    return content;
}

} // namespace

SimulatedController::SimulatedController(const QString& storeDirectory, QObject* parent)
    : ControllerLink(parent)
    , m_parts(storeDirectory)
    , m_behaviours(makeBehaviours(m_parts))
    , m_partners(std::make_unique<Partners>(*this, m_parts))
{
    connect(&m_parts.variables, &VariableStore::changed, this, &SimulatedController::markChanged);
    connect(&m_tick, &QTimer::timeout, this, [this] {
        for (const auto& behaviour : m_behaviours)
            behaviour->tick();
    });
    m_powerTimer.setSingleShot(true);
    connect(&m_powerTimer, &QTimer::timeout, this, [this] {
        if (isUp())
            goDown();
        else
            comeUp();
    });
    comeUp();
}

SimulatedController::~SimulatedController() = default;

bool SimulatedController::fetchFile(const QString& ctrlPath, QByteArray& content)
{
    QByteArray bytes;
    const bool success = isUp() && !m_parts.faults.strikes(Faults::FetchFails, ctrlPath) &&
                         m_parts.files.read(ctrlPath, bytes);
    m_parts.traffic.addTransfer(Traffic::Fetch, ctrlPath, success);
    if (!success)
        return false;
    if (m_parts.faults.strikes(Faults::FetchCutShort, ctrlPath))
        bytes.truncate(bytes.size() / 2);
    if (m_parts.faults.strikes(Faults::FetchEmpty, ctrlPath))
        bytes.clear();
    if (m_parts.faults.strikes(Faults::FetchGarbage, ctrlPath))
        bytes = garbageOf(bytes);
    content = bytes;
    return true;
}

bool SimulatedController::storeFile(const QString& ctrlPath, const QByteArray& content)
{
    const bool success = isUp() && !m_parts.faults.strikes(Faults::SendFails, ctrlPath) &&
                         m_parts.files.write(ctrlPath, content);
    m_parts.traffic.addTransfer(Traffic::Store, ctrlPath, success);
    if (success) {
        for (const auto& behaviour : m_behaviours)
            behaviour->fileStored(ctrlPath);
    }
    return success;
}

bool SimulatedController::removeFile(const QString& ctrlPath)
{
    const bool success = isUp() && m_parts.files.remove(ctrlPath);
    m_parts.traffic.addTransfer(Traffic::Remove, ctrlPath, success);
    if (success) {
        for (const auto& behaviour : m_behaviours)
            behaviour->fileStored(ctrlPath);
    }
    return success;
}

bool SimulatedController::bindVariable(const QString& name, VariableType type, int count)
{
    return m_parts.variables.isKnown(name, type, count);
}

bool SimulatedController::subscribe(const QString& name, int element, bool on)
{
    if (!m_parts.variables.contains(name, element))
        return false;
    if (!on) {
        m_subscribed.remove({name, element});
        return true;
    }
    if (m_parts.faults.strikes(Faults::VariableNotOffered, name))
        return false;
    m_subscribed.insert({name, element});
    return true;
}

double SimulatedController::readVariable(const QString& name, int element) const
{
    return m_parts.variables.value(name, element);
}

void SimulatedController::writeVariable(const QString& name, int element, double value)
{
    if (!isUp()) {
        // The write is lost. The pendant holds the value that it wrote, so it is told the true one.
        markChanged(name, element);
        return;
    }
    m_parts.traffic.addWrite(name, element, value);
    m_parts.variables.changedByPendant(name, element, value);
}

void SimulatedController::markChanged(const QString& name, int element)
{
    if (!m_subscribed.contains({name, element}))
        return;
    if (m_changed.isEmpty())
        QMetaObject::invokeMethod(this, &SimulatedController::notifyChanges, Qt::QueuedConnection);
    if (!m_changed.contains({name, element}))
        m_changed.append({name, element});
}

void SimulatedController::notifyChanges()
{
    const QVector<Element> changedElements = std::exchange(m_changed, {});
    for (const auto& [name, element] : changedElements) {
        // A slot that was called before may have ended the subscription.
        if (m_subscribed.contains({name, element}))
            emit variableChanged(name, element, m_parts.variables.value(name, element));
    }
}

void SimulatedController::requestRestart()
{
    // The timer runs from the request until the controller is up again.
    const bool taken =
        !m_powerTimer.isActive() && m_restartAllowed && !m_parts.faults.strikes(Faults::RestartIgnored);
    m_parts.traffic.addRestartRequest(taken);
    if (!taken)
        return;
    m_powerTimer.start(0);
}

void SimulatedController::goDown()
{
    m_parts.isUp = false;
    m_tick.stop();
    m_robotRunning = false;
    m_servoOn = false;
    for (const auto& behaviour : m_behaviours) {
        behaviour->dropDelayed();
        behaviour->wentDown();
    }
    m_powerTimer.start(m_parts.time.real(m_restartDuration));
    emit stateChanged();
}

void SimulatedController::comeUp()
{
    m_parts.isUp = true;
    for (const auto& behaviour : m_behaviours)
        behaviour->restarted();
    startTicking();
    emit stateChanged();
    m_partners->robotCameUp();
}

void SimulatedController::startTicking()
{
    m_tick.start(m_parts.time.real(TickMs));
}

void SimulatedController::setRobotRunning(bool running)
{
    if (m_robotRunning == running)
        return;
    m_robotRunning = running;
    emit stateChanged();
}

void SimulatedController::setServoOn(bool on)
{
    if (m_servoOn == on)
        return;
    m_servoOn = on;
    emit stateChanged();
}

void SimulatedController::setTimeScale(double scale)
{
    m_parts.time.setScale(scale);
    if (m_tick.isActive())
        startTicking();
}

bool SimulatedController::setRoleOn(const QString& role, bool on)
{
    if (!isUp() || !behaviour<FieldbusManager>().switchRole(role, on))
        return false;
    for (const auto& candidate : m_behaviours)
        candidate->rolesChanged();
    return true;
}

bool SimulatedController::setLinkUp(const QString& role, bool up)
{
    return behaviour<LinkStates>().setCablePlugged(role, up);
}

void SimulatedController::setModbusPort(int port)
{
    behaviour<ModbusSlave>().setPort(port);
}

int SimulatedController::modbusPort() const
{
    return behaviour<ModbusSlave>().port();
}
