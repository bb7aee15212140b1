#include "KeptXml.h"

#include "AsciiText.h"
#include "KnownFiles.h"

namespace KeptXml {

namespace {

class ByteWriter : public pugi::xml_writer
{
public:
    void write(const void* data, std::size_t size) override
    {
        bytes.append(static_cast<const char*>(data), static_cast<int>(size));
    }
    QByteArray bytes;
};

} // namespace

pugi::xml_node load(const QByteArray& bytes, const char* root, pugi::xml_document& document)
{
    // The parser takes a NUL for the end of the text, and what follows would be lost with the next write.
    if (bytes.size() > KnownFiles::MostBytes || AsciiText::view(bytes).find('\0') != std::string_view::npos)
        return {};
    // As UTF-8 whatever the bytes are: a comment in another encoding comes through as it is.
    if (!document.load_buffer(bytes.constData(), static_cast<std::size_t>(bytes.size()), pugi::parse_full,
                              pugi::encoding_utf8))
        return {};
    return document.child(root);
}

QByteArray save(const pugi::xml_document& document)
{
    ByteWriter writer;
    document.save(writer, "\t", pugi::format_default, pugi::encoding_utf8);
    return writer.bytes;
}

std::optional<quint32> number(const pugi::xml_attribute& attribute, quint32 most)
{
    const char* digit = attribute.value();
    if (*digit == '\0')
        return std::nullopt;
    quint64 value = 0;
    for (; *digit != '\0'; ++digit) {
        if (*digit < '0' || *digit > '9')
            return std::nullopt;
        value = value * 10 + static_cast<quint64>(*digit - '0');
        if (value > most)
            return std::nullopt;
    }
    return static_cast<quint32>(value);
}

QString text(const pugi::xml_attribute& attribute)
{
    return QString::fromUtf8(attribute.value());
}

void set(pugi::xml_node node, const char* name, const QByteArray& value)
{
    pugi::xml_attribute attribute = node.attribute(name);
    if (!attribute)
        attribute = node.append_attribute(name);
    attribute.set_value(value.constData());
}

pugi::xml_node ensureChild(pugi::xml_node node, const char* element, const char* key, const char* value)
{
    pugi::xml_node child = node.find_child_by_attribute(element, key, value);
    if (!child) {
        child = node.append_child(element);
        child.append_attribute(key).set_value(value);
    }
    return child;
}

} // namespace KeptXml
