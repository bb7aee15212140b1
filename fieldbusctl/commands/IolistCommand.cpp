#include "IolistCommand.h"

#include "Console.h"
#include "HtmlPage.h"
#include "JsonRows.h"
#include "LoadedFolder.h"
#include "RoleSettings.h"

#include <QJsonObject>

#include <numeric>

namespace {

// A bus carries a few thousand variables. What asks for more than all buses can have is no mapping.
constexpr qint64 MostPoints = 250'000;

constexpr int Widths[] = {18, 14, 6, 26, 6, 8, 8, 4, 8, 6};

qint64 pointsOf(const std::vector<IoRow>& ranges)
{
    return std::accumulate(ranges.begin(), ranges.end(), qint64{0}, [](qint64 sum, const IoRow& row) {
        return sum + row.lastIndex - row.firstIndex + 1;
    });
}

// Quoted where a comma, a quote or a line end asks for it; none of the tool's own texts does.
QByteArray csvLine(const QStringList& cells)
{
    QStringList quoted;
    for (QString cell : cells) {
        const bool needsQuotes = cell.contains(QLatin1Char(',')) || cell.contains(QLatin1Char('"'));
        quoted << (needsQuotes ? QLatin1Char('"') + cell.replace(QLatin1Char('"'), QLatin1String("\"\"")) +
                                     QLatin1Char('"')
                               : cell);
    }
    return quoted.join(QLatin1Char(',')).toUtf8() + "\r\n";
}

QString aligned(const QStringList& cells)
{
    QString line;
    for (int i = 0; i < cells.size(); ++i)
        line += cells[i].leftJustified(Widths[i]) + QLatin1Char(' ');
    return line.trimmed();
}

QJsonValue jsonOf(const std::optional<quint32>& number)
{
    return number ? QJsonValue(qint64(*number)) : QJsonValue();
}

QJsonObject jsonOf(const IoRow& row)
{
    return {{"role", row.role->name},
            {"direction", MappingFile::DirectionNames[static_cast<std::size_t>(row.direction)]},
            {"type", row.typeName()},
            {"variable", row.key},
            {"firstIndex", row.firstIndex},
            {"lastIndex", row.lastIndex},
            {"system", row.isSystem},
            {"unit", row.isRegister ? "register" : "byte"},
            {"first", jsonOf(row.first)},
            {"last", jsonOf(row.last)},
            {"bit", row.bit ? QJsonValue(*row.bit) : QJsonValue()},
            {"mode", row.modeName()}};
}

} // namespace

void IolistCommand::addOptions(CLI::App& app)
{
    m_folders.addOne(app);
    app.add_option("--role", m_role, "one role alone, be it on or off; without it all that are on");
    app.add_option("--mode", m_mode, "free or fixed; without it the one that runs")
        ->check(CLI::IsMember({"free", "fixed"}));
    app.add_flag("--expand", m_expand, "a row a variable, not a row a range");
    auto* csv = app.add_flag("--csv", m_csv, "print comma-separated values");
    auto* html = app.add_flag("--html", m_html, "print a page")->excludes(csv);
    app.add_flag("--json", m_json, "print JSON")->excludes(csv)->excludes(html);
}

void IolistCommand::forEachRow(const std::vector<IoRow>& ranges,
                               const std::function<void(const IoRow&)>& use) const
{
    for (const IoRow& range : ranges) {
        if (m_expand)
            IoList::forEachPoint(range, use);
        else
            use(range);
    }
}

void IolistCommand::print(const std::vector<IoRow>& ranges, const Folder& folder, Console& console) const
{
    if (m_json) {
        JsonRows rows(console, "iolist", {{"folder", folder.path}}, "rows");
        forEachRow(ranges, [&rows](const IoRow& row) { rows.add(JsonRows::bytesOf(jsonOf(row))); });
    } else if (m_html) {
        HtmlPage page(QStringLiteral("I/O list of ") + folder.name());
        page.beginTable(IoList::header());
        forEachRow(ranges, [&page, &console](const IoRow& row) {
            page.row(IoList::cellsOf(row));
            console.data(page.takeBytes());
        });
        page.endTable();
        console.data(page.bytes());
    } else if (m_csv) {
        console.data(csvLine(IoList::header()));
        forEachRow(ranges, [&console](const IoRow& row) { console.data(csvLine(IoList::cellsOf(row))); });
    } else {
        console.line(console.painted(Console::Tone::Heading, aligned(IoList::header())));
        forEachRow(ranges, [&console](const IoRow& row) { console.line(aligned(IoList::cellsOf(row))); });
    }
}

ExitCode IolistCommand::run(Console& console)
{
    const QString name = QString::fromStdString(m_role);
    const RoleInfo* only = roleCalled(name);
    if (!name.isEmpty() && !only) {
        Console::complain(QStringLiteral("no role is called \"%1\"; there are %2").arg(name, roleNames()));
        return ExitTrouble;
    }
    const std::vector<Folder> folders = m_folders.find();
    if (folders.empty())
        return ExitTrouble;
    const LoadedFolder folder(folders.front());
    const Configuration& configuration = folder.configuration();
    const auto mode = m_mode.empty()     ? configuration.mode()
                      : m_mode == "free" ? MappingConfig::Free
                                         : MappingConfig::Fixed;
    const std::vector<IoRow> ranges = IoList::ranges(configuration, mode, only);
    const char* trouble = !configuration.isRead(FileId::Mapping)    ? "fieldbus_config.xml cannot be read"
                          : !configuration.isRead(FileId::RoleList) ? "fieldbus.xml cannot be read"
                          : m_expand && pointsOf(ranges) > MostPoints
                              ? "more variables than all buses can have"
                              : nullptr;
    if (trouble) {
        Console::complain(folders.front().path + QLatin1String(": ") + QLatin1String(trouble));
        return ExitTrouble;
    }
    print(ranges, folders.front(), console);
    return ExitSame;
}
