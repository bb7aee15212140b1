#ifndef FIELDBUSCTL_REPORTCOMMAND_H
#define FIELDBUSCTL_REPORTCOMMAND_H

#include "Command.h"
#include "FolderOptions.h"

#include <string>

/// Writes a configuration on one page, for the file or the wall.
class ReportCommand : public Command
{
public:
    void addOptions(CLI::App& app) override;
    ExitCode run(Console& console) override;

private:
    FolderOptions m_folders;
    std::string m_target;
    bool m_json = false;
};

#endif
