#ifndef FIELDBUSCTL_FOLDEROPTIONS_H
#define FIELDBUSCTL_FOLDEROPTIONS_H

#include "Folders.h"

#include <CLI/CLI.hpp>

#include <string>
#include <vector>

/// The folders that a command works on, as options.
class FolderOptions
{
public:
    /// One folder; of a drive the newest export.
    void addOne(CLI::App& app);
    /// One or more, with --all for every export of a drive.
    void addMany(CLI::App& app);
    /// Two of them, by the names `first` and `second`.
    void addTwo(CLI::App& app, const char* first, const char* second);

    /// The folders; nothing, after a complaint, when one of them holds no configuration.
    std::vector<Folder> find() const;

private:
    std::vector<std::string> m_paths;
    std::string m_first;
    std::string m_second;
    bool m_all = false;
};

#endif
