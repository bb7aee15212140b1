#ifndef FIELDBUSCTL_FLEETCOMMAND_H
#define FIELDBUSCTL_FLEETCOMMAND_H

#include "Command.h"
#include "FolderOptions.h"
#include "LoadedFolder.h"

#include <array>

/// Many robots in a table: which roles are on, what differs from the first, how much is found.
class FleetCommand : public Command
{
public:
    void addOptions(CLI::App& app) override;
    ExitCode run(Console& console) override;

private:
    struct Robot
    {
        QString path;
        QStringList roles;     ///< names of those that are on
        QStringList differing; ///< titles of what differs from the first, each once
        std::array<int, 3> counts{};
        QStringList troubles;
        bool isIncomplete = false;
        bool isRead = false; ///< the list of roles could be read
    };
    static Robot lookAt(const Folder& folder, const LoadedFolder& first);
    static void print(const std::vector<Robot>& robots, Console& console);

    FolderOptions m_folders;
    unsigned m_jobs = 0;
    bool m_json = false;
};

#endif
