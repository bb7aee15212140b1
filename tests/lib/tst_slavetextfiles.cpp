#include "LibFixture.h"
#include "Rows.h"

#include <QTest>

#include <functional>

namespace {

using Step = std::function<bool(FieldbusSettingLib&)>;

constexpr const char* FreePath = "/application/fidbus/free/free.cfg";

// Fills both records with values that no default has.
void setRecords(FieldbusSettingLib& lib)
{
    lib.pfbSlave = {"42", 1, "MIDDLE_BIG_ENDIAN"};
    lib.eipSlave = {"10.0.0.7", "255.0.0.0", "BIG_ENDIAN"};
}

const QString Target = LibFixture::local("target.cfg");

bool writePfb(FieldbusSettingLib& lib)
{
    return lib.writePfbCfgFile(Target);
}
bool writePfbFree(FieldbusSettingLib& lib)
{
    return lib.writePfbFreeFixFile(Target, FreePath);
}
bool writeEip(FieldbusSettingLib& lib)
{
    return lib.writeEtherNetFile(Target);
}
bool writeEipFree(FieldbusSettingLib& lib)
{
    return lib.writeEtherNetDnsFile(Target, FreePath);
}

} // namespace

Q_DECLARE_METATYPE(Step)

class TestSlaveTextFiles : public LibTest
{
    Q_OBJECT

private slots:
    void pfbIsReadUpToItsLines_data()
    {
        const Rows<QByteArray, QString, int, QString> row;
        row("all, byte order first",
            "RUN_ALWAYS\nLITTLE_ENDIAN\nPROFIBUS_ADDRESS 5    \t;x\n;DISABLE_COM_ALARM\n", "5", 1,
            "LITTLE_ENDIAN");
        row("byte order below both is not read",
            "PROFIBUS_ADDRESS 5\nDISABLE_COM_ALARM\nRUN_ALWAYS\nLITTLE_ENDIAN\n", "5", 0,
            "MIDDLE_BIG_ENDIAN");
        row("byte order below one is", "PROFIBUS_ADDRESS 5\nRUN_ALWAYS\nLITTLE_ENDIAN\n", "5", 1,
            "LITTLE_ENDIAN");
        row("byte order needs no RUN_ALWAYS", "BIG_ENDIAN", "42", 1, "BIG_ENDIAN");
        row("a middle byte order, indented, CRLF", "\t MIDDLE_LITTLE_ENDIAN \r\nPROFIBUS_ADDRESS 5\r\n", "5",
            1, "MIDDLE_LITTLE_ENDIAN");
        row("byte order with more on its line", "LITTLE_ENDIAN ;x\n;LITTLE_ENDIAN\nxLITTLE_ENDIAN\n", "42", 1,
            "MIDDLE_BIG_ENDIAN");
        row("lower case is something else", "little_endian\nprofibus_address 5\ndisable_com_alarm\n", "42", 1,
            "MIDDLE_BIG_ENDIAN");
        row("address twice: the last before the alarm",
            "PROFIBUS_ADDRESS 5\nPROFIBUS_ADDRESS 6\nDISABLE_COM_ALARM\n"
            "PROFIBUS_ADDRESS 7\n",
            "6", 0, "MIDDLE_BIG_ENDIAN");
        row("address in a comment counts", ";PROFIBUS_ADDRESS   9\n", "9", 1, "MIDDLE_BIG_ENDIAN");
        row("address without a value", "PROFIBUS_ADDRESS\nPROFIBUS_ADDRESS\t8\n", "42", 1,
            "MIDDLE_BIG_ENDIAN");
        row("only blanks part words", "PROFIBUS_ADDRESS 5\t;x\n", "5\t;x", 1, "MIDDLE_BIG_ENDIAN");
        row("bytes above 0x7f", "\xa0PROFIBUS_ADDRESS \xe4\xff\n", "\u00e4\u00ff", 1, "MIDDLE_BIG_ENDIAN");
        row("alarm: other lines end the read only",
            "PROFIBUS_ADDRESS 5\n; DISABLE_COM_ALARM\nDISABLE_COM_ALARM\n", "5", 1, "MIDDLE_BIG_ENDIAN");
        row("address and alarm on one line: address", "PROFIBUS_ADDRESS DISABLE_COM_ALARM\n",
            "DISABLE_COM_ALARM", 1, "MIDDLE_BIG_ENDIAN");
        row("no line of its own", rawBytes("\0\n;\n\r\n\n"), "42", 1, "MIDDLE_BIG_ENDIAN");
    }

    void pfbIsReadUpToItsLines()
    {
        const auto [content, address, alarm, endian] = Rows<QByteArray, QString, int, QString>::current();
        FieldbusSettingLib& lib = LibFixture::lib();
        setRecords(lib);
        const QString path = LibFixture::local("pfb.cfg");
        QVERIFY(LibFixture::put(path, content));
        QVERIFY(lib.readPfbCfgFile(path));
        QCOMPARE(lib.pfbSlave.ProfibusAddress, address);
        QCOMPARE(lib.pfbSlave.ComAlarmEnabled, alarm);
        QCOMPARE(lib.pfbSlave.ProfibusEndian, endian);
        QVERIFY(!QFile::exists(path));
    }

    void eipIsRead_data()
    {
        const Rows<QByteArray, QString, QString, QString> row;
        row("all, byte order last, CRLF",
            "IPADDR 192.168.2.22\r\n NETMASK  255.255.255.0 \r\nRUN_ALWAYS\r\nLITTLE_ENDIAN\r\n",
            "192.168.2.22", "255.255.255.0", "LITTLE_ENDIAN");
        row("tabs stay", "IPADDR\t1.2.3.4\n", "\t1.2.3.4", "255.0.0.0", "BIG_ENDIAN");
        row("a comment stays with the value", "IPADDR 1.2.3.4 ; IPADDR of ETH2\n", "1.2.3.4;ofETH2",
            "255.0.0.0", "BIG_ENDIAN");
        row("commented out, and twice", "IPADDR 1.2.3.4\n;IPADDR 5.6.7.8\n", ";5.6.7.8", "255.0.0.0",
            "BIG_ENDIAN");
        row("no value", "IPADDR\nNETMASK ", "", "", "BIG_ENDIAN");
        row("both on a line", "IPADDR 1 NETMASK 2\n", "1NETMASK2", "IPADDR12", "BIG_ENDIAN");
        row("lower case", "ipaddr 1.2.3.4\nnetmask 1\n", "10.0.0.7", "255.0.0.0", "BIG_ENDIAN");
        row("bytes above 0x7f", "IPADDR \xfc\n", "\u00fc", "255.0.0.0", "BIG_ENDIAN");
    }

    void eipIsRead()
    {
        const auto [content, address, mask, endian] = Rows<QByteArray, QString, QString, QString>::current();
        FieldbusSettingLib& lib = LibFixture::lib();
        setRecords(lib);
        const QString path = LibFixture::local("dns-1.cfg");
        QVERIFY(LibFixture::put(path, content));
        QVERIFY(lib.readEtherNetFile(path));
        QCOMPARE(lib.eipSlave.IPADDR, address);
        QCOMPARE(lib.eipSlave.NETMASK, mask);
        QCOMPARE(lib.eipSlave.EipEndian, endian);
        QCOMPARE(LibFixture::get(path), content);
    }

    void filesThatCannotBeRead()
    {
        FieldbusSettingLib& lib = LibFixture::lib();
        setRecords(lib);
        const QString empty = LibFixture::local("empty.cfg");
        QVERIFY(LibFixture::put(empty, ""));
        for (const QString& path : {empty, LibFixture::local("none.cfg"), LibFixture::local({})}) {
            QVERIFY(!lib.readPfbCfgFile(path));
            QVERIFY(!lib.readEtherNetFile(path));
        }
        QVERIFY(QFile::exists(empty));
        QCOMPARE(lib.pfbSlave.ProfibusAddress, QString("42"));
        QCOMPARE(lib.eipSlave.IPADDR, QString("10.0.0.7"));
    }

    void linesAreRewritten_data()
    {
        const Rows<Step, QByteArray, QByteArray> row;
        const QByteArray address =
            "PROFIBUS_ADDRESS 42    \t;Profibus node number (exclude dip-switch set)\n";

        row("pfb: every line of its own", writePfb,
            "; driver\n\n\tWATCHDOG 1\t;x \nPROFIBUS_ADDRESS "
            "5\nRUN_ALWAYS\nBIG_ENDIAN\nDISABLE_COM_ALARM\nEND\n",
            "; driver\n\nWATCHDOG 1\t;x\n" + address +
                "RUN_ALWAYS\nMIDDLE_BIG_ENDIAN\n;DISABLE_COM_ALARM\nEND\n");
        row("pfb: keywords in comments and twice", writePfb,
            "; the PROFIBUS_ADDRESS, not DISABLE_COM_ALARM\n;DISABLE_COM_ALARM\nDISABLE_COM_ALARM ;x\n",
            address + ";DISABLE_COM_ALARM\n;DISABLE_COM_ALARM\n");
        row(
            "pfb: the alarm switched off",
            [](FieldbusSettingLib& lib) {
                lib.pfbSlave.ComAlarmEnabled = 0;
                return writePfb(lib);
            },
            ";DISABLE_COM_ALARM", "DISABLE_COM_ALARM\n");
        row("pfb: lower case is not its own", writePfb, "profibus_address 5\nrun_always\nbig_endian\n",
            "profibus_address 5\nrun_always\nbig_endian\n");
        row("eip: every line of its own, CRLF", writeEip,
            ";\r\nIPADDR 1.2.3.4 ;old\r\n\tNETMASK\t1\r\nRUN_ALWAYS\r\n\r\n LITTLE_ENDIAN\r\nASSEMBLY 1 2",
            ";\nIPADDR 10.0.0.7\nNETMASK 255.0.0.0\nRUN_ALWAYS\nBIG_ENDIAN\n\nASSEMBLY 1 2\n");
        row("eip: the first keyword of a line decides", writeEip, "NETMASK IPADDR\n", "IPADDR 10.0.0.7\n");
        row(
            "eip: no port chosen",
            [](FieldbusSettingLib& lib) {
                lib.eipSlave.IPADDR.clear();
                return writeEip(lib);
            },
            "IPADDR 1.2.3.4\n", "IPADDR \n");

        // The byte order and everything that is nobody's, by each of the four.
        struct Writer
        {
            const char* name;
            bool (*write)(FieldbusSettingLib&);
            const char* endian;
        };
        for (const Writer& writer :
             {Writer{"pfb", writePfb, "MIDDLE_BIG_ENDIAN\n"},
              Writer{"pfb variant", writePfbFree, "MIDDLE_BIG_ENDIAN\n"},
              Writer{"eip", writeEip, "BIG_ENDIAN\n"}, Writer{"eip variant", writeEipFree, "BIG_ENDIAN\n"}}) {
            const auto common = [&](const char* name, const QByteArray& before, QByteArray after) {
                row(QStringLiteral("%1: %2").arg(writer.name, name), writer.write, before,
                    after.replace("{}", writer.endian));
            };
            common("no byte order after RUN_ALWAYS", "RUN_ALWAYS", "RUN_ALWAYS\n{}");
            common("no RUN_ALWAYS", "LITTLE_ENDIAN\nX\n", "LITTLE_ENDIAN\nX\n");
            common("RUN_ALWAYS twice",
                   "RUN_ALWAYS\nLITTLE_ENDIAN\nRUN_ALWAYS ;2\nMIDDLE_LITTLE_ENDIAN\nBIG_ENDIAN\n",
                   "RUN_ALWAYS\n{}RUN_ALWAYS ;2\n{}BIG_ENDIAN\n");
            common("two RUN_ALWAYS, one byte order", "RUN_ALWAYS\nRUN_ALWAYS\nLITTLE_ENDIAN\nX\n",
                   "RUN_ALWAYS\n{}RUN_ALWAYS\n{}X\n");
            common("a comment about byte order is taken for it",
                   ";RUN_ALWAYS\n; or BIG_ENDIAN\nLITTLE_ENDIAN\n", ";RUN_ALWAYS\n{}LITTLE_ENDIAN\n");
            common("bytes of any encoding", rawBytes(" \xa0\xff\0\x85 \x1b\xe4\r x\t\xa0 \r\n\xc3\xbc"),
                   rawBytes("\xa0\xff\0\x85 \x1b\xe4\r x\t\xa0\n\xc3\xbc\n"));
            common("a long line", QByteArray(300000, 'x') + "\n" + QByteArray(300000, ' '),
                   QByteArray(300000, 'x') + "\n\n");
        }
        row("pfb variant: other keywords are not its own", writePfbFree,
            "PROFIBUS_ADDRESS 5\nDISABLE_COM_ALARM\n", "PROFIBUS_ADDRESS 5\nDISABLE_COM_ALARM\n");
        row("eip variant: other keywords are not its own", writeEipFree, "IPADDR 5\nNETMASK\n",
            "IPADDR 5\nNETMASK\n");
    }

    void linesAreRewritten()
    {
        const auto [write, before, after] = Rows<Step, QByteArray, QByteArray>::current();
        setRecords(LibFixture::lib());
        for (const char* path : {"/fa/pfb.cfg", "/fa/dns-1.cfg", FreePath})
            m_fixture->link.files[path] = before;
        QVERIFY(LibFixture::put(Target, "an old and longer file that goes\n" + QByteArray(100, 'x')));
        QVERIFY(write(LibFixture::lib()));
        QCOMPARE(LibFixture::get(Target), after);
        QCOMPARE(LibFixture::localFiles(), QStringList("target.cfg"));
        QVERIFY(m_fixture->link.stored.isEmpty());

        // What was written is what the next write makes of it.
        const QByteArray written = LibFixture::get(Target);
        for (const char* path : {"/fa/pfb.cfg", "/fa/dns-1.cfg", FreePath})
            m_fixture->link.files[path] = written;
        QVERIFY(write(LibFixture::lib()));
        QCOMPARE(LibFixture::get(Target), written);
    }

    void valuesNeverMakeLines()
    {
        FieldbusSettingLib& lib = LibFixture::lib();
        lib.eipSlave = {"1\nRUN_ALWAYS", QString::fromUtf8("\xc3\xbc\xe2\x82\xac\r"), "BIG_ENDIAN"};
        m_fixture->link.files["/fa/dns-1.cfg"] = "IPADDR\nNETMASK\n";
        QVERIFY(lib.writeEtherNetFile(Target));
        QCOMPARE(LibFixture::get(Target), QByteArray("IPADDR 1 RUN_ALWAYS\nNETMASK \xfc? \n"));
    }

    void aFailedWriteLeavesTheTarget_data()
    {
        const Rows<Step> row;
        row("pfb", Step(writePfb));
        row("pfb variant", Step(writePfbFree));
        row("eip", Step(writeEip));
        row("eip variant", Step(writeEipFree));
    }

    void aFailedWriteLeavesTheTarget()
    {
        const auto [write] = Rows<Step>::current();
        QVERIFY(LibFixture::put(Target, "old"));
        m_fixture->link.transfersFail = true;
        QVERIFY(!write(LibFixture::lib()));
        QCOMPARE(LibFixture::get(Target), QByteArray("old"));

        m_fixture->link.transfersFail = false;
        for (const char* path : {"/fa/pfb.cfg", "/fa/dns-1.cfg", FreePath})
            m_fixture->link.files[path] = "new";
        QVERIFY(QFile::remove(Target) && QDir().mkdir(Target));
        QVERIFY(!write(LibFixture::lib()));
        QCOMPARE(LibFixture::localFiles(), QStringList("target.cfg"));
    }
};

QTEST_GUILESS_MAIN(TestSlaveTextFiles)
#include "tst_slavetextfiles.moc"
