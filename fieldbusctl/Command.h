#ifndef FIELDBUSCTL_COMMAND_H
#define FIELDBUSCTL_COMMAND_H

#include <CLI/CLI.hpp>

#include <memory>
#include <vector>

class Console;

/// What the program ends with.
enum ExitCode {
    ExitSame = 0,   ///< done; nothing found, nothing different
    ExitFound = 1,  ///< done; findings, or differences
    ExitTrouble = 2 ///< wrong usage, or something could not be read or written
};

/// A subcommand. It keeps its options and does its work; what it prints goes through the console.
class Command
{
public:
    Command() = default;
    virtual ~Command() = default;
    Command(const Command&) = delete;
    Command& operator=(const Command&) = delete;

    virtual void addOptions(CLI::App& app) = 0;
    virtual ExitCode run(Console& console) = 0;
};

/// A row of the table of subcommands.
struct CommandRow
{
    const char* name;
    const char* summary;
    const char* examples; ///< a line each, as they are typed
    std::unique_ptr<Command> (*make)();
};

const std::vector<CommandRow>& commandTable();

#endif
