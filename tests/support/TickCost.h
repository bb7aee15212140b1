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

    static TickCost of(PendantFixture& pendant)
    {
        if (!pendant.tick())
            return {};
        const PaintCounter paintCounter;
        countAllocations();
        // Finding the slot is no part of a tick, and costs the same however many there are.
        const long long before = counter();
        pendant.tick(0);
        const long long between = counter();
        pendant.tick(100);
        TickCost cost;
        cost.allocations = (counter() - between) - (between - before);
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
