#ifndef TRANSFERWATCH_H
#define TRANSFERWATCH_H

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
        Unwanted     ///< nobody is left who wants the result
    };

    Code code = Done;
    QString file; ///< at which it failed; may be empty

    bool isDone() const { return code == Done; }
};

/// Whoever wants an export or import, as the copying sees it. Everything that waits processes events, and the
/// page that began may be closed meanwhile; the copying then ends in an orderly way.
class TransferWatch
{
public:
    virtual ~TransferWatch() = default;

    /// A file or folder is done. Processes events; false when nobody wants the rest.
    virtual bool step() = 0;
    virtual bool isWanted() const = 0;
};

#endif
