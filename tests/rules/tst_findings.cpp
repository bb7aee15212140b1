// The factory plant with one fault each: the findings that must come, and no other.

#include "ConfigurationFindings.h"
#include "PlantFiles.h"
#include "Rows.h"
#include "RunningState.h"

#include <QElapsedTimer>
#include <QRegularExpression>

using Edits = QVector<Edit>;
Q_DECLARE_METATYPE(Edits)
using Variables = QVector<QPair<QString, int>>;
Q_DECLARE_METATYPE(Variables)

namespace {

using F = FileId;
constexpr const char* Removed = nullptr;

Edit on(const char* role)
{
    return {F::RoleList, QByteArray("name=\"") + role + "\" enable=\"0\"", "name=\"FinsTcp\" enable=\"1\""};
}

QString wordOf(const Finding& finding)
{
    const char* levels[] = {"i", "w", "e"};
    return finding.codeText() + QLatin1String(levels[int(finding.severity)]);
}

QStringList wordsOf(const Findings& findings)
{
    QStringList words;
    for (const Finding& finding : findings)
        words << wordOf(finding);
    words.sort();
    return words;
}

// What the plant alone does not have, sorted.
QStringList newOf(const Findings& findings)
{
    QStringList words = wordsOf(findings);
    for (const QString& word : wordsOf(findingsOf(PlantFiles().configuration())))
        words.removeOne(word);
    return words;
}

// All that a person needs is there, and no place is left open.
bool isWhole(const Finding& finding)
{
    const QString text = finding.cause.inEnglish() + finding.next.inEnglish();
    return !finding.evidence.empty() && !text.contains(QRegularExpression("%[1-9]")) &&
           !finding.next.inEnglish().isEmpty();
}

RunningState healthy(const Configuration& configuration)
{
    RunningState state;
    state.running = configuration.on;
    for (const RoleInfo& role : RoleTable::Roles) {
        if (role.linkVariable)
            state.variables[role.linkVariable] = 1;
    }
    state.variables["ifidbus.anybus_fm"] = 13;
    state.variables["imes.tcp_server_active"] = 1;
    for (int i = 0; i < 16; ++i)
        state.variables[QString("ifidbus.dnm_status[%1]").arg(i)] = 1;
    for (int i = 0; i < 9; ++i)
        state.variables[QString("ifidbus.eim_status[%1]").arg(i)] = 1;
    return state;
}

} // namespace

class TestFindings : public QObject
{
    Q_OBJECT

private slots:
    void thePlantIsWell()
    {
        for (const Finding& finding : findingsOf(PlantFiles().configuration())) {
            QVERIFY2(finding.severity == FindingSeverity::Information, qPrintable(finding.cause.inEnglish()));
            QVERIFY(isWhole(finding));
        }
    }

    void faults_data()
    {
        const Rows<Edits, QString> row;
        // Files
        row("a file is missing", {{F::Heartbeat, {}, Removed}}, "FB101w");
        row("what is not exported may be missing", {{F::Override, {}, Removed}, {F::MesServer, {}, Removed}},
            "");
        row("a file is empty", {{F::DeviceNetSlave, {}, " \n"}}, "FB102e");
        row("a robot without groups", {{F::GroupIo, {}, ""}}, "");
        row("an element is not closed", {{F::EipMaster, "</Group>", ""}}, "FB103e");
        row("a DOCTYPE", {{F::MtcpMaster, "<MtcpM", "<!DOCTYPE a [<!ENTITY b \"c\">]><MtcpM"}}, "FB103e");
        row("another file under the name", {{F::MesServer, {}, "<ClientConfig><ServerIP/></ClientConfig>"}},
            "FB104e");
        row("an XML file without its group", {{F::PfnMaster, {}, "<PfnMasterCommunication/>"}}, "FB105e");
        row("half a driver file", {{F::PfbSlave, {}, "DRIVER pfbslave\nPROFIBUS_ADDRESS 7\n"}}, "FB105e");
        row("a scan list cut in a device",
            {{F::DeviceNetMaster, "BLOCK_FROM_RBX 2008 8 16\nO-0   OUT_w_8    2008", ""}}, "FB105e");
        row("a quantity that is no number", {{F::Mapping, "quantity=\"512\"", "quantity=\"5x\""}}, "FB105e");
        row("a text file of zeros", {{F::EipSlave, {}, "\1\2IPADDR NETMASK RUN_ALWAYS"}},
            "FB307e FB603w FB602w FB601w");
        row("a NUL behind the end", {{F::ProfisafeDescription, "</ProfiSafe>", {"</ProfiSafe>\0", 13}}},
            "FB105e");
        row("Latin-1 in an XML file", {{F::FinsClient, "<ServerIP>", "<ServerIP>\xe4"}}, "FB107e");
        row("an element of another version", {{F::MesServer, "<Mode>", "<Modus>1</Modus><Mode>"}}, "FB108i");
        row("a role of another version",
            {{F::RoleList, "<Bus name=\"Mes\"", "<Bus name=\"CcLink\"/><Bus name=\"Mes\""}}, "FB109i");
        row("a role twice", {{F::RoleList, "</Fieldbus>", "<Bus name=\"Mes\" enable=\"0\"/></Fieldbus>"}},
            "FB110w");
        row("the switch file differs", {{F::BusSwitch, "<enable>1", "<enable>0"}}, "FB111i");
        // Roles
        row("two masters",
            {{F::RoleList, "\"EtherCatMaster\" enable=\"0\"", "\"EtherCatMaster\" enable=\"1\""}},
            "FB111i FB201e FB705i");
        row("both DeviceNet roles",
            {{F::RoleList, "\"DeviceNetSlave\" enable=\"0\"", "\"DeviceNetSlave\" enable=\"1\""}},
            "FB111i FB202e FB705i");
        row("a role without the free configuration",
            {{F::RoleList, "\"FreeBus\" enable=\"1\"", "\"FreeBus\" enable=\"0\""}}, "FB111i FB203e");
        row("a master without its device", {{F::Override, ";ECAT_SLAVE_OFF 2 3001", "ECAT_SLAVE_OFF 2 3001"}},
            "FB204e");
        row("a slave without its module's line", {{F::Override, ";ECAT_SLAVE_OFF 1 1005 ;ANYBUS", ""}},
            "FB204e");
        row("a device under two names", {{F::Override, "ECAT_SLAVE_OFF 2 3002", ";ECAT_SLAVE_OFF 2 3001"}},
            "FB205e FB206i FB208e");
        row("a device of a role that is off",
            {{F::Override, "ECAT_SLAVE_OFF 2 3002", ";ECAT_SLAVE_OFF 2 3002"}}, "FB206i FB208e");
        row("the Modbus slave is off",
            {{F::RoleList, "\"ModbusTcpSlave\" enable=\"1\"", "\"ModbusTcpSlave\" enable=\"0\""}}, "FB207i");
        // Network
        row("an address of no port", {{F::EipSlave, "IPADDR 192.168.2.22", "IPADDR 192.168.2.23"}}, "FB301e");
        row("the mask of another net", {{F::EipSlave, "255.255.255.0", "255.255.0.0"}}, "FB302w");
        row("two ports in one net", {{F::NetworkPorts, "192.168.1.22", "192.168.2.21"}}, "FB303w");
        row("the nets of two ports overlap", {{F::NetworkPorts, "255.255.255.0", "255.255.0.0"}}, "FB303w");
        row("two ports with one address", {{F::NetworkPorts, "192.168.1.22", "192.168.2.22"}}, "FB304e");
        row("the server is the robot", {{F::MtcpMaster, "127.0.0.1", "192.168.1.22"}}, "FB305e");
        row("the server is out of reach", {{F::MtcpMaster, "127.0.0.1", "10.0.0.1"}}, "FB308w");
        row("the server is in a port's net", {{F::MtcpMaster, "127.0.0.1", "192.168.1.40"}}, "");
        row("five numbers are no address", {{F::MtcpMaster, "127.0.0.1", "192.168.1.4.1"}}, "FB307e");
        row("256 is no number of an address", {{F::MtcpMaster, "127.0.0.1", "192.168.1.256"}}, "FB307e");
        row("a mask with a hole", {{F::NetworkPorts, "255.255.255.0", "255.0.255.0"}}, "FB309w");
        for (const char* port : {"502", "2222", "44818", "8000", "8100"})
            row(QString("MES on %1").arg(port), {{F::MesServer, "8008", port}}, "FB310e");
        row("MES on the port of FINS", {on("FinsTcp"), {F::MesServer, "8008", "9600"}}, "FB111i FB311w");
        row("MES on 65536", {{F::MesServer, "8008", "65536"}}, "FB312e");
        row("MES on no number", {{F::MesServer, "8008", "eight"}}, "FB312e");
        row("MES on 65535", {{F::MesServer, "8008", "65535"}}, "");
        row("the Modbus master to port 0", {{F::MtcpMaster, "1503", "0"}}, "FB312e");
        row("the MES port has no address", {{F::NetworkPorts, "ip=\"192.168.2.22\"", "ip=\"\""}},
            "FB301e FB308i FB313e FB313i");
        row("the FINS node is the server's", {on("FinsTcp"), {F::FinsClient, ">22<", ">10<"}},
            "FB111i FB320e");
        row("the FINS node is 0", {on("FinsTcp"), {F::FinsClient, ">22<", ">0<"}}, "FB111i FB321e");
        row("the FINS node is 254", {on("FinsTcp"), {F::FinsClient, ">22<", ">254<"}}, "FB111i FB322i");
        row("the FINS node is 255", {on("FinsTcp"), {F::FinsClient, ">22<", ">255<"}}, "FB111i FB321e");
        row("a DM address beyond", {on("FinsTcp"), {F::FinsClient, "5000", "32768"}}, "FB111i FB323w");
        row("FINS reads what it writes", {on("FinsTcp"), {F::FinsClient, "5000", "1000"}}, "FB111i FB324w");
        row("a role that is off is no matter", {{F::FinsClient, ">22<", ">0<"}}, "FB321i");
        // DeviceNet
        row("a MAC ID twice", {{F::DeviceNetMaster, "MAC ID 9", "MAC ID 5"}}, "FB401e");
        row("a MAC ID that is the scanner's", {{F::DeviceNetMaster, "MAC ID 9", "MAC ID 1\n"}}, "FB402e");
        row("a MAC ID beyond", {{F::DeviceNetMaster, "MAC ID 9", "MAC ID 64"}}, "FB403e");
        row("an odd MAC ID of a slave that is off", {{F::DeviceNetSlave, ">12<", ">13<"}}, "FB404i");
        row("a slave's MAC ID beyond", {{F::DeviceNetSlave, ">12<", ">64<"}}, "FB405i");
        row("a baud rate of none", {{F::DeviceNetMaster, "BAUDRATE 250", "BAUDRATE 300"}}, "FB406e");
        row("more inputs than mapped",
            {{F::DeviceNetMaster, "BLOCK_TO_RBX 2001 4 8", "BLOCK_TO_RBX 2001 23 46"}}, "FB408e FB411e");
        row("more outputs than mapped",
            {{F::DeviceNetMaster, "BLOCK_FROM_RBX 2008 8 16", "BLOCK_FROM_RBX 2008 27 54"}}, "FB409e");
        row("registers beyond",
            {{F::DeviceNetMaster, "BLOCK_FROM_RBX 2008 8 16", "BLOCK_FROM_RBX 3008 8 16"}}, "FB410e");
        row("registers twice", {{F::DeviceNetMaster, "BLOCK_TO_RBX 2005 2 4", "BLOCK_TO_RBX 2004 2 4"}},
            "FB411e");
        row("a device without data", {{F::DeviceNetMaster, "BLOCK_TO_RBX 2007 1 1", "BLOCK_TO_RBX 2007 0 0"}},
            "FB412i");
        // Mapping
        row("a quantity above its limit",
            {{F::Mapping, R"("Float" quantity="16" start="120" end="183")",
              R"("Float" quantity="47" start="120" end="307")"}},
            "FB501e FB503e");
        row("Bools that are no multiple",
            {{F::Mapping, "quantity=\"320\" start=\"0\"", "quantity=\"312\" start=\"0\""}}, "FB502e FB508e");
        row("rows on one another", {{F::Mapping, "start=\"40\" end=\"119\"", "start=\"39\" end=\"118\""}},
            "FB506e");
        row("an end before its start", {{F::Mapping, "start=\"40\" end=\"119\"", "start=\"119\" end=\"40\""}},
            "FB507e");
        row("a row of another length", {{F::Mapping, "start=\"40\" end=\"119\"", "start=\"40\" end=\"117\""}},
            "FB508e");
        row("blocks on one another",
            {{F::Mapping, "start=\"40101\" end=\"40196\"", "start=\"40096\" end=\"40196\""}}, "FB509e");
        row("registers beyond the slave's",
            {{F::Mapping, "\"rw\" start=\"40301\" end=\"40364\"", "\"rw\" start=\"40301\" end=\"41001\""}},
            "FB510e");
        row("PROFINET bytes that are no multiple of 8",
            {{F::Mapping, R"("Float" quantity="16" start="128" end="191")",
              R"("Float" quantity="15" start="128" end="187")"}},
            "FB505e");
        row("a role without rows",
            {{F::RoleList, "\"ProfinetMaster\" enable=\"0\"", "\"ProfinetMaster\" enable=\"1\""},
             {F::Mapping, "<Bus name=\"ProfinetMaster\">", "<Bus name=\"Other\">"}},
            "FB111i FB201e FB204e FB512w FB705i");
        // Byte order
        row("the free variant's byte order", {{F::PfbFree, "BIG_ENDIAN", "LITTLE_ENDIAN"}}, "FB601w");
        row("the fixed variant's byte order", {{F::EipSlaveFixed, "LITTLE_ENDIAN", "MIDDLE_LITTLE_ENDIAN"}},
            "FB602w");
        row("a byte order of none", {{F::DeviceNetMaster, "ENDIAN LITTLE_ENDIAN", "ENDIAN little"}},
            "FB603w");
        // Watches
        row("a watch on a role that is off", {{F::Heartbeat, "<Ecm_Nod_Switch>0", "<Ecm_Nod_Switch>1"}},
            "FB701w");
        row("a watch without time", {{F::Heartbeat, "2.500", "0.000"}}, "FB702e");
        row("a watch shorter than the scan", {{F::Heartbeat, "5.000", "0.009"}}, "FB703w");
        row("a watch as long as the scan", {{F::Heartbeat, "5.000", "0.010"}}, "");
        row("a watch shorter than the time-out", {{F::Heartbeat, "3.000", "1.499"}}, "FB704w");
        row("a role that is not watched", {{F::Heartbeat, "<Eip_Nod_Switch>1", "<Eip_Nod_Switch>0"}},
            "FB705i");
        row("a watch with a time below 0", {{F::Heartbeat, "2.500", "-1.0"}}, "FB706e");
        // Values
        row("a unit beyond", {{F::MtcpMaster, "<SlaveId>1<", "<SlaveId>126<"}}, "FB801w");
        row("a time-out below", {{F::MtcpMaster, "1.500", "0.09"}}, "FB801w");
        row("a byte order index beyond", {{F::MtcpMaster, "<ReadEndian>0", "<ReadEndian>4"}}, "FB801w");
        row("a mode of MES beyond", {{F::MesServer, "<Mode>0", "<Mode>2"}}, "FB801w");
        row("a PROFIBUS address beyond", {{F::PfbSlave, "PROFIBUS_ADDRESS 7 ", "PROFIBUS_ADDRESS 126 "}},
            "FB801w");
        row("a packet ratio of 0", {{F::DeviceNetMaster, "PACHET_RATIO 10", "PACHET_RATIO 0"}}, "FB801w");
        row("a time-out of letters", {{F::EipMaster, ">5000<", ">soon<"}}, "FB802e");
        row("ten slaves", {{F::EipMaster, "<SlaveNum>4", "<SlaveNum>10"}}, "FB803e");
        row("a slave both ways", {{F::EipMaster, "<DynSlave1>0", "<DynSlave1>1"}}, "FB804w");
        row("a slave beyond the count", {{F::EipMaster, "<FixSlave5>0", "<FixSlave5>1"}}, "FB805i");
    }

    void faults()
    {
        const auto [edits, expected] = Rows<Edits, QString>::current();
        const PlantFiles plant(edits);
        QVERIFY2(plant.isEdited(), "the fault is not in the plant");
        const Findings findings = findingsOf(plant.configuration());
        QStringList wanted = expected.split(' ', Qt::SkipEmptyParts);
        wanted.sort();
        QCOMPARE(newOf(findings).join(' '), wanted.join(' '));
        for (std::size_t i = 0; i < findings.size(); ++i) {
            QVERIFY2(isWhole(findings[i]), qPrintable(findings[i].cause.inEnglish()));
            QVERIFY(i == 0 || findings[i - 1].severity >= findings[i].severity);
        }
    }

    // The place is the line that a person opens.
    void places_data()
    {
        const Rows<Edits, QString, QString> row;
        row("the line of a role",
            {{F::RoleList, "\"EtherCatMaster\" enable=\"0\"", "\"EtherCatMaster\" enable=\"1\""}}, "FB201",
            "fieldbus.xml:14");
        row("the line behind the damage", {{F::EipMaster, "</Group>", ""}}, "FB103",
            "eipMaster/eip_master.xml:31");
        row("the second device's", {{F::DeviceNetMaster, "MAC ID 9", "MAC ID 5"}}, "FB401",
            "fa/dnmst0.cfg:30");
        row("a keyword's, not its comment's", {{F::DeviceNetMaster, "PACHET_RATIO 10", "PACHET_RATIO 0"}},
            "FB801", "fa/dnmst0.cfg:11");
        row("an element's", {{F::MtcpMaster, "1.500", "0.09"}}, "FB801", "mtcpMaster/mtcp_master.xml:8");
        row("a row of the mapping, in its bus and direction",
            {{F::Mapping, "start=\"40\" end=\"119\"", "start=\"119\" end=\"40\""}}, "FB507",
            "fieldbus_config.xml:25");
    }

    void places()
    {
        const auto [edits, code, place] = Rows<Edits, QString, QString>::current();
        for (const Finding& finding : findingsOf(PlantFiles(edits).configuration())) {
            if (finding.codeText() != code)
                continue;
            QVERIFY(finding.file);
            QCOMPARE(QString("%1:%2").arg(KnownFiles::of(*finding.file).name).arg(finding.line), place);
            return;
        }
        QFAIL("not found");
    }

    // A controller that runs as its files say, with one variable changed.
    void running_data()
    {
        const Rows<Edits, Variables, QString> row;
        row("all is well", {}, {}, "");
        row("a link is down", {}, {{"ifidbus.eip_link_state", 0}}, "FB901w");
        row("a link is down, and the settings tell why",
            {{F::EipSlave, "IPADDR 192.168.2.22", "IPADDR 192.168.2.23"}}, {{"ifidbus.eip_link_state", 0}},
            "FB301e");
        row("the link of a role that is off", {}, {{"ifidbus.ecm_link_state", 0}}, "");
        row("no module", {},
            {{"ifidbus.anybus_fm", 0}, {"ifidbus.ethcat_link_state", 0}, {"ifidbus.pfn_link_state", 0}},
            "FB902e FB902e");
        row("another module", {}, {{"ifidbus.anybus_fm", 14}, {"ifidbus.ethcat_link_state", 0}}, "FB903e");
        row("another module, and a link all the same", {}, {{"ifidbus.anybus_fm", 14}}, "");
        row("FINS is refused", {},
            {{"ifins_tcp.enable", 1}, {"ifins_tcp.error", 1}, {"ifins_tcp.connected", 0}}, "FB904i");
        row("nobody at the MES server", {}, {{"imes.tcp_server_connected", 0}}, "FB905w");
        row("the MES server is stopped", {}, {{"imes.tcp_server_active", 0}}, "FB906w");
        row("a device is off the network", {},
            {{"ifidbus.dnm_status[3]", 0}, {"ifidbus.dnm_errorcode[3]", 2}}, "FB907e");
        row("a device's MAC ID is taken", {},
            {{"ifidbus.dnm_status[1]", 0}, {"ifidbus.dnm_errorcode[1]", 12}}, "FB908e");
        row("a device with another code", {},
            {{"ifidbus.dnm_status[1]", 0}, {"ifidbus.dnm_errorcode[1]", 99}}, "FB909e");
        row("a device that is not listed", {},
            {{"ifidbus.dnm_status[5]", 0}, {"ifidbus.dnm_errorcode[5]", 2}}, "");
        row("a fixed slave is down", {}, {{"ifidbus.eim_status[1]", 0}}, "FB910w");
        row("a dynamic slave is away", {}, {{"ifidbus.eim_status[2]", 0}}, "");
        row("the mapping was rejected", {}, {{"ifidbus.xml_update_state", 0xC800}}, "FB913e");
        row("the mapping was not taken", {}, {{"ifidbus.xml_update_state", 0x8000}}, "FB912w");
        row("the mapping was taken", {}, {{"ifidbus.xml_update_state", 0xC000}}, "");
        row("a file was not taken", {}, {{"ifidbus.dnm_save_config", 1}}, "FB912w");
        row("a command was not taken", {}, {{"ifidbus.pfn2open", 1}}, "FB914w");
        row("the bus switches were not answered", {}, {{"ifidbus.bus_type_state", 1}}, "FB912w");
        row("the bus switches were refused", {}, {{"ifidbus.bus_type_state", 0x4000}}, "FB918e");
        row("the bus switches were taken", {}, {{"ifidbus.bus_type_state", 0x8000}}, "");
    }

    void running()
    {
        const auto [edits, variables, expected] = Rows<Edits, Variables, QString>::current();
        const Configuration configuration = PlantFiles(edits).configuration();
        RunningState state = healthy(configuration);
        for (const auto& variable : variables)
            state.variables[variable.first] = variable.second;
        QCOMPARE(newOf(findingsOf(configuration, &state)).join(' '), expected);
    }

    void whatWasSavedRunsAfterTheRestart()
    {
        const Configuration configuration = PlantFiles().configuration();
        RunningState state = healthy(configuration);
        (*state.running)[std::size_t(RoleId::EtherNetIPSlave)] = false;
        state.variables["ifidbus.eip_link_state"] = 0;
        QCOMPARE(newOf(findingsOf(configuration, &state)).join(' '), QString("FB911i"));
    }

    // One finding a group that differs, and none for what only reads otherwise.
    void settingsRunAfterTheRestart()
    {
        const Configuration configuration = PlantFiles().configuration();
        const auto cameUpWith = [&](FileId file, const char* before, const char* after) {
            RunningState state = healthy(configuration);
            const QByteArray& bytes = configuration.bytes(file);
            state.cameUp[int(file)] = QByteArray(bytes).replace(before, after);
            return newOf(findingsOf(configuration, &state)).join(' ');
        };
        QCOMPARE(cameUpWith(F::EipSlave, "192.168.2.22", "192.168.2.30"), QString("FB917i"));
        QCOMPARE(cameUpWith(F::EipSlave, "192.168.2.22", "192.168.2.22"), QString());
        QCOMPARE(cameUpWith(F::EipMaster, "<EipMaster", "<!-- old --><EipMaster"), QString());
        QCOMPARE(cameUpWith(F::Heartbeat, "1.000", "3.000"), QString()); // taken at once
    }

    void theWatchIsAboutToTrip()
    {
        const Configuration configuration = PlantFiles().configuration();
        const auto after = [&](double seconds) {
            RunningState state = healthy(configuration);
            state.downFor[std::size_t(RoleId::EtherNetIPSlave)] = seconds; // watched for 1 s
            return newOf(findingsOf(configuration, &state)).join(' ');
        };
        QCOMPARE(after(0.4), QString());
        QCOMPARE(after(0.5), QString("FB915w"));
        QCOMPARE(after(1.0), QString("FB916e"));
    }

    // Nobody can type such a file, but somebody can put it onto a drive.
    void hostileFilesTakeNoTime()
    {
        QByteArray roles = "<Fieldbus>";
        for (int i = 0; i < 60'000; ++i)
            roles += "<Bus name=\"r" + QByteArray::number(i) + "\" enable=\"1\"/>";
        QByteArray deep;
        for (int i = 0; i < 200'000; ++i)
            deep += "<a>";
        QElapsedTimer timer;
        timer.start();
        const QByteArray wholeRoles = roles + "</Fieldbus>";
        QCOMPARE(newOf(findingsOf(PlantFiles({{F::RoleList, {}, wholeRoles.constData()}}).configuration()))
                     .contains("FB106e"),
                 true);
        findingsOf(PlantFiles({{F::Mapping, {}, deep.constData()}}).configuration());
        QVERIFY2(timer.elapsed() < 5000, qPrintable(QString::number(timer.elapsed())));
    }

    // docs/findings.md is what the codes are looked up in.
    void theDocumentListsEveryCode()
    {
        QFile file(QLatin1String(DOCS_DIRECTORY) + QStringLiteral("/findings.md"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QStringList listed;
        for (const QString& line : QString::fromUtf8(file.readAll()).split('\n')) {
            if (line.startsWith("| FB"))
                listed << line;
        }
        const char* levels[] = {"information", "warning", "error"};
        QStringList known;
        for (const FindingKind& kind : findingKinds())
            known << QString("| %1 | %2 | %3 | %4 | %5 |")
                         .arg(textOf(kind.code), levels[int(kind.severity)], kind.cause, kind.evidence,
                              kind.next);
        for (int i = 0; i < qMin(known.size(), listed.size()); ++i)
            QCOMPARE(listed[i], known[i]);
        QCOMPARE(listed.size(), known.size());
    }
};

QTEST_GUILESS_MAIN(TestFindings)
#include "tst_findings.moc"
