#ifndef CONTROLLER_CONTROLLERXML_H
#define CONTROLLER_CONTROLLERXML_H

#include <QByteArray>

#include <pugixml.hpp>

/// The controller's XML files as bytes. In a namespace of its own: the host has functions like these, and
/// both ends live in one program.
namespace ControllerXml {

/// The element `root` of the file, with everything in `document` that is in the file, comments included. Null
/// when it is not well-formed (`document` is empty then) or has another root.
pugi::xml_node load(const QByteArray& bytes, const char* root, pugi::xml_document& document);

/// UTF-8, tab indentation.
QByteArray save(const pugi::xml_document& document);

} // namespace ControllerXml

#endif
