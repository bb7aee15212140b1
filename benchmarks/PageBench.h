#ifndef BENCHMARKS_PAGEBENCH_H
#define BENCHMARKS_PAGEBENCH_H

#include "MemoryLink.h"

#include <QMetaMethod>
#include <QWidget>

#include <benchmark/benchmark.h>

#include <memory>

class BaseZelCustomData;
class ZelBaseWidget;

/// The application on a controller that only remembers, with one page open: what a benchmark of a page needs
/// of a pendant.
class PageBench
{
public:
    /// Opens the page of `id`. Files of the controller are put into `files` first, by path in lower case.
    explicit PageBench(int id, const QMap<QString, QByteArray>& files = {});
    ~PageBench();
    PageBench(const PageBench&) = delete;
    PageBench& operator=(const PageBench&) = delete;

    /// The host's idle tick.
    void tick();
    /// Times idle ticks over the page as it stands. Counters: heap allocations of a tick, and the style
    /// changes and paints of all widgets in all ticks together.
    void measureTicks(benchmark::State& state);
    ZelBaseWidget& application() { return *m_application; }

private:
    MemoryLink m_link;
    std::unique_ptr<BaseZelCustomData> m_data;
    std::unique_ptr<ZelBaseWidget> m_application;
    QMetaMethod m_idle; // by name a call would look the slot up, and allocate
};

#endif
