#include "NetPortsFile.h"

#include "ControllerXml.h"
#include "FileStore.h"

namespace {

const QString& path()
{
    static const QString netPorts = QStringLiteral("/application/network/netports.xml");
    return netPorts;
}

pugi::xml_node load(const FileStore& files, const QString& name, pugi::xml_document& document)
{
    QByteArray bytes;
    files.read(path(), bytes);
    return ControllerXml::load(bytes, "NetPorts", document)
        .find_child_by_attribute("Port", "name", name.toUtf8());
}

void setAttribute(pugi::xml_node node, const char* name, const QString& value)
{
    pugi::xml_attribute attribute = node.attribute(name);
    if (!attribute)
        attribute = node.append_attribute(name);
    attribute.set_value(value.toUtf8().constData());
}

} // namespace

NetPort readNetPort(const FileStore& files, const QString& name)
{
    pugi::xml_document document;
    const pugi::xml_node node = load(files, name, document);
    return {QString::fromUtf8(node.attribute("ip").value()),
            QString::fromUtf8(node.attribute("netmask").value())};
}

bool writeNetPort(FileStore& files, const QString& name, const NetPort& port)
{
    pugi::xml_document document;
    const pugi::xml_node node = load(files, name, document);
    if (!node)
        return false;
    setAttribute(node, "ip", port.ip);
    setAttribute(node, "netmask", port.netmask);
    return files.write(path(), ControllerXml::save(document));
}
