#include "FolderOptions.h"

#include "Console.h"

void FolderOptions::addOne(CLI::App& app)
{
    app.add_option("FOLDER", m_first, "export, drive with exports, or a controller's files")->required();
}

void FolderOptions::addMany(CLI::App& app)
{
    app.add_option("FOLDER", m_paths, "exports, drives with exports, or controllers' files")->required();
    app.add_flag("--all", m_all, "every export of a drive, not the newest alone");
}

void FolderOptions::addTwo(CLI::App& app, const char* first, const char* second)
{
    app.add_option(first, m_first, "the one")->required();
    app.add_option(second, m_second, "the other")->required();
}

std::vector<Folder> FolderOptions::find() const
{
    std::vector<std::string> paths = m_paths;
    for (const std::string& path : {m_first, m_second}) {
        if (!path.empty())
            paths.push_back(path);
    }
    QString trouble;
    std::vector<Folder> folders =
        Folders::find(paths, m_all ? Folders::Choice::All : Folders::Choice::Newest, trouble);
    if (!trouble.isEmpty())
        Console::complain(trouble);
    return folders;
}
