#ifndef VANTOR_DATAACCESS_H
#define VANTOR_DATAACCESS_H

#include <QString>

/// State of the pendant and the robot, and the synchronous file transfer between the two.
class DataAccess
{
public:
    /// Level of the user that is logged in; higher is more privileged.
    static int getUserLevel();
    static bool isRobotRunning();
    static bool isServoOn();

    /// Copies a controller file to `localPath`, in one step or not at all. The directory must exist.
    /// `flag` asks for the host's own progress display. True when the file was copied.
    static bool GetFileFromController2TPU(const QString& ctrlPath, const QString& localPath, bool flag);
    /// Copies a local file to the controller, in one step or not at all. True when the file was copied.
    static bool SendFileFromTPU2Controller(const QString& localPath, const QString& ctrlPath, bool flag);
};

#endif
