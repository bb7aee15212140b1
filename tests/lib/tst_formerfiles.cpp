#include "FileLocations.h"
#include "FormerFiles.h"
#include "LibFixture.h"
#include "Rows.h"
#include "TestMain.h"

using Content = FileVersion::Content;

namespace {

const QString Mes = QStringLiteral("/application/mes/TcpServerConfig.xml");
const QByteArray Former = "<TcpServerConfig><Port>1</Port></TcpServerConfig>";
const QByteArray Sent = "<TcpServerConfig><Port>2</Port></TcpServerConfig>";

VersionStore store()
{
    return VersionStore(FileLocations::versionsDirectory());
}

QByteArray kept(const FileVersion::Side& side)
{
    return store().bytes(side).value_or("(none)");
}

} // namespace

/// What is kept of a controller's file before the pendant replaces it.
class TestFormerFiles : public QObject
{
    Q_OBJECT

private slots:
    void formerIsKept_data();
    void formerIsKept();
    void diskThatIsFull();
    void actIsOneGroup();
    void serviceIsBracketed_data();
    void serviceIsBracketed();
};

void TestFormerFiles::formerIsKept_data()
{
    // What is known of the file, whether the transfer works, what is sent; the fetches that it costs,
    // versions, what is kept.
    const Rows<QString, bool, QByteArray, int, int, QByteArray> row;
    row("read before: no transfer", "read", true, Sent, 0, 1, Former);
    row("never read: one", "", true, Sent, 1, 1, Former);
    row("seen since it was read", "seen", true, Sent, 0, 1, "<seen/>");
    row("seen, and there was none", "absent", true, Sent, 0, 1, "(none)");
    row("cannot be had, and is sent all the same", "missing", true, Sent, 0, 1, "(none)");
    row("the same", "read", true, Former, 0, 0, "");
    row("cannot be sent", "read", false, Sent, 0, 1, Former);
}

void TestFormerFiles::formerIsKept()
{
    const auto [known, works, sent, fetches, versions, former] =
        Rows<QString, bool, QByteArray, int, int, QByteArray>::current();
    LibFixture fixture;
    const QString local = FileLocations::of(ConfigFile::MesServer).local;
    if (known != QLatin1String("missing"))
        fixture.link.files[Mes.toLower()] = Former;
    if (known == QLatin1String("read") || known == QLatin1String("seen"))
        QVERIFY(LibFixture::put(local, Former) && LibFixture::lib().readMesSetFile(local));
    if (known == QLatin1String("seen"))
        FormerFiles::instance().saw(Mes.toUpper(), "<seen/>");
    if (known == QLatin1String("absent"))
        FormerFiles::instance().sawCopy(Mes, QString());
    fixture.link.fetches = 0;
    fixture.link.transfersFail = !works;
    QVERIFY(LibFixture::put(local, sent));
    QCOMPARE(LibFixture::lib().sendFileToCtrl(local, Mes), works);
    QCOMPARE(fixture.link.fetches, fetches);
    const std::vector<FileVersion> all = store().versions();
    QCOMPARE(int(all.size()), versions);
    for (const FileVersion& version : all) {
        QCOMPARE(kept(version.former), former);
        QCOMPARE(kept(version.sent), sent);
        QCOMPARE(version.hasFailed, !works);
        QVERIFY((version.former.content == Content::Absent) == (known == QLatin1String("absent")));
    }
    QCOMPARE(LibFixture::localFiles(), QStringList("TcpServerConfig.xml"));
}

// The save goes on, and the next version tells of the one that is lost.
void TestFormerFiles::diskThatIsFull()
{
    LibFixture fixture;
    const QString local = FileLocations::of(ConfigFile::MesServer).local;
    fixture.link.files[Mes.toLower()] = Former;
    QVERIFY(LibFixture::put(FileLocations::versionsDirectory(), "in its place")); // no folder can be made
    QVERIFY(LibFixture::put(local, Sent) && LibFixture::lib().sendFileToCtrl(local, Mes));
    QCOMPARE(fixture.link.files[Mes.toLower()], Sent);
    QVERIFY(QFile::remove(FileLocations::versionsDirectory()));
    QVERIFY(LibFixture::put(local, Former) && LibFixture::lib().sendFileToCtrl(local, Mes));
    const std::vector<FileVersion> all = store().versions();
    QCOMPARE(all.size(), std::size_t(2));
    QVERIFY(all[0].former.content == Content::Lost && all[0].file == Mes);
    QCOMPARE(kept(all[1].former), Sent);
}

void TestFormerFiles::actIsOneGroup()
{
    LibFixture fixture;
    const QString local = LibFixture::local(QStringLiteral("any"));
    const auto send = [&local](const QString& path) {
        return LibFixture::put(local, path.toUtf8()) && LibFixture::lib().sendFileToCtrl(local, path);
    };
    QVERIFY(send("/fa/1"));
    {
        const FormerFiles::Act act(FileVersion::Act::Imported);
        QVERIFY(send("/fa/2") && send("/fa/3"));
    }
    QVERIFY(send("/fa/4"));
    QVector<qint64> groups;
    for (const FileVersion& version : store().versions())
        groups << version.group;
    QCOMPARE(groups, QVector<qint64>({1, 2, 2, 4}));
}

void TestFormerFiles::serviceIsBracketed_data()
{
    const Rows<bool, QByteArray> row; // whether it was sent, and what is then kept as sent
    row("sent", true, Sent);
    row("failed", false, "(none)");
}

void TestFormerFiles::serviceIsBracketed()
{
    const auto [success, sent] = Rows<bool, QByteArray>::current();
    LibFixture fixture;
    fixture.link.files[Mes.toLower()] = Former;
    FormerFiles::instance().serviceEnds(Mes, true);
    QVERIFY(store().versions().empty());
    FormerFiles::instance().serviceBegins(Mes);
    QCOMPARE(kept(store().versions().front().former), Former); // before anything is sent
    fixture.link.files[Mes.toLower()] = Sent;
    FormerFiles::instance().serviceEnds(Mes, success);
    FormerFiles::instance().serviceEnds(Mes, true); // of another page's save
    const std::vector<FileVersion> all = store().versions();
    QCOMPARE(all.size(), std::size_t(1));
    QCOMPARE(kept(all[0].former), Former);
    QCOMPARE(kept(all[0].sent), sent);
    QCOMPARE(all[0].hasFailed, !success);

    // A save that changes nothing is none.
    FormerFiles::instance().serviceBegins(Mes);
    FormerFiles::instance().serviceEnds(Mes, true);
    QCOMPARE(store().versions().size(), std::size_t(1));
}

QTEST_GUILESS_MAIN(TestFormerFiles)
#include "tst_formerfiles.moc"
