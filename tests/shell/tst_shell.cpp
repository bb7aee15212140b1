#include "BusFileDataManager.h"
#include "Faults.h"
#include "IdleCounter.h"
#include "PendantFixture.h"
#include "UserSession.h"
#include "VariableTable.h"
#include "ZelBaseWidget.h"

#include <QPushButton>
#include <QStackedWidget>

namespace {

const QString FieldbusXml = QStringLiteral("/application/fidbus/fieldbus.xml");

QByteArray fieldbusWith(const QStringList& roles)
{
    QByteArray content = "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<Fieldbus>\n";
    for (const QString& role : roles)
        content += "<Bus name=\"" + role.toUtf8() + "\" enable=\"1\"/>\n";
    return content + "</Fieldbus>\n";
}

QStringList visibleButtons(const PendantFixture& pendant)
{
    QStringList names;
    for (const QPushButton* button : pendant.find("menusGroupBox")->findChildren<QPushButton*>()) {
        if (button->isVisible())
            names << button->objectName();
    }
    names.sort();
    return names;
}

} // namespace

class TestShell : public QObject
{
    Q_OBJECT

private slots:
    void menuShowsWhatIsOn_data();
    void menuShowsWhatIsOn();
    void menuAppearsWhateverIsReported_data();
    void menuAppearsWhateverIsReported();
    void secondNotificationIsIgnored();
    void pageIsCreatedOnce();
    void inputIsBlockedInPairs();
    void exitByFinger();
    void userLevel_data();
    void userLevel();
    void idleOnlyWhileVisible();
    void subscriptionOrder();
    void subscriptionFailureStopsTheRest();
};

void TestShell::menuShowsWhatIsOn_data()
{
    QTest::addColumn<QStringList>("roles");
    QTest::addColumn<QStringList>("shown");
    QTest::newRow("nothing") << QStringList() << QStringList();
    QTest::newRow("two roles") << QStringList({"Mes", "DeviceNetMaster"})
                               << QStringList({"devicemBtn", "mesBtn"});
    QTest::newRow("other case") << QStringList({"mes", "devicenetmaster"}) << QStringList();
    QTest::newRow("unknown role") << QStringList({"Canopen"}) << QStringList();
}

void TestShell::menuShowsWhatIsOn()
{
    QFETCH(QStringList, roles);
    PendantFixture pendant;
    pendant.controller().variables().set("io_man.profisafe_status", 0);
    QVERIFY(pendant.controller().files().write(FieldbusXml, fieldbusWith(roles)));
    QVERIFY(pendant.open());
    const QStringList buttons = visibleButtons(pendant);
    QVERIFY(buttons.contains("heartbeatBtn") && buttons.contains("exitBtn"));
    QStringList shown;
    for (const char* role :
         {"btn_pfss", "deviceBtn", "devicemBtn", "eipMasterBtn", "etherCatBtn", "etherCatMBtn", "etherNetBtn",
          "mesBtn", "mtcpMasterBtn", "pfbPfnBtn", "pnmBtn"}) {
        if (buttons.contains(role))
            shown << role;
    }
    QTEST(shown, "shown");
}

void TestShell::menuAppearsWhateverIsReported_data()
{
    QTest::addColumn<QString>("fault");
    QTest::newRow("no bus configuration") << "fetch-fails:-1:/application/fidbus/fieldbus.xml";
    QTest::newRow("no mapping") << "fetch-fails:-1:/application/fidbus/fieldbus_config.xml";
    QTest::newRow("garbage") << "fetch-garbage";
    QTest::newRow("nothing at all") << "fetch-fails";
}

void TestShell::menuAppearsWhateverIsReported()
{
    QFETCH(QString, fault);
    PendantFixture pendant;
    QVERIFY(pendant.controller().faults().setFromText(fault));
    MsgBoxScript::answerByDefault(MsgBox::Confirmed);
    QVERIFY(pendant.open());
    QVERIFY(visibleButtons(pendant).contains("exitBtn"));
    for (const QWidget* window : QApplication::topLevelWidgets())
        QVERIFY(!(window->isVisible() && window->inherits("ProgressBarWidget")));
}

void TestShell::secondNotificationIsIgnored()
{
    PendantFixture pendant;
    QVERIFY(pendant.open());
    const QStringList before = visibleButtons(pendant);
    QVERIFY(pendant.openPage("heartbeatBtn"));
    QVERIFY(
        pendant.controller().files().write(FieldbusXml, fieldbusWith({"DeviceNetSlave", "ProfinetMaster"})));
    BusFileDataManager::getInstance()->emitGetFieldXml();
    QVERIFY(pendant.settle());
    QCOMPARE(visibleButtons(pendant), before);
    QVERIFY(pendant.find("HeartbeatDetectionWidget")->isVisible()); // the start page was not selected again
}

void TestShell::pageIsCreatedOnce()
{
    PendantFixture pendant;
    QVERIFY(pendant.open());
    QVERIFY(pendant.openPage("heartbeatBtn"));
    QWidget* first = pendant.find("HeartbeatDetectionWidget");
    const int fetches = pendant.controller().traffic().fetches().size();
    QVERIFY(pendant.openPage("heartbeatBtn"));
    QCOMPARE(pendant.find("HeartbeatDetectionWidget"), first);
    QCOMPARE(pendant.controller().traffic().fetches().size(), fetches);
}

void TestShell::inputIsBlockedInPairs()
{
    PendantFixture pendant;
    QVERIFY(pendant.open());
    QVERIFY(pendant.openPage("heartbeatBtn"));
    QWidget* menu = pendant.find("FbMainWidget");
    QWidget* page = pendant.find("HeartbeatDetectionWidget");
    const auto signal = [page](bool on) {
        QMetaObject::invokeMethod(page, "mouseEventSignal", Q_ARG(bool, on));
    };
    signal(true);
    signal(true);
    signal(false);
    QVERIFY(menu->testAttribute(Qt::WA_TransparentForMouseEvents));
    QVERIFY(!pendant.press("exitBtn"));
    signal(false);
    QVERIFY(!menu->testAttribute(Qt::WA_TransparentForMouseEvents));
}

// The button deletes the page that it stands on while its own click is under way.
void TestShell::exitByFinger()
{
    PendantFixture pendant;
    for (int round = 0; round < 3; ++round) {
        QVERIFY(pendant.open());
        QVERIFY(pendant.openPage("heartbeatBtn"));
        QVERIFY(pendant.press("exitBtn"));
        QTRY_VERIFY(!pendant.isOpen());
        QVERIFY(!pendant.find("FbMainWidget"));
        QTest::qWait(50);
    }
    QCOMPARE(VariableTable::instance().subscribedHandles(), 0);
}

void TestShell::userLevel_data()
{
    QTest::addColumn<int>("level");
    QTest::addColumn<bool>("staysOpen");
    QTest::newRow("5") << 5 << true;
    QTest::newRow("3 is enough") << 3 << true;
    QTest::newRow("2 is not") << 2 << false;
    QTest::newRow("0") << 0 << false;
}

void TestShell::userLevel()
{
    QFETCH(int, level);
    PendantFixture pendant;
    QVERIFY(pendant.open());
    UserSession::instance().setUserLevel(level);
    QTest::qWait(100);
    QTEST(pendant.isOpen(), "staysOpen");
    QCOMPARE(pendant.messages(), QStringList());
}

void TestShell::idleOnlyWhileVisible()
{
    PendantFixture pendant;
    QVERIFY(pendant.open());
    const int before = idleServiceCalls();
    QTRY_VERIFY(idleServiceCalls() > before);
    QWidget* menu = pendant.find("FbMainWidget");
    QWidget* application = menu->parentWidget();
    application->hide();
    QTest::qWait(150);
    const int hidden = idleServiceCalls();
    QMetaObject::invokeMethod(application, "slotIdle");
    QCOMPARE(idleServiceCalls(), hidden);
}

void TestShell::subscriptionOrder()
{
    PendantFixture pendant;
    VariableTable::instance().clearSubscriptionCalls();
    QVERIFY(pendant.open());
    QStringList names;
    for (const VariableTable::SubscriptionCall& call : VariableTable::instance().subscriptionCalls()) {
        if (call.on && (names.isEmpty() || names.constLast() != call.name))
            names << call.name;
    }
    QCOMPARE(names.mid(0, 9),
             QStringList({"imes.update_tcp_server_cfg", "imes.tcp_server_listen", "imes.tcp_server_connected",
                          "imes.tcp_server_active", "ifidbus.ethcat_enable", "ifins_tcp.enable",
                          "ifins_tcp.error", "ifins_tcp.bupdate_cfg", "ifins_tcp.connected"}));
    // Open and close do not stand in the same order for every bus.
    QCOMPARE(names.mid(names.indexOf("ifidbus.pfn2close"), 8),
             QStringList({"ifidbus.pfn2close", "ifidbus.pfn2open", "ifidbus.eip2close", "ifidbus.eip2open",
                          "ifidbus.dns2open", "ifidbus.dns2close", "ifidbus.dnm2open", "ifidbus.dnm2close"}));
    QVERIFY(names.contains("io_man.profisafe_ext_ro"));
    QVERIFY(!names.contains("ifidbus.ecat2open"));
    QVERIFY(!names.contains("ifidbus.xml_heartbeat"));
    // Scalars and vector elements of all groups.
    QCOMPARE(VariableTable::instance().subscribedHandles(), 163);
}

void TestShell::subscriptionFailureStopsTheRest()
{
    PendantFixture pendant;
    QVERIFY(pendant.open());
    auto* application = qobject_cast<ZelBaseWidget*>(pendant.find("FbMainWidget")->parentWidget());
    QVERIFY(application);
    const auto subscribeWithout = [&](const char* name, bool expected) {
        pendant.controller().faults().set(Faults::VariableNotOffered, -1, name);
        VariableTable::instance().clearSubscriptionCalls();
        const bool done = application->setUsedVars(0, true);
        QStringList names;
        for (const VariableTable::SubscriptionCall& call : VariableTable::instance().subscriptionCalls())
            names << call.name;
        return done == expected ? names : QStringList();
    };
    // Most groups keep their failure to themselves; those of the DeviceNet master report it.
    QVERIFY(subscribeWithout("ifidbus.dns2open", true).contains("ifidbus.dnm2close"));
    const QStringList names = subscribeWithout("ifidbus.dnm2open", false);
    QCOMPARE(names.value(names.size() - 1), QString("ifidbus.dnm2open"));
    QVERIFY(!names.contains("ifidbus.dnm2close"));
    QVERIFY(application->setUsedVars(7, true)); // not a context of this application
}

PENDANT_TEST_MAIN(TestShell)
#include "tst_shell.moc"
