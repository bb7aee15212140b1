#include "LibFixture.h"
#include "Rows.h"

#include <pugixml.hpp>

#include <sstream>

namespace {

const QString Path = LibFixture::local("Fieldbus.cfg");

struct Flag
{
    const char* name;
    bool BusSwitchSet::*member;
};

constexpr Flag Flags[] = {
    {"Mes", &BusSwitchSet::Mes},
    {"ProfinetSlave", &BusSwitchSet::ProfinetSlave},
    {"FinsTcp", &BusSwitchSet::FinsTcp},
    {"EtherCatSlave", &BusSwitchSet::EtherCatSlave},
    {"EtherNetIPSlave", &BusSwitchSet::EtherNetIPSlave},
    {"EtherCatMaster", &BusSwitchSet::EtherCatMaster},
    {"DeviceNetSlave", &BusSwitchSet::DeviceNetSlave},
    {"ModbusTcpMaster", &BusSwitchSet::ModbusTcpMaster},
    {"FreeBus", &BusSwitchSet::FreeBus},
    {"EtherNetIPMaster", &BusSwitchSet::EtherNetIPMaster},
    {"ProfinetMaster", &BusSwitchSet::ProfinetMaster},
    {"DeviceNetMaster", &BusSwitchSet::DeviceNetMaster},
    {"listed", &BusSwitchSet::ModbusTcpMasterListed},
};

QString namesOf(const BusSwitchSet& switches)
{
    QStringList names;
    for (const Flag& flag : Flags) {
        if (switches.*flag.member)
            names << QLatin1String(flag.name);
    }
    return names.join(QLatin1Char(' '));
}

QByteArray entry(const QByteArray& name, const QByteArray& enable)
{
    return "<r name=\"" + name + "\"><enable>" + enable + "</enable></r>";
}

QByteArray file(const QByteArray& entries)
{
    return "<FieldbusSettingConfig>" + entries + "</FieldbusSettingConfig>";
}

} // namespace

class TestBusSwitchFile : public LibTest
{
    Q_OBJECT

private slots:
    void isRead_data()
    {
        const Rows<QByteArray, bool, QString, QString> row;
        // Before: all flags on. The PROFINET master's stays on whatever the file says.
        const char* all =
            "Mes ProfinetSlave FinsTcp EtherCatSlave EtherNetIPSlave EtherCatMaster DeviceNetSlave "
            "ModbusTcpMaster FreeBus EtherNetIPMaster ProfinetMaster DeviceNetMaster listed";
        QByteArray every;
        QByteArray lowerCase;
        for (const Flag& flag : Flags) {
            every += entry(flag.name, "1");
            lowerCase += entry(QByteArray(flag.name).toLower(), "1");
        }
        row("all on", file(every), true,
            "Mes ProfinetSlave FinsTcp EtherCatSlave EtherNetIPSlave EtherCatMaster DeviceNetSlave "
            "ModbusTcpMaster FreeBus EtherNetIPMaster ProfinetMaster DeviceNetMaster",
            all);
        row("lower case, two want their own", file(lowerCase), true,
            "Mes ProfinetSlave EtherCatSlave EtherNetIPSlave EtherCatMaster DeviceNetSlave ModbusTcpMaster "
            "FreeBus ProfinetMaster DeviceNetMaster",
            "Mes ProfinetSlave EtherCatSlave EtherNetIPSlave EtherCatMaster DeviceNetSlave ModbusTcpMaster "
            "FreeBus ProfinetMaster DeviceNetMaster listed");
        row("only 1 is on",
            file(entry("Mes", "2") + entry("FreeBus", "true") + entry("FinsTcp", "") +
                 "<x name=\"EtherCatSlave\"/>" + entry("DeviceNetSlave", " 1 ")),
            true, "DeviceNetSlave ProfinetMaster", "DeviceNetSlave ProfinetMaster");
        row("on once is on", file(entry("Mes", "1") + entry("Mes", "0")), true, "Mes ProfinetMaster",
            "Mes ProfinetMaster");
        row("the Modbus master listed but off", file(entry("xMODBUSTCPMASTERx", "0")), true, "ProfinetMaster",
            "ProfinetMaster listed");
        row("the PROFINET master off", file(entry("ProfinetMaster", "0")), true, "ProfinetMaster",
            "ProfinetMaster");
        row("unknown names, no name, other tags", file("<y><enable>1</enable></y>" + entry("Canopen", "1")),
            true, "ProfinetMaster", "ProfinetMaster");
        row("another root", "<Other>" + entry("Mes", "1") + "</Other>", true, "ProfinetMaster",
            "ProfinetMaster");
        row("cut short", file(every).left(200), false, all, all);
        row("empty", "", false, all, all);
    }

    void isRead()
    {
        const auto [content, isRead, own, import] = Rows<QByteArray, bool, QString, QString>::current();
        FieldbusSettingLib& lib = LibFixture::lib();
        for (const Flag& flag : Flags) {
            lib.busSwitches.*flag.member = true;
            lib.importSwitches.*flag.member = true;
        }
        QVERIFY(LibFixture::put(Path, content));
        QCOMPARE(lib.readFieldbusCfg(Path, false), isRead);
        QCOMPARE(lib.readFieldbusCfg(Path, true), isRead);
        QCOMPARE(namesOf(lib.busSwitches), own);
        QCOMPARE(namesOf(lib.importSwitches), import);
    }

    void setsAreApart()
    {
        FieldbusSettingLib& lib = LibFixture::lib();
        QVERIFY(LibFixture::put(Path, file(entry("ProfinetMaster", "1") + entry("Mes", "1"))));
        QVERIFY(lib.readFieldbusCfg(Path, true));
        QCOMPARE(namesOf(lib.busSwitches), QString());
        QVERIFY(LibFixture::put(Path, file(entry("FreeBus", "1"))));
        QVERIFY(lib.readFieldbusCfg(Path, false));
        QCOMPARE(namesOf(lib.busSwitches), QString("FreeBus"));
        QCOMPARE(namesOf(lib.importSwitches), QString("Mes ProfinetMaster"));
    }

    void isWritten_data()
    {
        const Rows<QByteArray, QByteArray> row;
        row("switched off, the rest as it is",
            "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<!-- manager -->\n<FieldbusSettingConfig>\n"
            "\t<b name=\"FreeBus\"><enable>1</enable></b>\n\t<a name=\"profinetSLAVE\" id=\"7\">\n"
            "\t\t<enable>1</enable>\n\t\t<note>M\xc3\xbcller &amp; S\xc3\xb6hne &lt;1&gt;</note>\n\t</a>\n"
            "</FieldbusSettingConfig>\n",
            "<FieldbusSettingConfig>\n<b name=\"FreeBus\">\n<enable>1</enable>\n</b>\n"
            "<a name=\"profinetSLAVE\" id=\"7\">\n<enable>0</enable>\n"
            "<note>M\xc3\xbcller &amp; S\xc3\xb6hne &lt;1&gt;</note>\n</a>\n</FieldbusSettingConfig>\n");
        row("no text, no element, twice",
            file("<a name=\"ProfinetSlave\"><enable/></a><a name=\"ProfinetSlave\"/>" +
                 entry("ProfinetSlave", "1") + entry("ProfinetMaster", "1")),
            "<FieldbusSettingConfig>\n<a name=\"ProfinetSlave\">\n<enable />\n</a>\n<a "
            "name=\"ProfinetSlave\" "
            "/>\n"
            "<r name=\"ProfinetSlave\">\n<enable>0</enable>\n</r>\n<r name=\"ProfinetMaster\">\n"
            "<enable>1</enable>\n</r>\n</FieldbusSettingConfig>\n");
        row("another root", "<Other><a name=\"ProfinetSlave\"><enable>1</enable></a></Other>",
            "<Other>\n<a name=\"ProfinetSlave\">\n<enable>1</enable>\n</a>\n</Other>\n");
    }

    void isWritten()
    {
        const auto [content, expected] = Rows<QByteArray, QByteArray>::current();
        for (const bool isImport : {false, true}) {
            QVERIFY(LibFixture::put(Path, content));
            QVERIFY(LibFixture::lib().writeFieldbusCfg(Path, isImport));
            QCOMPARE(LibFixture::get(Path), "<?xml version=\"1.0\"?>\n" + expected);
        }
    }

    // What the write does not own parses to the same tree, as any reader of XML sees it.
    void foreignContentKeepsItsTree()
    {
        const QByteArray content =
            file("<?manager keep?><a name='say \"on\" &amp; &lt;off&gt;' b=\"it's\"><enable>1</enable>"
                 "<deep><x y=\"&quot;\"/>text &#65; &amp;amp;</deep></a>" +
                 entry("Mes", "&#49;"));
        QVERIFY(LibFixture::put(Path, content));
        QVERIFY(LibFixture::lib().writeFieldbusCfg(Path, false));
        const auto dump = [](const QByteArray& bytes) {
            pugi::xml_document document;
            std::ostringstream out;
            const pugi::xml_parse_result result = document.load_buffer(
                bytes.constData(), std::size_t(bytes.size()), pugi::parse_default | pugi::parse_pi);
            document.save(out, "", pugi::format_raw | pugi::format_no_declaration);
            return result ? QByteArray::fromStdString(out.str()) : QByteArray(result.description());
        };
        QCOMPARE(dump(LibFixture::get(Path)), dump(content));
    }

    void failures()
    {
        FieldbusSettingLib& lib = LibFixture::lib();
        QVERIFY(!lib.readFieldbusCfg(Path, false));
        QVERIFY(!lib.writeFieldbusCfg(Path, false));
        QVERIFY(LibFixture::put(Path, "<FieldbusSettingConfig><a"));
        QVERIFY(!lib.writeFieldbusCfg(Path, false));
        QCOMPARE(LibFixture::get(Path), QByteArray("<FieldbusSettingConfig><a"));
        QVERIFY(!lib.writeFieldbusCfgToCtr()); // no local copy
        QVERIFY(m_fixture->link.stored.isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestBusSwitchFile)
#include "tst_busswitchfile.moc"
