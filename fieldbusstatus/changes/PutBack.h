#ifndef PUTBACK_H
#define PUTBACK_H

#include "FileChanges.h"

/// Brings the former files of one change back to the controller: those that still are what was sent then.
/// What was changed since is not written over, nor is anything written while the robot may move. Each file is
/// fetched again right before it is sent, kept as a version of its own, and fetched back afterwards.
///
/// It knows no page: what was begun is ended when the page is closed in the middle. Events are processed
/// while the controller is waited for.
class PutBack
{
public:
    enum class Result {
        Done,
        Nothing,      ///< the controller holds the former files already
        NotKept,      ///< their bytes are not to be had
        NotFetched,   ///< the controller does not give a present file
        ChangedSince, ///< a present file is not what was sent
        RobotMoves,
        NoRoom, ///< the pendant's disk does not take what is to be kept
        NotArrived
    };

    /// `folder`: where a file lies on its way.
    PutBack(VersionStore store, FileChanges::Change change, QString folder);

    /// Whether all former files were kept, so that this can be tried.
    static bool isPossible(const FileChanges::Change& change);
    static bool isRobotAtRest();

    /// Compares all present files before the first one is sent.
    Result look();
    /// To be called when `look` said `Done`.
    Result send();

    /// The file that the result is about.
    QString file() const { return m_file; }
    /// Names of those that are back.
    QStringList putBack() const { return m_done; }
    /// Whether what was put back takes effect with a restart only.
    bool needsRestart() const { return m_needsRestart; }

private:
    Result judge(const FileVersion& version);
    Result sendOne(const FileVersion& version);
    bool deliver(const FileVersion& version, const QByteArray& former);
    std::optional<QByteArray> fetch(const QString& ctrlPath) const;

    VersionStore m_store;
    FileChanges::Change m_change;
    QString m_folder;
    FileChanges::Change m_toSend;
    QByteArray m_present; ///< of the file that was judged last
    QString m_file;
    QStringList m_done;
    qint64 m_group = 0;
    bool m_needsRestart = false;
};

#endif
