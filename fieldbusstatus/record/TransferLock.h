#ifndef TRANSFERLOCK_H
#define TRANSFERLOCK_H

#include <QLockFile>

/// Keeps an import or export of the application "fieldbussetting" from the controller's files for its
/// lifetime, as they keep each other: it is the same lock, whose path is `importDirectory()` there with
/// ".lock". One of them may outlast the page that began it.
class TransferLock
{
public:
    TransferLock();

    /// False: one is under way.
    bool isHeld() const { return m_lock.isLocked(); }

private:
    QLockFile m_lock;
};

#endif
