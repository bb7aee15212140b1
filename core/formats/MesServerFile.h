#ifndef MESSERVERFILE_H
#define MESSERVERFILE_H

#include "KeptNumbers.h"

#include <QByteArray>
#include <QString>

namespace pugi {
class xml_document;
}

/// Record of TcpServerConfig.xml, the server for a manufacturing execution system. Named as the elements.
struct MesServerConfig
{
    QString Port = QStringLiteral("8008"); ///< TCP port on which the controller listens, as it was typed
    int Mode = 0;                          ///< 0 ask, 1 broadcast
    int Protocol = 0;                      ///< 0 robot, 1 auxiliary
    int IntervalTime = 100;                ///< ms, 0 to 9999 on the page
    int IpPortIndex = 1;                   ///< network port of the controller: 0 ETH2, else ETH3
    KeptNumbers kept = {};                 ///< by element
};

namespace MesServerFile {

/// False, and the record as it was, when `content` is no XML. `recognised`: whether any of its elements is
/// there.
bool read(const QByteArray& content, MesServerConfig& record, bool* recognised = nullptr);
/// From a document that is parsed already.
void readFrom(const pugi::xml_document& document, MesServerConfig& record);

/// A new file with the record and the time of writing.
QByteArray written(const MesServerConfig& record);

} // namespace MesServerFile

#endif
