#include "ControllerLink.h"
#include "Shortcut.h"
#include "Stations.h"
#include "TourGuide.h"

bool Stations::mes(TourGuide& guide)
{
    const QString monitor = QStringLiteral("monitorButton");
    if (!guide.openPage(QStringLiteral("mesBtn")) || !guide.press(monitor))
        return false;
    // Whether the port is free is the machine's business; the picture is the same.
    guide.controller().writeVariable(QStringLiteral("imes.tcp_server_active"), 0, 1.0);
    bool seen = guide.settle() && guide.report(QStringLiteral("mes-active"));
    guide.controller().writeVariable(QStringLiteral("imes.tcp_server_connected"), 0, 1.0);
    seen = guide.settle() && guide.report(QStringLiteral("mes-connected")) && seen;
    return guide.press(monitor) && seen;
}

bool Stations::fins(TourGuide& guide)
{
    const auto set = [&guide](const char* variable, bool on) {
        guide.controller().writeVariable(QStringLiteral("ifins_tcp.%1").arg(QLatin1String(variable)), 0,
                                         on ? 1.0 : 0.0);
    };
    if (!guide.openBy(
            QStringLiteral("the FINS client"),
            [&guide] { return Shortcut(guide.subject().window, QStringLiteral("finsPage")).show(); }) ||
        !guide.report(QStringLiteral("fins-off")))
        return false;
    // The factory settings name a server that a simulated controller does not call.
    bool seen = guide.press(QStringLiteral("enable_checkBox")) && guide.report(QStringLiteral("fins-error"));
    set("error", false);
    set("connected", true);
    seen = guide.settle() && guide.report(QStringLiteral("fins-on")) && seen;
    set("enable", false);
    return guide.settle() && seen;
}
