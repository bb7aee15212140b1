#include "BusFileDataManager.h"
#include "BusFileService.h"
#include "BusObserver.h"
#include "CurrentLink.h"
#include "MemoryLink.h"
#include "Rows.h"

#include <QTest>

#include <functional>

namespace {

const QByteArray ConfigXml = R"(<?xml version="1.0" encoding="utf-8"?>
<!-- kept by hand -->
<Fieldbus revision="7">
	<Bus name="Mes" enable="0" note="a &lt; b"/>
	<Bus name="EtherNetIPSlave" enable="1"/>
	<Bus name="ProfinetSlave" enable="0"/>
	<Vendor><Line>x</Line></Vendor>
	<Bus name="FreeBus" enable="0"/>
</Fieldbus>
)";

const QByteArray MappingXml = R"(<?xml version="1.0" encoding="utf-8"?>
<FieldbusConfig>
	<!-- line 4 -->
	<Mode name="free">
		<Bus name="ModbusTcpSlave" unit="1">
			<Area direction="ro" start="40001" end="40100">
				<User type="Bool" quantity="160" start="40001" end="40010"/>
				<User type="Word" quantity="many"/>
			</Area>
		</Bus>
	</Mode>
	<Mode name="fixed">
		<Bus name="EtherNetIPSlave">
			<Area direction="wo">
				<User type="Int" quantity="40"/>
				<System type="Bool" quantity="160" start="0" end="19"/>
			</Area>
		</Bus>
	</Mode>
	<Mode name="workshop"><Bus name="ModbusTcpSlave"/></Mode>
</FieldbusConfig>
)";

const QString ConfigPath = QStringLiteral("/application/fidbus/fieldbus.xml");
const QString MappingPath = QStringLiteral("/application/fidbus/fieldbus_config.xml");
const QString SlavePath = QStringLiteral("/fa/fbslave.cfgx");
const QString DescriptionPath = QStringLiteral("/application/fidbus/pfs_description.xml");

BusFileDataManager& manager()
{
    return *BusFileDataManager::getInstance();
}

void nextTurn()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

class Observer : public BusObserver
{
public:
    Observer()
    {
        setIsFieldXml(true);
        setIsFieldbusCfg(true);
        manager().attach(this);
    }
    ~Observer() override { manager().detach(this); }
    Observer(const Observer&) = delete;
    Observer& operator=(const Observer&) = delete;

    void busNotification(int kind, const QString& path, bool success) override
    {
        heard << QStringLiteral("%1 %2 %3").arg(kind).arg(path.section('/', -1), success ? "ok" : "failed");
        if (reaction)
            reaction();
    }

    QStringList heard;
    std::function<void()> reaction;
};

BusAddrNumInfo& busIn(std::vector<BusAddrNumInfo>& buses, const char* name)
{
    return *std::find_if(buses.begin(), buses.end(),
                         [name](const BusAddrNumInfo& bus) { return bus.busName == QLatin1String(name); });
}

// Whatever is made of a file's bytes, a parser refuses it and keeps what it had, or holds something that it
// can write and read again.
template <typename File, typename Record>
void takesDamagedBytes(const QByteArray& whole, Record record)
{
    File file;
    QVERIFY(file.parse(whole));
    const auto check = [&](const QByteArray& bytes) {
        File damaged = file;
        if (!damaged.parse(bytes))
            return record(damaged) == record(file);
        File again;
        return again.parse(damaged.toBytes()) && record(again) == record(damaged);
    };
    for (int length = 0; length < whole.size(); ++length)
        QVERIFY2(check(whole.left(length)), QByteArray::number(length));
    for (int position = 0; position < whole.size(); ++position) {
        for (const char other : {'\0', '<', '"', '9', '\xff'}) {
            QByteArray bytes = whole;
            bytes[position] = other;
            QVERIFY2(check(bytes), QByteArray::number(position));
        }
    }
}

using Reaction = std::function<void(std::vector<std::unique_ptr<Observer>>&)>;

} // namespace

Q_DECLARE_METATYPE(Reaction)

using RefusedMappingRows = Rows<QByteArray, QByteArray>;
using AnObserverMayDoAnythingInANotificationRows = Rows<Reaction, int>;
using PerformanceRows = Rows<int, int, bool, int, int>;
using AddressesRows = Rows<bool>;
using SlaveByteOrderRows = Rows<QByteArray, QString, QByteArray>;

class TestBusFileData : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_link = std::make_unique<MemoryLink>();
        m_link->files = {{ConfigPath, ConfigXml}, {MappingPath, MappingXml}};
        setCurrentLink(m_link.get());
        BusFileService::instance().resetSession();
    }

    void cleanup() { m_link.reset(); }

    void damagedBusFile()
    {
        takesDamagedBytes<BusConfigFile>(ConfigXml, [](const BusConfigFile& file) {
            QStringList roles;
            for (const BusName& role : file.roles())
                roles << role.name + (role.enabled ? "+" : "-");
            return roles;
        });
    }

    void damagedMappingFile()
    {
        takesDamagedBytes<BusMappingFile>(MappingXml, [](const BusMappingFile& file) {
            return std::make_pair(file.buses(BusMappingFile::Free), file.buses(BusMappingFile::Fixed));
        });
    }

    // A mapping that is read wrong would be written back wrong, so a number that is none refuses the file.
    void refusedMapping_data()
    {
        const RefusedMappingRows row;
        row("negative quantity", QByteArray("\"40\""), QByteArray("\"-40\""));
        row("quantity in hexadecimal", QByteArray("\"40\""), QByteArray("\"0x40\""));
        row("quantity without end", QByteArray("\"40\""), '"' + QByteArray(100000, '9') + '"');
        row("address of 33 bits", QByteArray("\"40100\""), QByteArray("\"4294967296\""));
        row("another root", QByteArray("FieldbusConfig>"), QByteArray("Fieldbus>"));
        row("a NUL that hides the rest", QByteArray("</FieldbusConfig>"),
            QByteArray("</FieldbusConfig>\0<!-- tail -->", 31));
        row("far too large", QByteArray("<!-- line 4 -->"), QByteArray(5 * 1024 * 1024, ' '));
    }

    void refusedMapping()
    {
        const auto [from, to] = RefusedMappingRows::current();
        readBoth();
        const auto before = manager().getBusNumAndAddr();
        QVERIFY(!before.empty());

        m_link->files[MappingPath] = QByteArray(MappingXml).replace(from, to);
        Observer observer;
        manager().emitGetFieldbusCfg();
        nextTurn();
        QCOMPARE(observer.heard, QStringList{"0 fieldbus_config.xml failed"});
        QVERIFY(manager().getBusNumAndAddr() == before);
    }

    void whatTheServiceDoesNotOwnSurvives()
    {
        readBoth();
        setRole("Mes", true);
        auto buses = manager().getBusNumAndAddr();
        busIn(buses, "EtherNetIPSlave").writeOnly.user[BusInt].quantity = 12;
        manager().setBusNumAndAddr(buses);
        manager().writeSendFieldbusXml();
        manager().writeSendFieldbusCfg();

        QCOMPARE(m_link->files[ConfigPath],
                 QByteArray(ConfigXml)
                     .replace("\"Mes\" enable=\"0\"", "\"Mes\" enable=\"1\"")
                     .replace("<Vendor><Line>x</Line></Vendor>", "<Vendor>\n\t\t<Line>x</Line>\n\t</Vendor>")
                     .replace("/>", " />"));
        QCOMPARE(m_link->files[MappingPath],
                 QByteArray(MappingXml)
                     .replace("\"40\"", "\"12\"")
                     .replace("<Mode name=\"workshop\"><Bus name=\"ModbusTcpSlave\"/></Mode>",
                              "<Mode name=\"workshop\">\n\t\t<Bus name=\"ModbusTcpSlave\"/>\n\t</Mode>")
                     .replace("/>", " />"));
    }

    void theModesAreKeptSideBySide()
    {
        readBoth();
        QVERIFY(!manager().isOpenFreeBus());
        auto fixed = manager().getBusNumAndAddr();
        QCOMPARE(fixed.size(), std::size_t(10));
        QCOMPARE(busIn(fixed, "EtherNetIPSlave").writeOnly.system[BusBool].end, 19U);

        setRole("FreeBus", true);
        auto free = manager().getBusNumAndAddr();
        BusAreaInfo& area = busIn(free, "ModbusTcpSlave").readOnly;
        QCOMPARE(area.end, 40100U);
        QCOMPARE(area.user[BusBool].quantity, 160);
        QCOMPARE(area.user[BusInt].start, NoBusAddress);
        area = BusAreaInfo();
        busIn(free, "DeviceNetMaster").readOnly.user[BusBool] = {64, 0,
                                                                 7}; // a bus that the file does not have
        manager().setBusNumAndAddr(free);
        manager().writeSendFieldbusCfg();

        setRole("FreeBus", false);
        QVERIFY(manager().getBusNumAndAddr() == fixed);
        // And the controller's file says all of it.
        manager().emitGetFieldbusCfg();
        QVERIFY(manager().getBusNumAndAddr() == fixed);
        setRole("FreeBus", true);
        QVERIFY(manager().getBusNumAndAddr() == free);
    }

    void nothingIsSentThatWasNotRead()
    {
        Observer observer;
        manager().setBusInfo({{"Mes", {"Mes", true}}});
        manager().writeSendFieldbusXml();
        manager().writeSendFieldbusCfg();
        nextTurn();
        QCOMPARE(observer.heard, (QStringList{"1 fieldbus.xml failed", "1 fieldbus_config.xml failed"}));
        QVERIFY(m_link->stored.isEmpty());
    }

    void resultsComeOnALaterTurnToThoseWhoAskedForThem()
    {
        Observer both;
        manager().attach(&both);
        Observer onlyMapping;
        onlyMapping.setIsFieldXml(false);
        auto gone = std::make_unique<Observer>();
        manager().emitGetFieldXml();
        manager().emitGetFieldbusCfg();
        QVERIFY(both.heard.isEmpty());
        QVERIFY(!manager().isFuncInfoNotified("fieldbus"));
        gone.reset();
        nextTurn();
        QCOMPARE(both.heard, (QStringList{"0 fieldbus.xml ok", "0 fieldbus_config.xml ok"}));
        QCOMPARE(onlyMapping.heard, QStringList{"0 fieldbus_config.xml ok"});
        QVERIFY(manager().isFuncInfoNotified("fieldbus") && manager().isFuncInfoNotified("fieldbusCfg"));

        m_link->transfersFail = true;
        manager().writeSendFieldbusXml();
        nextTurn();
        QCOMPARE(both.heard.last(), QString("1 fieldbus.xml failed"));
    }

    void anObserverMayDoAnythingInANotification_data()
    {
        const AnObserverMayDoAnythingInANotificationRows row;
        row("detach itself", Reaction([](auto& all) { manager().detach(all[0].get()); }), 2);
        row("destroy the next", Reaction([](auto& all) { all[1].reset(); }), 1);
        row("destroy all others", Reaction([](auto& all) { all.resize(1); }), 0);
        row("bring a crowd", Reaction([](auto& all) {
                all.reserve(103);
                for (int count = 0; count < 100; ++count)
                    all.push_back(std::make_unique<Observer>());
            }),
            2);
        row("wait in a box for the next result", Reaction([](auto& all) {
                all[0]->reaction = nullptr;
                manager().emitGetFieldbusCfg();
                nextTurn();
                all.pop_back();
            }),
            1);
        row("end the session", Reaction([](auto&) { BusFileService::instance().resetSession(); }), 0);
    }

    void anObserverMayDoAnythingInANotification()
    {
        const auto [reaction, othersThatHear] = AnObserverMayDoAnythingInANotificationRows::current();
        std::vector<std::unique_ptr<Observer>> all;
        for (int count = 0; count < 3; ++count)
            all.push_back(std::make_unique<Observer>());
        all[0]->reaction = [&all, react = reaction] { react(all); };
        manager().emitGetFieldXml();
        nextTurn();
        int heard = 0;
        for (std::size_t other = 1; other < all.size(); ++other)
            heard += all[other] && all[other]->heard.contains("0 fieldbus.xml ok") ? 1 : 0;
        QCOMPARE(heard, othersThatHear);
    }

    void aFailedFetchIsTriedAgain()
    {
        m_link->transfersFail = true;
        readBoth();
        QVERIFY(!manager().isFuncInfoNotified("fieldbus"));
        m_link->transfersFail = false;
        readBoth();
        QVERIFY(manager().isFuncInfoNotified("fieldbus"));

        // What was read once stays through a failure.
        m_link->files[ConfigPath] = "<Fieldbus><Bus";
        readBoth();
        QVERIFY(manager().isFuncInfoNotified("fieldbus"));
        QCOMPARE(manager().getBusNameList(true, false).size(), std::size_t(4));
        QCOMPARE(manager().getBusNameList(true, true).front().name, QString("EtherNetIPSlave"));
        QVERIFY(manager().getBusNameList(false, false).empty());
    }

    void aRestartIsFollowedByAFetch()
    {
        readBoth();
        QVERIFY(manager().isFuncInfoNotified("fieldbus") && manager().isFuncInfoNotified("fieldbusCfg"));
        // Down it says nothing new; what is held stays for the application that is open.
        for (const bool up : {true, false, true}) {
            QVERIFY(manager().isFuncInfoNotified("fieldbus") && manager().isFuncInfoNotified("fieldbusCfg"));
            m_link->up = up;
            emit m_link->stateChanged();
        }
        QVERIFY(!manager().isFuncInfoNotified("fieldbus") && !manager().isFuncInfoNotified("fieldbusCfg"));
        QVERIFY(!manager().getBusNameList(true, true).empty());
        readBoth();
        QVERIFY(manager().isFuncInfoNotified("fieldbus"));
    }

    void rolesThatCouldNotBeSentAreForgotten()
    {
        readBoth();
        const auto isOn = [](const char* role) { return manager().getAllBusName().value(role).enabled; };
        setRole("Mes", true);
        m_link->transfersFail = true;
        manager().writeSendFieldbusXml();
        QVERIFY(!isOn("Mes"));
        m_link->transfersFail = false;
        setRole("Mes", true);
        manager().writeSendFieldbusXml();
        m_link->transfersFail = true;
        setRole("FreeBus", true);
        manager().writeSendFieldbusXml();
        QVERIFY(isOn("Mes") && !manager().isOpenFreeBus());
    }

    void performance_data()
    {
        const PerformanceRows row;
        row("Modbus is always on", 0, 0, true, 1, -1);
        row("moves from Modbus", 2, 1, true, 4, 0);
        row("moves from PROFINET", 0, 8, true, 1, 3);
        row("held already", 2, 4, true, 4, -1);
        row("role switched off", 3, 4, true, -1, -1);
        row("given back by a role that is off", 3, 8, false, 0, -1);
        row("given back, another holds it", 0, 4, false, 4, -1);
        row("no such bus", 1, 0, true, -1, -1);
        row("bit beyond the word", 32, 0, true, -1, -1);
    }

    void performance()
    {
        const auto [bus, current, on, word, loser] = PerformanceRows::current();
        readBoth();
        QCOMPARE(manager().getPerformanceValue(bus, current, on), word);
        QCOMPARE(g_lastBusType, loser);
    }

    void addresses_data()
    {
        const AddressesRows row;
        for (const char* text : {"0.0.0.0", "255.255.255.255"})
            row(text, true);
        for (const char* text :
             {"", "1.2.3", "256.1.1.1", " 1.2.3.4", "1..2.3", "01.2.3.4", "1.2.3.4\n", "+1.2.3.4"})
            row(text, false);
        row("\xd9\xa1.2.3.4", false); // a digit, and not one of ours
    }

    void addresses()
    {
        const auto [valid] = AddressesRows::current();
        QCOMPARE(BusFileDataManager::checkIPv4Format(QString::fromUtf8(QTest::currentDataTag())), valid);
    }

    void slaveByteOrder_data()
    {
        const SlaveByteOrderRows row;
        row("the rest survives",
            QByteArray("<FbSlave><!-- c --><Endian>littleEndian</Endian><Station>4</Station></FbSlave>"),
            "littleEndian", QByteArray("<Endian>bigEndian</Endian>\n\t<Station>4</Station>"));
        row("spelling", QByteArray("<FbSlave><Endian> BIGENDIAN\n</Endian></FbSlave>"), "bigEndian",
            QByteArray("<Endian>bigEndian</Endian>"));
        row("added", QByteArray("<FbSlave/>"), "", QByteArray("<Endian>bigEndian</Endian>"));
        row("another order", QByteArray("<FbSlave><Endian>middle</Endian></FbSlave>"), "",
            QByteArray("<Endian>bigEndian</Endian>"));
        row("cut short", QByteArray("<FbSlave><Endian>little"), "", QByteArray());
        row("empty", QByteArray(), "", QByteArray());
    }

    void slaveByteOrder()
    {
        const auto [file, read, written] = SlaveByteOrderRows::current();
        m_link->files[SlavePath] = file;
        QString endian = QStringLiteral("as it was");
        QCOMPARE(manager().getAndReadFbslave(endian), !read.isEmpty());
        QCOMPARE(endian, read.isEmpty() ? QStringLiteral("as it was") : read);

        QVERIFY(!manager().writeAndSendFbslave("<Endian/>"));
        QCOMPARE(manager().writeAndSendFbslave("bigEndian"), !written.isEmpty());
        if (written.isEmpty())
            QCOMPARE(m_link->files[SlavePath], file);
        else
            QVERIFY2(m_link->files[SlavePath].contains(written), m_link->files[SlavePath]);
    }

    void descriptions()
    {
        QMap<int, QString> outputs{{9, QStringLiteral("old")}};
        QMap<int, QString> inputs;
        QVERIFY(!manager().getAndReadPfsDesc(outputs, inputs));
        QCOMPARE(outputs.size(), 1);

        m_link->files[DescriptionPath] =
            "<ProfiSafe><Output><Bit number=\"0\" text=\"Gr\xc3\xbcn\"/><Bit number=\"-1\" text=\"x\"/><Bit/>"
            "</Output><Input><Bit number=\"127\" text=\"\"/><Bit number=\"128\" "
            "text=\"x\"/></Input></ProfiSafe>";
        QVERIFY(manager().getAndReadPfsDesc(outputs, inputs));
        QCOMPARE(outputs, (QMap<int, QString>{{0, QStringLiteral("Gr\u00fcn")}}));
        QCOMPARE(inputs, (QMap<int, QString>{{127, QString()}}));
    }

private:
    void readBoth()
    {
        manager().emitGetFieldXml();
        manager().emitGetFieldbusCfg();
        nextTurn();
    }
    void setRole(const char* name, bool enabled)
    {
        auto roles = manager().getAllBusName();
        roles[name] = {name, enabled};
        manager().setBusInfo(roles);
    }

    std::unique_ptr<MemoryLink> m_link;
};

QTEST_GUILESS_MAIN(TestBusFileData)
#include "tst_busfiledata.moc"
