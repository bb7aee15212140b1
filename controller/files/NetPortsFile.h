#ifndef CONTROLLER_NETPORTSFILE_H
#define CONTROLLER_NETPORTSFILE_H

#include <QString>

class FileStore;

/// A network port of "netports.xml"; both texts are empty when it has no address.
struct NetPort
{
    QString ip;
    QString netmask;
};

/// The port called `name` ("ETH2", "ETH3"); without an address when the file does not have it.
NetPort readNetPort(const FileStore& files, const QString& name);
/// Gives it another address, or none; false when the file does not have it.
bool writeNetPort(FileStore& files, const QString& name, const NetPort& port);

#endif
