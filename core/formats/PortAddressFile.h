#ifndef PORTADDRESSFILE_H
#define PORTADDRESSFILE_H

#include <QByteArray>
#include <QString>

#include <vector>

namespace pugi {
class xml_document;
}

/// A network port of the controller; both texts are empty while it has no address.
struct PortAddress
{
    QString name; ///< "ETH2", "ETH3"
    QString ip;
    QString netmask;
};

/// netports.xml: the network ports and their addresses. The controller writes it.
namespace PortAddressFile {

/// In file order; an entry without a name is passed over, and of two with one name the first counts. False
/// (and `ports` untouched) when the bytes are not well-formed or have another root.
bool read(const QByteArray& bytes, std::vector<PortAddress>& ports);
/// From a document that is parsed already.
bool readFrom(const pugi::xml_document& document, std::vector<PortAddress>& ports);

/// Name of the port that the files of the host links count as `index`: 0 is ETH2, everything else ETH3.
const char* nameOf(int index);

/// That port; null when the controller does not have it.
const PortAddress* portOf(const std::vector<PortAddress>& ports, int index);

} // namespace PortAddressFile

#endif
