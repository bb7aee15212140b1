#include "FieldbusSettingLib.h"
#include "ModbusMaster.h"
#include "ModbusPartner.h"
#include "PaintCounter.h"
#include "PendantFixture.h"
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

// What the operator sees: the light's picture, not what the page thinks of it.
bool isGreen(const PendantFixture& pendant)
{
    const QImage light = pendant.find<QLabel>(QStringLiteral("label_conStatus"))->grab().toImage();
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

bool pressSave(PendantFixture& pendant)
{
    PendantFixture::answer({MsgBox::Confirmed, MsgBox::Confirmed});
    return pendant.press("btn_save") && pendant.settle();
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

class TestModbusMaster : public QObject
{
    Q_OBJECT

private slots:
    void connectsToWhatWasTyped();
    void staysRed_data();
    void staysRed();
    void automaticConnection();
    void deadPartnerIsNoticed();
    void roleAndCable();
    void settingsThatMakeNoSense_data();
    void settingsThatMakeNoSense();

    void savesOnlyChanges_data();
    void savesOnlyChanges();
    void emptyFields_data();
    void emptyFields();
    void addressIsChecked_data();
    void addressIsChecked();
    void showsTheRecordWhenNothingIsFetched();
    void userLevelDropsWhileTheAddressIsRefused();
};

void TestModbusMaster::connectsToWhatWasTyped()
{
    ModbusPartner partner;
    PendantFixture pendant;
    QVERIFY(putFile(pendant.controller(), {{"SlaveIp", "127.9.9.9"}, {"TimeOut", "2"}}));
    QVERIFY(pendant.open());
    QVERIFY(pendant.openPage(Button));
    QVERIFY(!isGreen(pendant));
    QVERIFY(pendant.enter("le_masterIp", "127.0.0.1"));
    QVERIFY(pendant.enter("le_masterPort", partner.portText()));
    // The page looks at neither.
    pendant.controller().setServoOn(true);
    pendant.controller().setRobotRunning(true);
    QVERIFY(pressSave(pendant));
    QCOMPARE(PendantFixture::messages(), QStringList({Question, Saved}));
    pendant.controller().setServoOn(false);
    pendant.controller().setRobotRunning(false);
    const QByteArray file = pendant.controllerFile(FilePath);
    QCOMPARE(valueIn(file, "SlaveIp"), QByteArray("127.0.0.1"));
    QCOMPARE(valueIn(file, "SlavePort"), partner.portText().toUtf8());
    QCOMPARE(valueIn(file, "WriteEndian"), QByteArray("5"));
    QCOMPARE(valueIn(file, "Alivetime"), QByteArray("60"));
    QTRY_COMPARE(pendant.variable("ifidbus.mbc_save_enable"), 0.0);
    QTest::qWait(100);
    QCOMPARE(partner.clients(), 0); // nobody asked for it yet

    QVERIFY(pendant.press("btn_connect"));
    QVERIFY(pendant.press("btn_connect"));
    QTRY_VERIFY(isGreen(pendant));
    QCOMPARE(partner.clients(), 1);
    QCOMPARE(pendant.variable(Link), 1.0);
    QCOMPARE(pendant.variable("ifidbus.mbc_open"), 0.0);
    {
        const PaintCounter counter;
        QTest::qWait(250);
        QCOMPARE(counter.paints() + counter.styleChanges(), 0);
    }

    // It is looked for again, for as long as the time-out.
    partner.kill();
    QTRY_VERIFY(!isGreen(pendant));
    QCOMPARE(pendant.variable(Link), 0.0);
    QVERIFY(partner.start());
    QTRY_VERIFY(isGreen(pendant));
    const Log log(pendant.controller());
    partner.kill();
    QTRY_COMPARE(log.count("no answer"), 1);
    QVERIFY(partner.start());
    QTest::qWait(1300);
    QVERIFY(!isGreen(pendant));
    QVERIFY(pendant.press("btn_connect"));
    QTRY_VERIFY(isGreen(pendant));

    // Other settings end the connection and begin the next one.
    ModbusPartner other(7);
    QVERIFY(pendant.enter("le_masterPort", other.portText()));
    QVERIFY(pendant.enter("le_masterId", "7"));
    QVERIFY(pressSave(pendant));
    QTRY_COMPARE(other.clients(), 1);
    QTRY_COMPARE(partner.clients(), 0);
    QTRY_VERIFY(isGreen(pendant));
    pendant.controller().requestRestart();
    QTRY_VERIFY(!isGreen(pendant));
}

void TestModbusMaster::staysRed_data()
{
    QTest::addColumn<QString>("edit");
    QTest::addColumn<QString>("typed");
    const auto row = [](const char* name, const char* edit, const char* typed) {
        QTest::newRow(name) << QString(edit) << QString(typed);
    };
    row("wrong unit id", "le_masterId", "2");
    row("a port that nobody serves", "le_masterPort", "1");
    row("nothing is served at port 0", "le_masterPort", "0");
    row("an address beyond this machine", "le_masterIp", "192.0.2.1");
}

void TestModbusMaster::staysRed()
{
    QFETCH(QString, edit);
    QFETCH(QString, typed);
    const ModbusPartner partner;
    PendantFixture pendant;
    QVERIFY(putFile(pendant.controller(), {{"SlavePort", partner.portText().toUtf8()}, {"TimeOut", "0.5"}}));
    QVERIFY(pendant.open());
    QVERIFY(pendant.openPage(Button));
    QVERIFY(pendant.enter(edit, typed));
    QVERIFY(pressSave(pendant));
    QTRY_COMPARE(pendant.variable("ifidbus.mbc_save_enable"), 0.0);
    QSignalSpy changes(&pendant.controller().variables(), &VariableStore::changed);
    const Log log(pendant.controller());
    QElapsedTimer time;
    time.start();
    QVERIFY(pendant.press("btn_connect"));
    QTRY_VERIFY(log.count("no answer") + log.count("no sense") == 1);
    QVERIFY2(time.elapsed() < 3000, qPrintable(QString::number(time.elapsed())));
    QTest::qWait(300);
    for (const QList<QVariant>& change : qAsConst(changes))
        QVERIFY(change.at(0) != Connected);
    QVERIFY(!isGreen(pendant));
    QTRY_COMPARE(partner.clients(), 0);
    QCOMPARE(log.count("no answer") + log.count("no sense"), 1); // it does not try again by itself
}

void TestModbusMaster::automaticConnection()
{
    ModbusPartner partner;
    PendantFixture pendant;
    QVERIFY(
        announceFile(pendant.controller(), {{"SlavePort", partner.portText().toUtf8()}, {"TimeOut", "0.2"}}));
    QVERIFY(pendant.open());
    QVERIFY(pendant.openPage(Button));
    const auto* button = pendant.find("btn_connect");
    QVERIFY(button->isEnabled());
    QVERIFY(pendant.press("cBox_autoCon"));
    QCOMPARE(pendant.variable(Automatic), 1.0);
    QVERIFY(!button->isEnabled());
    QTRY_VERIFY(isGreen(pendant));

    // It never gives up for good.
    const Log log(pendant.controller());
    partner.kill();
    QTRY_COMPARE(log.count("no answer"), 1);
    QTRY_VERIFY(!isGreen(pendant));
    QVERIFY(partner.start());
    QTRY_VERIFY(isGreen(pendant));

    // A restart breaks the connection; the controller makes the next one itself.
    pendant.controller().requestRestart();
    QTRY_VERIFY(!pendant.controller().isUp());
    QCOMPARE(pendant.variable(Connected), 0.0);
    QTRY_COMPARE(partner.clients(), 0);
    QTRY_COMPARE(pendant.variable(Connected), 1.0);

    // The page that is built anew shows how it stands, and does not write it.
    QVERIFY(pendant.press("exitBtn"));
    QTRY_VERIFY(!pendant.isOpen());
    QVERIFY(pendant.open());
    pendant.controller().traffic().clear();
    QVERIFY(pendant.openPage(Button));
    QVERIFY(pendant.find<QCheckBox>("cBox_autoCon")->isChecked());
    QVERIFY(!pendant.find("btn_connect")->isEnabled());
    QTRY_VERIFY(isGreen(pendant));
    QCOMPARE(pendant.controller().traffic().writeCount(), 0);

    QVERIFY(pendant.press("cBox_autoCon"));
    QCOMPARE(pendant.variable(Automatic), 0.0);
    QVERIFY(pendant.find("btn_connect")->isEnabled());
    QVERIFY(isGreen(pendant)); // what stands stays
}

// The socket stays open, but nobody answers under the unit id any more.
void TestModbusMaster::deadPartnerIsNoticed()
{
    ModbusPartner partner;
    const QTemporaryDir folder;
    SimulatedController controller(folder.path());
    QVERIFY(announceFile(
        controller, {{"SlavePort", partner.portText().toUtf8()}, {"TimeOut", "1"}, {"Alivetime", "0.1"}}));
    controller.writeVariable(QStringLiteral("ifidbus.mbc_open"), 0, 1.0);
    QTRY_COMPARE(controller.readVariable(Connected), 1.0);
    QTest::qWait(300);
    QCOMPARE(controller.readVariable(Connected), 1.0);
    partner.becomeUnit(9);
    QTRY_COMPARE(controller.readVariable(Connected), 0.0);
}

void TestModbusMaster::roleAndCable()
{
    const ModbusPartner partner;
    const QString role = QStringLiteral("ModbusTcpMaster");
    const QTemporaryDir folder;
    SimulatedController controller(folder.path());
    QVERIFY(announceFile(controller, {{"SlavePort", partner.portText().toUtf8()}}));
    controller.writeVariable(Automatic, 0, 1.0);
    const auto drives = {std::function<bool(bool)>([&](bool on) { return controller.setLinkUp(role, on); }),
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

void TestModbusMaster::settingsThatMakeNoSense_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<int>("timeoutMs"); // -1: makes no sense
    QTest::newRow("blanks around") << fileWith({{"SlavePort", " 1503 "}, {"TimeOut", " 2 "}}) << 2000;
    QTest::newRow("shorter than the shortest") << fileWith({{"TimeOut", "0.001"}}) << 100;
    QTest::newRow("for ever") << fileWith({{"TimeOut", "1e300"}}) << 10000;
    QTest::newRow("no time") << fileWith({{"TimeOut", ""}}) << -1;
    QTest::newRow("not an address") << fileWith({{"SlaveIp", "localhost"}}) << -1;
    QTest::newRow("cut short") << fileWith({}).left(90) << -1;
}

void TestModbusMaster::settingsThatMakeNoSense()
{
    QFETCH(QByteArray, file);
    QFETCH(int, timeoutMs);
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

void TestModbusMaster::savesOnlyChanges_data()
{
    QTest::addColumn<QString>("element");
    QTest::addColumn<QByteArray>("inFile");
    QTest::addColumn<QString>("edit"); // or combo; none: nothing is touched
    QTest::addColumn<QString>("entered");
    QTest::addColumn<QByteArray>("written"); // "-": nothing is
    const QByteArray silent = "-";
    const auto row = [](const char* name, const char* element, const QByteArray& inFile, const char* edit,
                        const char* entered, const QByteArray& written) {
        QTest::newRow(name) << QString(element) << inFile << QString(edit) << QString(entered) << written;
    };
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

void TestModbusMaster::savesOnlyChanges()
{
    QFETCH(QString, element);
    QFETCH(QByteArray, inFile);
    QFETCH(QString, edit);
    QFETCH(QString, entered);
    QFETCH(QByteArray, written);
    PendantFixture pendant;
    QVERIFY(putFile(pendant.controller(), {{element.toUtf8(), inFile}}));
    QVERIFY(pendant.open());
    QVERIFY(pendant.openPage(Button));
    if (auto* combo = pendant.find<QComboBox>(edit))
        combo->setCurrentIndex(entered.toInt());
    else if (!edit.isEmpty())
        QVERIFY(pendant.enter(edit, entered));
    pendant.controller().traffic().clear();
    QVERIFY(pressSave(pendant));
    const bool saved = written != "-";
    QCOMPARE(PendantFixture::messages(), saved ? QStringList({Question, Saved}) : QStringList(Question));
    QCOMPARE(pendant.controller().traffic().stores(), saved ? QStringList(FilePath) : QStringList());
    QCOMPARE(pendant.controller().traffic().writeCount(), saved ? 1 : 0);
    QCOMPARE(valueIn(pendant.controllerFile(FilePath), element), saved ? written : inFile);
    if (saved) {
        MsgBoxScript::clear();
        QVERIFY(pressSave(pendant)); // what was saved is no change any more
        QCOMPARE(PendantFixture::messages(), QStringList(Question));
    }
}

void TestModbusMaster::emptyFields_data()
{
    QTest::addColumn<Values>("values");
    QTest::addColumn<QString>("message");
    QTest::newRow("address") << Values({{"SlaveIp", ""}, {"SlaveId", ""}}) << "IP cannot be empty!";
    QTest::newRow("port") << Values({{"SlavePort", ""}, {"TimeOut", ""}}) << "Port cannot be empty!";
    QTest::newRow("unit id") << Values({{"SlaveId", ""}, {"TimeOut", ""}}) << "ID cannot be empty!";
    QTest::newRow("time-out") << Values({{"TimeOut", ""}}) << "Timeout cannot be empty!";
}

void TestModbusMaster::emptyFields()
{
    QFETCH(Values, values);
    QFETCH(QString, message);
    PendantFixture pendant;
    QVERIFY(putFile(pendant.controller(), values));
    const QByteArray before = pendant.controllerFile(FilePath);
    QVERIFY(pendant.open());
    QVERIFY(pendant.openPage(Button));
    pendant.find<QComboBox>("cbb_readEndian")->setCurrentIndex(3);
    QVERIFY(pressSave(pendant));
    QCOMPARE(PendantFixture::messages(), QStringList({Question, message}));
    QCOMPARE(pendant.controllerFile(FilePath), before);
}

void TestModbusMaster::addressIsChecked_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");
    QTest::newRow("too large") << QString("10.0.0.256") << QString("127.0.0.1");
    QTest::newRow("blanks around") << QString(" 10.0.0.5 ") << QString(" 10.0.0.5 ");
}

// The keyboard lets no wrong address through; that of another host may.
void TestModbusMaster::addressIsChecked()
{
    QFETCH(QString, typed);
    QFETCH(QString, shown);
    const bool good = typed == shown;
    PendantFixture pendant;
    QVERIFY(pendant.open());
    QVERIFY(pendant.openPage(Button));
    auto* edit = pendant.find<QTouchLineEdit>("le_masterIp");
    const auto type = [edit](const QString& text) {
        edit->setText(text);
        emit edit->valueSetted(text);
    };
    PendantFixture::answer({MsgBox::Confirmed, MsgBox::Confirmed});
    type(typed);
    QCOMPARE(edit->text(), shown);
    QCOMPARE(PendantFixture::messages(),
             good ? QStringList() : QStringList(QStringLiteral("IP address format is wrong!")));
    // What was accepted last comes back.
    type(QStringLiteral("1.2"));
    QCOMPARE(edit->text(), shown.trimmed());
}

void TestModbusMaster::showsTheRecordWhenNothingIsFetched()
{
    PendantFixture pendant;
    QVERIFY(pendant.open());
    FieldbusSettingLib::getInstance()->mtcpMaster = {"10.0.0.1", "502", "4", "2", "3", "9", ""};
    QVERIFY(pendant.controller().faults().setFromText("fetch-fails"));
    PendantFixture::answer({MsgBox::Confirmed});
    QVERIFY(pendant.openPage(Button));
    QCOMPARE(pendant.find<QTouchLineEdit>("le_masterIp")->text(), QString("10.0.0.1"));
    QCOMPARE(pendant.find<QComboBox>("cbb_readEndian")->currentIndex(), 3);
    QCOMPARE(pendant.find<QComboBox>("cbb_writeEndian")->currentIndex(), 0);
}

void TestModbusMaster::userLevelDropsWhileTheAddressIsRefused()
{
    PendantFixture pendant;
    QVERIFY(pendant.open());
    QVERIFY(pendant.openPage(Button));
    MsgBoxScript::onShown([](const MsgBox*) { PendantFixture::dropUserLevel(); });
    emit pendant.find<QTouchLineEdit>("le_masterIp")->valueSetted(QStringLiteral("1"));
    QTRY_VERIFY(!pendant.isOpen());
    QVERIFY(pendant.reopensAfterDrop());
}

PENDANT_TEST_MAIN(TestModbusMaster)
#include "tst_modbusmaster.moc"
