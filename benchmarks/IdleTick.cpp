// The host's idle tick over a page on which nothing has changed.
#include "FieldbusSettingLib.h"
#include "PageBench.h"

#include <benchmark/benchmark.h>

#include <memory>

namespace {

constexpr int HeartbeatPage = 6;
constexpr int EipMasterPage = 11;

QByteArray heartbeatFile()
{
    return "<Fidbus><Mtcp><Mtcp_Nod_Switch>1</Mtcp_Nod_Switch><Mtcp_Timeout>1.000</Mtcp_Timeout></Mtcp></"
           "Fidbus>";
}

// Nine slaves: 27 values and 27 lights.
QByteArray masterFile()
{
    return "<EipMasterCommunication><Group><SlaveNum>9</SlaveNum></Group></EipMasterCommunication>";
}

void measureTick(benchmark::State& state, int id, const QMap<QString, QByteArray>& files)
{
    PageBench page(id, files);
    const WidgetWork work;
    const long long before = allocationCount();
    for (auto _ : state)
        page.tick();
    state.counters["allocations"] = benchmark::Counter(static_cast<double>(allocationCount() - before),
                                                       benchmark::Counter::kAvgIterations);
    QCoreApplication::processEvents();
    state.counters["styles"] = work.styleChanges;
    state.counters["paints"] = work.paints;
}

void heartbeatTick(benchmark::State& state)
{
    measureTick(state, HeartbeatPage, {{"/application/fidbus/heartbeat.xml", heartbeatFile()}});
}

void eipMasterTick(benchmark::State& state)
{
    measureTick(state, EipMasterPage,
                {{"/application/fidbus/eipmaster/eip_master.xml", masterFile()},
                 {"/fa/override.cfg", "ECAT_SLAVE_OFF 2 2001;EIM_DEVICE\n"}});
}

} // namespace

BENCHMARK(heartbeatTick);
BENCHMARK(eipMasterTick);
