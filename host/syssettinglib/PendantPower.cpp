#include "PendantPower.h"

PendantPower& PendantPower::instance()
{
    static PendantPower power;
    return power;
}

void PendantPower::requestRestart()
{
    ++m_restartRequests;
    QMetaObject::invokeMethod(this, &PendantPower::restartRequested, Qt::QueuedConnection);
}
