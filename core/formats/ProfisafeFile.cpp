#include "ProfisafeFile.h"

#include "KeptXml.h"

namespace {

QMap<int, QString> readBits(const pugi::xml_node& block)
{
    QMap<int, QString> bits;
    for (const pugi::xml_node bit : block.children("Bit")) {
        if (const auto number = KeptXml::number(bit.attribute("number"), ProfisafeDescription::MostBit))
            bits.insert(static_cast<int>(*number), KeptXml::text(bit.attribute("text")));
    }
    return bits;
}

} // namespace

bool ProfisafeFile::read(const QByteArray& bytes, ProfisafeDescription& description)
{
    pugi::xml_document document;
    const pugi::xml_node root = KeptXml::load(bytes, "ProfiSafe", document);
    if (!root)
        return false;
    description = {readBits(root.child("Output")), readBits(root.child("Input"))};
    return true;
}
