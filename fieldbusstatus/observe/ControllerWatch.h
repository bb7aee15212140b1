#ifndef CONTROLLERWATCH_H
#define CONTROLLERWATCH_H

#include "CameUp.h"
#include "Configuration.h"
#include "ControllerFiles.h"
#include "Finding.h"
#include "ObservedVariables.h"
#include "RunningState.h"
#include "Subjects.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <QObject>

/// What is known of the controller at present, and what is wrong with it. It follows the variables by
/// subscription and fetches the files when the controller comes up, when something announces a change of one,
/// and when `refresh` asks for it.
///
/// It lives on ticks and knows no widget. A tick after which nothing has changed costs no allocation.
class ControllerWatch : public QObject
{
    Q_OBJECT

public:
    enum class Contact {
        Waiting, ///< the controller was not heard so far
        There,
        Lost ///< its clock stands still: it restarts, or is gone
    };

    /// `folder`: working folder of this application.
    explicit ControllerWatch(const QString& folder, QObject* parent = nullptr);

    void tick();
    /// Fetches all files again, by and by.
    void refresh();

    Contact contact() const { return m_contact; }
    /// Files that are still to be fetched.
    int filesToCome() const { return m_files.wanted(); }
    /// Whether what is told is what is: the controller is there and all its files were fetched once.
    bool isSettled() const { return m_contact == Contact::There && m_isRead; }
    /// When the last of the files came; not valid before that.
    const QDateTime& readAt() const { return m_readAt; }
    /// Whether the last try to fetch a file failed, and an older state of it is shown.
    const ControllerFiles& files() const { return m_files; }

    const Configuration& configuration() const { return m_configuration; }
    const RunningState& running() const { return m_running; }
    const Findings& findings() const { return m_findings; }
    const Subjects::State& subject(Subjects::Id id) const { return m_subjects[id]; }

    /// Rises whenever something of the above has changed.
    int version() const { return m_version; }

signals:
    /// A variable has another value than before; an element of a vector is "ifidbus.dnm_status[3]".
    void variableChanged(const QString& name, int before, int now);
    /// A file was fetched that differs from what was known; null bytes: it was not known, or is not there.
    void fileChanged(FileId file, const QByteArray& before, const QByteArray& now);
    void contactChanged(ControllerWatch::Contact contact);

private:
    void followClock();
    void heard();
    void followVariables();
    void follow(const ObservedVariables::Change& change);
    void fetchNext();
    void readFiles();
    void cameUpWith(const CameUp::Files& files);
    CameUp::Files restartFiles() const;
    void evaluate();
    /// The values that the findings go by: without what the controller still has time to take.
    void gatherVariables();
    void gatherDownTimes();
    void judgeSubjects();

    struct Standing
    {
        qint64 since = -1; ///< ms of m_time; -1 while nothing stands
    };

    ObservedVariables m_variables;
    ControllerFiles m_files;
    CameUp m_cameUp;
    QElapsedTimer m_time; ///< of this object: what else is counted in ms is its reading

    Contact m_contact = Contact::Waiting;
    double m_clock = 0.0;
    bool m_isClockKnown = false;
    qint64 m_clockMoved = 0;
    int m_ticksStill = 0;

    bool m_isCameUpPending = false; ///< the files that are on the way are those that came up
    bool m_isRead = false;
    bool m_areFilesChanged = false;
    QDateTime m_readAt;

    std::vector<Standing> m_standing;          ///< by announcement
    std::array<qint64, RoleCount> m_downSince; ///< -1 while the link is up
    RoleTable::States m_announced{};

    bool m_isDirty = true;
    qint64 m_nextLook = -1; ///< when time alone changes what is to be told; -1 never
    Configuration m_configuration;
    RunningState m_running;
    Findings m_findings;
    std::array<Subjects::State, Subjects::Count> m_subjects;
    bool m_isJudged = false;
    int m_version = 0;
};

#endif
