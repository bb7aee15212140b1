#ifndef CONTROLLER_FIELDBUSMANAGER_H
#define CONTROLLER_FIELDBUSMANAGER_H

#include "Behaviour.h"
#include "RoleFiles.h"

#include <QMap>

/// The controller's fieldbus manager: takes the open and close commands, answers the handshakes by which the
/// pendant announces files, reloads the heartbeat file, and runs the roles of "fieldbus.xml" after a restart.
class FieldbusManager : public Behaviour
{
    Q_OBJECT

public:
    /// Delays of the late answers, in real milliseconds: the pendant's own time-outs (15 s for the mapping;
    /// 5.5 s for the DeviceNet slave, 6.5 s the first time) know no time scale either.
    static constexpr int MappingLateMs = 14750;
    static constexpr int SlaveLateMs = 5250;

    explicit FieldbusManager(ControllerParts& controllerParts);

    /// What the last good heartbeat file says of a role ("EtherCatSlave").
    HeartbeatWatch watchOf(const QString& role) const { return m_watches.value(role); }
    /// Announced heartbeat files that were read, and those that could not be.
    int heartbeatReloads() const { return m_heartbeatReloads; }
    int heartbeatFailures() const { return m_heartbeatFailures; }

    /// Roles that were asked to open (true) or close at the next restart, by a command that was taken.
    const QMap<QString, bool>& wishedRoles() const { return m_wishes; }
    /// What was wrong with the last announced mapping file; empty when it was taken or rejected by a fault.
    QString mappingComplaint() const { return m_mappingComplaint; }

    /// Switches a role in "fieldbus.xml" and runs it at once; false when the file does not have it.
    bool switchRole(const QString& role, bool on);

    void restarted() override;
    void fileStored(const QString& path) override;

    struct FileAnswer; ///< how an announced file is answered

private:
    void answerBusType(int state);
    void answerUpdateState(int state);
    void answerLater(const FileAnswer& answer, std::function<void()> take);
    void takeMapping();
    void takeSlaveFile();
    bool readHeartbeatFile();
    void readRoleFile();

    QMap<QString, HeartbeatWatch> m_watches;
    QMap<QString, bool> m_wishes;
    bool m_mappingStored = false; ///< and not answered since
    QString m_mappingComplaint;
    int m_heartbeatReloads = 0;
    int m_heartbeatFailures = 0;
};

#endif
