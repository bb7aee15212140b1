#include "LocalFile.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

bool readLocalFile(const QString& path, QByteArray& content)
{
    QFile file(path);
    // A device or a pipe would never end.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return false;
    QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return false;
    content = std::move(bytes);
    return true;
}

bool replaceLocalFile(const QString& path, const QByteArray& content)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    // The content may still lie in the buffer when the disk is full: commit() alone would then put an empty
    // file in place and report success.
    if (file.write(content) != content.size() || !file.flush())
        return false;
    return file.commit();
}
