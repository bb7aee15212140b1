#ifndef EIPSLAVEFILE_H
#define EIPSLAVEFILE_H

#include <QByteArray>
#include <QString>

/// Record of dns-1.cfg, the driver file of the EtherNet/IP slave. Named as the keywords of the file.
struct EipSlaveConfig
{
    QString IPADDR;                                      ///< IPv4 address; empty: no network port chosen
    QString NETMASK;                                     ///< as IPADDR
    QString EipEndian = QStringLiteral("LITTLE_ENDIAN"); ///< byte order of the process data
};

namespace EipSlaveFile {

/// False when `content` is empty. A line that the file lacks leaves its field as it was.
/// `recognised`: whether any of its keywords is there.
bool read(const QByteArray& content, EipSlaveConfig& record, bool* recognised = nullptr);

/// The file with the record's address, mask and byte order. The free and the fixed variant get the byte order
/// alone: SlaveTextFile::rewritten.
QByteArray rewritten(const QByteArray& content, const EipSlaveConfig& record);

} // namespace EipSlaveFile

#endif
