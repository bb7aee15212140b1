#include "Borrowed.h"
#include "ControllerLink.h"
#include "Shortcut.h"
#include "Stations.h"
#include "TourGuide.h"

#include <QRegularExpression>
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

namespace {

// Roles that are off, switched on for a station. Those that exclude each other run together then, as only the
// pendant forbids: every light is to be seen.
class AllRoles
{
public:
    explicit AllRoles(TourGuide& guide)
        : m_guide(guide)
    {
        QByteArray roles;
        m_guide.fetch(QStringLiteral("/application/fidbus/fieldbus.xml"), roles);
        static const QRegularExpression off(QStringLiteral("name=\"(\\w+)\" enable=\"0\""));
        for (auto match = off.globalMatch(QString::fromUtf8(roles)); match.hasNext();)
            m_off.append(match.next().captured(1));
        switchAll(true);
    }
    ~AllRoles() { switchAll(false); }
    AllRoles(const AllRoles&) = delete;
    AllRoles& operator=(const AllRoles&) = delete;

private:
    void switchAll(bool on)
    {
        for (const QString& role : qAsConst(m_off))
            m_guide.subject().switchRole(role, on);
    }

    TourGuide& m_guide;
    QStringList m_off;
};

// Every page with a light, and how many of its lights are to be green.
bool visitLights(TourGuide& guide)
{
    const struct
    {
        const char* button;
        int green;
    } stops[] = {{"heartbeatBtn", 10}, {"mesBtn", 1},      {"mtcpMasterBtn", 1},
                 {"pfbPfnBtn", 1},     {"etherNetBtn", 1}, {"deviceBtn", 1},
                 {"eipMasterBtn", 6},  {"pnmBtn", 3},      {"devicemBtn", 0}};
    bool seen = true;
    for (const auto& stop : stops)
        seen = guide.openHiddenPage(QLatin1String(stop.button)) && guide.waitForLights(stop.green) &&
               guide.report(QStringLiteral("partners-") + guide.pageClass()) && seen;
    return guide.openBy(
               QStringLiteral("the FINS client"),
               [&guide] { return Shortcut(guide.subject().window, QStringLiteral("finsPage")).show(); }) &&
           guide.waitForLights(1) && guide.report(QStringLiteral("partners-fins")) && seen;
}

bool visitTabs(TourGuide& guide)
{
    QWidget* const panel = guide.subject().panel;
    if (!panel)
        return true;
    bool seen = true;
    panel->show();
    auto* const tabs = panel->findChild<QTabWidget*>();
    for (const char* tab : {"partnerTab", "frameTab", "slaveTab", "faultTab", "logTab"}) {
        tabs->setCurrentWidget(panel->findChild<QWidget*>(QLatin1String(tab)));
        seen = guide.settle() && guide.report(QStringLiteral("panel-") + QLatin1String(tab), panel) && seen;
    }
    tabs->setCurrentIndex(0);
    panel->hide();
    return seen;
}

} // namespace

bool Stations::partners(TourGuide& guide)
{
    std::vector<std::unique_ptr<BorrowedFile>> borrowed;
    for (const char* file : {"/application/finstcp/FinsTcpConfig.xml", "/application/mes/TcpServerConfig.xml",
                             "/application/fidbus/mtcpMaster/mtcp_master.xml", "/fa/override.cfg"}) {
        borrowed.push_back(std::make_unique<BorrowedFile>(guide, QLatin1String(file)));
        borrowed.back()->markChanged();
    }
    bool seen = false;
    {
        const AllRoles roles(guide);
        BorrowedFile watches(guide, QStringLiteral("/application/fidbus/heartbeat.xml"));
        seen = watches.store(QByteArray(watches.before()).replace("Switch>0<", "Switch>1<")) &&
               guide.subject().switchPartners(true) && guide.reopen();
        seen = visitLights(guide) && visitTabs(guide) && seen;
    }
    guide.subject().switchPartners(false);
    guide.controller().writeVariable(QStringLiteral("ifins_tcp.enable"), 0, 0.0);
    guide.controller().writeVariable(QStringLiteral("imes.tcp_server_listen"), 0, 1.0); // stops the server
    borrowed.clear();
    return guide.reopen() && seen;
}
