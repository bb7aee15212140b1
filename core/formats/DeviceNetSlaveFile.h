#ifndef DEVICENETSLAVEFILE_H
#define DEVICENETSLAVEFILE_H

#include <QByteArray>
#include <QString>

namespace pugi {
class xml_document;
}

/// Record of devicenetSlave.xml, named as its elements.
struct DeviceNetSlaveConfig
{
    QString Dns_BAUDRATE; ///< kbps: "125", "250" or "500"
    QString Dns_MACID;    ///< even, "2" to "62"
};

namespace DeviceNetSlaveFile {

/// False, and the record as it was, when `content` is no XML. `recognised`: whether any of its elements is
/// there.
bool read(const QByteArray& content, DeviceNetSlaveConfig& record, bool* recognised = nullptr);
/// From a document that is parsed already.
void readFrom(const pugi::xml_document& document, DeviceNetSlaveConfig& record);

/// A new file with the record and the time of writing.
QByteArray written(const DeviceNetSlaveConfig& record);

} // namespace DeviceNetSlaveFile

#endif
