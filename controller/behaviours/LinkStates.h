#ifndef CONTROLLER_LINKSTATES_H
#define CONTROLLER_LINKSTATES_H

#include "Behaviour.h"

/// The link states of the bus roles: a link is up when its role runs, its simulated cable is plugged in and,
/// where the partner is a real one (`Links`), that is connected. A cable stays as it is over a restart.
class LinkStates : public Behaviour
{
    Q_OBJECT

public:
    explicit LinkStates(ControllerParts& controllerParts);

    /// Plugs or unplugs the cable of a role ("EtherCatSlave"); false when there is no such role.
    bool setCablePlugged(const QString& role, bool plugged);
    bool isCablePlugged(const QString& role) const;

    void restarted() override;
    void rolesChanged() override { update(); }
    void wentDown() override;

private:
    void update();
};

#endif
