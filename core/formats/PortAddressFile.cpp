#include "PortAddressFile.h"

#include "KeptXml.h"

#include <QSet>

#include <algorithm>

bool PortAddressFile::read(const QByteArray& bytes, std::vector<PortAddress>& ports)
{
    pugi::xml_document document;
    return KeptXml::load(bytes, "NetPorts", document) && readFrom(document, ports);
}

bool PortAddressFile::readFrom(const pugi::xml_document& document, std::vector<PortAddress>& ports)
{
    const pugi::xml_node root = document.child("NetPorts");
    if (!root)
        return false;
    ports.clear();
    QSet<QString> known;
    for (const pugi::xml_node node : root.children("Port")) {
        const QString name = KeptXml::text(node.attribute("name"));
        if (name.isEmpty() || known.contains(name))
            continue;
        known.insert(name);
        ports.push_back(
            {name, KeptXml::text(node.attribute("ip")), KeptXml::text(node.attribute("netmask"))});
    }
    return true;
}

const char* PortAddressFile::nameOf(int index)
{
    return index == 0 ? "ETH2" : "ETH3";
}

const PortAddress* PortAddressFile::portOf(const std::vector<PortAddress>& ports, int index)
{
    const QLatin1String name(nameOf(index));
    const auto found = std::find_if(ports.begin(), ports.end(),
                                    [name](const PortAddress& port) { return port.name == name; });
    return found == ports.end() ? nullptr : &*found;
}
