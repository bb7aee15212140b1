#include "Finger.h"
#include "Stations.h"
#include "TourGuide.h"

#include <QTableWidget>

namespace {

const QString Status = QStringLiteral("fieldbusstatus");

// Presses the row that names `role`.
bool pressRow(TourGuide& guide, const QString& role)
{
    constexpr int RoleColumn = 1;
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

bool rolePage(TourGuide& guide, const QString& role, const QString& picture)
{
    return pressRow(guide, role) && guide.settle() &&
           guide.report(QStringLiteral("status-role-") + picture) && guide.press(QStringLiteral("backBtn"));
}

} // namespace

// From the settings to the other application and back.
bool Stations::status(TourGuide& guide)
{
    bool reached = guide.leave() && guide.openApplication(Status) && guide.settle() &&
                   guide.report(QStringLiteral("status-overview"));
    reached = reached && guide.press(QStringLiteral("findingsBtn")) && guide.settle() &&
              guide.report(QStringLiteral("status-findings")) && guide.press(QStringLiteral("overviewBtn"));
    for (const char* page : {"history", "changes", "support"})
        reached = reached && guide.press(QLatin1String(page) + QStringLiteral("Btn")) && guide.settle() &&
                  guide.report(QStringLiteral("status-") + QLatin1String(page));
    reached = reached && guide.press(QStringLiteral("overviewBtn"));
    const struct
    {
        const char* role;
        const char* picture;
    } roles[] = {{"EtherNet/IP slave", "ethernet-ip-slave"},
                 {"DeviceNet master", "devicenet-master"},
                 {"EtherNet/IP master", "ethernet-ip-master"}};
    for (const auto& role : roles)
        reached = reached && rolePage(guide, QLatin1String(role.role), QLatin1String(role.picture));
    return guide.leaveApplication() && guide.open() && reached;
}
