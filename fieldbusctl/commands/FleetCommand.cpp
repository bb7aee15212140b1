#include "FleetCommand.h"

#include "ConfigurationFindings.h"
#include "Console.h"
#include "DiffCommand.h"
#include "FindingText.h"
#include "OrderedPool.h"

#include <QJsonArray>

#include <algorithm>

using Tone = Console::Tone;

namespace {

// What a column of the table has in common with the next: two blanks between them.
QString cell(const QString& text, int width)
{
    return text.leftJustified(width) + QLatin1String("  ");
}

QJsonArray arrayOf(const QStringList& texts)
{
    return QJsonArray::fromStringList(texts);
}

} // namespace

void FleetCommand::addOptions(CLI::App& app)
{
    m_folders.addMany(app);
    app.add_option("-j,--jobs", m_jobs, "folders at a time (one a core)");
    app.add_flag("--json", m_json, "print JSON");
}

FleetCommand::Robot FleetCommand::lookAt(const Folder& folder, const LoadedFolder& first)
{
    const LoadedFolder loaded(folder);
    Robot robot;
    robot.path = folder.path;
    robot.troubles = loaded.troubles();
    robot.isIncomplete = loaded.isIncomplete();
    robot.isRead = loaded.configuration().isRead(FileId::RoleList);
    for (const RoleInfo& role : RoleTable::Roles) {
        if (loaded.configuration().isOn(role.id))
            robot.roles << QLatin1String(role.name);
    }
    for (const Settings::Change& change : changesBetween(first, loaded)) {
        if (!robot.differing.contains(change.title))
            robot.differing << change.title;
    }
    robot.counts = FindingText::counted(findingsOf(loaded.configuration()));
    return robot;
}

void FleetCommand::print(const std::vector<Robot>& robots, Console& console)
{
    int width = 6;
    for (const Robot& robot : robots)
        width = std::max(width, robot.path.size());
    console.line(console.painted(Tone::Heading, cell("Folder", width) + cell("Errors", 6) +
                                                    cell("Warnings", 8) + cell("Differs in", 10) +
                                                    "Roles that are on"));
    for (const Robot& robot : robots) {
        const QString roles = robot.isRead ? robot.roles.join(QLatin1Char(' ')) : QStringLiteral("?");
        const int errors = robot.counts[2];
        const int warnings = robot.counts[1];
        console.line(
            console.painted(Tone::Plain, cell(robot.path, width)) +
            console.painted(errors > 0 ? Tone::Bad : Tone::Plain, cell(QString::number(errors), 6)) +
            console.painted(warnings > 0 ? Tone::Warning : Tone::Plain, cell(QString::number(warnings), 8)) +
            cell(robot.differing.isEmpty() ? QStringLiteral("-") : QString::number(robot.differing.size()),
                 10) +
            console.painted(Tone::Plain, roles));
    }
    for (const Robot& robot : robots) {
        if (!robot.differing.isEmpty())
            console.line(console.painted(Tone::Heading, robot.path) + QLatin1String(" differs in ") +
                         console.painted(Tone::Plain, robot.differing.join(QLatin1String("; "))));
    }
}

ExitCode FleetCommand::run(Console& console)
{
    const std::vector<Folder> folders = m_folders.find();
    if (folders.empty())
        return ExitTrouble;
    const LoadedFolder first(folders.front());
    std::vector<Robot> robots;
    ExitCode worst = ExitSame;
    OrderedPool<Robot> pool(m_jobs);
    pool.run(
        folders.size(), [&](std::size_t i) { return lookAt(folders[i], first); },
        [&](std::size_t, Robot&& robot) {
            for (const QString& trouble : robot.troubles)
                Console::complain(trouble);
            const bool isFound = !robot.differing.isEmpty() || robot.counts[1] + robot.counts[2] > 0;
            worst = std::max(worst, robot.isIncomplete ? ExitTrouble : isFound ? ExitFound : ExitSame);
            robots.push_back(std::move(robot));
        });
    if (!m_json) {
        print(robots, console);
        return worst;
    }
    QJsonArray rows;
    for (const Robot& robot : robots)
        rows.append(QJsonObject{{"path", robot.path},
                                {"roles", robot.isRead ? QJsonValue(arrayOf(robot.roles)) : QJsonValue()},
                                {"differs", arrayOf(robot.differing)},
                                {"errors", robot.counts[2]},
                                {"warnings", robot.counts[1]},
                                {"information", robot.counts[0]}});
    console.json("fleet", {{"robots", rows}});
    return worst;
}
