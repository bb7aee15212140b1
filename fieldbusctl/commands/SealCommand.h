#ifndef FIELDBUSCTL_SEALCOMMAND_H
#define FIELDBUSCTL_SEALCOMMAND_H

#include "Command.h"
#include "FolderOptions.h"

/// Writes the checksums of folders beside them.
class SealCommand : public Command
{
public:
    void addOptions(CLI::App& app) override;
    ExitCode run(Console& console) override;

private:
    FolderOptions m_folders;
    bool m_json = false;
};

#endif
