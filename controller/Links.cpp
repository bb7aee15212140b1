#include "Links.h"

void Links::setPlugged(const QString& role, bool plugged)
{
    if (isPlugged(role) == plugged)
        return;
    if (plugged)
        m_unplugged.remove(role);
    else
        m_unplugged.insert(role);
    emit cableChanged(role);
}

void Links::setPartner(const QString& role, bool present)
{
    if (m_partners.contains(role) && m_partners.value(role) == present)
        return;
    m_partners.insert(role, present);
    emit partnerChanged(role);
}
