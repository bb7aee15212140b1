#ifndef TRANSFERWATCH_H
#define TRANSFERWATCH_H

#include "TransferResult.h"

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
