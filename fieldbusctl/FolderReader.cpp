#include "FolderReader.h"

#include "KnownFiles.h"

#include <QCryptographicHash>
#include <QFile>

#include <algorithm>
#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <strings.h>
#include <sys/stat.h>
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
        hash.addData(piece.constData(), got);
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

int FolderReader::openAnyCase(int parent, const QByteArray& name, int flags)
{
    const int exact = ::openat(parent, name.constData(), flags);
    if (exact >= 0 || errno != ENOENT)
        return exact;
    QByteArray other;
    forEachEntry(parent, [&](const char* entry) {
        if (strcasecmp(entry, name.constData()) == 0 && (other.isEmpty() || other > entry))
            other = entry;
    });
    errno = ENOENT;
    return other.isEmpty() ? -1 : ::openat(parent, other.constData(), flags);
}

int FolderReader::folder(const QByteArray& path)
{
    if (path.isEmpty() || m_root < 0)
        return m_root;
    const auto known = m_folders.find(path);
    if (known != m_folders.end())
        return known->second;
    const int slash = path.lastIndexOf('/');
    const int parent = folder(slash < 0 ? QByteArray() : path.left(slash));
    const int opened = parent < 0 ? -1 : openAnyCase(parent, path.mid(slash + 1), FolderFlags);
    return m_folders[path] = opened;
}

template <typename Use>
FoundFile FolderReader::withFile(const QByteArray& path, Use use)
{
    const int slash = path.lastIndexOf('/');
    const int parent = folder(slash < 0 ? QByteArray() : path.left(slash));
    if (parent < 0)
        return {};
    const int file = openAnyCase(parent, path.mid(slash + 1), FileFlags);
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

FoundFile FolderReader::read(const QByteArray& path)
{
    return withFile(path, readAll);
}

FoundFile FolderReader::digest(const QByteArray& path)
{
    return withFile(path, digestOf);
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
