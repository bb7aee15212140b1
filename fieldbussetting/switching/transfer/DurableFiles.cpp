#include "DurableFiles.h"

#include "FieldbusSettingLib.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace {

QString asideOf(const QString& directory)
{
    return directory + QStringLiteral("-aside");
}

bool exchangeAtOnce(const QString& one, const QString& other)
{
#ifdef RENAME_EXCHANGE
    return ::renameat2(AT_FDCWD, QFile::encodeName(one).constData(), AT_FDCWD,
                       QFile::encodeName(other).constData(), RENAME_EXCHANGE) == 0;
#else
    Q_UNUSED(one)
    Q_UNUSED(other)
    return false;
#endif
}

// `repairExchange` relies on the order of these steps.
bool exchangeInSteps(const QString& one, const QString& other)
{
    const QString aside = asideOf(other);
    if (!FieldbusSettingLib::getInstance()->deleteDir(aside, QString()) || !QDir().rename(one, aside))
        return false;
    if (QDir().rename(other, one)) {
        if (QDir().rename(aside, other))
            return true;
        QDir().rename(one, other);
    }
    QDir().rename(aside, one);
    return false;
}

bool exchangeNames(const QString& one, const QString& other)
{
    if (!QFile::exists(one))
        return QDir().rename(other, one);
    if (!QFile::exists(other))
        return QDir().rename(one, other);
    return exchangeAtOnce(one, other) || exchangeInSteps(one, other);
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
    return sync(directory) && sync(QFileInfo(directory).path());
}

bool DurableFiles::sync(const QString& path)
{
    const int descriptor = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    // Some file systems of USB drives know no writing through of a directory.
    const bool synced =
        descriptor >= 0 && (::fsync(descriptor) == 0 || (errno == EINVAL && QFileInfo(path).isDir()));
    if (descriptor >= 0)
        ::close(descriptor);
    return synced;
}

bool DurableFiles::exchange(const QString& one, const QString& other)
{
    if (!exchangeNames(one, other))
        return false;
    if (sync(QFileInfo(one).path()))
        return true;
    exchangeNames(one, other);
    return false;
}

void DurableFiles::repairExchange(const QString& one, const QString& other)
{
    const QString aside = asideOf(other);
    if (QFile::exists(aside) && QDir().rename(aside, QFile::exists(one) ? other : one))
        sync(QFileInfo(one).path());
}
