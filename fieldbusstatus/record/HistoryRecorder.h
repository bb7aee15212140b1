#ifndef HISTORYRECORDER_H
#define HISTORYRECORDER_H

#include "ControllerWatch.h"
#include "EventLog.h"
#include "StatusEvent.h"
#include "VersionStore.h"

#include <QElapsedTimer>
#include <QObject>

#include <vector>

/// Writes down what happens, from the moment the pendant starts. It hears of links and answers by the watch,
/// and looks whether a file was sent on every tick, which costs one question to the disk and no allocation
/// when there is none.
class HistoryRecorder : public QObject
{
public:
    /// `folder`: working folder of this application; made when it is not there.
    HistoryRecorder(ControllerWatch& watch, const QString& folder, VersionStore store);

    void tick();

    /// The oldest first; read from the disk.
    std::vector<StatusEvent> events() const;
    /// Rises with every event.
    int version() const { return m_version; }
    const QString& path() const { return m_log.path(); }

private:
    /// What tells one state of a file from another.
    struct Stamp
    {
        qint64 seconds = 0;
        qint64 nanoseconds = 0;
        qint64 node = 0;
        bool operator==(const Stamp& other) const
        {
            return seconds == other.seconds && nanoseconds == other.nanoseconds && node == other.node;
        }
    };

    void record(StatusEvent event);
    void hearVariable(const QString& name, int before, int now);
    void hearContact(ControllerWatch::Contact contact);
    Stamp stampOfVersions() const;
    void recordVersions();

    EventLog m_log;
    VersionStore m_store;
    QByteArray m_indexPath; ///< as the system takes it
    Stamp m_seen;
    qint64 m_lastVersion = 0;
    qint64 m_lookAgainAt = -1; ///< ms of m_time; -1 never
    QElapsedTimer m_time;
    std::array<qint64, RoleCount> m_lostAt;
    qint64 m_contactLostAt = -1;
    int m_version = 0;
};

#endif
