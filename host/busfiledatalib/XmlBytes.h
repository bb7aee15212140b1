#ifndef HOST_XMLBYTES_H
#define HOST_XMLBYTES_H

#include <QByteArray>
#include <QString>

#include <pugixml.hpp>

/// Parses a controller's XML file and keeps everything that is in it, comments included, so that it can be
/// written again. False when it is not well formed, unreasonably large, or its root is not `root`.
bool loadXml(const QByteArray& bytes, const char* root, pugi::xml_document& document);

/// The document as the controller expects it: UTF-8, tab indentation.
QByteArray saveXml(const pugi::xml_document& document);

/// Whole number of an attribute in plain decimal digits; false when it is anything else or above `maximum`.
bool readNumber(const pugi::xml_attribute& attribute, quint32 maximum, quint32& number);

/// The attribute `name`, appended when the node has none.
pugi::xml_attribute ensureAttribute(pugi::xml_node node, const char* name);
/// The first child element `element` whose attribute `key` is `value`, appended when there is none.
pugi::xml_node ensureChild(pugi::xml_node node, const char* element, const char* key, const char* value);

#endif
