#ifndef EIPSLAVEFILE_H
#define EIPSLAVEFILE_H

#include <QString>

/// Record of dns-1.cfg, the driver file of the EtherNet/IP slave. Named as the keywords of the file.
struct EipSlaveConfig
{
    QString IPADDR;                                      ///< IPv4 address; empty: no network port chosen
    QString NETMASK;                                     ///< as IPADDR
    QString EipEndian = QStringLiteral("LITTLE_ENDIAN"); ///< byte order of the process data
};

#endif
