#include "CurrentLink.h"
#include "DataAccess.h"
#include "LibFixture.h"
#include "PendantPower.h"
#include "Rows.h"
#include "SysSettingApi.h"
#include "TimeScale.h"
#include "UsbDrive.h"
#include "ZelFunctions.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <csignal>
#include <ctime>
#include <functional>

#include <sys/resource.h>

namespace {

using Step = std::function<void(UsbDrive&)>;

} // namespace

Q_DECLARE_METATYPE(Step)

using AFetchReplacesTheWholeFileOrNothingRows = Rows<QString, QString, bool>;
using CopiesToADriveThatFailsRows = Rows<Step, bool, bool, bool>;

class TestTransfer : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_link = std::make_unique<MemoryLink>();
        setCurrentLink(m_link.get());
        m_folder = std::make_unique<QTemporaryDir>();
        QDir(m_folder->path()).mkdir("drive");
        setTimeScale(1);
    }

    void cleanup()
    {
        m_link.reset();
        setTimeScale(1);
    }

    void aFetchReplacesTheWholeFileOrNothing_data()
    {
        const AFetchReplacesTheWholeFileOrNothingRows row;
        row("another spelling of the path", "/FA/PFB.cfg", "old.cfg", true);
        row("no such controller file", "/fa/none.cfg", "old.cfg", false);
        row("no such directory", "/fa/pfb.cfg", "none/new.cfg", false);
        row("a directory in its place", "/fa/pfb.cfg", "drive", false);
    }

    void aFetchReplacesTheWholeFileOrNothing()
    {
        const auto [ctrlPath, target, copied] = AFetchReplacesTheWholeFileOrNothingRows::current();
        m_link->files["/fa/pfb.cfg"] = "new";
        QVERIFY(LibFixture::put(local("old.cfg"), "old and longer"));
        QCOMPARE(DataAccess::GetFileFromController2TPU(ctrlPath, m_folder->filePath(target), false), copied);
        QCOMPARE(LibFixture::get(local("old.cfg")), QByteArray(copied ? "new" : "old and longer"));
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
                 (QStringList{"drive", "old.cfg"}));
    }

    void aFullDiskKeepsTheOldFile()
    {
        m_link->files["/fa/pfb.cfg"] = "new";
        QVERIFY(LibFixture::put(local("old.cfg"), "old"));
        // A limit on the size of files stands for the disk: the bytes are refused when they leave the buffer.
        std::signal(SIGXFSZ, SIG_IGN);
        rlimit before{};
        QCOMPARE(getrlimit(RLIMIT_FSIZE, &before), 0);
        const rlimit full{1, before.rlim_max};
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &full), 0);
        const bool copied = DataAccess::GetFileFromController2TPU("/fa/pfb.cfg", local("old.cfg"), false);
        setrlimit(RLIMIT_FSIZE, &before);
        QVERIFY(!copied);
        QCOMPARE(LibFixture::get(local("old.cfg")), QByteArray("old"));
    }

    void aSendTakesTheWholeFileOrNothing()
    {
        const QByteArray content("\0\xff\r\n", 4);
        QVERIFY(LibFixture::put(local("a.cfg"), content));
        QVERIFY(DataAccess::SendFileFromTPU2Controller(local("a.cfg"), "/FA/a.cfg", false));
        QCOMPARE(m_link->files["/fa/a.cfg"], content);
        QVERIFY(!DataAccess::SendFileFromTPU2Controller(local("none.cfg"), "/FA/a.cfg", false));
        QVERIFY(!DataAccess::SendFileFromTPU2Controller(m_folder->path(), "/FA/a.cfg", false));
        QCOMPARE(m_link->files["/fa/a.cfg"], content);
        setCurrentLink(nullptr);
        QVERIFY(!DataAccess::SendFileFromTPU2Controller(local("a.cfg"), "/FA/a.cfg", false));
        QVERIFY(!DataAccess::GetFileFromController2TPU("/FA/a.cfg", local("a.cfg"), false));
    }

    void copiesToADriveThatFails_data()
    {
        const CopiesToADriveThatFailsRows row;
        row("sound", Step([](UsbDrive&) {}), true, true, true);
        row("must not overwrite", Step([](UsbDrive&) {}), true, false, false);
        row("pulled out", Step([](UsbDrive& drive) { drive.pullOut(); }), false, true, false);
        row("another one inserted", Step([](UsbDrive& drive) { drive.insert(drive.path() + "/inner"); }),
            false, true, true);
        row("folder gone", Step([](UsbDrive& drive) { QDir(drive.path()).removeRecursively(); }), false, true,
            false);
        row("read only", Step([](UsbDrive& drive) { drive.setReadOnly(true); }), true, true, false);
        row("full", Step([](UsbDrive& drive) { drive.setFull(true); }), true, true, false);
        row("worn out", Step([](UsbDrive& drive) { drive.failAfterCopies(0); }), true, true, false);
    }

    void copiesToADriveThatFails()
    {
        const auto [fault, mounted, overwrite, copied] = CopiesToADriveThatFailsRows::current();
        UsbDrive& drive = UsbDrive::instance();
        drive.insert(local("drive"));
        QVERIFY(LibFixture::put(local("source"), "new"));
        QVERIFY(LibFixture::put(local("drive/target"), "old"));
        QVERIFY(LibFixture::put(local("drive-side"), "old")); // beside the drive, and no part of it
        QString path = ZelGetUSBDrives();
        QCOMPARE(path, local("drive"));

        fault(drive);
        QCOMPARE(ZelMountFloppy(path) == 0, mounted);
        QCOMPARE(ZelFileCopy(local("source"), local("drive/target"), overwrite) != 0, copied);
        if (QFileInfo::exists(local("drive")))
            QCOMPARE(LibFixture::get(local("drive/target")), QByteArray(copied ? "new" : "old"));
        QVERIFY(ZelFileCopy(local("source"), local("drive-side"), true) != 0);

        drive.setReadOnly(false);
        drive.setFull(false);
        drive.failAfterCopies(-1);
        drive.pullOut();
        QVERIFY(ZelGetUSBDrives().isEmpty());
    }

    void waitsNestAndSleep()
    {
        setTimeScale(10);
        int ticks = 0;
        QTimer ticker;
        connect(&ticker, &QTimer::timeout, this, [&ticks] { ++ticks; });
        ticker.start(5);
        // The outer wait is over long before the inner one.
        QTimer::singleShot(10, this, [] { SysSettingApi::delay_MSec(2000); });

        QElapsedTimer elapsed;
        elapsed.start();
        const std::clock_t before = std::clock();
        SysSettingApi::delay_MSec(500);
        const double busy = 1000.0 * static_cast<double>(std::clock() - before) / CLOCKS_PER_SEC;
        QVERIFY2(elapsed.elapsed() >= 200 && elapsed.elapsed() < 2000, QByteArray::number(elapsed.elapsed()));
        QVERIFY(ticks > 5);
        QVERIFY2(busy < 100, QByteArray::number(busy));
    }

    void restartsAreAskedForOnce()
    {
        SysSettingApi::rebootRde(true, true);
        SysSettingApi::set_bswrsdet(true);
        SysSettingApi::set_bswrsdet(false);
        QCOMPARE(m_link->restarts, 2);

        QSignalSpy spy(&PendantPower::instance(), &PendantPower::restartRequested);
        SysSettingApi::rebootTpu(true);
        QCOMPARE(spy.count(), 0);
        QCoreApplication::processEvents();
        QCOMPARE(spy.count(), 1);
    }

    void networkPorts()
    {
        QCOMPARE(SysSettingApi::getIpAddress().eth2Ip, QString());
        QByteArray& file = m_link->files["/application/network/netports.xml"];
        file = R"(<NetPorts><Port name="ETH3" ip="10.0.0.3" netmask="255.0.0.0"/></NetPorts>)";
        const NetworkAddresses addresses = SysSettingApi::getIpAddress();
        QCOMPARE(addresses.eth3Ip, QString("10.0.0.3"));
        QCOMPARE(addresses.eth3Netmask, QString("255.0.0.0"));
        QCOMPARE(addresses.eth2Ip, QString());
        file.chop(20);
        QCOMPARE(SysSettingApi::getIpAddress().eth3Ip, QString());
    }

private:
    QString local(const char* name) const { return m_folder->filePath(name); }

    std::unique_ptr<MemoryLink> m_link;
    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_GUILESS_MAIN(TestTransfer)
#include "tst_transfer.moc"
