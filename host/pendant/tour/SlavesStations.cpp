#include "Borrowed.h"
#include "Stations.h"
#include "TourGuide.h"

bool Stations::deviceNetSlave(TourGuide& guide)
{
    constexpr int Linked = 32;
    const QString name = QStringLiteral("ifidbus.commun_state");
    const int before = static_cast<int>(guide.controller().readVariable(name, 0));
    const BorrowedVariable state(guide, name, before | Linked);
    return guide.openHiddenPage(QStringLiteral("deviceBtn")) &&
           guide.report(QStringLiteral("devicenet-slave"));
}

// What the slaves' pages show beside their settings: no port with the EtherNet/IP slave's address, and a
// ProfiSAFE device. The pages decide for it when they are built.
bool Stations::slaveStates(TourGuide& guide)
{
    bool reached = false;
    {
        BorrowedFile ports(guide, QStringLiteral("/application/network/netports.xml"));
        const BorrowedVariable profisafe(guide, QStringLiteral("io_man.profisafe_status"), 1.0);
        reached = ports.store(QByteArray(ports.before()).replace(".22", ".23")) && guide.reopen();
        const struct
        {
            const char* button;
            const char* picture;
        } stops[] = {{"etherNetBtn", "ethernet-ip-banner"},
                     {"pfbPfnBtn", "profinet-with-profisafe"},
                     {"btn_pfss", "profisafe"}};
        for (const auto& stop : stops)
            reached = reached && guide.openPage(QLatin1String(stop.button)) &&
                      guide.report(QLatin1String(stop.picture));
        reached = reached && guide.press(QStringLiteral("btn_errorConfir")) &&
                  guide.report(QStringLiteral("profisafe-command"));
    }
    return guide.reopen() && reached;
}

// The page of the EtherCAT slave decides for a face when it is built.
bool Stations::slaveModule(TourGuide& guide)
{
    constexpr int EtherCatModule = 13;
    bool reached = false;
    {
        const BorrowedVariable module(guide, QStringLiteral("ifidbus.anybus_fm"), EtherCatModule);
        reached = guide.reopen() && guide.openPage(QStringLiteral("etherCatBtn")) &&
                  guide.report(QStringLiteral("ethercat-slave-module"));
    }
    return guide.reopen() && reached;
}
