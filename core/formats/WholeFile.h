#ifndef WHOLEFILE_H
#define WHOLEFILE_H

#include <QByteArray>
#include <QString>

/// Reading and replacing of local files as a whole.
namespace WholeFile {

/// An open file of known size, to be read into memory that the caller brings.
class Reader
{
public:
    explicit Reader(const QString& path);
    ~Reader();
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;

    /// False when there is no such file, or one that is beyond what any controller file can be.
    bool isOpen() const { return m_descriptor >= 0; }
    /// In bytes.
    std::size_t size() const { return m_size; }
    /// Reads `size()` bytes; false when they cannot be had.
    bool read(void* memory) const;

private:
    void close();

    int m_descriptor;
    std::size_t m_size = 0;
};

/// Reads all bytes; false as `Reader` says.
bool read(const QString& path, QByteArray& content);

/// Writes a file's bytes through to the disk, as `fdatasync` does: 0, or -1 and `errno`.
using Sync = int (*)(int descriptor);

/// Whether what was written to an open file is on the disk. `sync` null: as the system does it.
bool writeThrough(int descriptor, Sync sync = nullptr);

/// Replaces the file in one step: it holds either the old bytes or the new ones. The new ones are flushed and
/// written through, and both results checked, before the new file takes the old one's place: on a full disk
/// or a failing one the old file stays. A link in its place is replaced, and what it points to stays. `sync`
/// is another one for tests of that.
bool replace(const QString& path, const QByteArray& content, Sync sync = nullptr);

/// Whether both files can be read and hold the same bytes.
bool areSame(const QString& one, const QString& other);

} // namespace WholeFile

#endif
