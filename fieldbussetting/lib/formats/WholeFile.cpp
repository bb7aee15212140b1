#include "WholeFile.h"

#include <QFile>
#include <QSaveFile>

namespace {

// The largest controller file has a few hundred kilobytes; what is beyond this is no configuration.
constexpr qint64 LargestFile = 16 * 1024 * 1024;

} // namespace

bool WholeFile::read(const QString& path, QByteArray& content)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > LargestFile)
        return false;
    content = file.readAll();
    return file.error() == QFileDevice::NoError;
}

bool WholeFile::replace(const QString& path, const QByteArray& content)
{
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.flush() &&
           file.commit();
}
