#ifndef FIELDBUSCTL_IOLISTCOMMAND_H
#define FIELDBUSCTL_IOLISTCOMMAND_H

#include "Command.h"
#include "FolderOptions.h"
#include "IoList.h"

#include <functional>
#include <string>

/// Lists the I/O mapping, a row a range or a row a point.
class IolistCommand : public Command
{
public:
    void addOptions(CLI::App& app) override;
    ExitCode run(Console& console) override;

private:
    void forEachRow(const std::vector<IoRow>& ranges, const std::function<void(const IoRow&)>& use) const;
    void print(const std::vector<IoRow>& ranges, const Folder& folder, Console& console) const;

    FolderOptions m_folders;
    std::string m_role;
    std::string m_mode;
    bool m_expand = false;
    bool m_csv = false;
    bool m_html = false;
    bool m_json = false;
};

#endif
