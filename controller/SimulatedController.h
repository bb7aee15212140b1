#ifndef CONTROLLER_SIMULATEDCONTROLLER_H
#define CONTROLLER_SIMULATEDCONTROLLER_H

#include "Behaviour.h"
#include "ControllerLink.h"
#include "ControllerParts.h"

#include <QPair>
#include <QSet>
#include <QTimer>
#include <QVector>

#include <memory>
#include <vector>

class Partners;

/// A robot controller that lives in a folder: files, variables, and behaviours that answer what the pendant
/// writes. Nothing happens inside a call of the pendant but what the call itself asks for; every answer comes
/// from a timer.
class SimulatedController : public ControllerLink
{
    Q_OBJECT

public:
    /// The controller's file system lies in `storeDirectory`; an empty or missing folder is filled with the
    /// factory files. The controller is up at once.
    explicit SimulatedController(const QString& storeDirectory, QObject* parent = nullptr);
    ~SimulatedController() override;

    /// Why the folder cannot serve as file system; empty when it can.
    QString error() const { return m_parts.files.error(); }

    bool fetchFile(const QString& ctrlPath, QByteArray& content) override;
    bool storeFile(const QString& ctrlPath, const QByteArray& content) override;
    bool removeFile(const QString& ctrlPath) override;
    bool bindVariable(const QString& name, VariableType type, int count) override;
    bool subscribe(const QString& name, int element, bool on) override;
    double readVariable(const QString& name, int element = 0) const override;
    void writeVariable(const QString& name, int element, double value) override;
    bool isRobotRunning() const override { return m_robotRunning; }
    bool isServoOn() const override { return m_servoOn; }
    bool isUp() const override { return m_parts.isUp; }
    bool isRestartAllowed() const override { return m_restartAllowed; }
    /// Without effect while the restart is not allowed, or the controller is going down already.
    void requestRestart() override;

    void setRobotRunning(bool running);
    void setServoOn(bool on);
    void setRestartAllowed(bool allowed) { m_restartAllowed = allowed; }
    /// How long the controller stays down, in simulated milliseconds. 4000 at start.
    void setRestartDuration(int msec) { m_restartDuration = msec; }
    /// 10 makes clock and delays ten times faster; a scale that is not above 0 is ignored.
    void setTimeScale(double scale);
    /// Real milliseconds that `msec` of the controller take.
    int realTime(int msec) const { return m_parts.time.real(msec); }

    Faults& faults() { return m_parts.faults; }
    Traffic& traffic() { return m_parts.traffic; }
    FileStore& files() { return m_parts.files; }
    VariableStore& variables() { return m_parts.variables; }
    /// What its links carried.
    FrameLog& frames() { return m_parts.frames; }
    /// Whom its links lead to. All are off at the start.
    Partners& partners() { return *m_partners; }
    /// The roles that run at present.
    const BusRoles& roles() const { return m_parts.roles; }
    /// Switches a role on or off at once and in "fieldbus.xml", as nobody but the panel can; false when the
    /// file does not have it.
    bool setRoleOn(const QString& role, bool on);
    /// Plugs or unplugs the simulated cable of a bus role ("EtherCatSlave"); false when it has none.
    bool setLinkUp(const QString& role, bool up);
    /// Opens the Modbus TCP slave to clients on this machine, at TCP port `port`, 0 for any free one. Until
    /// then no port of the machine is taken.
    void setModbusPort(int port);
    /// The port that the Modbus TCP slave serves, 0 while it serves none.
    int modbusPort() const;

    /// The behaviour of type `T`; every type in the table of behaviours is there.
    template <typename T>
    T& behaviour() const
    {
        for (const std::unique_ptr<Behaviour>& candidate : m_behaviours) {
            if (T* const found = dynamic_cast<T*>(candidate.get()))
                return *found;
        }
        qFatal("the controller has no such behaviour");
    }

private:
    using Element = QPair<QString, int>;

    void markChanged(const QString& name, int element);
    void notifyChanges();
    void goDown();
    void comeUp();
    void startTicking();

    ControllerParts m_parts;
    std::vector<std::unique_ptr<Behaviour>> m_behaviours;
    std::unique_ptr<Partners> m_partners;
    QSet<Element> m_subscribed;
    QVector<Element> m_changed; ///< waits for the next event-loop turn
    QTimer m_tick;
    QTimer m_powerTimer; ///< until it goes down, or comes up
    int m_restartDuration = 4000;
    bool m_robotRunning = false;
    bool m_servoOn = false;
    bool m_restartAllowed = true;
};

#endif
