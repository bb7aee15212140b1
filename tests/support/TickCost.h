#ifndef TESTS_TICKCOST_H
#define TESTS_TICKCOST_H

#include "PaintCounter.h"
#include "PendantFixture.h"

#if defined(__SANITIZE_ADDRESS__)
// Of the sanitizer's runtime; gcc ships no header for it.
extern "C" int __sanitizer_install_malloc_and_free_hooks(void (*malloced)(const volatile void*, std::size_t),
                                                         void (*freed)(const volatile void*));
#endif

/// What 100 idle ticks of the application cost that is on the screen. Allocations are counted with the
/// address sanitizer only.
struct TickCost
{
    long long allocations = -1; ///< -1: there was no application
    int styleChanges = 0;
    int paints = 0;

    static TickCost of(PendantFixture& pendant, const QString& pageClass)
    {
        QWidget* application = nullptr;
        for (QWidget* above = pendant.find(pageClass); above; above = above->parentWidget()) {
            if (above->metaObject()->indexOfSlot("slotIdle()") >= 0)
                application = above;
        }
        if (!application)
            return {};
        const QMetaMethod idle =
            application->metaObject()->method(application->metaObject()->indexOfSlot("slotIdle()"));
        idle.invoke(application);
        const PaintCounter paintCounter;
        countAllocations();
        const long long before = counter();
        for (int tick = 0; tick < 100; ++tick)
            idle.invoke(application);
        TickCost cost;
        cost.allocations = counter() - before;
        QCoreApplication::processEvents();
        cost.styleChanges = paintCounter.styleChanges();
        cost.paints = paintCounter.paints();
        return cost;
    }

private:
    static long long& counter()
    {
        static long long allocations = 0;
        return allocations;
    }
    static void countAllocations()
    {
#if defined(__SANITIZE_ADDRESS__)
        static const int installed = __sanitizer_install_malloc_and_free_hooks(
            [](const volatile void* /*pointer*/, std::size_t /*size*/) { ++counter(); },
            [](const volatile void* /*pointer*/) {});
        Q_UNUSED(installed)
#endif
    }
};

#endif
