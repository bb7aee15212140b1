// override.cfg read and rewritten by the library, beside a plain read, slice and write of the same bytes. The
// transfer of the controller's present file is part of both rewrites.
#include "CurrentLink.h"
#include "DataAccess.h"
#include "FieldbusSettingLib.h"
#include "MemoryLink.h"

#include <QFile>
#include <QSaveFile>

#include <benchmark/benchmark.h>

#include <ctime>

namespace {

const QString Path = QStringLiteral("../Application/fieldbusSetting/override.cfg");
const QString Temporary = QStringLiteral("../Application/fieldbusSetting/override_plain.cfg");
const QString CtrlPath = QStringLiteral("/FA/override.cfg");
constexpr int Lines = 300;

// Twenty devices of each slot among settings and comments.
QByteArray content()
{
    QByteArray bytes;
    for (int line = 0; line < Lines; ++line) {
        const QByteArray number = QByteArray::number(1000 + line);
        if (line % 15 == 0)
            bytes += ";ECAT_SLAVE_OFF 1 " + number + " ;MODULE_" + number + '\n';
        else if (line % 15 == 1)
            bytes += (line % 2 == 0 ? ";" : "") + QByteArray("ECAT_SLAVE_OFF 2 ") + number + ";DEVICE_" +
                     number + '\n';
        else if (line % 3 == 0)
            bytes += "; line " + number + " of the settings of robot cell 7, do not change by hand\n";
        else
            bytes += "AXIS_LIMIT " + number + "\t225 2 350\n";
    }
    return bytes;
}

class Controller
{
public:
    Controller()
    {
        m_link.files[CtrlPath.toLower()] = content();
        setCurrentLink(&m_link);
        DataAccess::GetFileFromController2TPU(CtrlPath, Path, false);
        FieldbusSettingLib::getInstance()->readEtherCatMFile(Path);
        FieldbusSettingLib::getInstance()->readEtherCatFile(Path);
    }
    ~Controller() { setCurrentLink(nullptr); }
    Controller(const Controller&) = delete;
    Controller& operator=(const Controller&) = delete;

private:
    MemoryLink m_link;
};

QList<QByteArray> plainLines(const QString& path)
{
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    return file.readAll().split('\n');
}

template <bool (FieldbusSettingLib::*Read)(QString)>
void readOverride(benchmark::State& state)
{
    const Controller controller;
    for (auto _ : state)
        benchmark::DoNotOptimize((FieldbusSettingLib::getInstance()->*Read)(Path));
}

void readPlainOverride(benchmark::State& state)
{
    const Controller controller;
    for (auto _ : state)
        benchmark::DoNotOptimize(plainLines(Path));
}

bool rewritePlainly()
{
    DataAccess::GetFileFromController2TPU(CtrlPath, Temporary, false);
    const QList<QByteArray> lines = plainLines(Temporary);
    QFile::remove(Temporary);
    QSaveFile file(Path);
    file.open(QIODevice::WriteOnly);
    for (int i = 0; i < lines.size(); ++i) {
        file.write(lines[i]);
        if (i + 1 < lines.size())
            file.putChar('\n');
    }
    file.flush();
    return file.commit();
}

// A rewrite, and as a counter how many times the processor time of the plain one it takes, measured at once.
template <typename Rewrite>
void measure(benchmark::State& state, Rewrite rewrite)
{
    constexpr int PlainRewrites = 50;
    const Controller controller;
    std::clock_t start = std::clock();
    for (auto _ : state)
        benchmark::DoNotOptimize(rewrite());
    const double own = double(std::clock() - start) / double(state.iterations());
    start = std::clock();
    for (int i = 0; i < PlainRewrites; ++i)
        benchmark::DoNotOptimize(rewritePlainly());
    state.counters["of_plain"] = own * PlainRewrites / double(std::clock() - start);
}

void rewriteOverrideMaster(benchmark::State& state)
{
    const int mode = static_cast<int>(state.range(0));
    measure(state, [mode] { return FieldbusSettingLib::getInstance()->writeEtherCatMFile(Path, mode); });
}

void rewriteOverrideSlave(benchmark::State& state)
{
    measure(state, [] { return FieldbusSettingLib::getInstance()->writeEtherCatFile(Path); });
}

void rewriteOverrideDevice(benchmark::State& state)
{
    measure(state, [] { return FieldbusSettingLib::getInstance()->writeOverrideFile(Path, "DEVICE_1016"); });
}

void rewritePlainOverride(benchmark::State& state)
{
    measure(state, rewritePlainly);
}

} // namespace

BENCHMARK_TEMPLATE(readOverride, &FieldbusSettingLib::readEtherCatMFile)->Name("readOverrideMaster");
BENCHMARK_TEMPLATE(readOverride, &FieldbusSettingLib::readEtherCatFile)->Name("readOverrideSlave");
BENCHMARK(readPlainOverride);
BENCHMARK(rewriteOverrideMaster)->Arg(0)->Arg(1)->Arg(2);
BENCHMARK(rewriteOverrideSlave);
BENCHMARK(rewriteOverrideDevice);
BENCHMARK(rewritePlainOverride);
