#include "DurableFiles.h"

#include "FieldbusSettingLib.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>

#include <fcntl.h>
#include <unistd.h>

namespace {

// Of a file or of a directory.
bool sync(const QString& path)
{
    const int descriptor = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    const bool synced = descriptor >= 0 && ::fsync(descriptor) == 0;
    if (descriptor >= 0)
        ::close(descriptor);
    return synced;
}

} // namespace

bool DurableFiles::syncTree(const QString& directory)
{
    QDirIterator walk(directory, QDir::Files | QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot,
                      QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        if (!sync(walk.next()))
            return false;
    }
    return syncNames(directory) && syncNames(QFileInfo(directory).path());
}

bool DurableFiles::syncNames(const QString& directory)
{
    return sync(directory);
}

bool DurableFiles::exchange(const QString& one, const QString& other)
{
    const QString aside = other + QStringLiteral("-aside");
    const auto move = [](const QString& from, const QString& to) {
        return !QFile::exists(from) || QDir().rename(from, to);
    };
    if (!FieldbusSettingLib::getInstance()->deleteDir(aside, QString()) || !move(one, aside))
        return false;
    if (QDir().rename(other, one)) {
        if (move(aside, other))
            return true;
        move(one, other);
    }
    move(aside, one);
    return false;
}
