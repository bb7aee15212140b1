#include "BusFileDataManager.h"
#include "Desktop.h"
#include "Faults.h"
#include "IdleCounter.h"
#include "LanguageChange.h"
#include "PageTest.h"
#include "UserSession.h"
#include "VariableTable.h"
#include "ZelBaseWidget.h"

#include <QInputMethodEvent>
#include <QLabel>
#include <QLineEdit>
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

} // namespace

class TestShell : public PageTest
{
    Q_OBJECT

public:
    using PageTest::PageTest;

private slots:
    void menuShowsWhatIsOn_data()
    {
        const Rows<QStringList, QStringList> row;
        row("nothing", {}, {});
        row("two roles", {"Mes", "DeviceNetMaster"}, {"devicemBtn", "mesBtn"});
        row("other case", {"mes", "devicenetmaster"}, {});
        row("unknown role", {"Canopen"}, {});
    }

    void menuShowsWhatIsOn()
    {
        const auto [roles, expected] = Rows<QStringList, QStringList>::current();
        set("io_man.profisafe_status", 0);
        QVERIFY(controller().files().write(FieldbusXml, fieldbusWith(roles)));
        QVERIFY(open());
        const QStringList buttons = visibleButtons();
        QVERIFY(buttons.contains("heartbeatBtn") && buttons.contains("exitBtn"));
        QStringList shown;
        for (const char* role :
             {"btn_pfss", "deviceBtn", "devicemBtn", "eipMasterBtn", "etherCatBtn", "etherCatMBtn",
              "etherNetBtn", "mesBtn", "mtcpMasterBtn", "pfbPfnBtn", "pnmBtn"}) {
            if (buttons.contains(role))
                shown << role;
        }
        QCOMPARE(shown, expected);
    }

    // A change that forgets the page, or what was entered and not saved.
    void languageChangesOnThePageWhereItWas()
    {
        const QString page = QStringLiteral("HeartbeatDetectionWidget");
        const auto isShown = [&](const char* title) {
            const auto* label = findOn<QLabel>(page, "label_title");
            return label && label->isVisible() && label->text() == QString::fromUtf8(title);
        };
        QVERIFY(openPastStartPage() && openPage("heartbeatBtn"));
        MsgBoxScript::answerByDefault(MsgBox::Confirmed); // what the start page says
        window().language().change("de");
        QTRY_VERIFY_WITH_TIMEOUT(isShown("Heartbeat-\u00DCberwachung") && settle(), 20000);

        QVERIFY(press("modbusCheckBox"));
        answer({MsgBox::Second});
        window().language().change("en");
        QVERIFY(settle() && isShown("Heartbeat-\u00DCberwachung"));
        answer({MsgBox::Confirmed});
        window().language().change("en");
        QTRY_VERIFY_WITH_TIMEOUT(isShown("Heartbeat Detection") && settle(), 20000);
        QCOMPARE(messages().filter("Sprache wechseln?").size(), 2);
    }

    void menuAppearsWhateverIsReported_data()
    {
        const Rows<QString> row;
        row("no bus configuration", "fetch-fails:-1:/application/fidbus/fieldbus.xml");
        row("no mapping", "fetch-fails:-1:/application/fidbus/fieldbus_config.xml");
        row("garbage", "fetch-garbage");
        row("nothing at all", "fetch-fails");
    }

    void menuAppearsWhateverIsReported()
    {
        const auto [fault] = Rows<QString>::current();
        QVERIFY(fail(fault));
        MsgBoxScript::answerByDefault(MsgBox::Confirmed);
        // Without the list of roles no page is shown.
        window().openApplication("fieldbussetting");
        const auto isMenuShown = [this] { return isOpen() && visibleButtons().contains("exitBtn"); };
        QVERIFY(QTest::qWaitFor(isMenuShown, 10000) && settle());
        for (const QWidget* window : QApplication::topLevelWidgets())
            QVERIFY(!(window->isVisible() && window->inherits("ProgressBarWidget")));
    }

    // What is opened without the list of roles saves and tells the controller nothing; Retry brings them.
    void rolesAreReadAgain()
    {
        QVERIFY(controller().files().write(FieldbusXml, fieldbusWith({"Mes", "ProfinetSlave"})));
        set("ifidbus.anybus_fm", 14);
        set("ifidbus.is_rp2pro", 1);
        for (const bool isPageOpened : {false, true}) {
            QVERIFY(fail("fetch-fails:-1:" + FieldbusXml));
            window().openApplication("fieldbussetting");
            const auto isOffered = [this] { return find("btn_retry") && find("btn_retry")->isVisible(); };
            QVERIFY(QTest::qWaitFor(isOffered) && settle());
            QVERIFY(press("btn_retry") && settle());
            QVERIFY(isOffered() && !visibleButtons().contains("mesBtn"));
            if (isPageOpened) {
                traffic().clear();
                MsgBoxScript::answerByDefault(MsgBox::Confirmed);
                QVERIFY(openPage("busSetting") && tick(3));
                QVERIFY(press("saveBusBt") && settle());
                QCOMPARE(messages(), QStringList("Failed to get file:" + FieldbusXml));
                QCOMPARE(traffic().stores(), QStringList());
                for (const Traffic::Write& write : traffic().writes()) // that of the override file's reader
                    QCOMPARE(write.name, QString("ifidbus.ethcat_enable"));
            }
            controller().faults().clearAll();
            QVERIFY(press(isPageOpened ? "saveBusBt" : "btn_retry") && settle());
            QVERIFY(visibleButtons().contains("mesBtn") && !isOffered());
            QVERIFY(find("BusSettingWidget")->isVisible());
            QCOMPARE(chosen("mesSwitch"), 1);
            QVERIFY(tick(3) && press("exitBtn"));
            QTRY_VERIFY(!isOpen());
            stop();
            start();
            QVERIFY(controller().files().write(FieldbusXml, fieldbusWith({"Mes"})));
        }
    }

    void secondNotificationIsIgnored()
    {
        QVERIFY(open());
        const QStringList before = visibleButtons();
        QVERIFY(showAgain());
        QVERIFY(controller().files().write(FieldbusXml, fieldbusWith({"DeviceNetSlave", "ProfinetMaster"})));
        BusFileDataManager::getInstance()->emitGetFieldXml();
        QVERIFY(settle());
        QCOMPARE(visibleButtons(), before);
        QVERIFY(find("HeartbeatDetectionWidget")->isVisible()); // the start page was not selected again
    }

    void pageIsCreatedOnce()
    {
        QVERIFY(show());
        QWidget* first = find("HeartbeatDetectionWidget");
        const int fetches = traffic().fetches().size();
        QVERIFY(showAgain());
        QCOMPARE(find("HeartbeatDetectionWidget"), first);
        QCOMPARE(traffic().fetches().size(), fetches);
    }

    void inputIsBlockedInPairs()
    {
        QVERIFY(show());
        QWidget* menu = find("FbMainWidget");
        QWidget* page = find("HeartbeatDetectionWidget");
        const auto signal = [page](bool on) {
            QMetaObject::invokeMethod(page, "mouseEventSignal", Q_ARG(bool, on));
        };
        signal(true);
        signal(true);
        signal(false);
        QVERIFY(menu->testAttribute(Qt::WA_TransparentForMouseEvents));
        QVERIFY(!press("exitBtn"));
        auto* edit = page->findChild<QLineEdit*>();
        const QString text = edit->text();
        for (const char* button : {"configBtn", "exitBtn"})
            QTest::keyClick(find(button), Qt::Key_Space);
        QInputMethodEvent method;
        method.setCommitString("1");
        QCoreApplication::sendEvent(edit, &method);
        QTest::mouseClick(edit, Qt::LeftButton);
        QMetaObject::invokeMethod(menu, "slotMenuBtnsClicked", Q_ARG(int, 7));
        QMetaObject::invokeMethod(menu, "on_exitBtn_clicked");
        QVERIFY(isOpen() && page->isVisible());
        QCOMPARE(edit->text(), text);
        signal(false);
        QVERIFY(!menu->testAttribute(Qt::WA_TransparentForMouseEvents));
        QTest::keyClick(find("configBtn"), Qt::Key_Space);
        QTRY_VERIFY(find("ConfigWidget"));
    }

    // The button deletes the page that it stands on while its own click is under way.
    void exitByFinger()
    {
        for (int round = 0; round < 3; ++round) {
            QVERIFY(show());
            // The host may refuse a request, so each is passed on.
            int requests = 0;
            const auto counted =
                connect(&Desktop::instance(), &Desktop::closeRequested, [&requests] { ++requests; });
            QWidget* application = find("FbMainWidget")->parentWidget();
            QVERIFY(press("exitBtn"));
            QMetaObject::invokeMethod(application, "closeAppSlot");
            disconnect(counted);
            QCOMPARE(requests, 2);
            QTRY_VERIFY(!isOpen());
            QVERIFY(!find("FbMainWidget"));
            QTest::qWait(50);
        }
        QCOMPARE(VariableTable::instance().subscribedHandles(), 0);
    }

    void userLevel_data()
    {
        const Rows<int, bool> row;
        row("5", 5, true);
        row("3 is enough", 3, true);
        row("2 is not", 2, false);
        row("0", 0, false);
    }

    void userLevel()
    {
        const auto [level, staysOpen] = Rows<int, bool>::current();
        QVERIFY(open());
        UserSession::instance().setUserLevel(level);
        QTest::qWait(100);
        QCOMPARE(isOpen(), staysOpen);
        QCOMPARE(messages(), QStringList());
    }

    void idleOnlyWhileVisible()
    {
        QVERIFY(open());
        const int before = idleServiceCalls();
        QTRY_VERIFY(idleServiceCalls() > before);
        QWidget* menu = find("FbMainWidget");
        QWidget* application = menu->parentWidget();
        application->hide();
        QTest::qWait(150);
        const int hidden = idleServiceCalls();
        QMetaObject::invokeMethod(application, "slotIdle");
        QCOMPARE(idleServiceCalls(), hidden);
    }

    void subscriptionOrder()
    {
        VariableTable::instance().clearSubscriptionCalls();
        QVERIFY(open());
        QStringList names;
        for (const VariableTable::SubscriptionCall& call : VariableTable::instance().subscriptionCalls()) {
            if (call.on && (names.isEmpty() || names.constLast() != call.name))
                names << call.name;
        }
        QCOMPARE(names.mid(0, 9), QStringList({"imes.update_tcp_server_cfg", "imes.tcp_server_listen",
                                               "imes.tcp_server_connected", "imes.tcp_server_active",
                                               "ifidbus.ethcat_enable", "ifins_tcp.enable", "ifins_tcp.error",
                                               "ifins_tcp.bupdate_cfg", "ifins_tcp.connected"}));
        // Open and close do not stand in the same order for every bus.
        QCOMPARE(
            names.mid(names.indexOf("ifidbus.pfn2close"), 8),
            QStringList({"ifidbus.pfn2close", "ifidbus.pfn2open", "ifidbus.eip2close", "ifidbus.eip2open",
                         "ifidbus.dns2open", "ifidbus.dns2close", "ifidbus.dnm2open", "ifidbus.dnm2close"}));
        QVERIFY(names.contains("io_man.profisafe_ext_ro"));
        QVERIFY(!names.contains("ifidbus.ecat2open"));
        QVERIFY(!names.contains("ifidbus.xml_heartbeat"));
        // Scalars and vector elements of all groups.
        QCOMPARE(VariableTable::instance().subscribedHandles(), 163);
    }

    void subscriptionFailureStopsTheRest()
    {
        QVERIFY(open());
        auto* application = qobject_cast<ZelBaseWidget*>(find("FbMainWidget")->parentWidget());
        QVERIFY(application);
        const auto subscribeWithout = [&](const char* name, bool expected) {
            controller().faults().set(Faults::VariableNotOffered, -1, name);
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

private:
    QStringList visibleButtons() const
    {
        QStringList names;
        for (const QPushButton* button : find("menusGroupBox")->findChildren<QPushButton*>()) {
            if (button->isVisible())
                names << button->objectName();
        }
        names.sort();
        return names;
    }
};

PENDANT_TEST_MAIN(TestShell, "heartbeatBtn")
#include "tst_shell.moc"
