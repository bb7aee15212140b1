#ifndef KEPTXML_H
#define KEPTXML_H

#include <QByteArray>
#include <QString>

#include <pugixml.hpp>

#include <optional>

/// The controller's XML files that more than one writer changes, as bytes: what is not understood comes
/// through a rewrite as it was.
namespace KeptXml {

/// Parses with comments and everything else that is in the file. Null when it is not well-formed, holds a
/// NUL, has more than 4 MiB or another root; `document` owns what is returned.
pugi::xml_node load(const QByteArray& bytes, const char* root, pugi::xml_document& document);

/// UTF-8, tab indentation, one element a line.
QByteArray save(const pugi::xml_document& document);

/// Plain decimal digits, 0 to `most`; nothing for anything else, a missing attribute too.
std::optional<quint32> number(const pugi::xml_attribute& attribute, quint32 most);

QString text(const pugi::xml_attribute& attribute);

/// Sets an attribute, appended when the node has none.
void set(pugi::xml_node node, const char* name, const QByteArray& value);

/// The first child element `element` whose attribute `key` is `value`, appended when there is none.
pugi::xml_node ensureChild(pugi::xml_node node, const char* element, const char* key, const char* value);

} // namespace KeptXml

#endif
