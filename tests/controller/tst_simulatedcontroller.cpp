#include "FieldbusManager.h"
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

using Type = ControllerLink::VariableType;

} // namespace

// What the pendant can rely on: everything is entered through ControllerLink, faults and cables are set as
// the panel sets them, and the outcome is read in variables and files.
class TestSimulatedController : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void pathsOutsideAreRefused_data();
    void pathsOutsideAreRefused();
    void linksAreNotFollowed();
    void namesIgnoreCase();
    void storeReplacesOrLeaves();
    void aFolderInUseIsNotFilled();

    void transferFaults_data();
    void transferFaults();
    void faultTexts_data();
    void faultTexts();

    void bindingChecksTheType_data();
    void bindingChecksTheType();
    void valuesFitTheirType_data();
    void valuesFitTheirType();
    void changesArriveBetweenTurns();
    void refusedSubscription();

    void commandsAreTaken_data();
    void commandsAreTaken();
    void busType_data();
    void busType();
    void updateState_data();
    void updateState();
    void mappingIsChecked_data();
    void mappingIsChecked();
    void withdrawnAnnouncementIsNotAnswered();

    void heartbeatReload_data();
    void heartbeatReload();

    void restartTakesTheControllerDown();
    void restartRunsTheNewRoles();
    void restartDropsWhatWasAsked();
    void restartRefused_data();
    void restartRefused();
    void linksFollowCablesAndRoles();
    void destructionWithEverythingPending();

private:
    SimulatedController& c() { return *m_controller; }
    int intValue(const QString& name) const { return static_cast<int>(m_controller->readVariable(name)); }
    QByteArray fileOf(const QString& path)
    {
        QByteArray content;
        return c().files().read(path, content) ? content : QByteArray("(missing)");
    }
    void restart();

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<SimulatedController> m_controller;
};

void TestSimulatedController::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    m_controller = std::make_unique<SimulatedController>(m_folder->filePath(QStringLiteral("store")));
    QCOMPARE(c().error(), QString());
    c().setTimeScale(20);
}

void TestSimulatedController::cleanup()
{
    m_controller.reset();
    m_folder.reset();
}

void TestSimulatedController::restart()
{
    QSignalSpy states(&c(), &ControllerLink::stateChanged); // however short the time between the two is
    c().requestRestart();
    QTRY_COMPARE(states.size(), 2);
    QVERIFY(c().isUp());
}

void TestSimulatedController::pathsOutsideAreRefused_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("empty") << QString();
    QTest::newRow("root") << "/";
    QTest::newRow("folder") << "/fa";
    QTest::newRow("folder with slash") << "/fa/";
    QTest::newRow("file as folder") << "/fa/pfb.cfg/x";
    QTest::newRow("relative") << "fa/pfb.cfg";
    QTest::newRow("up") << "/../secret.txt";
    QTest::newRow("up after a folder") << "/fa/../../secret.txt";
    QTest::newRow("up inside") << "/fa/../fa/pfb.cfg";
    QTest::newRow("dot") << "/fa/./pfb.cfg";
    QTest::newRow("double slash") << "/fa//pfb.cfg";
    QTest::newRow("second absolute path") << "//etc/passwd";
    QTest::newRow("home") << "~/secret.txt";
    QTest::newRow("backslashes") << "\\fa\\pfb.cfg";
    QTest::newRow("backslash up") << "/fa/..\\..\\secret.txt";
    QTest::newRow("drive") << "c:/fa/pfb.cfg";
    QTest::newRow("url") << "file:///etc/passwd";
    QTest::newRow("resource") << ":/plant/fa/pfb.cfg";
    QTest::newRow("embedded NUL") << QStringLiteral("/fa/pfb.cfg") + QChar(0) + QStringLiteral(".bak");
    QTest::newRow("line break") << "/fa/pfb\n.cfg";
    QTest::newRow("endless") << "/fa/" + QString(5000, QLatin1Char('a'));
    QTest::newRow("unknown tree") << "/etc/new.cfg";
    QTest::newRow("no tree") << "/new.cfg";
}

void TestSimulatedController::pathsOutsideAreRefused()
{
    QFETCH(QString, path);
    const QString secret = m_folder->filePath(QStringLiteral("secret.txt"));
    QFile file(secret);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("secret") == 6);
    file.close();
    const QByteArray before = fileOf(QStringLiteral("/fa/pfb.cfg"));

    QByteArray content = "untouched";
    QVERIFY(!c().fetchFile(path, content));
    QCOMPARE(content, QByteArray("untouched"));
    QVERIFY(!c().storeFile(path, "x"));
    QVERIFY(!c().removeFile(path));

    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("secret"));
    QCOMPARE(fileOf(QStringLiteral("/fa/pfb.cfg")), before);
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).size(),
             2);
}

void TestSimulatedController::linksAreNotFollowed()
{
    const QString store = c().files().directory();
    const QString outside = m_folder->filePath(QStringLiteral("outside"));
    QVERIFY(QDir().mkpath(outside));
    QFile secret(outside + QStringLiteral("/secret.txt"));
    QVERIFY(secret.open(QIODevice::WriteOnly) && secret.write("secret") == 6);
    secret.close();
    QVERIFY(QFile::link(secret.fileName(), store + QStringLiteral("/fa/file.cfg")));
    QVERIFY(QFile::link(outside, store + QStringLiteral("/fa/folder")));
    QVERIFY(QFile::link(outside + QStringLiteral("/new.txt"), store + QStringLiteral("/fa/dangling.cfg")));

    for (const char* path : {"/fa/file.cfg", "/fa/folder/secret.txt", "/fa/dangling.cfg", "/fa/folder/new"}) {
        QByteArray content;
        QVERIFY2(!c().fetchFile(QLatin1String(path), content), path);
        QVERIFY2(!c().storeFile(QLatin1String(path), "x"), path);
        QVERIFY2(!c().removeFile(QLatin1String(path)), path);
    }
    QCOMPARE(QDir(outside).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             QStringList(QStringLiteral("secret.txt")));
}

void TestSimulatedController::namesIgnoreCase()
{
    QVERIFY(c().storeFile(QStringLiteral("/FA/PFB.cfg"), "one"));
    QByteArray content;
    QVERIFY(c().fetchFile(QStringLiteral("/fa/pfb.CFG"), content));
    QCOMPARE(content, QByteArray("one"));
    QVERIFY(c().storeFile(QStringLiteral("/Application/NEW/Deep/a.cfg"), "two"));
    QVERIFY(c().storeFile(QStringLiteral("/application/new/deep/A.CFG"), "three"));
    QCOMPARE(fileOf(QStringLiteral("/application/New/deep/a.cfg")), QByteArray("three"));
    QVERIFY(c().removeFile(QStringLiteral("/FA/pfb.cfg")));
    QVERIFY(!c().fetchFile(QStringLiteral("/fa/pfb.cfg"), content));
}

void TestSimulatedController::storeReplacesOrLeaves()
{
    // A folder that takes no new file cannot take the temporary one either.
    const QString folder = c().files().directory() + QStringLiteral("/fa");
    const QByteArray before = fileOf(QStringLiteral("/fa/pfb.cfg"));
    QVERIFY(QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner));
    const bool stored = c().storeFile(QStringLiteral("/fa/pfb.cfg"), "half");
    QVERIFY(QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    // A privileged user may write all the same.
    QCOMPARE(fileOf(QStringLiteral("/fa/pfb.cfg")), stored ? QByteArray("half") : before);
    QVERIFY(c().storeFile(QStringLiteral("/fa/pfb.cfg"), QByteArray()));
    QCOMPARE(fileOf(QStringLiteral("/fa/pfb.cfg")), QByteArray());
    QCOMPARE(QDir(folder).entryList(QDir::Files | QDir::Hidden).filter(QStringLiteral("pfb")),
             QStringList(QStringLiteral("pfb.cfg")));
}

void TestSimulatedController::aFolderInUseIsNotFilled()
{
    QVERIFY(c().removeFile(Heartbeat));
    QVERIFY(c().storeFile(QStringLiteral("/fa/pfb.cfg"), "mine"));
    const SimulatedController again(c().files().directory());
    QByteArray content;
    QVERIFY(m_controller->files().read(QStringLiteral("/fa/pfb.cfg"), content));
    QCOMPARE(content, QByteArray("mine"));
    QVERIFY(!m_controller->files().exists(Heartbeat));

    const SimulatedController nowhere(QStringLiteral("/proc/no/such/folder"));
    QVERIFY(!nowhere.error().isEmpty());
}

void TestSimulatedController::transferFaults_data()
{
    QTest::addColumn<QString>("fault");
    QTest::addColumn<QString>("outcomes"); // of four transfers: (o)k, (f)ailed, (s)hort, (e)mpty, (g)arbage
    QTest::newRow("none") << ""
                          << "oooo";
    QTest::newRow("twice") << "fetch-fails:2"
                           << "ffoo";
    QTest::newRow("always") << "fetch-fails"
                            << "ffff";
    QTest::newRow("this file, in other case") << "fetch-fails:1:/application/FIDBUS/heartbeat.xml"
                                              << "fooo";
    QTest::newRow("another file") << "fetch-fails:-1:/fa/pfb.cfg"
                                  << "oooo";
    QTest::newRow("cut short") << "fetch-cut-short:1"
                               << "sooo";
    QTest::newRow("empty") << "fetch-empty:1"
                           << "eooo";
    QTest::newRow("garbage") << "fetch-garbage:3"
                             << "gggo";
    QTest::newRow("no times") << "fetch-fails:0"
                              << "oooo";
}

void TestSimulatedController::transferFaults()
{
    QFETCH(QString, fault);
    QFETCH(QString, outcomes);
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

void TestSimulatedController::faultTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("accepted");
    for (int fault = 0; fault < Faults::FaultCount; ++fault) {
        const QString name = Faults::nameOf(static_cast<Faults::Fault>(fault));
        QTest::newRow(qPrintable(name)) << name << true;
    }
    QTest::newRow("target with colon") << "fetch-fails:1:/fa/a:b" << true;
    QTest::newRow("no name") << ":1" << false;
    QTest::newRow("unknown") << "fetch-explodes" << false;
    QTest::newRow("words for times") << "fetch-fails:often" << false;
    QTest::newRow("negative times") << "fetch-fails:-2" << false;
    QTest::newRow("empty") << "" << false;
}

void TestSimulatedController::faultTexts()
{
    QFETCH(QString, text);
    QFETCH(bool, accepted);
    Faults faults;
    QCOMPARE(faults.setFromText(text), accepted);
    int count = 0;
    for (int fault = 0; fault < Faults::FaultCount; ++fault)
        count += faults.isSet(static_cast<Faults::Fault>(fault)) ? 1 : 0;
    QCOMPARE(count, accepted ? 1 : 0);
}

void TestSimulatedController::bindingChecksTheType_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<Type>("type");
    QTest::addColumn<int>("count");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("Bool") << "ifidbus.mtcp_link_state" << Type::Bool << 1 << true;
    QTest::newRow("Int") << "ifidbus.anybus_fm" << Type::Int << 1 << true;
    QTest::newRow("Real") << Clock << Type::Real << 1 << true;
    QTest::newRow("vector") << "ifidbus.dnm_errorcode" << Type::Int << 16 << true;
    QTest::newRow("another type") << "ifidbus.mtcp_link_state" << Type::Int << 1 << false;
    QTest::newRow("too long") << "ifidbus.eim_status" << Type::Bool << 10 << false;
    QTest::newRow("scalar of a vector") << "ifidbus.eim_status" << Type::Bool << 1 << false;
    QTest::newRow("typing error") << "ifidbus.mtcp_link_sate" << Type::Bool << 1 << false;
    QTest::newRow("other case") << "IFIDBUS.anybus_fm" << Type::Int << 1 << false;
    QTest::newRow("no name") << "" << Type::Int << 0 << false;
}

void TestSimulatedController::bindingChecksTheType()
{
    QFETCH(QString, name);
    QFETCH(Type, type);
    QFETCH(int, count);
    QFETCH(bool, accepted);
    QCOMPARE(c().bindVariable(name, type, count), accepted);
    QCOMPARE(c().bindVariable(name, type, count), accepted);
    if (accepted) {
        QVERIFY(c().subscribe(name, count - 1, true));
        QVERIFY(!c().subscribe(name, count, true));
        QVERIFY(!c().subscribe(name, -1, true));
        c().writeVariable(name, count, 1.0);
        c().writeVariable(name, -1, 1.0);
        QCOMPARE(c().readVariable(name, count), 0.0);
    }
}

void TestSimulatedController::valuesFitTheirType_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<double>("written");
    QTest::addColumn<double>("read");
    const QString flag = QStringLiteral("ifidbus.eip_enable");
    const QString number = QStringLiteral("ifidbus.performance_switch");
    QTest::newRow("Bool of 7") << flag << 7.0 << 1.0;
    QTest::newRow("Bool of NaN") << flag << qQNaN() << 0.0;
    QTest::newRow("Int of a fraction") << number << -2.9 << -2.0;
    QTest::newRow("Int too large") << number << 1e12 << 2147483647.0;
    QTest::newRow("Int too small") << number << -1e12 << -2147483648.0;
    QTest::newRow("Int of infinity") << number << qInf() << 2147483647.0;
    QTest::newRow("Int of NaN") << number << qQNaN() << 0.0;
}

void TestSimulatedController::valuesFitTheirType()
{
    QFETCH(QString, name);
    QFETCH(double, written);
    QFETCH(double, read);
    c().writeVariable(name, 0, written);
    QCOMPARE(c().readVariable(name), read);
}

void TestSimulatedController::changesArriveBetweenTurns()
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
    c().setLinkUp(QStringLiteral("EtherCatSlave"), false); // not subscribed
    insideCall = false;
    QVERIFY(seen.isEmpty());
    QTRY_COMPARE(seen.size(), 2);
    QCOMPARE(seen, QVector<double>({4.0, 9.0})); // the value that holds, not every one on the way

    c().writeVariable(name, 0, 5.0);
    QVERIFY(c().subscribe(name, 0, false)); // one end is enough, and what waits is dropped
    QTest::qWait(20);
    QCOMPARE(seen.size(), 2);
}

void TestSimulatedController::refusedSubscription()
{
    QVERIFY(c().faults().setFromText(QStringLiteral("variable-not-offered:2:ifidbus.dnm_status")));
    QVERIFY(c().subscribe(QStringLiteral("ifidbus.dnm_errorcode"), 0, true));
    QVERIFY(!c().subscribe(QStringLiteral("ifidbus.dnm_status"), 0, true));
    QVERIFY(c().subscribe(QStringLiteral("ifidbus.dnm_status"), 0, false));
    QVERIFY(!c().subscribe(QStringLiteral("ifidbus.dnm_status"), 1, true));
    QVERIFY(c().subscribe(QStringLiteral("ifidbus.dnm_status"), 2, true));
}

void TestSimulatedController::commandsAreTaken_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("role");
    QTest::addColumn<bool>("open");
    const QPair<QString, QString> buses[] = {{"ecat", "EtherCatSlave"},
                                             {"eip", "EtherNetIPSlave"},
                                             {"pfn", "ProfinetSlave"},
                                             {"dns", "DeviceNetSlave"},
                                             {"dnm", "DeviceNetMaster"}};
    for (const auto& [bus, role] : buses) {
        QTest::addRow("open %s", qPrintable(bus)) << "ifidbus." + bus + "2open" << role << true;
        QTest::addRow("close %s", qPrintable(bus)) << "ifidbus." + bus + "2close" << role << false;
    }
}

void TestSimulatedController::commandsAreTaken()
{
    QFETCH(QString, command);
    QFETCH(QString, role);
    QFETCH(bool, open);
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

void TestSimulatedController::busType_data()
{
    QTest::addColumn<QString>("fault");
    QTest::addColumn<int>("written");
    QTest::addColumn<int>("answer");
    QTest::newRow("taken") << "" << 1 << 0x8000;
    QTest::newRow("refused") << "bus-type-refused" << 1 << 0x4000;
    QTest::newRow("never answered") << "bus-type-never-answered" << 1 << 1;
    QTest::newRow("not asked") << "" << 0 << 0;
}

void TestSimulatedController::busType()
{
    QFETCH(QString, fault);
    QFETCH(int, written);
    QFETCH(int, answer);
    const QString name = QStringLiteral("ifidbus.bus_type_state");
    QVERIFY(fault.isEmpty() || c().faults().setFromText(fault));
    c().writeVariable(name, 0, written);
    QCOMPARE(intValue(name), written);
    QTest::qWait(80);
    QCOMPARE(intValue(name), answer);
}

void TestSimulatedController::updateState_data()
{
    QTest::addColumn<QString>("fault");
    QTest::addColumn<int>("written");
    QTest::addColumn<int>("answer");
    QTest::newRow("mapping taken") << "" << 0x8000 << 0x4000;
    QTest::newRow("further bits stay") << "" << 0x8001 << 0x4001;
    QTest::newRow("old answer is taken back") << "" << 0xC800 << 0x4000;
    QTest::newRow("mapping rejected") << "mapping-rejected" << 0x8000 << 0x4800;
    QTest::newRow("mapping never answered") << "mapping-never-answered" << 0x8000 << 0x8000;
    QTest::newRow("mapping late") << "mapping-answered-late" << 0x8000 << 0x8000;
    QTest::newRow("slave taken") << "" << 0x9000 << 0x2000;
    QTest::newRow("slave never answered") << "slave-never-answered" << 0x9000 << 0x9000;
    QTest::newRow("slave late") << "slave-answered-late" << 0x9000 << 0x9000;
    QTest::newRow("the other one's fault") << "slave-never-answered" << 0x8000 << 0x4000;
    QTest::newRow("nothing announced") << "" << 0x0001 << 0x0001;
}

void TestSimulatedController::updateState()
{
    QFETCH(QString, fault);
    QFETCH(int, written);
    QFETCH(int, answer);
    QVERIFY(fault.isEmpty() || c().faults().setFromText(fault));
    c().writeVariable(UpdateState, 0, written);
    QVERIFY((intValue(UpdateState) & 0x6800) == 0);
    QTest::qWait(150);
    QCOMPARE(intValue(UpdateState), answer);
    // Late is late by the pendant's clock, however fast the controller lives.
    if (fault == QLatin1String("slave-answered-late"))
        QTRY_COMPARE_WITH_TIMEOUT(intValue(UpdateState), 0x2000, FieldbusManager::SlaveLateMs + 500);
}

void TestSimulatedController::mappingIsChecked_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<bool>("rejected");
    const QByteArray head = "<FieldbusConfig><Mode name=\"free\"><Bus name=\"EtherCatSlave\">"
                            "<Area direction=\"ro\">";
    const QByteArray tail = "</Area></Bus></Mode></FieldbusConfig>";
    const auto row = [&](const char* attributes) { return head + "<User " + attributes + "/>" + tail; };
    QTest::newRow("good") << row("type=\"Bool\" quantity=\"2048\" start=\"0\" end=\"255\"") << false;
    QTest::newRow("no address") << row("type=\"Int\" quantity=\"0\"") << false;
    QTest::newRow("empty block that holds a place")
        << row("type=\"Float\" quantity=\"0\" start=\"5\" end=\"4\"") << false;
    QTest::newRow("nothing in it") << QByteArray("<FieldbusConfig/>") << false;
    QTest::newRow("too many") << row("type=\"Bool\" quantity=\"2049\"") << true;
    QTest::newRow("negative") << row("type=\"Int\" quantity=\"-16\"") << true;
    QTest::newRow("no number") << row("type=\"Float\" quantity=\"many\"") << true;
    QTest::newRow("no quantity") << row("type=\"Float\"") << true;
    QTest::newRow("backwards") << row("type=\"Int\" quantity=\"1\" start=\"9\" end=\"2\"") << true;
    QTest::newRow("half an address") << row("type=\"Int\" quantity=\"1\" start=\"9\"") << true;
    QTest::newRow("unknown type") << row("type=\"Word\" quantity=\"1\"") << true;
    QTest::newRow("another root") << QByteArray("<Fieldbus/>") << true;
    QTest::newRow("cut short") << head << true;
    QTest::newRow("empty") << QByteArray() << true;
    QTest::newRow("garbage") << QByteArray("\x80\x81\0\xff", 4) << true;
}

void TestSimulatedController::mappingIsChecked()
{
    QFETCH(QByteArray, file);
    QFETCH(bool, rejected);
    QVERIFY(c().storeFile(Mapping, file));
    c().writeVariable(UpdateState, 0, 0x8000);
    QTRY_VERIFY((intValue(UpdateState) & 0x4000) != 0);
    QCOMPARE((intValue(UpdateState) & 0x800) != 0, rejected);
    QCOMPARE(c().behaviour<FieldbusManager>().mappingComplaint().isEmpty(), !rejected);
}

void TestSimulatedController::withdrawnAnnouncementIsNotAnswered()
{
    c().writeVariable(UpdateState, 0, 0x9000);
    c().writeVariable(UpdateState, 0, 0);
    QTest::qWait(100);
    QCOMPARE(intValue(UpdateState), 0);
}

void TestSimulatedController::heartbeatReload_data()
{
    QTest::addColumn<QByteArray>("file"); // null: removed
    QTest::addColumn<QString>("fault");
    QTest::addColumn<bool>("on");
    QTest::addColumn<double>("timeout");
    QTest::addColumn<int>("reloads");
    QTest::addColumn<int>("failures");
    const QByteArray good = "<Fidbus><Pfnet><Pfnet_Nod_Switch>0</Pfnet_Nod_Switch>"
                            "<Pfnet_Timeout>7.125</Pfnet_Timeout></Pfnet></Fidbus>";
    QTest::newRow("good") << good << "" << false << 7.125 << 1 << 0;
    QTest::newRow("without the bus") << QByteArray("<Fidbus/>") << "" << false << 0.0 << 1 << 0;
    // The watch goes on as it was.
    QTest::newRow("garbage") << QByteArray("\x01\x02<<") << "" << true << 0.25 << 0 << 1;
    QTest::newRow("cut short") << good.left(40) << "" << true << 0.25 << 0 << 1;
    QTest::newRow("another root") << QByteArray("<Fieldbus/>") << "" << true << 0.25 << 0 << 1;
    QTest::newRow("empty") << QByteArray("") << "" << true << 0.25 << 0 << 1;
    QTest::newRow("missing") << QByteArray() << "" << true << 0.25 << 0 << 1;
    QTest::newRow("not reloaded") << good << "heartbeat-not-reloaded" << true << 0.25 << 0 << 0;
}

void TestSimulatedController::heartbeatReload()
{
    QFETCH(QByteArray, file);
    QFETCH(QString, fault);
    QFETCH(bool, on);
    QFETCH(double, timeout);
    QFETCH(int, reloads);
    QFETCH(int, failures);
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

void TestSimulatedController::restartTakesTheControllerDown()
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

void TestSimulatedController::restartRunsTheNewRoles()
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
    QCOMPARE(c().readVariable(QStringLiteral("ifidbus.dns_enable")), 1.0);
    QCOMPARE(c().readVariable(QStringLiteral("ifidbus.freebus_enable")), 0.0);
    // The manager's own record follows, and nothing else in it changes.
    QCOMPARE(fileOf(switches).count('\n'), before.count('\n'));
    QVERIFY(fileOf(switches) != before);

    QVERIFY(c().storeFile(Roles, "<Fieldbus><Bus name="));
    restart();
    QVERIFY(c().roles().isOn("DeviceNetSlave"));
}

void TestSimulatedController::restartDropsWhatWasAsked()
{
    c().setTimeScale(1);
    c().setRestartDuration(30);
    c().writeVariable(QStringLiteral("ifidbus.eip2close"), 0, 1.0);
    c().writeVariable(UpdateState, 0, 0x8000);
    restart();
    QCOMPARE(c().readVariable(QStringLiteral("ifidbus.eip2close")), 0.0);
    QCOMPARE(intValue(UpdateState), 0);
    QTest::qWait(1000);
    QCOMPARE(intValue(UpdateState), 0);
    QVERIFY(c().behaviour<FieldbusManager>().wishedRoles().isEmpty());
}

void TestSimulatedController::restartRefused_data()
{
    QTest::addColumn<bool>("allowed");
    QTest::addColumn<QString>("fault");
    QTest::addColumn<bool>("restarts");
    QTest::newRow("allowed") << true << "" << true;
    QTest::newRow("not allowed") << false << "" << false;
    QTest::newRow("ignored") << true << "restart-ignored:1" << false;
}

void TestSimulatedController::restartRefused()
{
    QFETCH(bool, allowed);
    QFETCH(QString, fault);
    QFETCH(bool, restarts);
    c().setRestartAllowed(allowed);
    c().setRestartDuration(10000);
    QVERIFY(fault.isEmpty() || c().faults().setFromText(fault));
    QSignalSpy states(&c(), &ControllerLink::stateChanged);
    c().requestRestart();
    QTest::qWait(20);
    QCOMPARE(c().isUp(), !restarts);
    c().setRestartAllowed(true);
    c().requestRestart(); // a second one while it is down is no second restart
    QTRY_COMPARE(states.size(), 2);
    QTest::qWait(20);
    QCOMPARE(states.size(), 2);
    QCOMPARE(c().traffic().restartRequests(), 2);
}

void TestSimulatedController::linksFollowCablesAndRoles()
{
    const QString link = QStringLiteral("ifidbus.eip_link_state");
    const QString communication = QStringLiteral("ifidbus.commun_state");
    QCOMPARE(c().readVariable(link), 0.0); // the one whose cable is out
    QVERIFY(c().setLinkUp(QStringLiteral("EtherNetIPSlave"), true));
    QCOMPARE(c().readVariable(link), 1.0);
    QCOMPARE(intValue(communication) & 4, 4);
    QVERIFY(c().setLinkUp(QStringLiteral("EtherNetIPSlave"), false));
    QCOMPARE(intValue(communication) & 4, 0);
    // A cable alone makes no link.
    QVERIFY(c().setLinkUp(QStringLiteral("ProfinetMaster"), true));
    QCOMPARE(c().readVariable(QStringLiteral("ifidbus.pnm_link_state")), 0.0);
    QVERIFY(!c().setLinkUp(QStringLiteral("Mes"), true));
    QVERIFY(c().setRoleOn(QStringLiteral("ProfinetMaster"), true));
    QCOMPARE(c().readVariable(QStringLiteral("ifidbus.pnm_link_state")), 1.0);
    QVERIFY(fileOf(Roles).contains("<Bus name=\"ProfinetMaster\" enable=\"1\" />"));
    QVERIFY(!c().setRoleOn(QStringLiteral("NoSuchRole"), true));
}

void TestSimulatedController::destructionWithEverythingPending()
{
    QVERIFY(c().subscribe(UpdateState, 0, true));
    c().writeVariable(QStringLiteral("ifidbus.dnm2open"), 0, 1.0);
    c().writeVariable(QStringLiteral("ifidbus.xml_heartbeat"), 0, 1.0);
    c().writeVariable(UpdateState, 0, 0x8000);
    c().requestRestart();
    m_controller.reset();
    QTest::qWait(100);
}

QTEST_GUILESS_MAIN(TestSimulatedController)
#include "tst_simulatedcontroller.moc"
