// The command-line tool by its front door: folders on disk, a process, what it prints and its exit code.

#include "ConfigFolders.h"

#include <QCryptographicHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRandomGenerator>
#include <QtTest>

#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

const QString First = QStringLiteral("fidbus_20240318_074211");
const QString Second = QStringLiteral("fidbus_20240402_161530");

/// An edit of one file, and the one change that a comparison has to name.
struct Edit
{
    const char* path;
    const char* from;
    const char* to;
    const char* change; ///< "group: field"; "path: -" and "path: +" for a line
};

constexpr Edit Edits[] = {
    {"fieldbus.xml", R"("FinsTcp" enable="0")", R"("FinsTcp" enable="1")", "FINS client: switch"},
    {"fieldbus.xml", R"("FreeBus" enable="1")", R"("FreeBus" enable="0")", "free configuration: switch"},
    {"heartbeat.xml", "<Eip_Timeout>1.000", "<Eip_Timeout>1.5", "EtherNet/IP slave: heartbeat time-out"},
    {"heartbeat.xml", "<Dns_Nod_Switch>0", "<Dns_Nod_Switch>true", "DeviceNet slave: heartbeat"},
    {"fieldbus_config.xml", R"(type="Bool" quantity="640")", R"(type="Bool" quantity="624")",
     "mapping EtherNet/IP slave, free, read only: Bool"},
    {"fieldbus_config.xml", R"(start="120" end="183")", R"(start="120" end="187")",
     "mapping EtherCAT slave, free, read only: Float addresses"},
    {"fieldbus_config.xml", R"("ro" start="40101" end="40200")", R"("ro" start="40101")",
     "mapping Modbus TCP slave, fixed, read only: block"},
    {"fa/dns-1.cfg", "IPADDR 192.168.2.22", "IPADDR 192.168.2.30", "EtherNet/IP slave: IP address"},
    {"fa/pfb.cfg", ";DISABLE_COM_ALARM", "DISABLE_COM_ALARM", "PROFINET slave: alarm on a lost connection"},
    {"fixed/pfb_fixed.cfg", "\nBIG_ENDIAN", "\nMIDDLE_BIG_ENDIAN", "PROFINET slave, fixed: byte order"},
    {"fa/dnmst0.cfg", "MAC ID 14", "MAC ID 15", "DeviceNet master, device 3: MAC ID"},
    {"fa/dnmst0.cfg", "PACHET_RATIO 10", "PACHET_RATIO 20", "DeviceNet master: time between scans"},
    {"fa/fbslave.cfgx", "littleEndian", "bigEndian", "EtherCAT slave: byte order"},
    {"devicenet/devicenetSlave.xml", "<Dns_MACID>12", "<Dns_MACID>14", "DeviceNet slave: MAC ID"},
    {"mtcpMaster/mtcp_master.xml", "<TimeOut>1.500", "<TimeOut>", "Modbus TCP master: time-out"},
    {"eipMaster/eip_master.xml", "<DynSlave4>1", "<DynSlave4>0", "EtherNet/IP master: slave 4"},
    {"pfnMaster/pfn_master.xml", "<SlaveNum>2", "<SlaveNum>3", "PROFINET master: slaves"},
    {"pfs_description.xml", "Robot stopped", "Robot at rest", "ProfiSAFE: input bit 8"},
    // What no field tells.
    {"fa/dns-1.cfg", "RPI_MAX 500\n", "", "fa/dns-1.cfg: -"},
    {"fa/pfb.cfg", "BOARD 0", "BOARD 0\nBOARD 9", "fa/pfb.cfg: +"},
    {"heartbeat.xml", "</Fidbus>", "<Other>3</Other></Fidbus>", "heartbeat.xml: +"},
    {"user_groupio.cfg", "GROUP_IN PALLET_LAYER             12   4 eip_ro_b\n", "", "user_groupio.cfg: -"},
    // An entry that stands twice: the first counts, the second is content all the same.
    {"fieldbus.xml", "</Fieldbus>", R"(<Bus name="Mes"/></Fieldbus>)", "fieldbus.xml: +"},
};

QJsonObject jsonOf(const QByteArray& bytes)
{
    return QJsonDocument::fromJson(bytes).object();
}

QStringList changesOf(const QByteArray& json)
{
    QStringList changes;
    for (const QJsonValue& value : jsonOf(json).value("changes").toArray()) {
        const QJsonObject change = value.toObject();
        const bool isLine = change["kind"] == "line";
        changes << change["group"].toString() + ": " +
                       (!isLine                                ? change["field"].toString()
                        : change["after"].toString().isEmpty() ? QStringLiteral("-")
                                                               : QStringLiteral("+"));
    }
    changes.sort();
    return changes;
}

} // namespace

class FieldbusctlTest : public QObject
{
    Q_OBJECT

private slots:
    void findsWhatItWasGiven_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("expected"); // in the output, or in the complaint
        const auto row = [](const char* name, const QStringList& arguments, int code, const char* expected) {
            QTest::newRow(name) << arguments << code << expected;
        };
        row("an export", {"show", "drive/" + First}, 0, "(export)");
        row("the newest of a drive", {"show", "drive"}, 0, "fidbus_20240402_161530 (export)");
        row("a slash behind it", {"show", "drive/"}, 0, "fidbus_20240402_161530 (export)");
        row("all of a drive", {"seal", "--all", "drive"}, 0, "fidbus_20240318_074211.sha256: 36 files");
        row("a controller", {"show", "robot"}, 0, "robot (controller's files)");
        row("a controller with FA", {"show", "upper", "--role", "eip"}, 0, "192.168.2.22");
        row("one role that is off", {"show", "robot", "--role", "profinet MASTER"}, 0,
            "PROFINET master: off");
        row("no such role", {"show", "robot", "--role", "Profibus"}, 2, "no role is called \"Profibus\"");
        row("nothing there", {"show", "nowhere"}, 2, "nowhere: there is no such folder");
        row("a file", {"show", "drive/" + First + "/fieldbus.xml"}, 2, "cannot be opened as a folder");
        row("an empty folder", {"show", "empty"}, 2, "holds no file of a bus configuration");
        row("a drive with links alone", {"show", "links"}, 2, "holds no file of a bus configuration");
        row("one of several is none", {"seal", "drive", "empty"}, 2, "empty: holds no file");
        row("no command", {}, 2, "A subcommand is required");
        row("no such command", {"shows", "drive"}, 2, "");
        row("no such option", {"show", "drive", "--colour"}, 2, "--colour");
        row("help", {"diff", "--help"}, 0, "Exit codes: 0");
        row("the factory is in order", {"check", "robot"}, 0, "robot: 5 of information");
        row("all at once", {"check", "-q", "-j", "3", "--all", "drive", "robot"}, 0,
            "robot: 5 of information");
        row("no such severity", {"check", "robot", "--fail-on", "fatal"}, 2, "--fail-on");
        row("no folder for the page", {"report", "robot", "-o", "nowhere/page.html"}, 2,
            "nowhere/page.html: cannot");
        row("nothing to list", {"iolist", "half"}, 2, "fieldbus_config.xml cannot be read");
        row("two forms at once", {"iolist", "robot", "--csv", "--json"}, 2, "excludes");
    }
    void findsWhatItWasGiven()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, expected);
        ConfigFolders folders;
        QVERIFY(folders.makeExport("drive/" + First) && folders.makeExport("drive/" + Second));
        QVERIFY(folders.makeController("robot") && folders.makeController("upper") &&
                folders.makeController("away"));
        QVERIFY(QDir(folders.path("upper")).rename("fa", "FA"));
        QVERIFY(folders.write(folders.path("half/fieldbus_config.xml"), "<FieldbusConfig>"));
        QVERIFY(QDir().mkpath(folders.path("empty")) && QDir().mkpath(folders.path("links")));
        QVERIFY(QFile::link(folders.path("drive/" + First), folders.path("links/fidbus_1")));
        QVERIFY(QFile::link(folders.path("away/application"), folders.path("links/application")));
        const ConfigFolders::Outcome outcome = folders.run(arguments);
        QTEST(outcome.code, "code");
        const QByteArray& told = outcome.code == 2 ? outcome.err : outcome.out;
        QVERIFY2(told.contains(expected.toUtf8()), told);
        QVERIFY2((outcome.code == 2 ? outcome.out : outcome.err).isEmpty(), outcome.err);
        QVERIFY2(!outcome.out.contains('\x1b'), "colours without a terminal");
    }

    void tellsEachChange_data()
    {
        QTest::addColumn<int>("edit");
        for (int i = 0; i < static_cast<int>(std::size(Edits)); ++i)
            QTest::newRow(Edits[i].change) << i;
    }
    void tellsEachChange()
    {
        QFETCH(int, edit);
        check({edit});
    }

    // Which edits were made, and nothing else.
    void tellsAnyChanges()
    {
        QRandomGenerator random(7);
        for (int round = 0; round < 12; ++round) {
            QVector<int> edits;
            for (int i = 0; i < static_cast<int>(std::size(Edits)); ++i) {
                if (random.bounded(3) == 0)
                    edits << i;
            }
            check(edits);
        }
    }

    void tellsChangesInWords_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QByteArray>("from");
        QTest::addColumn<QByteArray>("to");
        QTest::addColumn<QByteArray>("expected");
        const auto row = [](const char* name, const char* path, const char* from, const char* to,
                            const char* expected) {
            QTest::newRow(name) << path << QByteArray(from) << QByteArray(to) << QByteArray(expected);
        };
        row("a field", "fa/dns-1.cfg", "192.168.2.22", "192.168.2.30",
            "EtherNet/IP slave: IP address 192.168.2.22 -> 192.168.2.30\n");
        row("addresses that move", "fieldbus_config.xml",
            R"(<User type="Int" quantity="32" start="64" end="127"/>
				<User type="Float" quantity="16" start="128")",
            R"(<User type="Int" quantity="31" start="64" end="125"/>
				<User type="Float" quantity="16" start="126")",
            "mapping PROFINET slave, free, read only: Int 32 -> 31, addresses move\n");
        row("addresses alone", "fieldbus_config.xml", R"(start="128" end="191")", R"(start="126" end="189")",
            "mapping PROFINET slave, free, read only: Float addresses 128 to 191 -> 126 to 189\n");
        row("a value that goes", "mtcpMaster/mtcp_master.xml", "<SlaveIp>127.0.0.1</SlaveIp>", "",
            "Modbus TCP master: slave's IP address 127.0.0.1 -> not set\n");
        row("a line", "fa/modbus.cfg", "PORT 502", "PORT 1502",
            "fa/modbus.cfg: - PORT 502\nfa/modbus.cfg: + PORT 1502\n");
        row("half a file", "fieldbus.xml", "</Fieldbus>", "", "fieldbus.xml: there -> damaged\n");
        row("the date alone", "heartbeat.xml", "2024/03/18", "2024/03/19", "");
        row("the order alone", "fa/pfb.cfg", "INPUT_BYTES 192\nOUTPUT_BYTES 192",
            "OUTPUT_BYTES 192\r\n INPUT_BYTES 192", "");
        row("what a terminal would obey", "fa/modbus.cfg", "UNIT_ID 1\n", "UNIT_ID 1\n\x1b[2J\n",
            "fa/modbus.cfg: + \xEF\xBF\xBD[2J\n");
    }
    void tellsChangesInWords()
    {
        QFETCH(QString, path);
        QFETCH(QByteArray, from);
        QFETCH(QByteArray, to);
        QFETCH(QByteArray, expected);
        ConfigFolders folders;
        QVERIFY(folders.makeExport(First) && folders.makeExport(Second));
        QVERIFY(folders.edit(Second + '/' + path, from, to));
        const ConfigFolders::Outcome outcome = folders.run({"diff", First, Second});
        QCOMPARE(outcome.out, expected);
        QCOMPARE(outcome.code, expected.isEmpty() ? 0 : 1);
    }

    void comparesAnExportWithItsController()
    {
        ConfigFolders folders;
        QVERIFY(folders.makeExport(First) && folders.makeController("robot"));
        QCOMPARE(folders.run({"diff", First, "robot"}).code, 0);
        QVERIFY(QFile::remove(folders.path(First + "/rs232/rs232FileConfig.xml")));
        const ConfigFolders::Outcome outcome = folders.run({"diff", First, "robot"});
        QCOMPARE(outcome.out, QByteArray("rs232/rs232FileConfig.xml: missing -> there\n"));
    }

    // The exit code follows the worst folder and the line that was drawn; what is told follows the order
    // given.
    void checksAgainstALine_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<int>("clean");
        QTest::addColumn<int>("doubtful");
        QTest::addColumn<int>("wrong");
        QTest::newRow("information") << "information" << 1 << 1 << 1;
        QTest::newRow("warning") << "warning" << 0 << 1 << 1;
        QTest::newRow("error") << "error" << 0 << 0 << 1;
    }
    void checksAgainstALine()
    {
        QFETCH(QString, line);
        ConfigFolders folders;
        for (const char* name : {"clean", "doubtful", "wrong"})
            QVERIFY(folders.makeExport(name));
        QVERIFY(folders.edit("doubtful/mtcpMaster/mtcp_master.xml", "<TimeOut>1.500", "<TimeOut>9.000"));
        QVERIFY(folders.edit("wrong/fa/dnmst0.cfg", "MAC ID 14", "MAC ID 9"));
        QTEST(folders.run({"check", "--fail-on", line, "clean"}).code, "clean");
        QTEST(folders.run({"check", "--fail-on", line, "doubtful"}).code, "doubtful");
        QTEST(folders.run({"check", "--fail-on", line, "wrong"}).code, "wrong");
        const ConfigFolders::Outcome all =
            folders.run({"check", "-q", "--fail-on", line, "wrong", "clean", "doubtful"});
        QCOMPARE(all.code, 1);
        QVERIFY2(all.out.startsWith("wrong/fa/dnmst0.cfg:44: error FB401: DeviceNet master: "), all.out);
        QVERIFY2(all.out.indexOf("\nwrong: ") < all.out.indexOf("\nclean: "), all.out);
    }

    // Bit and address of a variable are where its range says they are.
    void listsEveryPoint_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<QByteArray>("expected");
        const auto row = [](const char* name, const QStringList& options, const QByteArray& expected) {
            QTest::newRow(name) << options << expected;
        };
        row("a range of Bools", {"--role", "eip"},
            "EtherNet/IP slave,read only,Bool,eip_ro_b[0..639],user,0,79,,byte,free");
        row("a Bool in a byte", {"--role", "eip", "--expand"},
            "EtherNet/IP slave,read only,Bool,eip_ro_b[17],user,2,2,1,byte,free");
        row("an Int", {"--role", "eip", "--expand"},
            "EtherNet/IP slave,read only,Int,eip_ro_i[39],user,158,159,,byte,free");
        row("a Float", {"--role", "eip", "--expand"},
            "EtherNet/IP slave,write only,Float,eip_wo_r[9],user,196,199,,byte,free");
        row("a Bool in a register", {"--expand"},
            "Modbus TCP slave,read only,Bool,mtcp_ro_b[33],user,40103,40103,1,register,free");
        row("a Float in registers", {"--expand"},
            "Modbus TCP master,write only,Float,mbc_wo_r[9],user,40149,40150,,register,free");
        row("a master's Bool", {"--expand"},
            "DeviceNet master,write only,Bool,dnm_wo_b[511],user,63,63,7,byte,free");
        row("system rows first", {"--mode", "fixed", "--role", "eip"},
            "unit,mode\r\nEtherNet/IP slave,read only,Bool,eip_sys_ro_b[0..63],system,0,7,,byte,fixed");
        row("a role that is off", {"--role", "pnm"},
            "PROFINET master,read only,Bool,pnm_ro_b[0..511],user,0,63,,byte,free");
    }
    void listsEveryPoint()
    {
        QFETCH(QStringList, options);
        QFETCH(QByteArray, expected);
        ConfigFolders folders;
        QVERIFY(folders.makeExport(First));
        const ConfigFolders::Outcome outcome = folders.run(QStringList{"iolist", "--csv", First} + options);
        QCOMPARE(outcome.code, 0);
        QVERIFY2(outcome.out.contains(expected + "\r\n"), outcome.out.left(2000));
        QVERIFY2(!outcome.out.contains("EtherCAT master"), "off, and not asked for");
    }

    void reportsOnOnePage()
    {
        ConfigFolders folders;
        QVERIFY(folders.makeExport(First));
        QVERIFY(folders.edit(First + "/pfs_description.xml", "Robot stopped",
                             "&lt;script&gt;alert(1)&lt;/script&gt;"));
        QVERIFY(folders.edit(First + "/fa/dnmst0.cfg", "MAC ID 14", "MAC ID 9"));
        QCOMPARE(folders.run({"report", First, "-o", "page.html"}).code, 0);
        const QByteArray page = ConfigFolders::read(folders.path("page.html"));
        for (const char* part :
             {"FB401", "192.168.2.22", "eip_ro_b[0..639]", "class=\"ruler\"", "&lt;script&gt;"})
            QVERIFY2(page.contains(part), part);
        for (const char* part : {"<script", "http:", "https:", "src=", "<link"})
            QVERIFY2(!page.contains(part), part);
        const QByteArray sum = QCryptographicHash::hash(
            ConfigFolders::read(folders.path(First + "/fieldbus.xml")), QCryptographicHash::Sha256);
        QVERIFY(page.contains(sum.toHex()));
        QCOMPARE(QDir(folders.path({})).entryList(QDir::Files), QStringList("page.html"));
    }

    void comparesAFleet()
    {
        ConfigFolders folders;
        for (const char* name : {"a", "b", "c"})
            QVERIFY(folders.makeExport(name));
        QVERIFY(folders.edit("b/fieldbus.xml", R"("Mes" enable="1")", R"("Mes" enable="0")"));
        QVERIFY(folders.edit("c/fa/dnmst0.cfg", "MAC ID 14", "MAC ID 9"));
        const ConfigFolders::Outcome outcome = folders.run({"fleet", "--json", "a", "b", "c"});
        QCOMPARE(outcome.code, 1);
        const QJsonArray robots = jsonOf(outcome.out)["robots"].toArray();
        QCOMPARE(robots.size(), 3);
        QCOMPARE(robots[0]["differs"].toArray(), QJsonArray());
        QCOMPARE(robots[1]["differs"].toArray(), QJsonArray{"MES server"});
        QVERIFY(robots[0]["roles"].toArray().contains("Mes") &&
                !robots[1]["roles"].toArray().contains("Mes"));
        QCOMPARE(robots[1]["errors"].toInt(), 0);
        QCOMPARE(robots[2]["differs"].toArray(), QJsonArray{"DeviceNet master, device 3"});
        QCOMPARE(robots[2]["errors"].toInt(), 1);
        QCOMPARE(folders.run({"fleet", "a", "a"}).code, 0);
    }

    void sealsAsSha256sumDoes()
    {
        ConfigFolders folders;
        QVERIFY(folders.makeExport(First));
        QVERIFY(folders.write(folders.path(First + "/back\\slash\nand line"), "x"));
        QCOMPARE(folders.run({"seal", First}).code, 0);
        const QStringList check = {"-c", "--strict", First + ".sha256"};
        QCOMPARE(folders.run(check, "sha256sum").code, 0);
        QCOMPARE(folders.run({"verify", First}).code, 0);

        QVERIFY(folders.edit(First + "/fa/pfb.cfg", "BOARD 0", "BOARD 1"));
        QVERIFY(QFile::remove(folders.path(First + "/heartbeat.xml")));
        QVERIFY(folders.write(folders.path(First + "/fa/new.cfg"), {}));
        const ConfigFolders::Outcome outcome = folders.run({"verify", First});
        QCOMPARE(outcome.code, 1);
        QCOMPARE(outcome.out, "changed " + First.toUtf8() + "/fa/pfb.cfg\nmissing " + First.toUtf8() +
                                  "/heartbeat.xml\nforeign " + First.toUtf8() + "/fa/new.cfg\n");
        QCOMPARE(folders.run(check, "sha256sum").code, 1);
    }

    void verifiesNoOtherSeal_data()
    {
        QTest::addColumn<QByteArray>("seal");
        QTest::newRow("none") << QByteArray();
        QTest::newRow("no sums") << QByteArray("nothing\n");
        QTest::newRow("of another folder") << QByteArray(64, 'a') + "  other/fieldbus.xml\n";
    }
    void verifiesNoOtherSeal()
    {
        QFETCH(QByteArray, seal);
        ConfigFolders folders;
        QVERIFY(folders.makeExport(First));
        if (!seal.isEmpty())
            QVERIFY(folders.write(folders.path(First + ".sha256"), seal));
        const ConfigFolders::Outcome outcome = folders.run({"verify", First});
        QCOMPARE(outcome.code, 2);
        QVERIFY(outcome.out.isEmpty() && !outcome.err.isEmpty());
    }

    void readsNoLink()
    {
        ConfigFolders folders;
        QVERIFY(folders.makeExport(First) && folders.makeExport(Second));
        const QString file = folders.path(Second + "/fa/dns-1.cfg");
        QVERIFY(QFile::remove(file) && QFile::link(folders.path(First + "/fa/dns-1.cfg"), file));
        const QString folder = folders.path(Second + "/free");
        QVERIFY(QDir(folder).removeRecursively() && QFile::link(folders.path(First + "/free"), folder));
        const QStringList changes = changesOf(folders.run({"diff", "--json", First, Second}).out);
        QCOMPARE(changes.size(), 8);
        QVERIFY(changes.contains("fa/dns-1.cfg: ") && changes.contains("free/dns_free.cfg: "));
    }

    // Whatever lies in a folder, the tool ends in an orderly way.
    void survivesAnything()
    {
        QRandomGenerator random(11);
        ConfigFolders folders;
        QVERIFY(folders.makeController("good"));
        for (int round = 0; round < 8; ++round) {
            const QString name = QString("bad%1").arg(round);
            QVERIFY(folders.makeController(name));
            for (const KnownFile& file : KnownFiles::all())
                damage(folders.path(name) + ConfigFolders::controllerPath(file), random);
            for (const QStringList& arguments :
                 {QStringList{"show", name}, QStringList{"show", "--json", name}, QStringList{"check", name},
                  QStringList{"fleet", "good", name}, QStringList{"iolist", "--expand", name},
                  QStringList{"report", name, "-o", "page.html"}, QStringList{"diff", "good", name},
                  QStringList{"diff", "--json", name, "good"}, QStringList{"seal", name},
                  QStringList{"verify", name}}) {
                const ConfigFolders::Outcome outcome = folders.run(arguments);
                QVERIFY2(outcome.code >= 0 && outcome.code <= 2, qPrintable(arguments.join(' ')));
            }
        }
    }

    void printsJson_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QStringList>("keys");
        QTest::newRow("show") << QStringList{First}
                              << QStringList{"folder", "others", "roles", "schema", "version"};
        QTest::newRow("diff") << QStringList{First, "robot"}
                              << QStringList{"a", "b", "changes", "schema", "version"};
        QTest::newRow("check") << QStringList{First, "robot"}
                               << QStringList{"failOn", "folders", "schema", "version"};
        QTest::newRow("iolist") << QStringList{First} << QStringList{"folder", "rows", "schema", "version"};
        QTest::newRow("report") << QStringList{First, "-o", "page.html"}
                                << QStringList{"bytes", "folder", "page", "schema", "version"};
        QTest::newRow("fleet") << QStringList{First, "robot"} << QStringList{"robots", "schema", "version"};
        QTest::newRow("seal") << QStringList{First} << QStringList{"folders", "schema", "version"};
        QTest::newRow("verify") << QStringList{First} << QStringList{"folders", "schema", "version"};
    }
    void printsJson()
    {
        QFETCH(QStringList, arguments);
        const QString command = QTest::currentDataTag();
        ConfigFolders folders;
        QVERIFY(folders.makeExport(First) && folders.makeController("robot"));
        folders.run({"seal", First});
        const ConfigFolders::Outcome outcome = folders.run(QStringList{command, "--json"} + arguments);
        const QJsonObject json = jsonOf(outcome.out);
        QTEST(json.keys(), "keys");
        QCOMPARE(outcome.out, QJsonDocument(json).toJson()); // also where rows are printed as they come
        QCOMPARE(json["schema"].toString(), "fieldbusctl/" + command);
        QCOMPARE(json["version"].toInt(), 1);
    }

    void coloursATerminalAlone_data()
    {
        QTest::addColumn<bool>("isTerminal");
        QTest::addColumn<QStringList>("environment");
        QTest::addColumn<bool>("isColoured");
        QTest::newRow("a terminal") << true << QStringList{"TERM=xterm"} << true;
        QTest::newRow("no colour wanted") << true << QStringList{"TERM=xterm", "NO_COLOR=1"} << false;
        QTest::newRow("empty is not set") << true << QStringList{"TERM=xterm", "NO_COLOR="} << true;
        QTest::newRow("a terminal without any") << true << QStringList{"TERM=dumb"} << false;
        QTest::newRow("a file") << false << QStringList{"TERM=xterm"} << false;
    }
    void coloursATerminalAlone()
    {
        QFETCH(bool, isTerminal);
        QFETCH(QStringList, environment);
        ConfigFolders folders;
        QVERIFY(folders.makeExport(First));
        const int terminal = ::posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK);
        QVERIFY(terminal >= 0 && ::grantpt(terminal) == 0 && ::unlockpt(terminal) == 0);
        const QString file = isTerminal ? QString(::ptsname(terminal)) : folders.path("told");
        // Open for as long as it is read, or what was written there is lost.
        QFile other(file);
        QVERIFY(other.open(QIODevice::ReadWrite));
        QProcess process;
        process.setEnvironment(environment);
        process.setStandardOutputFile(file);
        process.start(FIELDBUSCTL, {"check", "-q", folders.path(First)});
        QVERIFY(process.waitForFinished());
        char bytes[4096];
        const auto size =
            isTerminal ? ::read(terminal, bytes, sizeof bytes) : other.read(bytes, sizeof bytes);
        ::close(terminal);
        const QByteArray told(bytes, static_cast<int>(std::max<qint64>(size, 0)));
        QVERIFY2(told.contains("of information"), told);
        QTEST(told.contains("\x1b["), "isColoured");
    }

    void completes_data()
    {
        QTest::addColumn<QByteArray>("typed");
        QTest::addColumn<QByteArray>("offered");
        QTest::newRow("a command") << QByteArray("fieldbusctl s") << QByteArray("show seal");
        QTest::newRow("an option of a command")
            << QByteArray("fieldbusctl iolist --e") << QByteArray("--expand");
        QTest::newRow("a value") << QByteArray("fieldbusctl check --fail-on w") << QByteArray("warning");
        QTest::newRow("a file") << QByteArray("fieldbusctl show dri") << QByteArray();
    }
    void completes()
    {
        QFETCH(QByteArray, typed);
        ConfigFolders folders;
        const QString script = QStringLiteral(SOURCE_DIRECTORY "/fieldbusctl/fieldbusctl.bash");
        const QString program = QFileInfo(FIELDBUSCTL).path();
        const ConfigFolders::Outcome outcome = folders.run(
            {"--norc", "-c",
             "PATH=" + program + ":$PATH; source " + script + "; COMP_WORDS=(" + typed +
                 "); COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); _fieldbusctl; echo \"${COMPREPLY[*]}\""},
            "bash");
        QTEST(outcome.out.trimmed(), "offered");
    }

    void tellsWhenNothingCanBeWritten()
    {
        ConfigFolders folders;
        QVERIFY(folders.makeExport(First));
        QProcess process;
        process.setStandardOutputFile("/dev/full");
        process.start(FIELDBUSCTL, {"show", folders.path(First)});
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitCode(), 2);
        QVERIFY(process.readAllStandardError().contains("cannot be written"));
    }

    // What helps at the keyboard knows every command and its options.
    void isDocumented()
    {
        const QString source = QStringLiteral(SOURCE_DIRECTORY);
        const QByteArray manual = ConfigFolders::read(source + "/fieldbusctl/fieldbusctl.1");
        const QByteArray guide = ConfigFolders::read(source + "/docs/fieldbusctl.md");
        ConfigFolders folders;
        const QByteArray help = folders.run({"--help"}).out;
        const QList<QByteArray> lines = help.mid(help.indexOf("Subcommands:")).split('\n').mid(1);
        int commands = 0;
        for (const QByteArray& line : lines) {
            const QByteArray command = line.simplified().split(' ').first();
            if (!line.startsWith("  ") || command.isEmpty())
                continue;
            ++commands;
            QVERIFY2(manual.contains("fieldbusctl " + command), command);
            QVERIFY2(guide.contains("fieldbusctl " + command), command);
            for (const QByteArray& word : folders.run({command, "--help"}).out.simplified().split(' ')) {
                const QByteArray option = word.split(',').last();
                if (option.startsWith("--") && option != "--help")
                    QVERIFY2(manual.contains(QByteArray(option).replace("-", "\\-")), command + ' ' + option);
            }
        }
        QCOMPARE(commands, 8);
    }

private:
    static void check(const QVector<int>& edits)
    {
        ConfigFolders folders;
        QVERIFY(folders.makeExport(First) && folders.makeExport(Second));
        QStringList expected;
        for (const int edit : edits) {
            QVERIFY2(folders.edit(Second + '/' + Edits[edit].path, Edits[edit].from, Edits[edit].to),
                     Edits[edit].from);
            expected << Edits[edit].change;
        }
        expected.sort();
        for (const QStringList& pair : {QStringList{First, Second}, QStringList{Second, First}}) {
            const ConfigFolders::Outcome outcome = folders.run(QStringList{"diff", "--json"} + pair);
            QCOMPARE(outcome.code, edits.isEmpty() ? 0 : 1);
            QCOMPARE(changesOf(outcome.out), expected);
            // Backwards a line that went is one that came.
            for (QString& change : expected) {
                if (change.endsWith(": -"))
                    change.replace(change.size() - 1, 1, "+");
                else if (change.endsWith(": +"))
                    change.replace(change.size() - 1, 1, "-");
            }
            expected.sort();
        }
    }

    static void damage(const QString& path, QRandomGenerator& random)
    {
        QByteArray bytes = ConfigFolders::read(path);
        switch (random.bounded(8)) {
        case 0:
            bytes.truncate(random.bounded(bytes.size()));
            break;
        case 1:
            for (int i = 0; i < 20; ++i)
                bytes[random.bounded(bytes.size())] = static_cast<char>(random.bounded(256));
            break;
        case 2:
            bytes = bytes.repeated(3);
            break;
        case 3:
            bytes = QByteArray("<a>").repeated(100000);
            break;
        case 4:
            QFile::remove(path);
            QDir().mkpath(path);
            return;
        case 5:
            QFile::remove(path);
            ::mkfifo(QFile::encodeName(path), 0600);
            return;
        case 6:
            QFile::remove(path);
            QFile::link("/dev/zero", path);
            return;
        default:
            bytes.replace("quantity=\"", "quantity=\"9").replace("192.168", "999.168");
        }
        ConfigFolders::write(path, bytes);
    }
};

QTEST_GUILESS_MAIN(FieldbusctlTest)
#include "tst_fieldbusctl.moc"
