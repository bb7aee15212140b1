// The I/O mapping page: opened, its largest table refilled, its tick while nothing is to be done.
#include "BaseZelCustomData.h"
#include "BusFileService.h"
#include "CurrentLink.h"
#include "MemoryLink.h"
#include "PluginEntry.h"
#include "ZelBaseWidget.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QMetaMethod>

#include <benchmark/benchmark.h>

#include <memory>

namespace {

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

// The application on a controller in memory, with every role on and the seven rows of the fixed Modbus TCP
// slave, each of which differs between the directions.
class Application
{
public:
    Application()
    {
        QByteArray roles = "<Fieldbus>";
        for (const char* role :
             {"ModbusTcpSlave", "EtherCatSlave", "EtherNetIPSlave", "ProfinetSlave", "EtherCatMaster",
              "DeviceNetSlave", "EtherNetIPMaster", "ProfinetMaster", "DeviceNetMaster"})
            roles += QByteArray("<Bus name=\"") + role + "\" enable=\"1\"/>";
        m_link.files["/application/fidbus/fieldbus.xml"] = roles + "</Fieldbus>";
        m_link.files["/application/fidbus/fieldbus_config.xml"] =
            "<FieldbusConfig><Mode name=\"fixed\"><Bus name=\"ModbusTcpSlave\">" + area("ro", "16", "2") +
            area("wo", "32", "4") + "</Bus></Mode></FieldbusConfig>";
        setCurrentLink(&m_link);
        BusFileService::instance().resetSession();
        m_data.reset(CreateZelCustomData());
        m_widget.reset(CreateZelCustomWidget(m_data.get(), nullptr));
        m_widget->resize(1024, 680);
        m_data->currentWidget = m_widget.get();
        m_widget->show();
        while (!m_data->currentCentralWidget()->isVisible())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    ~Application()
    {
        m_widget.reset();
        m_data.reset();
        setCurrentLink(nullptr);
    }
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;

    ZelBaseWidget* widget() const { return m_widget.get(); }

    void openMapping()
    {
        QMetaObject::invokeMethod(m_data->currentCentralWidget(), "slotMenuBtnsClicked",
                                  Q_ARG(int, MappingPage));
        const auto* label = m_widget->findChild<QWidget*>(QStringLiteral("tableView_Dnm"));
        const auto* tabs = m_widget->findChild<QWidget*>(QStringLiteral("tab_2"));
        // Filled when the tab of the master, which the fixed mode does not have, is gone.
        while (!label || !tabs || tabs->isEnabled())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

private:
    MemoryLink m_link;
    std::unique_ptr<BaseZelCustomData> m_data;
    std::unique_ptr<ZelBaseWidget> m_widget;
};

// From the press on the menu button to a page that is filled.
void openMappingPage(benchmark::State& state)
{
    for (auto _ : state) {
        state.PauseTiming();
        auto application = std::make_unique<Application>();
        state.ResumeTiming();
        application->openMapping();
        state.PauseTiming();
        application.reset();
        state.ResumeTiming();
    }
}

// Every cell of the seven rows, and the tips, by a change of direction; `paint` puts it on the screen.
void refill(benchmark::State& state, bool paint)
{
    Application application;
    application.openMapping();
    auto* page = application.widget()->findChild<QWidget*>(QStringLiteral("ConfigWidget"));
    auto* readOnly = page->findChild<QAbstractButton*>(QStringLiteral("checkBox_Mtcp_RO"));
    auto* writeOnly = page->findChild<QAbstractButton*>(QStringLiteral("checkBox_Mtcp_WO"));
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
    Application application;
    application.openMapping();
    ZelBaseWidget* widget = application.widget();
    const QMetaMethod idle = widget->metaObject()->method(widget->metaObject()->indexOfSlot("slotIdle()"));
    for (auto _ : state)
        idle.invoke(widget, Qt::DirectConnection);
}

} // namespace

BENCHMARK(openMappingPage)->Unit(benchmark::kMillisecond)->Iterations(20);
BENCHMARK(refillLargestTable)->Unit(benchmark::kMicrosecond);
BENCHMARK(refillAndPaintLargestTable)->Unit(benchmark::kMicrosecond);
BENCHMARK(tickOfMappingPage);
