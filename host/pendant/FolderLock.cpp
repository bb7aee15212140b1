#include "FolderLock.h"

#include <QDir>
#include <QFileInfo>

bool FolderLock::take(const QString& folder)
{
    const QFileInfo info(QDir::cleanPath(QFileInfo(folder).absoluteFilePath()));
    auto lock = std::make_unique<QLockFile>(
        info.dir().filePath(QLatin1Char('.') + info.fileName() + QStringLiteral(".lock")));
    // However long it is held: it is given up when its program is gone.
    lock->setStaleLockTime(0);
    if (lock->tryLock() || lock->error() != QLockFile::LockFailedError) {
        m_locks.push_back(std::move(lock));
        return true;
    }
    qint64 process = 0;
    QString host;
    QString program;
    lock->getLockInfo(&process, &host, &program);
    m_problem =
        tr("Another pendant works with the folder %1: process %2 on %3. Close it, or name other folders "
           "with --controller and --workdir.")
            .arg(QDir::toNativeSeparators(info.filePath()))
            .arg(process)
            .arg(host);
    return false;
}
