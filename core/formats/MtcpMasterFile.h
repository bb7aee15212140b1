#ifndef MTCPMASTERFILE_H
#define MTCPMASTERFILE_H

#include <QByteArray>
#include <QString>

namespace pugi {
class xml_document;
}

/// Record of mtcp_master.xml, the Modbus TCP master's connection to its slave. Named as the elements of the
/// file; texts as they stand there.
struct MtcpMasterConfig
{
    QString SlaveIp;     ///< IPv4 address
    QString SlavePort;   ///< TCP port, 0 to 65535
    QString SlaveId;     ///< unit identifier, 0 to 125
    QString TimeOut;     ///< seconds, 0.1 to 10
    QString ReadEndian;  ///< byte order of read data: the decimal index of the page's choice
    QString WriteEndian; ///< byte order of written data, as ReadEndian
    QString Alivetime;   ///< keep-alive time; no page edits it, and it is written as it was read
};

namespace MtcpMasterFile {

/// False, and the record as it was, when `content` is no XML. `recognised`: whether any of its elements is
/// there.
bool read(const QByteArray& content, MtcpMasterConfig& record, bool* recognised = nullptr);
/// From a document that is parsed already.
void readFrom(const pugi::xml_document& document, MtcpMasterConfig& record);

/// A new file with the record and the time of writing.
QByteArray written(const MtcpMasterConfig& record);

} // namespace MtcpMasterFile

#endif
