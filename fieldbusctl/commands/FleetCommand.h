#ifndef FIELDBUSCTL_FLEETCOMMAND_H
#define FIELDBUSCTL_FLEETCOMMAND_H

#include "Command.h"
#include "FolderOptions.h"
#include "LoadedFolder.h"

/// Many robots in a table: which roles are on, what differs from the first, how much is found.
class FleetCommand : public Command
{
public:
    void addOptions(CLI::App& app) override;
    ExitCode run(Console& console) override;

private:
    struct Robot
    {
        QByteArray row;    ///< as it is printed
        QString differing; ///< titles of what differs from the first, each once
        QStringList troubles;
        ExitCode code = ExitSame;
    };
    /// In any thread. A path is `width` wide in the table.
    Robot lookAt(const Folder& folder, const LoadedFolder& first, const Console& console, int width) const;
    ExitCode printTable(const std::vector<Folder>& folders, Console& console) const;
    ExitCode printJson(const std::vector<Folder>& folders, Console& console) const;
    template <typename Use>
    ExitCode forEachRobot(const std::vector<Folder>& folders, const Console& console, int width,
                          Use use) const;

    FolderOptions m_folders;
    unsigned m_jobs = 0;
    bool m_json = false;
};

#endif
