#include "Borrowed.h"
#include "MsgBox.h"
#include "MsgBoxScript.h"
#include "Stations.h"
#include "TourGuide.h"

#include <QLineEdit>
#include <QScrollBar>
#include <QTableWidget>

// With the controller's own slave as the partner.
bool Stations::modbusMaster(TourGuide& guide)
{
    const QString announced = QStringLiteral("ifidbus.mbc_save_enable");
    BorrowedFile settings(guide, QStringLiteral("/application/fidbus/mtcpMaster/mtcp_master.xml"));
    bool reached = guide.openPage(QStringLiteral("mtcpMasterBtn")) &&
                   guide.type(QStringLiteral("le_masterIp"), QStringLiteral("127.0.0.1")) &&
                   guide.type(QStringLiteral("le_masterId"), QStringLiteral("1")) &&
                   guide.type(QStringLiteral("le_masterPort"), QString::number(guide.subject().modbusPort));
    settings.markChanged();
    MsgBoxScript::answerNext(MsgBox::Confirmed);
    reached = reached && guide.press(QStringLiteral("btn_save")) && guide.waitForVariable(announced, 0.0) &&
              guide.press(QStringLiteral("btn_connect")) &&
              guide.waitForVariable(QStringLiteral("ifidbus.mbc_connected"), 1.0) && guide.settle() &&
              guide.report(QStringLiteral("modbus-master-connected"));
    reached = settings.putBack() && reached;
    guide.controller().writeVariable(announced, 0, 1.0);
    return reached;
}

// A long list of devices, as it is edited.
bool Stations::deviceNetMaster(TourGuide& guide)
{
    constexpr int Devices = 16;
    BorrowedFile file(guide, QStringLiteral("/fa/dnmst0.cfg"));
    const QByteArray before = file.before();
    const auto announce = [&guide](int devices) {
        guide.controller().writeVariable(QStringLiteral("ifidbus.dnm_save_config"), 0, 1.0);
        guide.controller().writeVariable(QStringLiteral("ifidbus.dnm_slave_num"), 0, devices);
    };
    QByteArray full = before.left(before.indexOf(";=====")); // the header
    for (int device = 1; device <= Devices; ++device) {
        full += QStringLiteral(";===================\n;   Device %1 MAC ID %2\nBLOCK_TO_RBX 0 0 %1\n"
                               "BLOCK_FROM_RBX 0 0 4\nVENDOR_ID %3\nPROD_CODE %4\nREVISION 257\n")
                    .arg(device)
                    .arg(4 * device + 1)
                    .arg(-4096 * device + 1)
                    .arg(100 + device)
                    .toLatin1();
    }
    guide.controller().writeVariable(QStringLiteral("ifidbus.dnm_link_state"), 0, 1.0);
    announce(Devices);
    const bool shown = file.store(full) && guide.reopen() && guide.openPage(QStringLiteral("devicemBtn")) &&
                       guide.press(QStringLiteral("btn_edit")) &&
                       guide.report(QStringLiteral("devicenet-master-editing"));
    announce(before.count(";   Device "));
    return file.putBack() && guide.reopen() && shown;
}

bool Stations::slavesOfMasters(TourGuide& guide)
{
    for (const char* button : {"etherCatMBtn", "pnmBtn", "eipMasterBtn"}) {
        if (!guide.openHiddenPage(QLatin1String(button)) || !guide.report(guide.pageClass()))
            return false;
    }
    // Every state of the lights, with all slaves and with none.
    constexpr int Positions = 9;
    for (int position = 0; position < Positions; ++position) {
        const auto set = [&guide, position](const char* name, int value) {
            guide.controller().writeVariable(QStringLiteral("ifidbus.eim_") + QLatin1String(name), position,
                                             value);
        };
        set("status", position % 2);
        set("enable_status", position % 3);
        set("disable_status", (position + 1) % 3);
    }
    auto* count = guide.find<QLineEdit>(QStringLiteral("lineEdit_slave_count"));
    if (!count)
        return false;
    for (const int slaves : {Positions, 0}) {
        count->setText(QString::number(slaves));
        if (!guide.settle() || !guide.report(QStringLiteral("eip-master-%1-slaves").arg(slaves)))
            return false;
    }
    return guide.press(QStringLiteral("btn_reset"));
}

bool Stations::longDeviceTables(TourGuide& guide)
{
    constexpr int DevicesOfSlot = 20;
    bool reached = false;
    {
        BorrowedFile file(guide, QStringLiteral("/fa/override.cfg"));
        QByteArray full;
        for (const int slot : {1, 2}) {
            for (int device = 1; device <= DevicesOfSlot; ++device) {
                full += QStringLiteral("%1ECAT_SLAVE_OFF %2 %3 ;DEVICE_FUNCTION_%4\n")
                            .arg(QLatin1String(device % 3 == 0 ? ";" : ""))
                            .arg(slot)
                            .arg(1000 * slot + device)
                            .arg(device)
                            .toLatin1();
            }
        }
        reached = file.store(full) && guide.reopen();
        const struct
        {
            const char* button;
            const char* picture;
        } stops[] = {{"etherCatBtn", "ethercat-slave-long-table"},
                     {"etherCatMBtn", "ethercat-master-long-table"}};
        for (const auto& stop : stops) {
            const QString picture = QLatin1String(stop.picture);
            reached = guide.openHiddenPage(QLatin1String(stop.button)) && guide.report(picture) && reached;
            const auto* table = guide.find<QTableWidget>(QStringLiteral("ecatTableWidget"));
            if (!table || table->verticalScrollBar()->maximum() == 0) {
                reached = TourGuide::fail(TourGuide::tr("%1 does not scroll").arg(picture));
                continue;
            }
            table->verticalScrollBar()->setValue(table->verticalScrollBar()->maximum());
            reached = guide.settle() && guide.report(picture + QStringLiteral("-end")) && reached;
        }
    }
    return guide.reopen() && reached;
}
