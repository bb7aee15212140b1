#ifndef LAB_OPERATIONS_H
#define LAB_OPERATIONS_H

#include "Bench.h"

#include <functional>
#include <string>
#include <vector>

/// Something that writes files. What must hold afterwards, whatever happened on the way, is in `check`.
struct Operation
{
    enum class End {
        Done, ///< it said that it succeeded
        Told, ///< it said that it failed
        Killed
    };

    std::string name;
    std::function<void(const Bench& bench)> prepare; ///< once: what lies on the disk before
    std::function<void()> begin;                     ///< in the process that will be hit, before that
    std::function<bool(const Bench& bench)> run;     ///< false: it tells a failure
    /// Once the pendant was started again. `before` and `reference`: the bench as it was, and as it is when
    /// nothing fails. A text for what is not as it must be, empty when all is well.
    std::function<std::string(const Bench& bench, const Bench& before, const Bench& reference, End end)>
        check;
};

const std::vector<Operation>& operations();

/// What a pendant does at its next start, before anybody presses anything, and with what an import left: the
/// former files are put back.
void startAgain();

#endif
