#include "ReportCommand.h"

#include "ConfigurationFindings.h"
#include "Console.h"
#include "LoadedFolder.h"
#include "Report.h"
#include "Seal.h"
#include "WholeFile.h"

#include <QJsonObject>

void ReportCommand::addOptions(CLI::App& app)
{
    m_folders.addOne(app);
    app.add_option("-o,--output", m_target, "the page that is written")->required();
    app.add_flag("--json", m_json, "print JSON about what was written");
}

ExitCode ReportCommand::run(Console& console)
{
    const std::vector<Folder> folders = m_folders.find();
    if (folders.empty())
        return ExitTrouble;
    const LoadedFolder folder(folders.front());
    QString trouble;
    const std::optional<Seal::Sums> sums = Seal::of(folders.front(), trouble);
    const QByteArray page = sums ? reportOf(folder.folder().name(), folder.configuration(),
                                            findingsOf(folder.configuration()), folder.troubles(), *sums)
                                 : QByteArray();
    const QString target = QString::fromStdString(m_target);
    if (sums && !WholeFile::replace(target, page))
        trouble = QStringLiteral("%1: cannot be written").arg(target);
    if (!trouble.isEmpty()) {
        Console::complain(trouble);
        return ExitTrouble;
    }
    if (m_json)
        console.json("report", {{"folder", folder.json()}, {"page", target}, {"bytes", page.size()}});
    return ExitSame;
}
