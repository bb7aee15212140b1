#ifndef CONTROLLER_ROLEFILES_H
#define CONTROLLER_ROLEFILES_H

#include <QByteArray>
#include <QMap>
#include <QString>

/// Which roles "fieldbus.xml" switches on. False (and `roles` untouched) when it cannot be read.
bool readRoles(const QByteArray& fieldbusXml, QMap<QString, bool>& roles);

/// "fieldbus.xml" with one role switched; empty when it cannot be read or does not have the role.
QByteArray rolesWith(const QByteArray& fieldbusXml, const QString& role, bool on);

/// The bus switch file with the roles as they are; empty when it says so already, or cannot be read. Its
/// order and spelling stay.
QByteArray switchFileWithRoles(const QByteArray& fieldbusCfg, const QMap<QString, bool>& roles);

/// Whether the bytes are a "devicenetSlave.xml".
bool isSlaveFile(const QByteArray& devicenetSlaveXml);

/// What the controller watches of one bus connection.
struct HeartbeatWatch
{
    bool on = false;
    double timeout = 0.0; ///< seconds
};

/// The watched connections of "heartbeat.xml" by role name. False (and `watches` untouched) when it cannot be
/// read.
bool readHeartbeat(const QByteArray& heartbeatXml, QMap<QString, HeartbeatWatch>& watches);

#endif
