#ifndef WRITEPROBLEM_H
#define WRITEPROBLEM_H

/// Why a writer that edits the controller's present file did not write.
enum class WriteProblem {
    None,
    /// The file did not come, came differently each time, came damaged, or the copy cannot be written.
    NotWritten,
    /// It came, but is no longer the one that the record was read from: what the page shows is to be loaded
    /// again.
    ChangedOnController
};

#endif
