#ifndef LAB_SHIM_H
#define LAB_SHIM_H

/// Stands between a program and the file calls of the C library: what the n-th of them does to a file below
/// the watched directories is the experimenter's say. A library of its own, so that Qt's calls come here too.
namespace Shim {

enum class Mode {
    FailOnce,  ///< the n-th call fails
    FailFrom,  ///< it, and every one after it
    WriteHalf, ///< the n-th call, if it is a write, writes half of its bytes and says so
    KillKept,  ///< the program ends at the n-th call; what was written is on the disk
    KillLost   ///< ... and what was not written through is not
};

/// The exit code of a program that was killed.
constexpr int KilledCode = 77;

/// Counts calls on files below `directory` (an absolute path without links, which outlives the counting) from
/// 1 on. `error` is what a failing call sets.
void arm(const char* directory, Mode mode, long n, int error);
/// Lets every call through again; the number of calls that were counted.
long disarm();

/// Calls that are another machine's.
class Pause
{
public:
    Pause();
    ~Pause();
    Pause(const Pause&) = delete;
    Pause& operator=(const Pause&) = delete;

private:
    bool m_wasArmed;
};

} // namespace Shim

#endif
