#ifndef FINSCLIENTFILE_H
#define FINSCLIENTFILE_H

#include "KeptNumbers.h"

#include <QByteArray>
#include <QString>

namespace pugi {
class xml_document;
}

/// Record of FinsTcpConfig.xml, the FINS client that reads from and writes to a PLC's DM area. Named as the
/// elements.
struct FinsClientConfig
{
    QString ServerIP = QStringLiteral("192.168.1.22"); ///< IPv4 address of the PLC
    QString ServerPort = QStringLiteral("9600");       ///< its TCP port
    int ClientNode = 12;                               ///< FINS node number of the controller
    int AutoConnect = 0;                               ///< 1: connects by itself
    int ReadDmAddress = 1000;                          ///< first DM word read from the PLC
    int WriteDmAddress = 5000;                         ///< first DM word written to the PLC
    int IpPortIndex = 1;                               ///< network port of the controller: 0 ETH2, else ETH3
    KeptNumbers kept = {};                             ///< by element
};

namespace FinsClientFile {

/// False, and the record as it was, when `content` is no XML. `recognised`: whether any of its elements is
/// there.
bool read(const QByteArray& content, FinsClientConfig& record, bool* recognised = nullptr);
/// From a document that is parsed already.
void readFrom(const pugi::xml_document& document, FinsClientConfig& record);

/// A new file with the record and the time of writing.
QByteArray written(const FinsClientConfig& record);

} // namespace FinsClientFile

#endif
