#include "FleetCommand.h"

#include "ConfigurationFindings.h"
#include "Console.h"
#include "DiffCommand.h"
#include "FindingText.h"
#include "JsonRows.h"
#include "OrderedPool.h"

#include <QJsonArray>
#include <QSet>

#include <algorithm>
#include <array>

using Tone = Console::Tone;

namespace {

constexpr int LeastPathWidth = 6;

struct Summary
{
    QString path;
    bool isRead;           // the list of roles
    QStringList roles;     // names of those that are on
    QStringList differing; // titles, each once
    std::array<int, 3> counts;

    int errors() const { return counts[2]; }
    int warnings() const { return counts[1]; }
    bool isFound() const { return !differing.isEmpty() || errors() + warnings() > 0; }
};

// What a column of the table has in common with the next: two blanks between them.
QString cell(const QString& text, int width)
{
    return text.leftJustified(width) + QLatin1String("  ");
}

QString textOf(const Summary& robot, const Console& console, int width)
{
    const QString roles = robot.isRead ? robot.roles.join(QLatin1Char(' ')) : QStringLiteral("?");
    const int differing = robot.differing.size();
    return console.painted(Tone::Plain, cell(robot.path, width)) +
           console.painted(robot.errors() > 0 ? Tone::Bad : Tone::Plain,
                           cell(QString::number(robot.errors()), 6)) +
           console.painted(robot.warnings() > 0 ? Tone::Warning : Tone::Plain,
                           cell(QString::number(robot.warnings()), 8)) +
           cell(differing == 0 ? QStringLiteral("-") : QString::number(differing), 10) +
           console.painted(Tone::Plain, roles) + QLatin1Char('\n');
}

QJsonObject jsonOf(const Summary& robot)
{
    const auto arrayOf = [](const QStringList& texts) { return QJsonArray::fromStringList(texts); };
    return {{"path", robot.path},
            {"roles", robot.isRead ? QJsonValue(arrayOf(robot.roles)) : QJsonValue()},
            {"differs", arrayOf(robot.differing)},
            {"errors", robot.errors()},
            {"warnings", robot.warnings()},
            {"information", robot.counts[0]}};
}

} // namespace

void FleetCommand::addOptions(CLI::App& app)
{
    m_folders.addMany(app);
    app.add_option("-j,--jobs", m_jobs, "folders at a time (one a core)");
    app.add_flag("--json", m_json, "print JSON");
}

FleetCommand::Robot FleetCommand::lookAt(const Folder& folder, const LoadedFolder& first,
                                         const Console& console, int width) const
{
    const LoadedFolder loaded(folder);
    const Configuration& configuration = loaded.configuration();
    Summary robot{folder.path, configuration.isRead(FileId::RoleList), {}, {}, {}};
    for (const RoleInfo& role : RoleTable::Roles) {
        if (configuration.isOn(role.id))
            robot.roles << QLatin1String(role.name);
    }
    for (const Settings::Change& change : changesBetween(first, loaded)) {
        if (!robot.differing.contains(change.title))
            robot.differing << change.title;
    }
    robot.counts = FindingText::counted(findingsOf(configuration));
    return {m_json ? JsonRows::bytesOf(jsonOf(robot)) : textOf(robot, console, width).toUtf8(),
            robot.differing.join(QLatin1String("; ")), loaded.troubles(),
            loaded.isIncomplete() ? ExitTrouble
            : robot.isFound()     ? ExitFound
                                  : ExitSame};
}

template <typename Use>
ExitCode FleetCommand::forEachRobot(const std::vector<Folder>& folders, const Console& console, int width,
                                    Use use) const
{
    const LoadedFolder first(folders.front());
    ExitCode worst = ExitSame;
    OrderedPool<Robot> pool(m_jobs);
    pool.run(
        folders.size(), [&](std::size_t i) { return lookAt(folders[i], first, console, width); },
        [&](std::size_t i, const Robot& robot) {
            for (const QString& trouble : robot.troubles)
                Console::complain(trouble);
            worst = std::max(worst, robot.code);
            use(i, robot);
        });
    return worst;
}

ExitCode FleetCommand::printTable(const std::vector<Folder>& folders, Console& console) const
{
    int width = LeastPathWidth;
    for (const Folder& folder : folders)
        width = std::max(width, static_cast<int>(folder.path.size()));
    console.line(console.painted(Tone::Heading, cell("Folder", width) + cell("Errors", 6) +
                                                    cell("Warnings", 8) + cell("Differs in", 10) +
                                                    "Roles that are on"));
    // Behind the table stands in what they differ. Most robots of a fleet differ in the same: a text is kept
    // once.
    QSet<QString> texts;
    std::vector<QString> differing;
    const ExitCode worst = forEachRobot(folders, console, width, [&](std::size_t, const Robot& robot) {
        console.data(robot.row);
        differing.push_back(*texts.insert(robot.differing));
    });
    for (std::size_t i = 0; i < folders.size(); ++i) {
        if (!differing[i].isEmpty())
            console.line(console.painted(Tone::Heading, folders[i].path) + QLatin1String(" differs in ") +
                         console.painted(Tone::Plain, differing[i]));
    }
    return worst;
}

ExitCode FleetCommand::printJson(const std::vector<Folder>& folders, Console& console) const
{
    JsonRows rows(console, "fleet", {}, "robots");
    return forEachRobot(folders, console, 0, [&](std::size_t, const Robot& robot) { rows.add(robot.row); });
}

ExitCode FleetCommand::run(Console& console)
{
    const std::vector<Folder> folders = m_folders.find();
    if (folders.empty())
        return ExitTrouble;
    return m_json ? printJson(folders, console) : printTable(folders, console);
}
