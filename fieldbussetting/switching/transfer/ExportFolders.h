#ifndef EXPORTFOLDERS_H
#define EXPORTFOLDERS_H

#include <QDateTime>
#include <QString>

#include <vector>

/// A folder on the drive that an export has made.
struct ExportFolder
{
    QString path;
    QString name;
    QDateTime written; ///< as its name says, else when it was last changed
    int files = 0;     ///< of the transfer set that lie in it
};

/// The export folders at the top of `drive`, the newest first. Links are no folders.
std::vector<ExportFolder> exportFoldersOn(const QString& drive);

#endif
