#include "VerifyCommand.h"

#include "Console.h"
#include "JsonRows.h"
#include "Seal.h"
#include "WholeFile.h"

#include <QJsonArray>

#include <algorithm>

namespace {

struct Deviation
{
    const char* kind; ///< "missing", "changed" or "foreign"
    QString path;
};

std::vector<Deviation> deviations(const Seal::Sums& sealed, const Seal::Sums& present)
{
    std::vector<Deviation> found;
    for (const auto& [path, sum] : sealed) {
        const auto now = present.find(path);
        if (now == present.end())
            found.push_back({"missing", path});
        else if (now->second != sum)
            found.push_back({"changed", path});
    }
    for (const auto& [path, sum] : present) {
        if (sealed.find(path) == sealed.end())
            found.push_back({"foreign", path});
    }
    return found;
}

} // namespace

void VerifyCommand::addOptions(CLI::App& app)
{
    m_folders.addMany(app);
    app.add_flag("--json", m_json, "print JSON");
}

ExitCode VerifyCommand::verify(const Folder& folder, Console& console, std::optional<JsonRows>& rows)
{
    const QString path = Seal::pathOf(folder);
    QByteArray bytes;
    if (!WholeFile::read(path, bytes)) {
        Console::complain(QStringLiteral("%1: there is no seal; \"fieldbusctl seal\" writes one").arg(path));
        return ExitTrouble;
    }
    const std::optional<Seal::Sums> sealed = Seal::read(bytes, folder.name());
    QString trouble = sealed ? QString() : QStringLiteral("%1: is no seal of this folder").arg(path);
    const std::optional<Seal::Sums> present = Seal::of(folder, trouble);
    if (!trouble.isEmpty()) {
        Console::complain(trouble);
        return ExitTrouble;
    }
    QJsonArray files;
    const std::vector<Deviation> found = deviations(*sealed, *present);
    for (const Deviation& deviation : found) {
        files.append(QJsonObject{{"kind", deviation.kind}, {"file", deviation.path}});
        if (!rows)
            console.line(
                console.painted(Console::Tone::Bad, QLatin1String(deviation.kind)) + QLatin1Char(' ') +
                console.painted(Console::Tone::Plain, folder.name() + QLatin1Char('/') + deviation.path));
    }
    if (rows)
        rows->add(JsonRows::bytesOf({{"folder", folder.path}, {"seal", path}, {"deviations", files}}));
    if (found.empty() && !rows)
        console.line(QStringLiteral("%1: %2 files are as they were sealed")
                         .arg(console.painted(Console::Tone::Heading, folder.path))
                         .arg(present->size()));
    return found.empty() ? ExitSame : ExitFound;
}

ExitCode VerifyCommand::run(Console& console)
{
    const std::vector<Folder> folders = m_folders.find();
    if (folders.empty())
        return ExitTrouble;
    std::optional<JsonRows> rows;
    if (m_json)
        rows.emplace(console, "verify", QJsonObject(), "folders");
    ExitCode worst = ExitSame;
    for (const Folder& folder : folders)
        worst = std::max(worst, verify(folder, console, rows));
    return worst;
}
