#include "ParsedXml.h"

#include "AsciiText.h"

#include <cstring>

namespace {

// Looks for an attribute with white space other than a blank. No recursion: a file may be nested as deep as
// it is long.
struct BrokenValues : pugi::xml_tree_walker
{
    bool for_each(pugi::xml_node& node) override
    {
        for (pugi::xml_attribute at = node.first_attribute(); at && !found; at = at.next_attribute())
            found = std::strpbrk(at.value(), "\n\t") != nullptr;
        return !found;
    }
    bool found = false;
};

bool hasBrokenValue(pugi::xml_node document)
{
    BrokenValues values;
    document.traverse(values);
    return values.found;
}

} // namespace

// What is no good declaration only some of the readers refuse.
ParsedXml::ParsedXml(const QByteArray& content)
    : m_hasGoodDeclaration(load(content, pugi::parse_pi | pugi::parse_doctype | pugi::parse_declaration))
{
    if (!m_hasGoodDeclaration)
        load(content, pugi::parse_pi | pugi::parse_doctype);
}

bool ParsedXml::load(const QByteArray& content, unsigned options)
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

// There the declaration has a say in the encoding.
bool ParsedXml::servesXmlFile(const QByteArray& content) const
{
    return m_result && AsciiText::isAscii(content) && !content.contains('\0');
}

// There references, line ends and CDATA sections are resolved, and white space in attributes becomes blanks.
bool ParsedXml::servesKeptXml(const QByteArray& content) const
{
    return m_result && m_hasGoodDeclaration && !content.contains('\0') && !content.contains('&') &&
           !content.contains('\r') && !content.contains("<![") && !hasBrokenValue(m_document);
}
