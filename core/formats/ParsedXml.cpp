#include "ParsedXml.h"

#include "AsciiText.h"

// What is no good declaration only some of the readers refuse.
void ParsedXml::load(const QByteArray& content)
{
    const unsigned options = (m_reader == Reader::KeptXml ? pugi::parse_default : pugi::parse_minimal) |
                             pugi::parse_pi | pugi::parse_doctype;
    m_hasGoodDeclaration = parse(content, options | pugi::parse_declaration);
    if (!m_hasGoodDeclaration)
        parse(content, options);
}

bool ParsedXml::parse(const QByteArray& content, unsigned options)
{
    m_result = m_document.load_buffer(content.constData(), static_cast<std::size_t>(content.size()), options,
                                      pugi::encoding_utf8);
    return m_result;
}

pugi::xml_node ParsedXml::root() const
{
    for (const pugi::xml_node node : m_document.children()) {
        if (node.type() == pugi::node_element)
            return node;
    }
    return {};
}

// A NUL ends the text for the parser, and is for the readers to refuse. For one of them the declaration has a
// say in the encoding, the other one refuses a bad declaration.
bool ParsedXml::servesReader(const QByteArray& content) const
{
    const std::string_view bytes = AsciiText::view(content);
    return m_result && bytes.find('\0') == std::string_view::npos &&
           (m_reader == Reader::KeptXml ? m_hasGoodDeclaration : AsciiText::isAscii(bytes));
}
