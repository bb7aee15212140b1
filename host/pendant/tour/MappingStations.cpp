#include "BusFileDataManager.h"
#include "Stations.h"
#include "TourGuide.h"

#include <QTabWidget>

namespace {

struct Mode
{
    const char* name;
    bool isFree;
    int tabs; // with all roles on: the fixed mode has none for the Modbus TCP master
};
constexpr Mode Modes[] = {{"free", true, 10}, {"fixed", false, 9}};

// Of those that look different while they are edited: one with byte addresses and, in the free mode only, the
// one whose rows have a start address each.
constexpr const char* EditedTabs[] = {"tab_Eip", "tab_2"};

bool showTab(QTabWidget& tabs, const QString& name)
{
    for (int tab = 0; tab < tabs.count(); ++tab) {
        if (tabs.isTabEnabled(tab) && tabs.widget(tab)->objectName() == name) {
            tabs.setCurrentIndex(tab);
            return true;
        }
    }
    return false;
}

bool reportTabs(TourGuide& guide, QTabWidget& tabs, const Mode& mode)
{
    const QString prefix = QStringLiteral("mapping-%1-").arg(QLatin1String(mode.name));
    bool reached = true;
    int enabled = 0;
    for (int tab = 0; tab < tabs.count(); ++tab) {
        if (!tabs.isTabEnabled(tab))
            continue;
        ++enabled;
        tabs.setCurrentIndex(tab);
        reached = guide.settle() && guide.report(prefix + tabs.currentWidget()->objectName()) && reached;
    }
    if (enabled != mode.tabs)
        reached = TourGuide::fail(
            TourGuide::tr("%1 tabs in the %2 mode").arg(enabled).arg(QLatin1String(mode.name)));
    tabs.setCurrentIndex(0);
    return guide.press(QStringLiteral("checkBox_Mtcp_RW")) &&
           guide.report(prefix + QStringLiteral("read-and-write")) &&
           guide.press(QStringLiteral("checkBox_Mtcp_RO")) && reached;
}

bool reportEditing(TourGuide& guide, QTabWidget& tabs, const Mode& mode)
{
    const QString name = QStringLiteral("mapping-%1-editing").arg(QLatin1String(mode.name));
    bool reached = guide.press(QStringLiteral("bt_EditOrSave")) && guide.report(name);
    for (const char* tab : EditedTabs) {
        if (showTab(tabs, QLatin1String(tab)))
            reached = guide.settle() && guide.report(name + QLatin1Char('-') + QLatin1String(tab)) && reached;
        else if (mode.isFree)
            reached = TourGuide::fail(TourGuide::tr("there is no tab %1").arg(QLatin1String(tab)));
    }
    tabs.setCurrentIndex(0);
    return reached;
}

} // namespace

// Every bus in either mode, as if the roles had been switched on another page meanwhile.
bool Stations::mapping(TourGuide& guide)
{
    const QString otherPage = QStringLiteral("heartbeatBtn");
    BusFileDataManager* service = BusFileDataManager::getInstance();
    const QMap<QString, BusName> before = service->getAllBusName();
    bool reached = true;
    for (const Mode& mode : Modes) {
        QMap<QString, BusName> roles = before;
        for (BusName& role : roles)
            role.enabled = role.name != QLatin1String("FreeBus") || mode.isFree;
        service->setBusInfo(roles);
        reached = guide.openPage(otherPage) && guide.openPage(QStringLiteral("configBtn")) && reached;
        auto* tabs = guide.find<QTabWidget>(QStringLiteral("tabWidget_Bus"));
        reached = tabs && reportTabs(guide, *tabs, mode) && reportEditing(guide, *tabs, mode) && reached;
    }
    service->setBusInfo(before);
    return guide.openPage(otherPage) && reached;
}
