#include "UsbPendant.h"

#include "BusFileDataManager.h"
#include "VersionStore.h"

#include <QLockFile>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <csignal>
#include <optional>
#include <sys/resource.h>

namespace {

const QString Exported = QStringLiteral("Export file success!");
const QString Imported = QStringLiteral("The files of the controller take effect with the next restart.");
const QString NothingChanged = QStringLiteral("Nothing was changed on the controller.");
const QString PutBack = QStringLiteral("The former files were put back.");
const QString Unfinished = QStringLiteral("An earlier import was neither finished nor undone.\n"
                                          "Put the former files of the controller back now?\n"
                                          "A new import gives them up once it is sent.");
const QString TryAgain = QStringLiteral("Try again to put the former files back?");
const QString Mixture = QStringLiteral("The controller holds a mixture of former and imported files.\n"
                                       "It should not be restarted before they are put back with Import.");

QString savedSince(const QString& files)
{
    return "These files were saved since by somebody else and stay as they are:\n" + files;
}

bool write(const QString& path, const QByteArray& content)
{
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly) &&
           file.write(content) == content.size();
}

QByteArray roles(const QMap<QByteArray, bool>& on)
{
    QByteArray xml = "<?xml version=\"1.0\"?>\n<!-- kept -->\n<Fieldbus>\n";
    for (auto role = on.begin(); role != on.end(); ++role)
        xml += "\t<Bus  name='" + role.key() + "' enable=\"" + (role.value() ? "1" : "0") + "\"/>\n";
    return xml + "</Fieldbus>\n";
}

QString keptFiles()
{
    return QStringLiteral("../Application/fidbus/import-kept");
}

QString presentFiles()
{
    return QStringLiteral("../Application/fidbus/import-present");
}

// A file of the pendant can hold so much while this lives.
class SmallDisk
{
public:
    explicit SmallDisk(rlim_t bytes)
    {
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit = {bytes, m_before.rlim_max};
        m_handler = std::signal(SIGXFSZ, SIG_IGN);
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~SmallDisk()
    {
        ::setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

private:
    rlimit m_before = {};
    void (*m_handler)(int) = nullptr;
};

} // namespace

class TestUsbImport : public QObject
{
    Q_OBJECT

private slots:
    void freshControllerGetsTheSame();
    void changesWhatThePreviewNames();
    void leavingChangesNothing();
    void listsFolders();
    void refusedFolders();
    void takesOnlyPlainFilesOfTheSet();
    void unlistedRolesGoOff();
    void roleRules_data();
    void roleRules();
    void profinetSlaveIsSwitchedOff();
    void sendFailsAtEveryFile();
    void fetchIsWrongAtEveryFile();
    void driveGoesAtEveryFile();
    void userLevelDropsAtEveryStep();
    void notPutBackIsToldAndKept();
    void newFileStaysUntilItCanBeRemoved();
    void fileThatCannotBeReadStays();
    void formerFilesOutliveALeftPreview();
    void formerFilesOutliveALaterImport();
    void putBackAfterAPowerFailure_data();
    void putBackAfterAPowerFailure();
    void newFileOfOthersStays();
    void savedAfterAKillStays();
    void servoComesOnBetweenFiles();
    void journalMakesTrouble();
    void wholeExportOnly();
    void twoPendantsDoNotShare();
    void unfinishedImportIsSettledFirst();
    void buttonsRestDuringAPutBack();
    void pendantCannotWrite_data();
    void pendantCannotWrite();
    void controllerChangesMeanwhile_data();
    void controllerChangesMeanwhile();
    void pageShowsWhatCame_data();
    void pageShowsWhatCame();
    void otherPagesShowWhatCame();
    void restartIsOffered();

private:
    // A folder with a few files of another robot; on a controller with the factory files they differ.
    static QStringList putOtherRobot(UsbPendant& pendant);
    // Imports it, and leaves that after two of the three files.
    static void leaveUnfinished(UsbPendant& pendant);
    // Whether Import asks for an unfinished import, puts it back, and has nothing to ask the next time.
    static bool isPutBack(UsbPendant& pendant, const QString& outcome = PutBack);
};

QStringList TestUsbImport::putOtherRobot(UsbPendant& pendant)
{
    const QStringList names = {"heartbeat.xml", "fixed/dns_fixed.cfg", "fa/pfb.cfg"};
    for (const QString& name : names) {
        const QByteArray present = pendant.controllerFile(controllerPath(name));
        const QByteArray mark = name.endsWith("xml") ? "<!-- other -->" : "; other";
        write(pendant.usbDirectory() + "/fidbus_20240102_030405/" + name, present + mark);
    }
    return names;
}

void TestUsbImport::leaveUnfinished(UsbPendant& pendant)
{
    putOtherRobot(pendant);
    pendant.controller().faults().set(Faults::SendFails, -1, QString(), 2);
    pendant.declined << TryAgain;
    pendant.runImport();
    pendant.controller().faults().clearAll();
}

bool TestUsbImport::isPutBack(UsbPendant& pendant, const QString& outcome)
{
    pendant.declined.removeAll(Unfinished);
    const int told = pendant.messages().size();
    pendant.runImport();
    const QStringList all = {Unfinished, outcome, UsbPendant::restartQuestion(), Imported};
    if (pendant.messages().mid(told) != all) {
        qWarning() << pendant.messages().mid(told);
        return false;
    }
    pendant.confirm = false;
    pendant.runImport();
    return pendant.messages().size() == told + all.size();
}

void TestUsbImport::freshControllerGetsTheSame()
{
    QTemporaryDir drive;
    UsbPendant::Bytes exported;
    {
        UsbPendant pendant;
        for (const QString& name : exportedFiles())
            QVERIFY(pendant.vary(controllerPath(name), "robot A"));
        exported = pendant.configuration();
        UsbDrive::instance().insert(drive.path());
        QVERIFY(pendant.open());
        QCOMPARE(pendant.runExport(), Exported);
    }
    UsbPendant pendant;
    UsbDrive::instance().insert(drive.path());
    QVERIFY(pendant.open());
    QVERIFY(pendant.configuration() != exported);
    QCOMPARE(pendant.runImport(), Imported);
    QCOMPARE(exported.size(), 36);
    QCOMPARE(pendant.configuration(), exported);
    QCOMPARE(pendant.shownFiles.values().count("different"), 36);
    QVERIFY(!pendant.progressDialog()->isVisible());
    QCOMPARE(pendant.find<QProgressBar>("progressBar")->value(), 99);
}

void TestUsbImport::changesWhatThePreviewNames()
{
    UsbPendant pendant;
    QVERIFY(pendant.open());
    QCOMPARE(pendant.runExport(), Exported);
    const UsbPendant::Bytes exported = pendant.configuration();
    QVERIFY(QFile::remove(pendant.usbDirectory() + '/' + pendant.folders().constLast() +
                          "/rs232/rs232FileConfig.xml"));

    // This robot is another one now; one file it does not have.
    for (const char* path : {"/fa/dnmst0.cfg", "/application/fidbus/free/fieldbus_free.xml",
                             "/application/fidbus/rs232/rs232FileConfig.xml"})
        QVERIFY(pendant.vary(path, "robot B"));
    QVERIFY(pendant.controller().files().remove("/application/fidbus/user_groupio.cfg"));
    UsbPendant::Bytes expected = pendant.configuration();
    pendant.controller().traffic().clear();
    QCOMPARE(pendant.runImport(), Imported);

    QMap<QString, QString> states;
    for (const QString& name : exportedFiles())
        states[name] = "same";
    states["fa/dnmst0.cfg"] = states["free/fieldbus_free.xml"] = "different";
    states["user_groupio.cfg"] = "new";
    states["rs232/rs232FileConfig.xml"] = "missing";
    QCOMPARE(pendant.shownFiles, states);
    QCOMPARE(pendant.shownRoles.value("EtherNetIPMaster"), QString("ON>ON"));
    for (auto state = states.begin(); state != states.end(); ++state) {
        if (state.value() == "different" || state.value() == "new")
            expected[state.key()] = exported[state.key()];
    }
    QCOMPARE(pendant.configuration(), expected);
    QCOMPARE(pendant.controller().traffic().count(Traffic::Store), 3);
    // The former ones are kept, as one change.
    const VersionStore store(FileLocations::versionsDirectory());
    QCOMPARE(store.versions().size(), std::size_t(3));
    for (const FileVersion& version : store.versions()) {
        QVERIFY(version.act == FileVersion::Act::Imported && version.group == 1 && !version.hasFailed);
        QCOMPARE(version.former.content == FileVersion::Content::Absent,
                 version.file.endsWith("user_groupio.cfg"));
    }

    // Nothing is left to be imported.
    pendant.runImport();
    QVERIFY(!pendant.couldConfirm);

    // The file that tells missing ones from a controller that is down may be missing as well.
    for (const char* path : {"fieldbus_config.xml", "user_groupio.cfg"})
        QVERIFY(pendant.controller().files().remove(controllerPath(path)));
    pendant.confirm = false;
    pendant.runImport();
    states["fieldbus_config.xml"] = states["user_groupio.cfg"] = "new";
    states["fa/dnmst0.cfg"] = states["free/fieldbus_free.xml"] = "same";
    QCOMPARE(pendant.shownFiles, states);
}

void TestUsbImport::leavingChangesNothing()
{
    UsbPendant pendant;
    QVERIFY(pendant.open());
    const UsbPendant::Bytes before = pendant.configuration();
    const struct
    {
        const char* what;
        std::function<void()> arrange;
        const char* last;
    } rows[] = {
        {"no drive", [] { UsbDrive::instance().pullOut(); }, "No device found!"},
        {"no folder", [&] { pendant.insertDrive(); },
         "No exported bus configuration found on the USB drive!"},
        {"servo on", [&] { pendant.controller().setServoOn(true); }, "Please turn off the servo first!"},
        {"list left",
         [&] {
             pendant.controller().setServoOn(false);
             putOtherRobot(pendant);
             pendant.row = -1;
         },
         "Please turn off the servo first!"},
        {"preview left",
         [&] {
             pendant.row = 0;
             pendant.confirm = false;
         },
         "Please turn off the servo first!"},
        {"servo comes on",
         [&] {
             pendant.confirm = true;
             pendant.whilePreview = [&] { pendant.controller().setServoOn(true); };
         },
         "Please turn off the servo first!"},
    };
    for (const auto& row : rows) {
        row.arrange();
        pendant.runImport();
        QVERIFY2(pendant.messages().constLast() == row.last, row.what);
        QVERIFY2(!pendant.progressDialog() || !pendant.progressDialog()->isVisible(), row.what);
        QVERIFY2(pendant.configuration() == before, row.what);
    }
    QCOMPARE(pendant.told().size(), 4);
    QCOMPARE(pendant.controller().traffic().count(Traffic::Store), 0);
}

void TestUsbImport::listsFolders()
{
    UsbPendant pendant;
    QVERIFY(pendant.open());
    putOtherRobot(pendant);
    const QString usb = pendant.usbDirectory();
    QVERIFY(QDir().mkpath(usb + "/fidbus_20260101_000000/fa"));
    QVERIFY(QDir().mkpath(usb + "/fidbus_20230704_235959"));
    QVERIFY(QDir().mkpath(usb + "/other"));
    QVERIFY(write(usb + "/fidbus_20270101_000000", "a file"));
    QVERIFY(QFile::link(usb + "/other", usb + "/fidbus_20280101_000000"));
    pendant.row = -1;
    pendant.runImport();
    QCOMPARE(pendant.shownFolders, QStringList({"2026-01-01  00:00:00 | fidbus_20260101_000000 | 0 of 36",
                                                "2024-01-02  03:04:05 | fidbus_20240102_030405 | 3 of 36",
                                                "2023-07-04  23:59:59 | fidbus_20230704_235959 | 0 of 36"}));
    pendant.row = 1;
    QCOMPARE(pendant.runImport(), Imported);
    QCOMPARE(pendant.shownFiles.values().count("missing"), 33);
}

void TestUsbImport::refusedFolders()
{
    UsbPendant pendant;
    QVERIFY(pendant.open());
    const UsbPendant::Bytes before = pendant.configuration();
    const QString folder = pendant.usbDirectory() + "/fidbus_20240102_030405";
    const struct
    {
        const char* file;
        QByteArray content;
        const char* said;
    } rows[] = {
        {"other.txt", "x", "It holds no file of a bus configuration."},
        {"heartbeat.xml", "", "heartbeat.xml: is empty"},
        {"heartbeat.xml", "<Fidbus><Mtcp></Fidbus>", "heartbeat.xml: line 1: "},
        {"heartbeat.xml", "<Fidbus></Fidbus><Fidbus/>", "heartbeat.xml: line 1: "},
        {"heartbeat.xml", "<Fidbus", "heartbeat.xml: line 1: "},
        {"heartbeat.xml", "<Other/>", "heartbeat.xml: begins with \"Other\" instead of \"Fidbus\""},
        {"fieldbus.xml", "<?xml version=\"1.0\"?><FieldbusConfig/>", "fieldbus.xml: begins with"},
        {"fa/fbslave.cfgx", "DRIVER x", "fa/fbslave.cfgx: line 1: "},
        {"Fieldbus.cfg", "<Fieldbus/>", "Fieldbus.cfg: begins with"},
        {"fixed/dns_fixed.cfg", " \n\t\n", "fixed/dns_fixed.cfg: is empty"},
        {"SlaveConfig/Devicenet/rbxm5034.eds", QByteArray("a\0b", 3), "rbxm5034.eds: is no text"},
    };
    for (const auto& row : rows) {
        pendant.clearDrive();
        QVERIFY(write(folder + '/' + row.file, row.content));
        const QString last = pendant.runImport();
        QVERIFY2(last.startsWith("The folder fidbus_20240102_030405 cannot be imported:\n") &&
                     last.contains(row.said),
                 qPrintable(last));
    }
    // Many faults still fit into a box.
    for (const QString& name : exportedFiles())
        QVERIFY(write(folder + '/' + name, ""));
    QVERIFY(pendant.runImport().endsWith("\n... and 27 more"));
    QCOMPARE(pendant.configuration(), before);
    QCOMPARE(pendant.controller().traffic().count(Traffic::Store), 0);
}

void TestUsbImport::takesOnlyPlainFilesOfTheSet()
{
    UsbPendant pendant;
    QVERIFY(pendant.open());
    putOtherRobot(pendant);
    const UsbPendant::Bytes before = pendant.configuration();
    const QString folder = pendant.usbDirectory() + "/fidbus_20240102_030405";
    const QString elsewhere = pendant.usbDirectory() + "/elsewhere";
    QVERIFY(write(elsewhere + "/modbus_free.cfg", "from elsewhere"));
    QVERIFY(QFile::link(elsewhere, folder + "/free"));
    QVERIFY(QFile::link(elsewhere + "/modbus_free.cfg", folder + "/fa/modbus.cfg"));
    QVERIFY(QFile::link(folder + "/nowhere", folder + "/fa/dns0.cfg"));
    QVERIFY(write(folder + "/fa/dnmst0.cfg", QByteArray(4 * 1024 * 1024 + 1, 'x')));
    QVERIFY(write(folder + "/fa/override.cfg", "not of the set"));
    QVERIFY(QDir().mkpath(folder + "/signal_mapping.cfg/deep"));
    QCOMPARE(pendant.runImport(), Imported);
    QCOMPARE(pendant.shownFiles.value("free/modbus_free.cfg"), QString("missing: a link"));
    QCOMPARE(pendant.shownFiles.value("fa/modbus.cfg"), QString("missing: a link"));
    QCOMPARE(pendant.shownFiles.value("fa/dns0.cfg"), QString("missing: a link"));
    QCOMPARE(pendant.shownFiles.value("fa/dnmst0.cfg"), QString("missing: too large"));
    QCOMPARE(pendant.shownFiles.value("signal_mapping.cfg"), QString("missing"));
    QCOMPARE(pendant.shownFiles.size(), 36);
    const UsbPendant::Bytes after = pendant.configuration();
    for (const QString& name : exportedFiles())
        QCOMPARE(after[name] != before[name], pendant.shownFiles[name] == "different");
    QVERIFY(!pendant.controllerFile("/fa/override.cfg").contains("not of the set"));
}

// A role that the imported file does not list is off on the controller that gets it.
void TestUsbImport::unlistedRolesGoOff()
{
    UsbPendant pendant;
    QVERIFY(pendant.controller().files().write(
        "/application/fidbus/fieldbus.xml",
        roles({{"Mes", false}, {"DeviceNetSlave", true}, {"FinsTcp", false}})));
    QVERIFY(pendant.open());
    QVERIFY(write(pendant.usbDirectory() + "/fidbus_20240102_030405/fieldbus.xml",
                  roles({{"EtherCatMaster", true}, {"Mes", true}})));
    // What is on now says the controller, not what the pendant has read before.
    QVERIFY(pendant.controller().files().write("/application/fidbus/fieldbus.xml",
                                               roles({{"Mes", true}, {"DeviceNetSlave", true}})));
    pendant.confirm = false;
    pendant.runImport();
    QCOMPARE(pendant.shownRoles,
             (QMap<QString, QString>{
                 {"Mes", "ON>ON"}, {"EtherCatMaster", "OFF>ON"}, {"DeviceNetSlave", "ON>OFF"}}));
}

void TestUsbImport::roleRules_data()
{
    QTest::addColumn<bool>("profisafe");
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("notice");
    const QString masters =
        "EthernetIP master EtherCat master and Profinet master cannot be enabled at the same time!";
    const QString deviceNet = "DeviceNet slave and DeviceNet master cannot be enabled at the same time!";
    const QString mtcp =
        "If ModbusTcp Master switch is ON,\n the bus free configuration switch needs to be ON!";
    const QString mtcpOrProfinet = "If ModbusTcp Master or Profinet Slave switch is ON,\n the bus free "
                                   "configuration switch needs to be ON!";
    const auto row = [](const char* name, const QMap<QByteArray, bool>& on, const QString& notice,
                        bool profisafe = true) {
        QTest::newRow(name) << profisafe << QByteArray("fieldbus.xml") << roles(on) << notice;
    };
    row("two masters", {{"EtherNetIPMaster", true}, {"EtherCatMaster", true}}, masters);
    row("the other two", {{"ProfinetMaster", true}, {"EtherCatMaster", true}}, masters);
    row("DeviceNet twice", {{"DeviceNetMaster", true}, {"DeviceNetSlave", true}}, deviceNet);
    row("one of each", {{"ProfinetMaster", true}, {"DeviceNetSlave", true}, {"DeviceNetMaster", false}}, "");
    row("Modbus without free bus", {{"ModbusTcpMaster", true}, {"FreeBus", false}}, mtcp, false);
    row("Modbus with it", {{"ModbusTcpMaster", true}, {"FreeBus", true}}, "", false);
    row("ProfiSAFE, PROFINET without free bus", {{"ProfinetSlave", true}}, mtcpOrProfinet);
    row("ProfiSAFE, Modbus without free bus", {{"ModbusTcpMaster", true}}, mtcpOrProfinet);
    row("ProfiSAFE, both with it", {{"ProfinetSlave", true}, {"ModbusTcpMaster", true}, {"FreeBus", true}},
        "");
    QTest::newRow("in the bus switch file")
        << true << QByteArray("Fieldbus.cfg")
        << QByteArray("<FieldbusSettingConfig><R name='EtherNetIPMaster'><enable>1</enable></R>"
                      "<R name='ProfinetMaster'><enable>1</enable></R></FieldbusSettingConfig>")
        << masters;
}

void TestUsbImport::roleRules()
{
    QFETCH(bool, profisafe);
    QFETCH(QByteArray, file);
    QFETCH(QByteArray, content);
    QFETCH(QString, notice);
    UsbPendant pendant;
    pendant.controller().variables().set("io_man.profisafe_status", profisafe ? 1 : 0);
    QVERIFY(pendant.open());
    QVERIFY(write(pendant.usbDirectory() + "/fidbus_20240102_030405/" + file, content));
    pendant.controller().traffic().clear();
    pendant.runImport();
    QCOMPARE(pendant.notice.isEmpty(), notice.isEmpty());
    QVERIFY(pendant.notice.contains(notice));
    QCOMPARE(pendant.couldConfirm, notice.isEmpty());
    QCOMPARE(pendant.controller().traffic().count(Traffic::Store), notice.isEmpty() ? 1 : 0);
}

void TestUsbImport::profinetSlaveIsSwitchedOff()
{
    UsbPendant pendant;
    const QString path = "/application/fidbus/fieldbus.xml";
    const QMap<QByteArray, bool> off = {{"Mes", true}, {"ProfinetSlave", false}, {"ModbusTcpSlave", true}};
    QMap<QByteArray, bool> on = off;
    on["ProfinetSlave"] = true;
    const QByteArray switches =
        "<?xml version=\"1.0\"?>\n<FieldbusSettingConfig>\n<A name=\"ProfinetSlave\">\n"
        "<enable>%</enable>\n</A>\n<B name=\"Mes\">\n<enable>1</enable>\n</B>\n"
        "</FieldbusSettingConfig>\n";
    QVERIFY(pendant.controller().files().write(path, roles(off)));
    pendant.controller().variables().set("io_man.profisafe_status", 0);
    pendant.controller().variables().set("ifidbus.anybus_fm", 13);
    QVERIFY(pendant.open());
    const QString folder = pendant.usbDirectory() + "/fidbus_20240102_030405/";
    QVERIFY(write(folder + "fieldbus.xml", roles(on)));
    QVERIFY(write(folder + "Fieldbus.cfg", QByteArray(switches).replace('%', '1')));
    pendant.runImport();
    QVERIFY(pendant.notice.contains("PROFINET slave cannot be on"));
    QCOMPARE(pendant.shownFiles.value("fieldbus.xml"), QString("same"));
    QCOMPARE(pendant.shownRoles.value("ProfinetSlave"), QString("OFF>OFF"));
    QCOMPARE(pendant.controllerFile(path), roles(off));
    QCOMPARE(pendant.controllerFile("/application/fidbus/Fieldbus.cfg"),
             QByteArray(switches).replace('%', '0'));

    // Where the module is there, it stays on.
    pendant.controller().variables().set("ifidbus.anybus_fm", 14);
    pendant.controller().variables().set("ifidbus.is_rp2pro", 1);
    QTest::qWait(50);
    pendant.runImport();
    QCOMPARE(pendant.notice, QString());
    QCOMPARE(pendant.controllerFile(path), roles(on));
}

void TestUsbImport::sendFailsAtEveryFile()
{
    UsbPendant pendant;
    QVERIFY(pendant.open());
    const QStringList names = putOtherRobot(pendant);
    UsbPendant::Bytes before = pendant.configuration();
    int file = 0;
    for (;; ++file) {
        pendant.controller().faults().set(Faults::SendFails, 1, QString(), file);
        const QString last = pendant.runImport();
        if (last == Imported)
            break;
        QCOMPARE(last, "Import file failed!\nThe file " + names.value(file) +
                           " could not be sent to the controller.\n" + PutBack);
        QVERIFY(pendant.configuration() == before);
        QVERIFY(!pendant.progressDialog()->isVisible());
    }
    QCOMPARE(file, names.size());

    // What the controller did not have is removed again.
    QVERIFY(pendant.controller().files().remove(controllerPath(names.at(1))));
    QVERIFY(pendant.vary("/fa/pfb.cfg", "varied"));
    before = pendant.configuration();
    pendant.controller().faults().set(Faults::SendFails, 1, QString(), 1);
    QVERIFY(pendant.runImport().endsWith(PutBack));
    QVERIFY(pendant.configuration() == before);
    const FileVersion last = VersionStore(FileLocations::versionsDirectory()).versions().back();
    QVERIFY(last.act == FileVersion::Act::ImportUndone);
}

void TestUsbImport::fetchIsWrongAtEveryFile()
{
    UsbPendant pendant;
    QVERIFY(pendant.open());
    const int files = putOtherRobot(pendant).size();
    const UsbPendant::Bytes before = pendant.configuration();
    int fetch = 0;
    for (;; ++fetch) {
        pendant.controller().faults().set(fetch % 2 ? Faults::FetchCutShort : Faults::FetchGarbage, 1,
                                          QString(), fetch);
        const QString last = pendant.runImport();
        pendant.controller().faults().clearAll();
        if (last == Imported)
            break;
        QVERIFY2(last.startsWith("Import file failed!\nThe file "), qPrintable(last));
        QVERIFY2(last.endsWith(fetch < 2 * files ? NothingChanged : PutBack), qPrintable(last));
        QVERIFY(pendant.configuration() == before);
    }
    // Kept, confirmed, and read back after they were sent; what comes later reads for the pages.
    QCOMPARE(fetch, 3 * files);
}

void TestUsbImport::driveGoesAtEveryFile()
{
    UsbPendant pendant;
    QVERIFY(pendant.open());
    const int files = putOtherRobot(pendant).size();
    const UsbPendant::Bytes before = pendant.configuration();
    pendant.confirm = false;
    pendant.runImport();
    int step = 1;
    for (;; ++step) {
        pendant.atStep(step, [] { UsbDrive::instance().pullOut(); });
        const QString last = pendant.runImport();
        pendant.insertDrive();
        if (last.isEmpty()) // the preview came
            break;
        QCOMPARE(last, "Import file failed!\nThe USB drive was removed.\n" + NothingChanged);
    }
    QCOMPARE(step, files + 1);
    QVERIFY(pendant.configuration() == before);
}

// Whatever was sent by then, the controller ends with the former files or with the new ones.
void TestUsbImport::userLevelDropsAtEveryStep()
{
    UsbPendant pendant;
    QVERIFY(pendant.open());
    const int files = putOtherRobot(pendant).size();
    const UsbPendant::Bytes before = pendant.configuration();
    const int steps = 4 * files; // copied, kept, confirmed, sent
    for (int step = 1; step <= steps; ++step) {
        pendant.confirm = false;
        pendant.runImport(); // makes the dialog whose steps are counted
        pendant.confirm = true;
        pendant.atStep(step, [] { QTimer::singleShot(0, [] { UserSession::instance().setUserLevel(1); }); });
        pendant.press("btn_import");
        QVERIFY(pendant.stepReached());
        QTRY_COMPARE(pendant.application()->state(), ApplicationSlot::State::Empty);
        QVERIFY(!QApplication::activeModalWidget());
        QVERIFY2((pendant.configuration() == before) == (step < steps), qPrintable(QString::number(step)));
        UserSession::instance().setUserLevel(4);
        QVERIFY(pendant.open());
    }
    pendant.runImport();
    QVERIFY(!pendant.couldConfirm);
}

void TestUsbImport::notPutBackIsToldAndKept()
{
    UsbPendant pendant;
    QVERIFY(pendant.open());
    putOtherRobot(pendant);
    const UsbPendant::Bytes before = pendant.configuration();
    pendant.controller().faults().set(Faults::SendFails, -1, QString(), 2);
    int asked = 0;
    pendant.whileShown = [&](const QString& text) {
        if (text == TryAgain && ++asked == 2)
            pendant.declined << text;
    };
    pendant.runImport();
    const QString left = "These files could not be put back:\nheartbeat.xml\nfixed/dns_fixed.cfg";
    // No restart is offered for a mixture.
    QCOMPARE(
        pendant.told(),
        QStringList({"Import file failed!\nThe file fa/pfb.cfg could not be sent to the controller.\n" + left,
                     TryAgain, left, TryAgain, Mixture}));
    QVERIFY(pendant.configuration() != before);
    auto* band = pendant.find("label_unfinishedImport");
    QTRY_VERIFY(band->isVisible());

    // The next import begins with putting back what the last one has left, also after a new start.
    pendant.controller().faults().clearAll();
    QVERIFY(pendant.press("exitBtn"));
    QTRY_COMPARE(pendant.application()->state(), ApplicationSlot::State::Empty);
    MsgBoxScript::answerByDefault(MsgBox::Confirmed);
    QVERIFY(pendant.open());
    QVERIFY(pendant.messages().constLast().startsWith("An import was neither finished nor undone: "));
    QVERIFY(isPutBack(pendant));
    QVERIFY(pendant.configuration() == before);
    QTRY_VERIFY(!pendant.find("label_unfinishedImport")->isVisible());
}

// A controller that cannot be reached does not say that a file is gone.
void TestUsbImport::newFileStaysUntilItCanBeRemoved()
{
    UsbPendant pendant;
    QVERIFY(pendant.open());
    putOtherRobot(pendant);
    QVERIFY(pendant.controller().files().remove(controllerPath("heartbeat.xml")));
    const UsbPendant::Bytes before = pendant.configuration();
    // When the first file was sent and read back; three attempts to put the second one back are in vain.
    pendant.whilePreview = [&] {
        pendant.atStep(4, [&] {
            pendant.controller().faults().set(Faults::SendFails, 1);
            pendant.controller().faults().set(Faults::FetchFails, 90);
        });
    };
    QCOMPARE(pendant.runImport(), PutBack);
    QVERIFY(pendant.stepReached());
    QCOMPARE(pendant.told(),
             QStringList({"Import file failed!\nThe file fixed/dns_fixed.cfg could not be sent to "
                          "the controller.\nThese files could not be put back:\n"
                          "fixed/dns_fixed.cfg",
                          TryAgain, PutBack}));
    QVERIFY(pendant.configuration() == before);
}

// It was taken for one that the controller does not have: removing it could take away what was there before.
void TestUsbImport::fileThatCannotBeReadStays()
{
    UsbPendant pendant;
    QVERIFY(pendant.open());
    putOtherRobot(pendant);
    UsbPendant::Bytes before = pendant.configuration();
    const QString path = controllerPath("fixed/dns_fixed.cfg");
    pendant.controller().faults().set(Faults::FetchFails, -1, path);
    QCOMPARE(pendant.runImport(),
             QString("Import file failed!\nThe file fixed/dns_fixed.cfg could not be sent to the "
                     "controller.\nThese files could not be put back:\nfixed/dns_fixed.cfg"));
    QCOMPARE(pendant.shownFiles.value("fixed/dns_fixed.cfg"), QString("new"));
    QVERIFY(pendant.controllerFile(path).contains("; other"));
    before["fixed/dns_fixed.cfg"] = pendant.controllerFile(path);
    QVERIFY(pendant.configuration() == before);
    // There is nothing more that could be tried.
    pendant.controller().faults().clearAll();
    pendant.confirm = false;
    const int told = pendant.messages().size();
    pendant.runImport();
    QCOMPARE(pendant.messages().size(), told);
}

// Declining to put back is final only when a new import begins.
void TestUsbImport::formerFilesOutliveALeftPreview()
{
    UsbPendant pendant;
    QVERIFY(pendant.open());
    const UsbPendant::Bytes before = pendant.configuration();
    leaveUnfinished(pendant);
    pendant.declined << Unfinished;
    QVERIFY(pendant.configuration() != before);

    const auto leave = [] {};
    const auto cannotBegin = [] { write("../Application/fidbus/import-present/unfinished/in the way", "x"); };
    pendant.confirm = false;
    for (const std::function<void()>& act :
         {std::function<void()>(leave), std::function<void()>(cannotBegin)}) {
        pendant.whilePreview = act;
        pendant.runImport();
        QVERIFY(pendant.couldConfirm);
        pendant.confirm = true;
    }
    QVERIFY2(pendant.messages().constLast().endsWith("could not be written.\n" + NothingChanged),
             qPrintable(pendant.messages().constLast()));
    QVERIFY(isPutBack(pendant));
    QVERIFY(pendant.configuration() == before);
}

// One that is undone whole leaves the earlier one as it was.
void TestUsbImport::formerFilesOutliveALaterImport()
{
    UsbPendant pendant;
    QVERIFY(pendant.open());
    const UsbPendant::Bytes before = pendant.configuration();
    leaveUnfinished(pendant);
    const UsbPendant::Bytes mixture = pendant.configuration();
    pendant.declined << Unfinished;
    QVERIFY(write(pendant.usbDirectory() + "/fidbus_20240102_030405/fixed/dns_fixed.cfg",
                  "; another\nRUN_ALWAYS\n"));
    pendant.controller().faults().set(Faults::SendFails, 1, QString(), 1);
    QVERIFY(pendant.runImport().endsWith(PutBack));
    QVERIFY(pendant.configuration() == mixture);
    QVERIFY(isPutBack(pendant));
    QVERIFY(pendant.configuration() == before);
}

void TestUsbImport::putBackAfterAPowerFailure_data()
{
    QTest::addColumn<QString>("state");
    QTest::newRow("in the middle") << "";
    QTest::newRow("before a later import took its place") << "begun";
    QTest::newRow("in the first step of the exchange") << "aside";
    QTest::newRow("the journal is damaged") << "damaged";
}

void TestUsbImport::putBackAfterAPowerFailure()
{
    QFETCH(QString, state);
    UsbPendant pendant;
    QVERIFY(pendant.open());
    const UsbPendant::Bytes before = pendant.configuration();
    leaveUnfinished(pendant);
    QVERIFY(pendant.configuration() != before);
    if (state == "begun" || state == "aside")
        QVERIFY(write(presentFiles() + "/unfinished", "import 2\nold heartbeat.xml\nend"));
    if (state == "aside")
        QVERIFY(QDir().rename(keptFiles(), presentFiles() + "-aside"));
    if (state == "damaged")
        QVERIFY(write(keptFiles() + "/unfinished", "import 1\nold heartb"));
    QVERIFY(isPutBack(pendant));
    QVERIFY(pendant.configuration() == before);
}

// Between the import and its putting back anybody may have written the file.
void TestUsbImport::newFileOfOthersStays()
{
    UsbPendant pendant;
    QVERIFY(pendant.open());
    putOtherRobot(pendant);
    const QString path = controllerPath("heartbeat.xml");
    QVERIFY(pendant.controller().files().remove(path));
    const UsbPendant::Bytes before = pendant.configuration();
    // What a power failure after the first file leaves behind.
    QByteArray journal;
    QByteArray sent;
    pendant.controller().faults().set(Faults::SendFails, 1, QString(), 2);
    pendant.whilePreview = [&] {
        pendant.atStep(4, [&] {
            QFile file(keptFiles() + "/unfinished");
            if (file.open(QIODevice::ReadOnly))
                journal = file.readAll();
            sent = pendant.controllerFile(path);
        });
    };
    QVERIFY(pendant.runImport().endsWith(PutBack));
    QVERIFY(!sent.isEmpty());
    for (const bool isOfOthers : {false, true}) {
        pendant.whilePreview = nullptr;
        UsbPendant::Bytes expected = before;
        const QByteArray present = sent + (isOfOthers ? "<!-- of others -->" : "");
        if (isOfOthers)
            expected["heartbeat.xml"] = present;
        QVERIFY(pendant.controller().files().write(path, present));
        QVERIFY(write(keptFiles() + "/unfinished", journal));
        QVERIFY(isPutBack(pendant, isOfOthers ? savedSince("heartbeat.xml") : PutBack));
        QVERIFY(pendant.configuration() == expected);
    }
}

// Killed at each step of the sending; then somebody saves one of the files; then the former ones are put
// back.
void TestUsbImport::savedAfterAKillStays()
{
    UsbPendant pendant;
    QVERIFY(pendant.open());
    const QStringList names = putOtherRobot(pendant);
    const UsbPendant::Bytes before = pendant.configuration();
    QByteArray journal;
    QVector<UsbPendant::Bytes> killed;
    QMetaObject::Connection watched;
    pendant.whilePreview = [&] {
        const auto* bar = pendant.find<QProgressBar>("progressBar");
        watched = QObject::connect(bar, &QProgressBar::valueChanged, [&](int) {
            QFile file(keptFiles() + "/unfinished");
            if (!file.open(QIODevice::ReadOnly))
                return;
            journal = file.readAll();
            killed << pendant.configuration();
        });
    };
    QCOMPARE(pendant.runImport(), Imported);
    QObject::disconnect(watched);
    QVERIFY(killed.size() >= names.size() && killed.constLast() != before);
    for (const UsbPendant::Bytes& state : killed) {
        for (const QString& saved : names) {
            UsbPendant::Bytes expected = before;
            expected[saved] = before[saved] + (saved.endsWith("xml") ? "<!-- saved -->" : "; saved");
            for (const QString& name : names)
                QVERIFY(pendant.put(controllerPath(name), name == saved ? expected[name] : state[name]));
            QVERIFY(write(keptFiles() + "/unfinished", journal));
            pendant.runImport();
            QCOMPARE(pendant.messages().at(pendant.messages().size() - 3), savedSince(saved));
            QVERIFY(pendant.configuration() == expected);
        }
    }
}

// Nothing is sent to a robot that may move, not even the former files.
void TestUsbImport::servoComesOnBetweenFiles()
{
    UsbPendant pendant;
    QVERIFY(pendant.open());
    putOtherRobot(pendant);
    const UsbPendant::Bytes before = pendant.configuration();
    pendant.whilePreview = [&] { pendant.atStep(4, [&] { pendant.controller().setServoOn(true); }); };
    pendant.whileShown = [&](const QString& text) {
        if (text == TryAgain) {
            QCOMPARE(pendant.controller().traffic().count(Traffic::Store), 1);
            pendant.controller().setServoOn(false);
        }
    };
    QCOMPARE(pendant.runImport(), PutBack);
    QCOMPARE(pendant.told(), QStringList({"Import file failed!\nPlease turn off the servo first!\n"
                                          "These files could not be put back:\nheartbeat.xml",
                                          TryAgain, PutBack}));
    QVERIFY(pendant.configuration() == before);
}

void TestUsbImport::journalMakesTrouble()
{
    UsbPendant pendant;
    QVERIFY(pendant.open());
    putOtherRobot(pendant);
    const UsbPendant::Bytes before = pendant.configuration();
    // While it stands and cannot be emptied either, the import is not over.
    const QString journal = keptFiles() + "/unfinished";
    pendant.whilePreview = [&] {
        pendant.atStep(6, [&] {
            QVERIFY(QFile::remove(journal));
            QVERIFY(write(journal + "/in the way", "x"));
        });
    };
    QCOMPARE(pendant.runImport(), "Import file failed!\nThe file ../Application/fidbus/import-kept of the "
                                  "pendant could not be written.\n" +
                                      PutBack);
    QVERIFY(pendant.configuration() == before);
    // One that cannot be read is not given up, whatever button is pressed.
    for (const char* button : {"btn_import", "btn_export"})
        QCOMPARE(pendant.run(button), QString("What an earlier import has replaced cannot be read now.\n"
                                              "Please try again."));
    QVERIFY(QFile::exists(journal));
}

void TestUsbImport::wholeExportOnly()
{
    UsbPendant pendant;
    QVERIFY(pendant.open());
    putOtherRobot(pendant);
    const UsbPendant::Bytes before = pendant.configuration();
    const QString question = "The folder fidbus_20240102_030405 is not a whole export:\n"
                             "it brings 3 of 36 files. The others stay as they are.\n"
                             "Import it all the same?";
    pendant.declined << question;
    QCOMPARE(pendant.runImport(), question);
    QVERIFY(pendant.configuration() == before);
}

void TestUsbImport::twoPendantsDoNotShare()
{
    UsbPendant pendant;
    QVERIFY(pendant.open());
    putOtherRobot(pendant);
    QLockFile other("../Application/fidbus/import.lock");
    QVERIFY(other.tryLock());
    const QString text = "Another pendant is importing or exporting in the same directory.";
    QCOMPARE(pendant.runImport(), text);
    QCOMPARE(pendant.runExport(), text);
    other.unlock();
    QCOMPARE(pendant.runImport(), Imported);
}

// What the pendant holds is not saved over the controller's files, nor exported as one configuration.
void TestUsbImport::unfinishedImportIsSettledFirst()
{
    UsbPendant pendant;
    const QByteArray former = roles({{"Mes", true}});
    const QString path = "/application/fidbus/fieldbus.xml";
    const auto isMesOn = [] {
        return BusFileDataManager::getInstance()->getAllBusName().value("Mes").enabled;
    };
    QVERIFY(pendant.controller().files().write(path, former));
    QVERIFY(pendant.open());
    QVERIFY(write(pendant.usbDirectory() + "/fidbus_20240102_030405/fieldbus.xml", roles({{"Mes", false}})));
    leaveUnfinished(pendant);
    BusFileDataManager::getInstance()->emitGetFieldXml(); // as a new start does
    QVERIFY(!isMesOn());

    const QString all = "An earlier import was neither finished nor undone.\n"
                        "With Import the former files can be put back.\n"
                        "Save the bus switches all the same?";
    pendant.declined << all;
    int told = pendant.messages().size();
    pendant.run("saveBusBt");
    QCOMPARE(pendant.messages().mid(told), QStringList(all));
    pendant.controller().traffic().clear();
    pendant.whileShown = [&](const QString& text) { pendant.controller().setServoOn(text == Unfinished); };
    told = pendant.messages().size();
    QCOMPARE(pendant.runExport(), QString("Please turn off the servo first!"));
    QCOMPARE(pendant.messages().at(told), Unfinished);
    QCOMPARE(pendant.controller().traffic().count(Traffic::Store), 0);

    pendant.whileShown = nullptr;
    pendant.controller().setServoOn(false);
    QVERIFY(isPutBack(pendant));
    QCOMPARE(pendant.controllerFile(path), former);
    QVERIFY(isMesOn());
}

// Input is blocked for fingers; a key gets through to the button that has the focus.
void TestUsbImport::buttonsRestDuringAPutBack()
{
    UsbPendant pendant;
    QVERIFY(pendant.open());
    const UsbPendant::Bytes before = pendant.configuration();
    leaveUnfinished(pendant);

    pendant.controller().faults().set(Faults::FetchFails, 5); // half a second
    const int told = pendant.messages().size();
    int pressed = 0;
    QTimer keys;
    QObject::connect(&keys, &QTimer::timeout, [&] {
        if (pendant.controller().faults().timesLeft(Faults::FetchFails) == 0 ||
            pendant.messages().size() == told)
            return;
        for (const char* button : {"btn_import", "btn_export", "saveBusBt"}) {
            QTest::keyClick(pendant.find(button), Qt::Key_Space);
            ++pressed;
        }
    });
    keys.start(50);
    pendant.runImport();
    QVERIFY(pressed > 0);
    QCOMPARE(pendant.messages().mid(told),
             QStringList({Unfinished, PutBack, UsbPendant::restartQuestion(), Imported}));
    QVERIFY(pendant.configuration() == before);
}

void TestUsbImport::pendantCannotWrite_data()
{
    QTest::addColumn<QString>("inTheWay"); // a file, or a directory when it ends so
    QTest::addColumn<bool>("later");
    QTest::newRow("the copies") << "import" << false;
    QTest::newRow("the present files") << "import-present" << false;
    QTest::newRow("the journal") << "import-present/unfinished/" << true;
    QTest::newRow("a large file") << "" << false; // it counts as no new one
}

void TestUsbImport::pendantCannotWrite()
{
    QFETCH(QString, inTheWay);
    QFETCH(bool, later);
    UsbPendant pendant;
    QVERIFY(pendant.open());
    putOtherRobot(pendant);
    std::optional<SmallDisk> disk;
    if (inTheWay.isEmpty()) {
        QVERIFY(pendant.vary("/fa/pfb.cfg", QByteArray(2 * 1024 * 1024, 'x')));
        disk.emplace(1024 * 1024);
    }
    const UsbPendant::Bytes before = pendant.configuration();
    const QString path = "../Application/fidbus/" + inTheWay;
    const auto block = [&] { QVERIFY(write(path + (path.endsWith('/') ? "file" : ""), "x")); };
    if (later)
        pendant.whilePreview = block;
    else if (!disk)
        block();
    const QString last = pendant.runImport();
    QVERIFY2(
        QRegularExpression("^Import file failed!\nThe file ../Application/fidbus/import\\S* of the pendant "
                           "could not be written.\n" +
                           NothingChanged + '$')
            .match(last)
            .hasMatch(),
        qPrintable(last));
    QVERIFY(pendant.configuration() == before);
    QCOMPARE(pendant.controller().traffic().count(Traffic::Store), 0);
}

void TestUsbImport::controllerChangesMeanwhile_data()
{
    QTest::addColumn<QString>("what");
    QTest::addColumn<QString>("reason");
    const QString changed = "The file fa/pfb.cfg of the controller has changed meanwhile.";
    const QString notFetched = "The file %1 could not be fetched from the controller.";
    QTest::newRow("changed") << "changed" << changed;
    QTest::newRow("new one comes") << "comes" << changed;
    QTest::newRow("unreachable") << "unreachable" << notFetched.arg("heartbeat.xml");
    QTest::newRow("unreachable at a new one") << "unreachable, new" << notFetched.arg("heartbeat.xml");
    QTest::newRow("unreachable before") << "before" << notFetched.arg("heartbeat.xml");
    QTest::newRow("new one can be read when it is sent")
        << "readable"
        << "The file heartbeat.xml of the controller has changed meanwhile.";
    QTest::newRow("copy") << "copy"
                          << "The pendant's copy of heartbeat.xml has changed meanwhile.";
    QTest::newRow("servo") << "servo"
                           << "Please turn off the servo first!";
}

void TestUsbImport::controllerChangesMeanwhile()
{
    QFETCH(QString, what);
    QFETCH(QString, reason);
    UsbPendant pendant;
    QVERIFY(pendant.open());
    putOtherRobot(pendant);
    Faults& faults = pendant.controller().faults();
    const QByteArray content = pendant.controllerFile("/fa/pfb.cfg");
    if (what == "comes")
        QVERIFY(pendant.controller().files().remove("/fa/pfb.cfg"));
    if (what == "unreachable, new")
        QVERIFY(pendant.controller().files().remove(controllerPath("heartbeat.xml")));
    if (what == "before")
        faults.set(Faults::FetchFails);
    if (what == "readable") // not for the preview nor for the look after it, two series of attempts each
        faults.set(Faults::FetchFails, 40, controllerPath("heartbeat.xml"));
    pendant.whilePreview = [&] {
        if (what == "copy")
            QVERIFY(write("../Application/fidbus/import/heartbeat.xml", "<Fidbus/>"));
        else if (what == "servo")
            pendant.atStep(3, [&] { pendant.controller().setServoOn(true); });
        else if (what == "readable")
            QCOMPARE(pendant.shownFiles.value("heartbeat.xml"), QString("new"));
        else if (what == "changed" || what == "comes")
            pendant.controller().files().write("/fa/pfb.cfg", content + "; by somebody else\n");
        else
            faults.set(Faults::FetchFails);
    };
    UsbPendant::Bytes before = pendant.configuration();
    const QString last = pendant.runImport();
    QCOMPARE(last, "Import file failed!\n" + reason + '\n' + NothingChanged);
    if (what == "changed" || what == "comes")
        before["fa/pfb.cfg"] = content + "; by somebody else\n";
    QVERIFY(pendant.configuration() == before);
    QCOMPARE(pendant.controller().traffic().count(Traffic::Store), 0);
}

void TestUsbImport::pageShowsWhatCame_data()
{
    QTest::addColumn<bool>("isEdited");
    QTest::addColumn<bool>("isKept");
    QTest::addColumn<bool>("isPutBack");
    QTest::newRow("import") << false << false << false;
    QTest::newRow("import over edits, kept") << true << true << false;
    QTest::newRow("import over edits, loaded") << true << false << false;
    QTest::newRow("put back") << false << false << true;
    QTest::newRow("put back over edits, kept") << true << true << true;
    QTest::newRow("put back over edits, loaded") << true << false << true;
}

// The switches are the controller's new ones at once, and what is saved next is theirs.
void TestUsbImport::pageShowsWhatCame()
{
    QFETCH(bool, isEdited);
    QFETCH(bool, isKept);
    QFETCH(bool, isPutBack);
    const QString changed = "Changed on the controller since it was read";
    const QString path = "/application/fidbus/fieldbus.xml";
    UsbPendant pendant;
    QVERIFY(pendant.controller().files().write(path, roles({{"DeviceNetSlave", false}, {"Mes", false}})));
    QVERIFY(pendant.open());
    QVERIFY(write(pendant.usbDirectory() + "/fidbus_20240102_030405/fieldbus.xml",
                  roles({{"DeviceNetSlave", false}, {"FreeBus", true}, {"Mes", true}})));
    if (isPutBack) {
        leaveUnfinished(pendant); // the one file was sent, and kept
        QVERIFY(pendant.controllerFile(path).contains("FreeBus"));
    }
    if (isEdited)
        pendant.choose("devnetSwitch", 1);
    if (isKept)
        pendant.declined << changed;
    const int told = pendant.messages().size();
    QCOMPARE(pendant.runImport(), Imported);
    QCOMPARE(pendant.messages().mid(told).contains(changed), isEdited);
    QCOMPARE(pendant.chosen("mesSwitch"), int(isPutBack == isKept));
    QCOMPARE(pendant.chosen("devnetSwitch"), int(isKept));
    QCOMPARE(pendant.find("label_edited")->isHidden(), !isKept);

    pendant.controller().setRestartAllowed(false);
    pendant.run("saveBusBt");
    QTRY_VERIFY(pendant.messages().constLast().startsWith("Successfully saved"));
    // What was imported beside the switches is not brought back.
    QCOMPARE(pendant.controllerFile(path).contains("FreeBus"), !isPutBack);
    QCOMPARE(pendant.controllerFile(path).contains("\"DeviceNetSlave\" enable=\"1\""), isKept);
}

// A page that was opened before catches up when it is shown again, after an import as after a put-back.
void TestUsbImport::otherPagesShowWhatCame()
{
    const QString changed = "Changed on the controller since it was read";
    const QString path = "/application/fidbus/heartbeat.xml";
    UsbPendant pendant;
    QVERIFY(pendant.open() && pendant.openPage("heartbeatBtn"));
    putOtherRobot(pendant);
    const struct
    {
        bool isPutBack;
        bool isEdited;
        bool isKept;
    } rows[] = {{false, false, false}, {true, false, false}, {false, true, true},
                {true, false, true},   {true, true, false},  {false, true, false}};
    for (const auto& row : rows) {
        if (row.isEdited)
            QVERIFY(pendant.press("modbusCheckBox"));
        const bool hasEdits = !pendant.findOn("HeartbeatDetectionWidget", "label_edited")->isHidden();
        QVERIFY(pendant.openPage("busSetting") && pendant.vary(path, "since"));
        if (row.isPutBack)
            leaveUnfinished(pendant);
        pendant.declined.removeAll(TryAgain);
        QCOMPARE(pendant.runImport(), Imported);
        pendant.controller().traffic().clear();
        pendant.declined.removeAll(changed);
        if (row.isKept)
            pendant.declined << changed;
        const int told = pendant.messages().size();
        QVERIFY(pendant.openPage("heartbeatBtn"));
        QCOMPARE(pendant.messages().mid(told), hasEdits ? QStringList(changed) : QStringList());
        QCOMPARE(pendant.controller().traffic().fetches().contains(path), !(hasEdits && row.isKept));
    }
}

void TestUsbImport::restartIsOffered()
{
    UsbPendant pendant;
    QVERIFY(pendant.open());
    putOtherRobot(pendant);
    QCOMPARE(pendant.runImport(), Imported);
    QCOMPARE(pendant.controller().traffic().restartRequests(), 0);

    pendant.declined.clear();
    pendant.controller().setRestartAllowed(false);
    QVERIFY(pendant.vary("/fa/pfb.cfg", "again"));
    QCOMPARE(pendant.runImport(), QString("Please manually power off and restart the robot!"));
    QCOMPARE(pendant.controller().traffic().restartRequests(), 0);

    pendant.controller().setRestartAllowed(true);
    QVERIFY(pendant.vary("/fa/pfb.cfg", "once more"));
    QCOMPARE(pendant.runImport(), UsbPendant::restartQuestion());
    QCOMPARE(pendant.controller().traffic().restartRequests(), 1);
    QTRY_VERIFY(!pendant.isOpen());
}

PENDANT_TEST_MAIN(TestUsbImport)
#include "tst_usbimport.moc"
