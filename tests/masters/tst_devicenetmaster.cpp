#include "BusFileDataManager.h"
#include "DeviceNetMaster.h"
#include "FieldbusSettingLib.h"
#include "PageTest.h"
#include "QTouchLineEdit.h"
#include "Texts.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>

namespace {

const QString FilePath = QStringLiteral("/fa/dnmst0.cfg");
const QString MappingPath = QStringLiteral("/application/fidbus/fieldbus_config.xml");
const QString Button = QStringLiteral("devicemBtn");
const QString Table = QStringLiteral("deviceTable");
const QString SaveConfig = QStringLiteral("ifidbus.dnm_save_config");
const QString SlaveNumber = QStringLiteral("ifidbus.dnm_slave_num");

const QString Duplicate = QStringLiteral("MAC ID does not allow duplicates!");
const QString TooManyInputs =
    QStringLiteral("The total number of bytes in the Input cannot exceed the number "
                   "of bytes configured on the bus free configuration interface!");
const QString TooManyOutputs = QString(TooManyInputs).replace("Input", "Output");
const QString Incomplete =
    QStringLiteral("The table has not been completed. Please complete the settings before saving.");

enum Column { DeviceId, MacId, In, Out, Vendor, Product, Revision, CfgFlag, Connect };

const QByteArray Header = "; cell 7\nDRIVER dnmaster\nWS_ID 1\nBAUDRATE 250\nENDIAN MIDDLE_BIG_ENDIAN\n"
                          "PACHET_RATIO 10\n";

QByteArray device(int macId, int inputBytes = 0, int outputBytes = 0)
{
    return QStringLiteral(";======================================\n;   Device 1 MAC ID %1\n"
                          "BLOCK_TO_RBX 0 0 %2\nVENDOR_ID 7\nCFG_FLAG 0x1f\nBLOCK_FROM_RBX 0 0 %3\n")
        .arg(macId)
        .arg(inputBytes)
        .arg(outputBytes)
        .toLatin1();
}

QByteArray mapping(int inputBits, int outputBits)
{
    return QStringLiteral("<FieldbusConfig><Mode name='free'><Bus name='DeviceNetMaster'>"
                          "<Area direction='ro'><User type='Bool' quantity='%1'/></Area>"
                          "<Area direction='wo'><User type='Bool' quantity='%2'/></Area>"
                          "</Bus></Mode></FieldbusConfig>")
        .arg(inputBits)
        .arg(outputBits)
        .toLatin1();
}

} // namespace

class TestDeviceNetMaster : public PageTest
{
    Q_OBJECT

public:
    using PageTest::PageTest;

private slots:
    void showsTheFile_data()
    {
        const Rows<QByteArray, QStringList, QStringList> row;
        const QStringList usual = {"1", "MIDDLE_BIG_ENDIAN", "250", "10"};
        row("no device", Header, usual, {});
        row("two devices", Header + device(5, 8, 3) + device(6), usual,
            {"1 5 8 3 7 0 0 0x1f", "2 6 0 0 7 0 0 0x1f"});
        row("a device without MAC ID", Header + device(5).replace("ID 5", "ID "), usual,
            {"1 -- 0 0 7 0 0 0x1f"});
        row("what the lists do not offer", "WS_ID 64\nBAUDRATE 1000\nENDIAN little_endian\nPACHET_RATIO 0\n",
            {"64", "LITTLE_ENDIAN", "125", "0"}, {});
        row("seventeen devices", Header + device(5).repeated(17), usual, [] {
            QStringList rows;
            for (int i = 1; i <= 16; ++i)
                rows << QStringLiteral("%1 5 0 0 7 0 0 0x1f").arg(i);
            return rows;
        }());
    }

    void showsTheFile()
    {
        const auto [file, settings, rows] = Rows<QByteArray, QStringList, QStringList>::current();
        QVERIFY(showDevices(file));
        QCOMPARE(QStringList({text("le_wsid"), text("cbb_endian"), text("cbb_baudrate"), text("le_ratio")}),
                 settings);
        QCOMPARE(table()->rowCount(), rows.size());
        for (int row = 0; row < rows.size(); ++row)
            QCOMPARE(cells(row).join(' '), rows[row]);
        QCOMPARE(messages(), QStringList());
    }

    void sixteenDevicesAreTyped()
    {
        QVERIFY(showDevices(Header));
        QVERIFY(press("btn_edit"));
        QCOMPARE(text("btn_edit"), QString("Save"));
        for (int i = 0; i < 16; ++i)
            QVERIFY(press("btn_add"));
        QVERIFY(!press("btn_add"));
        QCOMPARE(cells(15).join(' '), QString("16 -- -- -- -- -- -- 0x00"));
        QVERIFY(press("btn_delete"));
        QVERIFY(press("btn_add"));
        QVERIFY(!find("btn_add")->isEnabled());

        const auto typed = [](int row) {
            return QStringList({QString::number(row + 1), QString::number(3 * row + 5), "4",
                                QString::number(row % 5), QString::number(-65535 + row), QString::number(row),
                                "65535", QString::number(row * 4369, 16)});
        };
        for (int row = 0; row < 16; ++row) {
            for (int column = MacId; column <= CfgFlag; ++column)
                QVERIFY2(type(row, column, typed(row)[column]), qPrintable(typed(row)[column]));
        }
        QVERIFY(enter("le_wsid", "63"));
        QVERIFY(enter("le_ratio", "255"));
        QTest::keyClick(find("cbb_endian"), Qt::Key_Up);
        QTest::keyClick(find("cbb_baudrate"), Qt::Key_Down);
        QCOMPARE(NumericKeyboardScript::refusals(), QStringList());

        QVERIFY(save("btn_edit", {MsgBox::Confirmed, MsgBox::Second}));
        QCOMPARE(messages(), QStringList({Texts::Sure, Texts::Restart}));
        QCOMPARE(text("btn_edit"), QString("Edit"));

        const DeviceNetMasterConfig list = sent();
        QCOMPARE(QStringList({QString::number(list.WS_ID), list.ENDIAN, QString::number(list.BAUDRATE),
                              QString::number(list.PACHET_RATIO)}),
                 QStringList({"63", "MIDDLE_LITTLE_ENDIAN", "500", "255"}));
        QCOMPARE(list.count, 16);
        for (int row = 0; row < 16; ++row) {
            const DeviceNetMasterDevice& device = list.devices[static_cast<std::size_t>(row)];
            QStringList expected = typed(row);
            expected[CfgFlag] = "0x" + expected[CfgFlag].rightJustified(2, '0');
            QCOMPARE(cells(row), expected);
            expected.removeFirst();
            QCOMPARE(QStringList({QString::number(device.MAC_ID), QString::number(device.inputBytes),
                                  QString::number(device.outputBytes), QString::number(device.VENDOR_ID),
                                  QString::number(device.PROD_CODE), QString::number(device.REVISION),
                                  device.CFG_FLAG}),
                     expected);
        }
        // The controller takes the list over and finds whom it can.
        QTRY_COMPARE(master().listsTaken(), 1);
        QCOMPARE(variable(SlaveNumber), 16.0);
        QTRY_COMPARE(cell(0, Connect), QString("Connected")); // MAC ID 5
        QTRY_COMPARE(cell(15, Connect), QString("Disconnected::2"));
    }

    void valuesAreChecked()
    {
        QVERIFY(showDevices(Header + device(5, 100, 0) + device(7, 0, 0) + device(14, 0, 0), 100, 71));
        QVERIFY(press("btn_edit"));
        const struct
        {
            int row, column;
            const char* typed;
            const char* shown;
            QString message;
        } entries[] = {
            {0, MacId, "07", "5", Duplicate},
            {2, MacId, "5", "14", Duplicate},
            {0, MacId, "63", "63", {}},
            {1, MacId, "7", "7", {}}, // its own
            {1, MacId, "5", "5", {}}, // free again
            {0, In, "13", "100", TooManyInputs},
            {0, In, "6", "6", {}},
            {1, In, "6", "6", {}},
            {2, In, "1", "0", TooManyInputs},
            {1, In, "7", "6", TooManyInputs},
            {1, In, "5", "5", {}},
            {2, In, "1", "1", {}},
            {2, Out, "9", "0", TooManyOutputs},
            {2, Out, "8", "8", {}},
            {0, Out, "0", "0", {}},
            {0, Out, "1", "0", TooManyOutputs},
            {0, Vendor, "-65535", "-65535", {}},
            {0, Product, "65535", "65535", {}},
            {0, Revision, "-0", "0", {}},
            {0, CfgFlag, "5", "0x05", {}},
            {0, CfgFlag, "1F", "0x1f", {}},
            {0, CfgFlag, "0", "0x00", {}},
            {0, CfgFlag, "FFFF", "0xffff", {}},
        };
        QStringList told;
        for (const auto& entry : entries) {
            if (!entry.message.isEmpty()) {
                answer({MsgBox::Confirmed});
                told << entry.message;
            }
            QVERIFY(type(entry.row, entry.column, entry.typed));
            QCOMPARE(cell(entry.row, entry.column), QString(entry.shown));
            QCOMPARE(messages(), told);
        }
        for (const ShownMsgBox& box : MsgBoxScript::shown())
            QCOMPARE(box.kind, int(MsgBox::Warning));
        QCOMPARE(NumericKeyboardScript::refusals(), QStringList());
        // The keyboard opens on what the cell shows, also in base 16.
        QCOMPARE(NumericKeyboardScript::shown().first().text, QString("5"));
        QCOMPARE(NumericKeyboardScript::shown().last().text, QString("0"));
        QVERIFY(type(0, CfgFlag, ""));
        QCOMPARE(NumericKeyboardScript::shown().last().text, QString("FFFF"));

        // What the keyboard keeps out.
        const struct
        {
            int column;
            QStringList typed;
        } refused[] = {{MacId, {"0", "64"}},
                       {In, {"65"}},
                       {Out, {"65"}},
                       {Vendor, {"65536", "-65536"}},
                       {CfgFlag, {"10000"}}};
        int refusals = 0;
        for (const auto& entry : refused) {
            const QString before = cell(2, entry.column);
            for (const QString& text : entry.typed) {
                QVERIFY(type(2, entry.column, text));
                QCOMPARE(NumericKeyboardScript::refusals().size(), ++refusals);
                QCOMPARE(cell(2, entry.column), before);
            }
        }
        // Numbers that no keyboard gives, as another host could.
        for (const double number : {qQNaN(), -1e300, 1e300})
            QVERIFY(QMetaObject::invokeMethod(find("DeviceNetMasterSetting"), "slotSetValue",
                                              Q_ARG(double, number)));
        QCOMPARE(cell(2, CfgFlag), QString("0xffff"));

        // The mapping is changed on its own page while this one is edited.
        BusAddrNumInfo bus;
        bus.busName = "DeviceNetMaster";
        bus.readOnly.user[BusBool].quantity = 2048;
        BusFileDataManager::getInstance()->setBusNumAndAddr({bus});
        QVERIFY(type(2, In, "64"));
        QCOMPARE(cell(2, In), QString("64"));
    }

    void onlyTheEditModeEdits()
    {
        QVERIFY(showDevices(Header + device(5)));
        QVERIFY(pressCell(Table, 0, MacId));
        for (const char* name :
             {"btn_add", "btn_delete", "le_wsid", "le_ratio", "cbb_endian", "cbb_baudrate"})
            QVERIFY2(!press(name), name);
        QVERIFY(settle());
        QCOMPARE(NumericKeyboardScript::shown().size(), 0);

        QVERIFY(press("btn_edit"));
        QVERIFY(pressCell(Table, 0, DeviceId));
        QVERIFY(pressCell(Table, 0, Connect));
        QVERIFY(settle());
        QCOMPARE(NumericKeyboardScript::shown().size(), 0);
        NumericKeyboardScript::cancelNext();
        QVERIFY(pressCell(Table, 0, CfgFlag));
        QVERIFY(settle());
        QCOMPARE(cells(0).join(' '), QString("1 5 0 0 7 0 0 0x1f"));
        // Two presses that wait for a busy pendant open one keyboard.
        NumericKeyboardScript::enterNext("8");
        QVERIFY(pressCell(Table, 0, Vendor));
        QVERIFY(pressCell(Table, 0, Product));
        QVERIFY(settle());
        QCOMPARE(cells(0).join(' '), QString("1 5 0 0 8 0 0 0x1f"));
        QCOMPARE(NumericKeyboardScript::shown().size(), 2);
        const struct
        {
            const char* edit;
            const char* typed;
            const char* shown;
        } entries[] = {{"le_wsid", "64", "1"},
                       {"le_wsid", "0", "0"},
                       {"le_ratio", "0", "10"},
                       {"le_ratio", "256", "10"},
                       {"le_ratio", "1", "1"}};
        for (const auto& entry : entries) {
            QVERIFY(enter(entry.edit, entry.typed));
            QVERIFY(settle());
            QCOMPARE(text(entry.edit), QString(entry.shown));
        }
    }

    // From an incomplete table to a saved one, with everything that stops a save on the way.
    void stepsOfASave()
    {
        QVERIFY(showDevices(Header + device(5, 2, 2) + device(9)));
        QVERIFY(press("btn_edit"));
        for (int i = 0; i < 2; ++i)
            QVERIFY(press("btn_delete"));
        QVERIFY(press("btn_delete")); // nothing is left to delete
        QVERIFY(press("btn_add"));
        traffic().clear();
        const QByteArray before = controllerFile(FilePath);

        for (int column = MacId; column <= Revision; ++column) {
            QVERIFY(save("btn_edit", {MsgBox::Confirmed}));
            QCOMPARE(messages().constLast(), Incomplete);
            QCOMPARE(MsgBoxScript::shown().constLast().kind, int(MsgBox::Information));
            QCOMPARE(text("btn_edit"), QString("Save"));
            QVERIFY(type(0, column, "20"));
        }
        const int incomplete = MsgBoxScript::shown().size();
        QCOMPARE(incomplete, 6);

        controller().setRestartAllowed(false);
        QVERIFY(press("btn_edit"));
        QVERIFY(settle());
        QCOMPARE(MsgBoxScript::shown().size(), incomplete);
        QCOMPARE(text("btn_edit"), QString("Save"));
        controller().setRestartAllowed(true);

        // Declined: the edit mode is left, what was entered stays, and only the record has it.
        QVERIFY(save("btn_edit", {MsgBox::Second}));
        QCOMPARE(text("btn_edit"), QString("Edit"));
        QVERIFY(!find("btn_add")->isVisible());
        QCOMPARE(cells(0).join(' '), QString("1 20 20 20 20 20 20 0x00"));
        const DeviceNetMasterConfig& record = FieldbusSettingLib::getInstance()->deviceNetMaster;
        QCOMPARE(record.count, 1);
        QCOMPARE(record.devices[0].MAC_ID, 20);
        QCOMPARE(record.devices[1].MAC_ID, -1); // no trace of the row that was deleted
        QCOMPARE(controllerFile(FilePath), before);
        QCOMPARE(traffic().writeCount(), 0);

        // Confirmed, with a restart; then an empty list.
        QVERIFY(press("btn_edit"));
        QVERIFY(press("btn_delete"));
        answer({MsgBox::Confirmed, MsgBox::Confirmed});
        QVERIFY(press("btn_edit"));
        QTRY_COMPARE(traffic().restartRequests(), 1);
        QTRY_VERIFY(!isOpen()); // the pendant restarts as well
        QCOMPARE(controllerFile(FilePath), Header);
        QCOMPARE(traffic().stores(), QStringList({FilePath}));
        const auto& writes = traffic().writes();
        QCOMPARE(writes.size(), 2);
        QCOMPARE(writes[0].name, SaveConfig);
        QCOMPARE(writes[1].name, SlaveNumber);
        QCOMPARE(writes[1].value, 0.0);
    }

    void connectionsFollowTheController()
    {
        QVERIFY(showDevices(Header + device(5) + device(20) + device(5) + device(64)));
        // The file was put there by hand: the controller reads it when it starts.
        QVERIFY(press("btn_edit"));
        answer({MsgBox::Confirmed, MsgBox::Second});
        QVERIFY(press("btn_edit"));
        QTRY_COMPARE(connections(),
                     QStringList({"Connected", "Disconnected::2", "Disconnected::12", "Disconnected::13"}));
        master().setOnNetwork(20, true);
        master().setOnNetwork(5, false);
        QTRY_COMPARE(connections(),
                     QStringList({"Disconnected::2", "Connected", "Disconnected::12", "Disconnected::13"}));
        QVERIFY(controller().setLinkUp("DeviceNetMaster", false));
        QTRY_COMPARE(connections().count("Disconnected::1"), 4);
        QVERIFY(controller().setRoleOn("DeviceNetMaster", false));
        QTRY_COMPARE(connections().count("Disconnected::0"), 4);
        set("ifidbus.dnm_errorcode", 3, -2147483648.0);
        // A row that is added has a state with the next tick.
        QVERIFY(press("btn_edit"));
        QVERIFY(press("btn_add"));
        QTRY_COMPARE(cell(4, Connect), QString("Disconnected::0"));
    }

    // Without the page: a list is taken over only when it was announced, and as far as it was counted.
    void whatTheControllerScans()
    {
        QTemporaryDir directory;
        SimulatedController controller(directory.filePath("controller"));
        controller.setTimeScale(50);
        const auto& master = controller.behaviour<DeviceNetMaster>();
        const auto connected = [&controller] {
            QString states;
            for (int i = 0; i < DeviceNetMaster::MaxDevices; ++i)
                states += controller.readVariable("ifidbus.dnm_status", i) != 0.0 ? 'x' : '.';
            return states;
        };
        QTRY_COMPARE(connected(), QString("xxx.x..........."));
        const QByteArray list = Header + device(20) + device(9) + device(14);
        QVERIFY(controller.storeFile("/FA/DNMST0.CFG", list));
        QTest::qWait(50);
        QCOMPARE(master.listsTaken(), 0);
        controller.writeVariable(SaveConfig, 0, 1);
        QVERIFY(controller.storeFile("/FA/DNMST0.CFG", list));
        controller.writeVariable(SlaveNumber, 0, 2);
        QTRY_COMPARE(master.listsTaken(), 1);
        QCOMPARE(controller.readVariable(SaveConfig), 0.0);
        QTRY_COMPARE(connected(), QString(".x.............."));
        controller.requestRestart();
        QTRY_COMPARE(connected(), QString(16, '.'));
        QTRY_COMPARE(connected(), QString(".xx............."));
        QCOMPARE(controller.readVariable(SlaveNumber), 3.0);
        QVERIFY(controller.removeFile(FilePath));
        QVERIFY(controller.setRoleOn("DeviceNetMaster", false));
        QTRY_COMPARE(connected(), QString(16, '.'));
    }

    void userLevelDrops_data()
    {
        const Rows<QString> row;
        row("while the keyboard is open", "keyboard");
        row("while a value is refused", Duplicate);
        row("while the table is incomplete", Incomplete);
    }

    // The application goes away under a slot that waits; nothing may be touched afterwards.
    void userLevelDrops()
    {
        const auto [box] = Rows<QString>::current();
        QVERIFY(showDevices(Header + device(5) + device(9)));
        MsgBoxScript::onShown([box = box](const MsgBox* shown) {
            if (shown->text() == box)
                dropUserLevel();
        });
        NumericKeyboardScript::onShown([box = box](const NumericKeyboard*) {
            if (box == "keyboard")
                dropUserLevel();
        });
        QVERIFY(press("btn_edit"));
        if (box == Incomplete) {
            QVERIFY(press("btn_add"));
            press("btn_edit");
        } else {
            NumericKeyboardScript::enterNext("9");
            pressCell(Table, 0, MacId);
        }
        QTRY_VERIFY(!isOpen());
        QVERIFY(reopensAfterDrop());
        QVERIFY(showAgain());
        QCOMPARE(table()->rowCount(), 2);
        QCOMPARE(text("btn_edit"), QString("Edit"));
    }

private:
    bool showDevices(const QByteArray& file, int inputBits = 512, int outputBits = 512)
    {
        return put(MappingPath, mapping(inputBits, outputBits)) && show(FilePath, file);
    }
    QTableWidget* table() { return find<QTableWidget>(Table); }
    QString cell(int row, int column) { return table()->item(row, column)->text(); }
    QStringList cells(int row)
    {
        QStringList texts;
        for (int column = DeviceId; column < Connect; ++column)
            texts << cell(row, column);
        return texts;
    }
    QStringList connections()
    {
        QStringList texts;
        for (int row = 0; row < table()->rowCount(); ++row)
            texts << cell(row, Connect);
        return texts;
    }
    bool type(int row, int column, const QString& text)
    {
        NumericKeyboardScript::enterNext(text);
        const int keyboards = NumericKeyboardScript::shown().size();
        return pressCell(Table, row, column) &&
               QTest::qWaitFor([keyboards] { return NumericKeyboardScript::shown().size() > keyboards; });
    }
    DeviceNetMaster& master() { return controller().behaviour<DeviceNetMaster>(); }

    /// The controller's file as the library reads it.
    DeviceNetMasterConfig sent()
    {
        QTemporaryDir directory;
        const QString path = directory.filePath("dnmst0.cfg");
        QFile file(path);
        FieldbusSettingLib* lib = FieldbusSettingLib::getInstance();
        const DeviceNetMasterConfig kept = lib->deviceNetMaster;
        if (file.open(QIODevice::WriteOnly)) {
            file.write(controllerFile(FilePath));
            file.close();
        }
        lib->readDeviceNetMasterFile(path);
        return std::exchange(lib->deviceNetMaster, kept);
    }
};

PENDANT_TEST_MAIN(TestDeviceNetMaster, Button)
#include "tst_devicenetmaster.moc"
