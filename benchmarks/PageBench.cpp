#include "PageBench.h"

#include "BaseZelCustomData.h"
#include "BusFileService.h"
#include "CurrentLink.h"
#include "PaintCounter.h"
#include "PluginEntry.h"
#include "ZelBaseWidget.h"

#include <QApplication>
#include <QElapsedTimer>

#include <atomic>

namespace {

constexpr int SettleMs = 500;
std::atomic<long long> allocations{0};

void processEventsFor(int msec)
{
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < msec)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
}

} // namespace

// glibc lets a program put its own allocator before its entry points; ours counts and hands on.
extern "C" void* __libc_malloc(std::size_t size); // NOLINT(bugprone-reserved-identifier)
extern "C" void* malloc(std::size_t size)
{
    allocations.fetch_add(1, std::memory_order_relaxed);
    return __libc_malloc(size);
}

PageBench::PageBench(int id, const QMap<QString, QByteArray>& files)
{
    m_link.files = files;
    // The page that is shown first warns of a role whose device is out of use, in a box that nobody answers.
    if (const QString file = QStringLiteral("/fa/override.cfg"); !files.contains(file))
        m_link.files.insert(file, ";ECAT_SLAVE_OFF 1 1001 ;ANYBUS\n;ECAT_SLAVE_OFF 2 2001;EIM_DEVICE\n"
                                  ";ECAT_SLAVE_OFF 2 2002;PNM_DEVICE\n");
    setCurrentLink(&m_link);
    BusFileService::instance().resetSession();
    m_data.reset(CreateZelCustomData());
    m_application.reset(CreateZelCustomWidget(m_data.get(), nullptr));
    const QMetaObject* type = m_application->metaObject();
    m_idle = type->method(type->indexOfSlot("slotIdle()"));
    m_application->resize(1024, 680);
    m_application->show();
    processEventsFor(SettleMs);
    QMetaObject::invokeMethod(m_data->currentCentralWidget(), "slotMenuBtnsClicked", Q_ARG(int, id));
    processEventsFor(SettleMs);
    tick();
    processEventsFor(SettleMs);
}

PageBench::~PageBench()
{
    m_application.reset();
    m_data.reset();
    setCurrentLink(nullptr);
}

void PageBench::tick()
{
    m_idle.invoke(m_application.get(), Qt::DirectConnection);
}

void PageBench::measureTicks(benchmark::State& state)
{
    const PaintCounter widgetWork;
    const long long before = allocations.load();
    for (auto _ : state)
        tick();
    state.counters["allocations"] = benchmark::Counter(static_cast<double>(allocations.load() - before),
                                                       benchmark::Counter::kAvgIterations);
    QCoreApplication::processEvents();
    state.counters["styles"] = widgetWork.styleChanges();
    state.counters["paints"] = widgetWork.paints();
}
