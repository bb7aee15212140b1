#ifndef BENCHMARKS_PAGEBENCH_H
#define BENCHMARKS_PAGEBENCH_H

#include "MemoryLink.h"

#include <QEvent>
#include <QMetaMethod>
#include <QWidget>

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
    ZelBaseWidget& application() { return *m_application; }
    MemoryLink& link() { return m_link; }

private:
    MemoryLink m_link;
    std::unique_ptr<BaseZelCustomData> m_data;
    std::unique_ptr<ZelBaseWidget> m_application;
    QMetaMethod m_idle; // by name a call would look the slot up, and allocate
};

/// Counts style-sheet changes and paints of all widgets while it lives.
class WidgetWork : public QObject
{
public:
    WidgetWork();
    int styleChanges = 0;
    int paints = 0;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

/// Number of heap allocations of the process so far.
long long allocationCount();

#endif
