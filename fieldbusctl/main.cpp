#include "Command.h"
#include "Console.h"

#include <CLI/CLI.hpp>

#include <QtGlobal>

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
#include <QTextCodec>
#endif

namespace {

// Names of files and all that is printed; the locale has no say in it. With Qt 6 it never has.
void useUtf8()
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
#endif
}

constexpr const char* Description =
    "Shows, checks, compares, lists, documents and seals fieldbus configurations of robots.\n\n"
    "FOLDER is an export from a pendant (fidbus_...), a drive that holds exports (the newest one is taken), "
    "or a copy\n"
    "of a controller's files (with application/fidbus in it). Links are not followed.";

constexpr const char* ExitCodes =
    "Exit codes: 0 nothing found, nothing different; 1 findings or differences; 2 wrong "
    "usage, or something cannot be read or written.";

std::string examplesOf(const CommandRow& row)
{
    return std::string("Examples:\n") + row.examples + "\n" + ExitCodes;
}

} // namespace

int main(int argc, char* argv[])
{
    useUtf8();
    CLI::App app(Description, "fieldbusctl");
    app.set_version_flag("--version", "fieldbusctl " FIELDBUS_VERSION);
    app.require_subcommand(1);
    app.footer(ExitCodes);
    std::vector<std::pair<CLI::App*, std::unique_ptr<Command>>> commands;
    for (const CommandRow& row : commandTable()) {
        CLI::App* sub = app.add_subcommand(row.name, row.summary);
        sub->footer(examplesOf(row));
        commands.emplace_back(sub, row.make());
        commands.back().second->addOptions(*sub);
    }
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? ExitSame : ExitTrouble;
    }
    Console console;
    ExitCode result = ExitTrouble;
    for (const auto& [sub, command] : commands) {
        if (sub->parsed())
            result = command->run(console);
    }
    if (console.flush())
        return result;
    Console::complain(QStringLiteral("the output cannot be written"));
    return ExitTrouble;
}
