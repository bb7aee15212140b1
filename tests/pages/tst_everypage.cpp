#include "DeviceRows.h"
#include "Faults.h"
#include "FieldbusSettingLib.h"
#include "ProfisafeDevice.h"
#include "Rows.h"
#include "Texts.h"
#include "TickCost.h"

#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QTabWidget>

namespace {

using namespace Texts;

const QString LoadedNow("Loaded now. Look at the settings, then save.");
const QString Changed("Changed on the controller since it was read");
const QString NotRead("Not read from the controller: these are not its settings");

// What an override file, of which any text is one, cannot be: longer than the pendant takes.
constexpr int TooLongBytes = 17 * 1024 * 1024;
constexpr int EtherCatModule = 13;
constexpr int PfnMasterPage = 12;

/// A file of a page. A text that is null is not said: the page does not take that step by itself.
struct PageFile
{
    const char* path;   // on the controller
    QString local;      // below the working directory's fieldbusSetting
    QString unreadable; // faults that leave nothing to be read, and "too-long"
    QString getText = GetFailed;
    QString readText = ReadFailed;
    QString writeText = WriteFailed;
    QString sendText = SendFailed;
    // Boxes between the question and the failure of a save, confirmed.
    QStringList between = {};
    // The controller's present file is fetched for a save.
    bool isTemplate = false;
    // Faults that bring a file with nothing of its own in it: only who wants to save is told.
    QString unrecognised = {};
    bool announcesUnsent = false; // the controller is told also when the file could not be sent
    bool isSentBetween = false;   // before these boxes, and the controller's answer is the failure
};

const QStringList GoesOn{"(it does not look)"};

struct Page
{
    const char* name;
    int id;
    const char* widget;
    const char* edit; // button that begins editing; null: it can be edited at once
    const char* save;
    std::function<bool(PendantFixture&)> change; // something that a save has to save
    std::vector<PageFile> files;
    const char* announced;   // variable that tells the controller of the file; null: a restart does
    QString saved = Restart; // last text of a save, when no restart is wanted
    int kind = MsgBox::Warning;
    QString question = Sure;
    std::function<bool(PendantFixture&)> prepare = {};
    bool allocatesInATick = false; // for the texts of its CONNECT column
    bool needsItsCopy = false;     // of the file, or it writes nothing
    // What a save says, and writes nothing, while the robot runs, the servo is on, or no restart is allowed.
    QStringList whileRunning = GoesOn;
    QStringList withServoOn = GoesOn;
    QStringList withoutRestart = GoesOn;
    QVector<int> dropsEdits = {}; // answers to the question
    int linkBit = 0;              // of "ifidbus.commun_state", which its light shows
};

// A number that was not entered before.
QString fresh(int first, int step = 1)
{
    static int entered = 0;
    return QString::number(first + step * (++entered % 8));
}

bool tickRow(PendantFixture& pendant, const char* table, int row)
{
    return DeviceRows(pendant, table).press(row);
}

bool chooseAnother(PendantFixture& pendant, const char* page, const char* combo)
{
    auto* box = pendant.findOn<QComboBox>(page, combo);
    if (box->currentIndex() < 0)
        QTest::qFail("what could not be read is shown as the record has it, not as nothing", __FILE__,
                     __LINE__);
    box->setCurrentIndex(box->currentIndex() == 0 ? 1 : 0);
    return true;
}

bool reopened(PendantFixture& pendant)
{
    return QTest::qWaitFor([&] { return pendant.find("exitBtn")->isEnabled(); }) &&
           pendant.press("exitBtn") && QTest::qWaitFor([&] { return !pendant.isOpen(); }) &&
           pendant.openPastStartPage();
}

// An XML file tells when it was written; that alone is no change of it.
QByteArray withoutDate(QByteArray content)
{
    const int begin = content.indexOf("<!-- Date");
    if (begin >= 0)
        content.remove(begin, content.indexOf("-->", begin) - begin);
    return content;
}

PageFile overrideFile()
{
    PageFile file{"/FA/override.cfg", "override.cfg", "too-long"};
    file.isTemplate = true;
    file.unrecognised = "fetch-empty fetch-garbage";
    return file;
}

Page masterTable(const char* name, int id, const char* widget, const char* save, const char* table,
                 const QString& folder, const char* path, const char* writeName, const char* root)
{
    const QString file = QString::fromLatin1(path).section('/', -1);
    const QString text = QStringLiteral("Failed to %1 %2 file.");
    Page page{name,
              id,
              widget,
              nullptr,
              save,
              [table](PendantFixture& pendant) {
                  return pendant.enter("lineEdit_enable_timeout", fresh(77)) && tickRow(pendant, table, 1);
              },
              {overrideFile(),
               {path,
                folder + "/" + file,
                "fetch-garbage fetch-cut-short",
                text.arg("get", file),
                text.arg("read", file),
                text.arg("write", writeName),
                text.arg("send", writeName),
                {Restart}}},
              nullptr};
    page.kind = MsgBox::Error;
    if (id == PfnMasterPage)
        page.whileRunning = page.withServoOn = QStringList(ServoFirst);
    else
        page.withoutRestart.clear();
    page.prepare = [path, root](PendantFixture& pendant) {
        // Nine slaves, so that every light is followed in a tick.
        return pendant.put(path,
                           QByteArray("<") + root + "><Group><SlaveNum>9</SlaveNum></Group></" + root + ">");
    };
    return page;
}

Page textSlave(const char* name, int id, const char* widget, const char* save, const QString& file,
               const QString& variant, int linkBit)
{
    static QList<QByteArray> paths; // that live as long as the pages
    paths << "/FA/" + file.toLatin1() << "/application/fidbus/free/" + variant.toLatin1();
    PageFile driver{paths.end()[-2].constData(), file, "fetch-empty"};
    driver.isTemplate = true;
    PageFile inMode{paths.end()[-1].constData(), variant, ""};
    inMode.getText = QString();
    inMode.isTemplate = true;
    Page page{name,
              id,
              widget,
              nullptr,
              save,
              [widget](PendantFixture& pendant) { return chooseAnother(pendant, widget, "cbb_largeSmall"); },
              {driver, inMode},
              nullptr};
    page.linkBit = linkBit;
    return page;
}

// An empty record is refused, so it begins with one.
Page modbusMaster()
{
    const QString text = "Failed to %1 mtcp_master.xml file.";
    const QString anyXml = "fetch-garbage fetch-cut-short";
    Page page{"Modbus TCP master",
              10,
              "MtcpMasterSetting",
              nullptr,
              "btn_save",
              [](PendantFixture& pendant) { return pendant.enter("le_masterId", fresh(33)); },
              {{"/application/fidbus/mtcpMaster/mtcp_master.xml", "mtcpMaster/mtcp_master.xml", anyXml,
                text.arg("get"), text.arg("read"), text.arg("write"), text.arg("send")}},
              "ifidbus.mbc_save_enable",
              "Successfully saved."};
    page.prepare = [](PendantFixture&) {
        FieldbusSettingLib::getInstance()->mtcpMaster = {"10.0.0.1", "502", "4", "2", "3", "5", ""};
        return true;
    };
    return page;
}

Page deviceNetMaster()
{
    Page page{"DeviceNet master",
              13,
              "DeviceNetMasterSetting",
              "btn_edit",
              "btn_edit",
              [](PendantFixture& pendant) { return pendant.enter("le_wsid", fresh(9)); },
              {{"/fa/dnmst0.cfg", "dnmst0.cfg", "fetch-garbage fetch-empty"}},
              "ifidbus.dnm_save_config"};
    page.files.front().announcesUnsent = page.needsItsCopy = page.allocatesInATick = true;
    page.withoutRestart.clear();
    return page;
}

// The second face of the EtherCAT slave's page: the settings of the module itself.
Page etherCatModule()
{
    Page page{
        "EtherCAT slave, module",
        3,
        "EtherCatSettingWidget",
        nullptr,
        "btn_saveFbECAT",
        [](PendantFixture& pendant) { return chooseAnother(pendant, "EtherCatSettingWidget", "cbb_Endian"); },
        {{"/fa/fbslave.cfgx", "fbslave.cfgx", "", "", "", "", WriteFailed}},
        nullptr};
    page.whileRunning = page.withServoOn = QStringList(ServoFirst);
    page.dropsEdits = {MsgBox::Second};
    page.prepare = [](PendantFixture& pendant) {
        pendant.controller().variables().set("ifidbus.anybus_fm", EtherCatModule);
        return true;
    };
    return page;
}

// The menu has loaded it by the time that it is shown.
Page busSwitches()
{
    const QString text = "Failed to %1 file:override.cfg";
    const QString waiting = "Before the save operation is completed,\n clicking on the current interface is "
                            "invalid.";
    PageFile devices{"/FA/override.cfg", "override.cfg", "", "", "", text.arg("write"), text.arg("send")};
    devices.isTemplate = true;
    PageFile switches{"/application/fidbus/fieldbus.xml", "", "", "", "", "", WriteFailed, {waiting}};
    switches.announcesUnsent = true;
    Page page{"bus switches",
              5,
              "BusSettingWidget",
              nullptr,
              "saveBusBt",
              [](PendantFixture& pendant) {
                  // What was saved without a restart runs, for the page, from the next opening on.
                  return (pendant.text("saveBusBt") == "Save" || reopened(pendant)) &&
                         chooseAnother(pendant, "BusSettingWidget", "ethcatMSwitch");
              },
              {devices, switches},
              "ifidbus.bus_type_state",
              "Successfully saved, the robot is about to restart and take effect.",
              MsgBox::Error,
              "This operation will cause the robot to restart.\n Are you sure to save the configuration?"};
    page.prepare = [](PendantFixture& pendant) {
        return pendant.controller().setRoleOn("EtherNetIPMaster", false) &&
               pendant.controller().setRoleOn("ProfinetMaster", false);
    };
    page.whileRunning = page.withServoOn = QStringList(ServoFirst);
    page.dropsEdits = {MsgBox::Dismissed, MsgBox::Second};
    return page;
}

const std::vector<Page>& pages()
{
    static const std::vector<Page> all = [] {
        const QString anyXml = "fetch-garbage fetch-cut-short";
        const QString mapping = "/application/fidbus/fieldbus_config.xml";
        std::vector<Page> pages{
            {"heartbeat",
             6,
             "HeartbeatDetectionWidget",
             nullptr,
             "saveButton",
             [](PendantFixture& pendant) { return pendant.press("modbusCheckBox"); },
             {{"/application/fidbus/heartbeat.xml", "heartbeat.xml", anyXml}},
             "ifidbus.xml_heartbeat",
             Saved,
             MsgBox::Error,
             "Are you sure to save the data ?"},
            {"MES",
             0,
             "MesSettingWidget",
             nullptr,
             "saveButton",
             [](PendantFixture& pendant) { return pendant.enter("port_edit", fresh(9009)); },
             {{"/application/mes/TcpServerConfig.xml", "TcpServerConfig.xml", anyXml}},
             "imes.update_tcp_server_cfg",
             Saved},
            {"FINS",
             2,
             "FinsTcpSettingWidget",
             nullptr,
             "saveFinsButton",
             [](PendantFixture& pendant) { return pendant.enter("serverPort_edit", fresh(9700)); },
             {{"/application/finstcp/FinsTcpConfig.xml", "FinsTcpConfig.xml", anyXml}},
             "ifins_tcp.bupdate_cfg",
             Saved},
            modbusMaster(),
            {"DeviceNet slave",
             9,
             "DeviceNetSlaverSetting",
             nullptr,
             "btn_save",
             [](PendantFixture& pendant) { return pendant.enter("le_macid", fresh(40, 2)); },
             {{"/application/fidbus/devicenet/devicenetSlave.xml", "devicenetSlave.xml", anyXml}},
             "ifidbus.xml_update_state"},
            deviceNetMaster(),
            {"EtherCAT slave",
             3,
             "EtherCatSettingWidget",
             nullptr,
             "saveBt_Ecat",
             [](PendantFixture& pendant) { return tickRow(pendant, "ecatTableWidget", 0); },
             {overrideFile()},
             nullptr},
            etherCatModule(),
            {"EtherCAT master",
             8,
             "EcatMasterSettingWidget",
             nullptr,
             "saveBt_Ecat",
             [](PendantFixture& pendant) { return tickRow(pendant, "ecatTableWidget", 1); },
             {overrideFile()},
             nullptr},
            masterTable("EtherNet/IP master", 11, "EipMasterSettingWidget", "saveBt_EipM", "eipMTableWidget",
                        "eipMaster", "/application/fidbus/eipMaster/eip_master.xml", "eip_master.xml",
                        "EipMasterCommunication"),
            // Its texts call the file by another name when it is saved.
            masterTable("PROFINET master", PfnMasterPage, "PfnMasterSetting", "btn_save", "pfnMasterTableWdt",
                        "pfnMaster", "/application/fidbus/pfnMaster/pfn_master.xml", "pnm_master.xml",
                        "PfnMasterCommunication"),
            textSlave("PROFINET slave", 1, "Pfb_PfnSettingWidget", "saveBt", "pfb.cfg", "pfb_free.cfg", 8),
            textSlave("EtherNet/IP slave", 4, "EtherNetSettingWidget", "saveButton", "dns-1.cfg",
                      "dns_free.cfg", 4),
            // The menu has fetched its file; it is written and sent by the bus file service.
            {"I/O mapping",
             7,
             "ConfigWidget",
             "bt_EditOrSave",
             "bt_EditOrSave",
             [](PendantFixture& pendant) {
                 pendant.find<QTabWidget>("tabWidget_Bus")->setCurrentIndex(2);
                 NumericKeyboardScript::enterNext(fresh(1));
                 return pendant.pressCell("tableView_Eip", 2, 1) && pendant.settle();
             },
             {{"/application/fidbus/fieldbus_config.xml",
               "",
               "",
               "",
               "",
               "",
               "Failed to send " + mapping + " file to controller!",
               {"Please wait...."}}},
             "ifidbus.xml_update_state",
             "Please manually power off and restart the robot later!",
             MsgBox::Error,
             "Are you sure to Save Configuration?"},
            busSwitches(),
        };
        const auto named = [&pages](const char* name) -> Page& {
            return *std::find_if(pages.begin(), pages.end(),
                                 [name](const Page& page) { return page.name == QLatin1String(name); });
        };
        named("heartbeat").dropsEdits = named("I/O mapping").dropsEdits = {MsgBox::Second};
        named("I/O mapping").files.front().isSentBetween = true;
        named("DeviceNet slave").linkBit = 32;
        named("EtherCAT slave").whileRunning = named("EtherCAT slave").withServoOn = QStringList(ServoFirst);
        named("EtherCAT master").withoutRestart.clear();
        named("I/O mapping").whileRunning = QStringList(named("I/O mapping").question);
        named("I/O mapping").withServoOn = named("I/O mapping").whileRunning + QStringList(ServoFirst);
        return pages;
    }();
    return all;
}

// Pages that keep nothing in a file: what they write, they write when it is pressed.
const std::vector<Page>& withoutFile()
{
    static const std::vector<Page> all = [] {
        const Page modbusSlave{"Modbus TCP slave",          15, "MtcpSlaveSetting", nullptr, "cBox", {}, {},
                               "ifidbus.performance_switch"};
        Page profisafe{"ProfiSAFE", 14, "ProfiSAFESlaveWidget",     nullptr, "btn_errorConfir",
                       {},          {}, "io_man.profisafe_local_wo"};
        profisafe.prepare = [](PendantFixture& pendant) {
            pendant.controller().behaviour<ProfisafeDevice>().setPresent(true);
            return true;
        };
        return std::vector<Page>{modbusSlave, profisafe};
    }();
    return all;
}

class AnyPage : public PendantFixture
{
public:
    AnyPage()
        : PendantFixture(Later)
    {
        calmMs = 25; // what it waits for longer it looks for
    }
    void begin(const Page& page)
    {
        m_page = &page;
        start();
    }
    const Page& page() const { return *m_page; }
    /// As far as the page, which is the next one to be opened.
    bool openUpTo() { return isPrepared() && openPastStartPage() && isPrepared(); }
    bool isPrepared() { return !m_page->prepare || m_page->prepare(*this); }
    /// False also when another page is in front; a page that was closed while it loads is not.
    bool show()
    {
        return selectPage(m_page->id) && find(m_page->widget) && find(m_page->widget)->isVisible();
    }
    bool save()
    {
        return (m_page->edit != m_page->save || caption() == QLatin1String("Save") ||
                pressOn(m_page->widget, m_page->edit)) &&
               Finger::press(findOn(m_page->widget, m_page->save));
    }
    /// The button alone, whatever it does.
    bool pressSave() { return Finger::press(findOn(m_page->widget, m_page->save)); }
    QString source() const { return findOn<QLabel>(m_page->widget, "label_source")->text(); }
    bool hasDot() const { return !findOn(m_page->widget, "label_edited")->isHidden(); }
    /// What can be entered on the page, as it stands there.
    QStringList entries() const
    {
        QStringList texts;
        QList<QWidget*> widgets = find(m_page->widget)->findChildren<QWidget*>();
        // One that comes to the front changes its place among them.
        std::stable_sort(widgets.begin(), widgets.end(), [](const QWidget* a, const QWidget* b) {
            return a->objectName() < b->objectName();
        });
        for (const QWidget* widget : widgets) {
            if (const auto* table = qobject_cast<const QTableWidget*>(widget)) {
                for (int cell = 0; cell < table->rowCount() * table->columnCount(); ++cell) {
                    const auto* item = table->item(cell / table->columnCount(), cell % table->columnCount());
                    texts << (item ? item->text() : QString());
                }
            }
            const bool isButton = widget->inherits("QAbstractButton");
            if (isButton || widget->inherits("QLineEdit") || widget->inherits("QComboBox"))
                texts << widget
                             ->property(isButton                        ? "checked"
                                        : widget->inherits("QComboBox") ? "currentText"
                                                                        : "text")
                             .toString();
        }
        return texts;
    }
    bool change()
    {
        return (!m_page->edit || pressOn(m_page->widget, m_page->edit)) && m_page->change(*this);
    }

private:
    QString caption() const { return findOn<QAbstractButton>(m_page->widget, m_page->save)->text(); }

    const Page* m_page = nullptr;
};

} // namespace

class TestEveryPage : public QObject, public AnyPage
{
    Q_OBJECT

private slots:
    void init()
    {
        const int index = *static_cast<int*>(QTest::qData("0", QMetaType::Int));
        const int count = int(pages().size());
        begin(index < count ? pages()[index] : withoutFile()[index - count]);
    }
    void cleanup() { stop(); }

    void loadFaults_data()
    {
        const Rows<int, int, QString> row;
        for (int index = 0; index < int(pages().size()); ++index) {
            const Page& page = pages()[index];
            for (int number = 0; number < int(page.files.size()); ++number) {
                const PageFile& file = page.files[number];
                if (file.getText.isEmpty())
                    continue;
                for (const QString& fault : ("fetch-fails " + file.unreadable + " " + file.unrecognised)
                                                .split(' ', Qt::SkipEmptyParts))
                    row(QStringLiteral("%1: %2, %3").arg(page.name, file.path, fault), index, number, fault);
            }
        }
    }

    void loadFaults()
    {
        const auto [index, fileIndex, fault] = Rows<int, int, QString>::current();
        const PageFile& file = page().files[fileIndex];
        QVERIFY(openUpTo());
        const QByteArray sound = controllerFile(file.path);
        if (fault == "too-long")
            QVERIFY(put(file.path, QByteArray(TooLongBytes, 'x')));
        else
            QVERIFY(fail(fault + ":-1:" + file.path));
        MsgBoxScript::answerByDefault(MsgBox::Confirmed);
        QVERIFY(show());
        const QStringList said(fault == "fetch-fails" ? file.getText : file.readText);
        QCOMPARE(messages(), file.unrecognised.contains(fault) ? QStringList() : said);
        QCOMPARE(source(), NotRead);

        // A save tries to load first, and says why it cannot.
        MsgBoxScript::clear();
        MsgBoxScript::answerByDefault(MsgBox::Confirmed);
        QVERIFY(pressSave() && settle());
        QCOMPARE(messages(), said);
        QCOMPARE(MsgBoxScript::shown().constLast().kind, page().kind);
        // With the cause gone it loads, and the next one saves.
        controller().faults().clearAll();
        QVERIFY(put(file.path, sound));
        QVERIFY(pressSave() && settle());
        QCOMPARE(messages().constLast(), LoadedNow);
        QVERIFY(source().startsWith("Read from the controller "));
        QCOMPARE(traffic().stores(), QStringList());
        QVERIFY(!page().announced || writesOf(page().announced).isEmpty());
        QVERIFY(change());
        answer({MsgBox::Confirmed, MsgBox::Second});
        QVERIFY(save());
        QTRY_COMPARE(messages().constLast(), page().saved);
        QVERIFY(traffic().stores().contains(file.path));
    }

    void isNeverOlderThanTheController_data() { eachPage(); }

    // Another page, an import or a put-back sends one of its files while it is not in sight.
    void isNeverOlderThanTheController()
    {
        constexpr int StartPage = 5;
        constexpr int HeartbeatPage = 6;
        const int elsewhere = page().id == StartPage ? HeartbeatPage : StartPage;
        const PageFile& last = page().files.back();
        // A variant of a driver file is written only.
        const QString path =
            last.isTemplate && last.getText.isEmpty() ? page().files.front().path : last.path;
        const QString copy = "../Application/sent-elsewhere";
        const struct
        {
            const char* name;
            bool isChanged;
            int answer;
            bool isLoaded;
        } cases[] = {{"nothing entered", false, MsgBox::Confirmed, true},
                     {"kept", true, MsgBox::Second, false},
                     {"reloaded", false, MsgBox::Confirmed, true}};
        QVERIFY(openUpTo());
        QVERIFY(show() && tick());
        const auto loaded = entries();
        for (const auto& row : cases) {
            QVERIFY(!row.isChanged || change());
            QCOMPARE(hasDot(), row.name != cases[0].name);
            const bool isEdited = hasDot();
            const auto entered = entries();
            QVERIFY(selectPage(elsewhere));
            QFile file(copy);
            QVERIFY(file.open(QIODevice::WriteOnly) && file.write(controllerFile(path)) >= 0);
            file.close();
            QVERIFY(FieldbusSettingLib::getInstance()->sendFileToCtrl(copy, path));
            traffic().clear();
            MsgBoxScript::clear();
            MsgBoxScript::answerByDefault(row.answer);
            QVERIFY(show() && settle() && tick());
            QCOMPARE(messages(), isEdited ? QStringList(Changed) : QStringList());
            QCOMPARE(traffic().fetches().contains(path), row.isLoaded);
            QVERIFY2(entries() == (row.isLoaded ? loaded : entered), row.name);
            QCOMPARE(hasDot(), !row.isLoaded);
            // Answered once.
            QVERIFY(selectPage(elsewhere) && show() && settle());
            QCOMPARE(messages().size(), int(isEdited));
        }
    }

    void marksWhatCannotBeEntered_data()
    {
        // from, to: of the file; typed: what puts the field right
        const Rows<int, QByteArray, QByteArray, QString, QString> row;
        const auto add = [&row](const char* page, const char* from, const char* to, const char* field,
                                const char* typed) {
            for (int index = 0; index < int(pages().size()); ++index) {
                if (pages()[index].name == QLatin1String(page))
                    row(page, index, from, to, field, typed);
            }
        };
        add("heartbeat", "<Mtcp_Timeout>2.500", "<Mtcp_Timeout>-2", "modbusLineEdit", "3");
        add("MES", "<Port>8008", "<Port>123456", "port_edit", "9009");
        add("FINS", "<ServerPort>9600", "<ServerPort>70000", "serverPort_edit", "9601");
        add("Modbus TCP master", "<SlaveId>1<", "<SlaveId>300<", "le_masterId", "4");
        add("DeviceNet master", "WS_ID 1", "WS_ID 99", "le_wsid", "9");
    }

    void marksWhatCannotBeEntered()
    {
        const auto [index, from, to, field, typed] =
            Rows<int, QByteArray, QByteArray, QString, QString>::current();
        const PageFile& file = pages()[index].files.front();
        QVERIFY(put(file.path, controllerFile(file.path).replace(from, to)));
        QVERIFY(controllerFile(file.path).contains(to));
        QVERIFY(openUpTo() && show());
        const auto* edit = findOn<QLineEdit>(page().widget, field);
        QVERIFY(edit->property("outside").toBool());
        QVERIFY(!page().edit || pressOn(page().widget, page().edit));
        QVERIFY(enter(field, typed) && !edit->property("outside").toBool());
    }

    void whatStopsASave_data() { eachPage(); }

    // One after the other on the same page, with the same change on it.
    void whatStopsASave()
    {
        const struct
        {
            void (SimulatedController::*set)(bool);
            bool value;
            QStringList messages;
            int answer;
        } cases[] = {
            {&SimulatedController::setRobotRunning, true, page().whileRunning, MsgBox::Confirmed},
            {&SimulatedController::setServoOn, true, page().withServoOn, MsgBox::Confirmed},
            {&SimulatedController::setRestartAllowed, false, page().withoutRestart, MsgBox::Confirmed},
            {nullptr, false, {page().question}, MsgBox::Dismissed},
            {nullptr, false, {page().question}, MsgBox::Second}};
        QVERIFY(openUpTo());
        QVERIFY(show());
        const QStringList before = entries();
        QVERIFY(change());
        QTRY_VERIFY(entries() != before);
        const QStringList changed = entries();
        QCOMPARE(changed.size(), before.size());
        traffic().clear();
        for (const auto& row : cases) {
            if (row.messages == GoesOn)
                continue;
            if (row.set)
                (controller().*row.set)(row.value);
            MsgBoxScript::clear();
            MsgBoxScript::answerByDefault(row.answer);
            QVERIFY(save() && settle());
            QCOMPARE(messages(), row.messages);
            const bool isDropped =
                row.messages.contains(page().question) && page().dropsEdits.contains(row.answer);
            // The bus switches are loaded again.
            QCOMPARE(traffic().stores() + (isDropped ? QStringList() : traffic().fetches()), QStringList());
            QVERIFY(!page().announced || writesOf(page().announced).isEmpty());
            const QStringList shown = entries();
            for (int i = 0; i < changed.size(); ++i) {
                const QString& expected = isDropped ? before[i] : changed[i];
                if (changed[i] != before[i])
                    QVERIFY2(shown[i] == expected,
                             qPrintable(QStringLiteral("entry %1, answer %2: %3 instead of %4")
                                            .arg(i)
                                            .arg(row.answer)
                                            .arg(shown[i], expected)));
            }
            if (row.set)
                (controller().*row.set)(!row.value);
        }
        // Together, what it does not look at.
        for (const auto& row : cases) {
            if (row.messages == GoesOn)
                (controller().*row.set)(row.value);
        }
        MsgBoxScript::clear();
        answer({MsgBox::Confirmed, MsgBox::Second});
        MsgBoxScript::answerByDefault(MsgBox::Confirmed);
        QVERIFY(change());
        QVERIFY(save());
        QTRY_VERIFY(messages().contains(page().saved));
        QVERIFY(settle());
        QVERIFY(traffic().stores().contains(page().files.back().path));
        QCOMPARE(traffic().restartRequests(), 0);
    }

    void lightFollowsItsBit_data()
    {
        const Rows<int> row;
        for (int index = 0; index < int(pages().size()); ++index) {
            if (pages()[index].linkBit)
                row(pages()[index].name, index);
        }
    }

    void lightFollowsItsBit()
    {
        QVERIFY(openUpTo());
        QVERIFY(show());
        const QWidget* light = findOn(page().widget, "led_status");
        for (const int value :
             {page().linkBit, 0, page().linkBit | 1, ~page().linkBit, -1, page().linkBit - 1}) {
            set("ifidbus.commun_state", value);
            QTRY_COMPARE(light->isEnabled(), (value & page().linkBit) != 0);
        }
    }

    void saveFaults_data() { eachPage(); }
    // One fault after the other on the same page; each time a save goes through once the cause is gone.
    void saveFaults()
    {
        QVERIFY(openUpTo());
        QVERIFY(show());
        QStringList sent; // what comes before a file in a save
        for (const PageFile& file : page().files) {
            const QString local = "../Application/fieldbusSetting/" + file.local;
            const struct
            {
                const char*
                    fault; // "folder": in the place of the pendant's own file, which cannot replace it
                bool canBe;
                QString text;
            } cases[] = {{"send-fails", true, file.sendText},
                         {"fetch-fails", file.isTemplate, file.writeText},
                         {"folder", !file.writeText.isEmpty(), file.writeText}};
            for (const auto& row : cases) {
                if (!row.canBe)
                    continue;
                const QByteArray name = QByteArray(file.path) + " " + row.fault;
                const bool isUnsent = row.fault == QLatin1String("send-fails");
                const bool isInTheWay = row.fault == QLatin1String("folder");
                const QByteArray before = controllerFile(file.path);
                QVERIFY2(change(), name);
                if (isInTheWay)
                    QVERIFY(QFile::remove(local) && QDir().mkdir(local));
                else
                    QVERIFY(fail(QString(row.fault) + ":-1:" + file.path));
                traffic().clear();
                int shown = messages().size();
                MsgBoxScript::answerByDefault(MsgBox::Confirmed);
                QVERIFY2(save(), name);
                QTRY_COMPARE(messages().mid(shown),
                             QStringList(page().question) + file.between + QStringList(row.text));
                QVERIFY(settle());
                QCOMPARE(MsgBoxScript::shown().constLast().kind, page().kind);
                QVERIFY2(controllerFile(file.path) == before, name);
                QCOMPARE(traffic().stores(), isUnsent ? sent + QStringList(file.path) : sent);
                if (page().announced)
                    QCOMPARE(!writesOf(page().announced).isEmpty(), isUnsent && file.announcesUnsent);
                QCOMPARE(traffic().restartRequests(), 0);

                controller().faults().clearAll();
                QVERIFY(!isInTheWay || QDir().rmdir(local));
                const bool isLost = isInTheWay && page().needsItsCopy;
                shown = messages().size();
                answer({MsgBox::Confirmed, MsgBox::Second});
                QVERIFY2(save(), name);
                QTRY_VERIFY2(messages().mid(shown).contains(isLost ? file.writeText : page().saved), name);
                QVERIFY(settle());
                QVERIFY2((withoutDate(controllerFile(file.path)) == withoutDate(before)) == isLost, name);
            }
            sent << file.path;
        }
    }

    void userLevelDrops_data() { eachPage(); }
    // The application goes away under a slot that waits; nothing may be touched afterwards.
    void userLevelDrops()
    {
        const PageFile& first = page().files.front();
        const PageFile& last = page().files.back();
        const struct
        {
            QString fault;
            QString box; // in which it drops; none: while the file is fetched again and again
            bool whileLoading;
        } cases[] = {{"fetch-fails", {}, true},
                     {"fetch-fails", first.getText, true},
                     {QStringLiteral("send-fails:-1:") + last.path, last.sendText, false},
                     {{}, page().question, false},
                     {{}, last.between.isEmpty() ? page().question : last.between.constFirst(), false},
                     {{}, page().saved, false}};
        QVERIFY(openUpTo());
        for (const auto& row : cases) {
            if (row.whileLoading && first.getText.isEmpty())
                continue;
            const QByteArray name = row.fault.toUtf8() + " " + row.box.toUtf8();
            const QByteArray before = controllerFile(last.path);
            QObject context;
            int dropped = 0;
            const auto drop = [&dropped] {
                if (++dropped == 1)
                    dropUserLevel();
            };
            if (row.box.isEmpty()) {
                QObject::connect(&traffic(), &Traffic::logged, &context, [&] {
                    if (traffic().failed(Traffic::Fetch) == 2)
                        QTimer::singleShot(0, &context, drop);
                });
            }
            MsgBoxScript::onShown([&](const MsgBox* shown) {
                if (shown->text() == row.box)
                    drop();
            });
            MsgBoxScript::answerByDefault(MsgBox::Confirmed);
            const auto strike = [&] { return row.fault.isEmpty() || fail(row.fault); };
            QVERIFY(!row.whileLoading || strike());
            show();
            if (!row.whileLoading) {
                QVERIFY2(change(), name);
                QVERIFY(strike());
                if (row.box == page().saved && page().saved != Restart)
                    answer({MsgBox::Confirmed, MsgBox::Second}); // of an offered restart
                QVERIFY2(save(), name);
            }
            QTRY_VERIFY2(dropped == 1, name);
            QVERIFY2(reopensAfterDrop(), name);
            if (row.box != page().saved && !(last.isSentBetween && last.between.contains(row.box)))
                QVERIFY2(controllerFile(last.path) == before, name);
            QVERIFY(isPrepared());
        }
        QVERIFY(show());
        QVERIFY(change());
    }

    void actsAtOnce_data()
    {
        const Rows<int> row;
        eachWithoutFile(row);
    }

    // Asks nothing, whatever the robot does, and does it again when the application is back.
    void actsAtOnce()
    {
        QVERIFY(openUpTo());
        controller().setRobotRunning(true);
        controller().setServoOn(true);
        controller().setRestartAllowed(false);
        for (int opening = 0; opening < 2; ++opening) {
            QVERIFY(isPrepared() && show() && tick());
            traffic().clear();
            QVERIFY(pressSave());
            QCOMPARE(messages(), QStringList());
            QCOMPARE(writesOf(page().announced).size(), 1);
            dropUserLevel();
            QVERIFY(reopensAfterDrop());
        }
    }

    void keysRestWhileItIsAtWork_data() { eachPage(); }

    // Struck again and again while the page loads, saves and restarts the robot, keys do nothing.
    void keysRestWhileItIsAtWork()
    {
        QVERIFY(openUpTo());
        QTimer keys;
        int struck = 0;
        QObject::connect(&keys, &QTimer::timeout, this, [&] {
            const QWidget* menu = find("FbMainWidget");
            if (!menu || !menu->testAttribute(Qt::WA_TransparentForMouseEvents) ||
                QApplication::activeModalWidget())
                return;
            ++struck;
            for (QWidget* button : {findOn(page().widget, page().save), find("configBtn"), find("exitBtn")}) {
                if (button)
                    QTest::keyClick(button, Qt::Key_Space);
            }
        });
        keys.start(3);
        QVERIFY(fail(QStringLiteral("fetch-fails:2:") + page().files.front().path));
        QVERIFY(show());
        QCOMPARE(messages(), QStringList());
        QCOMPARE(traffic().stores(), QStringList());

        controller().faults().clearAll();
        QStringList sent;
        for (const PageFile& file : page().files)
            sent << file.path;
        MsgBoxScript::answerByDefault(MsgBox::Confirmed);
        QVERIFY(change());
        QVERIFY(save());
        // What could not be fetched at first is loaded by the first Save, and saved by the next.
        if (messages().contains(LoadedNow)) {
            QVERIFY(change());
            QVERIFY(save());
        }
        if (page().saved == Restart)
            QTRY_VERIFY(!isOpen());
        QVERIFY(settle());
        QCOMPARE(messages().count(page().question), 1);
        QCOMPARE(traffic().stores(), sent);
        QVERIFY(traffic().restartRequests() <= int(page().saved != Saved));
        QVERIFY(struck > 0 || page().saved != Restart);
    }

    void tickWithoutChangeCostsNothing_data() { eachWithoutFile(eachPage()); }

    void tickWithoutChangeCostsNothing()
    {
        QVERIFY(openUpTo());
        QVERIFY(show());
        // Once what the page found has settled.
        TickCost cost;
        const bool isFree = QTest::qWaitFor(
            [&] {
                cost = TickCost::of(*this);
                return cost.styleChanges == 0 && cost.paints == 0 &&
                       (page().allocatesInATick || cost.allocations == 0);
            },
            3000);
        QVERIFY2(isFree, qPrintable(QStringLiteral("%1 allocations, %2 style changes, %3 paints")
                                        .arg(cost.allocations)
                                        .arg(cost.styleChanges)
                                        .arg(cost.paints)));
    }

private:
    static Rows<int> eachPage()
    {
        const Rows<int> row;
        for (const Page& page : pages())
            row(page.name, int(&page - pages().data()));
        return row;
    }
    static void eachWithoutFile(const Rows<int>& row)
    {
        for (const Page& page : withoutFile())
            row(page.name, int(pages().size() + (&page - withoutFile().data())));
    }
};

PENDANT_TEST_MAIN(TestEveryPage)
#include "tst_everypage.moc"
