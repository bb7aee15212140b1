#include "DiffCommand.h"

#include "Console.h"
#include "KnownFiles.h"
#include "LoadedFolder.h"

#include <QJsonArray>

using Settings::Change;
using Tone = Console::Tone;

namespace {

// Lines of one file that are shown unless all are asked for: a device description has thousands.
constexpr int LinesShown = 20;

const char* kindName(Change::Kind kind)
{
    switch (kind) {
    case Change::Kind::Field:
        return "field";
    case Change::Kind::Line:
        return "line";
    case Change::Kind::File:
        break;
    }
    return "file";
}

QJsonObject jsonOf(const Change& change)
{
    return {{"kind", kindName(change.kind)},
            {"file", change.path},
            {"role", change.role ? QJsonValue(QLatin1String(change.role->name)) : QJsonValue()},
            {"group", change.title},
            {"field", change.field},
            {"before", change.before},
            {"after", change.after}};
}

Tone toneOf(const Settings::Sentence& sentence)
{
    if (sentence.kind != Change::Kind::Line)
        return Tone::Plain;
    return sentence.text.startsWith(QLatin1Char('-')) ? Tone::Bad : Tone::Good;
}

} // namespace

std::vector<Change> changesBetween(const LoadedFolder& before, const LoadedFolder& after)
{
    std::vector<Change> all;
    for (const KnownFile& file : KnownFiles::all()) {
        if (!before.isExpected(file) || !after.isExpected(file))
            continue;
        const std::vector<Change> found =
            Settings::changes(QLatin1String(file.name), before.bytes(file), after.bytes(file));
        all.insert(all.end(), found.begin(), found.end());
    }
    return all;
}

void DiffCommand::addOptions(CLI::App& app)
{
    m_folders.addTwo(app, "A", "B");
    app.add_flag("--lines", m_allLines, "every line of files that hold no settings, not the first 20");
    app.add_flag("--json", m_json, "print JSON");
}

void DiffCommand::print(const std::vector<Change>& changes, Console& console) const
{
    QString linesOf;
    int lines = 0;
    const auto tellLeftOut = [&] {
        if (!m_allLines && lines > LinesShown)
            console.line(console.painted(
                Tone::Faint, QStringLiteral("%1: %2 more lines").arg(linesOf).arg(lines - LinesShown)));
    };
    for (const Settings::Sentence& sentence : Settings::inWords(changes)) {
        const bool isLine = sentence.kind == Change::Kind::Line;
        if (!isLine || sentence.title != linesOf) {
            tellLeftOut();
            linesOf = isLine ? sentence.title : QString();
            lines = 0;
        }
        if (isLine && ++lines > LinesShown && !m_allLines)
            continue;
        console.line(console.painted(Tone::Heading, sentence.title) + QLatin1String(": ") +
                     console.painted(toneOf(sentence), sentence.text));
    }
    tellLeftOut();
}

ExitCode DiffCommand::run(Console& console)
{
    const std::vector<Folder> folders = m_folders.find();
    if (folders.size() != 2)
        return ExitTrouble;
    const LoadedFolder before(folders[0]);
    const LoadedFolder after(folders[1]);
    for (const QString& trouble : before.troubles() + after.troubles())
        Console::complain(trouble);
    const std::vector<Change> changes = changesBetween(before, after);
    if (m_json) {
        QJsonArray rows;
        for (const Change& change : changes)
            rows.append(jsonOf(change));
        console.json("diff", {{"a", before.json()}, {"b", after.json()}, {"changes", rows}});
    } else {
        print(changes, console);
    }
    if (before.isIncomplete() || after.isIncomplete())
        return ExitTrouble;
    return changes.empty() ? ExitSame : ExitFound;
}
