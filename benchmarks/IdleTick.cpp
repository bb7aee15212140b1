// The host's idle tick over a page on which nothing has changed.
#include "PageBench.h"

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

void heartbeatTick(benchmark::State& state)
{
    PageBench(HeartbeatPage, {{"/application/fidbus/heartbeat.xml", heartbeatFile()}}).measureTicks(state);
}

void eipMasterTick(benchmark::State& state)
{
    PageBench(EipMasterPage, {{"/application/fidbus/eipmaster/eip_master.xml", masterFile()},
                              {"/fa/override.cfg", "ECAT_SLAVE_OFF 2 2001;EIM_DEVICE\n"}})
        .measureTicks(state);
}

} // namespace

BENCHMARK(heartbeatTick);
BENCHMARK(eipMasterTick);
