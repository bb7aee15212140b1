#include "DeviceRows.h"
#include "MasterSlaveStates.h"
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

class TestMasterTables : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void showsAndSaves_data() { twins(); }
    void showsAndSaves();
    void questionComesBeforeTheSecondFile_data();
    void questionComesBeforeTheSecondFile();
    void saveIsRefused_data();
    void saveIsRefused();
    void neitherFileIsThere_data() { twins(); }
    void neitherFileIsThere();
    void profisafeKeepsTheDevices_data() { twins(); }
    void profisafeKeepsTheDevices();
    void slaveCounts_data();
    void slaveCounts();
    void lightsFollowTheStates_data();
    void lightsFollowTheStates();
    void slavesFollowTheSavedTable_data() { twins(); }
    void slavesFollowTheSavedTable();
    void alarmActsAtOnce_data() { twins(); }
    void alarmActsAtOnce();

private:
    static void twins();
    const Twin& twin() const { return *m_twin; }
    bool openPage(PendantFixture& pendant) const
    {
        return pendant.openPastStartPage() && pendant.selectPage(twin().page);
    }
    QStringList visibleRows(const PendantFixture& pendant) const;
    QString light(const PendantFixture& pendant, int kind, int number) const;
    bool isTicked(const PendantFixture& pendant, const char* pattern, int number) const;

    const Twin* m_twin = nullptr;
};

void TestMasterTables::twins()
{
    QTest::addColumn<int>("twin");
    for (int index = 0; index < 2; ++index)
        QTest::newRow(Twins[index].name) << index;
}

void TestMasterTables::init()
{
    QFETCH(int, twin);
    m_twin = &Twins[twin];
}

// Numbers of the positions whose six widgets are all in sight; one that is in sight by half is told apart.
QStringList TestMasterTables::visibleRows(const PendantFixture& pendant) const
{
    const char* const patterns[] = {"label_num%1",    twin().fixedBox,  twin().dynamicBox,
                                    twin().lights[0], twin().lights[1], twin().lights[2]};
    QStringList rows;
    for (int number = 1; number <= 9; ++number) {
        int visible = 0;
        for (const char* pattern : patterns) {
            const QWidget* widget = pendant.find(numbered(pattern, number));
            visible += widget && widget->isVisible();
        }
        if (visible != 0)
            rows << (visible == 6 ? QString::number(number) : QStringLiteral("half"));
    }
    return rows;
}

QString TestMasterTables::light(const PendantFixture& pendant, int kind, int number) const
{
    QString image = pendant.find<QLabel>(numbered(twin().lights[kind], number))->styleSheet();
    return image.remove(QStringLiteral("border-image: url(:/image/C0_Done_"))
        .remove(QStringLiteral(".png);"));
}

bool TestMasterTables::isTicked(const PendantFixture& pendant, const char* pattern, int number) const
{
    return pendant.find<QCheckBox>(numbered(pattern, number))->isChecked();
}

void TestMasterTables::showsAndSaves()
{
    PendantFixture pendant;
    const QByteArray before = pendant.controllerFile(Override);
    QVERIFY(pendant.put(twin().file, tableFile(twin(), "4", "50", "60", 0b0101, 0b1010)));
    QVERIFY(openPage(pendant));
    QCOMPARE(pendant.controller().traffic().fetches(), QStringList({Override, twin().file}));
    const DeviceRows devices(pendant, twin().table);
    QCOMPARE(devices.shown(),
             QStringList({"1 2 3001 EIM_DEVICE x", "2 2 3002 PNM_DEVICE ", "3 2 3003 VALVE_ISLAND ",
                          "4 2 3004 WELD_SOURCE ", "5 2 3005 GLUE_CONTROL x", "6 2 3006  "}));
    QCOMPARE(pendant.find<QLineEdit>("lineEdit_slave_count")->text(), QString("4"));
    QCOMPARE(pendant.find<QLineEdit>("lineEdit_disable_timeout")->text(), QString("50"));
    QCOMPARE(pendant.find<QLineEdit>("lineEdit_enable_timeout")->text(), QString("60"));
    QCOMPARE(visibleRows(pendant), QStringList({"1", "2", "3", "4"}));
    for (int number = 1; number <= 4; ++number) {
        QCOMPARE(isTicked(pendant, twin().fixedBox, number), number % 2 == 1);
        QCOMPARE(isTicked(pendant, twin().dynamicBox, number), number % 2 == 0);
    }

    // Edits are dropped by a reset; the controller has heard of none.
    pendant.controller().traffic().clear();
    const auto edit = [&] {
        return devices.press(2) && pendant.enter("lineEdit_slave_count", "9") &&
               QTest::qWaitFor([&] { return visibleRows(pendant).size() == 9; }) &&
               pendant.enter("lineEdit_disable_timeout", "999999") &&
               pendant.enter("lineEdit_enable_timeout", "0") && pendant.press(numbered(twin().fixedBox, 1)) &&
               pendant.press(numbered(twin().dynamicBox, 9));
    };
    QVERIFY(edit());
    QVERIFY(pendant.press("btn_reset"));
    QVERIFY(!devices.box(2)->isChecked());
    QCOMPARE(visibleRows(pendant).size(), 4);
    QVERIFY(isTicked(pendant, twin().fixedBox, 1) && !isTicked(pendant, twin().dynamicBox, 9));

    QVERIFY(edit());
    QCOMPARE(pendant.controller().traffic().writeCount(), 0);
    PendantFixture::answer({MsgBox::Confirmed, MsgBox::Second});
    QVERIFY(pendant.press(twin().save));
    QVERIFY(pendant.settle());
    QCOMPARE(pendant.messages(), QStringList({Sure, Restart}));
    QCOMPARE(pendant.controller().traffic().stores(), QStringList({Override, twin().file}));
    QByteArray expected = before;
    expected.replace("\nECAT_SLAVE_OFF 2 3003", "\n;ECAT_SLAVE_OFF 2 3003");
    QCOMPARE(pendant.controllerFile(Override), expected);
    QCOMPARE(fromRoot(pendant.controllerFile(twin().file), twin()),
             tableFile(twin(), "9", "999999", "0", 0b0100, 0b100001010));
    QCOMPARE(pendant.controller().traffic().restartRequests(), 0);
}

void TestMasterTables::questionComesBeforeTheSecondFile_data()
{
    QTest::addColumn<int>("twin");
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("allowedByThen");
    QTest::addColumn<int>("restarts");
    for (int index = 0; index < 2; ++index) {
        const char* name = Twins[index].name;
        QTest::addRow("%s: yes", name) << index << int(MsgBox::Confirmed) << true << 1;
        QTest::addRow("%s: no", name) << index << int(MsgBox::Second) << true << 0;
        QTest::addRow("%s: closed", name) << index << int(MsgBox::Dismissed) << true << 0;
        QTest::addRow("%s: no longer allowed", name) << index << int(MsgBox::Confirmed) << false << 0;
    }
}

void TestMasterTables::questionComesBeforeTheSecondFile()
{
    QFETCH(int, answer);
    QFETCH(bool, allowedByThen);
    QFETCH(int, restarts);
    PendantFixture pendant;
    QVERIFY(openPage(pendant));
    pendant.controller().traffic().clear();
    QStringList storedBefore;
    MsgBoxScript::onShown([&](const MsgBox* box) {
        if (box->text() != Restart)
            return;
        storedBefore = pendant.controller().traffic().stores();
        pendant.controller().setRestartAllowed(allowedByThen);
    });
    PendantFixture::answer({MsgBox::Confirmed, answer});
    QVERIFY(pendant.press(twin().save));
    if (restarts)
        QTRY_VERIFY(!pendant.isOpen());
    QCOMPARE(storedBefore, QStringList(Override));
    QCOMPARE(pendant.controller().traffic().stores(), QStringList({Override, twin().file}));
    QCOMPARE(pendant.controller().traffic().restartRequests(), restarts);
}

void TestMasterTables::saveIsRefused_data()
{
    QTest::addColumn<int>("twin");
    QTest::addColumn<QString>("cause");
    QTest::addColumn<QStringList>("messages");
    QTest::addColumn<int>("stores");
    const QStringList goesThrough{Sure, Restart};
    QTest::newRow("EtherNet/IP: no restart allowed") << 0 << "no restart" << QStringList() << 0;
    QTest::newRow("EtherNet/IP: servo on") << 0 << "servo" << goesThrough << 2;
    QTest::newRow("EtherNet/IP: robot runs") << 0 << "runs" << goesThrough << 2;
    QTest::newRow("EtherNet/IP: not confirmed") << 0 << "second" << QStringList(Sure) << 0;
    QTest::newRow("PROFINET: no restart allowed") << 1 << "no restart" << goesThrough << 2;
    QTest::newRow("PROFINET: servo on") << 1 << "servo" << QStringList(ServoFirst) << 0;
    QTest::newRow("PROFINET: robot runs") << 1 << "runs" << QStringList(ServoFirst) << 0;
    QTest::newRow("PROFINET: not confirmed") << 1 << "second" << QStringList(Sure) << 0;
}

void TestMasterTables::saveIsRefused()
{
    QFETCH(QString, cause);
    PendantFixture pendant;
    QVERIFY(openPage(pendant));
    pendant.controller().setServoOn(cause == QLatin1String("servo"));
    pendant.controller().setRobotRunning(cause == QLatin1String("runs"));
    pendant.controller().setRestartAllowed(cause != QLatin1String("no restart"));
    pendant.controller().traffic().clear();
    if (cause == QLatin1String("second"))
        PendantFixture::answer({MsgBox::Second});
    else
        PendantFixture::answer({MsgBox::Confirmed, MsgBox::Second});
    QVERIFY(pendant.press(twin().save));
    QVERIFY(pendant.settle());
    QTEST(pendant.messages(), "messages");
    QTEST(pendant.controller().traffic().stores().size(), "stores");
}

// Both are asked for, whatever became of the first.
void TestMasterTables::neitherFileIsThere()
{
    PendantFixture pendant;
    QVERIFY(pendant.openPastStartPage());
    QVERIFY(pendant.controller().faults().setFromText("fetch-fails"));
    MsgBoxScript::answerByDefault(MsgBox::Confirmed);
    QVERIFY(pendant.selectPage(twin().page));
    QCOMPARE(pendant.messages(), QStringList({GetFailed, twin().getText}));
}

void TestMasterTables::profisafeKeepsTheDevices()
{
    const bool keeps = twin().page == 12;
    PendantFixture pendant;
    pendant.controller().variables().set("io_man.profisafe_status", 1);
    QVERIFY(openPage(pendant));
    QCOMPARE(pendant.controller().traffic().fetches().contains(Override), !keeps);
    QVERIFY(pendant.controller().traffic().fetches().contains(twin().file));
    QCOMPARE(DeviceRows(pendant, twin().table).shown().size(), keeps ? 0 : 6);
    pendant.controller().traffic().clear();
    PendantFixture::answer({MsgBox::Confirmed, MsgBox::Second});
    QVERIFY(pendant.press(twin().save));
    QVERIFY(pendant.settle());
    QCOMPARE(pendant.messages(), QStringList({Sure, Restart}));
    QCOMPARE(pendant.controller().traffic().stores(),
             keeps ? QStringList(twin().file) : QStringList({Override, twin().file}));
    QCOMPARE(pendant.controller().traffic().fetches().contains(Override), !keeps);
}

void TestMasterTables::slaveCounts_data()
{
    QTest::addColumn<int>("twin");
    QTest::addColumn<QByteArray>("count");
    QTest::addColumn<int>("rows");
    QTest::addColumn<QByteArray>("saved");
    QTest::newRow("none") << 0 << QByteArray("0") << 0 << QByteArray("0");
    QTest::newRow("one") << 1 << QByteArray("1") << 1 << QByteArray("1");
    QTest::newRow("nine") << 0 << QByteArray("9") << 9 << QByteArray("9");
    QTest::newRow("more than there are positions") << 1 << QByteArray("12") << 9 << QByteArray("12");
    QTest::newRow("below none") << 0 << QByteArray("-3") << 0 << QByteArray("-3");
    QTest::newRow("blanks around") << 1 << QByteArray("  3 ") << 3 << QByteArray("3");
    QTest::newRow("no number") << 0 << QByteArray("many") << 0 << QByteArray("0");
    QTest::newRow("beyond a number") << 1 << QByteArray("99999999999") << 9 << QByteArray("0");
    QTest::newRow("nothing") << 0 << QByteArray("") << 0 << QByteArray("0");
}

void TestMasterTables::slaveCounts()
{
    QFETCH(QByteArray, count);
    QFETCH(int, rows);
    QFETCH(QByteArray, saved);
    PendantFixture pendant;
    QVERIFY(pendant.put(twin().file, tableFile(twin(), count, "soon", "", 0, 0)));
    QVERIFY(openPage(pendant));
    QTest::qWait(150); // a tick
    QCOMPARE(pendant.find<QLineEdit>("lineEdit_slave_count")->text(), QString::fromLatin1(count));
    QCOMPARE(visibleRows(pendant).size(), rows);
    QVERIFY(!visibleRows(pendant).contains("half"));
    for (const char* name : {"label_dyn_alm", "label_disable_timeout", "lineEdit_disable_timeout",
                             "label_enable_timeout", "lineEdit_enable_timeout", twin().alarmBox})
        QCOMPARE(pendant.find(name)->isVisible(), rows > 0);
    QVERIFY(pendant.find("label_title_count")->isVisible() && pendant.find(twin().save)->isVisible());
    PendantFixture::answer({MsgBox::Confirmed, MsgBox::Second});
    QVERIFY(pendant.press(twin().save));
    QVERIFY(pendant.settle());
    QCOMPARE(fromRoot(pendant.controllerFile(twin().file), twin()), tableFile(twin(), saved, "0", "0", 0, 0));
}

void TestMasterTables::lightsFollowTheStates_data()
{
    QTest::addColumn<int>("twin");
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("variable");
    QTest::addColumn<QStringList>("images"); // for 0, 1, 2, -1
    for (int index = 0; index < 2; ++index) {
        QTest::addRow("%s connected", Twins[index].name)
            << index << 0 << "_status" << QStringList({"Red", "Green", "Green", "Green"});
        QTest::addRow("%s coupling", Twins[index].name)
            << index << 1 << "_enable_status" << QStringList({"Grey", "Green", "Red", "Red"});
        QTest::addRow("%s decoupling", Twins[index].name)
            << index << 2 << "_disable_status" << QStringList({"Grey", "Green", "warning", "warning"});
    }
}

void TestMasterTables::lightsFollowTheStates()
{
    QFETCH(int, kind);
    QFETCH(QString, variable);
    QFETCH(QStringList, images);
    PendantFixture pendant;
    QVERIFY(pendant.put(twin().file, tableFile(twin(), "9", "0", "0", 0, 0)));
    // The controller's own slaves would change the states.
    QVERIFY(pendant.controller().setRoleOn(twin().role, false));
    QVERIFY(openPage(pendant));
    const QString name = QLatin1String(twin().variable) + variable;
    constexpr int States[] = {0, 1, 2, -1};
    for (int round = 0; round < 4; ++round) {
        // A state of its own for each position, so that a light that follows another one shows.
        for (int index = 0; index < 9; ++index)
            pendant.controller().variables().set(name, index, States[(index + round) % 4]);
        for (int index = 0; index < 9; ++index)
            QTRY_COMPARE(light(pendant, kind, index + 1), images[(index + round) % 4]);
    }
}

void TestMasterTables::slavesFollowTheSavedTable()
{
    PendantFixture pendant;
    SimulatedController& controller = pendant.controller();
    // Coupling takes longer than the operator is going to allow.
    QVERIFY(controller.files().write(twin().file, tableFile(twin(), "0", "9000", "9000", 0, 0)));
    QVERIFY(controller.setRoleOn(twin().role, true));
    QVERIFY(openPage(pendant));
    auto& states = controller.behaviour<MasterSlaveStates>();
    for (int position = 0; position < 3; ++position)
        QVERIFY(states.setSlaveConnected(twin().master, position, position != 1));
    const auto save = [&](const QString& enableTimeout) {
        PendantFixture::answer({MsgBox::Confirmed, MsgBox::Confirmed});
        const bool saved = pendant.enter("lineEdit_enable_timeout", enableTimeout) &&
                           pendant.press(twin().save) &&
                           QTest::qWaitFor([&] { return !pendant.isOpen() && controller.isUp(); });
        return saved && QTest::qWaitFor([&] { return pendant.openPastStartPage(); }, 20000) &&
               pendant.selectPage(twin().page);
    };
    QVERIFY(pendant.enter("lineEdit_slave_count", "4"));
    QTRY_COMPARE(visibleRows(pendant).size(), 4);
    const char* const boxes[] = {twin().fixedBox, twin().fixedBox, twin().dynamicBox};
    for (int number = 1; number <= 3; ++number)
        QVERIFY(pendant.press(numbered(boxes[number - 1], number)));
    QVERIFY(save("100"));
    // A fixed one that is there, a fixed one that is not, a dynamic one, and one that is not served.
    QTRY_COMPARE(light(pendant, 1, 3), QString("Red"));
    for (const auto& [number, connected] : {std::pair(1, "Green"), {2, "Red"}, {3, "Red"}, {4, "Red"}})
        QTRY_COMPARE(light(pendant, 0, number), QString(connected));

    QVERIFY(save("5000"));
    QTRY_COMPARE(light(pendant, 0, 3), QString("Green"));
    QCOMPARE(light(pendant, 1, 3), QString("Green"));
    QVERIFY(states.setSlaveConnected(twin().master, 2, false));
    QTRY_COMPARE(light(pendant, 2, 3), QString("Green"));
    QTRY_COMPARE(light(pendant, 0, 3), QString("Red"));
    QCOMPARE(light(pendant, 1, 3), QString("Grey"));
    QVERIFY(!states.setSlaveConnected(twin().master, 9, true) &&
            !states.setSlaveConnected(twin().master, -1, true));
}

void TestMasterTables::alarmActsAtOnce()
{
    PendantFixture pendant;
    const QString name = QLatin1String(twin().variable);
    const QString variable = QString(name).insert(name.indexOf('.') + 1, "dynamic_") + "_enable";
    pendant.controller().variables().set(variable, 1);
    QVERIFY(openPage(pendant));
    auto* box = pendant.find<QCheckBox>(twin().alarmBox);
    QVERIFY(box->isChecked());
    pendant.controller().traffic().clear();
    QVERIFY(pendant.press(twin().alarmBox));
    QCOMPARE(pendant.variable(variable), 0.0);
    // It is no edit: a reset does not take it back.
    QVERIFY(pendant.press("btn_reset"));
    QVERIFY(!box->isChecked());
    QVERIFY(pendant.press(twin().alarmBox));
    QCOMPARE(pendant.variable(variable), 1.0);
    QCOMPARE(pendant.controller().traffic().writeCount(), 2);
    QCOMPARE(pendant.messages(), QStringList());
}

PENDANT_TEST_MAIN(TestMasterTables)
#include "tst_mastertables.moc"
