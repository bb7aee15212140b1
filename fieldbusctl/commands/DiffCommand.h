#ifndef FIELDBUSCTL_DIFFCOMMAND_H
#define FIELDBUSCTL_DIFFCOMMAND_H

#include "Command.h"
#include "FolderOptions.h"
#include "SettingChanges.h"

class LoadedFolder;

/// Tells what differs between two configurations, role by role and field by field.
class DiffCommand : public Command
{
public:
    void addOptions(CLI::App& app) override;
    ExitCode run(Console& console) override;

private:
    void print(const std::vector<Settings::Change>& changes, Console& console) const;

    FolderOptions m_folders;
    bool m_json = false;
    bool m_allLines = false;
};

/// From `before` to `after`, in the order of the files. A file that one of the two cannot hold is no
/// difference.
std::vector<Settings::Change> changesBetween(const LoadedFolder& before, const LoadedFolder& after);

#endif
