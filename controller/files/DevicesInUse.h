#ifndef CONTROLLER_DEVICESINUSE_H
#define CONTROLLER_DEVICESINUSE_H

#include <QByteArray>

/// Whether "override.cfg" has the device called `name` in use: a directive that would switch it off is there,
/// behind a semicolon, and none that does.
bool isDeviceInUse(const QByteArray& overrideCfg, const QByteArray& name);
/// The file with that device in use: a semicolon in front of every directive that switches it off.
QByteArray withDeviceInUse(const QByteArray& overrideCfg, const QByteArray& name);

#endif
