#include "SlaveModuleFile.h"

#include "KeptXml.h"

namespace {

constexpr const char* RootElement = "FbSlave";
constexpr const char* EndianElement = "Endian";

// As the controller spells it, empty when it is none.
QByteArray byteOrder(const QString& text)
{
    for (const char* order : {"littleEndian", "bigEndian"}) {
        if (text.trimmed().compare(QLatin1String(order), Qt::CaseInsensitive) == 0)
            return order;
    }
    return {};
}

} // namespace

bool SlaveModuleFile::read(const QByteArray& bytes, QString& endian)
{
    pugi::xml_document document;
    return KeptXml::load(bytes, RootElement, document) && readFrom(document, endian);
}

bool SlaveModuleFile::readFrom(const pugi::xml_document& document, QString& endian)
{
    const pugi::xml_node root = document.child(RootElement);
    const QByteArray order = byteOrder(QString::fromUtf8(root.child(EndianElement).text().get()));
    if (!order.isEmpty())
        endian = QLatin1String(order);
    return !order.isEmpty();
}

QByteArray SlaveModuleFile::rewritten(const QByteArray& bytes, const QString& endian)
{
    pugi::xml_document document;
    pugi::xml_node root = KeptXml::load(bytes, RootElement, document);
    const QByteArray order = byteOrder(endian);
    if (!root || order.isEmpty())
        return {};
    pugi::xml_node node = root.child(EndianElement);
    if (!node)
        node = root.append_child(EndianElement);
    node.text().set(order.constData());
    return KeptXml::save(document);
}
