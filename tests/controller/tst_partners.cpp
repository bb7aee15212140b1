#include "ControllerPanel.h"
#include "FinsClient.h"
#include "FrameFields.h"
#include "FrameTab.h"
#include "MesServer.h"
#include "ModbusFrame.h"
#include "ModbusSlave.h"
#include "Partners.h"
#include "Rows.h"
#include "Scenario.h"
#include "SimulatedController.h"
#include "TestMain.h"

#include <QCheckBox>
#include <QComboBox>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
#include <QSpinBox>
#include <QStandardPaths>
#include <QTabWidget>
#include <QTableWidget>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QThread>
#include <QtEndian>

namespace {

const QString Fins = QStringLiteral("ifins_tcp.connected");
const QString Mes = QStringLiteral("imes.tcp_server_connected");
const QString Master = QStringLiteral("ifidbus.mbc_connected");
const QString Slave = QStringLiteral("ifidbus.mtcp_link_state");

struct Cell
{
    explicit Cell(double timeScale = 20)
    {
        controller.setTimeScale(timeScale);
        controller.setModbusPort(0);
        partners().useFreePorts();
        QObject::connect(&controller.traffic(), &Traffic::logged,
                         [this](const QString& line) { log << line; });
    }
    Partners& partners() { return controller.partners(); }
    double value(const QString& name) const { return controller.readVariable(name); }
    bool allConnected() const
    {
        return value(Fins) != 0.0 && value(Mes) != 0.0 && value(Master) != 0.0 && value(Slave) != 0.0;
    }

    QTemporaryDir folder;
    SimulatedController controller{folder.path()};
    QStringList log;
};

QByteArray document(const char* name)
{
    QFile file(QStringLiteral(SOURCE_DIRECTORY "/docs/") + QLatin1String(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class TestPartners : public QObject
{
    Q_OBJECT

private slots:
    void everyLinkIsMadeByOneClick()
    {
        Cell cell;
        ControllerPanel panel(cell.controller);
        panel.findChild<QTabWidget*>()->setCurrentWidget(panel.findChild<QWidget*>("partnerTab"));
        const struct
        {
            const char* box;
            QString light;
        } clicks[] = {{"fins", Fins}, {"mes", Mes}, {"modbus-server", Master}, {"modbus-client", Slave}};
        for (const auto& click : clicks) {
            QCOMPARE(cell.value(click.light), 0.0);
            panel.findChild<QCheckBox*>(click.box)->click();
            QTRY_COMPARE(cell.value(click.light), 1.0);
        }
        // What stands in the memory of the PLC is what the robot reads.
        auto* const words = panel.findChild<QTableWidget*>("dmWords");
        const int row = words->row(words->findItems("1000", Qt::MatchExactly).constFirst());
        words->item(row, 1)->setText("0x1234");
        QTRY_COMPARE(cell.controller.behaviour<FinsClient>().word(), quint16(0x1234));
        // A flood is taken, and the connection stands.
        panel.findChild<QPushButton*>("mesFlood")->click();
        QTRY_COMPARE(cell.controller.frames().frames().size(), FrameLog::MostFrames);
        QCOMPARE(cell.value(Mes), 1.0);

        panel.findChild<QPushButton*>("partnersOff")->click();
        QTRY_VERIFY(cell.value(Fins) + cell.value(Mes) + cell.value(Master) + cell.value(Slave) == 0.0);
        QVERIFY(cell.controller.setRoleOn("ProfinetMaster", true)); // its device is out of use
        panel.findChild<QPushButton*>("partnersOn")->click();
        QTRY_VERIFY_WITH_TIMEOUT(cell.value(Mes) + cell.value(Slave) == 2.0, 8000);
        QTRY_COMPARE(cell.controller.readVariable("ifidbus.pnm_status", 1), 1.0);
        for (const BusRole& role : LinkedBusRoles) {
            const bool hasSocket = QByteArray(role.name).startsWith("ModbusTcp");
            QVERIFY2(hasSocket || cell.value(role.linkVariable) ==
                                      (cell.controller.roles().isOn(role.name) ? 1.0 : 0.0),
                     role.name);
        }
        QTRY_COMPARE(cell.controller.readVariable("ifidbus.eim_status", 3), 1.0);
        QTRY_COMPARE(cell.controller.readVariable("ifidbus.dnm_status", 2), 1.0);

        // After a restart the robot's ends are off until the partners have them switched on again.
        cell.controller.requestRestart();
        QTRY_VERIFY(!cell.controller.isUp());
        QTRY_VERIFY_WITH_TIMEOUT(cell.allConnected(), 8000);
        QTRY_COMPARE(cell.controller.readVariable("ifidbus.pnm_status", 1), 1.0);
    }

    // Whoever waits for an answer does not take a standstill of the whole program for silence.
    void standstills()
    {
        Cell cell;
        QVERIFY(cell.partners().fins().start());
        QVERIFY(cell.partners().modbusServer().start());
        while (cell.controller.behaviour<FinsClient>().state() == FinsClient::State::Off)
            QCoreApplication::processEvents();
        for (int turn = 0; turn < 4; ++turn) {
            QThread::msleep(1200);
            QCoreApplication::processEvents();
        }
        QTRY_VERIFY(cell.value(Fins) + cell.value(Master) == 2.0);
        QCOMPARE(cell.log.filter(QRegularExpression("timed out|in time")), QStringList());
    }

    void abuse()
    {
        Cell cell;
        FinsPartner& fins = cell.partners().fins();
        auto taken = std::make_unique<QTcpServer>();
        QVERIFY(taken->listen(QHostAddress::LocalHost));
        const quint16 port = taken->serverPort();
        fins.setPort(port);
        QVERIFY(!fins.start());
        QVERIFY(cell.log.constLast().contains(QString("port %1: ").arg(port)));
        taken.reset();
        // Twice is once: a server goes on, a request that toggles is not made again.
        for (int press = 0; press < 2; ++press) {
            QVERIFY(fins.start());
            QVERIFY(cell.partners().mes().start());
        }
        QTRY_VERIFY(cell.value(Fins) + cell.value(Mes) == 2.0);

        // Garbage is cut off, and whoever else is connected stays.
        QTcpSocket stranger;
        stranger.connectToHost(QHostAddress::LocalHost, port);
        QTRY_COMPARE(stranger.state(), QAbstractSocket::ConnectedState);
        stranger.write(QByteArray(1000000, '\x80'));
        QTRY_COMPARE(stranger.state(), QAbstractSocket::UnconnectedState);
        QTRY_VERIFY(!cell.log.filter("no frame").isEmpty());
        QCOMPARE(cell.value(Fins), 1.0);

        // A server that goes while an answer is on its way.
        QVERIFY(cell.controller.faults().setFromText("modbus-slow:-1:200"));
        auto& server = cell.partners().modbusServer();
        QVERIFY(server.start());
        QTRY_VERIFY(cell.controller.frames().frames().constLast().wire == Wire::Modbus);
        server.stop();
        QTest::qWait(300);
        QCOMPARE(cell.value(Master), 0.0);
        QVERIFY(server.start());
        QTRY_COMPARE(cell.value(Master), 1.0);
    }

    // All at once, as the robot's patience is real time.
    void faultsStrike()
    {
        const struct
        {
            const char* fault;
            const char* told; // in the log, behind a port
        } rows[] = {
            {"fins-silent", "timed out"},
            {"fins-slow:-1:4000", "timed out"},
            {"fins-drops:1:0", "closed"},
            {"fins-garbage", "no frame"},
            {"fins-error-code", "error code 33"},
            {"fins-end-code:-1:0x0205", "end code 0205"},
            {"modbus-silent", "no answer in time"},
            {"modbus-slow:-1:5000", "no answer in time"},
            {"modbus-drops:-1:0", "closed"},
            {"modbus-garbage", "no frame"},
            {"modbus-exception:-1:11", "exception 11"},
            {"modbus-wrong-unit", "no answer in time"},
            {"port-taken", "The bound address is already in use"},
        };
        std::vector<std::unique_ptr<Cell>> cells;
        for (const auto& row : rows) {
            cells.push_back(std::make_unique<Cell>());
            Cell& cell = *cells.back();
            QVERIFY2(cell.controller.faults().setFromText(row.fault), row.fault);
            const bool isFins = !QByteArray(row.fault).startsWith("modbus");
            QCOMPARE(cell.partners().find(isFins ? "fins" : "modbus-server")->start(),
                     QByteArray(row.fault) != "port-taken");
        }
        for (std::size_t i = 0; i < std::size(rows); ++i) {
            const QRegularExpression line(QString("(:|port )\\d+: .*%1").arg(rows[i].told));
            QTRY_VERIFY2(!cells[i]->log.filter(line).isEmpty(),
                         qPrintable(rows[i].fault + (": " + cells[i]->log.join('\n'))));
            QVERIFY2(cells[i]->value(Fins) + cells[i]->value(Master) == 0.0, rows[i].fault);
        }

        // What the robot thinks good enough: a late answer, an exception, an answer before the connection is
        // dropped.
        for (const char* fault : {"modbus-slow:-1:300", "modbus-exception:-1:131", "modbus-drops"}) {
            Cell cell;
            QVERIFY(cell.controller.faults().setFromText(fault));
            QVERIFY(cell.partners().modbusServer().start());
            QTRY_VERIFY2(cell.value(Master) == 1.0, fault);
        }
        for (const char* fault : {"modbus-slow:-1:late", "modbus-exception:-1:256", "poll-wrong-unit:-1:-1"})
            QVERIFY2(!Faults().setFromText(fault), fault);
    }

    // Of the partners that call.
    void callFaults()
    {
        struct Row
        {
            const char* fault;
            bool comes;
            bool goes;
            const char* frames; // "<" the robot receives some, ">" it sends some
        };
        const Row rows[] = {{"mes-silent", false, false, ""},       {"mes-slow:-1:60000", false, false, ""},
                            {"mes-slow:1:300", true, false, ""},    {"mes-drops:-1:100", true, true, ""},
                            {"mes-garbage", true, false, "<"},      {"poll-silent", false, false, ""},
                            {"poll-slow:1:300", true, false, "<>"}, {"poll-drops:-1:100", true, true, "<>"},
                            {"poll-garbage:2", true, true, "<>"},   {"poll-wrong-unit", true, false, "<"}};
        std::vector<int> changes(std::size(rows));
        std::vector<std::unique_ptr<Cell>> cells;
        const auto isMes = [&rows](std::size_t i) { return QByteArray(rows[i].fault).startsWith("mes"); };
        const auto partner = [&](std::size_t i) {
            return cells[i]->partners().find(isMes(i) ? "mes" : "modbus-client");
        };
        for (std::size_t i = 0; i < std::size(rows); ++i) {
            cells.push_back(std::make_unique<Cell>());
            QVERIFY2(cells[i]->controller.faults().setFromText(rows[i].fault), rows[i].fault);
            const QString light = isMes(i) ? Mes : Slave;
            connect(&cells[i]->controller.variables(), &VariableStore::changed, this,
                    [&changes, i, light](const QString& name, int /*element*/, double /*value*/) {
                        changes[i] += name == light ? 1 : 0;
                    });
            QVERIFY(partner(i)->start());
        }
        const auto framesOf = [&cells](std::size_t i) {
            bool received = false;
            bool sent = false;
            for (const LoggedFrame& frame : cells[i]->controller.frames().frames())
                (frame.received ? received : sent) = true;
            return QString(received ? "<" : "") + (sent ? ">" : "");
        };
        for (std::size_t i = 0; i < std::size(rows); ++i) {
            QTRY_VERIFY2(!isMes(i) || cells[i]->value("imes.tcp_server_active") == 1.0, rows[i].fault);
            // A drop is seen when the connection comes back after it.
            QTRY_VERIFY2(changes[i] >= (rows[i].goes ? 3 : rows[i].comes ? 1 : 0), rows[i].fault);
            QTRY_VERIFY2(framesOf(i) == rows[i].frames, rows[i].fault);
            const QRegularExpression loss("^partner .*port \\d+: (hung up|.*closed)");
            QVERIFY2(cells[i]->log.filter(loss).isEmpty() != rows[i].goes, rows[i].fault);
        }
        QTest::qWait(1100); // two looks of a partner
        for (std::size_t i = 0; i < std::size(rows); ++i) {
            QVERIFY2(rows[i].goes || changes[i] == (rows[i].comes ? 1 : 0), rows[i].fault);
            QVERIFY2(rows[i].goes || framesOf(i) == rows[i].frames, rows[i].fault);
            partner(i)->stop();
            cells[i]->controller.faults().clearAll();
            QVERIFY(partner(i)->start());
            QTRY_VERIFY2(cells[i]->value(isMes(i) ? Mes : Slave) == 1.0, rows[i].fault);
        }
    }

    // The boxes tell what holds, whoever set it; a port counts as soon as it stands in its box.
    void boxesFollow()
    {
        Cell cell;
        ControllerPanel panel(cell.controller);
        panel.findChild<QTabWidget*>()->setCurrentWidget(panel.findChild<QWidget*>("partnerTab"));
        auto* const code = panel.findChild<QSpinBox*>("finsErrorCode");
        QVERIFY(cell.controller.faults().setFromText("fins-error-code:2"));
        QTRY_COMPARE(code->value(), 0x21);
        QCOMPARE(cell.controller.faults().timesLeft(Faults::FinsErrorCode), 2);
        cell.controller.faults().clearAll();
        QTRY_COMPARE(code->value(), 0);
        code->setValue(0x20);
        QCOMPARE(cell.controller.faults().numberOf(Faults::FinsErrorCode), 0x20);

        // A number that is none sets nothing.
        auto* const faults = panel.findChild<QTableWidget*>("faultTable");
        const struct
        {
            const char* target;
            bool isTaken;
        } edits[] = {{"late", false}, {"300", true}};
        for (const auto& edit : edits) {
            faults->item(Faults::ModbusSlow, 3)->setText(edit.target);
            faults->item(Faults::ModbusSlow, 2)->setText("1");
            QCOMPARE(cell.controller.faults().isSet(Faults::ModbusSlow), edit.isTaken);
        }

        QTcpServer probe;
        QVERIFY(probe.listen(QHostAddress::LocalHost));
        const int port = probe.serverPort();
        probe.close();
        auto* const box = panel.findChild<QSpinBox*>("fins-port");
        box->selectAll();
        QTest::keyClicks(box, QString::number(port));
        panel.findChild<QCheckBox*>("fins")->click();
        QCOMPARE(cell.partners().fins().servedPort(), port);
    }

    void pauseHoldsTheFrames()
    {
        Cell cell;
        ControllerPanel panel(cell.controller);
        auto* const tab = panel.findChild<FrameTab*>();
        auto* const table = tab->findChild<QTableWidget*>("frameTable");
        auto* const fields = tab->findChild<QTableWidget*>("fieldTable");
        const auto arrive = [&cell, tab](Wire::Id wire, const QByteArray& bytes) {
            cell.controller.frames().add({QDateTime::currentDateTime(), wire, true, true, 1, 2, bytes});
            tab->refresh();
        };
        arrive(Wire::Mes, "first");
        arrive(Wire::Mes, "second");
        table->selectRow(1);
        QCOMPARE(fields->rowCount(), 1);
        // The chosen one moves up with the others, and is told as long as it is there.
        for (int i = 0; i < FrameLog::MostFrames - 1; ++i)
            arrive(Wire::Modbus, QByteArray::number(i));
        QCOMPARE(table->currentRow(), 0);
        QCOMPARE(table->selectedItems().size(), table->columnCount());
        QCOMPARE(fields->item(0, 1)->text(), QString(QByteArray("second").toHex(' ')));
        // The filter works on what is held.
        tab->findChild<QCheckBox*>("pauseFrames")->setChecked(true);
        arrive(Wire::Mes, "third");
        tab->findChild<QComboBox*>("frameFilter")->setCurrentText("MES");
        QCOMPARE(table->rowCount(), 1);
        tab->findChild<QCheckBox*>("pauseFrames")->setChecked(false);
        arrive(Wire::Mes, "fourth");
        QCOMPARE(table->rowCount(), 2);
        QCOMPARE(fields->item(0, 1)->text(), QString(QByteArray("fourth").toHex(' ')));
    }

    void documentTellsTheFaults()
    {
        const QString text = QString::fromUtf8(document("simulated-controller.md"))
                                 .section("| fault |", 1)
                                 .section("\n\n", 0, 0);
        QStringList told;
        QRegularExpression row("^\\| `([a-z-]+)` \\|.*\\|$", QRegularExpression::MultilineOption);
        for (auto match = row.globalMatch(text); match.hasNext();)
            told << match.next().captured(0);
        QStringList expected;
        for (int number = 0; number < Faults::FaultCount; ++number) {
            const auto fault = static_cast<Faults::Fault>(number);
            expected << QString("| `%1` | %2 | %3 |")
                            .arg(Faults::nameOf(fault), Faults::targetMeaningOf(fault),
                                 Faults::meaningOf(fault));
        }
        QCOMPARE(told, expected);
    }

    void registersHaveTheirNames()
    {
        Cell cell;
        auto& client = cell.partners().modbusClient();
        client.start();
        auto& slave = cell.controller.behaviour<ModbusSlave>();
        const struct
        {
            int number;
            const char* name;
            QVector<quint16> registers;
            const char* shown;
        } rows[] = {
            {40101, "mtcp_ro_b[0..15] Conveyor 1", {0x8001}, "1000000000000001"},
            {40134, "mtcp_ro_i[1] Recipe value 2", {0xfffe}, "-2"},
            {40167, "mtcp_ro_f[1]", {0x40b0, 0}, "5.5"},
            {40364, "", {7}, ""}, // the second half of a Float is no row of its own
        };
        for (const auto& row : rows) {
            for (int i = 0; i < row.registers.size(); ++i)
                QVERIFY(slave.setRegister(row.number + i, row.registers[i]));
        }
        const auto shown = [&client](int number) {
            for (const auto& row : client.rows()) {
                if (row.number == number)
                    return row.name + " = " + row.value;
            }
            return QString(" = ");
        };
        for (const auto& row : rows)
            QTRY_COMPARE(shown(row.number), QString(row.name) + " = " + row.shown);
    }

    void everyByteHasAName()
    {
        const auto frame = [](Wire::Id wire, const QByteArray& hex, bool received = false) {
            return LoggedFrame{QDateTime::currentDateTime(), wire, received, false, 1, 2,
                               QByteArray::fromHex(hex)};
        };
        const struct
        {
            LoggedFrame frame;
            QString names;
        } rows[] = {
            {frame(Wire::Modbus, "0001 0000 0006 01 03 0064 0001"),
             "transaction/protocol/length/unit/function/address/count"},
            {frame(Wire::Modbus, "0001 0000 0007 01 03 04 0001 0002", true),
             "transaction/protocol/length/unit/function/bytes/register 0/register 1"},
            {frame(Wire::Modbus, "0001 0000 0003 01 83 02", true),
             "transaction/protocol/length/unit/function/exception"},
            {frame(Wire::Modbus, "0001 0000 0003 01 63 02"),
             "transaction/protocol/length/unit/function/data"},
            {frame(Wire::Fins, "46494e53 0000000c 00000000 00000000 00000016"),
             "magic/length/command/error code/client node"},
            {frame(Wire::Fins, "46494e53 00000018 00000002 00000000 c0000200160000030001 0101 0000 04d2"),
             "magic/length/command/error code/ICF: information control/RSV: reserved/GCT: gateway count/"
             "DNA: destination network/DA1: destination node/DA2: destination unit/SNA: source network/"
             "SA1: source node/SA2: source unit/SID: service number/MRC: main request/SRC: sub-request/end "
             "code/"
             "word 0"},
            {frame(Wire::Mes, "48656c6c6f"), "text"},
        };
        for (const auto& row : rows) {
            QStringList names;
            for (const FrameField& field : fieldsOf(row.frame))
                names << field.name;
            QCOMPARE(names.join('/'), row.names);
            // Nor is anything left out of one that is cut short, or that goes on.
            for (int size = 0; size <= row.frame.bytes.size() + 9; ++size) {
                LoggedFrame other = row.frame;
                other.bytes = (other.bytes + QByteArray(9, '\x81')).left(size);
                int at = 0;
                for (const FrameField& field : fieldsOf(other)) {
                    QCOMPARE(field.offset, at);
                    at += field.size;
                }
                QCOMPARE(at, size);
            }
        }
    }

    void capture()
    {
        Cell cell;
        QVERIFY(cell.partners().startAll());
        QTRY_VERIFY_WITH_TIMEOUT(cell.allConnected() &&
                                     cell.controller.behaviour<FinsClient>().wordsRead() > 0 &&
                                     cell.controller.frames().frames().size() > 4,
                                 8000);
        cell.partners().stopAll();
        ControllerPanel panel(cell.controller);
        auto* const tab = panel.findChild<FrameTab*>();
        tab->refresh();
        const QString path = cell.folder.filePath("frames.pcap");
        QVERIFY(tab->save(path));
        QVERIFY(!tab->save(cell.folder.filePath("nowhere/frames.pcap")));

        // An own look: every packet is as long as it says, sums up, and carries its frame.
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray bytes = file.readAll();
        QCOMPARE(bytes.left(4).toHex(), QByteArray("d4c3b2a1"));
        int at = 24;
        int frames[Wire::Count] = {};
        for (const LoggedFrame& frame : cell.controller.frames().frames()) {
            const int size = qFromUnaligned<qint32>(bytes.constData() + at + 8);
            const QByteArray packet = bytes.mid(at + 16, size);
            QCOMPARE(packet.size(), size);
            QCOMPARE(int(ModbusFrame::wordAt(packet, 2)), size);
            quint32 sum = 0;
            for (int word = 0; word < 20; word += 2)
                sum += ModbusFrame::wordAt(packet, word);
            QCOMPARE((sum & 0xffff) + (sum >> 16), 0xffffU);
            QCOMPARE(packet.mid(40), frame.bytes);
            at += 16 + size;
            ++frames[frame.wire];
        }
        QCOMPARE(at, bytes.size());

        const QString tshark = QStandardPaths::findExecutable("tshark");
        if (tshark.isEmpty())
            QSKIP("tshark is not installed");
        QProcess reader;
        QStringList arguments = {"-r", path, "-o", "ip.check_checksum:TRUE", "-o", "tcp.check_checksum:TRUE"};
        for (const LoggedFrame& frame : cell.controller.frames().frames())
            arguments << "-d"
                      << QString("tcp.port==%1,%2")
                             .arg(frame.isServer ? frame.controllerPort : frame.partnerPort)
                             .arg(frame.wire == Wire::Fins ? "omron" : "mbtcp");
        reader.start(tshark, arguments);
        QTRY_COMPARE_WITH_TIMEOUT(reader.state(), QProcess::NotRunning, 60000);
        const QByteArray told = reader.readAllStandardOutput();
        QVERIFY2(told.count("Modbus/TCP") == frames[Wire::Modbus] &&
                     told.count(" OMRON ") == frames[Wire::Fins] && !told.contains("Malformed") &&
                     !told.contains("incorrect"),
                 told + reader.readAllStandardError());
    }

    void scenariosThatMakeNoSense()
    {
        Cell cell;
        Scenario scenario(cell.controller, {});
        const struct
        {
            const char* text;
            const char* complaint;
        } rows[] = {
            {"# nothing\n\n  \r\n", ""},
            {"now cable EtherCatSlave out", "line 1: a line is"},
            {"-1 restart", "line 1: a line is"},
            {"nan restart", "line 1: a line is"},
            {"\xff\xfe\x01 restart", "line 1: a line is"},
            {"1 fault modbus-slow:1:soon", "line 1: there is no fault"},
            {"0 restart\n1", "line 2: a line is"},
            {"0 jump", "line 1: there is no action \"jump\""},
            {"0 cable Mes out", "line 1: there is no role"},
            {"0 cable EtherCatSlave", "line 1: it is: cable"},
            {"0 cable EtherCatSlave loose", "line 1: it is: cable"},
            {"0 fault no-such:1", "line 1: there is no fault"},
            {"0 variable ifidbus.eim_status[9] 1", "line 1: there is no variable"},
            {"0 variable ifidbus.eim_status[8] many", "line 1: it is: variable"},
            {"0 partner plc on", "line 1: there is no partner"},
            {"0 user-level 10", "line 1: it is: user-level"},
        };
        for (const auto& row : rows) {
            const QString complaint = scenario.load(row.text);
            QVERIFY2(complaint.contains(row.complaint) && complaint.isEmpty() == !*row.complaint,
                     qPrintable(row.text + (": " + complaint)));
        }
    }

    void scenarios_data()
    {
        const Rows<QStringList> row;
        // seen: variables as they change, one after the other
        row("plc-comes-and-goes.txt",
            QStringList{"ifins_tcp.error=1", "ifins_tcp.connected=1", "ifins_tcp.error=1"});
        row("lost-slave-module.txt", QStringList{"ifidbus.ethcat_link_state=0", "ifidbus.ethcat_link_state=1",
                                                 "ifidbus.ethcat_link_state=0"});
        row("busy-morning.txt",
            QStringList{"ifidbus.mtcp_link_state=1", "imes.tcp_server_connected=0", "level=2", "level=4",
                        "ifins_tcp.connected=1", "imes.tcp_server_connected=1"});
    }

    void scenarios()
    {
        auto [seen] = Rows<QStringList>::current();
        // The sockets live in real time, which a scenario about them must leave them.
        Cell cell(4);
        const auto take = [&seen = seen](const QString& change) {
            if (!seen.isEmpty() && seen.constFirst() == change)
                seen.removeFirst();
        };
        connect(&cell.controller.variables(), &VariableStore::changed, this,
                [&take](const QString& name, int /*element*/, double value) {
                    take(QString("%1=%2").arg(name).arg(value));
                });
        Scenario scenario(cell.controller, [&take](int level) { take(QString("level=%1").arg(level)); });
        const QByteArray text = document((QByteArray("scenarios/") + QTest::currentDataTag()).constData());
        QVERIFY(!text.isEmpty());
        QCOMPARE(scenario.load(text), QString());
        scenario.start();
        QTRY_VERIFY_WITH_TIMEOUT(scenario.isOver(), 30000);
        QTRY_COMPARE(seen, QStringList());
    }
};

PENDANT_TEST_MAIN(TestPartners)
#include "tst_partners.moc"
