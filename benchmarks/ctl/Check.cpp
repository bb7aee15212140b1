// `fieldbusctl check` beside what reading and parsing the same files takes. Ends with 1 when it costs more
// than the limit below.
#include "CheckCommand.h"
#include "Console.h"
#include "ExportDrive.h"

#include <benchmark/benchmark.h>
#include <pugixml.hpp>

#include <cstdio>
#include <fcntl.h>
#include <map>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr int FolderCount = 1000;
constexpr int Repetitions = 5; // the quickest of each counts: what else the machine does only adds
constexpr double MostTimes = 1.5;

const ExportDrive& drive()
{
    static const ExportDrive made(FolderCount);
    return made;
}

bool readFile(const std::string& path, std::vector<char>& bytes)
{
    const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    struct stat status = {};
    if (file < 0 || ::fstat(file, &status) != 0)
        return false;
    bytes.resize(static_cast<std::size_t>(status.st_size));
    const bool isRead = ::read(file, bytes.data(), bytes.size()) == status.st_size;
    ::close(file);
    return isRead;
}

void readAndParse(benchmark::State& state)
{
    std::vector<char> bytes;
    for (auto _ : state) {
        for (const ExportDrive::File& file : drive().files()) {
            pugi::xml_document document;
            if (!readFile(file.path, bytes) ||
                (file.isXml && !document.load_buffer(bytes.data(), bytes.size())))
                return state.SkipWithError("a file cannot be read");
            benchmark::DoNotOptimize(document.first_child());
        }
    }
}

/// What is printed goes nowhere for its lifetime.
class Silence
{
public:
    Silence()
        : m_kept(::dup(STDOUT_FILENO))
    {
        std::fflush(stdout);
        const int nowhere = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
        ::dup2(nowhere, STDOUT_FILENO);
        ::close(nowhere);
    }
    ~Silence()
    {
        ::dup2(m_kept, STDOUT_FILENO);
        ::close(m_kept);
    }
    Silence(const Silence&) = delete;
    Silence& operator=(const Silence&) = delete;

private:
    int m_kept;
};

void check(benchmark::State& state)
{
    const Silence silence;
    for (auto _ : state) {
        CLI::App app;
        CheckCommand command;
        command.addOptions(app);
        app.parse({drive().path(), "--all", "1", "--jobs"}); // taken from the back
        Console console;
        if (command.run(console) != ExitSame || !console.flush())
            return state.SkipWithError("the plant has findings");
    }
}

/// Prints as usual and keeps the least processor time of each row, in seconds.
class LeastTimes : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run>& runs) override
    {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs) {
            m_failed = m_failed || run.error_occurred;
            if (run.run_type != Run::RT_Iteration)
                continue;
            const double seconds = run.cpu_accumulated_time / static_cast<double>(run.iterations);
            const auto known = m_least.emplace(run.run_name.function_name, seconds).first;
            known->second = std::min(known->second, seconds);
        }
    }
    bool isWhole() const { return !m_failed && m_least.size() == 2; }
    double of(const char* name) const { return m_least.at(name); }

private:
    std::map<std::string, double> m_least;
    bool m_failed = false;
};

} // namespace

BENCHMARK(readAndParse)
    ->MeasureProcessCPUTime()
    ->Iterations(1)
    ->Repetitions(Repetitions)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(check)
    ->MeasureProcessCPUTime()
    ->Iterations(1)
    ->Repetitions(Repetitions)
    ->Unit(benchmark::kMillisecond);

int main(int argc, char* argv[])
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv) || !drive().isMade())
        return 2;
    LeastTimes times;
    benchmark::RunSpecifiedBenchmarks(&times);
    benchmark::Shutdown();
    if (!times.isWhole())
        return 2;
    const double ratio = times.of("check") / times.of("readAndParse");
    std::printf("check of %d folders: %.2f times reading and parsing them (at most %.2f)\n", FolderCount,
                ratio, MostTimes);
    return ratio <= MostTimes ? 0 : 1;
}
