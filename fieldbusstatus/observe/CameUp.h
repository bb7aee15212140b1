#ifndef CAMEUP_H
#define CAMEUP_H

#include "KnownFiles.h"

#include <QByteArray>
#include <QHash>
#include <QString>

/// The files as they were when the controller came up. They are kept over a restart of the pendant, in a file
/// of the working folder, and known again by the controller's clock: it has gone on as the pendant's has.
class CameUp
{
public:
    using Files = QHash<int, QByteArray>; ///< by FileId

    explicit CameUp(const QString& folder);

    /// What was kept of the run of the controller whose clock says `clock` now, in seconds; empty when it is
    /// another run, or nothing was kept.
    Files kept(double clock) const;
    void keep(const Files& files, double clock) const;

private:
    QString m_file;
};

#endif
