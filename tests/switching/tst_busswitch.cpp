#include "BusFileService.h"
#include "Faults.h"
#include "PaintCounter.h"
#include "PendantFixture.h"
#include "Rows.h"
#include "UserSession.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QPushButton>

namespace {

constexpr int TimeScale = 20;

const QString OverridePath = QStringLiteral("/FA/override.cfg");
const QString FieldbusXml = QStringLiteral("/application/fidbus/fieldbus.xml");

const QString AskSave = QStringLiteral(
    "This operation will cause the robot to restart.\n Are you sure to save the configuration?");
const QString Waiting =
    QStringLiteral("Before the save operation is completed,\n clicking on the current interface is invalid.");
const QString Saved = QStringLiteral("Successfully saved, the robot is about to restart and take effect.");
const QString Reopen = QStringLiteral("Please close and reopen the teaching pendant.");
const QString PowerOff = QStringLiteral("Please manually power off and restart the robot!");
const QString NotChanged = QStringLiteral("The fieldbbus is not change,please reset!");
const QString SelectAnybus =
    QStringLiteral("Please select ANYBUS in EtherCat slave after, Make the setting effective!");
const QString SelectEim =
    QStringLiteral("Please select EIM_DEVICE in EthernetIP master after, Make the setting effective!");
const QString SelectPnm =
    QStringLiteral("Please select PNM_DEVICE in Profinet master after, Make the setting effective!");
const QString CloseMaster = QStringLiteral("The DeviceNet master station has been opened. Please close the "
                                           "master station before opening the slave station.");
const QString CloseSlave = QStringLiteral("The DeviceNet slave station has been opened. Please close the "
                                          "slave station before opening the master station.");
const QString ModbusNeedsFree =
    QStringLiteral("If ModbusTcp Master switch is ON,\n the bus free configuration switch needs to be ON!");
const QString BothNeedFree = QStringLiteral("If ModbusTcp Master or Profinet Slave switch is ON,\n the bus "
                                            "free configuration switch needs to be ON!");
const QString TooManyMasters = QStringLiteral(
    "EthernetIP master EtherCat master and Profinet master cannot be enabled at the same time!");

// Role, and the button of its page.
const QVector<QPair<QString, QString>> Roles = {
    {"Mes", "mesBtn"},
    {"ProfinetSlave", "pfbPfnBtn"},
    {"ProfinetMaster", "pnmBtn"},
    {"EtherCatSlave", "etherCatBtn"},
    {"EtherNetIPSlave", "etherNetBtn"},
    {"EtherCatMaster", "etherCatMBtn"},
    {"DeviceNetSlave", "deviceBtn"},
    {"ModbusTcpMaster", "mtcpMasterBtn"},
    {"EtherNetIPMaster", "eipMasterBtn"},
    {"DeviceNetMaster", "devicemBtn"},
    {"FreeBus", ""},
};

QByteArray fieldbusWith(const QStringList& on)
{
    QByteArray content = "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<Fieldbus>\n";
    for (const auto& role : Roles)
        content += "\t<Bus name=\"" + role.first.toLatin1() + "\" enable=\"" +
                   (on.contains(role.first) ? "1" : "0") + "\" />\n";
    return content + "</Fieldbus>\n";
}

// Both master devices and the Anybus module in use or not; a line that nobody owns.
QByteArray overrideWith(bool inUse)
{
    QByteArray content = "; M\xfcller\r\n;ECAT_SLAVE_OFF 1 3 ;IO\n;ECAT_SLAVE_OFF 1 5 ;ANYBUS\n"
                         ";ECAT_SLAVE_OFF 2 7;EIM_DEVICE\n;ECAT_SLAVE_OFF 2 8;PNM_DEVICE\n";
    return inUse ? content : content.replace("\n;", "\n");
}

using Choices = QVector<QPair<QString, int>>;

// A pendant whose controller runs the roles `on`.
class Pendant : public PendantFixture
{
public:
    explicit Pendant(const QStringList& on, bool devicesInUse = true)
        : PendantFixture(TimeScale)
    {
        controller().files().write(FieldbusXml, fieldbusWith(on));
        controller().files().write(OverridePath, overrideWith(devicesInUse));
    }

    QComboBox* combo(const QString& name) const { return find<QComboBox>(name); }

    // Turns a switch as a finger does: opens its list and presses an entry.
    bool turn(const QString& name, int index)
    {
        if (!press(name))
            return false;
        QAbstractItemView* list = combo(name)->view();
        if (!QTest::qWaitFor([list] { return list->isVisible(); }, 1000))
            return false;
        // The list ignores the release of the very press that opened it.
        QTest::qWait(2 * QApplication::doubleClickInterval());
        const QRect entry = list->visualRect(combo(name)->model()->index(index, 0));
        const QPointer<QWidget> window(list->window());
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, entry.center());
        return QTest::qWaitFor([window] { return !window || !window->isVisible(); }, 1000);
    }

    bool choose(const Choices& choices)
    {
        for (const auto& choice : choices) {
            if (!combo(choice.first)->isEnabled())
                return false;
            combo(choice.first)->setCurrentIndex(choice.second);
            QCoreApplication::processEvents(); // a warning is shown, and answered
        }
        return true;
    }

    // The host's idle tick, without waiting for it.
    void tick()
    {
        if (const QWidget* menu = find("FbMainWidget"))
            QMetaObject::invokeMethod(menu->parentWidget(), "slotIdle");
    }

    // Presses "Save" and ticks until the save has ended, whichever way.
    bool save()
    {
        if (!press("saveBusBt"))
            return false;
        QElapsedTimer timer;
        timer.start();
        while (!find("saveBusBt")->isEnabled() && timer.elapsed() < 15000) {
            tick();
            QTest::qWait(1);
        }
        QCoreApplication::processEvents(); // a warning about what was loaded again
        return find("saveBusBt")->isEnabled();
    }

    QStringList written()
    {
        QStringList names;
        for (const Traffic::Write& write : controller().traffic().writes())
            names << write.name.section('.', 1) + "=" + QString::number(write.value);
        return names;
    }

    QStringList roleButtons() const
    {
        QStringList names;
        for (const auto& role : Roles) {
            const auto* button = find(role.second);
            if (button && button->isVisible())
                names << role.second;
        }
        return names;
    }
};

} // namespace

Q_DECLARE_METATYPE(Choices)

class TestBusSwitch : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QApplication::setDoubleClickInterval(20); }
    void theWholeRoad()
    {
        Pendant pendant({"EtherCatSlave", "EtherNetIPMaster", "DeviceNetMaster", "FreeBus"});
        pendant.controller().files().write(
            FieldbusXml,
            fieldbusWith({"Mes", "DeviceNetSlave", "EtherCatSlave", "EtherCatMaster", "EtherNetIPMaster"}));
        QVERIFY(pendant.open());
        const QStringList offered = pendant.roleButtons();
        QVERIFY(pendant.press("exitBtn"));
        QTRY_VERIFY(!pendant.isOpen());
        BusFileService::instance().resetSession();
        pendant.controller().files().write(
            FieldbusXml, fieldbusWith({"EtherCatSlave", "EtherNetIPMaster", "DeviceNetMaster", "FreeBus"}));
        QVERIFY(pendant.open());

        QVERIFY(pendant.turn("mesSwitch", 1));
        QVERIFY(pendant.turn("eipMSwitch", 0));
        QVERIFY(pendant.turn("ethcatMSwitch", 1));
        QVERIFY(pendant.turn("devnetmSwitch", 0));
        QVERIFY(pendant.turn("devnetSwitch", 1));
        QVERIFY(pendant.turn("freeBusSwitch", 0));
        pendant.controller().traffic().clear();
        bool blocked = true;
        MsgBoxScript::onShown([&](const MsgBox* box) {
            if (box->text() != Waiting)
                return;
            blocked = !pendant.press("mesSwitch") && !pendant.press("exitBtn");
            for (const char* button : {"heartbeatBtn", "exitBtn", "btn_export"})
                QTest::keyClick(pendant.find(button), Qt::Key_Space);
            QTest::keyClick(pendant.combo("pfnMasterSwitch"), Qt::Key_Down);
            QTest::keyClick(const_cast<MsgBox*>(box), Qt::Key_Escape);
            blocked = blocked && box->isVisible() && pendant.combo("pfnMasterSwitch")->isEnabled() &&
                      pendant.combo("pfnMasterSwitch")->currentIndex() == 0;
        });
        pendant.answer({MsgBox::Confirmed, MsgBox::Confirmed, MsgBox::Confirmed});
        QVERIFY(pendant.save());
        QVERIFY(blocked);
        QCOMPARE(pendant.messages(), QStringList({AskSave, Waiting, Saved, Reopen}));
        QCOMPARE(pendant.controller().traffic().stores(),
                 QStringList({OverridePath, OverridePath, FieldbusXml}));
        QCOMPARE(pendant.written(),
                 QStringList({"mtcp_enable=1", "ethcat_enable=1", "pfn_enable=0", "eip_enable=0",
                              "dns_enable=1", "freebus_enable=0", "mbc_enable=0", "dnm_enable=0",
                              "dns2open=1", "dnm2close=1", "freebus_enable=0", "bus_type_state=1"}));
        QCOMPARE(pendant.controllerFile(OverridePath),
                 overrideWith(true).replace(";ECAT_SLAVE_OFF 2 7", "ECAT_SLAVE_OFF 2 7"));
        QCOMPARE(pendant.controllerFile(FieldbusXml),
                 fieldbusWith({"Mes", "EtherCatSlave", "EtherCatMaster", "DeviceNetSlave"}));
        QCOMPARE(pendant.controller().traffic().restartRequests(), 1);

        // The buttons follow the controller when the application is opened again.
        QTRY_VERIFY(pendant.controller().roles().isOn("Mes"));
        QTRY_VERIFY(pendant.controllerFile("/application/fidbus/Fieldbus.cfg")
                        .contains("name=\"DeviceNetSlave\" id=\"dn_s\">\n\t\t<enable>1"));
        QVERIFY(pendant.press("exitBtn"));
        QTRY_VERIFY(!pendant.isOpen());
        pendant.controller().traffic().clear();
        QVERIFY(pendant.open());
        QVERIFY(pendant.controller().traffic().fetches().contains(FieldbusXml));
        QStringList expected = offered;
        expected.removeAll("eipMasterBtn");
        QCOMPARE(pendant.roleButtons(), expected);
        QCOMPARE(pendant.combo("ethcatMSwitch")->currentIndex(), 1);
        QCOMPARE(pendant.combo("eipMSwitch")->currentIndex(), 0);
    }

    void faults_data()
    {
        const Rows<QStringList, Choices, QString, QStringList, bool, int> row;
        // the last: milliseconds of patience
        const QStringList notSent("Failed to send file:override.cfg");
        const char* sendFails = "send-fails:1:/fa/override.cfg";
        row("EtherCAT slave not sent", {"EtherCatSlave"}, {{"ethcatSwitch", 0}}, sendFails, notSent, false,
            0);
        row("EtherNet/IP master not sent", {"EtherNetIPMaster"}, {{"eipMSwitch", 0}}, sendFails, notSent,
            false, 0);
        row("PROFINET master not sent", {"ProfinetMaster"}, {{"pfnMasterSwitch", 0}}, sendFails, notSent,
            false, 0);
        row("one command is never taken", {}, {{"ethnetSwitch", 1}, {"devnetSwitch", 1}},
            "command-never-taken:-1:ifidbus.dns2open", {Waiting, "Failed to change bus:DeviceNet"}, true, 0);
        row("no command is ever taken", {"ProfinetSlave", "EtherNetIPSlave", "DeviceNetMaster"},
            {{"ethnetSwitch", 0}, {"pftSwitch", 0}, {"devnetmSwitch", 0}, {"devnetSwitch", 1}},
            "command-never-taken",
            {Waiting, "Failed to change bus:Profinet", "Failed to change bus:EthernetIP",
             "Failed to change bus:DeviceNet", "Failed to change bus:DeviceNet Master"},
            true, 10000);
        row("bus type refused", {}, {{"freeBusSwitch", 1}}, "bus-type-refused", {Waiting, NotChanged}, true,
            0);
        row("bus type never answered", {"FreeBus"}, {{"freeBusSwitch", 0}}, "bus-type-never-answered",
            {Waiting, NotChanged}, true, 10000);
    }

    // The message, the controller as it was, and a page that saves once the cause is gone.
    void faults()
    {
        const auto [on, choices, fault, messages, announced, patience] =
            Rows<QStringList, Choices, QString, QStringList, bool, int>::current();
        Pendant pendant(on);
        QVERIFY(pendant.open() && pendant.choose(choices));
        pendant.controller().traffic().clear();
        QVERIFY(pendant.controller().faults().setFromText(fault));
        MsgBoxScript::answerByDefault(MsgBox::Confirmed);
        QElapsedTimer timer;
        timer.start();
        QVERIFY(pendant.save());
        QVERIFY(timer.elapsed() * TimeScale >= patience);
        QCOMPARE(pendant.messages(), QStringList(AskSave) + messages);
        QCOMPARE(MsgBoxScript::shown().constLast().kind, int(MsgBox::Error));
        QCOMPARE(!pendant.written().isEmpty(), announced);
        QCOMPARE(pendant.controllerFile(OverridePath), overrideWith(true));
        QCOMPARE(pendant.controllerFile(FieldbusXml), fieldbusWith(on));
        QCOMPARE(pendant.controller().traffic().restartRequests(), 0);
        pendant.tick();
        QVERIFY(pendant.find("exitBtn")->isEnabled());

        pendant.controller().faults().clearAll();
        for (const char* stuck : {"eip2close", "pfn2close", "dns2open", "dnm2close"})
            pendant.controller().variables().set(QStringLiteral("ifidbus.") + stuck, 0);
        pendant.controller().traffic().clear();
        QVERIFY(pendant.choose(choices) && pendant.save());
        QCOMPARE(pendant.messages().constLast(), Reopen);
        QVERIFY(pendant.controllerFile(FieldbusXml) != fieldbusWith(on));
        QCOMPARE(pendant.written().contains("dns2open=1"), choices.contains({"devnetSwitch", 1}));
    }

    // What the steps before have sent stays; the next save does the rest.
    void laterStepFails()
    {
        Pendant pendant({"EtherCatSlave", "EtherCatMaster"});
        QVERIFY(pendant.open() && pendant.choose({{"ethcatSwitch", 0}, {"ethcatMSwitch", 0}}));
        pendant.controller().traffic().clear();
        pendant.controller().faults().set(Faults::SendFails, 1, "/fa/override.cfg", 1);
        MsgBoxScript::answerByDefault(MsgBox::Confirmed);
        QVERIFY(pendant.save());
        QCOMPARE(pendant.messages(), QStringList({AskSave, "Failed to send file:override.cfg"}));
        const QByteArray between = pendant.controllerFile(OverridePath);
        QVERIFY(between != overrideWith(true));
        QCOMPARE(pendant.written(), QStringList());

        QVERIFY(pendant.save());
        QCOMPARE(pendant.messages().constLast(), Reopen);
        QVERIFY(pendant.controllerFile(OverridePath) != between);
    }

    void afterTheSave_data()
    {
        const Rows<QString, bool, int, QString, int, bool> row;
        row("the bus type is asked for nothing", "bus-type-refused", true, MsgBox::Confirmed, Reopen, 1,
            true);
        row("the restart is ignored", "restart-ignored", true, MsgBox::Confirmed, PowerOff, 1, false);
        row("the restart is not allowed", "", false, MsgBox::Confirmed, Saved, 0, true);
        row("the announcement is dismissed", "", true, MsgBox::Dismissed, Saved, 0, true);
    }

    void afterTheSave()
    {
        const auto [fault, allowed, answer, last, restarts, mayExit] =
            Rows<QString, bool, int, QString, int, bool>::current();
        Pendant pendant({"FreeBus"});
        QVERIFY(pendant.open() && pendant.choose({{"mesSwitch", 1}, {"ethnetSwitch", 1}}));
        QVERIFY(fault.isEmpty() || pendant.controller().faults().setFromText(fault));
        pendant.controller().setRestartAllowed(allowed);
        pendant.answer({MsgBox::Confirmed, answer, MsgBox::Confirmed});
        QVERIFY(pendant.save());
        QCOMPARE(pendant.messages().constLast(), last);
        QCOMPARE(pendant.controller().traffic().restartRequests(), restarts);
        QCOMPARE(pendant.controllerFile(FieldbusXml), fieldbusWith({"FreeBus", "Mes", "EtherNetIPSlave"}));
        pendant.tick();
        QCOMPARE(pendant.find("exitBtn")->isEnabled(), mayExit);
        if (mayExit)
            return;
        // Whatever a later save brings.
        pendant.controller().faults().setFromText("send-fails");
        MsgBoxScript::answerByDefault(MsgBox::Confirmed);
        QVERIFY(pendant.choose({{"mesSwitch", 0}}) && pendant.save());
        QCOMPARE(pendant.messages().constLast(), QString("Failed to write file."));
        pendant.tick();
        QVERIFY(!pendant.find("exitBtn")->isEnabled());
        // Not for longer than the page lives.
        UserSession::instance().setUserLevel(1);
        QTRY_VERIFY(!pendant.isOpen());
        UserSession::instance().setUserLevel(4);
        QVERIFY(pendant.open());
        QTRY_VERIFY(pendant.find("exitBtn")->isEnabled());
    }

    void performanceSwitch()
    {
        Pendant pendant({"EtherNetIPSlave", "ProfinetSlave"});
        pendant.controller().setRestartAllowed(false);
        QVERIFY(pendant.open());
        MsgBoxScript::answerByDefault(MsgBox::Confirmed);
        const struct
        {
            int eip, pfn, before, after;
        } cases[] = {{1, 1, 4, 4}, {1, 0, 4, 4}, {0, 1, 4, 0}, {0, 1, 5, 0},
                     {1, 0, 6, 0}, {0, 1, 6, 6}, {1, 0, 8, 8}, {0, 0, 1, 1}};
        for (const auto& step : cases) {
            QVERIFY(pendant.choose({{"ethnetSwitch", step.eip}, {"pftSwitch", step.pfn}}));
            pendant.controller().variables().set("ifidbus.performance_switch", step.before);
            QVERIFY(pendant.save());
            QCOMPARE(pendant.messages().constLast(), Saved);
            QCOMPARE(pendant.variable("ifidbus.performance_switch"), double(step.after));
        }
    }

    void rules_data()
    {
        const Rows<QStringList, bool, Choices, QStringList, QString, int> row;
        row("EtherNet/IP and PROFINET master", {}, false, {{"eipMSwitch", 1}, {"pfnMasterSwitch", 1}}, {},
            TooManyMasters, MsgBox::Information);
        row("EtherCAT and EtherNet/IP master", {"EtherCatMaster"}, false, {{"eipMSwitch", 1}}, {},
            TooManyMasters, MsgBox::Information);
        row("one master", {"EtherNetIPMaster"}, false, {{"eipMSwitch", 0}, {"pfnMasterSwitch", 1}}, {},
            AskSave, MsgBox::Information);
        row("Modbus master, fixed", {}, false, {{"mbcSwitch", 1}}, {ModbusNeedsFree}, ModbusNeedsFree,
            MsgBox::Warning);
        row("Modbus master, no longer free", {"ModbusTcpMaster", "FreeBus"}, false, {{"freeBusSwitch", 0}},
            {}, ModbusNeedsFree, MsgBox::Warning);
        row("Modbus master, free first", {}, false, {{"freeBusSwitch", 1}, {"mbcSwitch", 1}}, {}, AskSave,
            MsgBox::Information);
        row("PROFINET slave, fixed", {"ProfinetSlave"}, false, {{"pftSwitch", 0}, {"pftSwitch", 1}}, {},
            AskSave, MsgBox::Information);
        row("ProfiSAFE: PROFINET slave, fixed", {"ProfinetSlave"}, true, {{"pftSwitch", 0}, {"pftSwitch", 1}},
            {BothNeedFree}, BothNeedFree, MsgBox::Warning);
        row("ProfiSAFE: Modbus master, fixed", {}, true, {{"mbcSwitch", 1}}, {BothNeedFree}, BothNeedFree,
            MsgBox::Warning);
        row("ProfiSAFE: both, free", {"FreeBus", "ProfinetSlave"}, true, {{"mbcSwitch", 1}}, {}, AskSave,
            MsgBox::Information);
    }

    // Nothing is saved, and the switches stay as they are.
    void rules()
    {
        const auto [on, profisafe, choices, atOnce, message, kind] =
            Rows<QStringList, bool, Choices, QStringList, QString, int>::current();
        Pendant pendant(on);
        pendant.controller().variables().set("io_man.profisafe_status", profisafe ? 1 : 0);
        QVERIFY(pendant.open());
        QCOMPARE(pendant.combo("ethcatMSwitch")->isEnabled(), !profisafe);
        QCOMPARE(pendant.combo("eipMSwitch")->isEnabled(), !profisafe);
        pendant.tick();
        MsgBoxScript::answerByDefault(MsgBox::Dismissed);
        QVERIFY(pendant.choose(choices));
        QCOMPARE(pendant.messages(), atOnce);
        pendant.controller().traffic().clear();

        QVERIFY(pendant.save());
        QCOMPARE(pendant.messages().size(), atOnce.size() + 1);
        QCOMPARE(pendant.messages().constLast(), message);
        QCOMPARE(MsgBoxScript::shown().constLast().kind, kind);
        QVERIFY(pendant.controller().traffic().stores().isEmpty());
        if (message == AskSave) // dismissed: what runs is shown again
            return;
        QVERIFY(pendant.written().isEmpty());
        QCOMPARE(pendant.combo(choices.constLast().first)->currentIndex(), choices.constLast().second);
    }

    // Input is blocked for fingers; a key gets through to the button that has the focus.
    void keysRestWhileItLoads()
    {
        Pendant pendant({"Mes"});
        QVERIFY(pendant.open());
        MsgBoxScript::answerByDefault(MsgBox::Dismissed);
        Faults& faults = pendant.controller().faults();
        faults.set(Faults::FetchFails, 4, OverridePath);
        int pressed = 0;
        QTimer keys;
        connect(&keys, &QTimer::timeout, [&] {
            if (faults.timesLeft(Faults::FetchFails) == 0 || faults.timesLeft(Faults::FetchFails) == 4)
                return;
            for (const char* button : {"saveBusBt", "btn_import", "btn_export"}) {
                QTest::keyClick(pendant.find(button), Qt::Key_Space);
                ++pressed;
            }
        });
        keys.start(20);
        QVERIFY(pendant.press("saveBusBt")); // dismissed: what runs is loaded again
        QVERIFY(pendant.settle());
        QVERIFY(pressed > 0);
        QCOMPARE(pendant.messages(), QStringList(AskSave));
    }

    void deviceNetExcludesItself_data()
    {
        const Rows<QString, QString, QString, QString> row;
        row("slave", "DeviceNetMaster", "devnetSwitch", CloseMaster, "dns2close=1");
        row("master", "DeviceNetSlave", "devnetmSwitch", CloseSlave, "dnm2close=1");
    }

    void deviceNetExcludesItself()
    {
        const auto [role, other, message, command] = Rows<QString, QString, QString, QString>::current();
        Pendant pendant({role});
        QVERIFY(pendant.open());
        MsgBoxScript::answerByDefault(MsgBox::Confirmed);
        QVERIFY(pendant.turn(other, 1));
        QTRY_COMPARE(pendant.combo(other)->currentIndex(), 0);
        QCOMPARE(pendant.messages(), QStringList(message));
        QCOMPARE(MsgBoxScript::shown().constLast().kind, int(MsgBox::Warning));
        // The way back counts as a change.
        pendant.controller().setRestartAllowed(false);
        QVERIFY(pendant.save());
        QCOMPARE(pendant.written().filter("2"), QStringList(command));
        QCOMPARE(pendant.controllerFile(FieldbusXml), fieldbusWith({role}));
    }

    void changesAndCancel()
    {
        Pendant pendant({"EtherNetIPSlave", "ProfinetSlave", "FreeBus"});
        QVERIFY(pendant.open());
        pendant.controller().setRestartAllowed(false);
        // Twice is no change, and what a cancelled save takes back is none either.
        QVERIFY(pendant.choose({{"pftSwitch", 0},
                                {"pftSwitch", 1},
                                {"ethnetSwitch", 0},
                                {"mesSwitch", 1},
                                {"freeBusSwitch", 0},
                                {"eipMSwitch", 1}}));
        const auto* saveButton = pendant.find<QPushButton>("saveBusBt");
        QCOMPARE(saveButton->text(), QString("Save (4)"));
        pendant.answer({MsgBox::Second});
        QVERIFY(pendant.save());
        QCOMPARE(saveButton->text(), QString("Save"));
        QCOMPARE(pendant.combo("ethnetSwitch")->currentIndex(), 1);
        QCOMPARE(pendant.combo("mesSwitch")->currentIndex(), 0);
        QCOMPARE(pendant.combo("freeBusSwitch")->currentIndex(), 1);
        QCOMPARE(pendant.combo("eipMSwitch")->currentIndex(), 0);
        pendant.controller().traffic().clear();
        MsgBoxScript::answerByDefault(MsgBox::Confirmed);
        QVERIFY(pendant.save());
        QCOMPARE(pendant.written().filter("2"), QStringList());
        QCOMPARE(pendant.controller().traffic().stores(), QStringList(FieldbusXml));

        QVERIFY(pendant.choose({{"ethnetSwitch", 0}, {"pftSwitch", 0}, {"ethcatSwitch", 1}}));
        pendant.controller().traffic().clear();
        QVERIFY(pendant.save());
        QCOMPARE(pendant.written().filter("2"), QStringList({"eip2close=1", "pfn2close=1"}));
        // A change of the EtherCAT slave, either way, takes the first five devices out of use.
        QCOMPARE(pendant.controllerFile(OverridePath),
                 overrideWith(true).replace("\n;ECAT_SLAVE_OFF 1", "\nECAT_SLAVE_OFF 1"));
    }

    void showsWhatRuns_data()
    {
        const Rows<QStringList, bool, int, bool, bool> row;
        row("nothing, PROFINET module", {}, false, 14, true, true);
        row("nothing, no module slot", {}, false, 14, false, false);
        row("nothing, ProfiSAFE", {}, true, 0, false, true);
        row("PROFINET slave, no module", {"ProfinetSlave", "Mes", "FreeBus"}, false, 13, false, true);
        row("much",
            {"EtherCatSlave", "EtherCatMaster", "EtherNetIPSlave", "DeviceNetSlave", "ModbusTcpMaster",
             "FreeBus"},
            false, 13, true, false);
        row("the rest", {"EtherNetIPMaster", "ProfinetMaster", "DeviceNetMaster"}, false, 13, true, false);
    }

    void showsWhatRuns()
    {
        const auto [on, profisafe, module, moduleSlot, pfnManaged] =
            Rows<QStringList, bool, int, bool, bool>::current();
        Pendant pendant(on);
        pendant.controller().variables().set("io_man.profisafe_status", profisafe ? 1 : 0);
        pendant.controller().variables().set("ifidbus.anybus_fm", module);
        pendant.controller().variables().set("ifidbus.is_rp2pro", moduleSlot ? 1 : 0);
        QVERIFY(pendant.open());
        const QStringList switches = {"mesSwitch",    "pftSwitch",     "pfnMasterSwitch", "ethcatSwitch",
                                      "ethnetSwitch", "ethcatMSwitch", "devnetSwitch",    "mbcSwitch",
                                      "eipMSwitch",   "devnetmSwitch", "freeBusSwitch"};
        for (int i = 0; i < switches.size(); ++i) {
            QVERIFY2(pendant.combo(switches[i])->currentIndex() == (on.contains(Roles[i].first) ? 1 : 0),
                     qPrintable(switches[i]));
            const bool enabled = switches[i] == "pftSwitch"                                      ? pfnManaged
                                 : switches[i] == "ethcatMSwitch" || switches[i] == "eipMSwitch" ? !profisafe
                                                                                                 : true;
            QVERIFY2(pendant.combo(switches[i])->isEnabled() == enabled, qPrintable(switches[i]));
        }
        QCOMPARE(pendant.messages(), QStringList());
        QCOMPARE(pendant.written().filter("pfn_enable").size(), pfnManaged ? 1 : 0);

        PaintCounter counter;
        for (int i = 0; i < 20; ++i)
            pendant.tick();
        QCoreApplication::processEvents();
        QCOMPARE(counter.styleChanges(), 0);
        QCOMPARE(counter.paints(), 0);
    }

    void overrideNotLoaded_data()
    {
        const Rows<bool, QString> row;
        row("not fetched", false, "Failed to get file:/FA/override.cfg");
        row("not read", true, "Failed to read file:../Application/fieldbusSetting/override.cfg");
    }

    void overrideNotLoaded()
    {
        const auto [fetched, message] = Rows<bool, QString>::current();
        Pendant pendant({"EtherCatSlave", "Mes"});
        if (fetched)
            pendant.controller().files().write(OverridePath, QByteArray(17 * 1024 * 1024, 'x'));
        else
            pendant.controller().faults().set(Faults::FetchFails, -1, OverridePath);
        MsgBoxScript::answerByDefault(MsgBox::Confirmed);
        QVERIFY(pendant.open());
        QCOMPARE(pendant.messages(), QStringList(message));
        QCOMPARE(MsgBoxScript::shown().constLast().kind, int(MsgBox::Error));
        QVERIFY(!pendant.combo("ethcatSwitch")->isEnabled());
        QCOMPARE(pendant.combo("ethcatSwitch")->currentIndex(), 0);
        QCOMPARE(pendant.combo("mesSwitch")->currentIndex(), 1);

        // What is not known keeps its role, in the file and for the controller.
        pendant.controller().setRestartAllowed(false);
        QVERIFY(pendant.choose({{"mesSwitch", 0}}));
        QVERIFY(pendant.save());
        QCOMPARE(pendant.messages().constLast(), Saved);
        QCOMPARE(pendant.controllerFile(FieldbusXml), fieldbusWith({"EtherCatSlave"}));
        QVERIFY(pendant.written().contains("ethcat_enable=1"));

        // The file is there again: it is loaded, and nothing saved unseen.
        pendant.controller().faults().clearAll();
        pendant.controller().files().write(OverridePath, overrideWith(true));
        pendant.controller().traffic().clear();
        QVERIFY(pendant.save());
        QCOMPARE(pendant.messages().constLast(), QString("Loaded now. Look at the settings, then save."));
        QVERIFY(pendant.controller().traffic().stores().isEmpty());
        QVERIFY(pendant.combo("ethcatSwitch")->isEnabled());
        QCOMPARE(pendant.combo("ethcatSwitch")->currentIndex(), 1);
    }

    void moduleCheck_data()
    {
        const Rows<bool, int, int, bool> row;
        row("another module", false, 14, 14, true);
        row("another module, but Anybus in use", true, 14, 14, false);
        row("EtherCAT module", false, 13, 13, false);
        row("known late", false, 0, 13, false);
        row("never known", false, 0, 0, true);
    }

    void moduleCheck()
    {
        const auto [inUse, module, later, warned] = Rows<bool, int, int, bool>::current();
        Pendant pendant({"EtherCatSlave"}, inUse);
        pendant.controller().variables().set("ifidbus.anybus_fm", module);
        MsgBoxScript::answerByDefault(MsgBox::Confirmed);
        QVERIFY(pendant.open());
        if (module == 0)
            QCOMPARE(pendant.messages(), QStringList());
        pendant.controller().variables().set("ifidbus.anybus_fm", later);
        QTest::qWait(module == 0 ? 900 : 100);
        QCOMPARE(pendant.messages(), warned ? QStringList(SelectAnybus) : QStringList());
    }

    void devicesThatAreMissing()
    {
        Pendant pendant({"EtherNetIPMaster", "ProfinetMaster"}, false);
        MsgBoxScript::answerByDefault(MsgBox::Confirmed);
        QVERIFY(pendant.open());
        QCOMPARE(pendant.messages(), QStringList({SelectEim, SelectPnm}));
        QVERIFY(pendant.turn("ethcatSwitch", 1));
        QVERIFY(pendant.turn("eipMSwitch", 0));
        QVERIFY(pendant.turn("pfnMasterSwitch", 0));
        QVERIFY(pendant.settle());
        QCOMPARE(pendant.messages().mid(2), QStringList(SelectAnybus));
        QVERIFY(pendant.turn("ethcatSwitch", 0));
        // Their devices are out of use already.
        pendant.controller().traffic().clear();
        QVERIFY(pendant.save());
        QCOMPARE(pendant.controller().traffic().stores(), QStringList(FieldbusXml));
    }

    void userLevelDrops_data()
    {
        const Rows<QString, Choices, QString, int> row;
        // the last: milliseconds after the box was shown
        row("warning about a switch", "", {{"devnetmSwitch", 1}}, CloseMaster, 0);
        row("failed load after a refusal", "fetch-fails:-1:/fa/override.cfg", {{"freeBusSwitch", 1}},
            "Failed to get file:/FA/override.cfg", 0);
        row("template fetched again and again", "fetch-fails:-1:/fa/override.cfg", {{"ethcatMSwitch", 1}},
            AskSave, 300);
        row("send failure", "send-fails", {{"ethcatMSwitch", 1}}, "Failed to send file:override.cfg", 0);
        row("wait for a command", "command-never-taken", {{"ethnetSwitch", 1}}, Waiting, 250);
        row("wait for the bus type", "bus-type-never-answered", {{"freeBusSwitch", 1}}, Waiting, 250);
        row("before the restart", "", {{"mesSwitch", 1}}, Saved, 20);
        row("watching the clock", "restart-ignored", {{"mesSwitch", 1}}, Saved, 150);
        row("power-off message", "restart-ignored", {{"mesSwitch", 1}}, PowerOff, 0);
    }

    // The application goes while the page waits; nothing of the page may be touched, and nothing stays.
    void userLevelDrops()
    {
        const auto [fault, choices, box, after] = Rows<QString, Choices, QString, int>::current();
        Pendant pendant({});
        QVERIFY(pendant.open() && pendant.choose(choices));
        QVERIFY(fault.isEmpty() || pendant.controller().faults().setFromText(fault));
        if (box.startsWith("Failed to get"))
            pendant.controller().faults().set(Faults::BusTypeRefused);
        MsgBoxScript::answerByDefault(MsgBox::Confirmed);
        MsgBoxScript::onShown([box = box, after = after](const MsgBox* shown) {
            if (shown->text() != box)
                return;
            if (after == 0)
                UserSession::instance().setUserLevel(1);
            else
                QTimer::singleShot(after, [] { UserSession::instance().setUserLevel(1); });
        });
        QVERIFY(box == CloseMaster ? pendant.turn("devnetSwitch", 1) : pendant.press("saveBusBt"));
        QTRY_VERIFY_WITH_TIMEOUT(!pendant.isOpen(), 5000);
        QTest::qWait(100);
        QTRY_VERIFY(!pendant.find("FbMainWidget"));
        for (const QWidget* window : QApplication::topLevelWidgets())
            QVERIFY(!(window->isVisible() && window->inherits("MsgBox")));

        if (box != Waiting)
            return;
        // The way out had been taken away.
        MsgBoxScript::onShown({});
        pendant.controller().faults().clearAll();
        UserSession::instance().setUserLevel(4);
        QVERIFY(pendant.open());
        QTRY_VERIFY(pendant.find("exitBtn")->isEnabled());
        QVERIFY(pendant.press("exitBtn"));
    }
};

PENDANT_TEST_MAIN(TestBusSwitch)
#include "tst_busswitch.moc"
