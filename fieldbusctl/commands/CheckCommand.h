#ifndef FIELDBUSCTL_CHECKCOMMAND_H
#define FIELDBUSCTL_CHECKCOMMAND_H

#include "Command.h"
#include "Finding.h"
#include "FolderOptions.h"

#include <QJsonObject>
#include <QStringList>

#include <string>

/// Tells what is wrong with configurations.
class CheckCommand : public Command
{
public:
    void addOptions(CLI::App& app) override;
    ExitCode run(Console& console) override;

private:
    struct Checked
    {
        Findings findings;
        QStringList troubles;
        bool isIncomplete = false;
        QJsonObject folder;
    };
    static Checked check(const Folder& folder);

    void print(const Folder& folder, const Findings& findings, Console& console) const;
    ExitCode codeOf(const Checked& checked) const;

    FolderOptions m_folders;
    std::string m_failOn = "warning";
    unsigned m_jobs = 0;
    bool m_quiet = false;
    bool m_json = false;
};

#endif
