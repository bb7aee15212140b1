#include "ControllerCopies.h"
#include "LibFixture.h"
#include "Rows.h"

// What the library makes of the controller's files as they come: templates that a transfer has damaged, and
// what is known of each file.
namespace {

const QString Target = LibFixture::local("target.cfg");
const QString Variant = QStringLiteral("/application/fidbus/free/pfb_free.cfg");

const QByteArray Override = "AXIS 1\nECAT_SLAVE_OFF 1 5 ;ANYBUS\n;ECAT_SLAVE_OFF 2 7;EIM_DEVICE\nAXIS 2\n";
const QByteArray Driver =
    "; driver\nIPADDR 1.2.3.4\nNETMASK 1\nPROFIBUS_ADDRESS 1\nRUN_ALWAYS\nLITTLE_ENDIAN\nEND\n";

using Read = std::function<bool(FieldbusSettingLib&, const QString&)>;

// A writer that edits the controller's file, and the read that goes before.
struct Writer
{
    const char* name;
    QString controller;
    ConfigFile file;
    Read read;
    std::function<bool(FieldbusSettingLib&)> write;
};

std::vector<Writer> writers()
{
    using Lib = FieldbusSettingLib;
    const QString override = QStringLiteral("/FA/override.cfg");
    const auto slaves = [](Lib& lib, const QString& path) { return lib.readEtherCatFile(path); };
    const auto masters = [](Lib& lib, const QString& path) { return lib.readPnmFile(path); };
    return {
        {"slave", override, ConfigFile::Override, slaves,
         [](Lib& lib) { return lib.writeEtherCatFile(Target); }},
        {"master", override, ConfigFile::Override, masters,
         [](Lib& lib) { return lib.writePnmFile(Target, 0); }},
        {"all on", override, ConfigFile::Override, masters,
         [](Lib& lib) { return lib.writeEipMFile(Target, 1); }},
        {"all off", override, ConfigFile::Override, masters,
         [](Lib& lib) { return lib.writeEtherCatMFile(Target, 2); }},
        {"device", override, ConfigFile::Override, slaves,
         [](Lib& lib) { return lib.writeOverrideFile(Target, "EIM_DEVICE"); }},
        {"pfb", "/FA/pfb.cfg", ConfigFile::PfbSlave,
         [](Lib& lib, const QString& path) { return lib.readPfbCfgFile(path); },
         [](Lib& lib) { return lib.writePfbCfgFile(Target); }},
        {"eip", "/FA/dns-1.cfg", ConfigFile::EipSlave,
         [](Lib& lib, const QString& path) { return lib.readEtherNetFile(path); },
         [](Lib& lib) { return lib.writeEtherNetFile(Target); }},
        {"pfb variant", Variant, ConfigFile::PfbFree, nullptr,
         [](Lib& lib) { return lib.writePfbFreeFixFile(Target, Variant); }},
        {"eip variant", Variant, ConfigFile::PfbFree, nullptr,
         [](Lib& lib) { return lib.writeEtherNetDnsFile(Target, Variant); }},
    };
}

const QByteArray& contentOf(const Writer& writer)
{
    return writer.file == ConfigFile::Override ? Override : Driver;
}

} // namespace

Q_DECLARE_METATYPE(Writer)
Q_DECLARE_METATYPE(ConfigFile)
Q_DECLARE_METATYPE(Read)

class TestTemplates : public LibTest
{
    Q_OBJECT

private slots:
    void aTemplateIsVerified_data()
    {
        // What the fetches bring: G good, H half of it, E nothing, N noise, C good with a line of others
        // changed. The last one comes again and again.
        const Rows<Writer, QByteArray, bool, int> row;
        for (const Writer& writer : writers()) {
            const bool isRead = writer.read != nullptr;
            const auto add = [&](const char* comes, bool written, int fetches) {
                row(QStringLiteral("%1: %2").arg(writer.name, comes), writer, comes, written, fetches);
            };
            add("G", true, isRead ? 1 : 2);
            add("HG", false, 2);
            add("GH", isRead, isRead ? 1 : 2);
            add("EG", false, 1);
            add("NG", false, 2);
            add("E", false, 1);
            add("C", true, 2);
            add("CG", false, 2);
            // What comes twice as the same piece of the file, or the same noise, is not what was read.
            if (isRead) {
                add("H", false, 2);
                add("N", false, 2);
            }
        }
    }
    void aTemplateIsVerified()
    {
        const auto [writer, comes, written, fetches] = Rows<Writer, QByteArray, bool, int>::current();
        FieldbusSettingLib& lib = LibFixture::lib();
        MemoryLink& link = m_fixture->link;
        const QByteArray good = contentOf(writer);
        if (writer.read) {
            const QString local = FileLocations::of(writer.file).local;
            QVERIFY(LibFixture::put(local, good) && writer.read(lib, local));
            QFile::remove(local);
        }
        QVERIFY(LibFixture::put(Target, "old"));
        const QMap<char, QByteArray> bytes = {{'G', good},
                                              {'H', good.left(good.size() / 2)},
                                              {'E', ""},
                                              {'N', QByteArray(good.size(), '\xa5')},
                                              {'C', good + "NEW 1\n"}};
        for (const char what : comes)
            link.next << bytes[what];
        link.files[writer.controller.toLower()] = bytes[comes.back()];

        QCOMPARE(writer.write(lib), written);
        QCOMPARE(LibFixture::get(Target) != "old", written);
        if (written)
            QCOMPARE(LibFixture::get(Target).contains("NEW 1"), comes.front() == 'C');
        QCOMPARE(lib.writeProblem() == WriteProblem::None, written);
        QCOMPARE(link.fetches, fetches);
        QCOMPARE(LibFixture::localFiles(), QStringList("target.cfg"));
    }

    void aLeftOverIsNeverUsed()
    {
        for (const char* name : {"pfb_temp.cfg", "dns_temp.cfg", "pfb_freeOrFix.cfg", "dns_fixOrFreeTemp.cfg",
                                 "override_temp.cfg"})
            QVERIFY(LibFixture::put(LibFixture::local(name), "RUN_ALWAYS\nECAT_SLAVE_OFF 2 1\n"));
        m_fixture->link.transfersFail = true;
        for (const Writer& writer : writers())
            QVERIFY2(!writer.write(LibFixture::lib()), writer.name);
        QCOMPARE(LibFixture::localFiles(), QStringList());
    }

    void copiesAreKnown()
    {
        ControllerCopies& copies = ControllerCopies::instance();
        FieldbusSettingLib& lib = LibFixture::lib();
        const FileLocation& location = FileLocations::of(ConfigFile::MesServer);
        const QByteArray file = "<TcpServerConfig><Port>1</Port></TcpServerConfig>";
        const int before = copies.version(ConfigFile::MesServer);
        QVERIFY(!copies.isRead(ConfigFile::MesServer));

        QVERIFY(LibFixture::put(location.local, file) && lib.readMesSetFile(location.local));
        QVERIFY(copies.isRead(ConfigFile::MesServer));
        QCOMPARE(copies.copy(ConfigFile::MesServer).bytes, file);
        QVERIFY(qAbs(copies.copy(ConfigFile::MesServer).readAt.secsTo(QDateTime::currentDateTime())) < 60);
        QCOMPARE(copies.version(ConfigFile::MesServer), before);

        // A file of another kind is read, as it always was, but it is not the controller's settings.
        QVERIFY(LibFixture::put(location.local, "<Other/>") && lib.readMesSetFile(location.local));
        QVERIFY(!copies.isRead(ConfigFile::MesServer));

        QVERIFY(LibFixture::put(location.local, file));
        QVERIFY(lib.sendFileToCtrl(location.local, location.controller.toUpper()));
        QCOMPARE(copies.version(ConfigFile::MesServer), before + 1);
        QCOMPARE(copies.copy(ConfigFile::MesServer).bytes, file);
        m_fixture->link.transfersFail = true;
        QVERIFY(!lib.sendFileToCtrl(location.local, location.controller));
        QCOMPARE(copies.version(location.controller), before + 2);
        copies.changed(location.controller);
        QCOMPARE(copies.version(ConfigFile::MesServer), before + 3);
        QVERIFY(!copies.copy(ConfigFile::MesServer).isKnown);
        FieldbusSettingLib::destroy();
        QVERIFY(!copies.copy(ConfigFile::MesServer).readAt.isValid());
        QCOMPARE(copies.version(ConfigFile::MesServer), before + 3);
    }

    void whatIsRecognised_data()
    {
        const Rows<ConfigFile, Read, QByteArray, bool> row;
        using Lib = FieldbusSettingLib;
        const auto pfb = [](Lib& lib, const QString& path) { return lib.readPfbCfgFile(path); };
        const auto eip = [](Lib& lib, const QString& path) { return lib.readEtherNetFile(path); };
        const auto master = [](Lib& lib, const QString& path) { return lib.readEimXMLFile(path); };
        const auto heartbeat = [](Lib& lib, const QString& path) {
            return lib.readHeartbeatDetectionFile(path);
        };
        const auto roles = [](Lib& lib, const QString& path) { return lib.readFieldbusCfg(path, false); };
        const auto scanList = [](Lib& lib, const QString& path) { return lib.readDeviceNetMasterFile(path); };
        const auto devices = [](Lib& lib, const QString& path) { return lib.readEtherCatFile(path); };
        row("pfb", ConfigFile::PfbSlave, pfb, ";DISABLE_COM_ALARM\n", true);
        row("pfb, noise", ConfigFile::PfbSlave, pfb, "\xa5\xa5", false);
        row("eip", ConfigFile::EipSlave, eip, "x\nBIG_ENDIAN\n", true);
        row("eip, noise", ConfigFile::EipSlave, eip, "\xa5\xa5", false);
        row("override", ConfigFile::Override, devices, "; no device\n;ecat_slave_off 1 1\n", true);
        row("override, noise", ConfigFile::Override, devices, "\xa5\n", false);
        row("master", ConfigFile::EipMaster, master,
            "<EipMasterCommunication><Group><x/></Group></EipMasterCommunication>", true);
        row("master, the twin's root", ConfigFile::EipMaster, master,
            "<PfnMasterCommunication><Group><x/></Group></PfnMasterCommunication>", false);
        row("heartbeat", ConfigFile::Heartbeat, heartbeat, "<Fidbus><Dnm/></Fidbus>", true);
        row("heartbeat, no bus", ConfigFile::Heartbeat, heartbeat, "<Fidbus><Other/></Fidbus>", false);
        row("roles", ConfigFile::BusSwitch, roles,
            "<FieldbusSettingConfig><a name='x'/></FieldbusSettingConfig>", true);
        row("roles, none", ConfigFile::BusSwitch, roles, "<Fieldbus><a name='Mes'/></Fieldbus>", false);
        const QByteArray device =
            "WS_ID 1\n;===================\n;   Device 1 MAC ID 5\nBLOCK_TO_RBX 2001 0 0\n";
        row("scan list", ConfigFile::DeviceNetMaster, scanList, device + "BLOCK_FROM_RBX 2001 0 0\n", true);
        row("scan list cut short", ConfigFile::DeviceNetMaster, scanList, device, false);
    }
    void whatIsRecognised()
    {
        const auto [file, read, content, recognised] = Rows<ConfigFile, Read, QByteArray, bool>::current();
        const QString local = FileLocations::of(file).local;
        QVERIFY(LibFixture::lib().checkFilePath(local) && LibFixture::put(local, content));
        QVERIFY(read(LibFixture::lib(), local));
        QCOMPARE(ControllerCopies::instance().isRead(file), recognised);
    }
};

QTEST_GUILESS_MAIN(TestTemplates)
#include "tst_templates.moc"
