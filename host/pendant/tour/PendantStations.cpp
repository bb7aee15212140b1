#include "ApplicationSlot.h"
#include "ControllerLink.h"
#include "HomeScreen.h"
#include "PendantWindow.h"
#include "Stations.h"
#include "TourGuide.h"

#include <QAbstractButton>

bool Stations::home(TourGuide& guide)
{
    return guide.settle() && guide.report(QStringLiteral("home"));
}

// With the start page, which is made along with the menu.
bool Stations::menu(TourGuide& guide)
{
    const ApplicationSlot* settings = guide.subject().window.application(QStringLiteral("fieldbussetting"));
    if (!settings || !settings->error().isEmpty())
        return TourGuide::fail(settings ? settings->error() : guide.subject().window.home().notice());
    const bool loaded = guide.open();
    return guide.find(QStringLiteral("menusGroupBox")) && guide.report(QStringLiteral("menu")) && loaded;
}

bool Stations::pages(TourGuide& guide)
{
    const auto* menu = guide.find(QStringLiteral("menusGroupBox"));
    if (!menu)
        return false;
    // By name: a page may change which buttons there are.
    QStringList names;
    const auto buttons = menu->findChildren<QAbstractButton*>();
    for (const QAbstractButton* button : buttons) {
        if (button->isVisible() && button->objectName() != QLatin1String("exitBtn"))
            names.append(button->objectName());
    }
    bool allLoaded = !names.isEmpty();
    for (const QString& name : qAsConst(names)) {
        allLoaded = guide.openPage(name) && allLoaded;
        allLoaded = guide.report(guide.pageClass()) && allLoaded;
    }
    return allLoaded;
}

bool Stations::heartbeatLights(TourGuide& guide)
{
    if (!guide.openPage(QStringLiteral("heartbeatBtn")))
        return false;
    // Every second link is up. A role that is switched off keeps its grey ring.
    constexpr const char* Links[] = {"mtcp", "ethcat", "pfn", "eip", "ecm",
                                     "dns",  "mbc",    "eim", "pnm", "dnm"};
    bool up = true;
    for (const char* link : Links) {
        guide.controller().writeVariable(QStringLiteral("ifidbus.%1_link_state").arg(QLatin1String(link)), 0,
                                         up ? 1.0 : 0.0);
        up = !up;
    }
    return guide.settle() && guide.report(QStringLiteral("heartbeat-lights"));
}

bool Stations::message(TourGuide& guide)
{
    return guide.openPage(QStringLiteral("heartbeatBtn")) &&
           guide.reportDialog(QStringLiteral("message"), QStringLiteral("saveButton"));
}

bool Stations::numericKeyboard(TourGuide& guide)
{
    return guide.openPage(QStringLiteral("heartbeatBtn")) &&
           guide.reportDialog(QStringLiteral("numeric-keyboard"), QStringLiteral("modbusLineEdit"));
}

bool Stations::logIn(TourGuide& guide)
{
    return guide.reportDialog(QStringLiteral("log-in"), QStringLiteral("logInButton"));
}

bool Stations::language(TourGuide& guide)
{
    return guide.reportDialog(QStringLiteral("language"), QStringLiteral("languageButton"));
}

bool Stations::panel(TourGuide& guide)
{
    QWidget* panel = guide.subject().panel;
    if (!panel)
        return true;
    const bool wasVisible = panel->isVisible();
    panel->show();
    const bool reported = guide.settle() && guide.report(QStringLiteral("panel"), panel);
    panel->setVisible(wasVisible);
    return reported;
}

// Applications without stations of their own: the page that each opens with.
bool Stations::otherApplications(TourGuide& guide)
{
    bool allSeen = guide.leave();
    for (const ApplicationSlot* application : guide.subject().window.applications()) {
        const QString name = application->info().className;
        if (name == QLatin1String("fieldbussetting") || name == QLatin1String("fieldbusstatus"))
            continue;
        allSeen = guide.openApplication(name) && guide.report(name) && allSeen;
        allSeen = guide.leaveApplication() && allSeen;
    }
    return guide.open() && allSeen;
}

// Opened again from the home screen before, so that a second life of the application is seen as well.
bool Stations::exit(TourGuide& guide)
{
    return guide.reopen() && guide.leave() && guide.report(QStringLiteral("home-again"));
}
