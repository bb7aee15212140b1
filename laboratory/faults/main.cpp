// Every file call of every operation that writes fails once, in each way that a disk can fail. Each point is
// a process of its own, on a bench of its own.
#include "Operations.h"
#include "Shim.h"

#include <QCoreApplication>
#include <QDir>
#include <QLoggingCategory>
#include <QTemporaryDir>

#include <array>
#include <cerrno>
#include <cstdio>
#include <map>
#include <numeric>
#include <sys/wait.h>
#include <unistd.h>

namespace {

struct Fault
{
    const char* name;
    Shim::Mode mode;
    int error;
};
constexpr std::array<Fault, 7> Faults{{
    {"EIO once", Shim::Mode::FailOnce, EIO},
    {"EIO from then on", Shim::Mode::FailFrom, EIO},
    {"ENOSPC once", Shim::Mode::FailOnce, ENOSPC},
    {"ENOSPC from then on", Shim::Mode::FailFrom, ENOSPC},
    {"half a write", Shim::Mode::WriteHalf, EIO},
    {"killed, all kept", Shim::Mode::KillKept, EIO},
    {"killed, unsynced lost", Shim::Mode::KillLost, EIO},
}};

// What a point's process ends with.
enum Verdict { Well = 0, Violation = 1, NotReached = 2 };
constexpr int Done = 0;
constexpr int Told = 1;
constexpr int NotHit = 2;
constexpr unsigned LongestSeconds = 120;

template <typename Work>
int inProcess(Work work)
{
    std::fflush(nullptr);
    const pid_t child = ::fork();
    if (child == 0) {
        ::alarm(LongestSeconds);
        const int code = work();
        std::fflush(nullptr);
        ::_exit(code);
    }
    int status = 0;
    return ::waitpid(child, &status, 0) == child && WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

// Runs the operation with the n-th call failing; NotHit is added when there was no such call.
int run(const Operation& operation, const Bench& bench, const Fault& fault, long n)
{
    bench.enter();
    operation.begin();
    const QByteArray watched = bench.pendant().toLocal8Bit();
    Shim::arm(watched.constData(), fault.mode, n, fault.error);
    const bool isDone = operation.run(bench);
    const long calls = Shim::disarm();
    return (isDone ? Done : Told) + (calls < n ? NotHit : 0);
}

Verdict examine(const Operation& operation, const Bench& before, const Bench& reference, const QString& path,
                const Fault& fault, long n)
{
    const Bench bench(path);
    std::string problem;
    int code = -1;
    if (!bench.copyFrom(before)) {
        problem = "the bench cannot be made";
    } else {
        code = inProcess([&] { return run(operation, bench, fault, n); });
        if (code == (Done | NotHit))
            return NotReached;
        if (code == Shim::KilledCode || code == Done || code == Told || code == (Told | NotHit)) {
            const int started = inProcess([&] {
                bench.enter();
                startAgain();
                return 0;
            });
            const auto end = code == Shim::KilledCode ? Operation::End::Killed
                             : code == Done           ? Operation::End::Done
                                                      : Operation::End::Told;
            problem = started != 0 ? "the next start broke" : operation.check(bench, before, reference, end);
            if (code == (Told | NotHit) && problem.empty())
                problem = "a failure was told without a fault";
        } else {
            problem = "the program broke";
        }
    }
    if (problem.empty())
        return Well;
    std::fprintf(stderr, "%s, %s at call %ld: %s\n", operation.name.c_str(), fault.name, n, problem.c_str());
    return Violation;
}

struct Count
{
    long points = 0;
    long violations = 0;
};

// Several points at a time: most of their time is waiting between attempts.
Count examineAll(const Operation& operation, const Bench& before, const Bench& reference, const QString& root,
                 const Fault& fault, int atATime)
{
    Count count;
    std::map<pid_t, int> running; // and the place of each
    std::vector<int> places(static_cast<std::size_t>(atATime));
    std::iota(places.begin(), places.end(), 0);
    long next = 1;
    bool isOver = false;
    while (!isOver || !running.empty()) {
        while (!isOver && !places.empty()) {
            const long n = next++;
            const int place = places.back();
            places.pop_back();
            const QString path = root + QStringLiteral("/point%1").arg(place);
            const pid_t child = ::fork();
            if (child == 0)
                ::_exit(examine(operation, before, reference, path, fault, n));
            running.emplace(child, place);
        }
        int status = 0;
        const pid_t child = ::wait(&status);
        if (child < 0)
            break;
        places.push_back(running[child]);
        running.erase(child);
        const int verdict = WIFEXITED(status) ? WEXITSTATUS(status) : Violation;
        isOver = isOver || verdict == NotReached;
        count.points += verdict != NotReached;
        count.violations += verdict == Violation;
    }
    return count;
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication::setApplicationName(QStringLiteral("lab"));
    const QCoreApplication application(argc, argv);
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false\n*.warning=false"));
    const QString only = application.arguments().value(1);
    const QTemporaryDir directory(QStringLiteral("/dev/shm/lab-XXXXXX"));
    const QString root = QDir(directory.path()).canonicalPath();
    const Bench factory(root + QStringLiteral("/factory"));
    if (!factory.make(QStringLiteral(PLANT_DIRECTORY)))
        return 2;

    Count all;
    for (const Operation& operation : operations()) {
        if (!only.isEmpty() && !QString::fromStdString(operation.name).contains(only))
            continue;
        const Bench before(root + QStringLiteral("/before"));
        const Bench reference(root + QStringLiteral("/reference"));
        before.copyFrom(factory);
        inProcess([&] {
            before.enter();
            operation.prepare(before);
            return 0;
        });
        reference.copyFrom(before);
        const int code = inProcess([&] {
            reference.enter();
            operation.begin();
            return operation.run(reference) ? Done : Told;
        });
        if (code != Done) {
            std::fprintf(stderr, "%s does not work\n", operation.name.c_str());
            return 2;
        }
        for (const Fault& fault : Faults) {
            const Count count = examineAll(operation, before, reference, root, fault, 16);
            std::printf("%s\t%s\t%ld\t%ld\n", operation.name.c_str(), fault.name, count.points,
                        count.violations);
            std::fflush(stdout);
            all.points += count.points;
            all.violations += count.violations;
        }
    }
    std::printf("faults: %ld points, %ld violations\n", all.points, all.violations);
    return all.violations == 0 ? 0 : 1;
}
