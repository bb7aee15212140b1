#ifndef HOST_USERSESSION_H
#define HOST_USERSESSION_H

#include <QObject>

/// Who is logged in at the pendant.
class UserSession : public QObject
{
    Q_OBJECT

public:
    static UserSession& instance();

    /// Higher is more privileged; the desktop starts as level 4, which may do everything.
    int userLevel() const { return m_userLevel; }
    void setUserLevel(int level);

signals:
    void userLevelChanged(int level);

private:
    UserSession() = default;

    int m_userLevel = 4;
};

#endif
