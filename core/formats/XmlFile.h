#ifndef XMLFILE_H
#define XMLFILE_H

#include <QByteArray>
#include <QString>

#include <pugixml.hpp>

/// What all XML formats of the controller share: parsing, the prologue of a written file, and serialising.
namespace XmlFile {

/// Parses with `parse_pi` only unless told otherwise: no escapes, no end-of-line normalisation, no comments.
/// False on the first error; the document is then not to be used.
bool load(const QByteArray& content, pugi::xml_document& document, unsigned options = pugi::parse_pi);

/// Appends the declaration and the comment with the local time of writing.
void appendPrologue(pugi::xml_document& document);

/// Appends an element that holds `text` and nothing else. An empty text still gets its (empty) text node, so
/// that the element is written as a pair of tags.
void appendText(pugi::xml_node parent, const char* name, const QString& text);

/// Text of `node` (empty when it is missing).
QString text(pugi::xml_node node);

/// The document as UTF-8 with tabs.
QByteArray bytes(const pugi::xml_document& document, unsigned format = pugi::format_indent);

/// Makes pugixml's number conversions use a point whatever the locale of the pendant, for its lifetime.
class PointDecimals
{
public:
    PointDecimals();
    ~PointDecimals();
    PointDecimals(const PointDecimals&) = delete;
    PointDecimals& operator=(const PointDecimals&) = delete;

private:
    void* m_previous;
};

} // namespace XmlFile

#endif
