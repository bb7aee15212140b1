#include "LibFixture.h"
#include "Rows.h"

namespace {

const QString Path = LibFixture::local("override.cfg");
const QString CtrlPath = QStringLiteral("/fa/override.cfg"); // the memory link's spelling
const QString EnableVariable = QStringLiteral("ifidbus.ethcat_enable");

using Reader = bool (FieldbusSettingLib::*)(QString);
using MasterWriter = bool (FieldbusSettingLib::*)(QString, int);

struct Family
{
    Reader read;
    MasterWriter write;
    OverrideRecord FieldbusSettingLib::*record;
};

constexpr Family Masters[] = {
    {&FieldbusSettingLib::readEipMFile, &FieldbusSettingLib::writeEipMFile,
     &FieldbusSettingLib::eipMasterOverride},
    {&FieldbusSettingLib::readEtherCatMFile, &FieldbusSettingLib::writeEtherCatMFile,
     &FieldbusSettingLib::etherCatMasterOverride},
    {&FieldbusSettingLib::readPnmFile, &FieldbusSettingLib::writePnmFile,
     &FieldbusSettingLib::pfnMasterOverride},
};

// An entry a line: "off" or "on", slot, number, name.
QString entriesOf(const OverrideRecord& record)
{
    QStringList entries;
    for (int i = 0; i < record.count; ++i) {
        const OverrideEntry& entry = record.entries[static_cast<std::size_t>(i)];
        entries << QStringLiteral("%1 %2 %3 [%4]")
                       .arg(entry.off ? "off" : "on")
                       .arg(entry.slot)
                       .arg(entry.number)
                       .arg(entry.name);
    }
    return entries.join(QLatin1Char('\n'));
}

QByteArray directives(int first, int last, const QByteArray& before)
{
    QByteArray lines;
    for (int number = first; number <= last; ++number)
        lines += before + QByteArray::number(number) + "\n";
    return lines;
}

enum Operation {
    Mode0, // master: read, write the record
    Mode1,
    Mode2,
    Flipped, // as the first, with every activation changed
    Slave,   // read, write the record of the EtherCAT slave
    SlaveFlipped,
    Key, // take EIM_DEVICE out of use
};

bool write(FieldbusSettingLib& lib, const Family& master, int operation)
{
    const auto flip = [](OverrideRecord& record) {
        for (OverrideEntry& entry : record.entries)
            entry.off = !entry.off;
    };
    switch (operation) {
    case Flipped:
        flip(lib.*master.record);
        return (lib.*master.write)(Path, 0);
    case SlaveFlipped:
        flip(lib.etherCatSlaveOverride);
        return lib.writeEtherCatFile(Path);
    case Slave:
        return lib.writeEtherCatFile(Path);
    case Key:
        return lib.writeOverrideFile(Path, "EIM_DEVICE");
    default:
        return (lib.*master.write)(Path, operation);
    }
}

} // namespace

class TestOverrideFile : public LibTest
{
    Q_OBJECT

private slots:
    void mastersAreRead_data()
    {
        const Rows<QByteArray, QString> row;
        row("four tokens, active", "ECAT_SLAVE_OFF 2 7 ;eim\n", "on 2 7 [EIM]");
        row("four tokens, commented, lower case", ";ecat_slave_off 2 7 ;eim\n", "off 2 7 [EIM]");
        row("three tokens with a name", "ECAT_SLAVE_OFF 2 7;eim\n", "on 2 7 [EIM]");
        row("no name", ";ECAT_SLAVE_OFF 2 7\n", "off 2 7 []");
        row("a semicolon without a name", "ECAT_SLAVE_OFF 2 7;\n", "on 2 7 []");
        row("more blanks", "  ECAT_SLAVE_OFF   2   7   ;eim  \n", "on 2 7 [EIM]");
        row("a tab before the name", "ECAT_SLAVE_OFF 2 7\t;eim\n", "on 2 7 [EIM]");
        row("tabs between the tokens select nothing", "ECAT_SLAVE_OFF\t2\t7\n", "");
        row("CRLF", "ECAT_SLAVE_OFF 2 7\r\n;ECAT_SLAVE_OFF 2 8;a\r\n", "on 2 7 []\noff 2 8 [A]");
        row("no last newline", ";ECAT_SLAVE_OFF 2 7", "off 2 7 []");
        row("a fourth token that is no comment", "ECAT_SLAVE_OFF 2 7 eim\n", "on 2 7 []");
        row("the first character goes, semicolon or not", "ECAT_SLAVE_OFF 2 7 x;y\n", "on 2 7 [;Y]");
        row("UTF-8", "ECAT_SLAVE_OFF 2 7;\u00e4b\n", "on 2 7 [\u00c4B]");
        row("another encoding", "ECAT_SLAVE_OFF 2 7;\xe4z\n", "on 2 7 [\u00c4Z]");
        row("the other slot", "ECAT_SLAVE_OFF 1 7\n", "");
        row("the other slot, but device 2", ";ECAT_SLAVE_OFF 1 2 ;x\n", "off 1 2 [X]");
        row("largest number", "ECAT_SLAVE_OFF 2 4294967295\n", "on 2 4294967295 []");
        row("a number beyond", "ECAT_SLAVE_OFF 2 4294967296;x\n", "on 2 0 [X]");
        row("negative, and a word for the slot", "ECAT_SLAVE_OFF x 2 -1\n", "on 0 2 []");
        row("five tokens", ";ECAT_SLAVE_OFF 2 7 ;a b\n", "off 2 0 []");
        row("two tokens", "ECAT_SLAVE_OFF 2 \n", "on 2 0 []");
        row("prose takes an entry", "; see ECAT_SLAVE_OFF 2 above\nECAT_SLAVE_OFF 2 7\n",
            "on 0 0 []\non 2 7 []");
        row("nothing", "", "");
        row("no lines", rawBytes("\0\n\r\n\n \n"), "");
    }

    void mastersAreRead()
    {
        const auto [content, entries] = Rows<QByteArray, QString>::current();
        QVERIFY(LibFixture::put(Path, content));
        for (const Family& family : Masters) {
            QVERIFY((LibFixture::lib().*family.read)(Path));
            QCOMPARE(entriesOf(LibFixture::lib().*family.record), entries);
        }
    }

    void slaveIsRead_data()
    {
        const Rows<QByteArray, QString, bool, bool, bool> row;
        QStringList twenty;
        for (int number = 1; number <= 20; ++number)
            twenty << QStringLiteral("on 1 %1 []").arg(number);
        row("the module in use", ";ECAT_SLAVE_OFF 1 5 ;anybus\n", "off 1 5 [ANYBUS]", true, false, false);
        row("the module switched off", "ECAT_SLAVE_OFF 1 5 ;ANYBUS\n", "on 1 5 [ANYBUS]", false, false,
            false);
        row("another device in use", ";ECAT_SLAVE_OFF 1 5 ;ANYBUS2\n", "off 1 5 [ANYBUS2]", false, false,
            false);
        row("both master devices, any case, anywhere",
            ";ecat_slave_off 2 1;x eim_device\nsee ;ECAT_SLAVE_OFF 2 2 ;Pnm_Device\n", "", false, true, true);
        row("a master device behind the 20th",
            directives(1, 21, "ECAT_SLAVE_OFF 1 ") + ";ECAT_SLAVE_OFF 2 1;EIM_DEVICE",
            qPrintable(twenty.join(QLatin1Char('\n'))), false, true, false);
        row("switched off", "ECAT_SLAVE_OFF 2 1;EIM_DEVICE\nECAT_SLAVE_OFF 2 2;PNM_DEVICE\n", "", false,
            false, false);
        row("in the slave's slot", ";ECAT_SLAVE_OFF 1 1;EIM_DEVICE\n", "off 1 1 [EIM_DEVICE]", false, false,
            false);
        row("device 1 of slot 2", ";ECAT_SLAVE_OFF 2 1 ;PNM_DEVICE\n", "off 2 1 [PNM_DEVICE]", false, false,
            true);
        row("nothing", "", "", false, false, false);
    }

    void slaveIsRead()
    {
        const auto [content, entries, enabled, eim, pnm] =
            Rows<QByteArray, QString, bool, bool, bool>::current();
        FieldbusSettingLib& lib = LibFixture::lib();
        // What an earlier file said is over.
        QVERIFY(LibFixture::put(Path, ";ECAT_SLAVE_OFF 2 1 EIM_DEVICE PNM_DEVICE\n;ECAT_SLAVE_OFF 1 9\n"));
        QVERIFY(lib.readEtherCatFile(Path) && lib.masterDevices.EIM_DEVICE && lib.masterDevices.PNM_DEVICE);
        lib.set_ifidbus_ethcat_enable(true);

        QVERIFY(LibFixture::put(Path, content));
        QVERIFY(lib.readEtherCatFile(Path));
        QCOMPARE(entriesOf(lib.etherCatSlaveOverride), entries);
        QCOMPARE(m_fixture->link.readVariable(EnableVariable, 0) != 0.0, enabled);
        QCOMPARE(lib.masterDevices.EIM_DEVICE, eim);
        QCOMPARE(lib.masterDevices.PNM_DEVICE, pnm);
    }

    void whatIsNotUnderstoodStaysAsItWas()
    {
        FieldbusSettingLib& lib = LibFixture::lib();
        QVERIFY(
            LibFixture::put(Path, ";ECAT_SLAVE_OFF 2 7;a\nECAT_SLAVE_OFF 2 8;b\n;ECAT_SLAVE_OFF 2 9;c\n"));
        QVERIFY(lib.readEipMFile(Path));
        QVERIFY(LibFixture::put(Path, "ECAT_SLAVE_OFF 2 x;y\nprose on ECAT_SLAVE_OFF 2 z z\n"));
        QVERIFY(lib.readEipMFile(Path));
        QCOMPARE(entriesOf(lib.eipMasterOverride), QString("on 2 7 [Y]\non 2 8 [B]"));
        QCOMPARE(lib.eipMasterOverride.entries[2].name, QString("C")); // beyond the count: of the file before

        QVERIFY(!lib.readEipMFile(LibFixture::local("missing.cfg")));
        QCOMPARE(lib.eipMasterOverride.count, 2);
        QVERIFY(LibFixture::put(Path, directives(1, 21, "ECAT_SLAVE_OFF 2 ")));
        QVERIFY(lib.readEipMFile(Path));
        QCOMPARE(lib.eipMasterOverride.count, 20);
        QCOMPARE(lib.eipMasterOverride.entries[19].number, 20U);
    }

    void isWritten_data()
    {
        const Rows<int, QByteArray, QByteArray> row;
        const auto same = [row](const char* name, Operation operation, const QByteArray& content) {
            row(name, operation, content, content);
        };
        const QByteArray others = rawBytes("; M\xfcller \xd6l\t\0\r\nECAT_SLAVE_ON 2 7\n\tLINE 2 \n\r\n\n;");

        row("0: four tokens", Mode0, "ECAT_SLAVE_OFF 2 7 ;eim\n", "ECAT_SLAVE_OFF 2 7;EIM\n");
        row("0: three tokens, lower case", Mode0, ";ecat_slave_off  2 07;eim\n", ";ECAT_SLAVE_OFF 2 7;EIM\n");
        same("0: no name", Mode0, "ECAT_SLAVE_OFF 2 7\n;ECAT_SLAVE_OFF 2 8\n");
        row("0: a tab before the name", Mode0, "ECAT_SLAVE_OFF 2 7\t;a\n", "ECAT_SLAVE_OFF 2 7;A\n");
        same("0: tabs between the tokens", Mode0, "ECAT_SLAVE_OFF\t2\t7\n");
        row("0: CRLF, no last newline", Mode0, "x\r\nECAT_SLAVE_OFF 2 7 ;a\r\ny",
            "x\r\nECAT_SLAVE_OFF 2 7;A\r\ny\n");
        same("0: another encoding", Mode0, "ECAT_SLAVE_OFF 2 7;\x83\x79z\xa0\n");
        row("0: UTF-8", Mode0, "ECAT_SLAVE_OFF 2 7;\xc3\xa4\n", "ECAT_SLAVE_OFF 2 7;\xc3\x84\n");
        row("0: other lines", Mode0, others, others + "\n");
        same("0: prose", Mode0, "; put ECAT_SLAVE_OFF 2 x\n# ecat_slave_off 2 7\n");
        same("0: the other slot", Mode0, ";ECAT_SLAVE_OFF 1 7 ;a\n");
        row("0: device 2 of the other slot", Mode0, "ECAT_SLAVE_OFF 1 2 ;a\n", "ECAT_SLAVE_OFF 1 2;A\n");
        same("0: a master's device", Mode0, ";ECAT_SLAVE_OFF 2 7;EIM_DEVICE\n");
        row("0, changed: prose takes its entry", Flipped, "; ECAT_SLAVE_OFF 2 x\nECAT_SLAVE_OFF 2 7\n",
            "; ECAT_SLAVE_OFF 2 x\n;ECAT_SLAVE_OFF 2 7\n");
        row("0, changed: not understood", Flipped,
            "ECAT_SLAVE_OFF 2 7 ;a b\n;ecat_slave_off 2 x7;a\n  ECAT_SLAVE_OFF  2 1 2 3\n",
            ";ECAT_SLAVE_OFF 2 7 ;a b\necat_slave_off 2 x7;a\n  ;ECAT_SLAVE_OFF  2 1 2 3\n");
        row("0, changed: the 21st stays", Flipped, directives(1, 21, "ECAT_SLAVE_OFF 2 "),
            directives(1, 20, ";ECAT_SLAVE_OFF 2 ") + "ECAT_SLAVE_OFF 2 21\n");

        row("1: switched on", Mode1, "ECAT_SLAVE_OFF 2 7 ;a b\r\necat_slave_off  2 x\r\n",
            ";ECAT_SLAVE_OFF 2 7 ;a b\r\n;ecat_slave_off  2 x\r\n");
        row("1: behind blanks", Mode1, "  ECAT_SLAVE_OFF 2 7\n", ";  ECAT_SLAVE_OFF 2 7\n");
        row("1: behind a tab", Mode1, "\tECAT_SLAVE_OFF 2 7\n", ";\tECAT_SLAVE_OFF 2 7\n");
        same("1: on already, prose, tabs, the other slot", Mode1,
             ";ECAT_SLAVE_OFF 2 7\nsee ECAT_SLAVE_OFF 2 7\nECAT_SLAVE_OFF\t2\t7\nECAT_SLAVE_OFF 1 7\n");
        row("1: device 2 of the other slot", Mode1, "ECAT_SLAVE_OFF 1 2 \n", ";ECAT_SLAVE_OFF 1 2 \n");
        row("1: beyond 20", Mode1, directives(1, 30, "ECAT_SLAVE_OFF 2 "),
            directives(1, 30, ";ECAT_SLAVE_OFF 2 "));
        row("1: other lines", Mode1, others, others + "\n");

        row("2: switched off", Mode2, ";ECAT_SLAVE_OFF 2 7 ;a  b\r\n ;ecat_slave_off  2 2 x",
            "ECAT_SLAVE_OFF 2 7 ;a  b\r\nECAT_SLAVE_OFF 2 2 x\n");
        row("2: the second part ends at the next slot", Mode2, ";ECAT_SLAVE_OFF 2 7 ;a 2 b\n",
            "ECAT_SLAVE_OFF 2 7 ;a\n");
        same("2: off already, prose, tabs, the other slot", Mode2,
             "ECAT_SLAVE_OFF 2 7 ;x\n; see ECAT_SLAVE_OFF 2 7\n; ECAT_SLAVE_OFF (slot 2 "
             "only)\n;ECAT_SLAVE_OFF\t2\t7\n;ECAT_SLAVE_OFF 1 7\n");
        row("2: commented out in other ways", Mode2,
            "; ECAT_SLAVE_OFF 2 7 ;a\n;;ECAT_SLAVE_OFF 2 8\n\t;ECAT_SLAVE_OFF 2 9\n",
            "ECAT_SLAVE_OFF 2 7 ;a\nECAT_SLAVE_OFF 2 8\nECAT_SLAVE_OFF 2 9\n");
        row("2: beyond 20", Mode2, directives(1, 30, ";ECAT_SLAVE_OFF 2 "),
            directives(1, 30, "ECAT_SLAVE_OFF 2 "));
        // Selected by its words like any other: it has always been edited so.
        row("2: device 2 of the other slot", Mode2, ";ECAT_SLAVE_OFF 1 2 ;a\n", "ECAT_SLAVE_OFF 2 ;a\n");
        row("2: other lines", Mode2, others, others + "\n");

        row("slave: a blank before the name", Slave, ";ecat_slave_off 1 5;anybus\nECAT_SLAVE_OFF 1 6\n",
            ";ECAT_SLAVE_OFF 1 5 ;ANYBUS\nECAT_SLAVE_OFF 1 6\n");
        row("slave: a line of both slots", Slave, ";ECAT_SLAVE_OFF 1 2 ;a\n;ECAT_SLAVE_OFF 2 1 ;b\n",
            ";ECAT_SLAVE_OFF 1 2 ;A\n;ECAT_SLAVE_OFF 2 1 ;B\n");
        row("slave, changed", SlaveFlipped,
            "ECAT_SLAVE_OFF 1 5 ;A\r\n;ECAT_SLAVE_OFF 2 5 ;b\n;ECAT_SLAVE_OFF 1 x y z",
            ";ECAT_SLAVE_OFF 1 5 ;A\r\n;ECAT_SLAVE_OFF 2 5 ;b\nECAT_SLAVE_OFF 1 x y z\n");
        row("slave: other lines", Slave, others, others + "\n");

        row("device: out of use, white space goes", Key, ";ecat_slave_off\t2 7 ;EIM_DEVICE x\r\n",
            "ECAT_SLAVE_OFF 2 7;EIM_DEVICEx\r\n");
        row("device: commented out twice, and of the other slot", Key,
            ";;ECAT_SLAVE_OFF 2 7;EIM_DEVICE\n;ECAT_SLAVE_OFF 1 2 ;EIM_DEVICE\n",
            "ECAT_SLAVE_OFF 2 7;EIM_DEVICE\nECAT_SLAVE_OFF 2 ;EIM_DEVICE\n");
        row("device: cut at the next 2", Key, ";ECAT_SLAVE_OFF 2 1021;EIM_DEVICE\n", "ECAT_SLAVE_OFF 2 10\n");
        same("device: no 2", Key, ";ECAT_SLAVE_OFF 1 7;EIM_DEVICE\n");
        same("device: not this one, other case, off already, prose", Key,
             ";ECAT_SLAVE_OFF 2 7;PNM_DEVICE\n;ECAT_SLAVE_OFF 2 7;eim_device\nECAT_SLAVE_OFF 2 7;EIM_DEVICE\n"
             "; ECAT_SLAVE_OFF 2 is EIM_DEVICE\n");
        row("device: other lines", Key, others, others + "\n");
        same("nothing", Mode0, "");
    }

    void isWritten()
    {
        const auto [operation, content, expected] = Rows<int, QByteArray, QByteArray>::current();
        FieldbusSettingLib& lib = LibFixture::lib();
        m_fixture->link.files[CtrlPath] = content;
        for (const Family& master : Masters) {
            QVERIFY(LibFixture::put(Path, content));
            QVERIFY((lib.*master.read)(Path) && lib.readEtherCatFile(Path));
            QVERIFY(write(lib, master, operation));
            QCOMPARE(LibFixture::get(Path), expected);
        }
        QCOMPARE(LibFixture::localFiles(), QStringList("override.cfg"));
        QCOMPARE(m_fixture->link.files[CtrlPath], content);
    }

    void familiesAreApart()
    {
        FieldbusSettingLib& lib = LibFixture::lib();
        const QByteArray content = "ECAT_SLAVE_OFF 2 7\n";
        m_fixture->link.files[CtrlPath] = content;
        QVERIFY(LibFixture::put(Path, content));
        for (const Family& family : Masters)
            QVERIFY((lib.*family.read)(Path));
        for (const Family& changed : Masters) {
            (lib.*changed.record).entries[0].off = true;
            for (const Family& family : Masters) {
                QVERIFY((lib.*family.write)(Path, 0));
                QCOMPARE(LibFixture::get(Path), (family.record == changed.record ? ";" : "") + content);
            }
            (lib.*changed.record).entries[0].off = false;
        }
    }

    void isMatchedNotCounted_data()
    {
        const Rows<QByteArray, bool> row;
        row("as it was read", "A\nECAT_SLAVE_OFF 2 7 ;a\n;ECAT_SLAVE_OFF 2 8\nECAT_SLAVE_OFF 1 1\n", true);
        row("as it was written", ";ECAT_SLAVE_OFF 2 7;A\nECAT_SLAVE_OFF 2 8\n", true);
        row("lines of others changed",
            "NEW\r\nECAT_SLAVE_OFF 2 7 ;a\n;ECAT_SLAVE_OFF 1 1\n;ECAT_SLAVE_OFF 2 8\nB\n", true);
        row("a line before", "ECAT_SLAVE_OFF 2 6\nECAT_SLAVE_OFF 2 7 ;a\n;ECAT_SLAVE_OFF 2 8\n", false);
        row("a line behind", "ECAT_SLAVE_OFF 2 7 ;a\n;ECAT_SLAVE_OFF 2 8\n;ECAT_SLAVE_OFF 2 9\n", false);
        row("a line gone", "ECAT_SLAVE_OFF 2 7 ;a\n", false);
        row("another order", ";ECAT_SLAVE_OFF 2 8\nECAT_SLAVE_OFF 2 7 ;a\n", false);
        row("an activation", ";ECAT_SLAVE_OFF 2 7 ;a\n;ECAT_SLAVE_OFF 2 8\n", false);
        row("a name", "ECAT_SLAVE_OFF 2 7 ;b\n;ECAT_SLAVE_OFF 2 8\n", false);
    }

    void isMatchedNotCounted()
    {
        const auto [now, fits] = Rows<QByteArray, bool>::current();
        FieldbusSettingLib& lib = LibFixture::lib();
        const QByteArray before = "A\nECAT_SLAVE_OFF 2 7 ;a\n;ECAT_SLAVE_OFF 2 8\nECAT_SLAVE_OFF 1 1\n";
        m_fixture->link.files[CtrlPath] = before;
        QVERIFY(LibFixture::put(Path, before));
        QVERIFY(lib.readEipMFile(Path));
        for (OverrideEntry& entry : lib.eipMasterOverride.entries)
            entry.off = !entry.off;
        QVERIFY(lib.writeEipMFile(Path, 0));
        const QByteArray written = LibFixture::get(Path);
        QCOMPARE(written, QByteArray("A\n;ECAT_SLAVE_OFF 2 7;A\nECAT_SLAVE_OFF 2 8\nECAT_SLAVE_OFF 1 1\n"));

        m_fixture->link.files[CtrlPath] = now;
        QCOMPARE(lib.writeEipMFile(Path, 0), fits);
        QCOMPARE(lib.writeProblem(), fits ? WriteProblem::None : WriteProblem::ChangedOnController);
        if (!fits)
            QCOMPARE(LibFixture::get(Path), written);
    }

    void failures()
    {
        FieldbusSettingLib& lib = LibFixture::lib();
        QVERIFY(LibFixture::put(Path, "old"));
        m_fixture->link.transfersFail = true;
        QVERIFY(!lib.writeEtherCatMFile(Path, 1));
        QCOMPARE(LibFixture::get(Path), QByteArray("old"));

        m_fixture->link.transfersFail = false;
        m_fixture->link.files[CtrlPath] = "new\n";
        QVERIFY(QFile::remove(Path) && QDir().mkdir(Path));
        for (const Operation operation : {Mode0, Mode1, Mode2, Slave, Key})
            QVERIFY(!write(lib, Masters[0], operation));
        QVERIFY(!lib.readEtherCatFile(LibFixture::local("missing.cfg")));
        QCOMPARE(LibFixture::localFiles(), QStringList("override.cfg"));
    }
};

QTEST_GUILESS_MAIN(TestOverrideFile)
#include "tst_overridefile.moc"
