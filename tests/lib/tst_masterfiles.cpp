#include "LibFixture.h"
#include "Rows.h"

#include <QTest>

namespace {

struct Twin
{
    QByteArray root;
    bool (FieldbusSettingLib::*read)(QString);
    bool (FieldbusSettingLib::*write)(QString);
    MasterSlaveTable FieldbusSettingLib::*table;
};

const Twin EtherNetIp = {"EipMasterCommunication", &FieldbusSettingLib::readEimXMLFile,
                         &FieldbusSettingLib::writeEimXMLFile, &FieldbusSettingLib::eipMaster};
const Twin Profinet = {"PfnMasterCommunication", &FieldbusSettingLib::readPnmXMLFile,
                       &FieldbusSettingLib::writePnmXMLFile, &FieldbusSettingLib::pfnMaster};

const QString Path = LibFixture::local("file.xml");

using Flag = bool MasterSlaveTable::*;

#define NINE(name)                                                                                           \
    {                                                                                                        \
        &MasterSlaveTable::name##1, &MasterSlaveTable::name##2, &MasterSlaveTable::name##3,                  \
            &MasterSlaveTable::name##4, &MasterSlaveTable::name##5, &MasterSlaveTable::name##6,              \
            &MasterSlaveTable::name##7, &MasterSlaveTable::name##8, &MasterSlaveTable::name##9               \
    }

constexpr Flag FixedFlags[] = NINE(FixSlave);
constexpr Flag DynamicFlags[] = NINE(DynSlave);

/// Counts and times, then the flags as digits, slave 1 to 9.
QString text(const MasterSlaveTable& table)
{
    QString fixedDigits;
    for (const Flag flag : FixedFlags)
        fixedDigits += table.*flag ? '1' : '0';
    QString dynamicDigits;
    for (const Flag flag : DynamicFlags)
        dynamicDigits += table.*flag ? '1' : '0';
    return QStringList{table.SlaveNum, table.DisableTimeout, table.EnableTimeout, fixedDigits, dynamicDigits}
        .join('|');
}

QString text(const MtcpMasterConfig& record)
{
    return QStringList{record.SlaveIp,    record.SlavePort,   record.SlaveId,  record.TimeOut,
                       record.ReadEndian, record.WriteEndian, record.Alivetime}
        .join('|');
}

// Values that no default and no missing element gives.
MasterSlaveTable sampleTable()
{
    MasterSlaveTable table;
    table.SlaveNum = "3";
    table.DisableTimeout = "100";
    table.EnableTimeout = "2000";
    table.FixSlave1 = table.FixSlave9 = table.DynSlave2 = table.DynSlave8 = true;
    return table;
}
constexpr const char* SampleTableText = "3|100|2000|100000001|010000010";

const MtcpMasterConfig SampleMtcp = {"192.168.1.9", "502", "7", "1.5", "2", "5", "30"};
constexpr const char* SampleMtcpText = "192.168.1.9|502|7|1.5|2|5|30";

QByteArray sampleTableFile(const QByteArray& root)
{
    QByteArray file = LibFixture::Prologue;
    file += "<" + root +
            ">\n\t<Group>\n\t\t<SlaveNum>3</SlaveNum>\n"
            "\t\t<DisableTimeout>100</DisableTimeout>\n\t\t<EnableTimeout>2000</EnableTimeout>\n";
    const auto group = [&file](const QByteArray& name, const QByteArray& element, const char* digits) {
        file += "\t\t<" + name + ">\n";
        for (int i = 1; i <= 9; ++i) {
            const QByteArray flag = element + QByteArray::number(i);
            file += "\t\t\t<" + flag + ">" + digits[i - 1] + "</" + flag + ">\n";
        }
        file += "\t\t</" + name + ">\n";
    };
    group("SlaveFixed", "FixSlave", "100000001");
    group("SlaveDynamic", "DynSlave", "010000010");
    return file + "\t</Group>\n</" + root + ">\n";
}

} // namespace

Q_DECLARE_METATYPE(Twin)
Q_DECLARE_METATYPE(MtcpMasterConfig)

class TestMasterFiles : public LibTest
{
    Q_OBJECT

private slots:
    void mtcpIsRead_data()
    {
        const Rows<QByteArray, bool, QString> row;
        const auto group = [](const QByteArray& content) {
            return "<MtcpMasterCommunication><Group>" + content + "</Group></MtcpMasterCommunication>";
        };
        row("all, in another order",
            group("<Alivetime>7</Alivetime><WriteEndian>6</WriteEndian><ReadEndian>5</ReadEndian>"
                  "<TimeOut>4</TimeOut><SlaveId>3</SlaveId><SlavePort>2</SlavePort><SlaveIp>1</SlaveIp>"),
            true, "1|2|3|4|5|6|7");
        row("what is missing is empty", group("<SlaveIp>1</SlaveIp><SlaveId/><TimeOut></TimeOut>"), true,
            "1||||||");
        row("a name twice counts once", group("<SlaveIp>1</SlaveIp><SlaveIp>2</SlaveIp>"), true, "1||||||");
        row("the first of two groups",
            "<MtcpMasterCommunication><Group/><Group><SlaveIp>1</SlaveIp></Group></MtcpMasterCommunication>",
            true, "||||||");
        row("another root", "<Other><Group><SlaveIp>1</SlaveIp></Group></Other>", true, "||||||");
        row("no group", "<MtcpMasterCommunication><SlaveIp>1</SlaveIp></MtcpMasterCommunication>", true,
            "||||||");
        row("names of another case", group("<slaveip>1</slaveip>"), true, "||||||");
        row("text as it stands", group("<SlaveIp> 1\t\n2 </SlaveIp><SlavePort>a&amp;b</SlavePort>"), true,
            " 1\t\n2 |a&amp;b|||||");
        row("text behind a comment and an element", group("<SlaveIp><!-- 5 --><b>2</b>1</SlaveIp>"), true,
            "1||||||");
        row("text of another language", group("<SlaveIp>\xc3\xbc\xe2\x82\xac</SlaveIp>"), true,
            "\u00fc\u20ac||||||");
        row("CDATA and attributes are no text", group("<SlaveIp ip=\"1\"><![CDATA[2]]></SlaveIp>"), true,
            "||||||");
        row("a byte order mark", "\xef\xbb\xbf" + group("<SlaveIp>1</SlaveIp>"), true, "1||||||");
        row("empty", "", false, SampleMtcpText);
        row("no element", "<?xml version=\"1.0\"?>\n<!-- x -->", false, SampleMtcpText);
        row("no XML", "SlaveIp 1", false, SampleMtcpText);
        row("a tag that is not closed", group("<SlaveIp>1"), false, SampleMtcpText);
    }

    void mtcpIsRead()
    {
        const auto [content, isRead, record] = Rows<QByteArray, bool, QString>::current();
        FieldbusSettingLib& lib = LibFixture::lib();
        lib.mtcpMaster = SampleMtcp;
        QVERIFY(LibFixture::put(Path, content));
        QCOMPARE(lib.readMtcpFile(Path), isRead);
        QCOMPARE(text(lib.mtcpMaster), record);
        QVERIFY(!lib.readMtcpFile(LibFixture::local("none.xml")));
        QCOMPARE(text(lib.mtcpMaster), record);
    }

    void mtcpIsWritten_data()
    {
        const Rows<MtcpMasterConfig, QByteArray> row;
        row("values", SampleMtcp,
            QByteArray("\t\t<SlaveIp>192.168.1.9</SlaveIp>\n"
                       "\t\t<SlavePort>502</SlavePort>\n"
                       "\t\t<SlaveId>7</SlaveId>\n"
                       "\t\t<TimeOut>1.5</TimeOut>\n"
                       "\t\t<ReadEndian>2</ReadEndian>\n"
                       "\t\t<WriteEndian>5</WriteEndian>\n"
                       "\t\t<Alivetime>30</Alivetime>\n"));
        // Nothing that a text holds may break the file: control characters, markup, half a surrogate pair.
        row("empty and awkward texts",
            {QString("\x01<&>\""), QString::fromUtf8("\xc3\xbc\xe2\x82\xac"), QString(QChar(0xd800)), "",
             "\t", " ", ""},
            "\t\t<SlaveIp> &lt;&amp;&gt;\"</SlaveIp>\n"
            "\t\t<SlavePort>\xc3\xbc\xe2\x82\xac</SlavePort>\n"
            "\t\t<SlaveId>?</SlaveId>\n"
            "\t\t<TimeOut></TimeOut>\n"
            "\t\t<ReadEndian>\t</ReadEndian>\n"
            "\t\t<WriteEndian> </WriteEndian>\n"
            "\t\t<Alivetime></Alivetime>\n");
    }

    void mtcpIsWritten()
    {
        const auto [record, elements] = Rows<MtcpMasterConfig, QByteArray>::current();
        FieldbusSettingLib& lib = LibFixture::lib();
        lib.mtcpMaster = record;
        QVERIFY(LibFixture::put(Path, QByteArray(5000, 'x')));
        QVERIFY(lib.writeMtcpFile(Path));
        QCOMPARE(LibFixture::getWithoutDate(Path), LibFixture::Prologue +
                                                       QByteArray("<MtcpMasterCommunication>\n\t<Group>\n") +
                                                       elements + "\t</Group>\n</MtcpMasterCommunication>\n");
        QVERIFY(lib.readMtcpFile(Path));
        QCOMPARE(LibFixture::localFiles(), QStringList("file.xml"));
    }

    void tablesAreRead_data()
    {
        const Rows<Twin, QByteArray, bool, QString> rows;
        for (const Twin& twin : {EtherNetIp, Profinet}) {
            const auto row = [&](const char* name, QByteArray content, bool isRead, const QString& table) {
                content.replace("{", "<" + twin.root + "><Group>")
                    .replace("}", "</Group></" + twin.root + ">");
                rows((twin.root + ": " + name).constData(), twin, content, isRead, table);
            };
            row("values, in another order",
                "{<SlaveDynamic><DynSlave9>1</DynSlave9><DynSlave1>1</DynSlave1></SlaveDynamic>"
                "<SlaveFixed><FixSlave5>1</FixSlave5></SlaveFixed>"
                "<EnableTimeout>3</EnableTimeout><DisableTimeout>2</DisableTimeout><SlaveNum>1</SlaveNum>}",
                true, "1|2|3|000010000|100000001");
            row("flags as words",
                "{<SlaveFixed><FixSlave1>true</FixSlave1><FixSlave2>TRUE</FixSlave2><FixSlave3>yes</"
                "FixSlave3>"
                "<FixSlave4>Y</FixSlave4><FixSlave5>10</FixSlave5><FixSlave6>on</FixSlave6>"
                "<FixSlave7>false</FixSlave7><FixSlave8> 1</FixSlave8><FixSlave9>2</FixSlave9></SlaveFixed>}",
                true, "|||111110000|000000000");
            row("no group of flags", "{<SlaveNum>4</SlaveNum>}", true, "4|||000000000|000000000");
            row("flags outside their group",
                "{<FixSlave1>1</FixSlave1><SlaveFixed><DynSlave1>1</DynSlave1></SlaveFixed>}", true,
                "|||000000000|000000000");
            row("two groups",
                "<" + twin.root +
                    "><Group><SlaveNum>1</SlaveNum></Group><Group><SlaveNum>2</SlaveNum>"
                    "<EnableTimeout>3</EnableTimeout></Group></" +
                    twin.root + ">",
                true, "1|||000000000|000000000");
            row("the file of the other master",
                (twin.root == EtherNetIp.root ? "<Pfn" : "<Eip") +
                    QByteArray("MasterCommunication><Group>"
                               "<SlaveNum>1</SlaveNum></Group>") +
                    (twin.root == EtherNetIp.root ? "</Pfn" : "</Eip") + QByteArray("MasterCommunication>"),
                true, "|||000000000|000000000");
            row("no group", "<" + twin.root + "><SlaveNum>1</SlaveNum></" + twin.root + ">", true,
                "|||000000000|000000000");
            row("deep nesting",
                "{" + QByteArray("<a>").repeated(100000) + QByteArray("</a>").repeated(100000) +
                    "<SlaveNum>1</SlaveNum>}",
                true, "1|||000000000|000000000");
            row("a megabyte of one element", "{<SlaveNum>" + QByteArray(1 << 20, '7') + "</SlaveNum>}", true,
                QString(1 << 20, '7') + "|||000000000|000000000");
            row("nesting that is not closed", QByteArray("<a>").repeated(100000), false, SampleTableText);
        }
    }

    void tablesAreRead()
    {
        const auto [twin, content, isRead, table] = Rows<Twin, QByteArray, bool, QString>::current();
        FieldbusSettingLib& lib = LibFixture::lib();
        lib.eipMaster = lib.pfnMaster = sampleTable();
        QVERIFY(LibFixture::put(Path, content));
        QCOMPARE((lib.*twin.read)(Path), isRead);
        QCOMPARE(text(lib.*twin.table), table);
        QCOMPARE(text(twin.table == &FieldbusSettingLib::eipMaster ? lib.pfnMaster : lib.eipMaster),
                 QString(SampleTableText));
    }

    void tablesAreWritten_data()
    {
        const Rows<Twin> row;
        row("EtherNet/IP", EtherNetIp);
        row("PROFINET", Profinet);
    }

    void tablesAreWritten()
    {
        const auto [twin] = Rows<Twin>::current();
        FieldbusSettingLib& lib = LibFixture::lib();
        lib.*twin.table = sampleTable();
        QVERIFY((lib.*twin.write)(Path));
        QCOMPARE(LibFixture::getWithoutDate(Path), sampleTableFile(twin.root));
        lib.*twin.table = {};
        QVERIFY((lib.*twin.read)(Path));
        QCOMPARE(text(lib.*twin.table), QString(SampleTableText));
    }

    void filesCutShortLeaveTheRecord()
    {
        FieldbusSettingLib& lib = LibFixture::lib();
        lib.mtcpMaster = SampleMtcp;
        QVERIFY(lib.writeMtcpFile(Path));
        QCOMPARE(LibFixture::cutAtEveryByte(Path,
                                            [&] {
                                                const bool isRead = lib.readMtcpFile(Path);
                                                return isRead || text(lib.mtcpMaster) != SampleMtcpText;
                                            }),
                 -1);
        for (const Twin& twin : {EtherNetIp, Profinet}) {
            lib.*twin.table = sampleTable();
            QVERIFY((lib.*twin.write)(Path));
            QCOMPARE(LibFixture::cutAtEveryByte(Path,
                                                [&] {
                                                    const bool isRead = (lib.*twin.read)(Path);
                                                    return isRead || text(lib.*twin.table) != SampleTableText;
                                                }),
                     -1);
        }
    }

    void foldersOfOneLevelAreMade()
    {
        FieldbusSettingLib& lib = LibFixture::lib();
        QVERIFY(!lib.writeMtcpFile(LibFixture::local("a/b/file.xml")));
        QVERIFY(LibFixture::localFiles().isEmpty());
        QVERIFY(lib.writeMtcpFile(LibFixture::local("a/file.xml")));
        QVERIFY(lib.writeEimXMLFile(LibFixture::local("a/b/file.xml")));
        QVERIFY(QFile::exists(LibFixture::local("a/b/file.xml")));
        QVERIFY(lib.writePnmXMLFile("file.xml"));
        QVERIFY(QFile::exists("file.xml"));
    }

    void aFailedWriteLeavesTheFile()
    {
        FieldbusSettingLib& lib = LibFixture::lib();
        QVERIFY(QDir().mkdir(Path));
        QVERIFY(!lib.writePnmXMLFile(Path));
        QVERIFY(LibFixture::put(LibFixture::local("a"), "old"));
        QVERIFY(!lib.writePnmXMLFile(LibFixture::local("a/file.xml")));
        QCOMPARE(LibFixture::get(LibFixture::local("a")), QByteArray("old"));
        QCOMPARE(LibFixture::localFiles(), (QStringList{"a", "file.xml"}));
    }
};

QTEST_GUILESS_MAIN(TestMasterFiles)
#include "tst_masterfiles.moc"
