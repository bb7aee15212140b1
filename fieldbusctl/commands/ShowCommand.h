#ifndef FIELDBUSCTL_SHOWCOMMAND_H
#define FIELDBUSCTL_SHOWCOMMAND_H

#include "Command.h"
#include "FolderOptions.h"

#include <string>

/// Shows a configuration: the roles that are on with their settings, their mapping and their heartbeat.
class ShowCommand : public Command
{
public:
    void addOptions(CLI::App& app) override;
    ExitCode run(Console& console) override;

private:
    FolderOptions m_folders;
    std::string m_role;
    bool m_json = false;
};

#endif
