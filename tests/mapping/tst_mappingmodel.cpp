#include "FileStore.h"
#include "MappingCheck.h"
#include "MappingModel.h"
#include "Rows.h"

#include <QTest>

using namespace Mapping;

namespace {

constexpr quint32 NoAddress = MappingRow::NoAddress;

using Quantities = std::array<int, 3>;

Mode modeOf(bool freeMode)
{
    return freeMode ? MappingConfig::Free : MappingConfig::Fixed;
}

// A model in which one area holds quantities that lie where an entry of their own would put them.
MappingArea areaWith(const Quantities& quantities)
{
    MappingArea area;
    for (std::size_t type = 0; type < quantities.size(); ++type)
        area.user[type].quantity = quantities[type];
    return area;
}

MappingArea blockWith(const Quantities& quantities, Layout layout, quint32 start)
{
    MappingArea area = areaWith(quantities);
    layOut(area, layout, start);
    return area;
}

MappingModel modelWith(Bus bus, const MappingArea& readOnly, const MappingArea& writeOnly = {},
                       const MappingArea& readWrite = {}, bool freeMode = true)
{
    Buses buses;
    buses[std::size_t(bus)].areas = {readOnly, writeOnly, readWrite};
    MappingModel model;
    model.load(buses, modeOf(freeMode));
    return model;
}

MappingModel modelWith(int number, const MappingArea& area, Mode mode)
{
    Buses buses;
    areaOf(buses[std::size_t(tableOf(number).bus)], tableOf(number).direction) = area;
    MappingModel model;
    model.load(buses, mode);
    return model;
}

MappingModel modelWith(int number, const Quantities& quantities, bool freeMode)
{
    return modelWith(number, areaWith(quantities), modeOf(freeMode));
}

QString refusalOf(const MappingModel::Entry& entry)
{
    return entry.refusal ? entry.refusal->text.inEnglish() : QString();
}

QString addresses(const MappingArea& area)
{
    const auto text = [](quint32 start, quint32 end) {
        return start == NoAddress && end == NoAddress ? QStringLiteral("none")
                                                      : QStringLiteral("%1-%2").arg(start).arg(end);
    };
    QStringList texts;
    for (const MappingRow& row : area.user)
        texts << text(row.start, row.end);
    return texts.join(' ') + QStringLiteral(" = ") + text(area.start, area.end);
}

QString cellsOf(const MappingModel::Row& row)
{
    QStringList cells(row.cells.begin(), row.cells.end());
    cells.first() = QLatin1String(row.typeText);
    return cells.join('|');
}

} // namespace

Q_DECLARE_METATYPE(Quantities)
Q_DECLARE_METATYPE(Mapping::Bus)
Q_DECLARE_METATYPE(Mapping::Layout)

class TestMappingModel : public QObject
{
    Q_OBJECT

private slots:
    // The largest quantity of each type is taken and one more is refused; the tips have their numbers in
    // them.
    void limits_data()
    {
        const ::Rows<QVector<int>, bool, Quantities> row;
        const Quantities boolsOnly{2048, -1, -1};
        row("Modbus TCP slave", {0, 1, 2}, true, {2048, 128, 64});
        row("fixed Modbus TCP slave", {0, 1}, false, {480, 40, 33});
        row("fixed Modbus TCP slave, both", {2}, false, {512, 100, 50});
        row("EtherCAT slave", {3, 4}, true, {1472, 92, 46});
        row("fixed EtherCAT slave", {3, 4}, false, {928, 58, 29});
        row("EtherNet/IP, DeviceNet slave", {5, 6, 11, 12}, true, {1600, 100, 50});
        row("fixed EtherNet/IP, DeviceNet slave", {5, 6, 11, 12}, false, {480, 40, 33});
        row("PROFINET slave", {7, 8}, true, {1536, 96, 48});
        row("fixed PROFINET slave", {7, 8}, false, {480, 38, 30});
        for (const bool freeMode : {true, false}) {
            const QString mode = freeMode ? "free " : "fixed ";
            row(mode + "masters of Bools", {9, 10, 15, 16, 17, 18}, freeMode, boolsOnly);
            row(mode + "Modbus TCP master reads", {13}, freeMode, {2000, 125, 62});
            row(mode + "Modbus TCP master writes", {14}, freeMode, {1968, 123, 61});
            row(mode + "DeviceNet master", {19, 20}, freeMode, boolsOnly);
        }
    }

    void limits()
    {
        const auto [tables, freeMode, most] = ::Rows<QVector<int>, bool, Quantities>::current();
        for (const int number : qAsConst(tables)) {
            for (const MappedType type : {MappedBool, MappedInt, MappedFloat}) {
                if (most[type] < 0)
                    continue;
                MappingModel model = modelWith(number, {}, freeMode);
                const Bus bus = tableOf(number).bus;
                const MappingBus before = model.recordOf(bus);
                QCOMPARE(refusalOf(model.enterQuantity(number, type, most[type] + 1)),
                         QString("Limit Range: 0 ~ %1, Please Fill In Again!").arg(most[type]));
                QVERIFY(model.recordOf(bus) == before);
                QCOMPARE(refusalOf(model.enterQuantity(number, type, most[type])), QString());
                QCOMPARE(areaOf(model.recordOf(bus), tableOf(number).direction).user[type].quantity,
                         most[type]);
            }
            const QString tips = tipsOf(number, modeOf(freeMode)).inEnglish();
            QVERIFY(tips.contains(QString::number(most[MappedBool])));
            QVERIFY2(!tips.contains('%'), qPrintable(tips));
        }
    }

    // An area filled up to its last byte, and the entry that would be one too many.
    void bytes_data()
    {
        const ::Rows<int, bool, Quantities, int, int, QString> row;
        const QString plain = QStringLiteral("Bytes Limit Range: 0 ~ %1, Please Fill In Again!");
        const QString small = QStringLiteral(
            "ModbusTCP:User Bool and User Int Bytes Limit Range: 0 ~ 80, Please Fill In Again!");
        const QString master = QStringLiteral(
            "The current total input bytes are %1, \nexceeding the maximum bytes of %2. Please re-enter");
        row("Modbus TCP slave", 0, true, {1024, 60, 0}, MappedFloat, 2, plain.arg(256));
        row("fixed Modbus TCP slave", 1, false, {320, 19, 0}, MappedFloat, 13, plain.arg(132));
        row("fixed Modbus TCP slave, Bool and Int", 0, false, {320, 0, 0}, MappedInt, 20, small);
        row("fixed Modbus TCP slave, both", 2, false, {512, 60, 0}, MappedFloat, 4, plain.arg(200));
        row("fixed Modbus TCP slave, both, Bool and Int", 2, false, {512, 0, 0}, MappedInt, 68,
            plain.arg(200));
        row("EtherCAT slave", 3, true, {1024, 0, 4}, MappedInt, 20, plain.arg(184));
        row("fixed EtherCAT slave", 4, false, {0, 50, 0}, MappedFloat, 4, plain.arg(116));
        row("EtherNet/IP slave", 5, true, {0, 98, 0}, MappedFloat, 1, plain.arg(200));
        row("fixed EtherNet/IP slave", 6, false, {0, 40, 0}, MappedFloat, 13, plain.arg(132));
        row("PROFINET slave", 7, true, {0, 0, 40}, MappedInt, 16, plain.arg(192));
        row("fixed PROFINET slave", 8, false, {0, 0, 30}, MappedInt, 2, plain.arg(124));
        row("fixed DeviceNet slave", 11, false, {0, 40, 0}, MappedFloat, 13, plain.arg(132));
        row("Modbus TCP master reads", 13, true, {0, 125, 0}, MappedFloat, 0, master.arg(254).arg(250));
        row("Modbus TCP master writes", 14, true, {0, 0, 61}, MappedInt, 1, master.arg(248).arg(246));
        // 17 Bools are 2 bytes, but 32 are 4: what the rounding makes counts.
        row("the rounded quantity counts", 13, true, {0, 124, 0}, MappedBool, 16, master.arg(252).arg(250));
    }

    void bytes()
    {
        const auto [number, freeMode, present, type, full, message] =
            ::Rows<int, bool, Quantities, int, int, QString>::current();
        MappingModel model = modelWith(number, present, freeMode);
        const auto variable = static_cast<MappedType>(type);
        QCOMPARE(refusalOf(model.enterQuantity(number, variable, full)), QString());
        const MappingBus before = model.recordOf(tableOf(number).bus);
        QCOMPARE(refusalOf(model.enterQuantity(number, variable, full + 1)), message);
        QVERIFY(model.recordOf(tableOf(number).bus) == before);
    }

    void rounding_data()
    {
        const ::Rows<int, int, int> row;
        row("slave", 5, 17, 32);
        row("slave, one", 0, 1, 16);
        row("slave, none", 3, 0, 0);
        row("slave, a multiple", 7, 48, 48);
        row("slave, up to the limit", 8, 1535, 1536);
        row("Modbus TCP master", 14, 1953, 1968);
        row("DeviceNet master counts in 8", 19, 17, 24);
    }

    void rounding()
    {
        const auto [number, entered, kept] = ::Rows<int, int, int>::current();
        MappingModel model = modelWith(number, {}, true);
        QCOMPARE(refusalOf(model.enterQuantity(number, MappedBool, entered)), QString());
        const SubTable& table = tableOf(number);
        QCOMPARE(areaOf(model.recordOf(table.bus), table.direction).user[MappedBool].quantity, kept);
    }

    void noNumbers_data()
    {
        const ::Rows<double> row;
        row("negative", -1.0);
        row("nan", qQNaN());
    }

    void noNumbers()
    {
        const auto [value] = ::Rows<double>::current();
        MappingModel model = modelWith(Bus::MtcpSlave, blockWith({16, 0, 0}, Layout::SlaveRegisters, 40001));
        const MappingBus before = model.recordOf(Bus::MtcpSlave);
        QVERIFY(model.enterQuantity(0, MappedBool, value).refusal);
        QVERIFY(model.enterStart(0, value).refusal);
        QVERIFY(model.recordOf(Bus::MtcpSlave) == before);
    }

    void layouts_data()
    {
        const ::Rows<Layout, Quantities, quint32, QString> row;
        // Bool, Int, Float = block
        const Layout slave = Layout::SlaveRegisters;
        row("slave", slave, {32, 3, 2}, 40001, "40001-40002 40003-40005 40006-40009 = 40001-40009");
        row("slave, no Bool", slave, {0, 3, 2}, 40001, "none 40001-40003 40004-40007 = 40001-40007");
        row("slave, no Int", slave, {32, 0, 2}, 40001, "40001-40002 none 40003-40006 = 40001-40006");
        row("slave, no Float", slave, {32, 3, 0}, 40001, "40001-40002 40003-40005 none = 40001-40005");
        row("slave, Bool alone", slave, {16, 0, 0}, 40001, "40001-40001 none none = 40001-40001");
        row("slave, Int alone", slave, {0, 1, 0}, 40990, "none 40990-40990 none = 40990-40990");
        row("slave, Float alone", slave, {0, 0, 1}, 40001, "none none 40001-40002 = 40001-40002");
        const Layout master = Layout::MasterRegisters;
        row("master", master, {32, 3, 2}, 40001, "40001-40002 40003-40005 40006-40009 = 40001-40009");
        row("master, no Bool", master, {0, 3, 2}, 40001, "none 40001-40003 40004-40007 = 40001-40007");
        row("master, no Int", master, {32, 0, 2}, 40001, "40001-40002 none 40003-40006 = 40001-40006");
        // The empty Float row keeps its place, one before which it ends.
        row("master, no Float", master, {32, 3, 0}, 40001,
            "40001-40002 40003-40005 40006-40005 = 40001-40005");
        row("master, Bool alone", master, {16, 0, 0}, 40001, "40001-40001 none 40002-40001 = 40001-40001");
        row("master, Int alone", master, {0, 4, 0}, 40001, "none 40001-40004 40005-40004 = 40001-40004");
        row("master, Float alone", master, {0, 0, 1}, 40001, "none none 40001-40002 = 40001-40002");
        row("master, nothing", master, {0, 0, 0}, 40021, "none none 40021-40020 = none");
        row("bytes", Layout::Bytes, {16, 3, 2}, 0, "0-1 2-7 8-15 = none");
        row("bytes, no Bool", Layout::Bytes, {0, 3, 2}, 0, "none 0-5 6-13 = none");
        row("bytes, no Int", Layout::Bytes, {16, 0, 2}, 0, "0-1 none 2-9 = none");
        row("master of Bools", Layout::MasterBools, {24, 0, 0}, 0, "0-2 none none = none");
    }

    void layouts()
    {
        const auto [layout, quantities, start, expected] =
            ::Rows<Layout, Quantities, quint32, QString>::current();
        QCOMPARE(addresses(blockWith(quantities, layout, start)), expected);

        // Behind a system area every row moves by its size; a block keeps its own start.
        if (layout != Layout::Bytes && layout != Layout::SlaveRegisters)
            return;
        const MappingArea plain = blockWith(quantities, layout, start);
        MappingArea area = areaWith(quantities);
        area.system[MappedBool] = {64, start, start + 7};
        area.system[MappedFloat] = {12, start + 20, start + 67};
        layOut(area, layout, start);
        for (std::size_t type = 0; type < plain.user.size(); ++type) {
            const quint32 moved = quantities[type] == 0 ? 0 : 68;
            QCOMPARE(area.user[type].start, plain.user[type].start + moved);
            QCOMPARE(area.user[type].end, plain.user[type].end + moved);
        }
        QCOMPARE(area.start, plain.start);
        QCOMPARE(area.end, layout == Layout::Bytes ? NoAddress : plain.end + 68);
    }

    // Write only 40001-40010, read only 40101-40110, read and write 40301-40310: one row an entry.
    void slaveBlocks_data()
    {
        const ::Rows<int, bool, int, QString> row;
        const QString readEnd = QStringLiteral(
            "The current input read-only end address is %1, and the ModbusTcp read-only end address must be "
            "less than\n the readable and writable start address. Please re-enter");
        const QString writeEnd = QStringLiteral("The current input only write end address is %1, and "
                                                "ModbusTcp only write end address must be less "
                                                "than\n the read-only start address. Please re-enter");
        const QString bothEnd =
            QStringLiteral("The current input end address is %1. The end address\n must be "
                           "less than 41000. Please re-enter!");
        const QString readStart =
            QStringLiteral("The start address of ModbusTcp read-only input must be greater "
                           "than the end address of write only!");
        const QString bothStart = QStringLiteral(
            "The start address of the ModbusTcp readable and writable input must be greater than "
            "the end address of the read-only input!");
        const QString zero = QStringLiteral("The total quantity cannot be zero!");
        row("read only ends below read and write", 0, true, 40291, {});
        row("read only ends at read and write", 0, true, 40292, readEnd.arg(40301));
        row("read only starts above write only", 0, true, 40011, {});
        row("read only starts at write only's end", 0, true, 40010, readStart);
        row("write only ends below read only", 1, true, 40091, {});
        row("write only ends at read only", 1, true, 40092, writeEnd.arg(40101));
        row("read and write starts above read only", 2, true, 40111, {});
        row("read and write starts at read only's end", 2, true, 40110, bothStart);
        row("read and write ends at the last register", 2, true, 40991, {});
        row("read and write ends one beyond", 2, true, 40992, bothEnd.arg(41001));
        row("read only emptied", 0, false, 0, zero);
        row("write only emptied", 1, false, 0, zero);
        row("read and write emptied", 2, false, 0, zero);
        row("read only grows", 0, false, 128, {});
        row("write only grows up to read only", 1, false, 100, {});
        row("write only grows into read only", 1, false, 101, writeEnd.arg(40101));
    }

    void slaveBlocks()
    {
        const auto [number, isStart, value, message] = ::Rows<int, bool, int, QString>::current();
        const auto block = [](quint32 start) { return blockWith({0, 10, 0}, Layout::SlaveRegisters, start); };
        MappingModel model = modelWith(Bus::MtcpSlave, block(40101), block(40001), block(40301));
        const MappingBus before = model.recordOf(Bus::MtcpSlave);
        const MappingModel::Entry entry =
            isStart ? model.enterStart(number, value) : model.enterQuantity(number, MappedInt, value);
        QCOMPARE(refusalOf(entry), message);
        QCOMPARE(model.recordOf(Bus::MtcpSlave) == before, !message.isEmpty());
        QCOMPARE(entry.movedSlaveBlock, message.isEmpty());
        if (entry.refusal)
            QCOMPARE(entry.refusal->severity == Severity::Error, message.contains("zero"));
    }

    // Other growths of the slave's blocks, with 10 registers a block and the read and write block at its end.
    void aMoveOfASlaveBlockIsTold()
    {
        const auto block = [](quint32 start) { return blockWith({0, 10, 0}, Layout::SlaveRegisters, start); };
        MappingModel model = modelWith(Bus::MtcpSlave, block(40101), block(40001), block(40991));
        QCOMPARE(refusalOf(model.enterQuantity(2, MappedInt, 11)),
                 QString("The current input end address is 41001. The end address\n must be less than 41000. "
                         "Please re-enter!"));
        QVERIFY(!model.enterQuantity(0, MappedInt, 10).movedSlaveBlock);
        QVERIFY(!model.enterStart(0, 40101).movedSlaveBlock);
        QVERIFY(model.enterQuantity(0, MappedInt, 9).movedSlaveBlock);
        // Without a block above it nothing but the bytes limits the block, and an oversized one cannot be
        // moved.
        model = modelWith(Bus::MtcpSlave, blockWith({0, 0, 65}, Layout::SlaveRegisters, 40101));
        QCOMPARE(
            refusalOf(model.enterStart(0, 40201)),
            QString("The current total input bytes are 260, \nexceeding the maximum bytes of 256. Please "
                    "re-enter"));
        // In the fixed mode a move is nothing to tell, and a block may be emptied.
        model = modelWith(Bus::MtcpSlave, block(40101), {}, {}, false);
        const MappingModel::Entry emptied = model.enterQuantity(0, MappedInt, 0);
        QVERIFY(!emptied.refusal && !emptied.movedSlaveBlock);
        QCOMPARE(addresses(areaOf(model.recordOf(Bus::MtcpSlave), Direction::ReadOnly)),
                 QString("none none none = 40101-40100"));
    }

    // Read only 40001-40010, write only 40021-40030.
    void masterBlocks_data()
    {
        const ::Rows<int, bool, int, QString> row;
        const QString end =
            QStringLiteral("The current input end address is %1. The end address\n must be less "
                           "than 49999. Please re-enter!");
        const QString writing = QStringLiteral("Conflicting with duplicate address writing only!");
        const QString reading = QStringLiteral("Conflicting with duplicate address reading only!");
        row("reads up to what it writes", 13, false, 20, {});
        row("reads into what it writes", 13, false, 21,
            "The current read-only start address is calculated by default from 40001,\n which conflicts with "
            "writing only the address!");
        row("writes on", 14, false, 123, {});
        row("reads moved before it", 13, true, 40011, {});
        row("reads moved into it", 13, true, 40012, writing);
        row("reads moved on its last register", 13, true, 40030, writing);
        row("reads moved behind it", 13, true, 40031, {});
        row("writes moved behind what it reads", 14, true, 40011, {});
        row("writes moved on its last register", 14, true, 40010, reading);
        row("ends at the last register", 13, true, 49990, {});
        row("ends one beyond", 13, true, 49991, end.arg(50000));
        row("writes end at the last register", 14, true, 49990, {});
        row("writes end one beyond", 14, true, 49991, end.arg(50000));
        row("starts beyond", 14, true, 60000, end.arg(60009));
    }

    void masterBlocks()
    {
        const auto [number, isStart, value, message] = ::Rows<int, bool, int, QString>::current();
        const auto block = [](quint32 start) {
            return blockWith({0, 10, 0}, Layout::MasterRegisters, start);
        };
        MappingModel model = modelWith(Bus::MtcpMaster, block(40001), block(40021));
        const MappingBus before = model.recordOf(Bus::MtcpMaster);
        const MappingModel::Entry entry =
            isStart ? model.enterStart(number, value) : model.enterQuantity(number, MappedInt, value);
        QCOMPARE(refusalOf(entry), message);
        QCOMPARE(model.recordOf(Bus::MtcpMaster) == before, !message.isEmpty());
        QVERIFY(!entry.movedSlaveBlock);
    }

    void aBlockComesBackToItsPlace()
    {
        const auto area = [](const MappingModel& model, int number) {
            return addresses(areaOf(model.recordOf(tableOf(number).bus), tableOf(number).direction));
        };
        MappingModel model;
        model.load({}, MappingConfig::Free);
        // What was never placed lies behind the other direction.
        QVERIFY(!model.enterQuantity(13, MappedInt, 10).refusal);
        QVERIFY(!model.enterQuantity(14, MappedInt, 5).refusal);
        QCOMPARE(area(model, 13), QString("none 40001-40010 40011-40010 = 40001-40010"));
        QCOMPARE(area(model, 14), QString("none 40011-40015 40016-40015 = 40011-40015"));
        // An emptied block keeps its place, and has no start to be moved.
        QVERIFY(!model.enterQuantity(14, MappedInt, 0).refusal);
        QCOMPARE(area(model, 14), QString("none none 40011-40010 = none"));
        QCOMPARE(refusalOf(model.enterStart(14, 40100)), QString("Cannot set start address for quantity 0!"));
        QVERIFY(!model.enterQuantity(14, MappedFloat, 1).refusal);
        QCOMPARE(area(model, 14), QString("none none 40011-40012 = 40011-40012"));
        // While it was away the other one has taken its place.
        QVERIFY(!model.enterQuantity(14, MappedFloat, 0).refusal);
        QVERIFY(!model.enterQuantity(13, MappedInt, 11).refusal);
        QCOMPARE(refusalOf(model.enterQuantity(14, MappedFloat, 1)),
                 QString("Currently, only the starting address is calculated by default from 40011,\n which "
                         "conflicts with a read-only address!"));

        // The slave's blocks follow each other, too.
        QVERIFY(!model.enterQuantity(1, MappedInt, 10).refusal);
        QVERIFY(!model.enterQuantity(0, MappedInt, 10).refusal);
        QVERIFY(!model.enterQuantity(2, MappedInt, 10).refusal);
        QCOMPARE(area(model, 2), QString("none 40021-40030 none = 40021-40030"));
        QVERIFY(!model.enterStart(5, 40001).refusal); // no registers, nothing to enter
        QVERIFY(model.recordOf(Bus::EipSlave).areas[ReadOnlyArea] == MappingArea());
    }

    void rows_data()
    {
        // cells: of the rows on view
        const ::Rows<int, bool, QStringList> row;
        row("free Modbus TCP slave", 0, true,
            {"Total|--|10|40001|40005|--", "User Bool|32|4|40001|40002|mtcp_ro_b:[0]~[31]",
             "User Int|3|6|40003|40005|mtcp_ro_i:[0]~[2]", "User Float|0|0|--|--|--"});
        row("fixed Modbus TCP slave, both", 2, false,
            {"User Bool|32|4|40001|40002|mtcp_rw_b:[0]~[31]", "User Int|3|6|40003|40005|mtcp_rw_i:[0]~[2]",
             "User Float|0|0|--|--|--", "Reserved|--|--|--|--|--", "Reserved|--|--|--|--|--"});
        row("fixed EtherCAT slave", 4, false,
            {"User Bool|32|4|Bus_Set:[40001]|[40002]|ethcat_wo_b:[0]~[31]",
             "User Int|3|6|Bus_Set:[40003]|[40005]|ethcat_wo_i:[0]~[2]", "User Float|0|0|--|--|--",
             "System Bool|64|8|Bus_Set:[7]|[14]|ethcat_sys_wo_b:[0]~[63]", "System Int|0|0|--|--|--",
             "System Float|1|4|--|--|ethcat_sys_wo_r:[0]~[0]"});
        row("Modbus TCP master", 14, false,
            {"Bool|32|4|40001|40002|mbc_wo_b:[0]~[31]", "Int|3|6|40003|40005|mbc_wo_i:[0]~[2]",
             "Float|0|0|--|--|--"});
    }

    void rows()
    {
        const auto [number, freeMode, cells] = ::Rows<int, bool, QStringList>::current();
        MappingArea area = blockWith({32, 3, 0}, Layout::SlaveRegisters, 40001);
        area.system[MappedBool] = {64, 7, 14};
        area.system[MappedFloat] = {1, NoAddress, NoAddress};
        MappingModel model = modelWith(number, area, modeOf(freeMode));
        QStringList shown;
        for (const MappingModel::Row& row : model.rowsOf(number)) {
            if (!row.isHidden)
                shown << cellsOf(row);
        }
        QCOMPARE(shown, cells);

        // Seven Bools are no byte, and a quantity of 0 has no address whatever the file says.
        area.user[MappedBool].quantity = 7;
        area.user[MappedInt].quantity = 0;
        model = modelWith(number, area, modeOf(freeMode));
        for (const MappingModel::Row& row : model.rowsOf(number)) {
            if (row.kind == MappingModel::Row::User && row.type == MappedBool)
                QCOMPARE(row.cells[MappingModel::Byte], QString("0"));
            if (row.kind == MappingModel::Row::User && row.type == MappedInt)
                QVERIFY2(cellsOf(row).endsWith("|--|--|--"), qPrintable(cellsOf(row)));
        }
    }

    // What the cells of a whole table ask for: a word a row, a letter a column (q quantity, s start, !
    // refused).
    void presses_data()
    {
        const ::Rows<int, bool, QString> row;
        row("free Modbus TCP slave", 0, true, "---s-- -q---- -q---- -q----");
        row("fixed Modbus TCP slave", 0, false, "------ -q---- -q---- -q---- -!---- -!---- -!----");
        row("fixed Modbus TCP slave, both", 2, false, "-q---- -q---- -q---- ------ ------");
        row("fixed PROFINET slave", 7, false, "-q---- -q---- -q---- -!---- -!---- -!----");
        row("Modbus TCP master, reads", 13, false, "-q-s-- -q-!-- -q-s--");
        row("EtherCAT master", 9, true, "------");
        row("PROFINET master", 18, true, "------");
        row("DeviceNet master", 20, true, "-q----");
    }

    void presses()
    {
        const auto [number, freeMode, expected] = ::Rows<int, bool, QString>::current();
        const MappingModel model = modelWith(number, {32, 0, 1}, freeMode);
        QStringList pressed;
        for (const MappingModel::Row& row : model.rowsOf(number)) {
            if (row.isHidden)
                continue;
            pressed << QString();
            for (int column = 0; column < MappingModel::ColumnCount; ++column) {
                const MappingModel::Press press = model.pressed(number, row, column);
                pressed.last() += QLatin1Char(press.refusal                                      ? '!'
                                              : press.kind == MappingModel::Press::EnterQuantity ? 'q'
                                              : press.kind == MappingModel::Press::EnterStart    ? 's'
                                                                                                 : '-');
            }
        }
        QCOMPARE(pressed.join(' '), expected);
    }

    void saveChecks_data()
    {
        const ::Rows<Bus, bool, Quantities, QString> row;
        const QString small =
            QStringLiteral("%1:User Bool and User Int Bytes Limit Range: %2 ~ %3, Please Fill In Again!");
        const QString all = QStringLiteral("%1:Bytes Limit Range: %2 ~ %3, Please Fill In Again!");
        const QString smallMultiple = QStringLiteral(
            "Profinet:The total number of bytes of all bool variables and int variables in user and system "
            "variables must be a multiple of 8, Please Fill In Again!");
        const QString allMultiple = QStringLiteral(
            "Profinet:The Total Number Of Bytes Must Be A Multiple Of 8, Please Fill In Again!");
        const struct
        {
            Bus bus;
            const char* name;
        } twins[] = {{Bus::EipSlave, "EtheretIP"}, {Bus::DnSlave, "DeviceNet"}};
        for (const auto& twin : twins) {
            const QString name = QLatin1String(twin.name);
            row(qPrintable(name + " full"), twin.bus, true, {1600, 0, 0}, {});
            row(qPrintable(name + " Bool and Int"), twin.bus, true, {1600, 1, 0},
                small.arg(name).arg(0).arg(200));
            row(qPrintable(name + " all"), twin.bus, true, {1568, 0, 2}, all.arg(name).arg(8).arg(200));
            row(qPrintable(name + " least"), twin.bus, true, {0, 0, 2}, {});
            row(qPrintable(name + " too little"), twin.bus, true, {0, 3, 0}, all.arg(name).arg(8).arg(200));
            row(qPrintable(name + " fixed full"), twin.bus, false, {480, 0, 18}, {});
            row(qPrintable(name + " fixed one byte more"), twin.bus, false, {8, 0, 33},
                all.arg(name).arg(4).arg(132));
            row(qPrintable(name + " fixed Bool and Int"), twin.bus, false, {0, 41, 0},
                small.arg(name).arg(0).arg(80));
            row(qPrintable(name + " fixed least"), twin.bus, false, {0, 2, 0}, {});
            row(qPrintable(name + " fixed too little"), twin.bus, false, {0, 1, 0},
                all.arg(name).arg(4).arg(132));
        }
        row("PROFINET full", Bus::PfnSlave, true, {1536, 0, 0}, {});
        row("PROFINET Bool and Int", Bus::PfnSlave, true, {1536, 1, 0},
            small.arg("Profinet").arg(0).arg(192));
        row("PROFINET all", Bus::PfnSlave, true, {1536, 0, 1}, all.arg("Profinet").arg(8).arg(192));
        row("PROFINET nothing", Bus::PfnSlave, true, {0, 0, 0}, all.arg("Profinet").arg(8).arg(192));
        row("PROFINET uneven Bool and Int", Bus::PfnSlave, true, {0, 2, 1}, {});
        row("PROFINET uneven", Bus::PfnSlave, true, {0, 6, 0}, allMultiple);
        row("fixed PROFINET, 20 + 76 and 68 + 124", Bus::PfnSlave, false, {0, 38, 12}, {});
        row("fixed PROFINET Bool and Int", Bus::PfnSlave, false, {0, 39, 0},
            small.arg("Profinet").arg(4).arg(76));
        row("fixed PROFINET all", Bus::PfnSlave, false, {0, 38, 13}, all.arg("Profinet").arg(4).arg(124));
        // The least Bool and Int bytes are told, not asked for: the multiple speaks first.
        row("fixed PROFINET, no Bool and Int", Bus::PfnSlave, false, {0, 0, 1}, smallMultiple);
        row("fixed PROFINET uneven Bool and Int", Bus::PfnSlave, false, {0, 4, 0}, smallMultiple);
        row("fixed PROFINET uneven", Bus::PfnSlave, false, {0, 2, 1}, allMultiple);
        row("EtherCAT full", Bus::EthcatSlave, true, {1472, 0, 0}, {});
        row("EtherCAT nothing", Bus::EthcatSlave, true, {0, 0, 0}, {});
        row("EtherCAT all", Bus::EthcatSlave, true, {1472, 1, 0}, all.arg("EtherCat").arg(0).arg(184));
        row("fixed EtherCAT full", Bus::EthcatSlave, false, {0, 0, 29}, {});
        row("fixed EtherCAT all", Bus::EthcatSlave, false, {8, 0, 29}, all.arg("EtherCat").arg(0).arg(116));
    }

    void saveChecks()
    {
        const auto [bus, freeMode, quantities, message] = ::Rows<Bus, bool, Quantities, QString>::current();
        // What is written is not looked at.
        const MappingModel model =
            modelWith(bus, areaWith(quantities), areaWith({9000, 9000, 9000}), {}, freeMode);
        const Refusal refusal = model.saveRefusal({QString(infoOf(bus).name()).toUpper()});
        QCOMPARE(refusal ? refusal->text.inEnglish() : QString(), message);
        if (refusal)
            QVERIFY(refusal->severity == Severity::Warning);
    }

    void aBusThatIsNotOnIsNotChecked()
    {
        MappingModel model; // everything empty
        model.load({}, MappingConfig::Free);
        QVERIFY(!model.saveRefusal({"EtherCatSlave", "ModbusTcpMaster"}));
        // The first one in order speaks, whatever the order of the list.
        const Refusal first = model.saveRefusal({"DeviceNetSlave", "profinetslave", "EtherCatSlave"});
        QVERIFY(first && first->text.inEnglish().startsWith("Profinet:"));
    }

    // Every quantity of the factory's file could be entered as it is, and lies where it would come to lie.
    void thePlantsMappingCanBeSaved()
    {
        const QByteArray content = FileStore::factoryFile("/application/fidbus/fieldbus_config.xml");
        QCOMPARE(mappingFault(content), QString());
        MappingConfig config;
        QVERIFY(MappingFile::read(content, config));
        QStringList names;
        for (const RoleInfo& role : RoleTable::Roles)
            names << role.name;
        for (const Mode mode : {MappingConfig::Free, MappingConfig::Fixed}) {
            MappingModel model;
            model.load(config.buses[mode], mode);
            const Refusal refusal = model.saveRefusal(names);
            QVERIFY2(!refusal, refusal ? qPrintable(refusal->text.inEnglish()) : "");
            for (int number = 0; number < TableCount; ++number) {
                const SubTable& table = tableOf(number);
                const MappingBus before = model.recordOf(table.bus);
                for (const MappedType type : Types) {
                    const int quantity = areaOf(before, table.direction).user[type].quantity;
                    if (quantity == 0)
                        continue;
                    QCOMPARE(refusalOf(model.enterQuantity(number, type, quantity)), QString());
                    QVERIFY2(model.recordOf(table.bus) == before, infoOf(table.bus).name());
                }
            }
        }
    }
};

QTEST_GUILESS_MAIN(TestMappingModel)
#include "tst_mappingmodel.moc"
