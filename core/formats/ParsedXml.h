#ifndef PARSEDXML_H
#define PARSEDXML_H

#include <QByteArray>

#include <pugixml.hpp>

/// An XML file that is parsed once for all who look into it. The readers parse with options of their own;
/// where the file holds nothing that these treat differently, this document says the same as theirs.
class ParsedXml
{
public:
    /// The bytes are UTF-8.
    explicit ParsedXml(const QByteArray& content);

    const pugi::xml_document& document() const { return m_document; }
    const pugi::xml_parse_result& result() const { return m_result; }
    /// The first element; null without any.
    pugi::xml_node root() const;

    /// Whether it is what `XmlFile::load` makes of the bytes. Of a file without a DOCTYPE.
    bool servesXmlFile(const QByteArray& content) const;
    /// Whether it holds what `KeptXml::load` makes of the bytes, but for comments. Of a file without a
    /// DOCTYPE.
    bool servesKeptXml(const QByteArray& content) const;

private:
    bool load(const QByteArray& content, unsigned options);

    pugi::xml_document m_document;
    pugi::xml_parse_result m_result;
    bool m_hasGoodDeclaration;
};

#endif
