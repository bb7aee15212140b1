#ifndef BENCHMARKS_EXPORTDRIVE_H
#define BENCHMARKS_EXPORTDRIVE_H

#include "KnownFiles.h"

#include <QTemporaryDir>

#include <string>
#include <vector>

/// A drive with exports of the factory's configuration, for as long as it lives.
class ExportDrive
{
public:
    struct File
    {
        std::string path;
        bool isXml;
    };

    /// A few folders' worth, for a thread to take at once.
    static constexpr std::size_t FilesTaken = 4 * ExportedFileCount;

    explicit ExportDrive(int folders);

    bool isMade() const { return m_isMade; }
    std::string path() const { return m_root.path().toStdString(); }
    /// Of all folders, one after the other.
    const std::vector<File>& files() const { return m_files; }

private:
    QTemporaryDir m_root;
    std::vector<File> m_files;
    bool m_isMade = true;
};

#endif
