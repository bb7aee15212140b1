#ifndef PENDANT_FOLDERLOCK_H
#define PENDANT_FOLDERLOCK_H

#include <QCoreApplication>
#include <QLockFile>
#include <QString>

#include <memory>
#include <vector>

/// Keeps other pendants out of folders: two on one folder would undo each other's files. A lock goes with
/// this object, and with a program that ends without giving it back.
class FolderLock
{
    Q_DECLARE_TR_FUNCTIONS(FolderLock)

public:
    /// False when another pendant has the folder, which need not exist yet. The lock is a hidden file beside
    /// it; where none can be made, the folder is left unguarded.
    bool take(const QString& folder);
    /// Who has the folder that could not be taken, in words.
    QString problem() const { return m_problem; }

private:
    std::vector<std::unique_ptr<QLockFile>> m_locks;
    QString m_problem;
};

#endif
