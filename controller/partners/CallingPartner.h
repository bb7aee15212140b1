#ifndef CONTROLLER_CALLINGPARTNER_H
#define CONTROLLER_CALLINGPARTNER_H

#include "Faults.h"
#include "FramedSocket.h"
#include "Partner.h"

#include <QTimer>

/// The faults that hit a partner which calls the robot.
struct CallFaults
{
    Faults::Fault silent;
    Faults::Fault slow;  ///< number: milliseconds
    Faults::Fault drops; ///< number: milliseconds that a connection lasts
    Faults::Fault garbage;
};

/// A partner that calls a server of the robot, and calls again when the connection is lost.
class CallingPartner : public Partner
{
    Q_OBJECT

public:
    CallingPartner(ControllerParts& parts, const char* name, Wire::Id wire, const CallFaults& faults);

    bool start() override;
    void stop() override;
    bool isRunning() const override { return m_look.isActive(); }
    QString state() const override;

protected:
    /// Where the robot serves, 0 while it does not.
    virtual int robotPort() const = 0;
    /// The connection stands; `isNew` the first time.
    virtual void attend(bool isNew) = 0;
    FramedSocket& socket() { return m_socket; }

private:
    void follow();
    void call();

    CallFaults m_faults;
    FramedSocket m_socket;
    QTimer m_look;
    QTimer m_late; ///< a call that a fault holds back
    QTimer m_drop; ///< a connection that a fault cuts
};

#endif
