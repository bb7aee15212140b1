#include "BusFileDataManager.h"
#include "Faults.h"
#include "NetPortsFile.h"
#include "PageTest.h"
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

class TestTextSlaves : public PageTest
{
    Q_OBJECT

public:
    using PageTest::PageTest;

private slots:
    void saves_data()
    {
        const Rows<int, bool> row;
        for (const int twin : {0, 1}) {
            row(Twins[twin].name + QString(", free, restarted"), twin, true);
            row(Twins[twin].name + QString(", fixed, restart put off"), twin, false);
        }
    }

    void saves()
    {
        const auto [index, isFree] = Rows<int, bool>::current();
        const Twin& twin = Twins[index];
        QVERIFY(putFiles(twin));
        QVERIFY(controller().setRoleOn("FreeBus", isFree));
        QVERIFY(openTwin(twin));
        auto* endian = findOn<QComboBox>(twin.page, "cbb_largeSmall");
        QCOMPARE(findOn<QLineEdit>(twin.page, twin.address)->text(), QString(twin.shownAddress));
        QCOMPARE(endian->currentIndex(), 0);

        endian->setCurrentIndex(3);
        controller().setRestartAllowed(false); // asked for all the same
        traffic().clear();
        const int pendantRestarts = PendantPower::instance().restartRequests();
        answer({MsgBox::Confirmed, isFree ? MsgBox::Confirmed : MsgBox::Second});
        QVERIFY(pressOn(twin.page, twin.save));

        const QString variant = variantPath(twin, isFree);
        QCOMPARE(messages(), QStringList({Sure, Restart}));
        QCOMPARE(traffic().stores(), QStringList({twin.driver, variant}));
        QCOMPARE(controllerFile(twin.driver), twin.savedFile);
        QCOMPARE(controllerFile(variant), SavedVariant);
        QCOMPARE(controllerFile(variantPath(twin, !isFree)), VariantFile);
        QCOMPARE(traffic().restartRequests(), isFree ? 1 : 0);
        QCOMPARE(PendantPower::instance().restartRequests() - pendantRestarts, isFree ? 1 : 0);
    }

    void profinetFields_data()
    {
        const Rows<QByteArray, QString, int, int> row;
        row("alarm off",
            "RUN_ALWAYS\nMIDDLE_LITTLE_ENDIAN\nPROFIBUS_ADDRESS 0\n"
            "DISABLE_COM_ALARM\n",
            "0", 0, 1);
        row("byte order below both lines keeps the default",
            "PROFIBUS_ADDRESS 125\n;DISABLE_COM_ALARM\nLITTLE_ENDIAN\n", "125", 1, 2);
        row("nothing of its own", "; nothing\n", "1", 0, 2);
    }

    void profinetFields()
    {
        const auto [file, address, alarm, endian] = Rows<QByteArray, QString, int, int>::current();
        const QString page = Twins[0].page;
        QVERIFY(put(Twins[0].driver, file));
        QVERIFY(openTwin(Twins[0]));
        QCOMPARE(text("pfbAddressLE"), address);
        QCOMPARE(chosen("pfbAlarmSwitchCB"), alarm);
        QCOMPARE(findOn<QComboBox>(page, "cbb_largeSmall")->currentIndex(), endian);

        // The keyboard lets 0 to 125 through.
        QVERIFY(enter("pfbAddressLE", "126"));
        QCOMPARE(text("pfbAddressLE"), address);
        QVERIFY(!NumericKeyboardScript::refusals().isEmpty());
        QVERIFY(enter("pfbAddressLE", "124"));
        choose("pfbAlarmSwitchCB", 1 - alarm);
        const QByteArray written = alarm == 1 ? "\nDISABLE_COM_ALARM\n" : "\n;DISABLE_COM_ALARM\n";
        MsgBoxScript::answerByDefault(MsgBox::Confirmed);
        QVERIFY(pressOn(page, "saveBt"));
        const QByteArray saved = controllerFile(Twins[0].driver);
        QCOMPARE(saved.contains("PROFIBUS_ADDRESS 124    \t;"), file.contains("PROFIBUS_ADDRESS"));
        QCOMPARE(saved.contains(written), file.contains("DISABLE_COM_ALARM"));
    }

    void ports_data()
    {
        // hidden: the entries, by number
        const Rows<QByteArray, QString, QString, int, QString> row;
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

    void ports()
    {
        const auto [address, eth2, eth3, port, hidden] =
            Rows<QByteArray, QString, QString, int, QString>::current();
        const QString page = Twins[1].page;
        FileStore& files = controller().files();
        QVERIFY(files.write(Twins[1].driver, "IPADDR " + address + "\nNETMASK 255.0.0.0\n"));
        QVERIFY(writeNetPort(files, "ETH2", {eth2, "255.255.255.2"}));
        QVERIFY(writeNetPort(files, "ETH3", {eth3, "255.255.255.3"}));
        QVERIFY(openTwin(Twins[1]));

        auto* ports = findOn<QComboBox>(page, "localPortIpCB");
        auto* ip = findOn<QLineEdit>(page, "IP_Edit");
        auto* netmask = findOn<QLineEdit>(page, "netmaskEdit");
        const auto* banner = findOn<QLabel>(page, "info_label");
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
        QCOMPARE(messages(), QStringList());
        // Neither a key nor the wheel reaches a port that is not offered.
        for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Home}) {
            QTest::keyClick(ports, key);
            QVERIFY(!hidden.contains(QString::number(ports->currentIndex())));
        }
    }

    // What is chosen is written, "No adapter" as an empty address, and nothing more is asked for it.
    void portIsChosen()
    {
        const Twin& twin = Twins[1];
        QVERIFY(putFiles(twin));
        QVERIFY(writeNetPort(controller().files(), "ETH3", {"10.0.0.3", "255.255.0.0"}));
        QVERIFY(openTwin(twin));
        const struct
        {
            int port;
            QByteArray lines;
        } choices[] = {{1, "IPADDR 10.0.0.3\nNETMASK 255.255.0.0\n"}, {2, "IPADDR \nNETMASK \n"}};
        for (const auto& choice : choices) {
            findOn<QComboBox>(twin.page, "localPortIpCB")->setCurrentIndex(choice.port);
            answer({MsgBox::Confirmed, MsgBox::Second});
            QVERIFY(pressOn(twin.page, twin.save));
            QVERIFY(controllerFile(twin.driver).contains(choice.lines));
        }
        QCOMPARE(messages(), QStringList({Sure, Restart, Sure, Restart}));
    }

    // The address of a port that has none any more is not the port's.
    void portsLostAfterLoading()
    {
        const Twin& twin = Twins[1];
        QVERIFY(putFiles(twin));
        QVERIFY(openTwin(twin));
        auto* ports = findOn<QComboBox>(twin.page, "localPortIpCB");
        const auto shows = [&](const QString& address) {
            return findOn<QLineEdit>(twin.page, "IP_Edit")->text() == address &&
                   findOn(twin.page, "info_label")->isVisible() == address.isEmpty();
        };
        const int used = ports->currentIndex();
        ports->setCurrentIndex(2);
        QVERIFY(!shows(twin.shownAddress));
        ports->setCurrentIndex(used);
        QVERIFY(used < 2 && shows(twin.shownAddress));
        controller().faults().set(Faults::FetchGarbage, -1, "/application/network/netports.xml");
        ports->setCurrentIndex(2);
        ports->setCurrentIndex(used);
        QVERIFY(ports->currentIndex() == 2 && shows({}));
    }

    void profisafeOwnsTheModule()
    {
        const Twin& twin = Twins[0];
        set("io_man.profisafe_status", 1.0);
        set(Word, 8.0);
        QVERIFY(openTwin(twin));
        QVERIFY(!findOn(twin.page, "groupBox_set")->isVisible());
        QVERIFY(!findOn(twin.page, twin.save)->isVisible());
        QCOMPARE(traffic().fetches(), QStringList());
        QVERIFY(findOn<QCheckBox>(twin.page, "cBox")->isChecked());
        QTRY_VERIFY(findOn(twin.page, "led_status")->isEnabled());
    }

    void performance_data()
    {
        // after: the box was pressed
        const Rows<int, QString, int, bool, int> row;
        row("Modbus TCP takes it", 0, "", 2, false, 1);
        row("EtherNet/IP gives it back", 1, "", 4, true, 0);
        row("PROFINET is off", 2, "ProfinetSlave", 4, false, 4);
    }

    void performance()
    {
        const auto [holder, roleOff, before, shown, after] = Rows<int, QString, int, bool, int>::current();
        const Holder& role = Holders[holder];
        set(Word, before);
        if (!roleOff.isEmpty())
            QVERIFY(controller().setRoleOn(roleOff, false));
        QVERIFY(open());
        // A page whose role is off has no button; it may have been open when the role went.
        QVERIFY(roleOff.isEmpty() ? openPage(role.button) : selectPage(role.bus == 2 ? 4 : 1));
        const auto* box = findOn<QCheckBox>(role.page, "cBox");
        QCOMPARE(box->isChecked(), shown);
        QVERIFY(pressOn(role.page, "cBox"));
        QCOMPARE(int(variable(Word)), after);
        QCOMPARE(box->isChecked(), (after & (1 << role.bus)) != 0);
        QCOMPARE(messages(), QStringList());
    }

    // Whoever takes it, the one that had it shows so when its page comes back, and only then.
    void performanceMoves()
    {
        QVERIFY(open());
        const auto box = [this](const Holder& holder) { return findOn<QCheckBox>(holder.page, "cBox"); };
        for (std::size_t round = 0; round < std::size(Holders); ++round) {
            const Holder& loser = Holders[round];
            const Holder& winner = Holders[(round + 1) % std::size(Holders)];
            QVERIFY(openPage(loser.button));
            QVERIFY(pressOn(loser.page, "cBox"));
            QVERIFY(openPage(winner.button));
            QVERIFY(pressOn(winner.page, "cBox"));
            QCOMPARE(int(variable(Word)), 1 << winner.bus);
            QVERIFY(box(loser)->isChecked());
            QVERIFY(openPage(loser.button));
            QVERIFY(!box(loser)->isChecked());
            QCOMPARE(g_lastBusType, -1);
            QVERIFY(openPage(winner.button));
            QVERIFY(box(winner)->isChecked());
            QVERIFY(pressOn(winner.page, "cBox"));
            QCOMPARE(int(variable(Word)), 0);
        }
    }

    // It lost the performance before it had a page, and has it again: that is no reason to untick it.
    void performanceTakenBack()
    {
        set(Word, 1.0);
        QVERIFY(open());
        QVERIFY(openPage("etherNetBtn"));
        QVERIFY(pressOn("EtherNetSettingWidget", "cBox"));
        QVERIFY(pressOn("EtherNetSettingWidget", "cBox"));
        QVERIFY(openPage("btn_mtcp"));
        QVERIFY(pressOn("MtcpSlaveSetting", "cBox"));
        QVERIFY(openPage("etherNetBtn"));
        QVERIFY(openPage("btn_mtcp"));
        QVERIFY(findOn<QCheckBox>("MtcpSlaveSetting", "cBox")->isChecked());
    }

private:
    bool putFiles(const Twin& twin)
    {
        return put(twin.driver, twin.driverFile) && put(variantPath(twin, true), VariantFile) &&
               put(variantPath(twin, false), VariantFile);
    }
    bool openTwin(const Twin& twin) { return openPastStartPage() && openPage(twin.button); }
};

PENDANT_TEST_MAIN(TestTextSlaves, QString())
#include "tst_textslaves.moc"
