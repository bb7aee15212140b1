#ifndef HOST_PENDANTPOWER_H
#define HOST_PENDANTPOWER_H

#include <QObject>

/// The pendant's own restart, asked for by an application and carried out by the desktop window.
class PendantPower : public QObject
{
    Q_OBJECT

public:
    static PendantPower& instance();

    /// `restartRequested` follows on a later event-loop turn.
    void requestRestart();
    /// Number of requests so far.
    int restartRequests() const { return m_restartRequests; }

signals:
    void restartRequested();

private:
    PendantPower() = default;

    int m_restartRequests = 0;
};

#endif
