#ifndef VERSIONSTORE_H
#define VERSIONSTORE_H

#include "FileVersion.h"
#include "WholeFile.h"

#include <vector>

/// The former versions of a controller's files, in a folder of the pendant: an index, and a file for each
/// content, named by its hash, so that what one version sent and the next one found takes its place once.
///
/// Every step leaves a whole store behind: contents are written before the index names them, and removed
/// after it has forgotten them. Nothing is held in memory, so that several may look at one folder; those who
/// write take turns. What the disk does not give now is not taken for empty: nothing is added then.
class VersionStore
{
public:
    struct Limits
    {
        int versions = 20;                       ///< of one file
        qint64 bytes = qint64(32) * 1024 * 1024; ///< of all contents; the newest version is kept in any case
    };

    explicit VersionStore(QString folder);
    VersionStore(QString folder, Limits limits, WholeFile::Sync sync = nullptr);

    /// The oldest first.
    std::vector<FileVersion> versions() const;
    /// Kept bytes; nothing when they are not to be had as they were kept.
    std::optional<QByteArray> bytes(const FileVersion::Side& side) const;
    static QByteArray hashOf(const QByteArray& bytes);

    /// What a version is to keep: bytes, or why there are none.
    struct Bytes
    {
        FileVersion::Content content = FileVersion::Content::Lost;
        QByteArray bytes = {};

        static Bytes of(const QByteArray& bytes) { return {FileVersion::Content::Kept, bytes}; }
    };
    /// Adds a version, whose number, group (0: its own) and sides are filled in, and drops what is beyond the
    /// limits. The bytes that the disk has no room for are `Lost`; 0 when the index could not be written
    /// either.
    qint64 add(FileVersion version, const Bytes& former, const Bytes& sent);
    /// What was sent becomes known.
    bool setSent(qint64 number, const Bytes& sent);
    /// The transfer failed.
    bool setFailed(qint64 number);
    /// It has changed nothing.
    bool remove(qint64 number);

    /// Changes with every version; for those who look whether there is a new one.
    QString indexPath() const;

private:
    QString pathOf(const QByteArray& hash) const;
    bool readIndex(std::vector<FileVersion>& versions) const;
    bool writeIndex(const std::vector<FileVersion>& versions) const;
    FileVersion::Side keep(const Bytes& bytes) const;
    void prune(std::vector<FileVersion>& versions) const;
    void removeUnnamed(const std::vector<FileVersion>& versions) const;
    template <typename Change>
    bool change(qint64 number, Change change);

    QString m_folder;
    Limits m_limits;
    WholeFile::Sync m_sync;
};

#endif
