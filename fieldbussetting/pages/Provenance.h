#ifndef PROVENANCE_H
#define PROVENANCE_H

#include "FileLocations.h"

#include <QDateTime>

#include <vector>

/// Where the contents of a page came from: which of the controller's files, read when and at which versions
/// of them.
class Provenance
{
public:
    enum class State {
        Nothing, ///< not loaded yet
        Read,    ///< all files were read
        NotRead  ///< one of them was not: what is shown are not the controller's settings
    };

    /// The page is about to fetch these files. What changes from now on is newer than what is read.
    void begin(const std::vector<ConfigFile>& files);
    /// It has read them all, the first of them at `time`, or has not.
    void end(bool read, const QDateTime& time);

    State state() const { return m_state; }
    /// When they were read.
    QDateTime time() const { return m_time; }
    /// Whether one of the files was changed on the controller since the page fetched it. Never before the
    /// first fetch.
    bool isOutdated() const;

    std::vector<ConfigFile> files() const;
    /// The page holds the present version: it sent the file.
    void accept(ConfigFile file);
    /// The present versions are to be replaced by what stands on the page.
    void acceptAll();

private:
    struct Source
    {
        ConfigFile file;
        int version;
    };

    std::vector<Source> m_sources;
    State m_state = State::Nothing;
    QDateTime m_time;
};

#endif
