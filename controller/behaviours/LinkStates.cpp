#include "LinkStates.h"

#include "ControllerParts.h"

#include <algorithm>

namespace {
const QString& communicationState()
{
    static const QString name = QStringLiteral("ifidbus.commun_state");
    return name;
}
} // namespace

LinkStates::LinkStates(ControllerParts& controllerParts)
    : Behaviour(controllerParts)
{
    // A cell in which everything is well would not show what a lost link looks like.
    parts().links.setPlugged(QStringLiteral("EtherNetIPSlave"), false);
    connect(&parts().links, &Links::cableChanged, this, &LinkStates::update);
    connect(&parts().links, &Links::partnerChanged, this, &LinkStates::update);
}

bool LinkStates::setCablePlugged(const QString& role, bool plugged)
{
    const bool known =
        std::any_of(LinkedBusRoles.begin(), LinkedBusRoles.end(),
                    [&role](const BusRole& candidate) { return role == QLatin1String(candidate.name); });
    if (known)
        parts().links.setPlugged(role, plugged);
    return known;
}

bool LinkStates::isCablePlugged(const QString& role) const
{
    return parts().links.isPlugged(role);
}

void LinkStates::restarted()
{
    update();
}

void LinkStates::wentDown()
{
    for (const BusRole& role : LinkedBusRoles)
        parts().variables.set(QLatin1String(role.linkVariable), 0.0);
    parts().variables.set(communicationState(), 0.0);
}

void LinkStates::update()
{
    if (!isControllerUp())
        return;
    int communication = 0;
    for (const BusRole& role : LinkedBusRoles) {
        const bool up = parts().roles.isOn(role.name) && parts().links.isUp(QLatin1String(role.name));
        parts().variables.set(QLatin1String(role.linkVariable), up ? 1.0 : 0.0);
        if (up && role.communicationBit >= 0)
            communication |= 1 << role.communicationBit;
    }
    parts().variables.set(communicationState(), communication);
}
