#include "ControllerPanel.h"
#include "FileLocations.h"
#include "FileStore.h"
#include "MappingCheck.h"
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

namespace {

// What the pendant asks the controller for beside the export set.
const char* const OtherFiles[] = {
    "/application/fidbus/Fieldbus.cfg",
    "/FA/override.cfg",
    "/FA/pfb.cfg",
    "/FA/dns-1.cfg",
    "/application/mes/TcpServerConfig.xml",
    "/application/finstcp/FinsTcpConfig.xml",
    "/application/network/netports.xml",
};

struct Quantities
{
    int boolean = 0;
    int integer = 0;
    int real = 0;

    int smallBytes() const { return boolean / 8 + integer * 2; }
    int bytes() const { return smallBytes() + real * 4; }
};

// Largest quantities and byte figures of a bus in one mode; what the pendant would refuse to save.
struct Limit
{
    const char* mode;
    const char* bus;
    Quantities most;
    int mostSmallBytes;
    int leastBytes;
    int mostBytes;
};
const Limit Limits[] = {
    {"free", "ModbusTcpSlave", {2048, 128, 64}, 256, 0, 256},
    {"free", "EtherCatSlave", {1472, 92, 46}, 184, 0, 184},
    {"free", "EtherNetIPSlave", {1600, 100, 50}, 200, 8, 200},
    {"free", "DeviceNetSlave", {1600, 100, 50}, 200, 8, 200},
    {"free", "ProfinetSlave", {1536, 96, 48}, 192, 8, 192},
    {"fixed", "ModbusTcpSlave", {512, 100, 50}, 200, 0, 200},
    {"fixed", "EtherCatSlave", {928, 58, 29}, 116, 0, 116},
    {"fixed", "EtherNetIPSlave", {480, 40, 33}, 80, 4, 132},
    {"fixed", "DeviceNetSlave", {480, 40, 33}, 80, 4, 132},
    {"fixed", "ProfinetSlave", {480, 38, 30}, 76, 4, 124},
    {"", "ModbusTcpMaster", {1968, 123, 61}, 246, 0, 246},
    {"", "EtherCatMaster", {2048, 0, 0}, 256, 0, 256},
    {"", "EtherNetIPMaster", {2048, 0, 0}, 256, 0, 256},
    {"", "ProfinetMaster", {2048, 0, 0}, 256, 0, 256},
    {"", "DeviceNetMaster", {2048, 0, 0}, 256, 0, 256},
};

} // namespace

// The factory files are what a fresh pendant shows first: whole, readable, and such that every page can save
// them again. The panel that drives the controller is looked at here, too.
class TestPlant : public QObject
{
    Q_OBJECT

private slots:
    void everyFileIsThere();
    void everyXmlFileParses();
    void mappingIsWithinTheLimits();
    void mappingAddressesFollowEachOther();
    void rolesKeepTheRules();
    void overrideFile();
    void deviceNetScanList();
    void panelFollowsAndDrives();
};

void TestPlant::everyFileIsThere()
{
    const QTemporaryDir folder;
    const FileStore store(folder.path());
    QCOMPARE(store.error(), QString());
    QStringList required;
    for (const TransferFile& file : FileLocations::transferSet())
        required << file.controller;
    QCOMPARE(required.size(), 36);
    for (const char* path : OtherFiles)
        required << QLatin1String(path);
    for (const QString& path : qAsConst(required)) {
        QByteArray content;
        QVERIFY2(store.read(path, content), qPrintable(path));
        QVERIFY2(!content.isEmpty(), qPrintable(path));
    }
}

void TestPlant::everyXmlFileParses()
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

void TestPlant::mappingIsWithinTheLimits()
{
    const QByteArray file = FileStore::factoryFile(QStringLiteral("/application/fidbus/fieldbus_config.xml"));
    QCOMPARE(mappingFault(file), QString());

    QXmlStreamReader reader(file);
    QString mode;
    QString bus;
    Quantities sum;
    QStringList seen;
    while (!reader.atEnd()) {
        reader.readNext();
        const QXmlStreamAttributes attributes = reader.attributes();
        const QString name = attributes.value(QLatin1String("name")).toString();
        if (reader.isStartElement()) {
            const int quantity = attributes.value(QLatin1String("quantity")).toInt();
            if (reader.name() == QLatin1String("Mode"))
                mode = name;
            else if (reader.name() == QLatin1String("Bus"))
                bus = name;
            else if (reader.name() == QLatin1String("Area"))
                sum = {};
            else if (reader.name() == QLatin1String("User")) {
                const auto type = attributes.value(QLatin1String("type"));
                (type == QLatin1String("Bool")  ? sum.boolean
                 : type == QLatin1String("Int") ? sum.integer
                                                : sum.real) = quantity;
            }
        } else if (reader.isEndElement() && reader.name() == QLatin1String("Area")) {
            seen.append(mode + bus);
            const auto* const limit =
                std::find_if(std::begin(Limits), std::end(Limits), [&](const Limit& row) {
                    return bus == QLatin1String(row.bus) && (!*row.mode || mode == QLatin1String(row.mode));
                });
            const QByteArray place = (mode + QLatin1Char(' ') + bus).toUtf8();
            QVERIFY2(limit != std::end(Limits), place);
            QVERIFY2(sum.boolean <= limit->most.boolean && sum.integer <= limit->most.integer &&
                         sum.real <= limit->most.real && sum.smallBytes() <= limit->mostSmallBytes,
                     place);
            QVERIFY2(sum.bytes() >= limit->leastBytes && sum.bytes() <= limit->mostBytes, place);
            QVERIFY2(sum.boolean % 16 == 0, place);
            if (bus == QLatin1String("ProfinetSlave")) {
                // With the system's 68 bytes in fixed mode, 20 of them Bool and Int.
                const bool fixed = mode == QLatin1String("fixed");
                QVERIFY2((sum.bytes() + (fixed ? 68 : 0)) % 8 == 0, place);
                QVERIFY2((sum.smallBytes() + (fixed ? 20 : 0)) % 8 == 0, place);
            }
        }
    }
    seen.removeDuplicates();
    QCOMPARE(seen.size(), 20);
}

void TestPlant::mappingAddressesFollowEachOther()
{
    QXmlStreamReader reader(
        FileStore::factoryFile(QStringLiteral("/application/fidbus/fieldbus_config.xml")));
    QMap<QString, QPair<int, int>> blocks; // of the Modbus TCP slave
    QString mode;
    QString bus;
    QMap<int, int> rows; // start and end
    while (!reader.atEnd()) {
        reader.readNext();
        const QXmlStreamAttributes attributes = reader.attributes();
        const int start = attributes.value(QLatin1String("start")).toInt();
        const int end = attributes.value(QLatin1String("end")).toInt();
        if (reader.isStartElement() && reader.name() == QLatin1String("Mode"))
            mode = attributes.value(QLatin1String("name")).toString();
        if (reader.isStartElement() && reader.name() == QLatin1String("Bus"))
            bus = attributes.value(QLatin1String("name")).toString();
        if (reader.isStartElement() && reader.name() == QLatin1String("Area")) {
            rows.clear();
            if (bus == QLatin1String("ModbusTcpSlave"))
                blocks[mode + attributes.value(QLatin1String("direction"))] = {start, end};
        }
        if (reader.isStartElement() &&
            (reader.name() == QLatin1String("User") || reader.name() == QLatin1String("System")) &&
            attributes.hasAttribute(QLatin1String("start")))
            rows.insert(start, end);
        if (reader.isEndElement() && reader.name() == QLatin1String("Area")) {
            for (auto row = rows.cbegin(); row != rows.cend() && std::next(row) != rows.cend(); ++row)
                QCOMPARE(std::next(row).key(), row.value() + 1);
        }
    }
    for (const char* name : {"free", "fixed"}) {
        const QString key = QLatin1String(name);
        QVERIFY(blocks[key + "wo"].second < blocks[key + "ro"].first);
        QVERIFY(blocks[key + "ro"].second < blocks[key + "rw"].first);
        QVERIFY(blocks[key + "rw"].second <= 41000);
    }
}

void TestPlant::rolesKeepTheRules()
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

void TestPlant::overrideFile()
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

void TestPlant::deviceNetScanList()
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

void TestPlant::panelFollowsAndDrives()
{
    const QTemporaryDir folder;
    SimulatedController controller(folder.path());
    ControllerPanel panel(controller);
    panel.show();
    auto* const tabs = panel.findChild<QTabWidget*>();
    QVERIFY(tabs);

    panel.findChild<QCheckBox*>(QStringLiteral("servoOn"))->click();
    QVERIFY(controller.isServoOn());
    controller.setServoOn(false);
    QTRY_VERIFY(!panel.findChild<QCheckBox*>(QStringLiteral("servoOn"))->isChecked());
    panel.findChild<QCheckBox*>(QStringLiteral("profisafe"))->click();
    QCOMPARE(controller.readVariable(QStringLiteral("io_man.profisafe_status")), 1.0);

    tabs->setCurrentWidget(panel.findChild<QWidget*>("linkTab"));
    auto* const links = panel.findChild<QTableWidget*>(QStringLiteral("linkTable"));
    QVERIFY(controller.readVariable(QStringLiteral("ifidbus.ethcat_link_state")) == 1.0);
    links->item(1, 2)->setCheckState(Qt::Unchecked);
    QCOMPARE(controller.readVariable(QStringLiteral("ifidbus.ethcat_link_state")), 0.0);

    tabs->setCurrentWidget(panel.findChild<QWidget*>("variableTab"));
    auto* const variables = panel.findChild<QTableView*>(QStringLiteral("variableTable"))->model();
    const int all = variables->rowCount();
    panel.findChild<QLineEdit*>(QStringLiteral("variableSearch"))->setText(QStringLiteral("DNM_errorcode"));
    QCOMPARE(variables->rowCount(), 16);
    QVERIFY(variables->setData(variables->index(3, 2), 17));
    QCOMPARE(controller.readVariable(QStringLiteral("ifidbus.dnm_errorcode"), 3), 17.0);
    QVERIFY(!variables->setData(variables->index(3, 2), QStringLiteral("seventeen")));
    panel.findChild<QLineEdit*>(QStringLiteral("variableSearch"))->clear();
    QCOMPARE(variables->rowCount(), all);

    tabs->setCurrentWidget(panel.findChild<QWidget*>("faultTab"));
    auto* const faults = panel.findChild<QTableWidget*>(QStringLiteral("faultTable"));
    faults->item(Faults::SendFails, 3)->setText(QStringLiteral("/fa/pfb.cfg"));
    QVERIFY(!controller.faults().isSet(Faults::SendFails));
    faults->item(Faults::SendFails, 2)->setText(QStringLiteral("1"));
    QVERIFY(controller.storeFile(QStringLiteral("/fa/dns0.cfg"), "x"));
    QVERIFY(!controller.storeFile(QStringLiteral("/fa/pfb.cfg"), "x"));
    QTRY_COMPARE(faults->item(Faults::SendFails, 2)->text(), QStringLiteral("0"));

    tabs->setCurrentWidget(panel.findChild<QWidget*>("deviceTab"));
    auto* const bits = panel.findChild<QTableWidget*>(QStringLiteral("profisafeBits"));
    bits->item(9, 1)->setCheckState(Qt::Checked);
    QCOMPARE(int(controller.readVariable(QStringLiteral("io_man.profisafe_ext_ro"), 9)) & 2, 2);
    auto* const address = panel.findChild<QLineEdit*>(QStringLiteral("ETH3Ip"));
    QCOMPARE(address->text(), readNetPort(controller.files(), QStringLiteral("ETH3")).ip);
    address->clear();
    emit address->editingFinished();
    QCOMPARE(readNetPort(controller.files(), QStringLiteral("ETH3")).ip, QString());
    QVERIFY(!readNetPort(controller.files(), QStringLiteral("ETH3")).netmask.isEmpty());
    QVERIFY(!writeNetPort(controller.files(), QStringLiteral("ETH4"), {}));
}

PENDANT_TEST_MAIN(TestPlant)
#include "tst_plant.moc"
