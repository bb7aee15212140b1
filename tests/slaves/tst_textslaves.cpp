#include "BusFileDataManager.h"
#include "Faults.h"
#include "NetPortsFile.h"
#include "PendantFixture.h"
#include "PendantPower.h"
#include "QTouchLineEdit.h"
#include "Texts.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QListView>
#include <QPushButton>

namespace {

// What the two pages differ in, as seen from outside.
struct Twin
{
    const char* name;
    const char* page;
    const char* button;
    const char* save;
    const char* driver;
    const char* variant; // %1: "free" or "fixed"
    const char* address; // widget that shows the address of the file
    QByteArray driverFile;
    QByteArray savedFile; // with the byte order MIDDLE_BIG_ENDIAN
    const char* shownAddress;
};

const Twin Twins[] = {
    {"PROFINET", "Pfb_PfnSettingWidget", "pfbPfnBtn", "saveBt", "/FA/pfb.cfg",
     "/application/fidbus/%1/pfb_%1.cfg", "pfbAddressLE",
     "; c\xe9ll\n\tBOARD 0\nRUN_ALWAYS\nLITTLE_ENDIAN\nPROFIBUS_ADDRESS 7 ;x\n;DISABLE_COM_ALARM\n",
     "; c\xe9ll\nBOARD 0\nRUN_ALWAYS\nMIDDLE_BIG_ENDIAN\n"
     "PROFIBUS_ADDRESS 7    \t;Profibus node number (exclude dip-switch set)\n;DISABLE_COM_ALARM\n",
     "7"},
    {"EtherNet/IP", "EtherNetSettingWidget", "etherNetBtn", "saveButton", "/FA/dns-1.cfg",
     "/application/fidbus/%1/dns_%1.cfg", "IP_Edit",
     "; c\xe9ll\n\tTTL 1\nIPADDR 192.168.1.22\nNETMASK 255.255.0.0\nRUN_ALWAYS\nLITTLE_ENDIAN\n",
     "; c\xe9ll\nTTL 1\nIPADDR 192.168.1.22\nNETMASK 255.255.255.0\nRUN_ALWAYS\nMIDDLE_BIG_ENDIAN\n",
     "192.168.1.22"},
};

const QByteArray VariantFile = "; variant\n\tX\nRUN_ALWAYS\nBIG_ENDIAN\nPROFIBUS_ADDRESS 9\nIPADDR 9\n";
const QByteArray SavedVariant = "; variant\nX\nRUN_ALWAYS\nMIDDLE_BIG_ENDIAN\nPROFIBUS_ADDRESS 9\nIPADDR 9\n";

using Texts::Restart;
using Texts::Sure;
const QString Word = QStringLiteral("ifidbus.performance_switch");

QString variantPath(const Twin& twin, bool isFree)
{
    return QString(QLatin1String(twin.variant)).arg(isFree ? QLatin1String("free") : QLatin1String("fixed"));
}

bool putFiles(PendantFixture& pendant, const Twin& twin)
{
    FileStore& files = pendant.controller().files();
    return files.write(twin.driver, twin.driverFile) && files.write(variantPath(twin, true), VariantFile) &&
           files.write(variantPath(twin, false), VariantFile);
}

// The roles that can hold the communication performance.
struct Holder
{
    const char* name;
    const char* page;
    const char* button;
    int bus;
};
constexpr Holder Holders[] = {
    {"Modbus TCP", "MtcpSlaveSetting", "btn_mtcp", 0},
    {"EtherNet/IP", "EtherNetSettingWidget", "etherNetBtn", 2},
    {"PROFINET", "Pfb_PfnSettingWidget", "pfbPfnBtn", 3},
};

} // namespace

Q_DECLARE_METATYPE(Twin)

class TestTextSlaves : public QObject
{
    Q_OBJECT

private slots:
    void saves_data();
    void saves();
    void profinetFields_data();
    void profinetFields();
    void ports_data();
    void ports();
    void portIsChosen();
    void portsLostAfterLoading();
    void portsWithoutAddress();
    void profisafeOwnsTheModule();
    void lights();
    void performance_data();
    void performance();
    void performanceMoves();
    void performanceTakenBack();
};

void TestTextSlaves::saves_data()
{
    QTest::addColumn<Twin>("twin");
    QTest::addColumn<bool>("isFree");
    QTest::addColumn<QVector<int>>("answers");
    for (const Twin& twin : Twins) {
        const auto row = [&twin](const char* what, bool isFree, const QVector<int>& answers) {
            QTest::addRow("%s, %s", twin.name, what) << twin << isFree << answers;
        };
        row("free, restarted", true, {MsgBox::Confirmed, MsgBox::Confirmed});
        row("fixed, restart put off", false, {MsgBox::Confirmed, MsgBox::Second});
        row("not confirmed", true, {MsgBox::Second});
    }
}

void TestTextSlaves::saves()
{
    QFETCH(Twin, twin);
    QFETCH(bool, isFree);
    QFETCH(QVector<int>, answers);
    const bool saved = answers[0] == MsgBox::Confirmed;
    const bool restarted = saved && answers[1] == MsgBox::Confirmed;
    PendantFixture pendant;
    QVERIFY(putFiles(pendant, twin));
    QVERIFY(pendant.controller().setRoleOn("FreeBus", isFree));
    QVERIFY(pendant.open());
    QVERIFY(pendant.openPage(twin.button));
    auto* endian = pendant.findOn<QComboBox>(twin.page, "cbb_largeSmall");
    QCOMPARE(pendant.findOn<QLineEdit>(twin.page, twin.address)->text(), QString(twin.shownAddress));
    QCOMPARE(endian->currentIndex(), 0);

    endian->setCurrentIndex(3);
    pendant.controller().setRestartAllowed(false); // asked for all the same
    pendant.controller().traffic().clear();
    const int pendantRestarts = PendantPower::instance().restartRequests();
    for (const int answer : answers)
        PendantFixture::answer({answer});
    QVERIFY(pendant.pressOn(twin.page, twin.save));

    const QString variant = variantPath(twin, isFree);
    const Traffic& traffic = pendant.controller().traffic();
    QCOMPARE(pendant.messages(), saved ? QStringList({Sure, Restart}) : QStringList(Sure));
    QCOMPARE(traffic.stores(), saved ? QStringList({twin.driver, variant}) : QStringList());
    QCOMPARE(pendant.controllerFile(twin.driver), saved ? twin.savedFile : twin.driverFile);
    QCOMPARE(pendant.controllerFile(variant), saved ? SavedVariant : VariantFile);
    QCOMPARE(pendant.controllerFile(variantPath(twin, !isFree)), VariantFile);
    QCOMPARE(traffic.restartRequests(), restarted ? 1 : 0);
    QCOMPARE(PendantPower::instance().restartRequests() - pendantRestarts, restarted ? 1 : 0);
}

void TestTextSlaves::profinetFields_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("address");
    QTest::addColumn<int>("alarm");
    QTest::addColumn<int>("endian");
    QTest::newRow("alarm off") << QByteArray("RUN_ALWAYS\nMIDDLE_LITTLE_ENDIAN\nPROFIBUS_ADDRESS 0\n"
                                             "DISABLE_COM_ALARM\n")
                               << "0" << 0 << 1;
    QTest::newRow("byte order below both lines keeps the default")
        << QByteArray("PROFIBUS_ADDRESS 125\n;DISABLE_COM_ALARM\nLITTLE_ENDIAN\n") << "125" << 1 << 2;
    QTest::newRow("nothing of its own") << QByteArray("; nothing\n") << "1" << 0 << 2;
}

void TestTextSlaves::profinetFields()
{
    QFETCH(QByteArray, file);
    const QString page = Twins[0].page;
    PendantFixture pendant;
    QVERIFY(pendant.put(Twins[0].driver, file));
    QVERIFY(pendant.open());
    QVERIFY(pendant.openPage(Twins[0].button));
    auto* address = pendant.findOn<QTouchLineEdit>(page, "pfbAddressLE");
    auto* alarm = pendant.findOn<QComboBox>(page, "pfbAlarmSwitchCB");
    QTEST(address->text(), "address");
    QTEST(alarm->currentIndex(), "alarm");
    QTEST(pendant.findOn<QComboBox>(page, "cbb_largeSmall")->currentIndex(), "endian");

    // The keyboard lets 0 to 125 through.
    QVERIFY(pendant.enter("pfbAddressLE", "126"));
    QTEST(address->text(), "address");
    QVERIFY(!NumericKeyboardScript::refusals().isEmpty());
    QVERIFY(pendant.enter("pfbAddressLE", "124"));
    alarm->setCurrentIndex(1 - alarm->currentIndex());
    const QByteArray written =
        alarm->currentIndex() == 0 ? "\nDISABLE_COM_ALARM\n" : "\n;DISABLE_COM_ALARM\n";
    MsgBoxScript::answerByDefault(MsgBox::Confirmed);
    QVERIFY(pendant.pressOn(page, "saveBt"));
    const QByteArray saved = pendant.controllerFile(Twins[0].driver);
    QCOMPARE(saved.contains("PROFIBUS_ADDRESS 124    \t;"), file.contains("PROFIBUS_ADDRESS"));
    QCOMPARE(saved.contains(written), file.contains("DISABLE_COM_ALARM"));
}

void TestTextSlaves::ports_data()
{
    QTest::addColumn<QByteArray>("address");
    QTest::addColumn<QString>("eth2");
    QTest::addColumn<QString>("eth3");
    QTest::addColumn<int>("port");
    QTest::addColumn<QString>("hidden"); // the entries, by number
    const auto row = [](const char* name, const char* address, const char* eth2, const char* eth3, int port,
                        const char* hidden) {
        QTest::newRow(name) << QByteArray(address) << eth2 << eth3 << port << hidden;
    };
    row("ETH2", "10.0.0.2", "10.0.0.2", "10.0.0.3", 0, "");
    row("ETH3", "10.0.0.3", "10.0.0.2", "10.0.0.3", 1, "");
    row("both ports alike: the first", "10.0.0.2", "10.0.0.2", "10.0.0.2", 0, "");
    row("a part of an address", "10.0.0.", "10.0.0.2", "10.0.0.3", 2, "");
    row("a comment behind it", "10.0.0.2 ;x", "10.0.0.2", "10.0.0.3", 2, "");
    row("a tab around it", "\t10.0.0.2", "10.0.0.2", "10.0.0.3", 0, "");
    row("no address", "", "10.0.0.2", "10.0.0.3", 2, "");
    row("no address, and ports without one", "", "", "", 2, "01");
    row("ETH2 emptied", "10.0.0.3", "", "10.0.0.3", 1, "0");
    row("ETH3 is no address", "10.0.0.3", "10.0.0.2", "dhcp", 2, "1");
}

void TestTextSlaves::ports()
{
    QFETCH(QByteArray, address);
    QFETCH(QString, eth2);
    QFETCH(QString, eth3);
    QFETCH(int, port);
    QFETCH(QString, hidden);
    const QString page = Twins[1].page;
    PendantFixture pendant;
    FileStore& files = pendant.controller().files();
    QVERIFY(files.write(Twins[1].driver, "IPADDR " + address + "\nNETMASK 255.0.0.0\n"));
    QVERIFY(writeNetPort(files, "ETH2", {eth2, "255.255.255.2"}));
    QVERIFY(writeNetPort(files, "ETH3", {eth3, "255.255.255.3"}));
    QVERIFY(pendant.open());
    QVERIFY(pendant.openPage(Twins[1].button));

    auto* ports = pendant.findOn<QComboBox>(page, "localPortIpCB");
    auto* ip = pendant.findOn<QLineEdit>(page, "IP_Edit");
    auto* netmask = pendant.findOn<QLineEdit>(page, "netmaskEdit");
    const auto* banner = pendant.findOn<QLabel>(page, "info_label");
    QCOMPARE(ports->currentIndex(), port);
    QCOMPARE(banner->isVisible(), port == 2);
    // The page shows the port's netmask, whatever the file has.
    QCOMPARE(ip->text(), QStringList({eth2, eth3, ""})[port]);
    QCOMPARE(netmask->text(), QStringList({"255.255.255.2", "255.255.255.3", ""})[port]);
    if (port == 2) {
        QVERIFY(banner->height() >= banner->heightForWidth(banner->width()));
        QVERIFY(banner->geometry().right() <= banner->parentWidget()->width());
    }
    const auto* list = qobject_cast<QListView*>(ports->view());
    for (int index = 0; index < ports->count(); ++index) {
        const bool isHidden = hidden.contains(QString::number(index));
        QCOMPARE(list->isRowHidden(index), isHidden);
        QCOMPARE(ports->model()->flags(ports->model()->index(index, 0)).testFlag(Qt::ItemIsEnabled),
                 !isHidden);
    }
    QCOMPARE(pendant.messages(), QStringList());
}

// What is chosen is written, "No adapter" as an empty address, and nothing more is asked for it.
void TestTextSlaves::portIsChosen()
{
    const Twin& twin = Twins[1];
    PendantFixture pendant;
    QVERIFY(putFiles(pendant, twin));
    QVERIFY(writeNetPort(pendant.controller().files(), "ETH3", {"10.0.0.3", "255.255.0.0"}));
    QVERIFY(pendant.open());
    QVERIFY(pendant.openPage(twin.button));
    const struct
    {
        int port;
        QByteArray lines;
    } choices[] = {{1, "IPADDR 10.0.0.3\nNETMASK 255.255.0.0\n"}, {2, "IPADDR \nNETMASK \n"}};
    for (const auto& choice : choices) {
        pendant.findOn<QComboBox>(twin.page, "localPortIpCB")->setCurrentIndex(choice.port);
        PendantFixture::answer({MsgBox::Confirmed, MsgBox::Second});
        QVERIFY(pendant.pressOn(twin.page, twin.save));
        QVERIFY(pendant.controllerFile(twin.driver).contains(choice.lines));
    }
    QCOMPARE(pendant.messages(), QStringList({Sure, Restart, Sure, Restart}));
}

void TestTextSlaves::portsLostAfterLoading()
{
    const Twin& twin = Twins[1];
    PendantFixture pendant;
    QVERIFY(putFiles(pendant, twin));
    QVERIFY(pendant.open());
    QVERIFY(pendant.openPage(twin.button));
    auto* ports = pendant.findOn<QComboBox>(twin.page, "localPortIpCB");
    const QString address = pendant.findOn<QLineEdit>(twin.page, "IP_Edit")->text();
    const int used = ports->currentIndex();
    QVERIFY(used < 2 && !address.isEmpty());
    ports->setCurrentIndex(2);
    QCOMPARE(pendant.findOn<QLineEdit>(twin.page, "IP_Edit")->text(), QString());
    ports->setCurrentIndex(used);
    QCOMPARE(pendant.findOn<QLineEdit>(twin.page, "IP_Edit")->text(), address);
    QVERIFY(!pendant.findOn(twin.page, "info_label")->isVisible());
    // The address of a port that has none any more is not the port's.
    pendant.controller().faults().set(Faults::FetchGarbage, -1, "/application/network/netports.xml");
    ports->setCurrentIndex(2);
    ports->setCurrentIndex(used);
    QCOMPARE(ports->currentIndex(), 2);
    QCOMPARE(pendant.findOn<QLineEdit>(twin.page, "IP_Edit")->text(), QString());
    QVERIFY(pendant.findOn(twin.page, "info_label")->isVisible());
}

void TestTextSlaves::portsWithoutAddress()
{
    const Twin& twin = Twins[1];
    PendantFixture pendant;
    QVERIFY(putFiles(pendant, twin));
    QVERIFY(pendant.open());
    pendant.controller().faults().set(Faults::FetchGarbage, -1, "/application/network/netports.xml");
    QVERIFY(pendant.openPage(twin.button));
    auto* ports = pendant.findOn<QComboBox>(twin.page, "localPortIpCB");
    QCOMPARE(ports->currentIndex(), 2);
    QVERIFY(pendant.findOn(twin.page, "info_label")->isVisible());
    // Neither a key nor the wheel reaches a port that is not offered.
    QTest::keyClick(ports, Qt::Key_Up);
    QTest::keyClick(ports, Qt::Key_Home);
    QCOMPARE(ports->currentIndex(), 2);
    QCOMPARE(pendant.findOn<QLineEdit>(twin.page, "IP_Edit")->text(), QString());
}

void TestTextSlaves::profisafeOwnsTheModule()
{
    const Twin& twin = Twins[0];
    PendantFixture pendant;
    pendant.controller().variables().set("io_man.profisafe_status", 1.0);
    pendant.controller().variables().set(Word, 8.0);
    QVERIFY(pendant.open());
    pendant.controller().traffic().clear();
    QVERIFY(pendant.openPage(twin.button));
    QVERIFY(!pendant.findOn(twin.page, "groupBox_set")->isVisible());
    QVERIFY(!pendant.findOn(twin.page, twin.save)->isVisible());
    QCOMPARE(pendant.controller().traffic().fetches(), QStringList());
    QVERIFY(pendant.findOn<QCheckBox>(twin.page, "cBox")->isChecked());
    QTRY_VERIFY(pendant.findOn(twin.page, "led_status")->isEnabled());
}

void TestTextSlaves::lights()
{
    PendantFixture pendant;
    const QString state = QStringLiteral("ifidbus.commun_state");
    QVERIFY(pendant.open());
    for (const Twin& twin : Twins) {
        const int bit = &twin == Twins ? 8 : 4;
        QVERIFY(pendant.openPage(twin.button));
        const auto* light = pendant.findOn<QLabel>(twin.page, "led_status");
        for (const int value : {bit, 0, bit | 1, 255 - bit, -1, bit - 1}) {
            pendant.controller().variables().set(state, value);
            QTRY_COMPARE(light->isEnabled(), (value & bit) != 0);
        }
    }
}

void TestTextSlaves::performance_data()
{
    QTest::addColumn<int>("holder");
    QTest::addColumn<QString>("roleOff");
    QTest::addColumn<int>("before");
    QTest::addColumn<bool>("shown");
    QTest::addColumn<int>("after"); // the box was pressed
    QTest::newRow("Modbus TCP takes it") << 0 << "" << 2 << false << 1;
    QTest::newRow("EtherNet/IP gives it back") << 1 << "" << 4 << true << 0;
    QTest::newRow("PROFINET is off") << 2 << "ProfinetSlave" << 4 << false << 4;
}

void TestTextSlaves::performance()
{
    QFETCH(int, holder);
    QFETCH(QString, roleOff);
    QFETCH(int, before);
    QFETCH(bool, shown);
    QFETCH(int, after);
    const Holder& role = Holders[holder];
    PendantFixture pendant;
    pendant.controller().variables().set(Word, before);
    if (!roleOff.isEmpty())
        QVERIFY(pendant.controller().setRoleOn(roleOff, false));
    QVERIFY(pendant.open());
    // A page whose role is off has no button; it may have been open when the role went.
    QVERIFY(roleOff.isEmpty() ? pendant.openPage(role.button) : pendant.selectPage(role.bus == 2 ? 4 : 1));
    const auto* box = pendant.findOn<QCheckBox>(role.page, "cBox");
    QCOMPARE(box->isChecked(), shown);
    QVERIFY(pendant.pressOn(role.page, "cBox"));
    QCOMPARE(int(pendant.variable(Word)), after);
    QCOMPARE(box->isChecked(), (after & (1 << role.bus)) != 0);
    QCOMPARE(pendant.messages(), QStringList());
}

// Whoever takes it, the one that had it shows so when its page comes back, and only then.
void TestTextSlaves::performanceMoves()
{
    PendantFixture pendant;
    QVERIFY(pendant.open());
    const auto box = [&pendant](const Holder& holder) {
        return pendant.findOn<QCheckBox>(holder.page, "cBox");
    };
    for (std::size_t round = 0; round < std::size(Holders); ++round) {
        const Holder& loser = Holders[round];
        const Holder& winner = Holders[(round + 1) % std::size(Holders)];
        QVERIFY(pendant.openPage(loser.button));
        QVERIFY(pendant.pressOn(loser.page, "cBox"));
        QVERIFY(pendant.openPage(winner.button));
        QVERIFY(pendant.pressOn(winner.page, "cBox"));
        QCOMPARE(int(pendant.variable(Word)), 1 << winner.bus);
        QVERIFY(box(loser)->isChecked());
        QVERIFY(pendant.openPage(loser.button));
        QVERIFY(!box(loser)->isChecked());
        QCOMPARE(g_lastBusType, -1);
        QVERIFY(pendant.openPage(winner.button));
        QVERIFY(box(winner)->isChecked());
        QVERIFY(pendant.pressOn(winner.page, "cBox"));
        QCOMPARE(int(pendant.variable(Word)), 0);
    }
}

// It lost the performance before it had a page, and has it again: that is no reason to untick it.
void TestTextSlaves::performanceTakenBack()
{
    PendantFixture pendant;
    pendant.controller().variables().set(Word, 1.0);
    QVERIFY(pendant.open());
    QVERIFY(pendant.openPage("etherNetBtn"));
    QVERIFY(pendant.pressOn("EtherNetSettingWidget", "cBox"));
    QVERIFY(pendant.pressOn("EtherNetSettingWidget", "cBox"));
    QVERIFY(pendant.openPage("btn_mtcp"));
    QVERIFY(pendant.pressOn("MtcpSlaveSetting", "cBox"));
    QVERIFY(pendant.openPage("etherNetBtn"));
    QVERIFY(pendant.openPage("btn_mtcp"));
    QVERIFY(pendant.findOn<QCheckBox>("MtcpSlaveSetting", "cBox")->isChecked());
}

PENDANT_TEST_MAIN(TestTextSlaves)
#include "tst_textslaves.moc"
