#ifndef SUPPORTBUNDLE_H
#define SUPPORTBUNDLE_H

#include "Checksums.h"
#include "KnownFiles.h"

#include <QByteArray>
#include <QString>

#include <array>
#include <functional>
#include <optional>

struct Configuration;
struct RunningState;

/// What a service engineer needs, on a USB drive: the export folder as an import takes it, and beside it,
/// under the folder's name, the report, the history and the checksums of the folder.
///
/// Every file comes twice alike from the controller before any is written to the drive, and each is read back
/// from the drive and compared. What is on the drive already is not written into, and nothing on it is
/// removed. Events are processed between the files.
class SupportBundle
{
public:
    enum class Result { Done, Unwanted, NotFetched, TooLarge, DriveGone, DriveFailed, LocalFailed };

    /// Called before each file; false: it is no longer wanted.
    using Step = std::function<bool(int step, int steps)>;

    /// `drive`: path under which the host named the drive; `folder`: where a file lies on its way.
    SupportBundle(QString drive, QString folder, Step step);

    /// `known` is what is known besides the exported files; `history` the lines of the history.
    Result run(const Configuration& known, const RunningState& running, const QByteArray& history);

    /// What the result is about.
    QString subject() const { return m_subject; }
    /// Name of the export folder.
    QString name() const { return m_name; }

private:
    Result fetchAll();
    std::optional<QByteArray> fetchTwice(const KnownFile& file) const;
    Result makeFolder();
    Result write(const QString& name, const QByteArray& bytes);
    bool isDriveThere() const;
    bool isWanted();

    QString m_drive;
    QString m_folder;
    Step m_step;
    int m_steps = 0;
    std::array<QByteArray, ExportedFileCount> m_files;
    QString m_name;
    QString m_subject;
};

#endif
