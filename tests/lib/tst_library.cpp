#include "LibFixture.h"
#include "Rows.h"

#include <QElapsedTimer>
#include <QtTest>

namespace {

// A controller that counts what it is asked for and lets the first fetches fail.
class BusyLink : public MemoryLink
{
public:
    int fetchesToFail = 0;
    int fetches = 0;

    bool fetchFile(const QString& ctrlPath, QByteArray& content) override
    {
        return ++fetches > fetchesToFail && MemoryLink::fetchFile(ctrlPath, content);
    }
};

} // namespace

class TestLibrary : public QObject
{
    Q_OBJECT

private slots:
    void fetchTriesTenTimes_data()
    {
        const Rows<int, bool, int> row;
        row("at once", 0, true, 1);
        row("at the third attempt", 2, true, 3);
        row("at the last attempt", 9, true, 10);
        row("never", 10, false, 10);
    }

    void fetchTriesTenTimes()
    {
        const auto [failing, fetched, attempts] = Rows<int, bool, int>::current();
        LibFixture fixture;
        BusyLink link;
        link.files["/fa/pfb.cfg"] = "x";
        link.fetchesToFail = failing;
        setCurrentLink(&link);
        QElapsedTimer timer;
        timer.start();
        QCOMPARE(fixture.lib().getFileFromCtrl(LibFixture::local("pfb.cfg"), "/FA/pfb.cfg"), fetched);
        QCOMPARE(link.fetches, attempts);
        // 100 ms after every failed attempt, the last one included.
        QVERIFY(timer.elapsed() >= 100 * failing - 20);
        QCOMPARE(LibFixture::localFiles().contains("pfb.cfg"), failing < 10);
    }

    void busSwitchFileIsFetchedInTwoSeries()
    {
        LibFixture fixture;
        BusyLink link;
        link.files["/application/fidbus/fieldbus.cfg"] =
            "<FieldbusSettingConfig><b name=\"Mes\"><enable>1</enable></b></FieldbusSettingConfig>";
        setCurrentLink(&link);
        link.fetchesToFail = 19;
        QVERIFY(fixture.lib().readFieldbusCfgFromCtr());
        QVERIFY(fixture.lib().busSwitches.Mes);
        QCOMPARE(link.fetches, 20);

        QVERIFY(fixture.lib().writeFieldbusCfgToCtr());
        QCOMPARE(link.stored, QStringList("/application/fidbus/Fieldbus.cfg"));
    }

    void fetchNeedsItsFolder()
    {
        LibFixture fixture;
        BusyLink link;
        link.files["/fa/pfb.cfg"] = "x";
        setCurrentLink(&link);
        QVERIFY(!fixture.lib().getFileFromCtrl(LibFixture::local("one/two/pfb.cfg"), "/FA/pfb.cfg"));
        QCOMPARE(link.fetches, 0);
        // One level is made.
        QVERIFY(fixture.lib().getFileFromCtrl(LibFixture::local("one/pfb.cfg"), "/FA/pfb.cfg"));
        QCOMPARE(LibFixture::get(LibFixture::local("one/pfb.cfg")), QByteArray("x"));
    }

    void sendTriesOnce()
    {
        LibFixture fixture;
        QVERIFY(LibFixture::put(LibFixture::local("pfb.cfg"), "x"));
        fixture.link.transfersFail = true;
        QElapsedTimer timer;
        timer.start();
        QVERIFY(!fixture.lib().sendFileToCtrl(LibFixture::local("pfb.cfg"), "/FA/pfb.cfg"));
        QVERIFY(timer.elapsed() < 90);
        fixture.link.transfersFail = false;
        QVERIFY(!fixture.lib().sendFileToCtrl(LibFixture::local("missing.cfg"), "/FA/pfb.cfg"));
        QVERIFY(fixture.link.stored.isEmpty());
    }

    void folderOfAFile_data()
    {
        const Rows<QString, bool, QString> row;
        row("there already", "there/a.cfg", true, "there");
        row("one level", "new/a.cfg", true, "new");
        row("two levels", "new/deep/a.cfg", false, "new");
        row("the file's name as a folder", "there/b.cfg/b.cfg", true, "there");
        row("part of a folder's name", "xa.cfg/a.cfg", true, "x");
    }

    void folderOfAFile()
    {
        const auto [path, made, folder] = Rows<QString, bool, QString>::current();
        LibFixture fixture;
        QVERIFY(QDir().mkdir(LibFixture::local("there")));
        QCOMPARE(fixture.lib().checkFilePath(LibFixture::local(path)), made);
        QCOMPARE(QDir(LibFixture::local(folder)).exists(), made);
        QVERIFY(!QDir(LibFixture::local("there/b.cfg")).exists());
    }

    void deletesATreeButWhatIsKept()
    {
        LibFixture fixture;
        const QString root = LibFixture::local("x/im-export");
        QVERIFY(QDir().mkpath(root + "/a/im-export/b"));
        QVERIFY(QDir().mkpath(LibFixture::local("outside")));
        QVERIFY(LibFixture::put(LibFixture::local("outside/precious"), "x"));
        QVERIFY(LibFixture::put(root + "/a/file", "x"));
        QVERIFY(LibFixture::put(root + "/a/im-export/file", "x"));
        QVERIFY(QFile::link(QDir(LibFixture::local("outside")).absolutePath(), root + "/link"));

        QVERIFY(fixture.lib().deleteDir(root, "im-export"));
        QVERIFY(QDir(root).exists());
        QCOMPARE(QDir(root).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList("a"));
        QCOMPARE(QDir(root + "/a").entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
                 QStringList("im-export"));
        QVERIFY(QDir(root + "/a/im-export").isEmpty());
        QVERIFY(QFile::exists(LibFixture::local("outside/precious")));

        QVERIFY(fixture.lib().deleteDir(root, "other"));
        QVERIFY(!QDir(root).exists());
        QVERIFY(fixture.lib().deleteDir(root, "other"));
    }

    void freshObjectAfterDestroy()
    {
        LibFixture fixture;
        fixture.lib().mesServer.Port = "1";
        fixture.lib().heartbeat.Eip_Nod_Switch = true;
        FieldbusSettingLib::destroy();
        QCOMPARE(fixture.lib().mesServer.Port, QString("8008"));
        QVERIFY(!fixture.lib().heartbeat.Eip_Nod_Switch);
    }
};

QTEST_GUILESS_MAIN(TestLibrary)
#include "tst_library.moc"
