#include "ControllerPanel.h"
#include "FileLocations.h"
#include "FileStore.h"
#include "NetPortsFile.h"
#include "SimulatedController.h"
#include "TestMain.h"

#include <QAbstractItemModel>
#include <QCheckBox>
#include <QLineEdit>
#include <QRegularExpression>
#include <QTabWidget>
#include <QTableView>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <QtTest>

// The factory files are what a fresh pendant shows first: whole, readable, and such that every page can save
// them again. The panel that drives the controller is looked at here, too.
class TestPlant : public QObject
{
    Q_OBJECT

private slots:
    void everyFileIsThere()
    {
        const QTemporaryDir folder;
        const FileStore store(folder.path());
        QCOMPARE(store.error(), QString());
        // Every file that the pendant asks the controller for.
        QStringList paths = {FileLocations::FieldbusXml, FileLocations::FieldbusConfigXml,
                             "/application/fidbus/pfs_description.xml", "/application/network/netports.xml"};
        for (const TransferFile& file : FileLocations::transferSet())
            paths << file.controller;
        for (int file = 0; file < int(ConfigFile::Count); ++file)
            paths << FileLocations::of(static_cast<ConfigFile>(file)).controller;
        for (const QString& path : qAsConst(paths)) {
            QByteArray content;
            QVERIFY2(store.read(path, content), qPrintable(path));
            QVERIFY2(!content.isEmpty(), qPrintable(path));
        }
    }

    void everyXmlFileParses()
    {
        const QRegularExpression xml(QStringLiteral("(\\.xml|\\.cfgx|/Fieldbus\\.cfg)$"));
        int count = 0;
        for (const QString& path : FileStore::factoryFiles().filter(xml)) {
            QXmlStreamReader reader(FileStore::factoryFile(path));
            while (!reader.atEnd())
                reader.readNext();
            QVERIFY2(!reader.hasError(), qPrintable(path + QLatin1Char(' ') + reader.errorString()));
            ++count;
        }
        QCOMPARE(count, 21);
    }

    void rolesKeepTheRules()
    {
        const QTemporaryDir folder;
        const SimulatedController controller(folder.path());
        const auto on = [&controller](const char* role) { return controller.roles().isOn(role) ? 1 : 0; };
        QVERIFY(on("EtherNetIPMaster") + on("EtherCatMaster") + on("ProfinetMaster") < 2);
        QVERIFY(on("DeviceNetSlave") + on("DeviceNetMaster") < 2);
        QVERIFY(!on("ModbusTcpMaster") || on("FreeBus"));
        // The bus switch file says the same, or the first restart would rewrite it.
        const QString file =
            QString::fromUtf8(FileStore::factoryFile(QStringLiteral("/application/fidbus/Fieldbus.cfg")));
        QRegularExpression entry(QStringLiteral("name=\"(\\w+)\"[^>]*>\\s*<enable>(\\d)"));
        int entries = 0;
        for (auto match = entry.globalMatch(file); match.hasNext(); ++entries) {
            const QRegularExpressionMatch found = match.next();
            QCOMPARE(found.captured(2).toInt(), on(found.captured(1).toLatin1()));
        }
        QCOMPARE(entries, 12);
    }

    void overrideFile()
    {
        const QByteArray file = FileStore::factoryFile(QStringLiteral("/fa/override.cfg"));
        const QList<QByteArray> lines = file.split('\n');
        QVERIFY(lines.size() >= 80);
        QVERIFY(QString::fromUtf8(file).toUtf8() != file); // comments in other encodings
        QVERIFY(file.contains('\t'));
        const auto slotLines = [&lines](const char* slot) {
            int count = 0;
            for (const QByteArray& line : lines)
                count += line.toLower().contains("ecat_slave") && line.contains(slot) ? 1 : 0;
            return count;
        };
        // No line belongs to both slots, and prose to none.
        QCOMPARE(slotLines(" 1 "), 6);
        QCOMPARE(slotLines(" 2 "), 6);
        QCOMPARE(file.count("ECAT_SLAVE_OFF"), 13);
        // What runs is in use: the pendant warns about a role whose device is switched off.
        QVERIFY(file.contains("\n;ECAT_SLAVE_OFF 1 1005 ;ANYBUS\n"));
        QVERIFY(file.contains("\n;ECAT_SLAVE_OFF 2 3001;EIM_DEVICE\n"));
        QVERIFY(file.contains("\nECAT_SLAVE_OFF 2 3002;PNM_DEVICE\n"));
    }

    void deviceNetScanList()
    {
        const QByteArray file = FileStore::factoryFile(QStringLiteral("/fa/dnmst0.cfg"));
        int next[] = {2001, 2001};
        int devices = 0;
        for (const QByteArray& line : file.split('\n')) {
            const QList<QByteArray> words = line.simplified().split(' ');
            devices += line.startsWith(";   Device ") ? 1 : 0;
            for (const int direction : {0, 1}) {
                if (words[0] == (direction == 0 ? "BLOCK_TO_RBX" : "BLOCK_FROM_RBX")) {
                    QCOMPARE(words.size(), 4);
                    QCOMPARE(words[1].toInt(), next[direction]);
                    QCOMPARE(words[2].toInt(), (words[3].toInt() + 1) / 2);
                    next[direction] += words[2].toInt();
                }
            }
        }
        QCOMPARE(devices, 5);
        for (const int end : next)
            QVERIFY(end > 2001);
    }

    void panelFollowsAndDrives()
    {
        const QTemporaryDir folder;
        SimulatedController controller(folder.path());
        ControllerPanel panel(controller);
        panel.show();
        auto* const tabs = panel.findChild<QTabWidget*>();
        QVERIFY(tabs);

        panel.findChild<QCheckBox*>("servoOn")->click();
        QVERIFY(controller.isServoOn());
        controller.setServoOn(false);
        QTRY_VERIFY(!panel.findChild<QCheckBox*>("servoOn")->isChecked());
        panel.findChild<QCheckBox*>("profisafe")->click();
        QCOMPARE(controller.readVariable("io_man.profisafe_status"), 1.0);

        tabs->setCurrentWidget(panel.findChild<QWidget*>("linkTab"));
        auto* const links = panel.findChild<QTableWidget*>("linkTable");
        QVERIFY(controller.readVariable("ifidbus.ethcat_link_state") == 1.0);
        links->item(1, 2)->setCheckState(Qt::Unchecked);
        QCOMPARE(controller.readVariable("ifidbus.ethcat_link_state"), 0.0);

        tabs->setCurrentWidget(panel.findChild<QWidget*>("variableTab"));
        auto* const variables = panel.findChild<QTableView*>("variableTable")->model();
        const int all = variables->rowCount();
        panel.findChild<QLineEdit*>("variableSearch")->setText(QStringLiteral("DNM_errorcode"));
        QCOMPARE(variables->rowCount(), 16);
        QVERIFY(variables->setData(variables->index(3, 2), 17));
        QCOMPARE(controller.readVariable("ifidbus.dnm_errorcode", 3), 17.0);
        QVERIFY(!variables->setData(variables->index(3, 2), QStringLiteral("seventeen")));
        panel.findChild<QLineEdit*>("variableSearch")->clear();
        QCOMPARE(variables->rowCount(), all);

        tabs->setCurrentWidget(panel.findChild<QWidget*>("faultTab"));
        auto* const faults = panel.findChild<QTableWidget*>("faultTable");
        faults->item(Faults::SendFails, 3)->setText(QStringLiteral("/fa/pfb.cfg"));
        QVERIFY(!controller.faults().isSet(Faults::SendFails));
        faults->item(Faults::SendFails, 2)->setText(QStringLiteral("1"));
        QVERIFY(controller.storeFile("/fa/dns0.cfg", "x"));
        QVERIFY(!controller.storeFile("/fa/pfb.cfg", "x"));
        QTRY_COMPARE(faults->item(Faults::SendFails, 2)->text(), QStringLiteral("0"));

        tabs->setCurrentWidget(panel.findChild<QWidget*>("deviceTab"));
        auto* const bits = panel.findChild<QTableWidget*>("profisafeBits");
        bits->item(9, 1)->setCheckState(Qt::Checked);
        QCOMPARE(int(controller.readVariable("io_man.profisafe_ext_ro", 9)) & 2, 2);
        auto* const address = panel.findChild<QLineEdit*>("ETH3Ip");
        QCOMPARE(address->text(), readNetPort(controller.files(), QStringLiteral("ETH3")).ip);
        address->clear();
        emit address->editingFinished();
        QCOMPARE(readNetPort(controller.files(), QStringLiteral("ETH3")).ip, QString());
        QVERIFY(!readNetPort(controller.files(), QStringLiteral("ETH3")).netmask.isEmpty());
        QVERIFY(!writeNetPort(controller.files(), QStringLiteral("ETH4"), {}));
    }
};

PENDANT_TEST_MAIN(TestPlant)
#include "tst_plant.moc"
