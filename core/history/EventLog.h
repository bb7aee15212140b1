#ifndef EVENTLOG_H
#define EVENTLOG_H

#include "WholeFile.h"

#include <QJsonObject>

#include <vector>

/// A log of JSON lines in a file of bounded size that outlasts the pendant. A line is appended whole or not
/// at all: what a power failure or a full disk leaves of one is cut off before the next is written. A file
/// that is full is replaced, in one step, by its newer half.
///
/// A line that the disk does not take now is written with the next one; of such lines the last `MostWaiting`
/// are held.
class EventLog
{
public:
    static constexpr qint64 MostBytes = qint64(512) * 1024;
    static constexpr std::size_t MostWaiting = 200;

    explicit EventLog(QString path, qint64 mostBytes = MostBytes, WholeFile::Sync sync = nullptr);

    /// The oldest first, with those that wait for the disk.
    std::vector<QJsonObject> events() const;
    /// False when it has to wait for the disk.
    bool append(const QJsonObject& event);
    /// Whether all that was appended is on the disk.
    bool isWritten() const { return m_waiting.empty(); }
    const QString& path() const { return m_path; }

private:
    bool write(const QByteArray& lines) const;
    bool halve() const;

    QString m_path;
    qint64 m_mostBytes;
    WholeFile::Sync m_sync;
    std::vector<QJsonObject> m_waiting;
};

#endif
