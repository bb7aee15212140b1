#ifndef CONTROLLER_CONTROLLERCLOCK_H
#define CONTROLLER_CONTROLLERCLOCK_H

#include "Behaviour.h"

#include <QElapsedTimer>

/// "ifidbus.current_time": seconds that the controller has been up. It stands still while the controller is
/// down, which is how the pendant sees that a restart was taken, and goes on from there afterwards.
class ControllerClock : public Behaviour
{
    Q_OBJECT

public:
    using Behaviour::Behaviour;

    void restarted() override;
    void tick() override;

private:
    QElapsedTimer m_sinceTick;
};

#endif
