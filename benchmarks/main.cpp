#include "PendantApplication.h"
#include "WorkDirectory.h"

#include <QTemporaryDir>

#include <benchmark/benchmark.h>

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    PendantApplication application(argc, argv);
    const QTemporaryDir directory;
    WorkDirectory work(directory.path());
    if (!work.enter())
        return 2;
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
