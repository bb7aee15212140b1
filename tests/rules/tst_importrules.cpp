// What an import may bring, and what it does to the roles.

#include "FileCheck.h"
#include "PlantFiles.h"
#include "RolePlan.h"
#include "Rows.h"
#include "SwitchRules.h"

Q_DECLARE_METATYPE(FileId)

namespace {

QString faultOf(FileId file, const QByteArray& content, const QByteArray* present)
{
    const auto fault = FileCheck::faultOf(KnownFiles::of(file), content, present);
    return fault ? fault->text.inEnglish() : QString();
}

QByteArray plant(FileId file)
{
    return *PlantFiles().at(file);
}

QByteArray roles(const QStringList& on, const QStringList& off = {})
{
    QByteArray file = "<Fieldbus>";
    for (const QString& role : on)
        file += "<Bus name='" + role.toUtf8() + "' enable='1'/>";
    for (const QString& role : off)
        file += "<Bus name='" + role.toUtf8() + "' enable='0'/>";
    return file + "</Fieldbus>";
}

} // namespace

class TestImportRules : public QObject
{
    Q_OBJECT

private slots:
    // Half of every file that the pendant reads is refused, whether the controller has one or not; what the
    // controller has itself is not.
    void halfAFileIsRefused_data()
    {
        const Rows<FileId> row;
        for (const KnownFile& known : KnownFiles::all())
            row(known.name, known.id);
    }

    void halfAFileIsRefused()
    {
        const auto [file] = Rows<FileId>::current();
        const QByteArray whole = plant(file);
        QCOMPARE(faultOf(file, whole, nullptr), QString());
        QCOMPARE(faultOf(file, whole, &whole), QString());
        const QByteArray half = whole.left(whole.size() / 2);
        const bool isReadHere = KnownFiles::of(file).root || file == FileId::PfbSlave ||
                                file == FileId::PfbFree || file == FileId::EipSlave ||
                                file == FileId::EipSlaveFixed || file == FileId::DeviceNetMaster;
        if (isReadHere) {
            QVERIFY(!faultOf(file, half, &whole).isEmpty());
            QVERIFY(!faultOf(file, half, nullptr).isEmpty());
        }
        QCOMPARE(faultOf(file, half, &half), QString());
    }

    void judged_data()
    {
        const Rows<FileId, QByteArray, QByteArray, QString> row; // what is brought, what the controller has
        row("the controller's own root counts", FileId::UserDescription, "<Other a='2'/>", "<Other/>", "");
        row("another root than its own", FileId::UserDescription, "<UserDescription/>", "<Other/>",
            "begins with \"UserDescription\" instead of \"Other\"");
        row("a root that is guessed is no measure", FileId::UserDescription, "<Other/>", "-", "");
        row("a root that is read is one", FileId::MesServer, "<Other><Port/></Other>", "-",
            "begins with \"Other\" instead of \"TcpServerConfig\"");
        row("the controller's own is no XML", FileId::SlaveModule, "DRIVER y", "DRIVER x", "");
        row("a robot without groups", FileId::GroupIo, "", "GROUP 1", "");
        row("a driver without a line", FileId::Modbus, "", "DRIVER x", "is empty");
        row("a keyword that the controller's own lacks", FileId::PfbSlave, "PROFIBUS_ADDRESS 1\nRUN_ALWAYS\n",
            "PROFIBUS_ADDRESS 2\nRUN_ALWAYS\n", "");
        row("a keyword that it has", FileId::PfbSlave, "PROFIBUS_ADDRESS 1\n",
            "PROFIBUS_ADDRESS 2\nRUN_ALWAYS\n", "has no \"RUN_ALWAYS\"");
        row("an element that the controller's own lacks", FileId::MtcpMaster,
            "<MtcpMasterCommunication a='1'/>", "<MtcpMasterCommunication/>", "");
        row("a DOCTYPE", FileId::Heartbeat, "<!DOCTYPE a [<!ENTITY x 'y'>]><Fidbus><Mtcp/></Fidbus>", "-",
            "line 1: DOCTYPE");
        row("UTF-16", FileId::Heartbeat, QByteArray("\xff\xfe<\0F\0", 6), "-", "is not in UTF-8");
        for (const char* bytes : {"\xC0\xAF", "\xED\xA0\x80", "\xE0\x80\x80", "\xF0\x8F\xBF\xBF",
                                  "\xF4\x90\x80\x80", "\xF8\x88\x80\x80\x80", "\x80", "\xC3", "\xE2\x82 "})
            row(QByteArray(bytes).toHex() + QString(" is no character"), FileId::Heartbeat,
                "<Fidbus><Mtcp/></Fidbus><!--" + QByteArray(bytes) + "-->", "-", "is not in UTF-8");
        row("characters of each length", FileId::Heartbeat,
            "<Fidbus><Mtcp/></Fidbus><!--\xC2\x80\xDF\xBF\xE0\xA0\x80\xED\x9F\xBF\xEF\xBF\xBF"
            "\xF0\x90\x80\x80\xF4\x8F\xBF\xBF-->",
            "-", "");
        row("two roots", FileId::Heartbeat, "<Fidbus><Mtcp/></Fidbus>\n<Fidbus/>", "-", "line 2: Fidbus");
        row("an address that is no number", FileId::Mapping,
            "<FieldbusConfig><Mode name='free'><Bus name='EtherCatSlave'><Area direction='ro'><User "
            "type='Bool' "
            "quantity='1' start='x'/></Area></Bus></Mode></FieldbusConfig>",
            "-", "holds a quantity or an address that is no number in its range");
    }

    void judged()
    {
        const auto [file, content, present, said] = Rows<FileId, QByteArray, QByteArray, QString>::current();
        QCOMPARE(faultOf(file, content, present == "-" ? nullptr : &present), said);
    }

    void moreThanAnyControllerHas()
    {
        const QString tooMuch = "holds more than any file of a controller";
        const auto listOf = [](int count) {
            QStringList names;
            for (int i = 0; i < count; ++i)
                names << QString::number(i);
            return roles(names);
        };
        QCOMPARE(faultOf(FileId::RoleList, listOf(FileCheck::MostRoles), nullptr), QString());
        QCOMPARE(faultOf(FileId::RoleList, listOf(FileCheck::MostRoles + 1), nullptr), tooMuch);
        const QByteArray elements = "<Description>" + QByteArray("<a/>").repeated(FileCheck::MostElements);
        QCOMPARE(faultOf(FileId::FreeDescription, elements + "</Description>", nullptr), tooMuch);
        const QByteArray text(FileCheck::MostText + 1, 'x');
        QCOMPARE(faultOf(FileId::FreeDescription, "<Description a='" + text + "'/>", nullptr), tooMuch);
        QCOMPARE(faultOf(FileId::Modbus, QByteArray(int(KnownFiles::MostBytes) + 1, 'x'), nullptr),
                 QString("is larger than any file of a controller"));
    }

    // Which roles may be on together: a letter a rule, in the order in which they are told.
    void switches_data()
    {
        const Rows<QStringList, bool, QString> row;
        row("one master of each kind", {"EtherNetIPMaster", "DeviceNetMaster"}, false, "");
        row("EtherNet/IP and EtherCAT master", {"EtherNetIPMaster", "EtherCatMaster"}, false, "m");
        row("EtherCAT and PROFINET master", {"EtherCatMaster", "ProfinetMaster"}, false, "m");
        row("all three", {"EtherCatMaster", "ProfinetMaster", "EtherNetIPMaster"}, false, "m");
        row("both DeviceNet roles", {"DeviceNetSlave", "DeviceNetMaster"}, false, "d");
        row("the Modbus master without free configuration", {"ModbusTcpMaster"}, false, "f");
        row("the Modbus master with it", {"ModbusTcpMaster", "FreeBus"}, false, "");
        row("the PROFINET slave without it", {"ProfinetSlave"}, false, "");
        row("the PROFINET slave with ProfiSAFE", {"ProfinetSlave"}, true, "p");
        row("both with ProfiSAFE", {"ProfinetSlave", "ModbusTcpMaster"}, true, "p");
        row("both with ProfiSAFE and free", {"ProfinetSlave", "ModbusTcpMaster", "FreeBus"}, true, "");
        row("everything at once",
            {"EtherCatMaster", "ProfinetMaster", "DeviceNetSlave", "DeviceNetMaster", "ModbusTcpMaster"},
            false, "mdf");
    }

    void switches()
    {
        const auto [on, profisafe, expected] = Rows<QStringList, bool, QString>::current();
        QByteArray bytes = roles(on);
        ImportedRoles plan;
        QVERIFY(RolePlan::takeRoleList(bytes, {}, {true, profisafe}, plan));
        QString letters;
        for (const char* rule : plan.brokenRules) {
            const QString text = rule;
            letters += text.startsWith("EthernetIP")              ? 'm'
                       : text.startsWith("DeviceNet")             ? 'd'
                       : text.contains("ModbusTcp Master switch") ? 'f'
                                                                  : 'p';
        }
        QCOMPARE(letters, expected);
    }

    void thePlanListsWhatGoesOff()
    {
        QByteArray bytes = roles({"Mes", "ProfinetSlave"}, {"FreeBus"});
        const QByteArray before = bytes;
        const std::vector<ListedRole> present = {{"FreeBus", true}, {"Other", true}, {"Away", false}};
        ImportedRoles plan;
        QVERIFY(RolePlan::takeRoleList(bytes, present, {false, false}, plan));
        QStringList words;
        for (const ImportedRole& role : plan.roles)
            words << QString("%1 %2%3").arg(role.name).arg(role.now).arg(role.after);
        QCOMPARE(words, QStringList({"Mes 01", "ProfinetSlave 00", "FreeBus 10", "Other 10"}));
        QVERIFY(plan.profinetSlaveSwitchedOff);
        QCOMPARE(bytes, QByteArray(before).replace("ProfinetSlave' enable='1'", "ProfinetSlave' enable='0'"));
        bytes = "<Other/>";
        QVERIFY(!RolePlan::takeRoleList(bytes, present, {true, false}, plan));
    }

    // The bus switch file goes by the same rules; the PROFINET master of a file before says nothing here.
    void theSwitchFileIsPlannedToo()
    {
        QByteArray bytes = plant(FileId::BusSwitch);
        ImportedRoles plan;
        QVERIFY(RolePlan::takeSwitchFile(bytes, {true, false}, plan));
        QCOMPARE(bytes, plant(FileId::BusSwitch));
        QVERIFY(plan.brokenRules.empty() && plan.switches.ProfinetSlave &&
                plan.switches.ModbusTcpMasterListed);
        QVERIFY(RolePlan::takeSwitchFile(bytes, {false, false}, plan));
        QVERIFY(plan.profinetSlaveSwitchedOff && !plan.switches.ProfinetSlave &&
                plan.switches.EtherNetIPSlave);
        bytes.replace("<enable>0", "<enable>1");
        QVERIFY(RolePlan::takeSwitchFile(bytes, {true, false}, plan));
        QCOMPARE(plan.brokenRules.size(), std::size_t(2));
    }

    // The EtherNet/IP slave's bit stands for it; the PROFINET slave's never does, and controllers count on
    // it.
    void thePerformanceIsLostWithItsHolder_data()
    {
        const Rows<int, bool, bool, bool> row; // word, EtherNet/IP slave, PROFINET slave
        row("nobody has it", 0, false, false, false);
        row("the EtherNet/IP slave's", 4, false, true, true);
        row("the EtherNet/IP slave's, which is on", 4, true, false, false);
        row("the PROFINET slave's", 8, true, false, false);
        row("another word", 6, true, false, true);
    }

    void thePerformanceIsLostWithItsHolder()
    {
        const auto [word, eipSlave, pfnSlave, isLost] = Rows<int, bool, bool, bool>::current();
        RoleTable::States on{};
        on[std::size_t(RoleId::EtherNetIPSlave)] = eipSlave;
        on[std::size_t(RoleId::ProfinetSlave)] = pfnSlave;
        QCOMPARE(SwitchRules::losesPerformance(word, on), isLost);
    }
};

QTEST_GUILESS_MAIN(TestImportRules)
#include "tst_importrules.moc"
