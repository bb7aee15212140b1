#include "SealCommand.h"

#include "Console.h"
#include "JsonRows.h"
#include "Seal.h"
#include "WholeFile.h"

#include <optional>

void SealCommand::addOptions(CLI::App& app)
{
    m_folders.addMany(app);
    app.add_flag("--json", m_json, "print JSON");
}

ExitCode SealCommand::run(Console& console)
{
    const std::vector<Folder> folders = m_folders.find();
    if (folders.empty())
        return ExitTrouble;
    std::optional<JsonRows> rows;
    if (m_json)
        rows.emplace(console, "seal", QJsonObject(), "folders");
    for (const Folder& folder : folders) {
        QString trouble;
        const std::optional<Seal::Sums> sums = Seal::of(folder, trouble);
        const QString path = Seal::pathOf(folder);
        if (sums && !WholeFile::replace(path, Seal::written(folder.name(), *sums)))
            trouble = QStringLiteral("%1: cannot be written").arg(path);
        if (!trouble.isEmpty()) {
            Console::complain(trouble);
            return ExitTrouble;
        }
        const auto count = static_cast<int>(sums->size());
        if (rows)
            rows->add(JsonRows::bytesOf({{"folder", folder.path}, {"seal", path}, {"files", count}}));
        else
            console.line(
                QStringLiteral("%1: %2 files").arg(console.painted(Console::Tone::Heading, path)).arg(count));
    }
    return ExitSame;
}
