#include "FolderReader.h"

#include "KnownFiles.h"

#include <QCryptographicHash>
#include <QFile>

#include <algorithm>
#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <linux/openat2.h>
#include <strings.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

constexpr int MostFiles = 10000;
constexpr int DeepestFolder = 8;
constexpr int PieceSize = 64 * 1024; // bytes
// A device or a pipe must not hold the open up.
constexpr int FileFlags = O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK;
constexpr int FolderFlags = O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_DIRECTORY;

// Calls `visit` with the name of every entry of an open folder.
template <typename Visitor>
void forEachEntry(int folder, Visitor visit)
{
    // A descriptor of its own: the list ends with it, and the folder's place in it stays.
    const int own = ::openat(folder, ".", FolderFlags);
    DIR* list = own < 0 ? nullptr : ::fdopendir(own);
    if (list == nullptr) {
        if (own >= 0)
            ::close(own);
        return;
    }
    while (const dirent* entry = ::readdir(list)) {
        if (qstrcmp(entry->d_name, ".") != 0 && qstrcmp(entry->d_name, "..") != 0)
            visit(entry->d_name);
    }
    ::closedir(list);
}

// A file that is spelt like `path`, with no link on the way, by one call of the system. -1 when it is not to
// be had so, also on a system without that call: the way folder by folder then tells why.
int openAtOnce(int root, const char* path)
{
    open_how how = {};
    how.flags = FileFlags;
    how.resolve = RESOLVE_BENEATH | RESOLVE_NO_SYMLINKS;
    return static_cast<int>(::syscall(SYS_openat2, root, path, &how, sizeof how));
}

mode_t kindOf(int folder, const char* name)
{
    struct stat status = {};
    return ::fstatat(folder, name, &status, AT_SYMLINK_NOFOLLOW) == 0 ? status.st_mode & S_IFMT : 0;
}

// Up to `size` bytes; fewer at the end of the file, -1 when the system gives none.
int readSome(int file, char* memory, int size)
{
    int done = 0;
    while (done < size) {
        const ssize_t got = ::read(file, memory + done, static_cast<std::size_t>(size - done));
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            return -1;
        if (got == 0)
            break;
        done += static_cast<int>(got);
    }
    return done;
}

FoundFile readAll(int file, qint64 size)
{
    // One byte beyond the limit tells what is too large.
    QByteArray bytes(static_cast<int>(std::min(size, KnownFiles::MostBytes + 1)), Qt::Uninitialized);
    const int got = readSome(file, bytes.data(), bytes.size());
    if (got < 0)
        return {FoundFile::State::Unreadable, {}};
    bytes.truncate(got);
    return {got > KnownFiles::MostBytes ? FoundFile::State::TooLarge : FoundFile::State::Read, bytes};
}

FoundFile digestOf(int file, qint64)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    QByteArray piece(PieceSize, Qt::Uninitialized);
    int got = 0;
    do {
        got = readSome(file, piece.data(), piece.size());
        if (got < 0)
            return {FoundFile::State::Unreadable, {}};
        hash.addData(piece.left(got));
    } while (got == piece.size());
    return {FoundFile::State::Read, hash.result().toHex()};
}

} // namespace

QString FoundFile::trouble() const
{
    switch (state) {
    case State::Read:
        break;
    case State::Missing:
        return QStringLiteral("is missing");
    case State::Refused:
        return QStringLiteral("is a link or no plain file, and was not read");
    case State::TooLarge:
        return QStringLiteral("has more than 4 MiB");
    case State::Unreadable:
        return QStringLiteral("cannot be read");
    }
    return {};
}

// The folder itself was named by the one who asks, so that it may be a link.
FolderReader::FolderReader(const QString& folder)
    : m_root(::open(QFile::encodeName(folder).constData(), FolderFlags & ~O_NOFOLLOW))
{
}

FolderReader::~FolderReader()
{
    for (const auto& [path, descriptor] : m_folders) {
        if (descriptor >= 0)
            ::close(descriptor);
    }
    if (m_root >= 0)
        ::close(m_root);
}

const std::vector<QByteArray>& FolderReader::namesIn(const QByteArray& path)
{
    const auto [known, isNew] = m_names.try_emplace(path);
    std::vector<QByteArray>& names = known->second;
    if (isNew)
        forEachEntry(folder(path), [&names](const char* name) { names.emplace_back(name); });
    return names;
}

// What lies at `path`, folder by folder, whatever the case of the names. -1 and `errno` when it cannot be
// had; ENOENT also when one of the folders cannot.
int FolderReader::openStepwise(const QByteArray& path, int flags)
{
    const int slash = path.lastIndexOf('/');
    const QByteArray above = slash < 0 ? QByteArray() : path.left(slash);
    const QByteArray name = path.mid(slash + 1);
    const int parent = folder(above);
    errno = ENOENT;
    if (parent < 0)
        return -1;
    // Once it is known what is there, nothing is tried in vain.
    const bool isSearched = m_names.find(above) != m_names.end();
    const int exact = isSearched ? -1 : ::openat(parent, name.constData(), flags);
    if (exact >= 0 || errno != ENOENT)
        return exact;
    QByteArray found;
    for (const QByteArray& entry : namesIn(above)) {
        if (strcasecmp(entry.constData(), name.constData()) != 0 || found == name)
            continue;
        if (entry == name || found.isEmpty() || found > entry)
            found = entry;
    }
    errno = ENOENT;
    return found.isEmpty() ? -1 : ::openat(parent, found.constData(), flags);
}

int FolderReader::folder(const QByteArray& path)
{
    if (path.isEmpty() || m_root < 0)
        return m_root;
    const auto known = m_folders.find(path);
    return known != m_folders.end() ? known->second : m_folders[path] = openStepwise(path, FolderFlags);
}

template <typename Use>
FoundFile FolderReader::withFile(const char* path, Use use)
{
    int file = openAtOnce(m_root, path);
    if (file < 0)
        file = openStepwise(path, FileFlags);
    if (file < 0) {
        const bool isRefused = errno == ELOOP || errno == ENXIO;
        return {errno == ENOENT ? FoundFile::State::Missing
                : isRefused     ? FoundFile::State::Refused
                                : FoundFile::State::Unreadable,
                {}};
    }
    struct stat status = {};
    FoundFile found = {FoundFile::State::Unreadable, {}};
    if (::fstat(file, &status) == 0)
        found =
            S_ISREG(status.st_mode) ? use(file, status.st_size) : FoundFile{FoundFile::State::Refused, {}};
    ::close(file);
    return found;
}

FoundFile FolderReader::read(const char* path)
{
    return withFile(path, readAll);
}

FoundFile FolderReader::digest(const char* path)
{
    return withFile(path, digestOf);
}

bool FolderReader::has(const char* path)
{
    const auto leave = [](int, qint64) { return FoundFile{FoundFile::State::Read, {}}; };
    return withFile(path, leave).state != FoundFile::State::Missing;
}

QStringList FolderReader::entries()
{
    QStringList names;
    if (!isOpen())
        return names;
    forEachEntry(m_root, [&](const char* name) {
        const mode_t kind = kindOf(m_root, name);
        if (kind != S_IFLNK)
            names << QFile::decodeName(name) + QLatin1String(kind == S_IFDIR ? "/" : "");
    });
    names.sort();
    return names;
}

void FolderReader::collect(const QByteArray& path, int depth, QStringList& files)
{
    const int here = folder(path);
    if (here < 0 || depth > DeepestFolder)
        return;
    forEachEntry(here, [&](const char* name) {
        const QByteArray full = path.isEmpty() ? QByteArray(name) : path + '/' + name;
        const mode_t kind = kindOf(here, name);
        if (kind == S_IFDIR)
            collect(full, depth + 1, files);
        else if (kind == S_IFREG && files.size() < MostFiles)
            files << QFile::decodeName(full);
    });
}

QStringList FolderReader::allFiles()
{
    QStringList files;
    collect({}, 0, files);
    files.sort();
    return files;
}
