#ifndef PARSEDXML_H
#define PARSEDXML_H

#include <QByteArray>

#include <pugixml.hpp>

/// An XML file that is parsed once for all who look into it: as its own reader would, and so that a
/// declaration and a DOCTYPE are seen besides.
class ParsedXml
{
public:
    /// How the file's reader parses.
    enum class Reader {
        XmlFile, ///< as `XmlFile::load`
        KeptXml  ///< as `KeptXml::load`; comments are left out, they are nothing to a reader
    };

    explicit ParsedXml(Reader reader = Reader::XmlFile)
        : m_reader(reader)
    {
    }

    /// The bytes are UTF-8.
    void load(const QByteArray& content);

    const pugi::xml_document& document() const { return m_document; }
    const pugi::xml_parse_result& result() const { return m_result; }
    /// The first element; null without any.
    pugi::xml_node root() const;

    /// Whether the file's reader would make the same of the bytes, which are those that were loaded. Of a
    /// file without a DOCTYPE.
    bool servesReader(const QByteArray& content) const;

private:
    bool parse(const QByteArray& content, unsigned options);

    Reader m_reader;
    pugi::xml_document m_document;
    pugi::xml_parse_result m_result;
    bool m_hasGoodDeclaration = false;
};

#endif
