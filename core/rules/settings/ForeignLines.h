#ifndef FOREIGNLINES_H
#define FOREIGNLINES_H

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace Settings {
struct Row;
}

/// What a file says line by line, whoever understands it. Blanks around a line, empty lines and the comments
/// of an XML file count as nothing.
namespace ForeignLines {

/// The lines that `known` does not tell; all of them without it. An XML file gives a line a value, "place:
/// value", the place from the root on with the attribute that names an element in brackets:
/// "Fieldbus/Bus[Mes]@enable: 1". A file that is not well-formed is text.
QStringList of(const QString& path, const QByteArray& bytes, const Settings::Row* known);

} // namespace ForeignLines

#endif
