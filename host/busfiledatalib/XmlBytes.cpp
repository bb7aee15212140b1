#include "XmlBytes.h"

namespace {

// A configuration has a few kilobytes. Something much larger is no configuration.
constexpr int MaxBytes = 4 * 1024 * 1024;

class ByteWriter : public pugi::xml_writer
{
public:
    void write(const void* data, size_t size) override
    {
        bytes.append(static_cast<const char*>(data), static_cast<int>(size));
    }
    QByteArray bytes;
};

} // namespace

bool loadXml(const QByteArray& bytes, const char* root, pugi::xml_document& document)
{
    // The parser takes a NUL for the end of the text, and what follows would be lost with the next write.
    if (bytes.size() > MaxBytes || bytes.contains('\0'))
        return false;
    // Read and written as UTF-8 whatever the bytes are: a comment in another encoding comes through as it is.
    return document.load_buffer(bytes.constData(), bytes.size(), pugi::parse_full, pugi::encoding_utf8) &&
           document.child(root);
}

QByteArray saveXml(const pugi::xml_document& document)
{
    ByteWriter writer;
    document.save(writer, "\t", pugi::format_default, pugi::encoding_utf8);
    return writer.bytes;
}

bool readNumber(const pugi::xml_attribute& attribute, quint32 maximum, quint32& number)
{
    quint64 value = 0;
    const char* digit = attribute.value();
    if (*digit == '\0')
        return false;
    for (; *digit != '\0'; ++digit) {
        if (*digit < '0' || *digit > '9')
            return false;
        value = value * 10 + static_cast<quint64>(*digit - '0');
        if (value > maximum)
            return false;
    }
    number = static_cast<quint32>(value);
    return true;
}

pugi::xml_attribute ensureAttribute(pugi::xml_node node, const char* name)
{
    const pugi::xml_attribute attribute = node.attribute(name);
    return attribute ? attribute : node.append_attribute(name);
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
