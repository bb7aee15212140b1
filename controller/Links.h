#ifndef CONTROLLER_LINKS_H
#define CONTROLLER_LINKS_H

#include <QMap>
#include <QObject>
#include <QSet>
#include <QString>

/// What the links of the bus roles hang on: the simulated cable of each and, for a role that talks to a real
/// partner over a socket, whether that partner is there. Both stay as they are over a restart.
class Links : public QObject
{
    Q_OBJECT

public:
    bool isPlugged(const QString& role) const { return !m_unplugged.contains(role); }
    void setPlugged(const QString& role, bool plugged);

    /// Only for roles with a real partner; every other role's partner is simulated and always there.
    void setPartner(const QString& role, bool present);
    /// Whether the cable is plugged in and the partner is there.
    bool isUp(const QString& role) const { return isPlugged(role) && m_partners.value(role, true); }

signals:
    /// A cable was plugged in or out.
    void cableChanged(const QString& role);
    /// A partner came or went.
    void partnerChanged(const QString& role);

private:
    QSet<QString> m_unplugged;
    QMap<QString, bool> m_partners;
};

#endif
