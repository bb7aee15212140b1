#include "DeviceRows.h"
#include "MasterSlaveStates.h"
#include "PageTest.h"
#include "QTouchLineEdit.h"
#include "Texts.h"

#include <QLabel>

namespace {

using namespace Texts;

// The two pages and where they differ. "%1" stands for a position.
struct Twin
{
    const char* name;
    int page;
    const char* save;
    const char* table;
    const char* alarmBox;
    const char* fixedBox;
    const char* dynamicBox;
    const char* lights[3]; // connected, coupling, decoupling
    const char* variable;  // first part of the names
    const char* file;
    const char* root;
    const char* getText;
    MasterSlaveStates::Master master;
    const char* role;
};

constexpr Twin Twins[] = {
    {"EtherNet/IP",
     11,
     "saveBt_EipM",
     "eipMTableWidget",
     "dynalm_checkbox_",
     "fixeip_checkbox_%1",
     "dyneip_checkbox_%1",
     {"eipConnectStatLb_%1", "eipCouplingStatLb_%1", "eipDecouplingStatLb_%1"},
     "ifidbus.eim",
     "/application/fidbus/eipMaster/eip_master.xml",
     "EipMasterCommunication",
     "Failed to get eip_master.xml file.",
     MasterSlaveStates::EtherNetIp,
     "EtherNetIPMaster"},
    {"PROFINET",
     12,
     "btn_save",
     "pfnMasterTableWdt",
     "dynalm_checkbox",
     "fix_checkbox_%1",
     "dyn_checkbox_%1",
     {"connectStatLb_%1", "couplingStatLb_%1", "decouplingStatLb_%1"},
     "ifidbus.pnm",
     "/application/fidbus/pfnMaster/pfn_master.xml",
     "PfnMasterCommunication",
     "Failed to get pfn_master.xml file.",
     MasterSlaveStates::Profinet,
     "ProfinetMaster"},
};

const QString Override = QStringLiteral("/FA/override.cfg");
QString numbered(const char* pattern, int number)
{
    return QString::fromLatin1(pattern).arg(number);
}

QByteArray tableFile(const Twin& twin, const QByteArray& count, const QByteArray& disable,
                     const QByteArray& enable, int fixedBits, int dynamicBits)
{
    const struct
    {
        const char* group;
        const char* flag;
        int bits;
    } groups[] = {{"SlaveFixed", "FixSlave", fixedBits}, {"SlaveDynamic", "DynSlave", dynamicBits}};
    QByteArray file = QByteArray("<") + twin.root + ">\n\t<Group>\n\t\t<SlaveNum>" + count +
                      "</SlaveNum>\n\t\t<DisableTimeout>" + disable +
                      "</DisableTimeout>\n\t\t<EnableTimeout>" + enable + "</EnableTimeout>\n";
    for (const auto& group : groups) {
        file += QByteArray("\t\t<") + group.group + ">\n";
        for (int number = 1; number <= 9; ++number) {
            const QByteArray element = group.flag + QByteArray::number(number);
            file += "\t\t\t<" + element + ">" + ((group.bits >> (number - 1)) & 1 ? "1" : "0") + "</" +
                    element + ">\n";
        }
        file += QByteArray("\t\t</") + group.group + ">\n";
    }
    return file + "\t</Group>\n</" + twin.root + ">\n";
}

// Without what stands before the root element.
QByteArray fromRoot(const QByteArray& file, const Twin& twin)
{
    return file.mid(file.indexOf(QByteArray("<") + twin.root));
}

} // namespace

class TestMasterTables : public PageTest
{
    Q_OBJECT

public:
    using PageTest::PageTest;

private slots:
    void init()
    {
        start();
        m_twin = &Twins[*static_cast<int*>(QTest::qData("0", QMetaType::Int))];
        turnTo(m_twin->page);
    }

    void showsAndSaves_data() { twins(); }
    void showsAndSaves()
    {
        const QByteArray before = controllerFile(Override);
        QVERIFY(show(twin().file, tableFile(twin(), "4", "50", "60", 0b0101, 0b1010)));
        QCOMPARE(traffic().fetches(), QStringList({Override, twin().file}));
        const DeviceRows devices(*this, twin().table);
        QCOMPARE(devices.shown(),
                 QStringList({"1 2 3001 EIM_DEVICE x", "2 2 3002 PNM_DEVICE ", "3 2 3003 VALVE_ISLAND ",
                              "4 2 3004 WELD_SOURCE ", "5 2 3005 GLUE_CONTROL x", "6 2 3006  "}));
        QCOMPARE(text("lineEdit_slave_count"), QString("4"));
        QCOMPARE(text("lineEdit_disable_timeout"), QString("50"));
        QCOMPARE(text("lineEdit_enable_timeout"), QString("60"));
        QCOMPARE(visibleRows(), QStringList({"1", "2", "3", "4"}));
        for (int number = 1; number <= 4; ++number) {
            QCOMPARE(isTicked(twin().fixedBox, number), number % 2 == 1);
            QCOMPARE(isTicked(twin().dynamicBox, number), number % 2 == 0);
        }

        // Edits are dropped by a reset; the controller has heard of none.
        traffic().clear();
        const auto edit = [&] {
            return devices.press(2) && enter("lineEdit_slave_count", "9") &&
                   QTest::qWaitFor([&] { return visibleRows().size() == 9; }) &&
                   enter("lineEdit_disable_timeout", "999999") && enter("lineEdit_enable_timeout", "0") &&
                   press(numbered(twin().fixedBox, 1)) && press(numbered(twin().dynamicBox, 9));
        };
        QVERIFY(edit());
        QVERIFY(press("btn_reset"));
        QVERIFY(!devices.box(2)->isChecked());
        QCOMPARE(visibleRows().size(), 4);
        QVERIFY(isTicked(twin().fixedBox, 1) && !isTicked(twin().dynamicBox, 9));

        QVERIFY(edit());
        QCOMPARE(traffic().writeCount(), 0);
        QVERIFY(save(twin().save, {MsgBox::Confirmed, MsgBox::Second}));
        QCOMPARE(messages(), QStringList({Sure, Restart}));
        QCOMPARE(traffic().stores(), QStringList({Override, twin().file}));
        QByteArray expected = before;
        expected.replace("\nECAT_SLAVE_OFF 2 3003", "\n;ECAT_SLAVE_OFF 2 3003");
        QCOMPARE(controllerFile(Override), expected);
        QCOMPARE(fromRoot(controllerFile(twin().file), twin()),
                 tableFile(twin(), "9", "999999", "0", 0b0100, 0b100001010));
        QCOMPARE(traffic().restartRequests(), 0);
    }

    void questionComesBeforeTheSecondFile_data()
    {
        const Rows<int, int, bool, int> row;
        for (int index = 0; index < 2; ++index) {
            const QString name = Twins[index].name;
            row(name + ": yes", index, MsgBox::Confirmed, true, 1);
            row(name + ": no", index, MsgBox::Second, true, 0);
            row(name + ": closed", index, MsgBox::Dismissed, true, 0);
            row(name + ": no longer allowed", index, MsgBox::Confirmed, false, 0);
        }
    }

    void questionComesBeforeTheSecondFile()
    {
        const auto [index, result, allowedByThen, restarts] = Rows<int, int, bool, int>::current();
        QVERIFY(show());
        traffic().clear();
        QStringList storedBefore;
        MsgBoxScript::onShown([&, allowed = allowedByThen](const MsgBox* box) {
            if (box->text() != Restart)
                return;
            storedBefore = traffic().stores();
            controller().setRestartAllowed(allowed);
        });
        answer({MsgBox::Confirmed, result});
        QVERIFY(press(twin().save));
        if (restarts)
            QTRY_VERIFY(!isOpen());
        QCOMPARE(storedBefore, QStringList(Override));
        QCOMPARE(traffic().stores(), QStringList({Override, twin().file}));
        QCOMPARE(traffic().restartRequests(), restarts);
    }

    void neitherFileIsThere_data() { twins(); }
    // Both are asked for, whatever became of the first.
    void neitherFileIsThere()
    {
        QVERIFY(openPastStartPage());
        QVERIFY(fail("fetch-fails"));
        MsgBoxScript::answerByDefault(MsgBox::Confirmed);
        QVERIFY(showAgain());
        QCOMPARE(messages(), QStringList({GetFailed, twin().getText}));
    }

    void profisafeKeepsTheDevices_data() { twins(); }
    void profisafeKeepsTheDevices()
    {
        const bool keeps = twin().page == 12;
        set("io_man.profisafe_status", 1);
        QVERIFY(show());
        QCOMPARE(traffic().fetches().contains(Override), !keeps);
        QVERIFY(traffic().fetches().contains(twin().file));
        QCOMPARE(DeviceRows(*this, twin().table).shown().size(), keeps ? 0 : 6);
        traffic().clear();
        QVERIFY(save(twin().save, {MsgBox::Confirmed, MsgBox::Second}));
        QCOMPARE(messages(), QStringList({Sure, Restart}));
        QCOMPARE(traffic().stores(), keeps ? QStringList(twin().file) : QStringList({Override, twin().file}));
        QCOMPARE(traffic().fetches().contains(Override), !keeps);
    }

    void slaveCounts_data()
    {
        const Rows<int, QByteArray, int, QByteArray> row;
        row("none", 0, "0", 0, "0");
        row("one", 1, "1", 1, "1");
        row("nine", 0, "9", 9, "9");
        row("more than there are positions", 1, "12", 9, "12");
        row("below none", 0, "-3", 0, "-3");
        row("blanks around", 1, "  3 ", 3, "3");
        row("no number", 0, "many", 0, "0");
        row("in another form", 0, "3.0", 3, "3");
        row("beyond a number", 1, "99999999999", 0, "0");
        row("nothing", 0, "", 0, "0");
    }

    void slaveCounts()
    {
        const auto [index, count, rows, saved] = Rows<int, QByteArray, int, QByteArray>::current();
        QVERIFY(show(twin().file, tableFile(twin(), count, "soon", "", 0, 0)));
        QTest::qWait(150); // a tick
        QCOMPARE(text("lineEdit_slave_count"), QString::fromLatin1(count));
        QCOMPARE(visibleRows().size(), rows);
        QVERIFY(!visibleRows().contains("half"));
        for (const char* name : {"label_dyn_alm", "label_disable_timeout", "lineEdit_disable_timeout",
                                 "label_enable_timeout", "lineEdit_enable_timeout", twin().alarmBox})
            QCOMPARE(find(name)->isVisible(), rows > 0);
        QVERIFY(find("label_title_count")->isVisible() && find(twin().save)->isVisible());
        QVERIFY(save(twin().save, {MsgBox::Confirmed, MsgBox::Second}));
        QCOMPARE(fromRoot(controllerFile(twin().file), twin()), tableFile(twin(), saved, "0", "0", 0, 0));
    }

    void lightsFollowTheStates_data()
    {
        // images: for 0, 1, 2, -1
        const Rows<int, int, QString, QStringList> row;
        for (int index = 0; index < 2; ++index) {
            const QString name = Twins[index].name;
            row(name + " connected", index, 0, "_status", {"Red", "Green", "Green", "Green"});
            row(name + " coupling", index, 1, "_enable_status", {"Grey", "Green", "Red", "Red"});
            row(name + " decoupling", index, 2, "_disable_status", {"Grey", "Green", "warning", "warning"});
        }
    }

    void lightsFollowTheStates()
    {
        const auto [index, kind, suffix, images] = Rows<int, int, QString, QStringList>::current();
        QVERIFY(put(twin().file, tableFile(twin(), "9", "0", "0", 0, 0)));
        // The controller's own slaves would change the states.
        QVERIFY(controller().setRoleOn(twin().role, false));
        QVERIFY(show());
        const QString name = QLatin1String(twin().variable) + suffix;
        constexpr int States[] = {0, 1, 2, -1};
        for (int round = 0; round < 4; ++round) {
            // A state of its own for each position, so that a light that follows another one shows.
            for (int position = 0; position < 9; ++position)
                set(name, position, States[(position + round) % 4]);
            for (int position = 0; position < 9; ++position)
                QTRY_COMPARE(light(kind, position + 1), images[(position + round) % 4]);
        }
    }

    void slavesFollowTheSavedTable_data() { twins(); }
    void slavesFollowTheSavedTable()
    {
        // Coupling takes longer than the operator is going to allow.
        QVERIFY(put(twin().file, tableFile(twin(), "0", "9000", "9000", 0, 0)));
        QVERIFY(put("/fa/override.cfg",
                    ";ECAT_SLAVE_OFF 2 3001;EIM_DEVICE\n;ECAT_SLAVE_OFF 2 3002;PNM_DEVICE\n"));
        QVERIFY(controller().setRoleOn(twin().role, true));
        QVERIFY(show());
        auto& states = controller().behaviour<MasterSlaveStates>();
        for (int position = 0; position < 3; ++position)
            QVERIFY(states.setSlaveConnected(twin().master, position, position != 1));
        const auto restartWith = [&](const QString& enableTimeout) {
            answer({MsgBox::Confirmed, MsgBox::Confirmed});
            const bool saved = enter("lineEdit_enable_timeout", enableTimeout) && press(twin().save) &&
                               QTest::qWaitFor([&] { return !isOpen() && controller().isUp(); });
            return saved && QTest::qWaitFor([&] { return show(); }, 20000);
        };
        QVERIFY(enter("lineEdit_slave_count", "4"));
        QTRY_COMPARE(visibleRows().size(), 4);
        const char* const boxes[] = {twin().fixedBox, twin().fixedBox, twin().dynamicBox};
        for (int number = 1; number <= 3; ++number)
            QVERIFY(press(numbered(boxes[number - 1], number)));
        QVERIFY(restartWith("100"));
        // A fixed one that is there, a fixed one that is not, a dynamic one, and one that is not served.
        QTRY_COMPARE(light(1, 3), QString("Red"));
        for (const auto& [number, connected] : {std::pair(1, "Green"), {2, "Red"}, {3, "Red"}, {4, "Red"}})
            QTRY_COMPARE(light(0, number), QString(connected));

        QVERIFY(restartWith("5000"));
        QTRY_COMPARE(light(0, 3), QString("Green"));
        QCOMPARE(light(1, 3), QString("Green"));
        QVERIFY(states.setSlaveConnected(twin().master, 2, false));
        QTRY_COMPARE(light(2, 3), QString("Green"));
        QTRY_COMPARE(light(0, 3), QString("Red"));
        QCOMPARE(light(1, 3), QString("Grey"));
        QVERIFY(!states.setSlaveConnected(twin().master, 9, true) &&
                !states.setSlaveConnected(twin().master, -1, true));
    }

    void alarmActsAtOnce_data() { twins(); }
    void alarmActsAtOnce()
    {
        const QString name = QLatin1String(twin().variable);
        const QString enable = QString(name).insert(name.indexOf('.') + 1, "dynamic_") + "_enable";
        set(enable, 1);
        QVERIFY(show());
        auto* box = find<QCheckBox>(twin().alarmBox);
        QVERIFY(box->isChecked());
        traffic().clear();
        QVERIFY(press(twin().alarmBox));
        QCOMPARE(variable(enable), 0.0);
        // It is no edit: a reset does not take it back.
        QVERIFY(press("btn_reset"));
        QVERIFY(!box->isChecked());
        QVERIFY(press(twin().alarmBox));
        QCOMPARE(variable(enable), 1.0);
        QCOMPARE(traffic().writeCount(), 2);
        QCOMPARE(messages(), QStringList());
    }

private:
    static void twins()
    {
        const Rows<int> row;
        for (int index = 0; index < 2; ++index)
            row(Twins[index].name, index);
    }

    const Twin& twin() const { return *m_twin; }
    // Numbers of the positions whose six widgets are all in sight; one that is in sight by half is told
    // apart.
    QStringList visibleRows() const
    {
        const char* const patterns[] = {"label_num%1",    twin().fixedBox,  twin().dynamicBox,
                                        twin().lights[0], twin().lights[1], twin().lights[2]};
        QStringList rows;
        for (int number = 1; number <= 9; ++number) {
            int visible = 0;
            for (const char* pattern : patterns) {
                const QWidget* widget = find(numbered(pattern, number));
                visible += widget && widget->isVisible();
            }
            if (visible != 0)
                rows << (visible == 6 ? QString::number(number) : QStringLiteral("half"));
        }
        return rows;
    }

    QString light(int kind, int number) const
    {
        QString image = find<QLabel>(numbered(twin().lights[kind], number))->styleSheet();
        return image.remove(QStringLiteral("border-image: url(:/image/C0_Done_"))
            .remove(QStringLiteral(".png);"));
    }

    bool isTicked(const char* pattern, int number) const
    {
        return find<QCheckBox>(numbered(pattern, number))->isChecked();
    }

    const Twin* m_twin = nullptr;
};

PENDANT_TEST_MAIN(TestMasterTables, QString())
#include "tst_mastertables.moc"
