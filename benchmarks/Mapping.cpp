// The I/O mapping page: opened, its largest table refilled, its tick while nothing is to be done.
#include "PageBench.h"
#include "ZelBaseWidget.h"

#include <QAbstractButton>
#include <QCoreApplication>

#include <memory>

namespace {

constexpr int ModbusSlavePage = 15; // fetches nothing
constexpr int MappingPage = 7;

QByteArray area(const char* direction, const QByteArray& quantity, const QByteArray& system)
{
    QByteArray text = QByteArray("<Area direction=\"") + direction + "\">";
    for (const char* type : {"Bool", "Int", "Float"}) {
        text += QByteArray("<User type=\"") + type + "\" quantity=\"" + quantity +
                "\" start=\"40101\" end=\"40116\"/>";
        text += QByteArray("<System type=\"") + type + "\" quantity=\"" + system +
                "\" start=\"40001\" end=\"40016\"/>";
    }
    return text + "</Area>";
}

// Every role on, and the seven rows of the fixed Modbus TCP slave, each of which differs between the
// directions.
QMap<QString, QByteArray> controllerFiles()
{
    QByteArray roles = "<Fieldbus>";
    for (const char* role :
         {"ModbusTcpSlave", "EtherCatSlave", "EtherNetIPSlave", "ProfinetSlave", "EtherCatMaster",
          "DeviceNetSlave", "EtherNetIPMaster", "ProfinetMaster", "DeviceNetMaster"})
        roles += QByteArray("<Bus name=\"") + role + "\" enable=\"1\"/>";
    return {{"/application/fidbus/fieldbus.xml", roles + "</Fieldbus>"},
            {"/application/fidbus/fieldbus_config.xml",
             "<FieldbusConfig><Mode name=\"fixed\"><Bus name=\"ModbusTcpSlave\">" + area("ro", "16", "2") +
                 area("wo", "32", "4") + "</Bus></Mode></FieldbusConfig>"}};
}

// From the press on the menu button to a page that is filled.
void openMappingPage(benchmark::State& state)
{
    for (auto _ : state) {
        state.PauseTiming();
        auto bench = std::make_unique<PageBench>(ModbusSlavePage, controllerFiles());
        QWidget& application = bench->application();
        auto* menu = application.findChild<QWidget*>(QStringLiteral("FbMainWidget"));
        state.ResumeTiming();
        QMetaObject::invokeMethod(menu, "slotMenuBtnsClicked", Q_ARG(int, MappingPage));
        // Filled when the tab of the master, which the fixed mode does not have, is gone.
        const auto* masterTab = application.findChild<QWidget*>(QStringLiteral("tab_2"));
        while (masterTab->isEnabled())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        state.PauseTiming();
        bench.reset();
        state.ResumeTiming();
    }
}

// Every cell of the seven rows, and the tips, by a change of direction; `paint` puts it on the screen.
void refill(benchmark::State& state, bool paint)
{
    PageBench bench(MappingPage, controllerFiles());
    const QWidget& application = bench.application();
    auto* readOnly = application.findChild<QAbstractButton*>(QStringLiteral("checkBox_Mtcp_RO"));
    auto* writeOnly = application.findChild<QAbstractButton*>(QStringLiteral("checkBox_Mtcp_WO"));
    bool write = false;
    for (auto _ : state) {
        write = !write;
        (write ? writeOnly : readOnly)->click();
        if (paint)
            QCoreApplication::processEvents();
    }
}

void refillLargestTable(benchmark::State& state)
{
    refill(state, false);
}

void refillAndPaintLargestTable(benchmark::State& state)
{
    refill(state, true);
}

// The host's tick with the page in viewing mode and no save under way.
void tickOfMappingPage(benchmark::State& state)
{
    PageBench(MappingPage, controllerFiles()).measureTicks(state);
}

} // namespace

BENCHMARK(openMappingPage)->Unit(benchmark::kMillisecond)->Iterations(5);
BENCHMARK(refillLargestTable)->Unit(benchmark::kMicrosecond);
BENCHMARK(refillAndPaintLargestTable)->Unit(benchmark::kMicrosecond);
BENCHMARK(tickOfMappingPage);
