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
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace {

constexpr unsigned StepMs = 5;
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

void exportToDrive(benchmark::State& state)
{
    const Pendant pendant;
    Waits waits(static_cast<unsigned>(state.range(0)));
    for (auto _ : state) {
        if (!ConfigExport(pendant.drive(), waits).run().isDone())
            state.SkipWithError("the export failed");
    }
}

void plainCopy(benchmark::State& state)
{
    const Pendant pendant;
    Waits waits(static_cast<unsigned>(state.range(0)));
    int copies = 0;
    for (auto _ : state) {
        const QString folder = pendant.drive() + QStringLiteral("/copy_%1/").arg(copies++);
        for (const TransferFile& file : FileLocations::transferSet()) {
            const QString target = folder + file.path;
            QDir().mkpath(QFileInfo(target).path());
            QDir().mkpath(QFileInfo(file.staging).path());
            if (!DataAccess::GetFileFromController2TPU(file.controller, file.staging, false) ||
                ZelFileCopy(file.staging, target, true) == 0)
                state.SkipWithError("the copy failed");
        }
        for (int step = 0; step < Steps; ++step)
            waits.step();
    }
}

} // namespace

BENCHMARK(exportToDrive)->Arg(0)->Arg(StepMs)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(plainCopy)->Arg(0)->Arg(StepMs)->Unit(benchmark::kMillisecond)->UseRealTime();
