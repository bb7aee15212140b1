#include "LibFixture.h"

#include <QTest>

#include <functional>
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
    void filesAreRead_data();
    void filesAreRead();
    void numbersAreRead_data();
    void numbersAreRead();
    void mesIsWritten();
    void finsIsWritten();
    void filesCutShortLeaveTheRecord();
};

void TestHostLinkFiles::filesAreRead_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("isRead");
    QTest::addColumn<QString>("mes");
    QTest::addColumn<QString>("fins");
    const QString mesDefaults = "8008|0|0|100|1";
    const QString finsDefaults = "192.168.1.22|9600|12|0|1000|5000|1";
    const QString mesNothing = "|0|0|0|0";
    const QString finsNothing = "||0|0|0|0|0";
    QTest::newRow("MES, in another order")
        << QByteArray("<TcpServerConfig><IpPortIndex>5</IpPortIndex><IntervalTime>4</IntervalTime>"
                      "<Protocol>3</Protocol><Mode>2</Mode><Port>x1</Port></TcpServerConfig>")
        << true << "x1|2|3|4|5" << finsNothing;
    QTest::newRow("MES without an element")
        << QByteArray("<TcpServerConfig><Port>1</Port><Mode>2</Mode></TcpServerConfig>") << true
        << "1|2|0|0|0" << finsNothing;
    QTest::newRow("FINS, in another order")
        << QByteArray("<ClientConfig><IpPortIndex>7</IpPortIndex><WriteDmAddress>6</WriteDmAddress>"
                      "<ReadDmAddress>5</ReadDmAddress><AutoConnect>4</AutoConnect><ClientNode>3</ClientNode>"
                      "<ServerPort>b</ServerPort><ServerIP>a</ServerIP></ClientConfig>")
        << true << mesNothing << "a|b|3|4|5|6|7";
    QTest::newRow("FINS, empty and twice")
        << QByteArray("<ClientConfig><ServerIP/><ClientNode></ClientNode><AutoConnect>1</AutoConnect>"
                      "<AutoConnect>2</AutoConnect></ClientConfig>")
        << true << mesNothing << "||0|1|0|0|0";
    QTest::newRow("another root") << QByteArray("<Config><Port>1</Port></Config>") << true << mesNothing
                                  << finsNothing;
    QTest::newRow("a level deeper") << QByteArray(
                                           "<TcpServerConfig><Group><Port>1</Port></Group></TcpServerConfig>")
                                    << true << mesNothing << finsNothing;
    QTest::newRow("empty") << QByteArray() << false << mesDefaults << finsDefaults;
    QTest::newRow("no XML") << QByteArray("Port 8008") << false << mesDefaults << finsDefaults;
}

void TestHostLinkFiles::filesAreRead()
{
    QFETCH(QByteArray, content);
    QFETCH(bool, isRead);
    FieldbusSettingLib& lib = LibFixture::lib();
    QVERIFY(!lib.readMesSetFile(Path));
    QVERIFY(!lib.readFinsTcpFile(Path));
    QVERIFY(LibFixture::put(Path, content));
    QCOMPARE(lib.readMesSetFile(Path), isRead);
    QCOMPARE(lib.readFinsTcpFile(Path), isRead);
    QTEST(text(lib.mesServer), "mes");
    QTEST(text(lib.finsClient), "fins");
}

void TestHostLinkFiles::numbersAreRead_data()
{
    QTest::addColumn<QByteArray>("number");
    QTest::addColumn<int>("value");
    QTest::newRow("blanks before") << QByteArray(" \t\n12") << 12;
    QTest::newRow("signs") << QByteArray("-12") << -12;
    QTest::newRow("plus") << QByteArray("+12") << 12;
    QTest::newRow("leading zeros are not octal") << QByteArray("0012") << 12;
    QTest::newRow("more behind it") << QByteArray("12 ms") << 12;
    QTest::newRow("a fraction") << QByteArray("12.9") << 12;
    QTest::newRow("a word") << QByteArray("true") << 0;
    QTest::newRow("hexadecimal") << QByteArray("0x1fF") << 511;
    QTest::newRow("hexadecimal, negative") << QByteArray("-0X10") << -16;
    QTest::newRow("the largest") << QByteArray("2147483647") << Most;
    QTest::newRow("beyond the largest") << QByteArray("2147483648") << Most;
    QTest::newRow("far beyond") << QByteArray(1000, '9') << Most;
    QTest::newRow("the smallest") << QByteArray("-2147483648") << Least;
    QTest::newRow("beyond the smallest") << QByteArray("-2147483649") << Least;
    QTest::newRow("hexadecimal beyond the largest") << QByteArray("0xffffffff") << Most;
    QTest::newRow("a hexadecimal prefix alone") << QByteArray("0x") << 0;
    QTest::newRow("a sign alone") << QByteArray("-") << 0;
}

void TestHostLinkFiles::numbersAreRead()
{
    QFETCH(QByteArray, number);
    FieldbusSettingLib& lib = LibFixture::lib();
    QVERIFY(LibFixture::put(Path, "<ClientConfig><ClientNode>" + number + "</ClientNode></ClientConfig>"));
    QVERIFY(lib.readFinsTcpFile(Path));
    QTEST(lib.finsClient.ClientNode, "value");
}

void TestHostLinkFiles::mesIsWritten()
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

void TestHostLinkFiles::finsIsWritten()
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

void TestHostLinkFiles::filesCutShortLeaveTheRecord()
{
    FieldbusSettingLib& lib = LibFixture::lib();
    lib.mesServer = {"1", 2, 3, 4, 5};
    lib.finsClient = {"1", "2", 3, 4, 5, 6, 7};
    QVERIFY(lib.writeMesSetFile(Path));
    const QByteArray mes = LibFixture::get(Path);
    QVERIFY(lib.writeFinsTcpFile(Path));
    const QByteArray fins = LibFixture::get(Path);
    // Without its last line feed a file is still whole.
    for (int length = 0; length < mes.size() - 1; ++length) {
        QVERIFY(LibFixture::put(Path, mes.left(length)));
        QVERIFY2(!lib.readMesSetFile(Path), QByteArray::number(length));
    }
    for (int length = 0; length < fins.size() - 1; ++length) {
        QVERIFY(LibFixture::put(Path, fins.left(length)));
        QVERIFY2(!lib.readFinsTcpFile(Path), QByteArray::number(length));
    }
    QCOMPARE(text(lib.mesServer), QString("1|2|3|4|5"));
    QCOMPARE(text(lib.finsClient), QString("1|2|3|4|5|6|7"));
}

QTEST_GUILESS_MAIN(TestHostLinkFiles)
#include "tst_hostlinkfiles.moc"
