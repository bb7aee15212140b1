#include "Borrowed.h"
#include "Finger.h"
#include "MsgBox.h"
#include "MsgBoxScript.h"
#include "Stations.h"
#include "TourGuide.h"

namespace {

enum Position { Off, On };

struct Turn
{
    const char* combo;
    Position position;
    const char* warning; // picture of the box that it brings up, null: none
};

// Every switch, and every warning on the way. In the cell all are on but the two masters, of EtherCAT and
// PROFINET, and the DeviceNet slave.
constexpr Turn Turns[] = {
    {"mesSwitch", Off, nullptr},
    {"ethcatSwitch", Off, nullptr},
    {"ethcatSwitch", On, "bus-switch-anybus"},
    {"ethcatMSwitch", On, nullptr},
    {"ethnetSwitch", Off, nullptr},
    {"eipMSwitch", Off, nullptr},
    {"eipMSwitch", On, "bus-switch-eim-device"},
    {"pftSwitch", Off, nullptr},
    {"pfnMasterSwitch", On, "bus-switch-pnm-device"},
    {"devnetSwitch", On, "bus-switch-devicenet-slave"}, // goes back to off
    {"devnetmSwitch", Off, nullptr},
    {"devnetSwitch", On, nullptr},
    {"devnetmSwitch", On, "bus-switch-devicenet-master"}, // the same
    {"mbcSwitch", Off, nullptr},
    {"freeBusSwitch", Off, nullptr},
    {"mbcSwitch", On, "bus-switch-free-configuration"},
};

const QString Save = QStringLiteral("saveBusBt");

bool turn(TourGuide& guide, const Turn& wanted)
{
    const QString combo = QLatin1String(wanted.combo);
    const auto choose = [&guide, &wanted, combo] { return guide.choose(combo, wanted.position); };
    const bool turned = wanted.warning ? guide.reportDialog(QLatin1String(wanted.warning), choose)
                                       : choose() && guide.settle();
    return turned || TourGuide::fail(TourGuide::tr("%1 cannot be turned").arg(combo));
}

// The file with the devices that the roles need switched off: a directive in a comment has its device in use.
QByteArray withoutDevices(const QByteArray& overrideFile)
{
    QList<QByteArray> lines = overrideFile.split('\n');
    for (QByteArray& line : lines) {
        for (const char* device : {"ANYBUS", "EIM_DEVICE", "PNM_DEVICE"}) {
            if (line.startsWith(";ECAT_SLAVE_OFF") && line.contains(device))
                line.remove(0, 1);
        }
    }
    return lines.join('\n');
}

} // namespace

// On a controller that uses none of the devices that the roles need.
bool Stations::busSwitches(TourGuide& guide)
{
    bool reached = false;
    {
        BorrowedFile devices(guide, QStringLiteral("/fa/override.cfg"));
        reached = devices.store(withoutDevices(devices.before())) && guide.reopen() &&
                  guide.openPage(QStringLiteral("busSetting"));
        for (const Turn& wanted : Turns)
            reached = turn(guide, wanted) && reached;
        reached = guide.report(QStringLiteral("bus-switches-turned")) && reached;

        // What is in the way of saving them.
        guide.subject().setServo(true);
        reached = guide.reportDialog(QStringLiteral("bus-switch-servo"), Save) && reached;
        guide.subject().setServo(false);
        reached = guide.reportDialog(QStringLiteral("bus-switch-one-master"), Save) && reached;
        for (const char* master : {"ethcatMSwitch", "pfnMasterSwitch"})
            reached = turn(guide, {master, Off, nullptr}) && reached;
        reached = guide.reportDialog(QStringLiteral("bus-switch-save-free-configuration"), Save) && reached;
    }
    return guide.reopen() && reached;
}

// Cancelled; then confirmed, which changes nothing and shows the wait.
bool Stations::busSwitchSave(TourGuide& guide)
{
    if (!guide.openPage(QStringLiteral("busSetting")) ||
        !guide.reportDialog(QStringLiteral("bus-switch-question"), Save))
        return false;
    MsgBoxScript::answerNext(MsgBox::Confirmed);
    return Finger::press(guide.find(Save)) && guide.report(QStringLiteral("bus-switch-wait")) &&
           guide.settle() && guide.report(QStringLiteral("bus-switch-saved"));
}
