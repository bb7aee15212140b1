#ifndef FIELDBUSCTL_VERIFYCOMMAND_H
#define FIELDBUSCTL_VERIFYCOMMAND_H

#include "Command.h"
#include "FolderOptions.h"

#include <optional>

class JsonRows;

/// Compares folders with the checksums that were written when they were sealed.
class VerifyCommand : public Command
{
public:
    void addOptions(CLI::App& app) override;
    ExitCode run(Console& console) override;

private:
    static ExitCode verify(const Folder& folder, Console& console, std::optional<JsonRows>& rows);

    FolderOptions m_folders;
    bool m_json = false;
};

#endif
