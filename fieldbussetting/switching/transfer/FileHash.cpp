#include "FileHash.h"

#include "WholeFile.h"

#include <QCryptographicHash>

QByteArray FileHash::of(const QString& path)
{
    QByteArray content;
    return WholeFile::read(path, content)
               ? QCryptographicHash::hash(content, QCryptographicHash::Sha1).toHex()
               : QByteArray();
}
