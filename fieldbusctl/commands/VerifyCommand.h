#ifndef FIELDBUSCTL_VERIFYCOMMAND_H
#define FIELDBUSCTL_VERIFYCOMMAND_H

#include "Command.h"
#include "FolderOptions.h"

#include <QJsonArray>

/// Compares folders with the checksums that were written when they were sealed.
class VerifyCommand : public Command
{
public:
    void addOptions(CLI::App& app) override;
    ExitCode run(Console& console) override;

private:
    ExitCode verify(const Folder& folder, Console& console, QJsonArray& verified) const;

    FolderOptions m_folders;
    bool m_json = false;
};

#endif
