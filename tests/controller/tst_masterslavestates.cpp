#include "ControllerPanel.h"
#include "MasterSlaveStates.h"
#include "Rows.h"
#include "SimulatedController.h"
#include "TestMain.h"

#include <QTableWidget>
#include <QTemporaryDir>

namespace {

struct MasterUnderTest
{
    MasterSlaveStates::Master master;
    const char* role;
    const char* file;
    const char* root;
    QString variable;
    QByteArray device;
};

const MasterUnderTest Masters[] = {
    {MasterSlaveStates::EtherNetIp, "EtherNetIPMaster", "/application/fidbus/eipMaster/eip_master.xml",
     "EipMasterCommunication", "ifidbus.eim", "EIM_DEVICE"},
    {MasterSlaveStates::Profinet, "ProfinetMaster", "/application/fidbus/pfnMaster/pfn_master.xml",
     "PfnMasterCommunication", "ifidbus.pnm", "PNM_DEVICE"},
};

constexpr int Position = 4;
constexpr int ServedMs = 200; // longer than anything takes at the time scale

QByteArray table(const MasterUnderTest& master, const QString& service, const QByteArray& count, int enable,
                 int disable)
{
    const auto flag = [&](const char* name) { return service.contains(QLatin1String(name)) ? "1" : "0"; };
    return QByteArray("<") + master.root + "><Group><SlaveNum>" + count + "</SlaveNum><DisableTimeout>" +
           QByteArray::number(disable) + "</DisableTimeout><EnableTimeout>" + QByteArray::number(enable) +
           "</EnableTimeout><SlaveFixed><FixSlave5>" + flag("fixed") +
           "</FixSlave5></SlaveFixed><SlaveDynamic><DynSlave5>" + flag("dynamic") +
           "</DynSlave5></SlaveDynamic></Group></" + master.root + ">";
}

} // namespace

class TestMasterSlaveStates : public QObject
{
    Q_OBJECT

private slots:
    void states_data()
    {
        const Rows<QString, QByteArray, int, int, QVector<bool>, QVector<int>> add;
        // plugged: one after the other
        // states: connected, coupling, decoupling
        add("fixed, taken away", "fixed", "9", 0, 0, {true, false}, {0, 0, 0});
        add("dynamic, at the last moment", "dynamic", "5", 1200, 600, {true, false, true}, {1, 1, 0});
        add("dynamic, too slow", "dynamic", "5", 1199, 599, {true}, {0, 2, 0});
        add("file cut short: no position served", "cut", "9", 5000, 5000, {true}, {0, 0, 0});
        add("its device is switched off", "fixed, off", "9", 0, 0, {true}, {0, 0, 0});
    }

    void states()
    {
        const auto [service, count, enable, disable, plugged, states] =
            Rows<QString, QByteArray, int, int, QVector<bool>, QVector<int>>::current();
        for (const MasterUnderTest& master : Masters) {
            const QTemporaryDir folder;
            SimulatedController controller(folder.path());
            controller.setTimeScale(20);
            controller.setRestartDuration(10);
            auto& slaves = controller.behaviour<MasterSlaveStates>();
            const auto shown = [&] {
                QVector<int> values;
                for (const char* rest : {"_status", "_enable_status", "_disable_status"})
                    values << int(controller.variables().value(master.variable + rest, Position));
                return values;
            };
            QVERIFY(controller.setRoleOn(master.role, true));
            const QByteArray whole =
                table(master, service == "cut" ? "fixed" : service, count, enable, disable);
            QVERIFY(
                controller.storeFile(master.file, service == "cut" ? whole.left(whole.size() / 2) : whole));
            const QByteArray device = QByteArray("ECAT_SLAVE_OFF 2 3002;") + master.device + "\r\n";
            QVERIFY(
                controller.storeFile("/fa/override.cfg", service.contains("off") ? device : ";" + device));
            QVERIFY(slaves.setSlaveConnected(master.master, Position, plugged.constFirst()));
            // What was sent counts from the next restart on.
            QCOMPARE(shown(), QVector<int>({0, 0, 0}));
            controller.requestRestart();
            QTRY_VERIFY(!controller.isUp());
            QTRY_VERIFY(controller.isUp());
            for (const bool now : plugged) {
                QVERIFY(slaves.setSlaveConnected(master.master, Position, now));
                QTest::qWait(ServedMs);
            }
            QCOMPARE(shown(), states);
            // A role that is switched off serves nobody; one that has nothing to do with it changes nothing.
            QVERIFY(controller.setRoleOn("Mes", !controller.roles().isOn("Mes")));
            QCOMPARE(shown(), states);
            QVERIFY(controller.setRoleOn(master.role, false));
            QCOMPARE(shown(), QVector<int>({0, 0, 0}));
            QCOMPARE(controller.variables().value(master.variable + "_configured"), 0.0);
        }
    }

    void panelDrives()
    {
        const QTemporaryDir folder;
        SimulatedController controller(folder.path());
        ControllerPanel panel(controller);
        auto* slaves = panel.findChild<QTableWidget*>("slaveTable");
        constexpr int Plugged = 3;
        constexpr int Connected = 4;
        QCOMPARE(controller.readVariable("ifidbus.eim_status", 1), 0.0);
        slaves->item(1, Plugged)->setCheckState(Qt::Checked);
        QCOMPARE(controller.readVariable("ifidbus.eim_status", 1), 1.0);
        QCOMPARE(slaves->item(1, Connected)->text(), QString("1"));
        QCOMPARE(slaves->item(9 + 1, Connected)->text(), QString("0"));
    }
};

PENDANT_TEST_MAIN(TestMasterSlaveStates)
#include "tst_masterslavestates.moc"
