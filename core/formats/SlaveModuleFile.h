#ifndef SLAVEMODULEFILE_H
#define SLAVEMODULEFILE_H

#include <QByteArray>
#include <QString>

namespace pugi {
class xml_document;
}

/// fbslave.cfgx: settings of the fieldbus module in the slave slot. The byte order is all that the pendant
/// knows of them.
namespace SlaveModuleFile {

/// The byte order, "littleEndian" or "bigEndian", whatever case and blanks the file has. False (and `endian`
/// untouched) when the bytes are not well-formed, have another root or name none.
bool read(const QByteArray& bytes, QString& endian);
/// From a document that is parsed already.
bool readFrom(const pugi::xml_document& document, QString& endian);

/// The file with this byte order, appended when it has none; null when it cannot be read or `endian` is none.
QByteArray rewritten(const QByteArray& bytes, const QString& endian);

} // namespace SlaveModuleFile

#endif
