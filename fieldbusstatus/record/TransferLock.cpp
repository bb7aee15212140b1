#include "TransferLock.h"

#include "ZelFunctions.h"

#include <QDir>
#include <QFileInfo>

namespace {

QString lockPath()
{
    return ZelGetLocalizedFileName(QStringLiteral("../Application/fidbus/import"), 1) +
           QStringLiteral(".lock");
}

} // namespace

TransferLock::TransferLock()
    : m_lock(lockPath())
{
    // However long it takes; one of a pendant that was ended counts no more.
    m_lock.setStaleLockTime(0);
    QDir().mkpath(QFileInfo(lockPath()).path());
    m_lock.tryLock();
}
