#ifndef CONTROLLERFILES_H
#define CONTROLLERFILES_H

#include "KnownFiles.h"

#include <QByteArray>
#include <QString>

#include <array>
#include <optional>

/// This application's own copies of the controller's files. A step fetches one file, so that who steps
/// decides how long the screen waits.
///
/// A transfer may break a file: one that is not what its name says is fetched again, and believed when it
/// comes the same way twice.
class ControllerFiles
{
public:
    /// `folder`: where a fetched file lies until it is read; made when it is not there.
    explicit ControllerFiles(const QString& folder);

    void want(FileId file);
    void wantAll();
    int wanted() const { return m_wanted; }

    /// What became of a file.
    struct Step
    {
        FileId file;
        bool isChanged; ///< its bytes differ from those that were known
        std::optional<QByteArray> before;
    };
    /// Fetches a file that is wanted; nothing when there is none, or when the file has to be tried again.
    std::optional<Step> step();

    /// Nothing for a file that could not be had so far.
    const std::optional<QByteArray>& bytes(FileId file) const { return at(file).bytes; }
    /// Whether the last try to fetch it failed: `bytes` are older then.
    bool isFailed(FileId file) const { return at(file).isFailed; }

private:
    struct Copy
    {
        std::optional<QByteArray> bytes;
        std::optional<QByteArray> doubtful;
        int tries = 0;
        bool isWanted = false;
        bool isFailed = false;
    };

    const Copy& at(FileId file) const { return m_copies[static_cast<std::size_t>(file)]; }
    std::optional<QByteArray> fetch(const KnownFile& file) const;
    std::optional<Step> take(const KnownFile& file, std::optional<QByteArray> fetched);

    QString m_folder;
    std::array<Copy, FileCount> m_copies;
    std::size_t m_next = 0;
    int m_wanted = 0;
};

#endif
