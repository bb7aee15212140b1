#include "FieldbusSettingLib.h"
#include "ModbusMaster.h"
#include "ModbusPartner.h"
#include "PageTest.h"
#include "PaintCounter.h"
#include "QTouchLineEdit.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QRegularExpression>

namespace {

const QString FilePath = QStringLiteral("/application/fidbus/mtcpMaster/mtcp_master.xml");
const QString Button = QStringLiteral("mtcpMasterBtn");
const QString Connected = QStringLiteral("ifidbus.mbc_connected");
const QString Link = QStringLiteral("ifidbus.mbc_link_state");
const QString Automatic = QStringLiteral("ifidbus.mbc_auto_con");
const QString Question = QStringLiteral("Are you sure to save?");
const QString Saved = QStringLiteral("Successfully saved.");

using Values = QMap<QByteArray, QByteArray>;

QByteArray fileWith(Values values)
{
    const Values usual = {{"SlaveIp", "127.0.0.1"}, {"SlavePort", "1503"}, {"SlaveId", "1"},
                          {"TimeOut", "1.5"},       {"ReadEndian", "0"},   {"WriteEndian", "5"},
                          {"Alivetime", "60"}};
    QByteArray file = "<?xml version=\"1.0\"?>\n<MtcpMasterCommunication>\n\t<Group>\n";
    for (auto usually = usual.begin(); usually != usual.end(); ++usually)
        file += "<" + usually.key() + ">" + values.value(usually.key(), usually.value()) + "</" +
                usually.key() + ">";
    return file + "</Group></MtcpMasterCommunication>";
}

bool putFile(SimulatedController& controller, const Values& values)
{
    return controller.files().write(FilePath, fileWith(values));
}

// ... and lets the controller take it.
bool announceFile(SimulatedController& controller, const Values& values)
{
    const QString announced = QStringLiteral("ifidbus.mbc_save_enable");
    if (!putFile(controller, values))
        return false;
    controller.writeVariable(announced, 0, 1.0);
    return QTest::qWaitFor([&] { return controller.readVariable(announced) == 0.0; });
}

QByteArray valueIn(const QByteArray& file, const QString& element)
{
    const QRegularExpression value(QStringLiteral("<%1>(.*)</%1>").arg(element));
    return value.match(QString::fromUtf8(file)).captured(1).toUtf8();
}

// Every line of the controller's log.
class Log
{
public:
    explicit Log(SimulatedController& controller)
        : m_lines(&controller.traffic(), &Traffic::logged)
    {
    }
    int count(const QString& text) const
    {
        return static_cast<int>(
            std::count_if(m_lines.begin(), m_lines.end(), [&text](const QList<QVariant>& line) {
                return line.value(0).toString().contains(text);
            }));
    }

private:
    QSignalSpy m_lines;
};

} // namespace

class TestModbusMaster : public PageTest
{
    Q_OBJECT

public:
    using PageTest::PageTest;

private slots:
    void connectsToWhatWasTyped()
    {
        ModbusPartner partner;
        QVERIFY(putFile(controller(), {{"SlaveIp", "127.9.9.9"}, {"TimeOut", "2"}}));
        QVERIFY(show());
        QVERIFY(!isGreen());
        QVERIFY(enter("le_masterIp", "127.0.0.1"));
        QVERIFY(enter("le_masterPort", partner.portText()));
        // The page looks at neither.
        controller().setServoOn(true);
        controller().setRobotRunning(true);
        QVERIFY(pressSave());
        QCOMPARE(messages(), QStringList({Question, Saved}));
        controller().setServoOn(false);
        controller().setRobotRunning(false);
        const QByteArray file = controllerFile(FilePath);
        QCOMPARE(valueIn(file, "SlaveIp"), QByteArray("127.0.0.1"));
        QCOMPARE(valueIn(file, "SlavePort"), partner.portText().toUtf8());
        QCOMPARE(valueIn(file, "WriteEndian"), QByteArray("5"));
        QCOMPARE(valueIn(file, "Alivetime"), QByteArray("60"));
        QTRY_COMPARE(variable("ifidbus.mbc_save_enable"), 0.0);
        QTest::qWait(100);
        QCOMPARE(partner.clients(), 0); // nobody asked for it yet

        QVERIFY(press("btn_connect"));
        QVERIFY(press("btn_connect"));
        QTRY_VERIFY(isGreen());
        QCOMPARE(partner.clients(), 1);
        QCOMPARE(variable(Link), 1.0);
        QCOMPARE(variable("ifidbus.mbc_open"), 0.0);
        {
            const PaintCounter counter;
            QTest::qWait(250);
            QCOMPARE(counter.paints() + counter.styleChanges(), 0);
        }

        // It is looked for again, for as long as the time-out.
        partner.kill();
        QTRY_VERIFY(!isGreen());
        QCOMPARE(variable(Link), 0.0);
        QVERIFY(partner.start());
        QTRY_VERIFY(isGreen());
        const Log log(controller());
        partner.kill();
        QTRY_COMPARE(log.count("no answer"), 1);
        QVERIFY(partner.start());
        QTest::qWait(1300);
        QVERIFY(!isGreen());
        QVERIFY(press("btn_connect"));
        QTRY_VERIFY(isGreen());

        // Other settings end the connection and begin the next one.
        ModbusPartner other(7);
        QVERIFY(enter("le_masterPort", other.portText()));
        QVERIFY(enter("le_masterId", "7"));
        QVERIFY(pressSave());
        QTRY_COMPARE(other.clients(), 1);
        QTRY_COMPARE(partner.clients(), 0);
        QTRY_VERIFY(isGreen());
        controller().requestRestart();
        QTRY_VERIFY(!isGreen());
    }

    void staysRed_data()
    {
        const Rows<QString, QString> row;
        row("wrong unit id", "le_masterId", "2");
        row("a port that nobody serves", "le_masterPort", "1");
        row("nothing is served at port 0", "le_masterPort", "0");
        row("an address beyond this machine", "le_masterIp", "192.0.2.1");
    }

    void staysRed()
    {
        const auto [edit, typed] = Rows<QString, QString>::current();
        const ModbusPartner partner;
        QVERIFY(putFile(controller(), {{"SlavePort", partner.portText().toUtf8()}, {"TimeOut", "0.5"}}));
        QVERIFY(show());
        QVERIFY(enter(edit, typed));
        QVERIFY(pressSave());
        QTRY_COMPARE(variable("ifidbus.mbc_save_enable"), 0.0);
        QSignalSpy changes(&controller().variables(), &VariableStore::changed);
        const Log log(controller());
        QElapsedTimer time;
        time.start();
        QVERIFY(press("btn_connect"));
        QTRY_VERIFY(log.count("no answer") + log.count("no sense") == 1);
        QVERIFY2(time.elapsed() < 3000, qPrintable(QString::number(time.elapsed())));
        QTest::qWait(300);
        for (const QList<QVariant>& change : qAsConst(changes))
            QVERIFY(change.at(0) != Connected);
        QVERIFY(!isGreen());
        QTRY_COMPARE(partner.clients(), 0);
        QCOMPARE(log.count("no answer") + log.count("no sense"), 1); // it does not try again by itself
    }

    void automaticConnection()
    {
        ModbusPartner partner;
        QVERIFY(announceFile(controller(), {{"SlavePort", partner.portText().toUtf8()}, {"TimeOut", "0.2"}}));
        QVERIFY(show());
        const auto* button = find("btn_connect");
        QVERIFY(button->isEnabled());
        QVERIFY(press("cBox_autoCon"));
        QCOMPARE(variable(Automatic), 1.0);
        QVERIFY(!button->isEnabled());
        QTRY_VERIFY(isGreen());

        // It never gives up for good.
        const Log log(controller());
        partner.kill();
        QTRY_COMPARE(log.count("no answer"), 1);
        QTRY_VERIFY(!isGreen());
        QVERIFY(partner.start());
        QTRY_VERIFY(isGreen());

        // A restart breaks the connection; the controller makes the next one itself.
        controller().requestRestart();
        QTRY_VERIFY(!controller().isUp());
        QCOMPARE(variable(Connected), 0.0);
        QTRY_COMPARE(partner.clients(), 0);
        QTRY_COMPARE(variable(Connected), 1.0);

        // The page that is built anew shows how it stands, and does not write it.
        QVERIFY(press("exitBtn"));
        QTRY_VERIFY(!isOpen());
        QVERIFY(open());
        traffic().clear();
        QVERIFY(showAgain());
        QVERIFY(isChecked("cBox_autoCon"));
        QVERIFY(!find("btn_connect")->isEnabled());
        QTRY_VERIFY(isGreen());
        QCOMPARE(traffic().writeCount(), 0);

        QVERIFY(press("cBox_autoCon"));
        QCOMPARE(variable(Automatic), 0.0);
        QVERIFY(find("btn_connect")->isEnabled());
        QVERIFY(isGreen()); // what stands stays
    }

    // The socket stays open, but nobody answers under the unit id any more.
    void deadPartnerIsNoticed()
    {
        ModbusPartner partner;
        const QTemporaryDir folder;
        SimulatedController controller(folder.path());
        QVERIFY(announceFile(
            controller,
            {{"SlavePort", partner.portText().toUtf8()}, {"TimeOut", "1"}, {"Alivetime", "0.1"}}));
        controller.writeVariable(QStringLiteral("ifidbus.mbc_open"), 0, 1.0);
        QTRY_COMPARE(controller.readVariable(Connected), 1.0);
        QTest::qWait(300);
        QCOMPARE(controller.readVariable(Connected), 1.0);
        partner.becomeUnit(9);
        QTRY_COMPARE(controller.readVariable(Connected), 0.0);
    }

    void roleAndCable()
    {
        const ModbusPartner partner;
        const QString role = QStringLiteral("ModbusTcpMaster");
        const QTemporaryDir folder;
        SimulatedController controller(folder.path());
        QVERIFY(announceFile(controller, {{"SlavePort", partner.portText().toUtf8()}}));
        controller.writeVariable(Automatic, 0, 1.0);
        const auto drives = {
            std::function<bool(bool)>([&](bool on) { return controller.setLinkUp(role, on); }),
            std::function<bool(bool)>([&](bool on) { return controller.setRoleOn(role, on); })};
        for (const auto& drive : drives) {
            QTRY_COMPARE(controller.readVariable(Link), 1.0);
            QVERIFY(drive(false));
            QCOMPARE(controller.readVariable(Connected), 0.0);
            QCOMPARE(controller.readVariable(Link), 0.0);
            QTRY_COMPARE(partner.clients(), 0);
            controller.writeVariable(QStringLiteral("ifidbus.mbc_open"), 0, 1.0);
            QTRY_COMPARE(controller.readVariable(QStringLiteral("ifidbus.mbc_open")), 0.0);
            QTest::qWait(50);
            QCOMPARE(partner.clients(), 0);
            QVERIFY(drive(true));
            QTRY_COMPARE(controller.readVariable(Connected), 1.0);
        }
    }

    void settingsThatMakeNoSense_data()
    {
        // timeoutMs: -1: makes no sense
        const Rows<QByteArray, int> row;
        row("blanks around", fileWith({{"SlavePort", " 1503 "}, {"TimeOut", " 2 "}}), 2000);
        row("shorter than the shortest", fileWith({{"TimeOut", "0.001"}}), 100);
        row("for ever", fileWith({{"TimeOut", "1e300"}}), 10000);
        row("no time", fileWith({{"TimeOut", ""}}), -1);
        row("not an address", fileWith({{"SlaveIp", "localhost"}}), -1);
        row("cut short", fileWith({}).left(90), -1);
    }

    void settingsThatMakeNoSense()
    {
        const auto [file, timeoutMs] = Rows<QByteArray, int>::current();
        const QTemporaryDir folder;
        SimulatedController controller(folder.path());
        QVERIFY(controller.files().write(FilePath, file));
        controller.writeVariable(QStringLiteral("ifidbus.mbc_save_enable"), 0, 1.0);
        QTRY_COMPARE(controller.readVariable(QStringLiteral("ifidbus.mbc_save_enable")), 0.0);
        const auto& settings = controller.behaviour<ModbusMaster>().settings();
        QCOMPARE(settings ? settings->timeoutMs : -1, timeoutMs);
        const Log log(controller);
        controller.writeVariable(QStringLiteral("ifidbus.mbc_open"), 0, 1.0);
        QTRY_COMPARE(log.count("no sense"), timeoutMs < 0 ? 1 : 0);
    }

    void savesOnlyChanges_data()
    {
        // edit: or combo; none: nothing is touched
        // written: "-": nothing is
        const Rows<QString, QByteArray, QString, QString, QByteArray> row;
        const QByteArray silent = "-";
        row("time-out in other digits", "TimeOut", "1", "le_timeout", "1.0", silent);
        row("another time-out", "TimeOut", "1", "le_timeout", "1.001", "1.001");
        row("blanks around the address", "SlaveIp", " 10.0.0.9 ", "", "", silent);
        row("another address", "SlaveIp", "10.0.0.9", "le_masterIp", "10.0.0.8", "10.0.0.8");
        row("port as text", "SlavePort", "0502", "le_masterPort", "502", "502");
        row("last byte order", "ReadEndian", "0", "cbb_readEndian", "5", "5");
        // Not among those that the page offers: the file is put right.
        row("byte order beyond the list", "ReadEndian", "7", "", "", "0");
        row("byte order below the list", "WriteEndian", "-1", "", "", "0");
        row("byte order as a word", "ReadEndian", "BIG_ENDIAN", "", "", silent);
    }

    void savesOnlyChanges()
    {
        const auto [element, inFile, edit, entered, written] =
            Rows<QString, QByteArray, QString, QString, QByteArray>::current();
        QVERIFY(putFile(controller(), {{element.toUtf8(), inFile}}));
        QVERIFY(show());
        if (auto* combo = find<QComboBox>(edit))
            combo->setCurrentIndex(entered.toInt());
        else if (!edit.isEmpty())
            QVERIFY(enter(edit, entered));
        traffic().clear();
        QVERIFY(pressSave());
        const bool saved = written != "-";
        QCOMPARE(messages(), saved ? QStringList({Question, Saved}) : QStringList(Question));
        QCOMPARE(traffic().stores(), saved ? QStringList(FilePath) : QStringList());
        QCOMPARE(traffic().writeCount(), saved ? 1 : 0);
        QCOMPARE(valueIn(controllerFile(FilePath), element), saved ? written : inFile);
        if (saved) {
            MsgBoxScript::clear();
            QVERIFY(pressSave()); // what was saved is no change any more
            QCOMPARE(messages(), QStringList(Question));
        }
    }

    void emptyFields_data()
    {
        const Rows<Values, QString> row;
        row("address", Values({{"SlaveIp", ""}, {"SlaveId", ""}}), "IP cannot be empty!");
        row("port", Values({{"SlavePort", ""}, {"TimeOut", ""}}), "Port cannot be empty!");
        row("unit id", Values({{"SlaveId", ""}, {"TimeOut", ""}}), "ID cannot be empty!");
        row("time-out", Values({{"TimeOut", ""}}), "Timeout cannot be empty!");
    }

    void emptyFields()
    {
        const auto [values, message] = Rows<Values, QString>::current();
        QVERIFY(putFile(controller(), values));
        const QByteArray before = controllerFile(FilePath);
        QVERIFY(show());
        choose("cbb_readEndian", 3);
        QVERIFY(pressSave());
        QCOMPARE(messages(), QStringList({Question, message}));
        QCOMPARE(controllerFile(FilePath), before);
    }

    void addressIsChecked_data()
    {
        const Rows<QString, QString> row;
        row("too large", "10.0.0.256", "127.0.0.1");
        row("blanks around", " 10.0.0.5 ", " 10.0.0.5 ");
    }

    // The keyboard lets no wrong address through; that of another host may.
    void addressIsChecked()
    {
        const auto [typed, shown] = Rows<QString, QString>::current();
        const bool good = typed == shown;
        QVERIFY(show());
        auto* edit = find<QTouchLineEdit>("le_masterIp");
        const auto type = [edit](const QString& text) {
            edit->setText(text);
            emit edit->valueSetted(text);
        };
        answer({MsgBox::Confirmed, MsgBox::Confirmed});
        type(typed);
        QCOMPARE(edit->text(), shown);
        QCOMPARE(messages(),
                 good ? QStringList() : QStringList(QStringLiteral("IP address format is wrong!")));
        // What was accepted last comes back.
        type(QStringLiteral("1.2"));
        QCOMPARE(edit->text(), shown.trimmed());
    }

    void showsTheRecordWhenNothingIsFetched()
    {
        QVERIFY(open());
        FieldbusSettingLib::getInstance()->mtcpMaster = {"10.0.0.1", "502", "4", "2", "3", "9", ""};
        QVERIFY(fail("fetch-fails"));
        answer({MsgBox::Confirmed});
        QVERIFY(showAgain());
        QCOMPARE(text("le_masterIp"), QString("10.0.0.1"));
        QCOMPARE(chosen("cbb_readEndian"), 3);
        QCOMPARE(chosen("cbb_writeEndian"), 0);
    }

    void userLevelDropsWhileTheAddressIsRefused()
    {
        QVERIFY(show());
        MsgBoxScript::onShown([](const MsgBox*) { dropUserLevel(); });
        emit find<QTouchLineEdit>("le_masterIp")->valueSetted(QStringLiteral("1"));
        QTRY_VERIFY(!isOpen());
        QVERIFY(reopensAfterDrop());
    }

private:
    // What the operator sees: the light's picture, not what the page thinks of it.
    bool isGreen() const
    {
        const QImage light = find<QLabel>(QStringLiteral("label_conStatus"))->grab().toImage();
        int green = 0;
        int red = 0;
        for (int x = 0; x < light.width(); ++x) {
            for (int y = 0; y < light.height(); ++y) {
                const QColor colour = light.pixelColor(x, y);
                green += colour.green() > colour.red() + 60;
                red += colour.red() > colour.green() + 60;
            }
        }
        return green > red;
    }
    bool pressSave() { return save("btn_save", {MsgBox::Confirmed, MsgBox::Confirmed}); }
};

PENDANT_TEST_MAIN(TestModbusMaster, Button)
#include "tst_modbusmaster.moc"
