#ifndef CONTROLLERCOPIES_H
#define CONTROLLERCOPIES_H

#include "FileLocations.h"

#include <QByteArray>
#include <QDateTime>
#include <QHash>

/// What the pendant knows of the controller's files: how often it has changed each since the plug-in was
/// loaded, and what it last read of each. One object of the process, fed by the library: every read of a
/// local working copy and every `FieldbusSettingLib::sendFileToCtrl` is noted by itself, an import's and a
/// put-back's too. Only what changes a file by another road (the bus file data service, a removal) has to
/// call `changed`.
///
/// How a page uses it: when it has loaded, it keeps `version(file)`; it is old when that has grown since, and
/// takes the new one as its own after a send of its own. `isRead(file)` says whether the record holds the
/// controller's settings. Paths are the controller's, which ignores their case. GUI thread only.
class ControllerCopies
{
public:
    struct Copy
    {
        QDateTime readAt;     ///< when it was last read; invalid before
        QByteArray bytes;     ///< as last read from the controller, or sent to it since
        bool isKnown = false; ///< `bytes` are what the controller holds as far as is known
        bool recognised =
            false; ///< the last read found keywords or elements of the file; else its record is empty
    };

    static ControllerCopies& instance();

    /// How often this pendant has changed the file, 0 before the first time. Also a send that failed counts:
    /// what it has left behind is not known.
    int version(const QString& ctrlPath) const;
    int version(ConfigFile file) const;

    /// The last successful read; an empty one before.
    Copy copy(const QString& ctrlPath) const;
    Copy copy(ConfigFile file) const;

    /// The last read was successful and found what belongs in the file. Reads that fail do not change the
    /// answer for the record, which keeps what the read before gave: a page that could not load knows that
    /// itself.
    bool isRead(ConfigFile file) const;

    /// The file was changed by another road than `sendFileToCtrl`: what was read of it is no longer known to
    /// be there.
    void changed(const QString& ctrlPath);

    // The library's notes

    /// A working copy was read. `localPath` that is nobody's working copy is not noted.
    void noteRead(const QString& localPath, const QByteArray& bytes, bool recognised);
    /// A send has ended; `bytes` is null when it failed.
    void noteSent(const QString& ctrlPath, const QByteArray* bytes);
    /// The records are gone: nothing counts as read any more. The versions stay.
    void forgetReads();

private:
    struct Entry
    {
        Copy copy;
        int version = 0;
    };

    ControllerCopies() = default;

    QHash<QString, Entry> m_entries; ///< by controller path in lower case
};

#endif
