#ifndef CONTROLLER_MESPARTNER_H
#define CONTROLLER_MESPARTNER_H

#include "CallingPartner.h"

class MesServer;

/// A manufacturing execution system: a client of the robot's MES server, which it has started when it does
/// not run.
class MesPartner : public CallingPartner
{
    Q_OBJECT

public:
    MesPartner(ControllerParts& parts, const MesServer& server);

    /// Sends `messages` texts of 1000 bytes at once; nothing while it is not connected.
    void flood(int messages);

    /// Gives the robot's server a port that is free on this machine; it counts when it is started next.
    void moveServer();

    void invite() override;

protected:
    int robotPort() const override;
    void attend(bool /*isNew*/) override {}

private:
    const MesServer& m_server;
};

#endif
