#include "Shim.h"

#include <array>
#include <cerrno>
#include <climits>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <sys/uio.h>
#include <unistd.h>

namespace {

bool isArmed = false;
const char* watched = "";
Shim::Mode mode = Shim::Mode::FailOnce;
long fatal = 0;
long calls = 0;
int failure = EIO;

template <typename Function>
Function* next(const char* name)
{
    void* const symbol = ::dlsym(RTLD_NEXT, name);
    if (!symbol)
        std::abort();
    return reinterpret_cast<Function*>(symbol);
}

/// A file that was opened for writing, by its inode: how much of it is on the disk for sure.
struct Written
{
    dev_t device = 0;
    ino_t inode = 0;
    int descriptor = -1; ///< a copy, which outlives the program's own
    off_t durable = 0;
};
std::array<Written, 512> files;
std::size_t fileCount = 0;

Written* writtenBy(int descriptor)
{
    struct stat status = {};
    if (::fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode))
        return nullptr;
    for (std::size_t i = 0; i < fileCount; ++i) {
        if (files[i].device == status.st_dev && files[i].inode == status.st_ino)
            return &files[i];
    }
    if (fileCount == files.size())
        std::abort();
    files[fileCount] = {status.st_dev, status.st_ino, ::fcntl(descriptor, F_DUPFD_CLOEXEC, 500),
                        status.st_size};
    return &files[fileCount++];
}

void noteDurable(int descriptor)
{
    struct stat status = {};
    if (Written* file = writtenBy(descriptor); file && ::fstat(descriptor, &status) == 0)
        file->durable = status.st_size;
}

[[noreturn]] void kill()
{
    if (mode == Shim::Mode::KillLost) {
        for (std::size_t i = 0; i < fileCount; ++i) {
            struct stat status = {};
            if (::fstat(files[i].descriptor, &status) == 0 && status.st_size > files[i].durable)
                (void)!::ftruncate(files[i].descriptor, files[i].durable);
        }
    }
    ::_exit(Shim::KilledCode);
}

/// Whether this call is to fail; counts it.
bool hit()
{
    ++calls;
    if (calls < fatal || (calls > fatal && mode != Shim::Mode::FailFrom))
        return false;
    if (mode == Shim::Mode::KillKept || mode == Shim::Mode::KillLost)
        kill();
    errno = failure;
    return mode != Shim::Mode::WriteHalf;
}

bool isBelow(const char* path)
{
    const std::size_t size = std::strlen(watched);
    return std::strncmp(path, watched, size) == 0 && (path[size] == '/' || path[size] == '\0');
}

bool isWatched(int descriptor)
{
    if (!isArmed)
        return false;
    std::array<char, 64> link{};
    std::snprintf(link.data(), link.size(), "/proc/self/fd/%d", descriptor);
    std::array<char, PATH_MAX> path{};
    return ::readlink(link.data(), path.data(), path.size() - 1) > 0 && isBelow(path.data());
}

bool isWatched(const char* path)
{
    if (!isArmed)
        return false;
    if (*path == '/')
        return isBelow(path);
    // Everything relative is: the program stands in its working directory.
    std::array<char, PATH_MAX> here{};
    return ::getcwd(here.data(), here.size()) && isBelow(here.data());
}

bool isHit(const char* path)
{
    return isWatched(path) && hit();
}

bool isHit(int descriptor)
{
    return isWatched(descriptor) && hit();
}

template <typename Open>
int opened(const char* path, int flags, Open open)
{
    if (!isWatched(path))
        return open();
    // A directory is read, not opened: the C library does that by itself.
    if ((flags & O_DIRECTORY) == 0 && hit())
        return -1;
    const int descriptor = open();
    if (descriptor >= 0 && (flags & O_ACCMODE) != O_RDONLY)
        writtenBy(descriptor);
    return descriptor;
}

mode_t modeOf(int flags, std::va_list arguments)
{
    return (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(arguments, mode_t) : 0;
}

} // namespace

void Shim::arm(const char* directory, Mode how, long n, int error)
{
    watched = directory;
    mode = how;
    fatal = n;
    failure = error;
    calls = 0;
    isArmed = true;
}

long Shim::disarm()
{
    isArmed = false;
    return calls;
}

Shim::Pause::Pause()
    : m_wasArmed(isArmed)
{
    isArmed = false;
}

Shim::Pause::~Pause()
{
    isArmed = m_wasArmed;
}

// The calls, under the names and types of the C library.
extern "C" {

#define LAB_OPEN(name)                                                                                       \
    int name(const char* path, int flags, ...)                                                               \
    {                                                                                                        \
        std::va_list arguments;                                                                              \
        va_start(arguments, flags);                                                                          \
        const mode_t rights = modeOf(flags, arguments);                                                      \
        va_end(arguments);                                                                                   \
        static auto* const real = next<int(const char*, int, ...)>(#name);                                   \
        return opened(path, flags, [&] { return real(path, flags, rights); });                               \
    }
LAB_OPEN(open)
LAB_OPEN(open64)
#undef LAB_OPEN

#define LAB_OPENAT(name)                                                                                     \
    int name(int directory, const char* path, int flags, ...)                                                \
    {                                                                                                        \
        std::va_list arguments;                                                                              \
        va_start(arguments, flags);                                                                          \
        const mode_t rights = modeOf(flags, arguments);                                                      \
        va_end(arguments);                                                                                   \
        static auto* const real = next<int(int, const char*, int, ...)>(#name);                              \
        return opened(path, flags, [&] { return real(directory, path, flags, rights); });                    \
    }
LAB_OPENAT(openat)
LAB_OPENAT(openat64)
#undef LAB_OPENAT

ssize_t write(int descriptor, const void* bytes, std::size_t size)
{
    static auto* const real = next<ssize_t(int, const void*, std::size_t)>("write");
    if (isWatched(descriptor)) {
        if (hit())
            return -1;
        if (mode == Shim::Mode::WriteHalf && calls == fatal && size > 1)
            size /= 2;
    }
    return real(descriptor, bytes, size);
}

#define LAB_SYNC(name)                                                                                       \
    int name(int descriptor)                                                                                 \
    {                                                                                                        \
        static auto* const real = next<int(int)>(#name);                                                     \
        if (isHit(descriptor))                                                                               \
            return -1;                                                                                       \
        const int result = real(descriptor);                                                                 \
        if (result == 0 && isWatched(descriptor))                                                            \
            noteDurable(descriptor);                                                                         \
        return result;                                                                                       \
    }
LAB_SYNC(fsync)
LAB_SYNC(fdatasync)
#undef LAB_SYNC

#define LAB_PATH(result, name, parameters, arguments)                                                        \
    result name parameters                                                                                   \
    {                                                                                                        \
        static auto* const real = next<result parameters>(#name);                                            \
        return isHit(path) ? -1 : real arguments;                                                            \
    }
LAB_PATH(int, rename, (const char* path, const char* target) noexcept, (path, target))
LAB_PATH(int, renameat, (int from, const char* path, int to, const char* target) noexcept,
         (from, path, to, target))
LAB_PATH(int, renameat2, (int from, const char* path, int to, const char* target, unsigned flags) noexcept,
         (from, path, to, target, flags))
LAB_PATH(int, link, (const char* path, const char* target) noexcept, (path, target))
LAB_PATH(int, linkat, (int from, const char* path, int to, const char* target, int flags) noexcept,
         (from, path, to, target, flags))
LAB_PATH(int, unlink, (const char* path) noexcept, (path))
LAB_PATH(int, unlinkat, (int directory, const char* path, int flags) noexcept, (directory, path, flags))
LAB_PATH(int, rmdir, (const char* path) noexcept, (path))
LAB_PATH(int, mkdir, (const char* path, mode_t rights) noexcept, (path, rights))
LAB_PATH(int, mkdirat, (int directory, const char* path, mode_t rights) noexcept, (directory, path, rights))
#undef LAB_PATH
}
