#include "FieldRanges.h"
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
    FieldRange range;
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

template <auto Record, auto Member>
constexpr Range row(RoleId role, FileId file, const char* name)
{
    return {role, file, name, RangeOf<Member>, textOf<Record, Member>};
}

using C = Configuration;
constexpr Range Ranges[] = {
    row<&C::mtcpMaster, &MtcpMasterConfig::SlaveId>(RoleId::ModbusTcpMaster, FileId::MtcpMaster, "SlaveId"),
    row<&C::mtcpMaster, &MtcpMasterConfig::TimeOut>(RoleId::ModbusTcpMaster, FileId::MtcpMaster, "TimeOut"),
    row<&C::mtcpMaster, &MtcpMasterConfig::ReadEndian>(RoleId::ModbusTcpMaster, FileId::MtcpMaster,
                                                       "ReadEndian"),
    row<&C::mtcpMaster, &MtcpMasterConfig::WriteEndian>(RoleId::ModbusTcpMaster, FileId::MtcpMaster,
                                                        "WriteEndian"),
    row<&C::mes, &MesServerConfig::Mode>(RoleId::Mes, FileId::MesServer, "Mode"),
    row<&C::mes, &MesServerConfig::Protocol>(RoleId::Mes, FileId::MesServer, "Protocol"),
    row<&C::mes, &MesServerConfig::IntervalTime>(RoleId::Mes, FileId::MesServer, "IntervalTime"),
    row<&C::mes, &MesServerConfig::IpPortIndex>(RoleId::Mes, FileId::MesServer, "IpPortIndex"),
    row<&C::fins, &FinsClientConfig::AutoConnect>(RoleId::FinsTcp, FileId::FinsClient, "AutoConnect"),
    row<&C::fins, &FinsClientConfig::IpPortIndex>(RoleId::FinsTcp, FileId::FinsClient, "IpPortIndex"),
    row<&C::eipMaster, &MasterSlaveTable::DisableTimeout>(RoleId::EtherNetIPMaster, FileId::EipMaster,
                                                          "DisableTimeout"),
    row<&C::eipMaster, &MasterSlaveTable::EnableTimeout>(RoleId::EtherNetIPMaster, FileId::EipMaster,
                                                         "EnableTimeout"),
    row<&C::pfnMaster, &MasterSlaveTable::DisableTimeout>(RoleId::ProfinetMaster, FileId::PfnMaster,
                                                          "DisableTimeout"),
    row<&C::pfnMaster, &MasterSlaveTable::EnableTimeout>(RoleId::ProfinetMaster, FileId::PfnMaster,
                                                         "EnableTimeout"),
    row<&C::pfbSlave, &PfbSlaveConfig::ProfibusAddress>(RoleId::ProfinetSlave, FileId::PfbSlave,
                                                        "PROFIBUS_ADDRESS"),
    row<&C::deviceNetMaster, &DeviceNetMasterConfig::WS_ID>(RoleId::DeviceNetMaster, FileId::DeviceNetMaster,
                                                            "WS_ID"),
    row<&C::deviceNetMaster, &DeviceNetMasterConfig::PACHET_RATIO>(RoleId::DeviceNetMaster,
                                                                   FileId::DeviceNetMaster, "PACHET_RATIO"),
};

void check(const Range& field, const Configuration& configuration, FindingList& found)
{
    const QString text = field.text(configuration);
    bool isNumber = false;
    const double value = text.trimmed().toDouble(&isNumber);
    if (isNumber && value >= field.range.least && value <= field.range.most)
        return;
    const QString name = QLatin1String(field.name);
    const bool isXml = KnownFiles::of(field.file).root;
    const FindingList::About about{
        field.role, field.file, {isXml ? '<' + QByteArray(field.name) : '\n' + QByteArray(field.name)}};
    const std::vector<Evidence> facts{FindingList::fact(name, field.file, text)};
    if (!isNumber)
        found.add(FindingCode::ValueNoNumber, about, {name, titleOf(field.role), text}, facts);
    else
        found.add(FindingCode::ValueOutside, about,
                  {name, titleOf(field.role), text, QString::number(field.range.least),
                   QString::number(field.range.most, 'f', 0)},
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
        const bool isBothWays = isFixed && isDynamic;
        const bool isBeyond = (isFixed || isDynamic) && isNumber && i >= count;
        if (!isBothWays && !isBeyond)
            continue;
        const Evidence fixed = FindingList::fact(QLatin1String(position.fixedElement), file, isFixed ? 1 : 0);
        const Evidence dynamic =
            FindingList::fact(QLatin1String(position.dynamicElement), file, isDynamic ? 1 : 0);
        const QString number = QString::number(i + 1);
        if (isBothWays)
            found.add(FindingCode::PositionBothWays,
                      {role, file, {'<' + QByteArray(position.dynamicElement)}}, {titleOf(role), number},
                      {fixed, dynamic});
        if (isBeyond)
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
