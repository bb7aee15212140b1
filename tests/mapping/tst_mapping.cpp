#include "BusFileDataManager.h"
#include "BusMappingFile.h"
#include "Faults.h"
#include "PageTest.h"

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
constexpr int TakenBit = 0x4000;

} // namespace

class TestMapping : public PageTest
{
    Q_OBJECT

public:
    using PageTest::PageTest;

private slots:
    void showsTheMapping()
    {
        set(UpdateState, 0x4800);
        QVERIFY(show());
        QCOMPARE(variable(UpdateState), 0.0);
        const auto* tabs = find<QTabWidget>("tabWidget_Bus");
        QString enabled;
        for (int tab = 0; tab < tabs->count(); ++tab)
            enabled += QLatin1Char(tabs->isTabEnabled(tab) ? '1' : '0');
        QCOMPARE(enabled, QString("1111001101")); // as the factory's roles
        QCOMPARE(cell("Mtcp", 0, 3), QString("40101"));
        QVERIFY(tips().contains("Range: 0 ~ 2048!"));
        QVERIFY(press("checkBox_Mtcp_WO"));
        QCOMPARE(cell("Mtcp", 0, 3), QString("40001"));
        QVERIFY(!find<QAbstractButton>("checkBox_Mtcp_RO")->isChecked());

        // The tab is pressed as a finger does, and takes the tips with it.
        const QTabBar* bar = tabs->tabBar();
        QTest::mouseClick(const_cast<QTabBar*>(bar), Qt::LeftButton, {}, bar->tabRect(3).center());
        QVERIFY(settle());
        QVERIFY(tips().contains("0 ~ 1536!"));
        QVERIFY(find<QLabel>("lab_Tips")->isVisible());
        QCOMPARE(cell("Pfn", 0, 5), QString("pfn_ro_b:[0]~[511]"));
        QVERIFY(press("checkBox_Pfn_WO"));
        QCOMPARE(cell("Pfn", 0, 5), QString("pfn_wo_b:[0]~[511]"));
        // Nothing is edited in viewing mode: a keyboard that opens would not be answered.
        QVERIFY(pressCell("tableView_Pfn", 0, 1) && settle());
    }

    // Another page switches mode and roles while this one is there, in the middle of editing.
    void followsTheModeAndTheRoles()
    {
        QVERIFY(show());
        QVERIFY(press("bt_EditOrSave"));
        QVERIFY(enterCell("Mtcp", 1, 1, "16"));
        QVERIFY(openPage("heartbeatBtn"));
        auto roles = BusFileDataManager::getInstance()->getAllBusName();
        roles["FreeBus"].enabled = false;
        roles["EtherCatSlave"].enabled = false;
        BusFileDataManager::getInstance()->setBusInfo(roles);
        QVERIFY(showAgain());
        QVERIFY(!isEditing());
        QCOMPARE(cell("Mtcp", 1, 1), QString("256"));
        QVERIFY(!find<QTabWidget>("tabWidget_Bus")->isTabEnabled(1));
        QVERIFY(!find<QTabWidget>("tabWidget_Bus")->isTabEnabled(6)); // the master is for the free mode
        QVERIFY(tips().contains("Range: 0 ~ 480!"));
        auto* table = find<QTableWidget>("tableView_Mtcp");
        QVERIFY(!table->isRowHidden(0) && !table->isRowHidden(6));
        QVERIFY(press("checkBox_Mtcp_RW"));
        QStringList numbers;
        for (int row = 0; row < table->rowCount(); ++row) {
            if (!table->isRowHidden(row))
                numbers << table->verticalHeaderItem(row)->text();
        }
        QVERIFY(table->isRowHidden(0));
        QCOMPARE(numbers.join(' '), QString("1 2 3 4 5"));
        // Without a change an opened page keeps what is being edited.
        QVERIFY(press("bt_EditOrSave"));
        QVERIFY(enterCell("Mtcp", 1, 1, "16"));
        QVERIFY(openPage("heartbeatBtn"));
        QVERIFY(showAgain());
        QVERIFY(isEditing());
        QCOMPARE(cell("Mtcp", 1, 1), QString("16"));
    }

    // Opened before an import, which lets the service read its file anew.
    void followsTheController()
    {
        QVERIFY(show());
        const QByteArray before = controllerFile(FilePath);
        const auto changeTo = [&](const QString& quantity) {
            QVERIFY(openPage("heartbeatBtn"));
            QVERIFY(put(FilePath, QByteArray(before).replace("512", quantity.toLatin1())));
            BusFileDataManager::getInstance()->emitGetFieldbusCfg();
            QVERIFY(settle());
        };
        QCOMPARE(cell("Mtcp", 1, 1), QString("512"));
        changeTo("128");
        QVERIFY(showAgain());
        QCOMPARE(cell("Mtcp", 1, 1), QString("128"));
        // What is being edited goes only if the operator wants that.
        for (const bool reload : {false, true}) {
            if (!isEditing())
                QVERIFY(press("bt_EditOrSave"));
            QVERIFY(enterCell("Mtcp", 1, 1, "16"));
            changeTo(reload ? "64" : "32");
            MsgBoxScript::answerNext(reload ? MsgBox::Confirmed : MsgBox::Second);
            QVERIFY(showAgain());
            QCOMPARE(messages().constLast(), QString("Changed on the controller since it was read"));
            QCOMPARE(isEditing(), !reload);
            QCOMPARE(cell("Mtcp", 1, 1), QString(reload ? "64" : "16"));
        }
    }

    // What was never read is not edited, but read first.
    void editsOnlyWhatWasRead()
    {
        QVERIFY(fail("fetch-fails:-1:" + FilePath));
        QVERIFY(show());
        MsgBoxScript::answerByDefault(MsgBox::Confirmed);
        QVERIFY(press("bt_EditOrSave") && settle());
        QCOMPARE(messages(), QStringList("Failed to get file."));
        controller().faults().clearAll();
        QVERIFY(press("bt_EditOrSave") && settle());
        QCOMPARE(messages().constLast(), QString("Loaded now. Look at the settings, then save."));
        QVERIFY(!isEditing());
        QCOMPARE(cell("Mtcp", 1, 1), QString("512"));
    }

    // One entry in the table of each editable bus, saved together.
    void editsEveryBus()
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
        for (const char* role : {"DeviceNetSlave", "EtherCatMaster", "ProfinetMaster"})
            QVERIFY(controller().setRoleOn(role, true));
        QVERIFY(show());
        const auto before = savedBuses(BusMappingFile::Free);
        const auto fixedBefore = savedBuses(BusMappingFile::Fixed);
        QVERIFY(press("bt_EditOrSave"));
        for (const Edit& edit : edits) {
            selectTab(edit.tab);
            QVERIFY(enterCell(edit.table, edit.row, edit.column, edit.typed));
            QStringList cells;
            for (int column = 1; column < 6; ++column)
                cells << cell(edit.table, edit.row, column);
            QCOMPARE(cells.join('|'), QString(edit.expected));
        }
        QCOMPARE(NumericKeyboardScript::refusals(), QStringList());
        const auto keyboards = NumericKeyboardScript::shown();
        QCOMPARE(keyboards.size(), int(std::size(edits)));
        QCOMPARE(keyboards[3].text, QString("10"));
        QCOMPARE(keyboards[3].maximum, 50.0);
        // The masters' tables are given by their own configuration: no keyboard.
        for (const auto& [tab, table] : {std::pair{4, "Ecm"}, {7, "Eim"}, {8, "Pnm"}}) {
            selectTab(tab);
            QVERIFY(pressCell(QString("tableView_") + table, 0, 1) && settle());
        }
        // The edit of the slave's layout is told at once, not only when it is saved.
        QCOMPARE(int(variable(UpdateState)), MovedBit);

        QVERIFY(saveMapping({MsgBox::Second, MsgBox::Confirmed}));
        QVERIFY(settle());
        QCOMPARE(messages(), QStringList({SaveQuestion, Wait, RestartQuestion, RestartLater}));
        QCOMPARE(int(variable(UpdateState)), TakenBit | MovedBit);
        QVERIFY(!button()->isEnabled() && !isEditing());

        const auto after = savedBuses(BusMappingFile::Free);
        QVERIFY(savedBuses(BusMappingFile::Fixed) == fixedBefore);
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

    void refusedEntries()
    {
        QVERIFY(controller().setRoleOn("FreeBus", false));
        QVERIFY(show());
        QVERIFY(press("bt_EditOrSave"));
        selectTab(2);
        const QString tipsBefore = tips();
        MsgBoxScript::answerByDefault(MsgBox::Confirmed);
        // Of the system, pressed twice, and a cell that is not to be edited at all.
        QVERIFY(pressCell("tableView_Eip", 3, 1) && pressCell("tableView_Eip", 3, 1));
        QVERIFY(settle());
        QVERIFY(pressCell("tableView_Eip", 3, 3) && settle());
        QVERIFY(enterCell("Eip", 2, 1, "33"));  // 40 + 32 + 132 bytes
        QVERIFY(enterCell("Eip", 0, 1, "481")); // the keyboard itself refuses
        // As a host whose keyboard does not look at the range.
        QVERIFY(QMetaObject::invokeMethod(page(), "slotSetValue", Q_ARG(double, 481)));
        QVERIFY(settle());
        QCOMPARE(messages(), QStringList({"System Quantity Can Not Edit!",
                                          "Bytes Limit Range: 0 ~ 132, Please Fill In Again!",
                                          "Limit Range: 0 ~ 480, Please Fill In Again!"}));
        const auto boxes = MsgBoxScript::shown();
        QVERIFY(boxes[0].kind == MsgBox::Information && boxes[1].kind == MsgBox::Warning);
        QCOMPARE(NumericKeyboardScript::refusals().size(), 1);
        QCOMPARE(cell("Eip", 2, 1), QString("10"));
        QCOMPARE(cell("Eip", 0, 1), QString("320"));
        QCOMPARE(tips(), tipsBefore);
        NumericKeyboardScript::cancelNext();
        QVERIFY(pressCell("tableView_Eip", 0, 1) && settle());
        QCOMPARE(cell("Eip", 0, 1), QString("320"));
        QVERIFY(isEditing());
        QCOMPARE(variable(UpdateState), 0.0);
    }

    // One of the checks of a save: what it says, and that nothing is saved.
    void saveIsChecked()
    {
        QVERIFY(controller().setRoleOn("FreeBus", false));
        QVERIFY(show(FilePath, "<FieldbusConfig><Mode name='fixed'><Bus name='EtherNetIPSlave'>"
                               "<Area direction='ro'><User type='Int' quantity='41'/></Area></Bus></Mode>"
                               "</FieldbusConfig>"));
        QVERIFY(press("bt_EditOrSave"));
        QVERIFY(save("bt_EditOrSave", {MsgBox::Confirmed}));
        QCOMPARE(
            messages(),
            QStringList("EtheretIP:User Bool and User Int Bytes Limit Range: 0 ~ 80, Please Fill In Again!"));
        QCOMPARE(MsgBoxScript::shown().constLast().kind, int(MsgBox::Warning));
        QVERIFY(isEditing());
        QCOMPARE(traffic().stores().size(), 0);
    }

    // Closing the question goes on editing, its second button ends it; only where cells are edited a keyboard
    // opens.
    void saveIsDeclined()
    {
        QVERIFY(show());
        QVERIFY(press("bt_EditOrSave"));
        for (const bool isEdited : {true, false}) {
            QVERIFY(enterCell("Mtcp", 2, 1, "20"));
            QVERIFY(save("bt_EditOrSave", {isEdited ? MsgBox::Dismissed : MsgBox::Second}));
            QCOMPARE(isEditing(), isEdited);
            QCOMPARE(cell("Mtcp", 2, 1), QString(isEdited ? "20" : "32"));
        }
        QVERIFY(pressCell("tableView_Mtcp", 2, 1) && settle());
        QCOMPARE(NumericKeyboardScript::shown().size(), 2);
    }

    void handshake_data()
    {
        // restart: what the offer is answered with
        // editable: again, afterwards
        const Rows<QString, int, QStringList, bool> row;
        const QStringList asked{RestartQuestion};
        row("taken, no restart", "", MsgBox::Second, asked + QStringList(RestartLater), false);
        row("taken, offer dismissed", "", MsgBox::Dismissed, asked + QStringList(RestartLater), false);
        row("rejected, no restart", "mapping-rejected", MsgBox::Second, asked + QStringList(Failed), true);
        // The rejection is not looked at when the robot is restarted.
        row("rejected, restart", "mapping-rejected", MsgBox::Confirmed,
            asked + QStringList("Please close and reopen the teaching pendant."), true);
    }

    void handshake()
    {
        const auto [fault, restart, told, editable] = Rows<QString, int, QStringList, bool>::current();
        QVERIFY(show());
        if (!fault.isEmpty())
            QVERIFY(fail(fault));
        QVERIFY(press("bt_EditOrSave"));
        QVERIFY(saveMapping({restart, MsgBox::Confirmed}));
        QVERIFY(settle());
        QCOMPARE(messages(), QStringList({SaveQuestion, Wait}) + told);
        const bool isError = told.constLast().contains("ailed");
        QCOMPARE(MsgBoxScript::shown().constLast().kind, int(isError ? MsgBox::Error : MsgBox::Information));
        QVERIFY(!isNoticeOpen());
        QCOMPARE(button()->isEnabled(), editable);
        QVERIFY(!isEditing());
        QCOMPARE(traffic().restartRequests(), restart == MsgBox::Confirmed ? 1 : 0);
        if (!button()->isEnabled())
            return;

        // With the cause gone a second save goes through, and is not taken for the first one's answer.
        controller().faults().clearAll();
        QTRY_VERIFY(controller().isUp());
        QVERIFY(press("bt_EditOrSave"));
        QVERIFY(saveMapping({MsgBox::Second, MsgBox::Confirmed}));
        QVERIFY(settle());
        QCOMPARE(messages().constLast(), RestartLater);
    }

    void timeOut_data()
    {
        // ticks: before the controller answers
        const Rows<int, QString> row;
        row("answered at the last tick", 29, RestartQuestion);
        row("answered too late", 30, Failed);
    }

    void timeOut()
    {
        const auto [ticks, message] = Rows<int, QString>::current();
        QVERIFY(show());
        QVERIFY(saveUnanswered());
        QVERIFY(isNoticeOpen());
        QVERIFY(!press("exitBtn")); // no finger gets through
        QTest::keyClick(button(), Qt::Key_Space);
        QVERIFY(!isEditing()); // but a key does
        const auto timers = page()->findChildren<QTimer*>();
        const auto timer = std::find_if(timers.begin(), timers.end(),
                                        [](const QTimer* candidate) { return candidate->interval() == 500; });
        QVERIFY(timer != timers.end() && (*timer)->isActive());
        // The ticks come at once, and none of its own.
        (*timer)->setInterval(3600000);
        MsgBoxScript::answerByDefault(MsgBox::Second);
        for (int tick = 0; tick < ticks; ++tick) {
            QCOMPARE(messages().constLast(), Wait);
            QVERIFY(QMetaObject::invokeMethod(page(), "slotRestoreUi"));
        }
        set(UpdateState, TakenBit);
        QTRY_VERIFY(messages().contains(message));
        QVERIFY(settle());
        QCOMPARE(messages().filter(Failed).size(), message == Failed ? 1 : 0);
        QVERIFY(!(*timer)->isActive() && !isNoticeOpen());
    }

    void neverAnsweredInRealTime()
    {
        QVERIFY(show());
        QElapsedTimer timer;
        timer.start();
        QVERIFY(saveUnanswered());
        MsgBoxScript::answerByDefault(MsgBox::Confirmed);
        QTRY_VERIFY_WITH_TIMEOUT(messages().contains(Failed), 20000);
        QVERIFY(timer.elapsed() >= 14000); // 30 coarse ticks of 500 ms: each may be 5 % early
        QCOMPARE(MsgBoxScript::shown().constLast().kind, int(MsgBox::Error));
        QVERIFY(!isNoticeOpen() && settle());
        QVERIFY(press("bt_EditOrSave") && isEditing());
    }

    void restart_data()
    {
        const Rows<QString, QString> row;
        row("the clock stops", "", "Please close and reopen the teaching pendant.");
        row("the clock runs on", "restart-ignored", "Please manually power off and restart the robot!");
    }

    void restart()
    {
        const auto [fault, message] = Rows<QString, QString>::current();
        restartAt(5.0); // slow enough for the clock to be seen running on a busy machine
        QVERIFY(show());
        if (!fault.isEmpty())
            QVERIFY(fail(fault));
        // While it restarts, further ticks and impatience start nothing.
        QTimer impatience;
        QObject::connect(&impatience, SIGNAL(timeout()), page(), SLOT(slotSaveAndReboot()));
        impatience.start(20);
        QVERIFY(press("bt_EditOrSave"));
        QVERIFY(saveMapping({MsgBox::Confirmed, MsgBox::Confirmed}));
        QVERIFY(settle(20000));
        QCOMPARE(messages().constLast(), message);
        QCOMPARE(messages().size(), 4);
        QCOMPARE(traffic().restartRequests(), 1);
    }

    void userLevelDrops_data()
    {
        // text: of the box that is up when the level drops
        // waitMs: after it
        const Rows<QString, int> row;
        row("while it waits", Wait, 300);
        row("while it restarts", RestartQuestion, 60);
        row("while the keyboard is up", {}, 0);
        row("while the refusal is shown", "Bytes Limit Range: 0 ~ 256, Please Fill In Again!", 0);
    }

    // The application goes away under a slot that waits: no box stays, nothing is touched, and it works
    // again.
    void userLevelDrops()
    {
        const auto [text, waitMs] = Rows<QString, int>::current();
        QVERIFY(show());
        const auto drop = &dropUserLevel;
        if (text == Wait)
            controller().faults().set(Faults::MappingNeverAnswered);
        MsgBoxScript::onShown([text = text, waitMs = waitMs, drop](const MsgBox* box) {
            if (box->text() != text)
                return;
            if (waitMs == 0)
                drop();
            else
                QTimer::singleShot(waitMs, qApp, drop);
        });
        QVERIFY(press("bt_EditOrSave"));
        if (text.isEmpty()) {
            QTimer::singleShot(300, qApp, drop);
            pressCell("tableView_Mtcp", 1, 1);
        } else if (text.startsWith("Bytes")) {
            NumericKeyboardScript::enterNext("2048");
            pressCell("tableView_Mtcp", 1, 1);
        } else {
            MsgBoxScript::answerByDefault(MsgBox::Confirmed);
            press("bt_EditOrSave");
        }
        QTRY_VERIFY(!isOpen());
        QTest::qWait(700); // longer than a tick
        // A restart that was confirmed may have been asked for before the level dropped.
        QVERIFY(reopensAfterDrop(text == RestartQuestion && waitMs > 0 ? 1 : 0));
        QVERIFY(showAgain());
        QVERIFY(press("bt_EditOrSave"));
        QVERIFY(isEditing());
        QVERIFY(press("exitBtn"));
    }

    // It looks for the controller's answer while it is viewed, and not while it is edited.
    void ticksInViewingModeOnly()
    {
        QVERIFY(show());
        const QSignalSpy spy(page(), SIGNAL(sendSaveSignal()));
        QTRY_VERIFY(!spy.isEmpty());
        QVERIFY(press("bt_EditOrSave"));
        const int count = spy.count();
        QVERIFY(tick(3));
        QCOMPARE(spy.count(), count);
    }

private:
    QWidget* page() const { return find("ConfigWidget"); }
    QPushButton* button() const { return find<QPushButton>("bt_EditOrSave"); }
    bool isEditing() const { return button()->text() == QLatin1String("Save"); }

    QString cell(const QString& table, int row, int column) const
    {
        return find<QTableWidget>("tableView_" + table)->item(row, column)->text();
    }
    QString tips() const { return text("lab_Tips"); }
    void selectTab(int tab) { find<QTabWidget>("tabWidget_Bus")->setCurrentIndex(tab); }

    /// Presses a cell and types on the keyboard that it opens.
    bool enterCell(const QString& table, int row, int column, const QString& text)
    {
        NumericKeyboardScript::enterNext(text);
        return pressCell("tableView_" + table, row, column) && settle();
    }
    /// Presses the save button and confirms; what comes next is answered with `results`.
    bool saveMapping(std::initializer_list<int> results)
    {
        answer({MsgBox::Confirmed});
        answer(results);
        return press("bt_EditOrSave");
    }
    /// A save that is sent and waits for the controller, which does not answer.
    bool saveUnanswered()
    {
        controller().faults().set(Faults::MappingNeverAnswered);
        return press("bt_EditOrSave") && saveMapping({}) &&
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

PENDANT_TEST_MAIN(TestMapping, Button)
#include "tst_mapping.moc"
