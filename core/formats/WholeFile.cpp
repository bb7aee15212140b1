#include "WholeFile.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// The largest controller file has a few hundred kilobytes; what is beyond this is no configuration.
// Wider than what an import takes, so that a file of the controller's that is too large is told as such.
constexpr off_t LargestFile = off_t{16} * 1024 * 1024;

} // namespace

// The system's own calls: for files of a few kilobytes QFile takes longer to open than to read.
WholeFile::Reader::Reader(const QString& path)
    : m_descriptor(::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC))
{
    struct stat status = {};
    if (!isOpen())
        return;
    if (::fstat(m_descriptor, &status) == 0 && S_ISREG(status.st_mode) && status.st_size <= LargestFile)
        m_size = static_cast<std::size_t>(status.st_size);
    else
        close();
}

WholeFile::Reader::~Reader()
{
    close();
}

void WholeFile::Reader::close()
{
    if (isOpen())
        ::close(m_descriptor);
    m_descriptor = -1;
}

bool WholeFile::Reader::read(void* memory) const
{
    auto* target = static_cast<char*>(memory);
    std::size_t left = m_size;
    while (left > 0) {
        const ssize_t got = ::read(m_descriptor, target, left);
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0)
            return false;
        target += got;
        left -= static_cast<std::size_t>(got);
    }
    return true;
}

bool WholeFile::read(const QString& path, QByteArray& content)
{
    const Reader file(path);
    if (!file.isOpen())
        return false;
    content.resize(static_cast<int>(file.size()));
    return file.read(content.data());
}

// A file system that cannot write through says so, and that is no failure.
bool WholeFile::writeThrough(int descriptor, Sync sync)
{
    const Sync write = sync ? sync : ::fdatasync;
    int result = write(descriptor);
    while (result != 0 && errno == EINTR)
        result = write(descriptor);
    return result == 0 || errno == EINVAL || errno == EROFS;
}

bool WholeFile::replace(const QString& path, const QByteArray& content, Sync sync)
{
    // A link goes as the link it is: QSaveFile would write what it points to.
    if (QFileInfo(path).isSymLink() && !QFile::remove(path))
        return false;
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.flush() &&
           writeThrough(file.handle(), sync) && file.commit();
}

bool WholeFile::areSame(const QString& one, const QString& other)
{
    QByteArray first;
    QByteArray second;
    return read(one, first) && read(other, second) && first == second;
}
