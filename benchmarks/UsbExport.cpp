// The export of the bus configuration onto a drive, beside a plain copy of its files with the same waits.
#include "ConfigExport.h"
#include "CurrentLink.h"
#include "DataAccess.h"
#include "FieldbusSettingLib.h"
#include "FileLocations.h"
#include "SimulatedController.h"
#include "UsbDrive.h"
#include "ZelFunctions.h"

#include <QDir>
#include <QElapsedTimer>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace {

constexpr unsigned StepMs = 5;
constexpr double MostRatio = 1.3;   // export to plain copy, both with the waits
constexpr int Rounds = 5;           // in which that is measured
constexpr int Steps = 36 + 14 + 36; // files fetched, folders made, files copied

class Pendant
{
public:
    Pendant()
        : m_controller(m_directory.filePath(QStringLiteral("controller")))
    {
        QDir().mkpath(drive());
        setCurrentLink(&m_controller);
        UsbDrive::instance().insert(drive());
    }
    ~Pendant()
    {
        UsbDrive::instance().pullOut();
        setCurrentLink(nullptr);
    }
    Pendant(const Pendant&) = delete;
    Pendant& operator=(const Pendant&) = delete;

    QString drive() const { return m_directory.filePath(QStringLiteral("usb")); }

private:
    QTemporaryDir m_directory;
    SimulatedController m_controller;
};

class Waits : public TransferWatch
{
public:
    explicit Waits(unsigned msec)
        : m_msec(msec)
    {
    }
    bool step() override
    {
        if (m_msec > 0)
            FieldbusSettingLib::getInstance()->delay_MSec(m_msec);
        return true;
    }
    bool isWanted() const override { return true; }

private:
    unsigned m_msec;
};

bool isExported(const Pendant& pendant, Waits& waits)
{
    return ConfigExport(pendant.drive(), waits).run().isDone();
}

bool isCopied(const Pendant& pendant, Waits& waits)
{
    static int copies = 0;
    const QString folder = pendant.drive() + QStringLiteral("/copy_%1/").arg(copies++);
    for (const TransferFile& file : FileLocations::transferSet()) {
        const QString target = folder + file.path;
        QDir().mkpath(QFileInfo(target).path());
        QDir().mkpath(QFileInfo(file.staging).path());
        if (!DataAccess::GetFileFromController2TPU(file.controller, file.staging, false) ||
            ZelFileCopy(file.staging, target, true) == 0)
            return false;
    }
    for (int step = 0; step < Steps; ++step)
        waits.step();
    return true;
}

template <bool (*Copy)(const Pendant&, Waits&)>
void copyToDrive(benchmark::State& state)
{
    const Pendant pendant;
    Waits waits(static_cast<unsigned>(state.range(0)));
    for (auto _ : state) {
        if (!Copy(pendant, waits))
            state.SkipWithError("the copying failed");
    }
}

// In turns, so that both meet the same load of the machine.
void exportBesidePlainCopy(benchmark::State& state)
{
    const Pendant pendant;
    Waits waits(StepMs);
    qint64 exportNs = 0;
    qint64 copyNs = 0;
    bool isDone = true;
    for (auto _ : state) {
        QElapsedTimer clock;
        clock.start();
        isDone = isExported(pendant, waits) && isDone;
        exportNs += clock.nsecsElapsed();
        clock.restart();
        isDone = isCopied(pendant, waits) && isDone;
        copyNs += clock.nsecsElapsed();
    }
    const double ratio = double(exportNs) / double(copyNs);
    state.counters["ratio"] = ratio;
    if (!isDone)
        state.SkipWithError("the copying failed");
    else if (ratio > MostRatio)
        state.SkipWithError("the export takes too long beside a plain copy with the same waits");
}

} // namespace

BENCHMARK_TEMPLATE(copyToDrive, isExported)
    ->Arg(0)
    ->Arg(StepMs)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK_TEMPLATE(copyToDrive, isCopied)->Arg(0)->Arg(StepMs)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(exportBesidePlainCopy)->Iterations(Rounds)->Unit(benchmark::kMillisecond)->UseRealTime();
