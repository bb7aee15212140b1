#include "LibFixture.h"
#include "Rows.h"

#include <QTest>

#include <limits>

namespace {

const QString Path = LibFixture::local("file.xml");
constexpr int Most = std::numeric_limits<int>::max();
constexpr int Least = std::numeric_limits<int>::min();

QString text(const MesServerConfig& record)
{
    return QStringLiteral("%1|%2|%3|%4|%5")
        .arg(record.Port)
        .arg(record.Mode)
        .arg(record.Protocol)
        .arg(record.IntervalTime)
        .arg(record.IpPortIndex);
}

QString text(const FinsClientConfig& record)
{
    return QStringLiteral("%1|%2|%3|%4|%5|%6|%7")
        .arg(record.ServerIP, record.ServerPort)
        .arg(record.ClientNode)
        .arg(record.AutoConnect)
        .arg(record.ReadDmAddress)
        .arg(record.WriteDmAddress)
        .arg(record.IpPortIndex);
}

} // namespace

class TestHostLinkFiles : public LibTest
{
    Q_OBJECT

private slots:
    void filesAreRead_data()
    {
        const Rows<QByteArray, QString, QString> row;
        const QString mesNothing = "|0|0|0|0";
        const QString finsNothing = "||0|0|0|0|0";
        row("MES, in another order",
            "<TcpServerConfig><IpPortIndex>5</IpPortIndex><IntervalTime>4</IntervalTime>"
            "<Protocol>3</Protocol><Mode>2</Mode><Port>x1</Port></TcpServerConfig>",
            "x1|2|3|4|5", finsNothing);
        row("MES without an element", "<TcpServerConfig><Port>1</Port><Mode>2</Mode></TcpServerConfig>",
            "1|2|0|0|0", finsNothing);
        row("FINS, in another order",
            "<ClientConfig><IpPortIndex>7</IpPortIndex><WriteDmAddress>6</WriteDmAddress>"
            "<ReadDmAddress>5</ReadDmAddress><AutoConnect>4</AutoConnect><ClientNode>3</ClientNode>"
            "<ServerPort>b</ServerPort><ServerIP>a</ServerIP></ClientConfig>",
            mesNothing, "a|b|3|4|5|6|7");
        row("FINS, empty and twice",
            "<ClientConfig><ServerIP/><ClientNode></ClientNode><AutoConnect>1</AutoConnect>"
            "<AutoConnect>2</AutoConnect></ClientConfig>",
            mesNothing, "||0|1|0|0|0");
        row("a level deeper", "<TcpServerConfig><Group><Port>1</Port></Group></TcpServerConfig>", mesNothing,
            finsNothing);
        row("empty", "", "8008|0|0|100|1", "192.168.1.22|9600|12|0|1000|5000|1");
    }

    void filesAreRead()
    {
        const auto [content, mes, fins] = Rows<QByteArray, QString, QString>::current();
        FieldbusSettingLib& lib = LibFixture::lib();
        QVERIFY(!lib.readMesSetFile(Path));
        QVERIFY(!lib.readFinsTcpFile(Path));
        QVERIFY(LibFixture::put(Path, content));
        QCOMPARE(lib.readMesSetFile(Path), !content.isEmpty());
        QCOMPARE(lib.readFinsTcpFile(Path), !content.isEmpty());
        QCOMPARE(text(lib.mesServer), mes);
        QCOMPARE(text(lib.finsClient), fins);
    }

    void numbersAreRead_data()
    {
        const Rows<QByteArray, int> row;
        row("blanks before", QByteArray(" \t\n12"), 12);
        row("leading zeros are not octal", QByteArray("0012"), 12);
        row("more behind it", QByteArray("12 ms"), 12);
        row("a word", QByteArray("true"), 0);
        row("hexadecimal", QByteArray("0x1fF"), 511);
        row("the largest", QByteArray("2147483647"), Most);
        row("beyond the largest", QByteArray("2147483648"), Most);
        row("the smallest", QByteArray("-2147483648"), Least);
        row("beyond the smallest", QByteArray("-2147483649"), Least);
        row("hexadecimal beyond the largest", QByteArray("0xffffffff"), Most);
        row("a hexadecimal prefix alone", QByteArray("0x"), 0);
    }

    void numbersAreRead()
    {
        const auto [number, value] = Rows<QByteArray, int>::current();
        FieldbusSettingLib& lib = LibFixture::lib();
        QVERIFY(
            LibFixture::put(Path, "<ClientConfig><ClientNode>" + number + "</ClientNode></ClientConfig>"));
        QVERIFY(lib.readFinsTcpFile(Path));
        QCOMPARE(lib.finsClient.ClientNode, value);
    }

    void mesIsWritten()
    {
        FieldbusSettingLib& lib = LibFixture::lib();
        lib.mesServer = {"8o0<8", -1, Least, Most, 0};
        QVERIFY(lib.writeMesSetFile(Path));
        QCOMPARE(LibFixture::getWithoutDate(Path),
                 LibFixture::Prologue + QByteArray("<TcpServerConfig>\n"
                                                   "\t<Port>8o0&lt;8</Port>\n"
                                                   "\t<Mode>-1</Mode>\n"
                                                   "\t<Protocol>-2147483648</Protocol>\n"
                                                   "\t<IntervalTime>2147483647</IntervalTime>\n"
                                                   "\t<IpPortIndex>0</IpPortIndex>\n"
                                                   "</TcpServerConfig>\n"));
        lib.mesServer = {};
        QVERIFY(lib.readMesSetFile(Path));
        QCOMPARE(text(lib.mesServer), QString("8o0&lt;8|-1|-2147483648|2147483647|0"));
    }

    void finsIsWritten()
    {
        FieldbusSettingLib& lib = LibFixture::lib();
        QVERIFY(lib.writeFinsTcpFile(Path));
        QCOMPARE(LibFixture::getWithoutDate(Path),
                 LibFixture::Prologue + QByteArray("<ClientConfig>\n"
                                                   "\t<ServerIP>192.168.1.22</ServerIP>\n"
                                                   "\t<ServerPort>9600</ServerPort>\n"
                                                   "\t<ClientNode>12</ClientNode>\n"
                                                   "\t<AutoConnect>0</AutoConnect>\n"
                                                   "\t<ReadDmAddress>1000</ReadDmAddress>\n"
                                                   "\t<WriteDmAddress>5000</WriteDmAddress>\n"
                                                   "\t<IpPortIndex>1</IpPortIndex>\n"
                                                   "</ClientConfig>\n"));
    }

    void filesCutShortLeaveTheRecord()
    {
        FieldbusSettingLib& lib = LibFixture::lib();
        lib.mesServer = {"1", 2, 3, 4, 5};
        lib.finsClient = {"1", "2", 3, 4, 5, 6, 7};
        QVERIFY(lib.writeMesSetFile(Path));
        QCOMPARE(LibFixture::cutAtEveryByte(
                     Path, [&] { return lib.readMesSetFile(Path) || text(lib.mesServer) != "1|2|3|4|5"; }),
                 -1);
        QVERIFY(lib.writeFinsTcpFile(Path));
        QCOMPARE(
            LibFixture::cutAtEveryByte(
                Path, [&] { return lib.readFinsTcpFile(Path) || text(lib.finsClient) != "1|2|3|4|5|6|7"; }),
            -1);
    }
};

QTEST_GUILESS_MAIN(TestHostLinkFiles)
#include "tst_hostlinkfiles.moc"
