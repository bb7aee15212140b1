#ifndef FORMERFILES_H
#define FORMERFILES_H

#include "VersionStore.h"

#include <QByteArray>
#include <QHash>
#include <QString>

#include <vector>

/// Keeps what the controller holds of a file before this pendant replaces it, in the folder
/// `FileLocations::versionsDirectory()`, from where another application shows it and puts it back. One object
/// of the process, fed by `FieldbusSettingLib::sendFileToCtrl`; who lets the bus file data service send a
/// file brackets that with `serviceBegins` and `serviceEnds`.
///
/// A save goes on when the former file cannot be kept; the version then says that it was lost. The former
/// bytes are those that were seen last by who replaces the file, else those that were read last; only of a
/// file that was not read one transfer is made, in one attempt. Nothing is kept of a send that changes
/// nothing.
///
/// Processes events only where a transfer does. GUI thread only.
class FormerFiles
{
public:
    static FormerFiles& instance();

    /// What is sent in its lifetime is one act of many files.
    class Act
    {
    public:
        explicit Act(FileVersion::Act act);
        ~Act();
        Act(const Act&) = delete;
        Act& operator=(const Act&) = delete;
    };

    /// The controller's file was just fetched by who will replace it.
    void saw(const QString& ctrlPath, const QByteArray& bytes);
    /// The same, to the local file `copy`; none: the controller has no such file.
    void sawCopy(const QString& ctrlPath, const QString& copy);
    /// Nothing is known any more of what was seen.
    void forgetSeen() { m_seen.clear(); }

    /// A file is about to be replaced by `sent`, or removed (null). Gives a number for `failed`; 0 when there
    /// is nothing to be kept.
    qint64 keep(const QString& ctrlPath, const QByteArray* sent);
    /// The transfer failed.
    static void failed(qint64 number);

    /// The service sends the file itself, and holds its bytes only as records: it is fetched before, and once
    /// more when it was sent.
    void serviceBegins(const QString& ctrlPath);
    /// Does nothing without a begin.
    void serviceEnds(const QString& ctrlPath, bool success);

private:
    /// What the service is sending.
    struct Pending
    {
        qint64 number = 0;
        VersionStore::Bytes former;
    };

    FormerFiles() = default;

    VersionStore::Bytes formerOf(const QString& ctrlPath);
    qint64 add(const QString& ctrlPath, const VersionStore::Bytes& former, const VersionStore::Bytes& sent);

    QHash<QString, VersionStore::Bytes> m_seen; ///< by path in lower case
    QHash<QString, Pending> m_byService;        ///< by path in lower case
    FileVersion::Act m_act = FileVersion::Act::Saved;
    qint64 m_group = 0;                   ///< of the act; 0 before its first file
    std::vector<FileVersion> m_unwritten; ///< that the disk did not take: told with the next one
};

#endif
