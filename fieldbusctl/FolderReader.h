#ifndef FIELDBUSCTL_FOLDERREADER_H
#define FIELDBUSCTL_FOLDERREADER_H

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <map>
#include <vector>

/// A file as it was found.
struct FoundFile
{
    enum class State {
        Read,      ///< `bytes` is all of it
        Missing,   ///< there is none
        Refused,   ///< a link, a folder, a device: not looked into
        TooLarge,  ///< beyond what any controller file can be; `bytes` is its beginning
        Unreadable ///< the system does not give it
    };

    State state = State::Missing;
    QByteArray bytes;

    /// Why it was not read, for people; empty when it was.
    QString trouble() const;
};

/// Reads files below one folder and never leaves it: no link is followed, be it a file or a folder on the
/// way.
class FolderReader
{
public:
    explicit FolderReader(const QString& folder);
    ~FolderReader();
    FolderReader(const FolderReader&) = delete;
    FolderReader& operator=(const FolderReader&) = delete;

    /// Whether the folder can be opened.
    bool isOpen() const { return m_root >= 0; }

    /// The file at `path` below the folder; without one that is spelt like that, one that differs in case
    /// only: the controller's file system does not regard it, and a drive may have changed it.
    FoundFile read(const char* path);

    /// As `read`, of any size, with the SHA-256 in hexadecimal instead of the bytes.
    FoundFile digest(const char* path);

    /// Whether anything lies at `path`, whatever its case; a link is something, too.
    bool has(const char* path);

    /// Whether there is a folder at `path`, whatever its case.
    bool hasFolder(const QByteArray& path) { return folder(path) >= 0; }

    /// Names of what lies in the folder itself; folders end in "/".
    QStringList entries();
    /// Paths of all plain files at any depth; links are left out. Stops at 10,000.
    QStringList allFiles();

private:
    template <typename Use>
    FoundFile withFile(const char* path, Use use);
    int openStepwise(const QByteArray& path, int flags);
    int folder(const QByteArray& path);
    const std::vector<QByteArray>& namesIn(const QByteArray& path);
    void collect(const QByteArray& path, int depth, QStringList& files);

    int m_root;
    std::map<QByteArray, int> m_folders; ///< descriptors by path; -1 for one that is not there
    std::map<QByteArray, std::vector<QByteArray>> m_names; ///< by path, of folders that were searched
};

#endif
