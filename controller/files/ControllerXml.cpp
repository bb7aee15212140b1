#include "ControllerXml.h"

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

pugi::xml_node ControllerXml::load(const QByteArray& bytes, const char* root, pugi::xml_document& document)
{
    // As UTF-8 whatever the bytes are: a comment in another encoding comes through as it is.
    if (!document.load_buffer(bytes.constData(), static_cast<std::size_t>(bytes.size()), pugi::parse_full,
                              pugi::encoding_utf8))
        document.reset(); // what stood before the error
    return document.child(root);
}

QByteArray ControllerXml::save(const pugi::xml_document& document)
{
    ByteWriter writer;
    document.save(writer, "\t", pugi::format_default, pugi::encoding_utf8);
    return writer.bytes;
}
