#include "DeviceNetMasterFile.h"
#include "FinsClientFile.h"
#include "MesServerFile.h"
#include "Rows.h"
#include "WholeFile.h"

#include <QTemporaryDir>

#include <cerrno>

// What is not understood, or not shown, comes through a read and a write as it was.
namespace {

QByteArray scanList(const QByteArray& vendor, int devices)
{
    DeviceNetMasterConfig record;
    record.count = DeviceNetMasterConfig::MaxDevices;
    record.further.resize(static_cast<std::size_t>(devices - record.count));
    int macId = 0;
    for (DeviceNetMasterDevice& device : record.devices)
        device.MAC_ID = ++macId;
    for (DeviceNetMasterDevice& device : record.further)
        device.MAC_ID = ++macId;
    record.devices[3].inputBytes = 7;
    record.further.back().outputBytes = 3;
    QByteArray content = DeviceNetMasterFile::rewritten("WS_ID 1\nPACHET_RATIO 10\n", record);
    return content.replace("VENDOR_ID 0\n", "VENDOR_ID " + vendor + '\n');
}

} // namespace

class TestKeptValues : public QObject
{
    Q_OBJECT

private slots:
    void formsOfNumbers_data()
    {
        const Rows<QByteArray, int> row;
        row("decimal", "42", 42);
        row("hexadecimal", "0x2A", 42);
        row("with a point", "2.0", 2);
        row("with an exponent", "1e3", 1000);
        row("leading zeros", "007", 7);
        row("a sign", "+5", 5);
        row("a half", "1.5", 0);
        row("beyond 32 bits", "4294967296", 0);
        row("not finite", "inf", 0);
        row("a word", "auto", 0);
    }
    void formsOfNumbers()
    {
        const auto [word, value] = Rows<QByteArray, int>::current();
        const QByteArray content = scanList(word, 18);
        DeviceNetMasterConfig record;
        QVERIFY(DeviceNetMasterFile::read(content, record));
        QCOMPARE(record.devices[2].VENDOR_ID, value);
        QCOMPARE(DeviceNetMasterFile::rewritten(content, record), content);
        record.devices[2].VENDOR_ID = 99;
        QByteArray changed = content;
        int at = -1;
        for (int device = 0; device < 3; ++device)
            at = changed.indexOf("VENDOR_ID " + word, at + 1);
        changed.replace(at, 10 + word.size(), "VENDOR_ID 99");
        QCOMPARE(DeviceNetMasterFile::rewritten(content, record), changed);
    }

    void noDeviceIsDropped()
    {
        const QByteArray content = scanList("1", 40);
        DeviceNetMasterConfig record;
        QVERIFY(DeviceNetMasterFile::read(content, record));
        QCOMPARE(record.count, 16);
        QCOMPARE(record.further.back().MAC_ID, 40);
        QCOMPARE(DeviceNetMasterFile::rewritten(content, record), content);
        // Those that no page shows move with the registers of the others.
        record.devices[0].outputBytes = 4;
        QVERIFY(DeviceNetMasterFile::rewritten(content, record).contains("BLOCK_FROM_RBX 2003 2 3\n"));
        QVERIFY(DeviceNetMasterFile::read("WS_ID 1\n", record));
        QVERIFY(record.further.empty());
    }

    void numbersOfElements_data()
    {
        const Rows<QByteArray, int> row;
        row("decimal", "12", 12);
        row("hexadecimal", "0x0c", 12);
        row("with a point", "2.0", 2);
        row("blanks", " 12 ", 12);
        row("a word", "auto", 0);
        row("empty", "", 0);
    }
    void numbersOfElements()
    {
        const auto [word, value] = Rows<QByteArray, int>::current();
        FinsClientConfig fins;
        QVERIFY(
            FinsClientFile::read("<ClientConfig><ClientNode>" + word + "</ClientNode></ClientConfig>", fins));
        QCOMPARE(fins.ClientNode, value);
        const QByteArray kept = "<ClientNode>" + word + "</ClientNode>";
        QVERIFY(FinsClientFile::written(fins).contains(kept));
        // An element that was not there is written as the value that it has.
        QVERIFY(FinsClientFile::written(fins).contains("<AutoConnect>0</AutoConnect>"));
        fins.ClientNode = 77;
        QVERIFY(FinsClientFile::written(fins).contains("<ClientNode>77</ClientNode>"));
        MesServerConfig mes;
        QVERIFY(MesServerFile::read("<TcpServerConfig><Mode>" + word + "</Mode></TcpServerConfig>", mes));
        QVERIFY(MesServerFile::read("<TcpServerConfig><Mode>3</Mode></TcpServerConfig>", mes));
        QVERIFY(MesServerFile::written(mes).contains("<Mode>3</Mode>"));
    }

    void aDiskThatFailsKeepsTheOldFile_data()
    {
        const Rows<int, bool> row;
        row("written through", 0, true);
        row("an error of the disk", EIO, false);
        row("a full disk", ENOSPC, false);
        row("a file system that cannot write through", EINVAL, true);
    }
    void aDiskThatFailsKeepsTheOldFile()
    {
        static int error = 0;
        const auto [failure, replaced] = Rows<int, bool>::current();
        error = failure;
        const QTemporaryDir directory;
        const QString path = directory.filePath("file");
        QVERIFY(WholeFile::replace(path, "old"));
        const auto sync = [](int /*descriptor*/) {
            errno = error;
            return error == 0 ? 0 : -1;
        };
        QCOMPARE(WholeFile::replace(path, "new", sync), replaced);
        QByteArray content;
        QVERIFY(WholeFile::read(path, content));
        QCOMPARE(content, QByteArray(replaced ? "new" : "old"));
        QCOMPARE(QDir(directory.path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
    }
};

QTEST_GUILESS_MAIN(TestKeptValues)
#include "tst_keptvalues.moc"
