#ifndef CONTROLLER_TRAFFIC_H
#define CONTROLLER_TRAFFIC_H

#include <QObject>
#include <QString>
#include <QStringList>
#include <QVector>

/// What the controller was asked for since the last `clear()`, failed requests included. The lists keep the
/// last `MaxEntries`; the counters count on.
class Traffic : public QObject
{
    Q_OBJECT

public:
    enum Kind { Fetch, Store, Remove };

    struct Write
    {
        QString name;
        int element;
        double value;
    };

    /// Controller paths as they were spelled, oldest first.
    QStringList fetches() const { return m_paths[Fetch]; }
    QStringList stores() const { return m_paths[Store]; }
    /// Variables that the pendant wrote, oldest first.
    const QVector<Write>& writes() const { return m_writes; }

    int count(Kind kind) const { return m_counts[kind]; }
    int failed(Kind kind) const { return m_failed[kind]; }
    int writeCount() const { return m_writeCount; }
    /// Restarts that were asked for, refused ones included.
    int restartRequests() const { return m_restartRequests; }

    void clear();

    void addTransfer(Kind kind, const QString& path, bool success);
    void addWrite(const QString& name, int element, double value);
    void addRestartRequest(bool taken);
    /// Something that happened at the controller by itself; for the log only.
    void addNote(const QString& text);

    static constexpr int MaxEntries = 10000;

signals:
    /// One line for a log.
    void logged(const QString& line);

private:
    QStringList m_paths[3];
    int m_counts[3] = {};
    int m_failed[3] = {};
    QVector<Write> m_writes;
    int m_writeCount = 0;
    int m_restartRequests = 0;
};

#endif
