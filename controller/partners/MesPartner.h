#ifndef CONTROLLER_MESPARTNER_H
#define CONTROLLER_MESPARTNER_H

#include "FramedSocket.h"
#include "Partner.h"

#include <QTimer>

class MesServer;

/// A manufacturing execution system: a client of the robot's MES server, which it has started when it does
/// not run. A connection that is lost is made again.
class MesPartner : public Partner
{
    Q_OBJECT

public:
    MesPartner(ControllerParts& parts, const MesServer& server);

    /// Sends `messages` texts of 1000 bytes at once; nothing while it is not connected.
    void flood(int messages);

    /// Gives the robot's server a port that is free on this machine; it counts when it is started next.
    void moveServer();

    bool start() override;
    void stop() override;
    bool isRunning() const override { return m_timer.isActive(); }
    QString state() const override;

private:
    void follow();
    void call();

    const MesServer& m_server;
    FramedSocket m_socket;
    QTimer m_timer;
    QTimer m_late; ///< a call that a fault holds back
    QTimer m_drop; ///< a connection that a fault cuts
};

#endif
