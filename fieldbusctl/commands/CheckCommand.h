#ifndef FIELDBUSCTL_CHECKCOMMAND_H
#define FIELDBUSCTL_CHECKCOMMAND_H

#include "Command.h"
#include "Finding.h"
#include "FolderOptions.h"

#include <QStringList>

#include <string>

class LoadedFolder;

/// Tells what is wrong with configurations.
class CheckCommand : public Command
{
public:
    void addOptions(CLI::App& app) override;
    ExitCode run(Console& console) override;

private:
    struct Checked
    {
        QByteArray told; ///< as it is printed
        QStringList troubles;
        ExitCode code = ExitSame;
    };
    /// In any thread: all that can be done before the folders before it are done.
    Checked check(const Folder& folder, const Console& console) const;
    ExitCode codeOf(const LoadedFolder& folder, const Findings& findings) const;
    QString textOf(const Folder& folder, const Findings& findings, const Console& console) const;

    FolderOptions m_folders;
    std::string m_failOn = "warning";
    unsigned m_jobs = 0;
    bool m_quiet = false;
    bool m_json = false;
};

#endif
