#include "Rules.h"

#include <type_traits>

namespace Rules {

namespace {

// A field of a record and what its page lets through.
struct Range
{
    RoleId role;
    FileId file;
    const char* name; // element or keyword
    double least;
    double most;
    QString (*text)(const Configuration& configuration);
};

template <auto Record, auto Member>
QString textOf(const Configuration& configuration)
{
    if constexpr (std::is_same_v<std::decay_t<decltype(configuration.*Record.*Member)>, int>)
        return QString::number(configuration.*Record.*Member);
    else
        return configuration.*Record.*Member;
}

using C = Configuration;
constexpr Range Ranges[] = {
    {RoleId::ModbusTcpMaster, FileId::MtcpMaster, "SlaveId", 0, 125,
     textOf<&C::mtcpMaster, &MtcpMasterConfig::SlaveId>},
    {RoleId::ModbusTcpMaster, FileId::MtcpMaster, "TimeOut", 0.1, 10,
     textOf<&C::mtcpMaster, &MtcpMasterConfig::TimeOut>},
    {RoleId::ModbusTcpMaster, FileId::MtcpMaster, "ReadEndian", 0, 3,
     textOf<&C::mtcpMaster, &MtcpMasterConfig::ReadEndian>},
    {RoleId::ModbusTcpMaster, FileId::MtcpMaster, "WriteEndian", 0, 3,
     textOf<&C::mtcpMaster, &MtcpMasterConfig::WriteEndian>},
    {RoleId::Mes, FileId::MesServer, "Mode", 0, 1, textOf<&C::mes, &MesServerConfig::Mode>},
    {RoleId::Mes, FileId::MesServer, "Protocol", 0, 1, textOf<&C::mes, &MesServerConfig::Protocol>},
    {RoleId::Mes, FileId::MesServer, "IntervalTime", 0, 9999,
     textOf<&C::mes, &MesServerConfig::IntervalTime>},
    {RoleId::Mes, FileId::MesServer, "IpPortIndex", 0, 1, textOf<&C::mes, &MesServerConfig::IpPortIndex>},
    {RoleId::FinsTcp, FileId::FinsClient, "AutoConnect", 0, 1,
     textOf<&C::fins, &FinsClientConfig::AutoConnect>},
    {RoleId::FinsTcp, FileId::FinsClient, "IpPortIndex", 0, 1,
     textOf<&C::fins, &FinsClientConfig::IpPortIndex>},
    {RoleId::EtherNetIPMaster, FileId::EipMaster, "DisableTimeout", 0, 999999,
     textOf<&C::eipMaster, &MasterSlaveTable::DisableTimeout>},
    {RoleId::EtherNetIPMaster, FileId::EipMaster, "EnableTimeout", 0, 999999,
     textOf<&C::eipMaster, &MasterSlaveTable::EnableTimeout>},
    {RoleId::ProfinetMaster, FileId::PfnMaster, "DisableTimeout", 0, 999999,
     textOf<&C::pfnMaster, &MasterSlaveTable::DisableTimeout>},
    {RoleId::ProfinetMaster, FileId::PfnMaster, "EnableTimeout", 0, 999999,
     textOf<&C::pfnMaster, &MasterSlaveTable::EnableTimeout>},
    {RoleId::ProfinetSlave, FileId::PfbSlave, "PROFIBUS_ADDRESS", 0, 125,
     textOf<&C::pfbSlave, &PfbSlaveConfig::ProfibusAddress>},
    {RoleId::DeviceNetMaster, FileId::DeviceNetMaster, "WS_ID", 0, 63,
     textOf<&C::deviceNetMaster, &DeviceNetMasterConfig::WS_ID>},
    {RoleId::DeviceNetMaster, FileId::DeviceNetMaster, "PACHET_RATIO", 1, 255,
     textOf<&C::deviceNetMaster, &DeviceNetMasterConfig::PACHET_RATIO>},
};

void check(const Range& range, const Configuration& configuration, FindingList& found)
{
    const QString text = range.text(configuration);
    bool isNumber = false;
    const double value = text.trimmed().toDouble(&isNumber);
    if (isNumber && value >= range.least && value <= range.most)
        return;
    const QString name = QLatin1String(range.name);
    const bool isXml = KnownFiles::of(range.file).root;
    const FindingList::About about{
        range.role, range.file, {isXml ? '<' + QByteArray(range.name) : '\n' + QByteArray(range.name)}};
    const std::vector<Evidence> facts{FindingList::fact(name, range.file, text)};
    if (!isNumber)
        found.add(FindingCode::ValueNoNumber, about, {name, titleOf(range.role), text}, facts);
    else
        found.add(FindingCode::ValueOutside, about,
                  {name, titleOf(range.role), text, QString::number(range.least),
                   QString::number(range.most, 'f', 0)},
                  facts);
}

// The two flags of a slave, against each other and against the slave count.
void positions(RoleId role, FileId file, const MasterSlaveTable& table, FindingList& found)
{
    bool isNumber = false;
    const int count = table.SlaveNum.trimmed().toInt(&isNumber);
    const Evidence countFact = FindingList::fact(QStringLiteral("SlaveNum"), file, table.SlaveNum);
    if (!isNumber || count < 0 || count > MasterSlaveTable::PositionCount)
        found.add(FindingCode::SlaveCountOutside, {role, file, {"<SlaveNum"}},
                  {titleOf(role), table.SlaveNum}, {countFact});
    for (int i = 0; i < MasterSlaveTable::PositionCount; ++i) {
        const auto& position = MasterSlaveTable::positions()[static_cast<std::size_t>(i)];
        const bool isFixed = table.*position.fixed;
        const bool isDynamic = table.*position.dynamic;
        if (!isFixed && !isDynamic)
            continue;
        const Evidence fixed = FindingList::fact(QLatin1String(position.fixedElement), file, isFixed ? 1 : 0);
        const Evidence dynamic =
            FindingList::fact(QLatin1String(position.dynamicElement), file, isDynamic ? 1 : 0);
        const QString number = QString::number(i + 1);
        if (isFixed && isDynamic)
            found.add(FindingCode::PositionBothWays,
                      {role, file, {'<' + QByteArray(position.dynamicElement)}}, {titleOf(role), number},
                      {fixed, dynamic});
        if (isNumber && i >= count)
            found.add(
                FindingCode::PositionBeyondCount,
                {role, file, {'<' + QByteArray(isFixed ? position.fixedElement : position.dynamicElement)}},
                {titleOf(role), number, table.SlaveNum}, {countFact, isFixed ? fixed : dynamic});
    }
}

} // namespace

void values(const Configuration& configuration, FindingList& found)
{
    for (const Range& range : Ranges) {
        if (configuration.isRead(range.file))
            check(range, configuration, found);
    }
}

void slavePositions(const Configuration& configuration, FindingList& found)
{
    if (configuration.isRead(FileId::EipMaster))
        positions(RoleId::EtherNetIPMaster, FileId::EipMaster, configuration.eipMaster, found);
    if (configuration.isRead(FileId::PfnMaster))
        positions(RoleId::ProfinetMaster, FileId::PfnMaster, configuration.pfnMaster, found);
}

} // namespace Rules
