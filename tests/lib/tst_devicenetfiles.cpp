#include "LibFixture.h"
#include "Rows.h"

#include <QTest>

namespace {

const QString Path = LibFixture::local("dnmst0.cfg");

constexpr const char* Header = "; DeviceNet master\n"
                               ";WS_ID 9 is the spare\n"
                               "DRIVER dnmaster\n"
                               "WS_ID 1\n"
                               "  BAUDRATE\t250 ;kbps\n"
                               "ENDIAN LITTLE_ENDIAN\n"
                               "MY_WS_ID 4\n"
                               "LITTLE_ENDIAN\n"
                               "PACHET_RATIO 10\n"
                               "\xe4\xff \t\n";

constexpr const char* Rule = ";======================================\n";

QString text(const DeviceNetMasterDevice& device)
{
    return QStringLiteral("MAC %1 IN %2@%3 OUT %4@%5 %6/%7/%8 %9 ")
               .arg(device.MAC_ID)
               .arg(device.inputBytes)
               .arg(device.BLOCK_TO_RBX)
               .arg(device.outputBytes)
               .arg(device.BLOCK_FROM_RBX)
               .arg(device.VENDOR_ID)
               .arg(device.PROD_CODE)
               .arg(device.REVISION)
               .arg(device.CFG_FLAG) +
           QString::number(device.NODE_STATUS_REG);
}

QStringList text(const DeviceNetMasterConfig& record)
{
    QStringList lines = {QStringLiteral("%1 %2 %3 %4 count %5 limits %6 %7")
                             .arg(record.WS_ID)
                             .arg(record.BAUDRATE)
                             .arg(record.ENDIAN)
                             .arg(record.PACHET_RATIO)
                             .arg(record.count)
                             .arg(record.inputLimitBits)
                             .arg(record.outputLimitBits)};
    for (const DeviceNetMasterDevice& device : record.devices)
        lines << text(device);
    return lines;
}

DeviceNetMasterDevice device(int macId, int inputBytes, int outputBytes, const char* flag = "0x00")
{
    DeviceNetMasterDevice device;
    device.MAC_ID = macId;
    device.inputBytes = inputBytes;
    device.outputBytes = outputBytes;
    device.VENDOR_ID = 100 + macId;
    device.PROD_CODE = -65535;
    device.REVISION = 65535;
    device.CFG_FLAG = flag;
    return device;
}

DeviceNetMasterConfig master(const QVector<DeviceNetMasterDevice>& devices)
{
    DeviceNetMasterConfig record;
    record.WS_ID = 63;
    record.BAUDRATE = 500;
    record.ENDIAN = "MIDDLE_BIG_ENDIAN";
    record.PACHET_RATIO = 255;
    record.count = devices.size();
    std::copy(devices.begin(), devices.end(), record.devices.begin());
    record.inputLimitBits = 2048;
    record.outputLimitBits = 1024;
    return record;
}

/// A block with one line for the device and `lines` in it.
QByteArray block(const QByteArray& macId, const QByteArray& lines)
{
    return Rule + QByteArray(";   Device 1 MAC ID ") + macId + "\n" + lines + Rule;
}

} // namespace

Q_DECLARE_METATYPE(DeviceNetMasterConfig)

class TestDeviceNetFiles : public LibTest
{
    Q_OBJECT

private slots:
    void theSlaveIsRead()
    {
        FieldbusSettingLib& lib = LibFixture::lib();
        lib.deviceNetSlave = {"125", "2"};
        QVERIFY(
            LibFixture::put(Path, "<devicenet><Dns><Dns_BAUDRATE> 250 </Dns_BAUDRATE></Dns></devicenet>"));
        QVERIFY(lib.readDeviceNetFile(Path));
        QCOMPARE(lib.deviceNetSlave.Dns_BAUDRATE, QString(" 250 "));
        QCOMPARE(lib.deviceNetSlave.Dns_MACID, QString());
        lib.deviceNetSlave = {"125", "2"};
        QVERIFY(lib.writeDeviceNetFile(Path));
        QCOMPARE(LibFixture::cutAtEveryByte(Path,
                                            [&] {
                                                const bool isRead = lib.readDeviceNetFile(Path);
                                                return isRead || lib.deviceNetSlave.Dns_BAUDRATE != "125" ||
                                                       lib.deviceNetSlave.Dns_MACID != "2";
                                            }),
                 -1);
    }

    void theSlaveIsWritten()
    {
        FieldbusSettingLib& lib = LibFixture::lib();
        lib.deviceNetSlave = {"500", ""};
        const QString path = LibFixture::local("devicenet/devicenetSlave.xml");
        QVERIFY(lib.writeDeviceNetFile(path));
        QCOMPARE(LibFixture::getWithoutDate(path),
                 LibFixture::Prologue +
                     QByteArray("<devicenet>\n\t<Dns>\n\t\t<Dns_MACID></Dns_MACID>\n"
                                "\t\t<Dns_BAUDRATE>500</Dns_BAUDRATE>\n\t</Dns>\n</devicenet>\n"));
    }

    void theScanListIsWritten()
    {
        FieldbusSettingLib& lib = LibFixture::lib();
        lib.deviceNetMaster = master({device(5, 8, 1, "0x1f"), device(6, 0, 0), device(7, 3, 4)});
        lib.deviceNetMaster.devices[0].NODE_STATUS_REG = 1901;
        lib.deviceNetMaster.devices[0].BLOCK_TO_RBX = 7; // a former place does not matter
        QVERIFY(LibFixture::put(Path, Header + block("9", "VENDOR_ID 1\n") + "WS_ID 2\nafter the marker\n"));
        QVERIFY(lib.writeDeviceNetMasterFile(Path));
        const QByteArray written = "; DeviceNet master\n"
                                   ";WS_ID 9 is the spare\n"
                                   "DRIVER dnmaster\n"
                                   "WS_ID 63\n"
                                   "BAUDRATE 500\n"
                                   "ENDIAN MIDDLE_BIG_ENDIAN\n"
                                   "MY_WS_ID 4\n"
                                   "LITTLE_ENDIAN\n"
                                   "PACHET_RATIO 255\n"
                                   "\xe4\xff \t\n"
                                   ";======================================\n"
                                   ";   Device 1 MAC ID 5\n"
                                   ";**************** I N P U T ***********\n"
                                   "BLOCK_TO_RBX 2001 4 8\n"
                                   "VENDOR_ID 105\n"
                                   "PROD_CODE -65535\n"
                                   "REVISION 65535\n"
                                   "CFG_FLAG 0x1f\n"
                                   "NODE_STATUS_REG 1901\n"
                                   "O-0   INP_W_8    2001 2002 2003 2004\n"
                                   ";***************** O U T P U T *********\n"
                                   "BLOCK_FROM_RBX 2001 1 1\n"
                                   "O-0   OUT_w_8    2001\n"
                                   ";======================================\n"
                                   ";======================================\n"
                                   ";   Device 2 MAC ID 6\n"
                                   ";**************** I N P U T ***********\n"
                                   "BLOCK_TO_RBX 2005 0 0\n"
                                   "VENDOR_ID 106\n"
                                   "PROD_CODE -65535\n"
                                   "REVISION 65535\n"
                                   "CFG_FLAG 0x00\n"
                                   "NODE_STATUS_REG 0\n"
                                   ";***************** O U T P U T *********\n"
                                   "BLOCK_FROM_RBX 2002 0 0\n"
                                   ";======================================\n"
                                   ";======================================\n"
                                   ";   Device 3 MAC ID 7\n"
                                   ";**************** I N P U T ***********\n"
                                   "BLOCK_TO_RBX 2005 2 3\n"
                                   "VENDOR_ID 107\n"
                                   "PROD_CODE -65535\n"
                                   "REVISION 65535\n"
                                   "CFG_FLAG 0x00\n"
                                   "NODE_STATUS_REG 0\n"
                                   "O-0   INP_W_8    2005 2006\n"
                                   ";***************** O U T P U T *********\n"
                                   "BLOCK_FROM_RBX 2002 2 4\n"
                                   "O-0   OUT_w_8    2002 2003\n"
                                   ";======================================\n";
        QCOMPARE(LibFixture::get(Path), written);
        QCOMPARE(LibFixture::get(LibFixture::local("test2.txt")), written);
    }

    void writtenIsRead_data()
    {
        const Rows<DeviceNetMasterConfig> row;
        QVector<DeviceNetMasterDevice> full;
        QVector<DeviceNetMasterDevice> bytes;
        for (int i = 0; i < DeviceNetMasterConfig::MaxDevices; ++i) {
            full << device(63 - i, 64, 64, "0xffff");
            bytes << device(i + 1, i, 64 - i);
        }
        row("no device", master({}));
        row("one", master({device(1, 0, 1)}));
        row("sixteen, all full", master(full));
        row("byte counts odd and even", master(bytes));
        row("as the page begins: nothing set", master({DeviceNetMasterDevice()}));
        DeviceNetMasterConfig beyond = master({device(1, -3, 1000)});
        beyond.count = 40;
        row("what no page gives", beyond);
    }

    void writtenIsRead()
    {
        const auto [record] = Rows<DeviceNetMasterConfig>::current();
        FieldbusSettingLib& lib = LibFixture::lib();
        for (const QByteArray& header : {QByteArray(Header), QByteArray(Header).replace("\n", "\r\n")}) {
            QVERIFY(LibFixture::put(Path, header));
            lib.deviceNetMaster = record;
            QVERIFY(lib.writeDeviceNetMasterFile(Path));
            const QStringList sent = text(lib.deviceNetMaster);
            const QByteArray written = LibFixture::get(Path);
            QCOMPARE(written.count('\n'),
                     header.contains('\r') ? written.count("\r\n") : written.count('\n'));

            lib.deviceNetMaster.WS_ID = -1;
            lib.deviceNetMaster.ENDIAN.clear();
            lib.deviceNetMaster.devices.fill(device(50, 50, 50, "0x50"));
            QVERIFY(lib.readDeviceNetMasterFile(Path));
            QCOMPARE(text(lib.deviceNetMaster), sent);

            QVERIFY(lib.writeDeviceNetMasterFile(Path));
            QCOMPARE(LibFixture::get(Path), written);
        }
    }

    void theHeaderIsTheControllers_data()
    {
        const Rows<QByteArray, QByteArray> row;
        const QByteArray end = "===================\nWS_ID 2\n";
        row("keywords twice, in a comment, in lower case, alone",
            "WS_ID 1\nWS_ID\n; WS_ID 3\nws_id 4\nX WS_ID 5\nWS_ID=6\n" + end,
            "WS_ID 63\nWS_ID 63\n; WS_ID 3\nws_id 4\nX WS_ID 5\nWS_ID=6\n");
        row("byte order: other forms are not its own", "ENDIAN 0\nENDIANS\nBIG_ENDIAN\n;ENDIAN\n" + end,
            "ENDIAN MIDDLE_BIG_ENDIAN\nENDIANS\nBIG_ENDIAN\n;ENDIAN\n");
        row("any bytes and line ends", rawBytes("\xff\0\r\n\n\r\r\n BAUDRATE 5\r\n\t") + "\n" + end,
            rawBytes("\xff\0\r\n\n\r\r\nBAUDRATE 500\r\n\t\n"));
        row("no marker", "; all of it\nWS_ID 1\n; " + QByteArray(18, '='),
            "; all of it\nWS_ID 63\n; " + QByteArray(18, '='));
        row("no marker, but blocks", "WS_ID 1\n;   Device 1 MAC ID 5\nVENDOR_ID 6\n",
            "WS_ID 63\n;   Device 1 MAC ID 5\nVENDOR_ID 6\n");
        row("a long line", QByteArray(300000, 'x') + "\nWS_ID 1\n" + end,
            QByteArray(300000, 'x') + "\nWS_ID 63\n");
    }

    void theHeaderIsTheControllers()
    {
        const auto [before, after] = Rows<QByteArray, QByteArray>::current();
        FieldbusSettingLib& lib = LibFixture::lib();
        QVERIFY(LibFixture::put(Path, before));
        QVERIFY(lib.readDeviceNetMasterFile(Path));
        QCOMPARE(lib.deviceNetMaster.count, 0);
        lib.deviceNetMaster = master({});
        QVERIFY(lib.writeDeviceNetMasterFile(Path));
        QCOMPARE(LibFixture::get(Path), after);

        lib.deviceNetMaster = master({device(1, 2, 3)});
        QVERIFY(lib.writeDeviceNetMasterFile(Path));
        QVERIFY(LibFixture::get(Path).startsWith(after));
        QVERIFY(lib.readDeviceNetMasterFile(Path));
        QCOMPARE(lib.deviceNetMaster.count, 1);
    }

    void devicesAreRead_data()
    {
        const Rows<QByteArray, QStringList> row;
        const QString nothing = "MAC 5 IN 0@0 OUT 0@0 0/0/0 0x00 0";
        row("unknown keywords, comments, tabs, CRLF",
            block("5 ;the left one\r",
                  "VENDOR\t1\r\n\tVENDOR_ID\t7\t8;x\r\nPROD_CODE 2;x\r\n;REVISION 3\r\nO-0 VENDOR_ID 1\r\n"),
            {"MAC 5 IN 0@0 OUT 0@0 7/2/0 0x00 0"});
        row("negative numbers",
            block(
                "-5",
                "BLOCK_TO_RBX -1 -1 -1\nVENDOR_ID -7\nBLOCK_FROM_RBX 3 1 -2147483648\nNODE_STATUS_REG -1\n"),
            {"MAC -5 IN 0@-1 OUT 0@3 -7/0/0 0x00 -1"});
        row("more bytes than there can be",
            block("5", "BLOCK_TO_RBX 2001 1 256\nBLOCK_FROM_RBX 2001 1 2147483647\n"),
            {"MAC 5 IN 255@2001 OUT 255@2001 0/0/0 0x00 0"});
        row("no numbers",
            block("x", "BLOCK_TO_RBX a b c\nVENDOR_ID 0x10\nPROD_CODE 99999999999\nREVISION 1.5\nCFG_FLAG\n"),
            {"MAC -1 IN 0@0 OUT 0@0 16/0/0 0x00 0"});
        row("no outputs, too few words", block("5", "BLOCK_TO_RBX 2001\nBLOCK_FROM_RBX\nVENDOR_ID"),
            {"MAC 5 IN 0@2001 OUT 0@0 0/0/0 0x00 0"});
        row("no MAC ID", block("", "VENDOR_ID 7\n"), {"MAC -1 IN 0@0 OUT 0@0 7/0/0 0x00 0"});
        row("a keyword twice: the last", block("5", "CFG_FLAG 0x01\nCFG_FLAG 0x02 0x03\n"),
            {"MAC 5 IN 0@0 OUT 0@0 0/0/0 0x02 0"});
        row("two blocks of the same device", block("5", "VENDOR_ID 1\n") + block("5", "VENDOR_ID 2\n"),
            {"MAC 5 IN 0@0 OUT 0@0 1/0/0 0x00 0", "MAC 5 IN 0@0 OUT 0@0 2/0/0 0x00 0"});
        row("settings inside a block are no settings", block("5", "WS_ID 9\nENDIAN x\n"), {nothing});
        row("seventeen devices: the first sixteen", block("5", "").repeated(16) + block("6", "VENDOR_ID 9\n"),
            QStringList(QVector<QString>(16, nothing).toList()));
        row("no MAC ID at the line's end, a tab before one",
            Rule + QByteArray(";   Device 1 MAC ID\r\nVENDOR_ID 7\n") +
                ";   Device 2 MAC ID\t9\nVENDOR_ID 8\n",
            {"MAC -1 IN 0@0 OUT 0@0 7/0/0 0x00 0", "MAC 9 IN 0@0 OUT 0@0 8/0/0 0x00 0"});
        row("a tab or nothing before the index",
            Rule + QByteArray(";   Device\t1 MAC ID 5\nVENDOR_ID 7\n;   Device2\tMAC ID 9\nVENDOR_ID 8\n"),
            {"MAC 5 IN 0@0 OUT 0@0 7/0/0 0x00 0", "MAC 9 IN 0@0 OUT 0@0 8/0/0 0x00 0"});
        row("a comment about devices", Rule + QByteArray(";   Devices by MAC ID 5\n; Device 1 MAC ID 5\n"),
            {});
    }

    void devicesAreRead()
    {
        auto [content, devices] = Rows<QByteArray, QStringList>::current();
        FieldbusSettingLib& lib = LibFixture::lib();
        lib.deviceNetMaster = master({device(50, 50, 50), device(51, 51, 51)});
        QVERIFY(LibFixture::put(Path, "WS_ID 3\nWS_ID x\nPACHET_RATIO\nENDIAN any\n" + content));
        QVERIFY(lib.readDeviceNetMasterFile(Path));
        QStringList read = text(lib.deviceNetMaster);
        // What the file does not say stays as it was.
        QCOMPARE(read.takeFirst(),
                 QStringLiteral("3 500 any 255 count %1 limits 2048 1024").arg(devices.size()));
        while (devices.size() < DeviceNetMasterConfig::MaxDevices)
            devices << "MAC -1 IN 0@0 OUT 0@0 0/0/0 0x00 0";
        QCOMPARE(read, devices);
    }

    void filesCutShortAreDefined()
    {
        FieldbusSettingLib& lib = LibFixture::lib();
        lib.deviceNetMaster = master({device(5, 3, 1), device(6, 0, 2)});
        QVERIFY(LibFixture::put(Path, Header));
        QVERIFY(lib.writeDeviceNetMasterFile(Path));
        const QByteArray whole = LibFixture::get(Path);
        const int headerEnd = whole.indexOf(Rule);
        const int firstSetting = whole.indexOf("\nWS_ID") + 6;
        lib.deviceNetMaster = {};
        int lastCount = 0;
        for (int length = 0; length <= whole.size(); ++length) {
            QVERIFY(LibFixture::put(Path, whole.left(length)));
            QCOMPARE(lib.readDeviceNetMasterFile(Path), length >= firstSetting);
            QVERIFY(lib.deviceNetMaster.count >= lastCount);
            lastCount = lib.deviceNetMaster.count;
            QVERIFY(length > headerEnd || lastCount == 0);
            if (length > headerEnd && length % 16 != 0 && length != whole.size())
                continue; // a write takes time: it is put on the disk
            // What is left of the header comes through; noise is not made into one that looks whole.
            lib.deviceNetMaster.WS_ID = 63;
            lib.deviceNetMaster.PACHET_RATIO = 255;
            lib.deviceNetMaster.BAUDRATE = 500;
            lib.deviceNetMaster.ENDIAN = "MIDDLE_BIG_ENDIAN";
            QCOMPARE(lib.writeDeviceNetMasterFile(Path), length >= firstSetting);
            if (length >= headerEnd)
                QVERIFY(LibFixture::get(Path).startsWith(whole.left(headerEnd)));
        }
        QCOMPARE(lastCount, 2);
        QCOMPARE(LibFixture::get(Path), whole);
    }

    void writesThatFailLeaveTheFile()
    {
        FieldbusSettingLib& lib = LibFixture::lib();
        lib.deviceNetMaster = master({device(5, 3, 1)});
        QVERIFY(!lib.readDeviceNetMasterFile(Path));
        QVERIFY(!lib.writeDeviceNetMasterFile(Path)); // no file to take the header from
        QVERIFY(LibFixture::localFiles().isEmpty());
        for (const QByteArray& headerless : {QByteArray(), QByteArray(Rule) + "WS_ID 1\n"}) {
            QVERIFY(LibFixture::put(Path, headerless));
            QVERIFY(!lib.writeDeviceNetMasterFile(Path));
            QCOMPARE(LibFixture::get(Path), headerless);
        }
        QVERIFY(LibFixture::put(Path, Header));
        QFile::remove(LibFixture::local("test1.txt"));
        for (const char* scratch : {"test1.txt", "test2.txt"}) {
            QVERIFY(QDir().mkdir(LibFixture::local(scratch)));
            QVERIFY2(!lib.writeDeviceNetMasterFile(Path), scratch);
            QCOMPARE(LibFixture::get(Path), QByteArray(Header));
            QVERIFY(QDir().rmdir(LibFixture::local(scratch)));
        }
        QVERIFY(LibFixture::put(LibFixture::local("test2.txt"), QByteArray(5000, 'x')));
        QVERIFY(lib.writeDeviceNetMasterFile(Path));
        QCOMPARE(LibFixture::get(LibFixture::local("test1.txt")), QByteArray(Header));
    }

    void aNewPathTakesTheLocalHeader()
    {
        FieldbusSettingLib& lib = LibFixture::lib();
        QVERIFY(LibFixture::put(Path, Header));
        lib.deviceNetMaster = master({});
        const QString other = LibFixture::local("other.cfg");
        QVERIFY(lib.writeDeviceNetMasterFile(other));
        QVERIFY(LibFixture::get(other).startsWith(
            "; DeviceNet master\n;WS_ID 9 is the spare\nDRIVER dnmaster\nWS_ID 63\n"));
        QCOMPARE(LibFixture::get(Path), QByteArray(Header));
    }

    // The controller's own file and ours have one layout.
    void thePlantsFileComesThroughUnchanged()
    {
        const QByteArray plant = LibFixture::get(":/plant/fa/dnmst0.cfg");
        QVERIFY(LibFixture::put(Path, plant));
        FieldbusSettingLib& lib = LibFixture::lib();
        QVERIFY(lib.readDeviceNetMasterFile(Path));
        QVERIFY(lib.deviceNetMaster.count > 0);
        QVERIFY(lib.writeDeviceNetMasterFile(Path));
        QCOMPARE(LibFixture::get(Path), plant);
    }
};

QTEST_GUILESS_MAIN(TestDeviceNetFiles)
#include "tst_devicenetfiles.moc"
