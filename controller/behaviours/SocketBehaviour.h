#ifndef CONTROLLER_SOCKETBEHAVIOUR_H
#define CONTROLLER_SOCKETBEHAVIOUR_H

#include "Behaviour.h"

/// A behaviour whose partner is outside the simulation, at the other end of a socket. It lives in real time,
/// whatever the time scale says, and tells the log what becomes of its links.
class SocketBehaviour : public Behaviour
{
    Q_OBJECT

public:
    /// `name` begins its lines in the log.
    SocketBehaviour(ControllerParts& controllerParts, const char* name)
        : Behaviour(controllerParts, Pace::Real)
        , m_name(name)
    {
    }

protected:
    /// As `later`, for what is done when nobody answered for `msec`. Only time in which the program could
    /// have seen an answer counts: it is looked at ten times a second, and a look that comes late, after the
    /// program stood still, counts as one.
    void whenUnanswered(const QString& key, int msec, const std::function<void()>& action);
    void note(const QString& text);

private:
    const char* m_name;
};

#endif
