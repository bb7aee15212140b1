// The idle tick of the application while the page of the EtherNet/IP master shows nine slaves.
#include "BusFileService.h"
#include "CurrentLink.h"
#include "PaintCounter.h"
#include "PendantWindow.h"
#include "SimulatedController.h"

#include <QElapsedTimer>
#include <QLineEdit>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace {

constexpr int EipMasterPage = 11;
constexpr int LoadedMs = 1500;

void processEvents(int msec)
{
    QElapsedTimer timer;
    for (timer.start(); timer.elapsed() < msec;)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
}

void refreshEipMaster(benchmark::State& state)
{
    const QTemporaryDir directory;
    SimulatedController controller(directory.path());
    controller.setRoleOn(QStringLiteral("EtherNetIPMaster"), false); // its slaves would change the lights
    setCurrentLink(&controller);
    BusFileService::instance().resetSession();
    {
        PendantWindow window(QStringLiteral(PLUGIN_FILE));
        window.show();
        window.openApplication();
        processEvents(LoadedMs);
        QWidget* menu = window.findChild<QWidget*>(QStringLiteral("FbMainWidget"));
        if (!menu || !QMetaObject::invokeMethod(menu, "slotMenuBtnsClicked", Q_ARG(int, EipMasterPage))) {
            state.SkipWithError("the application did not open");
            return;
        }
        processEvents(LoadedMs);
        auto* page = window.findChild<QWidget*>(QStringLiteral("EipMasterSettingWidget"));
        page->findChild<QLineEdit*>(QStringLiteral("lineEdit_slave_count"))->setText(QStringLiteral("9"));
        processEvents(LoadedMs);
        QWidget* application = menu->parentWidget();
        while (application && application->metaObject()->indexOfSlot("slotIdle()") < 0)
            application = application->parentWidget();
        const QMetaMethod idle =
            application->metaObject()->method(application->metaObject()->indexOfSlot("slotIdle()"));
        const PaintCounter costs;
        for (auto _ : state)
            idle.invoke(application);
        QCoreApplication::processEvents();
        state.counters["styleChanges"] = costs.styleChanges();
        state.counters["paints"] = costs.paints();
    }
    setCurrentLink(nullptr);
}

} // namespace

BENCHMARK(refreshEipMaster);
