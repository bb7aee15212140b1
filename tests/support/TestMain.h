#ifndef TESTS_TESTMAIN_H
#define TESTS_TESTMAIN_H

#include "PendantApplication.h"

#include <QtTest>

#include <memory>

#if defined(__SANITIZE_ADDRESS__)
// Of the sanitizer's runtime; gcc ships no header for them.
extern "C" void __lsan_disable();
extern "C" void __lsan_enable();
#else
inline void __lsan_disable() {}
inline void __lsan_enable() {}
#endif

/// `main` of a test with widgets: the pendant's own application object. What Qt's offscreen platform makes
/// for itself while the application is constructed it never gives back, so that is not searched for leaks.
/// Further arguments are those of the class's constructor.
#define PENDANT_TEST_MAIN(TestClass, ...)                                                                    \
    int main(int argc, char* argv[])                                                                         \
    {                                                                                                        \
        __lsan_disable();                                                                                    \
        const auto application = std::make_unique<PendantApplication>(argc, argv);                           \
        __lsan_enable();                                                                                     \
        TestClass test{__VA_ARGS__};                                                                         \
        return QTest::qExec(&test, argc, argv);                                                              \
    }

#endif
