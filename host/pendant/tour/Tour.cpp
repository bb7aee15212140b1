#include "Tour.h"

#include "Stations.h"

#include <QTextStream>

namespace {

struct Station
{
    const char* name;
    bool (*visit)(TourGuide& guide);
};

constexpr Station AllStations[] = {
    {"home", Stations::home},
    {"menu", Stations::menu},
    {"pages", Stations::pages},
    {"heartbeat-lights", Stations::heartbeatLights},
    {"message", Stations::message},
    {"numeric-keyboard", Stations::numericKeyboard},
    {"log-in", Stations::logIn},
    {"language", Stations::language},
    {"panel", Stations::panel},
    {"mes", Stations::mes},
    {"fins", Stations::fins},
    {"modbus-master", Stations::modbusMaster},
    {"partners", Stations::partners},
    {"mapping", Stations::mapping},
    {"devicenet-slave", Stations::deviceNetSlave},
    {"devicenet-master", Stations::deviceNetMaster},
    {"usb", Stations::usb},
    {"bus-switches", Stations::busSwitches},
    {"bus-switch-save", Stations::busSwitchSave},
    {"slave-states", Stations::slaveStates},
    {"slave-module", Stations::slaveModule},
    {"slaves-of-masters", Stations::slavesOfMasters},
    {"long-device-tables", Stations::longDeviceTables},
    {"status", Stations::status},
    {"other-applications", Stations::otherApplications},
    {"exit", Stations::exit},
};

QString tr(const char* text, int n = -1)
{
    return TourGuide::tr(text, nullptr, n);
}

} // namespace

int makeTour(const TourGuide::Subject& subject, const QString& directory)
{
    const QString folder = QDir(directory).absolutePath();
    if (!QDir().mkpath(folder)) {
        TourGuide::fail(tr("the folder %1 cannot be made").arg(folder));
        return 2;
    }
    TourGuide guide(subject, folder);
    int failures = 0;
    for (const Station& station : AllStations) {
        if (!station.visit(guide)) {
            ++failures;
            TourGuide::fail(tr("station \"%1\" was not reached").arg(QLatin1String(station.name)));
        }
    }
    QTextStream(stdout) << tr("%n picture(s) in %1", guide.pictures()).arg(QDir::toNativeSeparators(folder))
                        << '\n';
    return failures == 0 ? 0 : 1;
}
