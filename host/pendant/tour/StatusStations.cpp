#include "Borrowed.h"
#include "ControllerLink.h"
#include "Finger.h"
#include "Stations.h"
#include "TourGuide.h"

#include <QCoreApplication>
#include <QLabel>
#include <QScrollBar>
#include <QTableWidget>

namespace {

const QString Status = QStringLiteral("fieldbusstatus");

// Presses the row that names `role`; what belongs to no role is named in the application's language.
bool pressRow(TourGuide& guide, const char* name)
{
    constexpr int RoleColumn = 1;
    const QString role = QCoreApplication::translate("Subjects", name);
    auto* table = guide.find<QTableWidget>(QStringLiteral("overviewTable"));
    for (int row = 0; table && row < table->rowCount(); ++row) {
        if (table->item(row, RoleColumn)->text() != role)
            continue;
        table->scrollTo(table->model()->index(row, 0));
        return guide.settle() &&
               Finger::press(table->viewport(),
                             table->visualRect(table->model()->index(row, RoleColumn)).center());
    }
    return TourGuide::fail(TourGuide::tr("there is no row of %1").arg(role));
}

bool rolePage(TourGuide& guide, const char* role, const QString& picture)
{
    return pressRow(guide, role) && guide.settle() &&
           guide.report(QStringLiteral("status-role-") + picture) && guide.press(QStringLiteral("backBtn"));
}

// The page of a tab, and its end where it scrolls.
bool page(TourGuide& guide, const char* tab, const char* tableName, const QString& picture)
{
    bool reached = guide.press(QLatin1String(tab));
    auto* table = guide.find<QTableWidget>(QLatin1String(tableName));
    if (!reached || !table)
        return false;
    table->verticalScrollBar()->setValue(0);
    reached = guide.report(picture);
    if (table->verticalScrollBar()->maximum() == 0)
        return reached;
    table->verticalScrollBar()->setValue(table->verticalScrollBar()->maximum());
    reached = guide.settle() && guide.report(picture + QStringLiteral("-end")) && reached;
    table->verticalScrollBar()->setValue(0);
    return reached;
}

bool refresh(TourGuide& guide)
{
    return guide.press(QStringLiteral("refreshBtn")) && guide.settle();
}

// What was saved and waits for the restart, and a module that is missing.
bool troubles(TourGuide& guide)
{
    bool reached = false;
    {
        BorrowedFile roles(guide, QStringLiteral("/application/fidbus/fieldbus.xml"));
        BorrowedFile eipSlave(guide, QStringLiteral("/fa/dns-1.cfg"));
        const BorrowedVariable module(guide, QStringLiteral("ifidbus.anybus_fm"), 0.0);
        const BorrowedVariable link(guide, QStringLiteral("ifidbus.pfn_link_state"), 0.0);
        reached =
            roles.store(QByteArray(roles.before())
                            .replace("\"ProfinetMaster\" enable=\"0\"", "\"ProfinetMaster\" enable=\"1\"")) &&
            eipSlave.store(QByteArray(eipSlave.before()).replace("192.168.2.22", "192.168.2.30")) &&
            refresh(guide) && page(guide, "overviewBtn", "overviewTable", QStringLiteral("status-saved")) &&
            rolePage(guide, "EtherNet/IP slave", QStringLiteral("saved")) &&
            rolePage(guide, "PROFINET slave", QStringLiteral("without-module"));
    }
    return refresh(guide) && reached;
}

// A controller that is gone for less than a second, as a fast one is, is not missed.
bool lost(TourGuide& guide)
{
    guide.controller().requestRestart();
    constexpr int LookMs = 100;
    constexpr int MostLooks = 30;
    const auto* line = guide.find<QLabel>(QStringLiteral("label_contact"));
    for (int look = 0; line && look < MostLooks && !line->property("warning").toBool(); ++look)
        TourGuide::wait(LookMs);
    const bool reported =
        line && (!line->property("warning").toBool() || guide.report(QStringLiteral("status-lost")));
    while (!guide.controller().isUp())
        TourGuide::wait(LookMs);
    return guide.settle() && reported;
}

} // namespace

// From the settings to the other application and back.
bool Stations::status(TourGuide& guide)
{
    const struct
    {
        const char* role;
        const char* picture;
    } roles[] = {{"EtherNet/IP slave", "ethernet-ip-slave"},
                 {"DeviceNet master", "devicenet-master"},
                 {"EtherNet/IP master", "ethernet-ip-master"},
                 {"Modbus TCP master", "modbus-master"},
                 {"MES server", "mes"},
                 {"Heartbeat", "heartbeat"},
                 {"ProfiSAFE", "profisafe"},
                 {"Controller: files and ports", "controller"}};
    bool reached = guide.leave() && guide.openApplication(Status) && guide.settle() &&
                   page(guide, "overviewBtn", "overviewTable", QStringLiteral("status-overview")) &&
                   page(guide, "findingsBtn", "findingsTable", QStringLiteral("status-findings")) &&
                   guide.press(QStringLiteral("overviewBtn"));
    for (const auto& role : roles)
        reached = reached && rolePage(guide, role.role, QLatin1String(role.picture));
    for (const char* tab : {"history", "changes", "support"})
        reached = reached && guide.press(QLatin1String(tab) + QStringLiteral("Btn")) &&
                  guide.report(QStringLiteral("status-") + QLatin1String(tab));
    reached = reached && guide.press(QStringLiteral("overviewBtn"));
    reached = reached && troubles(guide) && lost(guide);
    return guide.leaveApplication() && guide.open() && reached;
}
