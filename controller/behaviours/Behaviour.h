#ifndef CONTROLLER_BEHAVIOUR_H
#define CONTROLLER_BEHAVIOUR_H

#include "Faults.h"

#include <QObject>
#include <QString>
#include <QTimer>

#include <functional>
#include <map>
#include <memory>
#include <optional>

struct ControllerParts;

/// One thing that the controller does. It watches variables and files, and answers later, never inside the
/// pendant's call. Each is one class and one line in the table of behaviours (BehaviourTable.cpp).
class Behaviour : public QObject
{
    Q_OBJECT

public:
    /// Simulated delays follow the time scale; real ones do not.
    enum class Pace { Simulated, Real };

    explicit Behaviour(ControllerParts& controllerParts, Pace usualPace = Pace::Simulated)
        : m_parts(controllerParts)
        , m_pace(usualPace)
    {
    }

    /// The controller came up, at power-on or after a restart: take the configuration from the files.
    virtual void restarted() {}
    /// The controller went down. What was delayed is dropped already.
    virtual void wentDown() {}
    /// The pendant stored or removed a file; `path` as the pendant spelled it.
    virtual void fileStored(const QString& path) { Q_UNUSED(path) }
    /// A role was switched while the controller is up, from the panel.
    virtual void rolesChanged() {}
    /// Every 100 ms of the controller's time while it is up.
    virtual void tick() {}

    /// Forgets everything that is delayed.
    void dropDelayed();

protected:
    ControllerParts& parts() const { return m_parts; }
    /// False until the controller first came up, and from `wentDown()` to `restarted()`.
    bool isControllerUp() const;
    /// Whether the controller is up, the role runs and its cable is plugged in.
    bool isInService(const QString& role) const;
    /// Does `action` whenever the cable of the role is plugged in or out.
    void onCable(const QString& role, std::function<void()> action);

    /// Takes requests of the pendant in `variable`: `msec` after one was set does `action`, and sets the
    /// variable back to 0. A request that the pendant takes back before is forgotten; one that `ignoring`
    /// strikes stays set.
    void onRequest(const char* variable, int msec, std::function<void()> action,
                   std::optional<Faults::Fault> ignoring = {});

    /// Does `action` once, `msec` from now, at the behaviour's pace unless told otherwise; a second call with
    /// the same key replaces the first.
    void later(const QString& key, int msec, std::function<void()> action, std::optional<Pace> pace = {});
    void drop(const QString& key);

private:
    struct Delayed
    {
        QTimer timer;
        std::function<void()> action;
    };

    ControllerParts& m_parts;
    Pace m_pace;
    std::map<QString, std::unique_ptr<Delayed>> m_delayed;
};

#endif
