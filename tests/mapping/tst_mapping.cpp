#include "BusFileDataManager.h"
#include "BusMappingFile.h"
#include "Faults.h"
#include "PendantFixture.h"

#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>

namespace {

const QString FilePath = QStringLiteral("/application/fidbus/fieldbus_config.xml");
const QString Button = QStringLiteral("configBtn");
const QString UpdateState = QStringLiteral("ifidbus.xml_update_state");

const QString SaveQuestion = QStringLiteral("Are you sure to Save Configuration?");
const QString Wait = QStringLiteral("Please wait....");
const QString RestartQuestion =
    QStringLiteral("Save successfully, and send Configuration file to controller! Are you sure to restart "
                   "robot to make it effect?");
const QString Failed = QStringLiteral("Bus configuration modification failed!");
const QString RestartLater = QStringLiteral("Please manually power off and restart the robot later!");

constexpr int MovedBit = 0x1;
constexpr int RejectedBit = 0x800;
constexpr int TakenBit = 0x4000;

// The pendant on the I/O mapping page.
class Mapping : public PendantFixture
{
public:
    explicit Mapping(double timeScale = 20.0)
        : PendantFixture(timeScale)
    {
    }

    bool openMapping() { return openPastStartPage() && openPage(Button); }
    QWidget* page() const { return find("ConfigWidget"); }
    QPushButton* button() const { return find<QPushButton>("bt_EditOrSave"); }
    bool isEditing() const { return button()->text() == QLatin1String("Save"); }

    QString cell(const QString& table, int row, int column) const
    {
        return find<QTableWidget>("tableView_" + table)->item(row, column)->text();
    }
    QString tips() const { return find<QLabel>("lab_Tips")->text(); }
    void selectTab(int tab) { find<QTabWidget>("tabWidget_Bus")->setCurrentIndex(tab); }

    /// Presses a cell and types on the keyboard that it opens.
    bool enterCell(const QString& table, int row, int column, const QString& text)
    {
        NumericKeyboardScript::enterNext(text);
        return pressCell("tableView_" + table, row, column) && settle();
    }
    /// Presses the save button and confirms; what comes next is answered with `results`.
    bool save(std::initializer_list<int> results)
    {
        answer({MsgBox::Confirmed});
        answer(results);
        return press("bt_EditOrSave");
    }
    /// A save that is sent and waits for the controller, which does not answer.
    bool saveUnanswered()
    {
        controller().faults().set(Faults::MappingNeverAnswered);
        return press("bt_EditOrSave") && save({}) &&
               QTest::qWaitFor([this] { return int(variable(UpdateState)) & 0x8000; });
    }

    std::vector<BusAddrNumInfo> savedBuses(BusMappingFile::Mode mode) const
    {
        BusMappingFile file;
        return file.parse(controllerFile(FilePath)) ? file.buses(mode) : std::vector<BusAddrNumInfo>();
    }
    bool isNoticeOpen() const
    {
        const auto boxes = page()->findChildren<MsgBox*>();
        return std::any_of(boxes.begin(), boxes.end(),
                           [](const MsgBox* box) { return box->isVisible() && box->text() == Wait; });
    }
};

} // namespace

class TestMapping : public QObject
{
    Q_OBJECT

private slots:
    void showsTheMapping();
    void followsTheModeAndTheRoles();
    void editsEveryBus();
    void refusedEntries();
    void saveIsChecked();
    void saveIsDeclined_data();
    void saveIsDeclined();
    void handshake_data();
    void handshake();
    void timeOut_data();
    void timeOut();
    void neverAnsweredInRealTime();
    void restart_data();
    void restart();
    void userLevelDrops_data();
    void userLevelDrops();
    void ticksInViewingModeOnly();
};

void TestMapping::showsTheMapping()
{
    Mapping pendant;
    pendant.controller().variables().set(UpdateState, 0x4800);
    QVERIFY(pendant.openMapping());
    QCOMPARE(pendant.variable(UpdateState), 0.0);
    const auto* tabs = pendant.find<QTabWidget>("tabWidget_Bus");
    QString enabled;
    for (int tab = 0; tab < tabs->count(); ++tab)
        enabled += QLatin1Char(tabs->isTabEnabled(tab) ? '1' : '0');
    QCOMPARE(enabled, QString("1111001101")); // as the factory's roles
    QCOMPARE(pendant.cell("Mtcp", 0, 3), QString("40101"));
    QVERIFY(pendant.tips().contains("Range: 0 ~ 2048!"));
    QVERIFY(pendant.press("checkBox_Mtcp_WO"));
    QCOMPARE(pendant.cell("Mtcp", 0, 3), QString("40001"));
    QVERIFY(!pendant.find<QAbstractButton>("checkBox_Mtcp_RO")->isChecked());

    // The tab is pressed as a finger does, and takes the tips with it.
    const QTabBar* bar = tabs->tabBar();
    QTest::mouseClick(const_cast<QTabBar*>(bar), Qt::LeftButton, {}, bar->tabRect(3).center());
    QVERIFY(pendant.settle());
    QVERIFY(pendant.tips().contains("0 ~ 1536!"));
    QVERIFY(pendant.find<QLabel>("lab_Tips")->isVisible());
    QCOMPARE(pendant.cell("Pfn", 0, 5), QString("pfn_ro_b:[0]~[511]"));
    QVERIFY(pendant.press("checkBox_Pfn_WO"));
    QCOMPARE(pendant.cell("Pfn", 0, 5), QString("pfn_wo_b:[0]~[511]"));
    // Nothing is edited in viewing mode: a keyboard that opens would not be answered.
    QVERIFY(pendant.pressCell("tableView_Pfn", 0, 1) && pendant.settle());
}

// Another page switches mode and roles while this one is there, in the middle of editing.
void TestMapping::followsTheModeAndTheRoles()
{
    Mapping pendant;
    QVERIFY(pendant.openMapping());
    QVERIFY(pendant.press("bt_EditOrSave"));
    QVERIFY(pendant.enterCell("Mtcp", 1, 1, "16"));
    QVERIFY(pendant.openPage("heartbeatBtn"));
    auto roles = BusFileDataManager::getInstance()->getAllBusName();
    roles["FreeBus"].enabled = false;
    roles["EtherCatSlave"].enabled = false;
    BusFileDataManager::getInstance()->setBusInfo(roles);
    QVERIFY(pendant.openPage(Button));
    QVERIFY(!pendant.isEditing());
    QCOMPARE(pendant.cell("Mtcp", 1, 1), QString("256"));
    QVERIFY(!pendant.find<QTabWidget>("tabWidget_Bus")->isTabEnabled(1));
    QVERIFY(!pendant.find<QTabWidget>("tabWidget_Bus")->isTabEnabled(6)); // the master is for the free mode
    QVERIFY(pendant.tips().contains("Range: 0 ~ 480!"));
    auto* table = pendant.find<QTableWidget>("tableView_Mtcp");
    QVERIFY(!table->isRowHidden(0) && !table->isRowHidden(6));
    QVERIFY(pendant.press("checkBox_Mtcp_RW"));
    QStringList numbers;
    for (int row = 0; row < table->rowCount(); ++row) {
        if (!table->isRowHidden(row))
            numbers << table->verticalHeaderItem(row)->text();
    }
    QVERIFY(table->isRowHidden(0));
    QCOMPARE(numbers.join(' '), QString("1 2 3 4 5"));
    // Without a change an opened page keeps what is being edited.
    QVERIFY(pendant.press("bt_EditOrSave"));
    QVERIFY(pendant.enterCell("Mtcp", 1, 1, "16"));
    QVERIFY(pendant.openPage("heartbeatBtn"));
    QVERIFY(pendant.openPage(Button));
    QVERIFY(pendant.isEditing());
    QCOMPARE(pendant.cell("Mtcp", 1, 1), QString("16"));
}

// One entry in the table of each editable bus, saved together.
void TestMapping::editsEveryBus()
{
    struct Edit
    {
        int tab;
        const char* table;
        int row;
        int column;
        const char* typed;
        const char* expected; // of the row, behind its type
    };
    const Edit edits[] = {
        {0, "Mtcp", 1, 1, "17", "32|4|40101|40102|mtcp_ro_b:[0]~[31]"},
        {0, "Mtcp", 0, 3, "40110", "--|132|40110|40175|--"},
        {1, "Ethcat", 1, 1, "10", "10|20|Bus_Get:[40]|[59]|ethcat_ro_i:[0]~[9]"},
        {2, "Eip", 2, 1, "5", "5|20|Bus_Get:[160]|[179]|eip_ro_r:[0]~[4]"},
        {3, "Pfn", 0, 1, "440", "448|56|Bus_Get:[0]|[55]|pfn_ro_b:[0]~[447]"},
        {5, "Dns", 1, 1, "20", "20|40|Bus_Get:[32]|[71]|dns_ro_i:[0]~[19]"},
        {6, "Mbc", 0, 1, "33", "48|6|40001|40003|mbc_ro_b:[0]~[47]"},
        {6, "Mbc", 1, 3, "40010", "40|80|40013|40052|mbc_ro_i:[0]~[39]"},
        {9, "Dnm", 0, 1, "17", "24|3|Bus_Get[0]|[2]|dnm_ro_b:[0]~[23]"},
    };
    Mapping pendant;
    for (const char* role : {"DeviceNetSlave", "EtherCatMaster", "ProfinetMaster"})
        QVERIFY(pendant.controller().setRoleOn(role, true));
    QVERIFY(pendant.openMapping());
    const auto before = pendant.savedBuses(BusMappingFile::Free);
    const auto fixedBefore = pendant.savedBuses(BusMappingFile::Fixed);
    QVERIFY(pendant.press("bt_EditOrSave"));
    for (const Edit& edit : edits) {
        pendant.selectTab(edit.tab);
        QVERIFY(pendant.enterCell(edit.table, edit.row, edit.column, edit.typed));
        QStringList cells;
        for (int column = 1; column < 6; ++column)
            cells << pendant.cell(edit.table, edit.row, column);
        QCOMPARE(cells.join('|'), QString(edit.expected));
    }
    QCOMPARE(NumericKeyboardScript::refusals(), QStringList());
    const auto keyboards = NumericKeyboardScript::shown();
    QCOMPARE(keyboards.size(), int(std::size(edits)));
    QCOMPARE(keyboards[3].text, QString("10"));
    QCOMPARE(keyboards[3].maximum, 50.0);
    // The masters' tables are given by their own configuration: no keyboard.
    for (const auto& [tab, table] : {std::pair{4, "Ecm"}, {7, "Eim"}, {8, "Pnm"}}) {
        pendant.selectTab(tab);
        QVERIFY(pendant.pressCell(QString("tableView_") + table, 0, 1) && pendant.settle());
    }
    // The edit of the slave's layout is told at once, not only when it is saved.
    QCOMPARE(int(pendant.variable(UpdateState)), MovedBit);

    QVERIFY(pendant.save({MsgBox::Second, MsgBox::Confirmed}));
    QVERIFY(pendant.settle());
    QCOMPARE(pendant.messages(), QStringList({SaveQuestion, Wait, RestartQuestion, RestartLater}));
    QCOMPARE(int(pendant.variable(UpdateState)), TakenBit | MovedBit);
    QVERIFY(!pendant.button()->isEnabled() && !pendant.isEditing());

    const auto after = pendant.savedBuses(BusMappingFile::Free);
    QVERIFY(pendant.savedBuses(BusMappingFile::Fixed) == fixedBefore);
    QCOMPARE(after.size(), std::size_t(10));
    for (std::size_t bus = 0; bus < after.size(); ++bus) {
        const bool isEdited = bus != 4 && bus != 7 && bus != 8;
        QCOMPARE(after[bus].readOnly == before[bus].readOnly, !isEdited);
        QVERIFY(after[bus].writeOnly == before[bus].writeOnly &&
                after[bus].readWrite == before[bus].readWrite);
    }
    const BusAreaInfo& slave = after[0].readOnly;
    QVERIFY(slave.start == 40110 && slave.end == 40175 && slave.user[BusFloat].start == 40144);
    const BusAreaInfo& master = after[6].readOnly;
    QVERIFY(master.start == 40010 && master.end == 40092 && master.user[BusInt].start == 40013);
}

void TestMapping::refusedEntries()
{
    Mapping pendant;
    QVERIFY(pendant.controller().setRoleOn("FreeBus", false));
    QVERIFY(pendant.openMapping());
    QVERIFY(pendant.press("bt_EditOrSave"));
    pendant.selectTab(2);
    const QString tips = pendant.tips();
    MsgBoxScript::answerByDefault(MsgBox::Confirmed);
    // Of the system, pressed twice, and a cell that is not to be edited at all.
    QVERIFY(pendant.pressCell("tableView_Eip", 3, 1) && pendant.pressCell("tableView_Eip", 3, 1));
    QVERIFY(pendant.settle());
    QVERIFY(pendant.pressCell("tableView_Eip", 3, 3) && pendant.settle());
    QVERIFY(pendant.enterCell("Eip", 2, 1, "33"));  // 40 + 32 + 132 bytes
    QVERIFY(pendant.enterCell("Eip", 0, 1, "481")); // the keyboard itself refuses
    // As a host whose keyboard does not look at the range.
    QVERIFY(QMetaObject::invokeMethod(pendant.page(), "slotSetValue", Q_ARG(double, 481)));
    QVERIFY(pendant.settle());
    QCOMPARE(pendant.messages(), QStringList({"System Quantity Can Not Edit!",
                                              "Bytes Limit Range: 0 ~ 132, Please Fill In Again!",
                                              "Limit Range: 0 ~ 480, Please Fill In Again!"}));
    const auto boxes = MsgBoxScript::shown();
    QVERIFY(boxes[0].kind == MsgBox::Information && boxes[1].kind == MsgBox::Warning);
    QCOMPARE(NumericKeyboardScript::refusals().size(), 1);
    QCOMPARE(pendant.cell("Eip", 2, 1), QString("10"));
    QCOMPARE(pendant.cell("Eip", 0, 1), QString("320"));
    QCOMPARE(pendant.tips(), tips);
    NumericKeyboardScript::cancelNext();
    QVERIFY(pendant.pressCell("tableView_Eip", 0, 1) && pendant.settle());
    QCOMPARE(pendant.cell("Eip", 0, 1), QString("320"));
    QVERIFY(pendant.isEditing());
    QCOMPARE(pendant.variable(UpdateState), 0.0);
}

// One of the checks of a save: what it says, and that nothing is saved.
void TestMapping::saveIsChecked()
{
    Mapping pendant;
    QVERIFY(pendant.put(FilePath, "<FieldbusConfig><Mode name='fixed'><Bus name='EtherNetIPSlave'>"
                                  "<Area direction='ro'><User type='Int' quantity='41'/></Area></Bus></Mode>"
                                  "</FieldbusConfig>"));
    QVERIFY(pendant.controller().setRoleOn("FreeBus", false));
    QVERIFY(pendant.openMapping());
    QVERIFY(pendant.press("bt_EditOrSave"));
    PendantFixture::answer({MsgBox::Confirmed});
    QVERIFY(pendant.press("bt_EditOrSave"));
    QVERIFY(pendant.settle());
    QCOMPARE(
        pendant.messages(),
        QStringList("EtheretIP:User Bool and User Int Bytes Limit Range: 0 ~ 80, Please Fill In Again!"));
    QCOMPARE(MsgBoxScript::shown().constLast().kind, int(MsgBox::Warning));
    QVERIFY(pendant.isEditing());
    QCOMPARE(pendant.controller().traffic().stores().size(), 0);
}

void TestMapping::saveIsDeclined_data()
{
    QTest::addColumn<int>("result");
    QTest::addColumn<bool>("running");
    QTest::addColumn<bool>("servo");
    QTest::addColumn<bool>("stillEditing");
    QTest::addColumn<QStringList>("furtherMessages");
    const QStringList servo{"Please turn off the servo first!"};
    QTest::newRow("no") << int(MsgBox::Second) << false << false << false << QStringList();
    QTest::newRow("dismissed") << int(MsgBox::Dismissed) << false << false << true << QStringList();
    QTest::newRow("running") << int(MsgBox::Confirmed) << true << true << true << QStringList();
    QTest::newRow("servo on") << int(MsgBox::Confirmed) << false << true << true << servo;
}

void TestMapping::saveIsDeclined()
{
    QFETCH(int, result);
    QFETCH(bool, running);
    QFETCH(bool, servo);
    QFETCH(bool, stillEditing);
    QFETCH(QStringList, furtherMessages);
    Mapping pendant;
    const QByteArray before = pendant.controllerFile(FilePath);
    QVERIFY(pendant.openMapping());
    QVERIFY(pendant.press("bt_EditOrSave"));
    QVERIFY(pendant.enterCell("Mtcp", 2, 1, "20"));
    pendant.controller().setRobotRunning(running);
    pendant.controller().setServoOn(servo);
    PendantFixture::answer({result});
    if (!furtherMessages.isEmpty())
        PendantFixture::answer({MsgBox::Confirmed});
    QVERIFY(pendant.press("bt_EditOrSave"));
    QVERIFY(pendant.settle());
    QCOMPARE(pendant.messages(), QStringList(SaveQuestion) + furtherMessages);
    QCOMPARE(pendant.isEditing(), stillEditing);
    QCOMPARE(pendant.cell("Mtcp", 2, 1), QString(stillEditing ? "20" : "32"));
    QCOMPARE(pendant.controllerFile(FilePath), before);
    // Editing means that cells answer; viewing that they do not.
    if (stillEditing)
        NumericKeyboardScript::cancelNext();
    const int keyboards = NumericKeyboardScript::shown().size();
    QVERIFY(pendant.pressCell("tableView_Mtcp", 2, 1) && pendant.settle());
    QCOMPARE(NumericKeyboardScript::shown().size(), keyboards + (stillEditing ? 1 : 0));
}

void TestMapping::handshake_data()
{
    QTest::addColumn<QString>("fault");
    QTest::addColumn<int>("restart"); // what the offer is answered with
    QTest::addColumn<QStringList>("messages");
    QTest::addColumn<bool>("editable"); // again, afterwards
    const QStringList asked{RestartQuestion};
    QTest::newRow("taken, no restart")
        << "" << int(MsgBox::Second) << asked + QStringList(RestartLater) << false;
    QTest::newRow("taken, offer dismissed")
        << "" << int(MsgBox::Dismissed) << asked + QStringList(RestartLater) << false;
    QTest::newRow("rejected, no restart")
        << "mapping-rejected" << int(MsgBox::Second) << asked + QStringList(Failed) << true;
    // The rejection is not looked at when the robot is restarted.
    QTest::newRow("rejected, restart")
        << "mapping-rejected" << int(MsgBox::Confirmed)
        << asked + QStringList("Please close and reopen the teaching pendant.") << true;
}

void TestMapping::handshake()
{
    QFETCH(QString, fault);
    QFETCH(int, restart);
    QFETCH(QStringList, messages);
    Mapping pendant;
    QVERIFY(pendant.openMapping());
    if (!fault.isEmpty())
        QVERIFY(pendant.controller().faults().setFromText(fault));
    QVERIFY(pendant.press("bt_EditOrSave"));
    QVERIFY(pendant.save({restart, MsgBox::Confirmed}));
    QVERIFY(pendant.settle());
    QCOMPARE(pendant.messages(), QStringList({SaveQuestion, Wait}) + messages);
    const bool isError = messages.constLast().contains("ailed");
    QCOMPARE(MsgBoxScript::shown().constLast().kind, int(isError ? MsgBox::Error : MsgBox::Information));
    QVERIFY(!pendant.isNoticeOpen());
    QTEST(pendant.button()->isEnabled(), "editable");
    QVERIFY(!pendant.isEditing());
    QCOMPARE(pendant.controller().traffic().restartRequests(), restart == MsgBox::Confirmed ? 1 : 0);
    if (!pendant.button()->isEnabled())
        return;

    // With the cause gone a second save goes through, and is not taken for the first one's answer.
    pendant.controller().faults().clearAll();
    QTRY_VERIFY(pendant.controller().isUp());
    QVERIFY(pendant.press("bt_EditOrSave"));
    QVERIFY(pendant.save({MsgBox::Second, MsgBox::Confirmed}));
    QVERIFY(pendant.settle());
    QCOMPARE(pendant.messages().constLast(), RestartLater);
}

void TestMapping::timeOut_data()
{
    QTest::addColumn<int>("ticks"); // before the controller answers
    QTest::addColumn<QString>("message");
    QTest::newRow("answered at the last tick") << 29 << RestartQuestion;
    QTest::newRow("answered too late") << 30 << Failed;
}

void TestMapping::timeOut()
{
    QFETCH(int, ticks);
    QFETCH(QString, message);
    Mapping pendant;
    QVERIFY(pendant.openMapping());
    QVERIFY(pendant.saveUnanswered());
    QVERIFY(pendant.isNoticeOpen());
    QVERIFY(!pendant.press("exitBtn")); // no finger gets through
    QTest::keyClick(pendant.button(), Qt::Key_Space);
    QVERIFY(!pendant.isEditing()); // but a key does
    const auto timers = pendant.page()->findChildren<QTimer*>();
    const auto timer = std::find_if(timers.begin(), timers.end(),
                                    [](const QTimer* candidate) { return candidate->interval() == 500; });
    QVERIFY(timer != timers.end() && (*timer)->isActive());
    // The ticks come at once, and none of its own.
    (*timer)->setInterval(3600000);
    MsgBoxScript::answerByDefault(MsgBox::Second);
    for (int tick = 0; tick < ticks; ++tick) {
        QCOMPARE(pendant.messages().constLast(), Wait);
        QVERIFY(QMetaObject::invokeMethod(pendant.page(), "slotRestoreUi"));
    }
    pendant.controller().variables().set(UpdateState, TakenBit);
    QTRY_VERIFY(pendant.messages().contains(message));
    QVERIFY(pendant.settle());
    QCOMPARE(pendant.messages().filter(Failed).size(), message == Failed ? 1 : 0);
    QVERIFY(!(*timer)->isActive() && !pendant.isNoticeOpen());
}

void TestMapping::neverAnsweredInRealTime()
{
    Mapping pendant;
    QVERIFY(pendant.openMapping());
    QElapsedTimer timer;
    timer.start();
    QVERIFY(pendant.saveUnanswered());
    MsgBoxScript::answerByDefault(MsgBox::Confirmed);
    QTRY_VERIFY_WITH_TIMEOUT(pendant.messages().contains(Failed), 20000);
    QVERIFY(timer.elapsed() >= 14000); // 30 coarse ticks of 500 ms: each may be 5 % early
    QCOMPARE(MsgBoxScript::shown().constLast().kind, int(MsgBox::Error));
    QVERIFY(!pendant.isNoticeOpen() && pendant.settle());
    QVERIFY(pendant.press("bt_EditOrSave") && pendant.isEditing());
}

void TestMapping::restart_data()
{
    QTest::addColumn<QString>("fault");
    QTest::addColumn<QString>("message");
    QTest::newRow("the clock stops") << ""
                                     << "Please close and reopen the teaching pendant.";
    QTest::newRow("the clock runs on") << "restart-ignored"
                                       << "Please manually power off and restart the robot!";
}

void TestMapping::restart()
{
    QFETCH(QString, fault);
    QFETCH(QString, message);
    Mapping pendant(5.0); // slow enough for the clock to be seen running on a busy machine
    QVERIFY(pendant.openMapping());
    if (!fault.isEmpty())
        QVERIFY(pendant.controller().faults().setFromText(fault));
    // While it restarts, further ticks and impatience start nothing.
    QTimer impatience;
    QObject::connect(&impatience, SIGNAL(timeout()), pendant.page(), SLOT(slotSaveAndReboot()));
    impatience.start(20);
    QVERIFY(pendant.press("bt_EditOrSave"));
    QVERIFY(pendant.save({MsgBox::Confirmed, MsgBox::Confirmed}));
    QVERIFY(pendant.settle(20000));
    QCOMPARE(pendant.messages().constLast(), message);
    QCOMPARE(pendant.messages().size(), 4);
    QCOMPARE(pendant.controller().traffic().restartRequests(), 1);
}

void TestMapping::userLevelDrops_data()
{
    QTest::addColumn<QString>("text"); // of the box that is up when the level drops
    QTest::addColumn<int>("waitMs");   // after it
    QTest::newRow("while it waits") << Wait << 300;
    QTest::newRow("while it restarts") << RestartQuestion << 60;
    QTest::newRow("while the keyboard is up") << QString() << 0;
    QTest::newRow("while the refusal is shown") << "Bytes Limit Range: 0 ~ 256, Please Fill In Again!" << 0;
}

// The application goes away under a slot that waits: no box stays, nothing is touched, and it works again.
void TestMapping::userLevelDrops()
{
    QFETCH(QString, text);
    QFETCH(int, waitMs);
    Mapping pendant;
    QVERIFY(pendant.openMapping());
    const auto drop = &PendantFixture::dropUserLevel;
    if (text == Wait)
        pendant.controller().faults().set(Faults::MappingNeverAnswered);
    MsgBoxScript::onShown([=](const MsgBox* box) {
        if (box->text() != text)
            return;
        if (waitMs == 0)
            drop();
        else
            QTimer::singleShot(waitMs, qApp, drop);
    });
    QVERIFY(pendant.press("bt_EditOrSave"));
    if (text.isEmpty()) {
        QTimer::singleShot(300, qApp, drop);
        pendant.pressCell("tableView_Mtcp", 1, 1);
    } else if (text.startsWith("Bytes")) {
        NumericKeyboardScript::enterNext("2048");
        pendant.pressCell("tableView_Mtcp", 1, 1);
    } else {
        MsgBoxScript::answerByDefault(MsgBox::Confirmed);
        pendant.press("bt_EditOrSave");
    }
    QTRY_VERIFY(!pendant.isOpen());
    QTest::qWait(700); // longer than a tick
    // A restart that was confirmed may have been asked for before the level dropped.
    QVERIFY(pendant.reopensAfterDrop(text == RestartQuestion && waitMs > 0 ? 1 : 0));
    QVERIFY(pendant.openPage(Button));
    QVERIFY(pendant.press("bt_EditOrSave"));
    QVERIFY(pendant.isEditing());
    QVERIFY(pendant.press("exitBtn"));
}

// It looks for the controller's answer while it is viewed, and not while it is edited.
void TestMapping::ticksInViewingModeOnly()
{
    Mapping pendant;
    QVERIFY(pendant.openMapping());
    const QSignalSpy spy(pendant.page(), SIGNAL(sendSaveSignal()));
    QTRY_VERIFY(!spy.isEmpty());
    QVERIFY(pendant.press("bt_EditOrSave"));
    const int count = spy.count();
    QVERIFY(pendant.tick(3));
    QCOMPARE(spy.count(), count);
}

PENDANT_TEST_MAIN(TestMapping)
#include "tst_mapping.moc"
