#include "Configuration.h"
#include "ConfigurationFindings.h"
#include "StatusTest.h"
#include "TickCost.h"
#include "Traffic.h"
#include "UserSession.h"
#include "VariableTable.h"

#include <functional>

namespace {

const QString FieldbusXml = QStringLiteral("/application/fidbus/fieldbus.xml");
const QString HeartbeatXml = QStringLiteral("/application/fidbus/heartbeat.xml");
const QString EipSlave = QStringLiteral("/fa/dns-1.cfg");

// What happens at the controller while the application is open.
struct Event
{
    enum Kind { Nothing, Cable, Variable, File } kind = Nothing;
    QString name;
    QByteArray from; // of a file; of a variable empty
    QByteArray to;
};

} // namespace

Q_DECLARE_METATYPE(Event)

class TestStatus : public StatusTest
{
    Q_OBJECT

    bool happen(const Event& event)
    {
        switch (event.kind) {
        case Event::Nothing:
            break;
        case Event::Cable:
            return controller().setLinkUp(event.name, event.to == "in");
        case Event::Variable:
            set(event.name, event.to.toDouble());
            return refresh(); // some are looked at then only
        case Event::File:
            return edit(event.name, event.from, event.to) && refresh();
        }
        return true;
    }

private slots:
    void init() { start(); }
    void cleanup() { stop(); }

    void states_data()
    {
        const Rows<QString, Event, QString> row;
        row("as delivered", "PROFINET slave", {}, "good|yes|yes|up|");
        row("off", "DeviceNet slave", {}, "off|no|no||1");
        row("cable out", "PROFINET slave", {Event::Cable, "ProfinetSlave", {}, "out"},
            "failed|yes|yes|down|2");
        row("a cable comes back", "EtherNet/IP slave", {Event::Cable, "EtherNetIPSlave", {}, "in"},
            "good|yes|yes|up|");
        row("a command that stands", "PROFINET slave", {Event::Variable, "ifidbus.pfn2open", {}, "1"},
            "being checked|yes|yes|up|");
        row("another byte order in a variant", "PROFINET slave",
            {Event::File, "/application/fidbus/fixed/pfb_fixed.cfg", "BIG_ENDIAN", "LITTLE_ENDIAN"},
            "outside its settings|yes|yes|up|1");
        row("saved as off", "PROFINET slave",
            {Event::File, FieldbusXml, "\"ProfinetSlave\" enable=\"1\"", "\"ProfinetSlave\" enable=\"0\""},
            "outside its settings|no|yes|up|4");
        row("saved with another address", "EtherNet/IP slave",
            {Event::File, EipSlave, "192.168.2.22", "192.168.2.23"}, "failed|yes|yes|down|3");
        row("a server that listens to nobody", "MES server",
            {Event::Variable, "imes.tcp_server_active", {}, "1"}, "failed|yes|yes|down|1");
        row("a client that is refused", "FINS client", {Event::Variable, "ifins_tcp.enable", {}, "1"},
            "failed|no|yes|down|1");
        row("no ProfiSAFE", "ProfiSAFE", {}, "off|no|||");
        row("ProfiSAFE", "ProfiSAFE", {Event::Variable, "io_man.profisafe_status", {}, "1"}, "good|yes|||");
        row("two ports in one net", "Controller: files and ports",
            {Event::File, "/application/network/netports.xml", "192.168.2.22", "192.168.1.23"},
            "outside its settings|yes|||1");
    }

    void states()
    {
        const auto [role, event, expected] = Rows<QString, Event, QString>::current();
        QVERIFY(show());
        QVERIFY(happen(event));
        QTRY_COMPARE(overview(role), expected);
    }

    // What runs is what the controller came up with, also for a pendant that was restarted meanwhile.
    void whatWasSavedRunsAfterTheRestart()
    {
        restartAt(1.25);
        QVERIFY(show());
        QVERIFY(find("label_pending")->isHidden());
        QVERIFY(edit(FieldbusXml, "\"DeviceNetSlave\" enable=\"0\"", "\"DeviceNetSlave\" enable=\"1\""));
        QVERIFY(edit(EipSlave, "192.168.2.22", "192.168.2.30"));
        QVERIFY(refresh());
        const QString pending = "Saved, runs after the next restart: EtherNet/IP slave, DeviceNet slave";
        QTRY_COMPARE(text("label_pending"), pending);

        QVERIFY(press("exitBtn"));
        QTRY_VERIFY(!find("StatusMain"));
        QSignalSpy restarted(&window(), &PendantWindow::restarted);
        QVERIFY(press("restartButton"));
        QVERIFY(restarted.wait(10000));
        QVERIFY(show());
        QTRY_COMPARE(text("label_pending"), pending);

        controller().requestRestart();
        QTRY_VERIFY_WITH_TIMEOUT(text("label_contact").startsWith("The controller does not answer"), 10000);
        QTRY_COMPARE(overview("PROFINET slave").section('|', 0, 0), QString("being checked"));
        QVERIFY(!find("refreshBtn")->isEnabled());
        QTRY_VERIFY_WITH_TIMEOUT(isRead(), 10000);
        QTRY_VERIFY(find("label_pending")->isHidden());
        QCOMPARE(overview("DeviceNet slave").section('|', 1, 2), QString("yes|yes"));
        QTRY_COMPARE(overview("PROFINET slave").section('|', 0, 0), QString("good"));
    }

    // The same codes as from the files alone, and what runs beside them.
    void findingsAreThoseOfTheFiles()
    {
        QVERIFY(edit(HeartbeatXml, "1.000", "nan"));
        QVERIFY(edit("/fa/dnmst0.cfg", "MAC ID 9", "MAC ID 5"));
        QVERIFY(show() && press("findingsBtn"));
        const Configuration configuration = Configuration::from([this](const KnownFile& file) {
            return std::optional<QByteArray>(controllerFile(file.controller));
        });
        QStringList shown = codes();
        for (const Finding& finding : findingsOf(configuration))
            QVERIFY2(shown.removeOne(finding.codeText()), qPrintable(finding.codeText()));
        for (const QString& code : qAsConst(shown))
            QVERIFY2(code.startsWith("FB9"), qPrintable(code));
        QVERIFY(rows("findingsTable").first().contains("\n")); // cause and next step
        QCOMPARE(text("label_count"), QString("%1 finding(s), the worst first").arg(codes().size()));
    }

    void rolePages_data()
    {
        const Rows<QString, Event, QStringList> row;
        row("a finding with its facts and the next step", "EtherNet/IP slave", {},
            {"FB901|The link of the EtherNet/IP slave is down, and its settings are consistent: the cable or "
             "the "
             "partner.",
             "value|0 (ifidbus.eip_link_state)",
             "What to do|Look at the link light of the connector: dark, it is "
             "the cable or the partner's power; lit, it is the partner's configuration."});
        row("settings and what a byte order does", "EtherNet/IP slave", {},
            {"Settings: EtherNet/IP slave (fa/dns-1.cfg)|", "IP address|192.168.2.22",
             "byte order|LITTLE_ENDIAN", "|0x01020304 goes out as 04 03 02 01"});
        row("the middle of the road", "PROFINET slave",
            {Event::File, "/fa/pfb.cfg", "BIG_ENDIAN", "MIDDLE_BIG_ENDIAN"},
            {"|0x01020304 goes out as 02 01 04 03"});
        row("the words of the codes", "DeviceNet master", {},
            {"Device 1, MAC ID 5|connected",
             "Device 4, MAC ID 20|not connected: no answer on the network (code 2)"});
        row("slave positions", "EtherNet/IP master", {},
            {"Slave 1, fixed|connected", "Slave 2, fixed|not connected"});
        row("watches", "Heartbeat", {}, {"Settings: EtherNet/IP slave (heartbeat.xml)|"});
        row("ports", "Controller: files and ports", {}, {"State|good"});
    }

    void rolePages()
    {
        const auto [role, event, expected] = Rows<QString, Event, QStringList>::current();
        QVERIFY(show());
        QVERIFY(openRole(role));
        QVERIFY(happen(event));
        const auto missing = [this, &wanted = expected] {
            QStringList lacking = wanted;
            for (const QString& row : rows("roleTable"))
                lacking.removeAll(row);
            return lacking.join('\n');
        };
        QTRY_COMPARE(missing(), QString());
        QVERIFY(press("backBtn"));
        QVERIFY(find("overviewTable")->isVisible());
    }

    void filesAreFetchedWhenTheyMayHaveChanged()
    {
        QVERIFY(show());
        traffic().clear();
        QTest::qWait(500);
        QCOMPARE(traffic().count(Traffic::Fetch), 0);
        QVERIFY(put(HeartbeatXml, controllerFile(HeartbeatXml).replace("1.000", "4.000")));
        set("ifidbus.xml_heartbeat", 1);
        QTRY_VERIFY(traffic().count(Traffic::Fetch) > 0);
        for (const QString& path : traffic().fetches())
            QCOMPARE(path, HeartbeatXml);
        QVERIFY(openRole("EtherNet/IP slave"));
        QTRY_VERIFY(rows("roleTable").join('\n').contains("4.000"));
        QVERIFY(refresh());
        QVERIFY(traffic().count(Traffic::Fetch) >= int(FileCount));
        QCOMPARE(traffic().writeCount(), 0);
        QCOMPARE(traffic().count(Traffic::Store), 0);
    }

    // A transfer may break a file once; a file that is broken is so each time.
    void brokenTransfers_data()
    {
        const Rows<QString, QString> row;
        row("once", "fetch-cut-short:1:" + HeartbeatXml, "");
        row("always", "fetch-cut-short:-1:" + HeartbeatXml, "FB103");
        row("not to be had at first", "fetch-fails:2:" + HeartbeatXml, "");
        row("not to be had", "fetch-fails:-1:" + HeartbeatXml, "FB101");
    }

    void brokenTransfers()
    {
        const auto [fault, expected] = Rows<QString, QString>::current();
        QVERIFY(fail(fault));
        QVERIFY(show() && press("findingsBtn"));
        QStringList found;
        for (const QString& row : rows("findingsTable")) {
            if (row.contains("heartbeat.xml"))
                found << row.section('|', 0, 0);
        }
        QCOMPARE(found.join(' '), expected);
    }

    void whatWasHadIsKeptWhenItCannotBeFetched()
    {
        QVERIFY(show());
        QVERIFY(fail("fetch-fails:-1:" + HeartbeatXml) && refresh());
        QVERIFY(press("findingsBtn") && !codes().contains("FB101"));
        QVERIFY(openRole("Controller: files and ports"));
        QVERIFY(rows("roleTable").join('\n').contains("heartbeat.xml|could not be fetched the last time"));
    }

    void theWatchCounts()
    {
        QVERIFY(show() && press("findingsBtn"));
        const auto has = [this](const char* code) {
            return rows("findingsTable").join('\n').contains(QLatin1String(code) + "|DeviceNet master");
        };
        QVERIFY(controller().setLinkUp("DeviceNetMaster", false)); // watched for 5 s
        QTRY_VERIFY(has("FB901"));
        QVERIFY(!has("FB915"));
        QTRY_VERIFY(has("FB915"));
        QTRY_VERIFY(has("FB916"));
        QVERIFY(!has("FB915"));
    }

    // The controller has some seconds to take what is announced.
    void anAnnouncementIsNotTaken()
    {
        QVERIFY(fail("heartbeat-not-reloaded") && show() && press("findingsBtn"));
        controller().writeVariable("ifidbus.xml_heartbeat", 0, 1);
        QTest::qWait(1000);
        QVERIFY(!codes().contains("FB912"));
        QTRY_VERIFY_WITH_TIMEOUT(codes().contains("FB912"), 10000);
    }

    void userLevelDrops()
    {
        QVERIFY(show());
        QVERIFY(openRole("DeviceNet master"));
        dropUserLevel();
        QTRY_VERIFY(!find("StatusMain"));
        UserSession::instance().setUserLevel(3);
        QVERIFY(show());
        QVERIFY(press("exitBtn"));
        QTRY_VERIFY(!find("StatusMain"));
    }

    // Nothing of the other application is touched by this one, and the other way round.
    void besideTheSettings()
    {
        QVERIFY(show());
        const int followed = VariableTable::instance().subscribedHandles();
        QVERIFY(followed > 0 && press("exitBtn"));
        QTRY_VERIFY(!find("StatusMain"));
        MsgBoxScript::answerByDefault(MsgBox::Confirmed);
        window().openApplication("fieldbussetting");
        QTRY_VERIFY(find("FbMainWidget") && find("FbMainWidget")->isVisible());
        QVERIFY(settle());
        QVERIFY(press("exitBtn"));
        QTRY_VERIFY(!find("FbMainWidget"));
        QCOMPARE(VariableTable::instance().subscribedHandles(), followed);
    }

    void tickWithoutChangeCostsNothing()
    {
        QVERIFY(show());
        for (const char* page : {"overviewBtn", "findingsBtn"}) {
            QVERIFY(press(page) && settle());
            TickCost cost;
            // Watches that are on their way are counted until they have tripped.
            const bool isFree = QTest::qWaitFor(
                [&] {
                    cost = TickCost::of(*this);
                    return cost.styleChanges == 0 && cost.paints == 0 && cost.allocations == 0;
                },
                10000);
            QVERIFY2(isFree, qPrintable(QStringLiteral("%1 allocations, %2 style changes, %3 paints")
                                            .arg(cost.allocations)
                                            .arg(cost.styleChanges)
                                            .arg(cost.paints)));
        }
    }
};

PENDANT_TEST_MAIN(TestStatus)
#include "tst_status.moc"
