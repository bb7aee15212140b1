#ifndef DEVICENETSLAVEFILE_H
#define DEVICENETSLAVEFILE_H

#include <QString>

/// Record of devicenetSlave.xml, named as its elements.
struct DeviceNetSlaveConfig
{
    QString Dns_BAUDRATE; ///< kbps: "125", "250" or "500"
    QString Dns_MACID;    ///< even, "2" to "62"
};

#endif
