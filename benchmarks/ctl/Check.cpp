// `fieldbusctl check` beside what reading and parsing the same files takes, both on all cores. Ends with 1
// when it costs more than the limit below, in time or in processor time.
#include "CheckCommand.h"
#include "Console.h"
#include "ExportDrive.h"

#include <benchmark/benchmark.h>
#include <pugixml.hpp>

#include <atomic>
#include <cstdio>
#include <fcntl.h>
#include <map>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace {

constexpr int FolderCount = 1000;
constexpr int Repetitions = 7; // the quickest of each counts: what else the machine does only adds
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

// Files of the next folders that nobody has taken, until there are none.
void readAndParseSome(std::atomic<std::size_t>& next, std::atomic<bool>& isRead)
{
    const auto& files = drive().files();
    std::vector<char> bytes;
    for (std::size_t first = next.fetch_add(ExportDrive::FilesTaken); first < files.size();
         first = next.fetch_add(ExportDrive::FilesTaken)) {
        for (std::size_t i = first; i < std::min(first + ExportDrive::FilesTaken, files.size()); ++i) {
            pugi::xml_document document;
            if (!readFile(files[i].path, bytes) ||
                (files[i].isXml && !document.load_buffer(bytes.data(), bytes.size())))
                isRead = false;
            benchmark::DoNotOptimize(document.first_child());
        }
    }
}

void readAndParse(benchmark::State& state)
{
    for (auto _ : state) {
        std::atomic<std::size_t> next = 0;
        std::atomic<bool> isRead = true;
        std::vector<std::thread> threads;
        for (unsigned i = 0; i < std::max(1u, std::thread::hardware_concurrency()); ++i)
            threads.emplace_back([&] { readAndParseSome(next, isRead); });
        for (std::thread& thread : threads)
            thread.join();
        if (!isRead)
            return state.SkipWithError("a file cannot be read");
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
        app.parse({drive().path(), "--all"}); // taken from the back
        Console console;
        if (command.run(console) != ExitSame || !console.flush())
            return state.SkipWithError("the plant has findings");
    }
}

/// In seconds.
struct Cost
{
    double elapsed;
    double processor;
};

/// Prints as usual and keeps the least cost of each row.
class LeastCosts : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run>& runs) override
    {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs) {
            m_failed = m_failed || run.error_occurred;
            if (run.run_type != Run::RT_Iteration)
                continue;
            const auto iterations = static_cast<double>(run.iterations);
            const Cost cost{run.real_accumulated_time / iterations, run.cpu_accumulated_time / iterations};
            Cost& least = m_least.emplace(run.run_name.function_name, cost).first->second;
            least = {std::min(least.elapsed, cost.elapsed), std::min(least.processor, cost.processor)};
        }
    }
    bool isWhole() const { return !m_failed && m_least.size() == 2; }
    const Cost& of(const char* name) const { return m_least.at(name); }

private:
    std::map<std::string, Cost> m_least;
    bool m_failed = false;
};

} // namespace

BENCHMARK(readAndParse)
    ->MeasureProcessCPUTime()
    ->UseRealTime()
    ->Iterations(1)
    ->Repetitions(Repetitions)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(check)
    ->MeasureProcessCPUTime()
    ->UseRealTime()
    ->Iterations(1)
    ->Repetitions(Repetitions)
    ->Unit(benchmark::kMillisecond);

int main(int argc, char* argv[])
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv) || !drive().isMade())
        return 2;
    LeastCosts costs;
    benchmark::RunSpecifiedBenchmarks(&costs);
    benchmark::Shutdown();
    if (!costs.isWhole())
        return 2;
    const Cost& floor = costs.of("readAndParse");
    const Cost times{costs.of("check").elapsed / floor.elapsed,
                     costs.of("check").processor / floor.processor};
    std::printf("check of %d folders beside reading and parsing them: %.2f times as long, %.2f times the "
                "processor time (at most %.2f)\n",
                FolderCount, times.elapsed, times.processor, MostTimes);
    return std::max(times.elapsed, times.processor) <= MostTimes ? 0 : 1;
}
