#include "UserSession.h"

UserSession& UserSession::instance()
{
    static UserSession session;
    return session;
}

void UserSession::setUserLevel(int level)
{
    if (level == m_userLevel)
        return;
    m_userLevel = level;
    emit userLevelChanged(level);
}
