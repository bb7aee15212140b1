#include "Borrowed.h"
#include "ControllerLink.h"
#include "Shortcut.h"
#include "Stations.h"
#include "TourGuide.h"

#include <QTabWidget>

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

bool Stations::partners(TourGuide& guide)
{
    const char* const files[] = {"/application/finstcp/FinsTcpConfig.xml",
                                 "/application/mes/TcpServerConfig.xml",
                                 "/application/fidbus/mtcpMaster/mtcp_master.xml"};
    std::vector<std::unique_ptr<BorrowedFile>> borrowed;
    for (const char* file : files) {
        borrowed.push_back(std::make_unique<BorrowedFile>(guide, QLatin1String(file)));
        borrowed.back()->markChanged();
    }
    bool seen = guide.subject().switchPartners(true) && guide.reopen();
    for (const char* light : {"ifins_tcp.connected", "imes.tcp_server_connected", "ifidbus.mbc_connected",
                              "ifidbus.mtcp_link_state", "ifidbus.eip_link_state"})
        seen = guide.waitForVariable(QLatin1String(light), 1.0) && seen;
    for (const char* button : {"heartbeatBtn", "mesBtn", "mtcpMasterBtn", "eipMasterBtn", "devicemBtn"})
        seen = guide.openPage(QLatin1String(button)) &&
               guide.report(QStringLiteral("partners-") + guide.pageClass()) && seen;
    seen = guide.openBy(
               QStringLiteral("the FINS client"),
               [&guide] { return Shortcut(guide.subject().window, QStringLiteral("finsPage")).show(); }) &&
           guide.waitForVariable(QStringLiteral("ifins_tcp.connected"), 1.0) && guide.settle() &&
           guide.report(QStringLiteral("partners-fins")) && seen;
    if (QWidget* const panel = guide.subject().panel) {
        panel->show();
        auto* const tabs = panel->findChild<QTabWidget*>();
        for (const char* tab : {"partnerTab", "frameTab", "logTab"}) {
            tabs->setCurrentWidget(panel->findChild<QWidget*>(QLatin1String(tab)));
            seen =
                guide.settle() && guide.report(QStringLiteral("panel-") + QLatin1String(tab), panel) && seen;
        }
        tabs->setCurrentIndex(0);
        panel->hide();
    }
    guide.subject().switchPartners(false);
    guide.controller().writeVariable(QStringLiteral("ifins_tcp.enable"), 0, 0.0);
    guide.controller().writeVariable(QStringLiteral("imes.tcp_server_listen"), 0, 1.0); // stops the server
    borrowed.clear();
    return guide.reopen() && seen;
}
