#include "EventLog.h"
#include "JsonLines.h"
#include "Rows.h"
#include "VersionStore.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <cerrno>

namespace {

using Content = FileVersion::Content;
using Bytes = VersionStore::Bytes;

int failingSync(int /*descriptor*/)
{
    errno = ENOSPC;
    return -1;
}

int callsLeft = 0;
int syncThatFailsLater(int /*descriptor*/)
{
    errno = EIO;
    return callsLeft-- > 0 ? 0 : -1;
}

FileVersion versionOf(const QString& file)
{
    FileVersion version;
    version.file = file;
    version.time = QDateTime::currentDateTimeUtc();
    return version;
}

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool put(const QString& path, const QByteArray& content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

} // namespace

/// What outlasts the pendant: former versions of files, and the log of events.
class TestHistory : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_directory = std::make_unique<QTemporaryDir>(); }
    void versionsComeBack();
    void versionsAreBounded();
    void storeSurvives_data();
    void storeSurvives();
    void contentThatHasChangedIsNotGiven();
    void tornLogIsMended_data();
    void tornLogIsMended();
    void logIsBounded();
    void logWaitsForTheDisk();

private:
    QString path(const char* name) const { return m_directory->filePath(QLatin1String(name)); }
    std::unique_ptr<QTemporaryDir> m_directory;
};

void TestHistory::versionsComeBack()
{
    VersionStore store(path("versions"));
    FileVersion first = versionOf("/FA/pfb.cfg");
    first.act = FileVersion::Act::Imported;
    QCOMPARE(store.add(first, Bytes::of("a"), Bytes::of("b")), 1);
    FileVersion second = versionOf("/application/fidbus/fieldbus.xml");
    second.group = 1;
    QCOMPARE(store.add(second, {Content::Absent}, {}), 2);
    QVERIFY(store.setFailed(1) && store.setSent(2, Bytes::of("c")) && !store.setSent(3, Bytes::of("c")));
    const std::vector<FileVersion> all = VersionStore(path("versions")).versions();
    QCOMPARE(all.size(), std::size_t(2));
    QCOMPARE(all[0].file, first.file);
    QCOMPARE(all[0].time.toMSecsSinceEpoch(), first.time.toMSecsSinceEpoch());
    QVERIFY(all[0].act == first.act && all[0].hasFailed && !all[1].hasFailed);
    QVERIFY(all[0].group == 1 && all[1].group == 1);
    QCOMPARE(store.bytes(all[0].former), std::optional<QByteArray>("a"));
    QCOMPARE(store.bytes(all[0].sent), std::optional<QByteArray>("b"));
    QVERIFY(all[1].former.content == Content::Absent && !store.bytes(all[1].former));
    QCOMPARE(store.bytes(all[1].sent), std::optional<QByteArray>("c"));
}

// Of one file by their number, of all by their bytes; what one version sent and the next found counts once.
void TestHistory::versionsAreBounded()
{
    constexpr int Versions = 3;
    const VersionStore::Limits limits = {Versions, 1000};
    VersionStore store(path("versions"), limits);
    QByteArray last = QByteArray::number(0);
    for (int i = 1; i <= 5; ++i) {
        const QByteArray next = QByteArray::number(i);
        // Other cases of letters are the same file to the controller.
        QVERIFY(store.add(versionOf(i % 2 != 0 ? "/fa/a" : "/FA/a"), Bytes::of(last), Bytes::of(next)) != 0);
        last = next;
    }
    std::vector<FileVersion> all = store.versions();
    QCOMPARE(all.size(), std::size_t(Versions));
    QCOMPARE(all.front().number, 3);
    QCOMPARE(store.bytes(all.front().former), std::optional<QByteArray>("2"));
    const QStringList contents = {"*.bytes"};
    QCOMPARE(QDir(path("versions")).entryList(contents).size(), Versions + 1);

    QVERIFY(store.add(versionOf("/fa/b"), Bytes::of(QByteArray(600, 'x')), Bytes::of("y")) != 0);
    QCOMPARE(store.versions().size(), std::size_t(Versions + 1));
    QVERIFY(store.add(versionOf("/fa/c"), Bytes::of(QByteArray(600, 'z')), Bytes::of("y")) != 0);
    all = store.versions();
    QCOMPARE(all.size(), std::size_t(1)); // the newest is kept
    QVERIFY(store.add(versionOf("/fa/c"), Bytes::of(QByteArray(2000, 'z')), Bytes::of("y")) != 0);
    QCOMPARE(store.versions().size(), std::size_t(1));
    QCOMPARE(QDir(path("versions")).entryList(contents).size(), 2);
}

void TestHistory::storeSurvives_data()
{
    // Syncs that work before the disk fails, whether the version is added, and what is kept of its former
    // file.
    const Rows<int, bool, int> row;
    row("nothing can be written", 0, false, -1);
    row("the index cannot be written", 2, false, -1);
    row("all is written", 3, true, int(Content::Kept));
}

void TestHistory::storeSurvives()
{
    const auto [syncs, isAdded, content] = Rows<int, bool, int>::current();
    VersionStore good(path("versions"));
    QVERIFY(good.add(versionOf("/fa/a"), Bytes::of("old"), Bytes::of("new")) != 0);
    const QByteArray index = contentOf(good.indexPath());
    const QStringList names = QDir(path("versions")).entryList(QDir::Files);
    callsLeft = syncs;
    VersionStore store(path("versions"), {}, syncThatFailsLater);
    QCOMPARE(store.add(versionOf("/fa/b"), Bytes::of("was"), Bytes::of("is")) != 0, isAdded);
    if (isAdded) {
        QCOMPARE(int(store.versions().back().former.content), content);
    } else {
        QCOMPARE(contentOf(good.indexPath()), index);
        QCOMPARE(QDir(path("versions")).entryList(QDir::Files), names);
    }
    // What a power failure leaves of a version that was being written, and a line that is none.
    QVERIFY(put(path("versions/") + "0123.bytes.aBcDeF", "half") &&
            put(path("versions/0123.bytes"), "orphan"));
    QVERIFY(put(good.indexPath(), contentOf(good.indexPath()) + "{\"number\":"));
    const std::size_t before = good.versions().size();
    QVERIFY(good.add(versionOf("/fa/b"), {}, Bytes::of("is")) != 0);
    QCOMPARE(good.versions().size(), before + 1);
    QVERIFY(QDir(path("versions")).entryList({"0123*"}).isEmpty());
    // An index that the disk does not give is not taken for none.
    QVERIFY(QFile::remove(good.indexPath()) && QDir().mkdir(good.indexPath()));
    QCOMPARE(good.add(versionOf("/fa/b"), Bytes::of("1"), Bytes::of("2")), 0);
}

void TestHistory::contentThatHasChangedIsNotGiven()
{
    VersionStore store(path("versions"));
    store.add(versionOf("/fa/a"), Bytes::of("old"), Bytes::of("new"));
    const FileVersion::Side former = store.versions().front().former;
    const QString file = path("versions/") + former.hash + ".bytes";
    QVERIFY(put(file, "0ld"));
    QVERIFY(!store.bytes(former));
    store.add(versionOf("/fa/a"), Bytes::of("old"), Bytes::of("new"));
    QCOMPARE(store.bytes(former), std::optional<QByteArray>("old")); // written anew
}

void TestHistory::tornLogIsMended_data()
{
    const Rows<QByteArray, int> row; // what stands at the end, and the lines that count
    row("whole", "", 2);
    row("half a line", "{\"n\":", 2);
    row("no line feed", "{\"n\":3}", 2);
    row("zeros of a file that was made longer", QByteArray(9000, '\0'), 2);
    row("a line that is no JSON", "{\"n\"\n", 2);
    row("one of another kind", "[1]\n", 2);
}

void TestHistory::tornLogIsMended()
{
    const auto [tail, lines] = Rows<QByteArray, int>::current();
    const QString file = path("log");
    QVERIFY(put(file, "{\"n\":1}\n{\"n\":2}\n" + tail));
    EventLog log(file);
    QCOMPARE(log.events().size(), std::size_t(lines));
    QVERIFY(log.append({{"n", 9}}));
    const std::vector<QJsonObject> events = EventLog(file).events();
    QCOMPARE(events.size(), std::size_t(lines + 1));
    QCOMPARE(events.back()["n"].toInt(), 9);
    QVERIFY(contentOf(file).endsWith("\n{\"n\":9}\n"));
    QVERIFY(!contentOf(file).contains('\0'));
}

void TestHistory::logIsBounded()
{
    constexpr qint64 Most = 1000;
    EventLog log(path("log"), Most);
    for (int i = 0; i < 500; ++i) {
        QVERIFY(log.append({{"n", i}}));
        QVERIFY(QFileInfo(log.path()).size() <= Most);
    }
    const std::vector<QJsonObject> events = log.events();
    QVERIFY(events.size() > 20);
    // The newest without a gap.
    for (std::size_t i = 0; i < events.size(); ++i)
        QCOMPARE(events[i]["n"].toInt(), int(500 - events.size() + i));
}

void TestHistory::logWaitsForTheDisk()
{
    const QString folder = path("later");
    EventLog log(folder + "/log");
    QVERIFY(!log.append({{"n", 1}}) && !log.append({{"n", 2}}));
    QCOMPARE(log.events().size(), std::size_t(2));
    QVERIFY(QDir().mkdir(folder));
    QVERIFY(log.append({{"n", 3}}) && log.isWritten());
    QCOMPARE(EventLog(log.path()).events().size(), std::size_t(3));

    const QByteArray before = contentOf(log.path());
    EventLog failing(log.path(), EventLog::MostBytes, failingSync);
    QVERIFY(!failing.append({{"n", 4}}));
    QCOMPARE(contentOf(log.path()), before); // not half of it
    for (std::size_t i = 0; i < 2 * EventLog::MostWaiting; ++i)
        failing.append({{"n", 5}});
    QCOMPARE(failing.events().size(), 3 + EventLog::MostWaiting);
}

QTEST_GUILESS_MAIN(TestHistory)
#include "tst_history.moc"
