// The host's idle tick over a page on which nothing has changed.
#include "FieldbusSettingLib.h"
#include "PageBench.h"

#include <benchmark/benchmark.h>

#include <memory>

namespace {

constexpr int HeartbeatPage = 6;

QByteArray heartbeatFile()
{
    return "<Fidbus><Mtcp><Mtcp_Nod_Switch>1</Mtcp_Nod_Switch><Mtcp_Timeout>1.000</Mtcp_Timeout></Mtcp></"
           "Fidbus>";
}

void heartbeatTick(benchmark::State& state)
{
    PageBench page(HeartbeatPage, {{"/application/fidbus/heartbeat.xml", heartbeatFile()}});
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

} // namespace

BENCHMARK(heartbeatTick);
