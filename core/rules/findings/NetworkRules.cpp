#include "Rules.h"

#include "Addresses.h"
#include "MesPortRules.h"

namespace Rules {

namespace {

using Addresses::Ip;
using Addresses::ipOf;

constexpr int HighestPort = 65535;
constexpr int FinsPort = 9600;
constexpr int HighestNode = 254;
constexpr int HighestDmAddress = 32767;

std::vector<Evidence> portFacts(const Configuration& configuration)
{
    std::vector<Evidence> facts;
    for (const PortAddress& port : configuration.ports)
        facts.push_back(
            FindingList::fact(port.name, FileId::NetworkPorts, port.ip + QLatin1Char(' ') + port.netmask));
    return facts;
}

std::vector<Evidence> with(const Evidence& fact, std::vector<Evidence> more)
{
    more.insert(more.begin(), fact);
    return more;
}

const PortAddress* portWith(const Configuration& configuration, Ip address)
{
    for (const PortAddress& port : configuration.ports) {
        if (ipOf(port.ip) == address)
            return &port;
    }
    return nullptr;
}

void portPair(const PortAddress& one, const PortAddress& other, FindingList& found)
{
    const auto first = ipOf(one.ip);
    const auto second = ipOf(other.ip);
    if (!first || !second)
        return;
    const FindingList::About about{{}, FileId::NetworkPorts, {other.name.toUtf8()}};
    const std::vector<Evidence> facts{
        FindingList::fact(one.name, FileId::NetworkPorts, one.ip + QLatin1Char(' ') + one.netmask),
        FindingList::fact(other.name, FileId::NetworkPorts, other.ip + QLatin1Char(' ') + other.netmask)};
    if (*first == *second)
        found.add(FindingCode::PortAddressTwice, about, {one.name, other.name}, facts);
    else if (Addresses::areInOneNet(one, other))
        found.add(FindingCode::PortsInOneNet, about, {one.name, other.name}, facts);
}

// Address and mask of the EtherNet/IP slave are those of the port that was chosen.
void ethernetIpSlave(const Configuration& configuration, FindingList& found)
{
    constexpr RoleId Role = RoleId::EtherNetIPSlave;
    if (!configuration.isRead(FileId::EipSlave))
        return;
    const EipSlaveConfig& record = configuration.eipSlave;
    const Evidence fact = FindingList::fact(QStringLiteral("IPADDR"), FileId::EipSlave, record.IPADDR);
    const FindingList::About about{Role, FileId::EipSlave, {"\nIPADDR"}};
    const auto address = ipOf(record.IPADDR);
    if (!address) {
        found.add(FindingCode::NoAddress, about, {titleOf(Role), record.IPADDR}, {fact});
        return;
    }
    if (!configuration.isRead(FileId::NetworkPorts))
        return;
    const PortAddress* port = portWith(configuration, *address);
    if (!port)
        found.add(FindingCode::AddressOfNoPort, about, {titleOf(Role), record.IPADDR},
                  with(fact, portFacts(configuration)));
    else if (ipOf(port->netmask) != ipOf(record.NETMASK))
        found.add(FindingCode::MaskOfNoPort, {Role, FileId::EipSlave, {"\nNETMASK"}}, {titleOf(Role)},
                  {FindingList::fact(QStringLiteral("NETMASK"), FileId::EipSlave, record.NETMASK),
                   FindingList::fact(port->name, FileId::NetworkPorts, port->netmask)});
}

struct Partner
{
    RoleId role;
    FileId file;
    const char* element;
    QString address;
};

std::optional<FindingCode> wrongWith(const std::optional<Ip>& address, const Configuration& configuration)
{
    if (!address)
        return FindingCode::NoAddress;
    if (Addresses::isLoopback(*address))
        return FindingCode::ServerIsLoopback;
    if (portWith(configuration, *address))
        return FindingCode::ServerIsRobot;
    if (configuration.isRead(FileId::NetworkPorts) && !Addresses::isReached(*address, configuration.ports))
        return FindingCode::ServerOutOfReach;
    return {};
}

void partner(const Partner& partner, const Configuration& configuration, FindingList& found)
{
    const auto code = wrongWith(ipOf(partner.address), configuration);
    if (!code)
        return;
    const bool isAboutPorts = code == FindingCode::ServerIsRobot || code == FindingCode::ServerOutOfReach;
    const Evidence fact = FindingList::fact(QLatin1String(partner.element), partner.file, partner.address);
    found.add(*code, {partner.role, partner.file, {'<' + QByteArray(partner.element)}},
              {titleOf(partner.role), partner.address},
              with(fact, isAboutPorts ? portFacts(configuration) : std::vector<Evidence>()));
}

// A port as it was typed, 0 when it is none.
int tcpPort(RoleId role, FileId file, const char* element, const QString& text, FindingList& found)
{
    bool isNumber = false;
    const int port = text.trimmed().toInt(&isNumber);
    if (isNumber && port >= 1 && port <= HighestPort)
        return port;
    found.add(FindingCode::NoTcpPort, {role, file, {'<' + QByteArray(element)}}, {titleOf(role), text},
              {FindingList::fact(QLatin1String(element), file, text)});
    return 0;
}

void hostPort(RoleId role, FileId file, int index, const Configuration& configuration, FindingList& found)
{
    if (!configuration.isRead(FileId::NetworkPorts))
        return;
    const PortAddress* port = PortAddressFile::portOf(configuration.ports, index);
    if (port && ipOf(port->ip))
        return;
    const QString name = index == 0 ? QStringLiteral("ETH2") : QStringLiteral("ETH3");
    found.add(FindingCode::HostPortWithoutAddress, {role, file, {"<IpPortIndex"}}, {titleOf(role), name},
              {FindingList::fact(QStringLiteral("IpPortIndex"), file, index),
               FindingList::fact(name, FileId::NetworkPorts, port ? port->ip : QString())});
}

void mes(const Configuration& configuration, FindingList& found)
{
    constexpr RoleId Role = RoleId::Mes;
    constexpr FileId File = FileId::MesServer;
    const int port = tcpPort(Role, File, "Port", configuration.mes.Port, found);
    const Evidence fact = FindingList::fact(QStringLiteral("Port"), File, configuration.mes.Port);
    const QString number = QString::number(port);
    if (const char* service = conflictingService(port))
        found.add(FindingCode::PortTaken, {Role, File, {"<Port"}},
                  {titleOf(Role), number, QLatin1String(service)}, {fact});
    if (port == FinsPort && configuration.isOn(RoleId::FinsTcp))
        found.add(FindingCode::PortSharedByLinks, {Role, File, {"<Port"}},
                  {titleOf(Role), number, titleOf(RoleId::FinsTcp)},
                  {fact, FindingList::fact(QStringLiteral("ServerPort"), FileId::FinsClient,
                                           configuration.fins.ServerPort)});
    hostPort(Role, File, configuration.mes.IpPortIndex, configuration, found);
}

void finsNode(const Configuration& configuration, FindingList& found)
{
    constexpr RoleId Role = RoleId::FinsTcp;
    const FinsClientConfig& record = configuration.fins;
    const QString node = QString::number(record.ClientNode);
    const Evidence fact = FindingList::fact(QStringLiteral("ClientNode"), FileId::FinsClient, node);
    const FindingList::About about{Role, FileId::FinsClient, {"<ClientNode"}};
    if (record.ClientNode < 1 || record.ClientNode > HighestNode) {
        found.add(FindingCode::FinsNodeOutside, about, {node}, {fact});
        return;
    }
    const auto server = ipOf(record.ServerIP);
    if (server && Addresses::lastNumber(*server) == record.ClientNode) {
        found.add(FindingCode::FinsNodeIsServers, about, {node},
                  {fact, FindingList::fact(QStringLiteral("ServerIP"), FileId::FinsClient, record.ServerIP)});
        return;
    }
    const PortAddress* port = PortAddressFile::portOf(configuration.ports, record.IpPortIndex);
    const auto own = port ? ipOf(port->ip) : std::nullopt;
    if (own && Addresses::lastNumber(*own) != record.ClientNode)
        found.add(FindingCode::FinsNodeNotOwn, about, {node, port->name},
                  {fact, FindingList::fact(port->name, FileId::NetworkPorts, port->ip)});
}

void fins(const Configuration& configuration, FindingList& found)
{
    constexpr RoleId Role = RoleId::FinsTcp;
    constexpr FileId File = FileId::FinsClient;
    const FinsClientConfig& record = configuration.fins;
    tcpPort(Role, File, "ServerPort", record.ServerPort, found);
    hostPort(Role, File, record.IpPortIndex, configuration, found);
    finsNode(configuration, found);
    const struct
    {
        const char* element;
        int address;
    } areas[] = {{"ReadDmAddress", record.ReadDmAddress}, {"WriteDmAddress", record.WriteDmAddress}};
    for (const auto& area : areas) {
        if (area.address < 0 || area.address > HighestDmAddress)
            found.add(FindingCode::FinsAreaOutside, {Role, File, {'<' + QByteArray(area.element)}},
                      {QString::number(area.address)},
                      {FindingList::fact(QLatin1String(area.element), File, area.address)});
    }
    if (record.ReadDmAddress == record.WriteDmAddress)
        found.add(FindingCode::FinsAreasSame, {Role, File, {"<WriteDmAddress"}},
                  {QString::number(record.ReadDmAddress)},
                  {FindingList::fact(QStringLiteral("ReadDmAddress"), File, record.ReadDmAddress),
                   FindingList::fact(QStringLiteral("WriteDmAddress"), File, record.WriteDmAddress)});
}

} // namespace

void network(const Configuration& configuration, FindingList& found)
{
    if (configuration.isRead(FileId::NetworkPorts)) {
        const auto& ports = configuration.ports;
        for (std::size_t i = 0; i < ports.size(); ++i) {
            if (ipOf(ports[i].ip) && !Addresses::isMask(ports[i].netmask))
                found.add(FindingCode::NoMask, {{}, FileId::NetworkPorts, {ports[i].name.toUtf8()}},
                          {ports[i].name, ports[i].netmask},
                          {FindingList::fact(ports[i].name, FileId::NetworkPorts, ports[i].netmask)});
        }
        // The host links know two ports; a file with many more has them compared with its first one alone.
        for (std::size_t i = 1; i < ports.size(); ++i)
            portPair(ports[0], ports[i], found);
    }
    ethernetIpSlave(configuration, found);
}

void hostLinks(const Configuration& configuration, FindingList& found)
{
    if (configuration.isRead(FileId::MtcpMaster)) {
        partner({RoleId::ModbusTcpMaster, FileId::MtcpMaster, "SlaveIp", configuration.mtcpMaster.SlaveIp},
                configuration, found);
        tcpPort(RoleId::ModbusTcpMaster, FileId::MtcpMaster, "SlavePort", configuration.mtcpMaster.SlavePort,
                found);
    }
    if (configuration.isRead(FileId::MesServer))
        mes(configuration, found);
    if (configuration.isRead(FileId::FinsClient)) {
        partner({RoleId::FinsTcp, FileId::FinsClient, "ServerIP", configuration.fins.ServerIP}, configuration,
                found);
        fins(configuration, found);
    }
}

} // namespace Rules
