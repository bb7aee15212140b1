#include "FieldbusManager.h"
#include "Rows.h"
#include "SimulatedController.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

namespace {

const QString Heartbeat = QStringLiteral("/application/fidbus/heartbeat.xml");
const QString Mapping = QStringLiteral("/application/fidbus/fieldbus_config.xml");
const QString Roles = QStringLiteral("/application/fidbus/fieldbus.xml");
const QString UpdateState = QStringLiteral("ifidbus.xml_update_state");
const QString Clock = QStringLiteral("ifidbus.current_time");

} // namespace

// What the pendant can rely on: everything is entered through ControllerLink, faults and cables are set as
// the panel sets them, and the outcome is read in variables and files.
class TestSimulatedController : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(m_folder->isValid());
        m_controller = std::make_unique<SimulatedController>(m_folder->filePath("store"));
        QCOMPARE(c().error(), QString());
        c().setTimeScale(20);
    }

    void cleanup()
    {
        m_controller.reset();
        m_folder.reset();
    }

    void pathsOutsideAreRefused_data()
    {
        const Rows<QString> row;
        row("empty", QString());
        row("folder", "/fa");
        row("relative", "fa/pfb.cfg");
        row("up", "/../secret.txt");
        row("up after a folder", "/fa/../../secret.txt");
        row("double slash", "/fa//pfb.cfg");
        row("home", "~/secret.txt");
        row("backslashes", "\\fa\\pfb.cfg");
        row("resource", ":/plant/fa/pfb.cfg");
        row("embedded NUL", QStringLiteral("/fa/pfb.cfg") + QChar(0) + QStringLiteral(".bak"));
        row("endless", "/fa/" + QString(5000, QLatin1Char('a')));
        row("unknown tree", "/etc/new.cfg");
    }

    void pathsOutsideAreRefused()
    {
        const auto [path] = Rows<QString>::current();
        const QString secret = m_folder->filePath("secret.txt");
        QFile file(secret);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("secret") == 6);
        file.close();
        const QByteArray before = fileOf("/fa/pfb.cfg");

        QByteArray content = "untouched";
        QVERIFY(!c().fetchFile(path, content));
        QCOMPARE(content, QByteArray("untouched"));
        QVERIFY(!c().storeFile(path, "x"));
        QVERIFY(!c().removeFile(path));

        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray("secret"));
        QCOMPARE(fileOf("/fa/pfb.cfg"), before);
        QCOMPARE(
            QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).size(),
            2);
    }

    void linksAreNotFollowed()
    {
        const QString store = c().files().directory();
        const QString outside = m_folder->filePath("outside");
        QVERIFY(QDir().mkpath(outside));
        QFile secret(outside + QStringLiteral("/secret.txt"));
        QVERIFY(secret.open(QIODevice::WriteOnly) && secret.write("secret") == 6);
        secret.close();
        QVERIFY(QFile::link(secret.fileName(), store + QStringLiteral("/fa/file.cfg")));
        QVERIFY(QFile::link(outside, store + QStringLiteral("/fa/folder")));
        QVERIFY(
            QFile::link(outside + QStringLiteral("/new.txt"), store + QStringLiteral("/fa/dangling.cfg")));

        for (const char* path :
             {"/fa/file.cfg", "/fa/folder/secret.txt", "/fa/dangling.cfg", "/fa/folder/new"}) {
            QByteArray content;
            QVERIFY2(!c().fetchFile(QLatin1String(path), content), path);
            QVERIFY2(!c().storeFile(QLatin1String(path), "x"), path);
            QVERIFY2(!c().removeFile(QLatin1String(path)), path);
        }
        QCOMPARE(QDir(outside).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
                 QStringList(QStringLiteral("secret.txt")));
    }

    void namesIgnoreCase()
    {
        QVERIFY(c().storeFile("/FA/PFB.cfg", "one"));
        QByteArray content;
        QVERIFY(c().fetchFile("/fa/pfb.CFG", content));
        QCOMPARE(content, QByteArray("one"));
        QVERIFY(c().storeFile("/Application/NEW/Deep/a.cfg", "two"));
        QVERIFY(c().storeFile("/application/new/deep/A.CFG", "three"));
        QCOMPARE(fileOf("/application/New/deep/a.cfg"), QByteArray("three"));
        QVERIFY(c().removeFile("/FA/pfb.cfg"));
        QVERIFY(!c().fetchFile("/fa/pfb.cfg", content));
    }

    void storeReplacesOrLeaves()
    {
        // A folder that takes no new file cannot take the temporary one either.
        const QString folder = c().files().directory() + QStringLiteral("/fa");
        const QByteArray before = fileOf("/fa/pfb.cfg");
        QVERIFY(QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner));
        const bool stored = c().storeFile("/fa/pfb.cfg", "half");
        QVERIFY(QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        // A privileged user may write all the same.
        QCOMPARE(fileOf("/fa/pfb.cfg"), stored ? QByteArray("half") : before);
        QVERIFY(c().storeFile("/fa/pfb.cfg", QByteArray()));
        QCOMPARE(fileOf("/fa/pfb.cfg"), QByteArray());
        QCOMPARE(QDir(folder).entryList(QDir::Files | QDir::Hidden).filter(QStringLiteral("pfb")),
                 QStringList(QStringLiteral("pfb.cfg")));
    }

    void aFolderInUseIsNotFilled()
    {
        QVERIFY(c().removeFile(Heartbeat));
        QVERIFY(c().storeFile("/fa/pfb.cfg", "mine"));
        const SimulatedController again(c().files().directory());
        QByteArray content;
        QVERIFY(m_controller->files().read("/fa/pfb.cfg", content));
        QCOMPARE(content, QByteArray("mine"));
        QVERIFY(!m_controller->files().exists(Heartbeat));

        const SimulatedController nowhere(QStringLiteral("/proc/no/such/folder"));
        QVERIFY(!nowhere.error().isEmpty());
    }

    void transferFaults_data()
    {
        const Rows<QString, QString> row;
        // outcomes: of four transfers: (o)k, (f)ailed, (s)hort, (e)mpty, (g)arbage
        row("twice", "fetch-fails:2", "ffoo");
        row("this file, in other case", "fetch-fails:1:/application/FIDBUS/heartbeat.xml", "fooo");
        row("another file", "fetch-fails:-1:/fa/pfb.cfg", "oooo");
        row("cut short", "fetch-cut-short:1", "sooo");
        row("empty", "fetch-empty:1", "eooo");
        row("garbage", "fetch-garbage:3", "gggo");
    }

    void transferFaults()
    {
        const auto [fault, outcomes] = Rows<QString, QString>::current();
        const QByteArray whole = fileOf(Heartbeat);
        QVERIFY(fault.isEmpty() || c().faults().setFromText(fault));
        QString seen;
        for (int i = 0; i < outcomes.size(); ++i) {
            QByteArray content;
            if (!c().fetchFile(Heartbeat, content))
                seen += QLatin1Char('f');
            else if (content == whole)
                seen += QLatin1Char('o');
            else if (content.isEmpty())
                seen += QLatin1Char('e');
            else
                seen += QLatin1Char(whole.startsWith(content) ? 's' : 'g');
        }
        QCOMPARE(seen, outcomes);
        QCOMPARE(c().traffic().fetches().size(), outcomes.size());
        QCOMPARE(c().traffic().failed(Traffic::Fetch), outcomes.count(QLatin1Char('f')));
        QCOMPARE(fileOf(Heartbeat), whole);

        c().faults().set(Faults::SendFails, 1);
        QVERIFY(!c().storeFile(Heartbeat, "lost"));
        QCOMPARE(fileOf(Heartbeat), whole);
        QVERIFY(c().storeFile(Heartbeat, "taken"));
    }

    void changesArriveBetweenTurns()
    {
        const QString name = QStringLiteral("ifidbus.performance_switch");
        bool insideCall = false;
        QVector<double> seen;
        connect(&c(), &ControllerLink::variableChanged, this, [&](const QString& changed, int, double value) {
            QVERIFY(!insideCall);
            QCOMPARE(changed, name);
            seen.append(value);
            if (seen.size() == 1) {
                // A slot that writes gets its answer on another turn, too.
                insideCall = true;
                c().writeVariable(name, 0, 9.0);
                insideCall = false;
            }
        });
        insideCall = true;
        c().writeVariable(name, 0, 1.0); // nobody listens yet
        QVERIFY(c().subscribe(name, 0, true));
        QVERIFY(c().subscribe(name, 0, true));
        c().writeVariable(name, 0, 2.0);
        c().writeVariable(name, 0, 3.0);
        c().variables().set(name, 4.0);
        c().setLinkUp("EtherCatSlave", false); // not subscribed
        insideCall = false;
        QVERIFY(seen.isEmpty());
        QTRY_COMPARE(seen.size(), 2);
        QCOMPARE(seen, QVector<double>({4.0, 9.0})); // the value that holds, not every one on the way

        c().writeVariable(name, 0, 5.0);
        QVERIFY(c().subscribe(name, 0, false)); // one end is enough, and what waits is dropped
        QTest::qWait(20);
        QCOMPARE(seen.size(), 2);
    }

    void refusedSubscription()
    {
        QVERIFY(c().faults().setFromText("variable-not-offered:2:ifidbus.dnm_status"));
        QVERIFY(c().subscribe("ifidbus.dnm_errorcode", 0, true));
        QVERIFY(!c().subscribe("ifidbus.dnm_status", 0, true));
        QVERIFY(c().subscribe("ifidbus.dnm_status", 0, false));
        QVERIFY(!c().subscribe("ifidbus.dnm_status", 1, true));
        QVERIFY(c().subscribe("ifidbus.dnm_status", 2, true));
    }

    void commandsAreTaken_data()
    {
        const Rows<QString, QString, bool> row;
        row("open", "ifidbus.ecat2open", "EtherCatSlave", true);
        row("close", "ifidbus.dnm2close", "DeviceNetMaster", false);
    }

    void commandsAreTaken()
    {
        const auto [command, role, open] = Rows<QString, QString, bool>::current();
        const auto& manager = c().behaviour<FieldbusManager>();
        c().faults().set(Faults::CommandNeverTaken, 1, command);
        c().writeVariable(command, 0, 1.0);
        QTest::qWait(60);
        QCOMPARE(c().readVariable(command), 1.0);
        QVERIFY(manager.wishedRoles().isEmpty());

        c().writeVariable(command, 0, 1.0);
        QCOMPARE(c().readVariable(command), 1.0); // it stands for a moment
        QTRY_COMPARE(c().readVariable(command), 0.0);
        QCOMPARE(manager.wishedRoles(), (QMap<QString, bool>{{role, open}}));
        QCOMPARE(c().traffic().writes().size(), 2);
    }

    void updateState_data()
    {
        const Rows<QString, int, int> row;
        row("mapping taken", "", 0x8000, 0x4000);
        row("old answer is taken back", "", 0xC800, 0x4000);
        row("slave taken", "", 0x9000, 0x2000);
        row("slave late", "slave-answered-late", 0x9000, 0x9000);
        row("the other one's fault", "slave-never-answered", 0x8000, 0x4000);
    }

    void updateState()
    {
        const auto [fault, written, answer] = Rows<QString, int, int>::current();
        QVERIFY(fault.isEmpty() || c().faults().setFromText(fault));
        c().writeVariable(UpdateState, 0, written);
        QVERIFY((intValue(UpdateState) & 0x6800) == 0);
        QTest::qWait(150);
        QCOMPARE(intValue(UpdateState), answer);
        // Late is late by the pendant's clock, however fast the controller lives.
        if (fault == QLatin1String("slave-answered-late"))
            QTRY_COMPARE_WITH_TIMEOUT(intValue(UpdateState), 0x2000, FieldbusManager::SlaveLateMs + 500);
    }

    void slaveFileIsChecked_data()
    {
        const Rows<QByteArray, bool, int> row;
        // file: null: removed
        const QByteArray good = "<devicenet><Dns><Dns_MACID>1</Dns_MACID></Dns></devicenet>";
        row("good", good, false, 0x2000);
        row("missing", QByteArray(), false, 0x9000);
        row("empty", QByteArray(""), false, 0x9000);
        row("cut short", good.left(30), false, 0x9000);
        row("another root", QByteArray("<Dns/>"), false, 0x9000);
        row("together with the mapping", good, true, 0x6000);
    }

    void slaveFileIsChecked()
    {
        const auto [file, mappingStored, answer] = Rows<QByteArray, bool, int>::current();
        const QString path = QStringLiteral("/application/fidbus/devicenet/devicenetSlave.xml");
        QVERIFY(file.isNull() ? c().removeFile(path) : c().storeFile(path, file));
        if (mappingStored) {
            QByteArray mapping;
            QVERIFY(c().fetchFile(Mapping, mapping) && c().storeFile(Mapping, mapping));
            c().writeVariable(UpdateState, 0, 0x8000);
        }
        c().writeVariable(UpdateState, 0, 0x9000);
        QTest::qWait(150);
        QCOMPARE(intValue(UpdateState), answer);
        // What was answered once is not answered again.
        c().writeVariable(UpdateState, 0, 0x9000);
        QTest::qWait(150);
        QCOMPARE(intValue(UpdateState), answer & ~0x4000);
    }

    void mappingIsChecked_data()
    {
        const Rows<QByteArray, bool> row;
        const QByteArray head = "<FieldbusConfig><Mode name=\"free\"><Bus name=\"EtherCatSlave\">"
                                "<Area direction=\"ro\">";
        const QByteArray tail = "</Area></Bus></Mode></FieldbusConfig>";
        const auto with = [&](const char* attributes) { return head + "<User " + attributes + "/>" + tail; };
        row("good", with("type=\"Bool\" quantity=\"2048\" start=\"0\" end=\"255\""), false);
        row("empty block that holds a place", with("type=\"Float\" quantity=\"0\" start=\"5\" end=\"4\""),
            false);
        row("too many", with("type=\"Bool\" quantity=\"2049\""), true);
        row("no number", with("type=\"Float\" quantity=\"many\""), true);
        row("half an address", with("type=\"Int\" quantity=\"1\" start=\"9\""), true);
        row("cut short", head, true);
    }

    void mappingIsChecked()
    {
        const auto [file, rejected] = Rows<QByteArray, bool>::current();
        QVERIFY(c().storeFile(Mapping, file));
        c().writeVariable(UpdateState, 0, 0x8000);
        QTRY_VERIFY((intValue(UpdateState) & 0x4000) != 0);
        QCOMPARE((intValue(UpdateState) & 0x800) != 0, rejected);
        QCOMPARE(c().behaviour<FieldbusManager>().mappingComplaint().isEmpty(), !rejected);
    }

    void withdrawnAnnouncementIsNotAnswered()
    {
        c().writeVariable(UpdateState, 0, 0x9000);
        c().writeVariable(UpdateState, 0, 0);
        QTest::qWait(100);
        QCOMPARE(intValue(UpdateState), 0);
    }

    void heartbeatReload_data()
    {
        const Rows<QByteArray, QString, bool, double, int, int> row;
        // file: null: removed
        const QByteArray good = "<Fidbus><Pfnet><Pfnet_Nod_Switch>0</Pfnet_Nod_Switch>"
                                "<Pfnet_Timeout>7.125</Pfnet_Timeout></Pfnet></Fidbus>";
        row("good", good, "", false, 7.125, 1, 0);
        // The watch goes on as it was.
        row("cut short", good.left(40), "", true, 0.25, 0, 1);
        row("not reloaded", good, "heartbeat-not-reloaded", true, 0.25, 0, 0);
    }

    void heartbeatReload()
    {
        const auto [file, fault, on, timeout, reloads, failures] =
            Rows<QByteArray, QString, bool, double, int, int>::current();
        const QString announced = QStringLiteral("ifidbus.xml_heartbeat");
        const QString role = QStringLiteral("ProfinetSlave");
        const auto& manager = c().behaviour<FieldbusManager>();
        QVERIFY(manager.watchOf(role).on);
        QVERIFY(fault.isEmpty() || c().faults().setFromText(fault));
        QVERIFY(file.isNull() ? c().removeFile(Heartbeat) : c().storeFile(Heartbeat, file));
        QVERIFY(manager.watchOf(role).on); // not before it is announced
        c().writeVariable(announced, 0, 1.0);
        QTest::qWait(40);
        QCOMPARE(c().readVariable(announced), fault.isEmpty() ? 0.0 : 1.0);
        QCOMPARE(manager.watchOf(role).on, on);
        QCOMPARE(manager.watchOf(role).timeout, timeout);
        QCOMPARE(manager.heartbeatReloads(), reloads);
        QCOMPARE(manager.heartbeatFailures(), failures);
    }

    void restartTakesTheControllerDown()
    {
        const double start = c().readVariable(Clock);
        QTRY_VERIFY(c().readVariable(Clock) > start);
        c().setServoOn(true);
        c().setRestartDuration(20000); // a second of real time: room for a busy machine
        QSignalSpy states(&c(), &ControllerLink::stateChanged);
        c().requestRestart();
        QVERIFY(c().isUp()); // it goes down on a later turn
        QVERIFY(states.isEmpty());
        QTRY_VERIFY(!c().isUp());
        QVERIFY(!c().isServoOn());

        const double stopped = c().readVariable(Clock);
        QByteArray content;
        QVERIFY(!c().fetchFile(Heartbeat, content));
        QVERIFY(!c().storeFile(Heartbeat, "x"));
        QVERIFY(!c().removeFile(Heartbeat));
        // A write is lost; who holds the value that he wrote is told the true one. Subscribing goes on.
        const QString name = QStringLiteral("ifidbus.performance_switch");
        QSignalSpy changes(&c(), &ControllerLink::variableChanged);
        QVERIFY(c().subscribe(name, 0, true));
        c().writeVariable(name, 0, 5.0);
        QTRY_COMPARE(changes.size(), 1);
        QCOMPARE(changes[0][2].toDouble(), 0.0);
        QTest::qWait(60);
        QCOMPARE(c().readVariable(Clock), stopped);

        QTRY_VERIFY(c().isUp());
        QCOMPARE(states.size(), 2);
        QTRY_VERIFY(c().readVariable(Clock) > stopped);
        QVERIFY(c().fetchFile(Heartbeat, content));
    }

    void restartRunsTheNewRoles()
    {
        const QString bus = QStringLiteral("ProfinetSlave");
        const QString link = QStringLiteral("ifidbus.pfn_link_state");
        const QString switches = QStringLiteral("/application/fidbus/Fieldbus.cfg");
        QVERIFY(c().roles().isOn(bus));
        QCOMPARE(c().readVariable(link), 1.0);
        QVERIFY(c().storeFile(Roles, "<Fieldbus><Bus name=\"ProfinetSlave\" enable=\"0\"/>"
                                     "<Bus name=\"DeviceNetSlave\" enable=\"1\"/></Fieldbus>"));
        QVERIFY(c().roles().isOn(bus)); // a file alone changes nothing
        const QByteArray before = fileOf(switches);
        restart();
        QVERIFY(!c().roles().isOn(bus));
        QCOMPARE(c().readVariable(link), 0.0);
        QCOMPARE(c().readVariable("ifidbus.dns_enable"), 1.0);
        QCOMPARE(c().readVariable("ifidbus.freebus_enable"), 0.0);
        // The manager's own record follows, and nothing else in it changes.
        QCOMPARE(fileOf(switches).count('\n'), before.count('\n'));
        QVERIFY(fileOf(switches) != before);

        QVERIFY(c().storeFile(Roles, "<Fieldbus><Bus name="));
        restart();
        QVERIFY(c().roles().isOn("DeviceNetSlave"));
    }

    void restartDropsWhatWasAsked()
    {
        c().setTimeScale(1);
        c().setRestartDuration(30);
        c().writeVariable("ifidbus.eip2close", 0, 1.0);
        c().writeVariable(UpdateState, 0, 0x8000);
        restart();
        QCOMPARE(c().readVariable("ifidbus.eip2close"), 0.0);
        QCOMPARE(intValue(UpdateState), 0);
        QTest::qWait(1000);
        QCOMPARE(intValue(UpdateState), 0);
        QVERIFY(c().behaviour<FieldbusManager>().wishedRoles().isEmpty());
    }

    void linksFollowCablesAndRoles()
    {
        const QString link = QStringLiteral("ifidbus.eip_link_state");
        const QString communication = QStringLiteral("ifidbus.commun_state");
        QCOMPARE(c().readVariable(link), 0.0); // the one whose cable is out
        QVERIFY(c().setLinkUp("EtherNetIPSlave", true));
        QCOMPARE(c().readVariable(link), 1.0);
        QCOMPARE(intValue(communication) & 4, 4);
        QVERIFY(c().setLinkUp("EtherNetIPSlave", false));
        QCOMPARE(intValue(communication) & 4, 0);
        // A cable alone makes no link.
        QVERIFY(c().setLinkUp("ProfinetMaster", true));
        QCOMPARE(c().readVariable("ifidbus.pnm_link_state"), 0.0);
        QVERIFY(!c().setLinkUp("Mes", true));
        QVERIFY(c().setRoleOn("ProfinetMaster", true));
        QCOMPARE(c().readVariable("ifidbus.pnm_link_state"), 1.0);
        QVERIFY(fileOf(Roles).contains("<Bus name=\"ProfinetMaster\" enable=\"1\" />"));
        QVERIFY(!c().setRoleOn("NoSuchRole", true));
    }

private:
    SimulatedController& c() { return *m_controller; }
    int intValue(const QString& name) const { return static_cast<int>(m_controller->readVariable(name)); }
    QByteArray fileOf(const QString& path)
    {
        QByteArray content;
        return c().files().read(path, content) ? content : QByteArray("(missing)");
    }
    void restart()
    {
        QSignalSpy states(&c(), &ControllerLink::stateChanged); // however short the time between the two is
        c().requestRestart();
        QTRY_COMPARE(states.size(), 2);
        QVERIFY(c().isUp());
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<SimulatedController> m_controller;
};

QTEST_GUILESS_MAIN(TestSimulatedController)
#include "tst_simulatedcontroller.moc"
