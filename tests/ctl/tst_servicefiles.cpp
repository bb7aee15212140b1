// The controller's files that the bus file data service, the module and the network own: read and rewritten
// as bytes.

#include "BusMappingFile.h"
#include "MappingFile.h"
#include "PortAddressFile.h"
#include "ProfisafeFile.h"
#include "RoleListFile.h"
#include "SlaveModuleFile.h"

#include <QFile>
#include <QtTest>

#include <array>

namespace {

using Reader = QString (*)(const QByteArray&);

const QString Refused = QStringLiteral("refused");

QString roles(const QByteArray& bytes)
{
    std::vector<ListedRole> listed;
    if (!RoleListFile::read(bytes, listed))
        return Refused;
    QStringList words;
    for (const ListedRole& role : listed)
        words << role.name + (role.on ? "+" : "-");
    return words.join(' ');
}

QString ports(const QByteArray& bytes)
{
    std::vector<PortAddress> found;
    if (!PortAddressFile::read(bytes, found))
        return Refused;
    QStringList words;
    for (const PortAddress& port : found)
        words << QStringList{port.name, port.ip, port.netmask}.join('/');
    return words.join(' ');
}

QString profisafe(const QByteArray& bytes)
{
    ProfisafeDescription bits;
    if (!ProfisafeFile::read(bytes, bits))
        return Refused;
    QStringList words;
    for (auto bit = bits.outputs.cbegin(); bit != bits.outputs.cend(); ++bit)
        words << QString("o%1=%2").arg(bit.key()).arg(*bit);
    for (auto bit = bits.inputs.cbegin(); bit != bits.inputs.cend(); ++bit)
        words << QString("i%1=%2").arg(bit.key()).arg(*bit);
    return words.join(' ');
}

QString module(const QByteArray& bytes)
{
    QString endian;
    return SlaveModuleFile::read(bytes, endian) ? endian : Refused;
}

/// The EtherNet/IP slave's read-only Bools in the free mode.
QString mapping(const QByteArray& bytes)
{
    MappingConfig config;
    if (!MappingFile::read(bytes, config))
        return Refused;
    const MappingRow& row = config.buses[MappingConfig::Free][2].areas[ReadOnlyArea].user[MappedBool];
    return QString("%1 %2 %3").arg(row.quantity).arg(row.start).arg(row.end);
}

QByteArray mapped(const QByteArray& row, const QByteArray& area = R"( direction="ro")")
{
    return R"(<FieldbusConfig><Mode name="free"><Bus name="EtherNetIPSlave"><Area)" + area +
           "><User type=\"Bool\"" + row + "/></Area></Bus></Mode></FieldbusConfig>";
}

QByteArray plant(const QString& path)
{
    QFile file(PLANT_DIRECTORY "/" + path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

const QString MappingPath = QStringLiteral("application/fidbus/fieldbus_config.xml");

} // namespace

Q_DECLARE_METATYPE(Reader)

class ServiceFilesTest : public QObject
{
    Q_OBJECT

private slots:
    void reads_data()
    {
        QTest::addColumn<Reader>("reader");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char* name, Reader reader, const QByteArray& bytes,
                            const QString& expected) { QTest::newRow(name) << reader << bytes << expected; };
        row("roles: only 1 is on, the first of a name counts", roles,
            R"(<Fieldbus><Bus name="A" enable="1"/><Bus name="B" enable="2"/><Bus enable="1"/><Bus name="C"/>)"
            R"(<Other name="D" enable="1"/><Bus name="A" enable="0"/><Bus name="a" enable="1"/></Fieldbus>)",
            "A+ B- C- a+");
        row("roles: another root", roles, R"(<FieldbusConfig><Bus name="A" enable="1"/></FieldbusConfig>)",
            Refused);
        row("roles: cut short", roles, R"(<Fieldbus><Bus name="A" enable="1"/>)", Refused);
        row("roles: a NUL", roles, QByteArray("<Fieldbus/>\0", 12), Refused);
        row("roles: empty", roles, {}, Refused);
        row("roles: too large", roles, "<Fieldbus>" + QByteArray(4 * 1024 * 1024, ' ') + "</Fieldbus>",
            Refused);
        row("ports: an address may be missing", ports,
            R"(<NetPorts><Port name="ETH2" ip="1.2.3.4" netmask="255.0.0.0"/><Port name="ETH3" ip=""/><Port ip="9"/>)"
            R"(<Port name="ETH2" ip="5.6.7.8"/></NetPorts>)",
            "ETH2/1.2.3.4/255.0.0.0 ETH3//");
        row("ports: another root", ports, "<Ports/>", Refused);
        row("bits: beyond the block, no number, twice", profisafe,
            R"(<ProfiSafe><Output><Bit number="127" text="z"/><Bit number="128" text="y"/><Bit number="-1" text="x"/>)"
            R"(<Bit number="0x1" text="w"/><Bit number="3" text="a"/><Bit number="3" text="b"/></Output>)"
            R"(<Input><Bit number="0"/></Input></ProfiSafe>)",
            "o3=b o127=z i0=");
        row("module: any case, blanks", module, "<FbSlave><Endian> BIGENDIAN\n</Endian></FbSlave>",
            "bigEndian");
        row("module: none", module, "<FbSlave><Other/></FbSlave>", Refused);
        row("module: another word", module, "<FbSlave><Endian>middle</Endian></FbSlave>", Refused);
        row("mapping: a row", mapping, mapped(R"( quantity="65535" start="0" end="4294967294")"),
            "65535 0 4294967294");
        row("mapping: no address", mapping, mapped(R"( quantity="0")"), "0 4294967295 4294967295");
        row("mapping: no quantity", mapping, mapped(""), Refused);
        row("mapping: hexadecimal", mapping, mapped(R"( quantity="0x10")"), Refused);
        row("mapping: below 0", mapping, mapped(R"( quantity="-1")"), Refused);
        row("mapping: quantity too large", mapping, mapped(R"( quantity="65536")"), Refused);
        row("mapping: address too large", mapping, mapped(R"( quantity="8" start="4294967295")"), Refused);
        row("mapping: 64 bits run over", mapping, mapped(R"( quantity="18446744073709551624")"), Refused);
        row("mapping: address of the area", mapping, mapped(R"( quantity="8")", R"( direction="ro" end="x")"),
            Refused);
        row("mapping: another direction", mapping, mapped(R"( quantity="8")", R"( direction="RO")"),
            "0 4294967295 4294967295");
        row("mapping: the first of a type counts", mapping,
            mapped(R"( quantity="8"/><User type="Int" quantity="1"/><User type="Bool" quantity="x")"),
            "8 4294967295 4294967295");
        row("mapping: nothing but the root", mapping, "<FieldbusConfig/>", "0 4294967295 4294967295");
    }
    void reads()
    {
        QFETCH(Reader, reader);
        QFETCH(QByteArray, bytes);
        QTEST(reader(bytes), "expected");
    }

    void switchesRoleOff_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("after");
        QTest::newRow("everything else stays")
            << QByteArray(
                   "\xEF\xBB\xBF<!-- \xFC --><Fieldbus >\r\n <Bus enable='yes'  name=\"X\" /><Bus name=\"Y\" "
                   "enable=\"1\"/>\r\n</Fieldbus>")
            << QByteArray(
                   "\xEF\xBB\xBF<!-- \xFC --><Fieldbus >\r\n <Bus enable='0'  name=\"X\" /><Bus name=\"Y\" "
                   "enable=\"1\"/>\r\n</Fieldbus>");
        QTest::newRow("every entry, and no other attribute")
            << QByteArray(R"(<Fieldbus><Bus note="enable='1'>" name="X" enable = "1" ></Bus><Bus name="X"/>)"
                          R"(<Bus name="X" reenable="1" enable="1"/></Fieldbus>)")
            << QByteArray(R"(<Fieldbus><Bus note="enable='1'>" name="X" enable = "0" ></Bus><Bus name="X"/>)"
                          R"(<Bus name="X" reenable="1" enable="0"/></Fieldbus>)");
        QTest::newRow("not well-formed")
            << QByteArray(R"(<Fieldbus><Bus name="X" enable="1">)") << QByteArray();
        QTest::newRow("as many as fit")
            << "<Fieldbus>" + QByteArray(R"(<Bus name="X" enable="on"/>)").repeated(100000) + "</Fieldbus>"
            << "<Fieldbus>" + QByteArray(R"(<Bus name="X" enable="0"/>)").repeated(100000) + "</Fieldbus>";
    }
    void switchesRoleOff()
    {
        QFETCH(QByteArray, before);
        QTEST(RoleListFile::switchedOff(before, "X"), "after");
    }

    // Two readings of one file that were written apart.
    void readsTheMappingAsTheServiceDoes()
    {
        BusMappingFile service;
        MappingConfig config;
        QVERIFY(service.parse(plant(MappingPath)));
        QVERIFY(MappingFile::read(plant(MappingPath), config));
        const auto same = [](const MappingRow& row, const BusRowInfo& other) {
            return row.quantity == other.quantity && row.start == other.start && row.end == other.end;
        };
        for (const auto mode : {BusMappingFile::Free, BusMappingFile::Fixed}) {
            for (std::size_t bus = 0; bus < MappingConfig::BusCount; ++bus) {
                const BusAddrNumInfo& info = service.buses(mode)[bus];
                const MappingBus& read = config.buses[mode == BusMappingFile::Free ? 0 : 1][bus];
                QCOMPARE(QString(MappingConfig::busNames()[bus]), info.busName);
                const BusAreaInfo* areas[] = {&info.readOnly, &info.writeOnly, &info.readWrite};
                for (std::size_t area = 0; area < MappingDirectionCount; ++area) {
                    QCOMPARE(read.areas[area].start, areas[area]->start);
                    QCOMPARE(read.areas[area].end, areas[area]->end);
                    for (std::size_t type = 0; type < MappedTypeCount; ++type) {
                        QVERIFY(same(read.areas[area].user[type], areas[area]->user[type]));
                        QVERIFY(same(read.areas[area].system[type], areas[area]->system[type]));
                    }
                }
            }
        }
        const MappingArea& fixed = config.buses[MappingConfig::Fixed][2].areas[ReadOnlyArea];
        QVERIFY(fixed.systemComesFirst());
        QVERIFY(!config.buses[MappingConfig::Free][2].areas[ReadOnlyArea].systemComesFirst());
    }

    void rewritesTheMapping()
    {
        const QByteArray bytes = plant(MappingPath);
        MappingConfig config;
        QVERIFY(MappingFile::read(bytes, config));
        MappingRow& added = config.buses[MappingConfig::Free][4].areas[ReadOnlyArea].user[MappedFloat];
        added = {2, 128, MappingRow::NoAddress};
        config.buses[MappingConfig::Fixed][0].areas[WriteOnlyArea].end = MappingRow::NoAddress;
        const QByteArray written = MappingFile::rewritten(bytes, config);
        MappingConfig again;
        QVERIFY(MappingFile::read(written, again));
        QVERIFY(again == config);
        // One row more, and the comment and the root's attribute are still there.
        QCOMPARE(written.count('\n'), bytes.count('\n') + 1);
        QVERIFY(written.contains("<!-- I/O mapping of cell 7"));
        QVERIFY(written.contains("<FieldbusConfig version=\"3\">"));
        QVERIFY(MappingFile::rewritten("<Other/>", config).isNull());
    }

    void rewritesTheByteOrder()
    {
        const QByteArray bytes = plant("fa/fbslave.cfgx");
        const QByteArray written = SlaveModuleFile::rewritten(bytes, "bigendian");
        QCOMPARE(module(written), QString("bigEndian"));
        QByteArray undone = written;
        QCOMPARE(module(undone.replace("bigEndian", "littleEndian")), module(bytes));
        QVERIFY(written.contains("<StationAlias>7</StationAlias>"));
        QCOMPARE(module(SlaveModuleFile::rewritten("<FbSlave/>", "littleEndian")), QString("littleEndian"));
        QVERIFY(SlaveModuleFile::rewritten(bytes, "middle").isNull());
    }

    // Half a file is refused or read, and the sanitizers have nothing to say.
    void survivesAnyCut()
    {
        const QString paths[] = {MappingPath, "application/fidbus/fieldbus.xml",
                                 "application/fidbus/pfs_description.xml", "application/network/netports.xml",
                                 "fa/fbslave.cfgx"};
        for (const QString& path : paths) {
            const QByteArray bytes = plant(path);
            QVERIFY(!bytes.isEmpty());
            for (int size = 0; size < bytes.size() - 20; size += 61) {
                for (const Reader reader : {roles, ports, profisafe, module, mapping})
                    QCOMPARE(reader(bytes.left(size)), Refused);
            }
        }
    }
};

QTEST_GUILESS_MAIN(ServiceFilesTest)
#include "tst_servicefiles.moc"
