#ifndef LAB_TARGET_H
#define LAB_TARGET_H

#include <QByteArray>

#include <cstdio>
#include <cstdlib>
#include <vector>

/// Something that takes bytes from outside: a reader of a file, a receiver of frames. Whatever the bytes are,
/// it has to come back, in bounded time and memory, and what it writes has to read back the same.
struct Target
{
    const char* name;
    std::vector<const char*> seeds; ///< files of the plant, or frames in hexadecimal after a "#"
    void (*feed)(const QByteArray& bytes);
};

/// The targets of the program this is linked into.
const std::vector<Target>& targets();

/// Ends the program with what was promised and is not so.
[[noreturn]] inline void violated(const char* promise)
{
    std::fprintf(stderr, "violated: %s\n", promise);
    std::abort();
}

inline void promise(bool isKept, const char* text)
{
    if (!isKept)
        violated(text);
}

#endif
