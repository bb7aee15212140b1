#include "DriveFiles.h"

#include "Logging.h"
#include "WholeFile.h"
#include "ZelFunctions.h"

#include <QFileInfo>

bool DriveFiles::isThere(const QString& drive)
{
    // The host fills in an empty path; a copy, so that the drive stays the one of the start.
    QString path = drive;
    if (!drive.isEmpty() && ZelMountFloppy(path) == 0)
        return true;
    qCDebug(fieldbusLog, "Usb path is not exist!");
    return false;
}

bool DriveFiles::copy(const QString& source, const QString& target)
{
    return !QFileInfo(target).isSymLink() && ZelFileCopy(source, target, true) != 0 &&
           WholeFile::areSame(source, target);
}
