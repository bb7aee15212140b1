#ifndef CONTROLLER_LINKSTATES_H
#define CONTROLLER_LINKSTATES_H

#include "Behaviour.h"

#include <QSet>

/// The link states of the bus roles: a link is up when its role runs and its simulated cable is plugged in.
/// A cable stays as it is over a restart.
class LinkStates : public Behaviour
{
    Q_OBJECT

public:
    explicit LinkStates(ControllerParts& controllerParts);

    /// Plugs or unplugs the cable of a role ("EtherCatSlave"); false when there is no such role.
    bool setCablePlugged(const QString& role, bool plugged);
    bool isCablePlugged(const QString& role) const { return !m_unplugged.contains(role); }

    void restarted() override { update(); }
    void rolesChanged() override { update(); }
    void wentDown() override;

private:
    void update();

    QSet<QString> m_unplugged;
};

#endif
