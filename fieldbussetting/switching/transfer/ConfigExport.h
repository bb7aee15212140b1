#ifndef CONFIGEXPORT_H
#define CONFIGEXPORT_H

#include "TransferWatch.h"

#include <QString>

struct TransferFile;

/// Copies the controller's whole bus configuration into a new folder on a USB drive: every file of the
/// transfer set into the staging directory, then the staging directory onto the drive. Done is said only when
/// every file came twice alike from the controller and all of it is on the drive, not in a cache.
///
/// Nothing on the drive is removed when it fails; the staging directory keeps what was fetched until the next
/// export.
class ConfigExport
{
public:
    /// `drive`: path under which the host named the drive.
    ConfigExport(QString drive, TransferWatch& watch);

    TransferResult run();

private:
    TransferResult fetchAll();
    TransferResult fetch(const TransferFile& file);
    bool isFetched(const TransferFile& file) const;
    TransferResult writeAll();
    /// Makes the folder of the export; gives its path in `target`.
    TransferResult makeTarget(QString& target);
    TransferResult makeFolder(const QString& path);
    TransferResult copyFolder(const QString& source, const QString& target);
    TransferResult stepped();

    QString m_drive;
    TransferWatch& m_watch;
};

#endif
