#ifndef TRANSFERRESULT_H
#define TRANSFERRESULT_H

#include <QString>

/// How a stage of an export or import ended, and at which file.
struct TransferResult
{
    enum Code {
        Done,
        DriveGone,   ///< the drive is not reachable under its path any more
        DriveFailed, ///< a folder or file of the drive could not be written or read
        FetchFailed, ///< a file did not come from the controller
        LocalFailed, ///< a folder or file of the pendant could not be written
        Changed,     ///< a file of the controller is not what it was shortly before
        SendFailed,  ///< a file did not reach the controller
        RobotMoves,  ///< the servo was switched on, or the robot runs
        CopyChanged, ///< the pendant's copy of a file is not the one that was looked at
        Unwanted     ///< nobody is left who wants the result
    };

    Code code = Done;
    QString file; ///< at which it failed; may be empty

    bool isDone() const { return code == Done; }
    /// Why it failed, for the operator; empty when it is done or unwanted.
    QString reason() const;
};

#endif
