#include "Settings.h"

#include "ForeignLines.h"
#include "SettingReaders.h"
#include "TextTemplate.h"

#include <QCoreApplication>

#include <algorithm>

using TextTemplate::contains;

namespace Settings {

namespace {

bool namesByteOrder(std::string_view line)
{
    return line.front() != ';' && (contains(line, "BIG_ENDIAN") || contains(line, "LITTLE_ENDIAN"));
}

bool eipLine(std::string_view line)
{
    return contains(line, "IPADDR") || contains(line, "NETMASK") || namesByteOrder(line);
}

bool pfbLine(std::string_view line)
{
    return contains(line, "PROFIBUS_ADDRESS") || contains(line, "DISABLE_COM_ALARM") || namesByteOrder(line);
}

bool overrideLine(std::string_view line)
{
    return TextTemplate::containsIgnoringCase(line, "ecat_slave") &&
           (contains(line, " 1 ") || contains(line, " 2 "));
}

bool scanListLine(std::string_view line)
{
    static constexpr std::string_view keywords[] = {
        "WS_ID ",        "BAUDRATE ",        "ENDIAN ",    "PACHET_RATIO ",    ";   Device ",
        "BLOCK_TO_RBX ", "BLOCK_FROM_RBX ",  "VENDOR_ID ", "PROD_CODE ",       "REVISION ",
        "CFG_FLAG ",     "NODE_STATUS_REG ", "O-0 ",       ";***************", ";========"};
    return std::any_of(std::begin(keywords), std::end(keywords), [line](std::string_view keyword) {
        return line.substr(0, keyword.size()) == keyword;
    });
}

constexpr const char* MasterPlaces =
    R"(\w+/Group/(SlaveNum|DisableTimeout|EnableTimeout|Slave(Fixed|Dynamic)/\w+[1-9]))";

constexpr Row Rows[] = {
    {"fieldbus.xml", roleList, R"(Fieldbus/Bus\[[^]]*\]@(name|enable))", nullptr},
    {"Fieldbus.cfg", switchFile, R"(FieldbusSettingConfig/[^/]*\[[^]]*\](/enable|@name))", nullptr},
    {"heartbeat.xml", heartbeat,
     R"(Fidbus/(Mtcp|Ethcat|Pfnet|Eip|Ecm|Dns|Mbc|Eim|Pnm|Dnm)/\1_(Nod_Switch|Timeout))", nullptr},
    {"fieldbus_config.xml", mapping,
     R"(FieldbusConfig/Mode\[(free|fixed)\](/Bus\[(ModbusTcp|EtherCat|EtherNetIP|Profinet|DeviceNet)(Slave|Master)\](/Area\[r[ow]\]|/Area\[wo\])?)?)"
     R"((/(User|System)\[(Bool|Int|Float)\])?@(name|direction|type|quantity|start|end))",
     nullptr},
    {"fa/dns-1.cfg", eipSlave, nullptr, eipLine},
    {"free/dns_free.cfg", eipByteOrder, nullptr, namesByteOrder},
    {"fixed/dns_fixed.cfg", eipByteOrder, nullptr, namesByteOrder},
    {"fa/pfb.cfg", pfbSlave, nullptr, pfbLine},
    {"free/pfb_free.cfg", pfbByteOrder, nullptr, namesByteOrder},
    {"fixed/pfb_fixed.cfg", pfbByteOrder, nullptr, namesByteOrder},
    {"fa/override.cfg", overrides, nullptr, overrideLine},
    {"fa/dnmst0.cfg", scanList, nullptr, scanListLine},
    {"devicenet/devicenetSlave.xml", deviceNetSlave, "devicenet/Dns/Dns_(MACID|BAUDRATE)", nullptr},
    {"mtcpMaster/mtcp_master.xml", mtcpMaster,
     "MtcpMasterCommunication/Group/(SlaveIp|SlavePort|SlaveId|TimeOut|ReadEndian|WriteEndian|Alivetime)",
     nullptr},
    {"eipMaster/eip_master.xml", eipMaster, MasterPlaces, nullptr},
    {"pfnMaster/pfn_master.xml", pfnMaster, MasterPlaces, nullptr},
    {"mes/TcpServerConfig.xml", mesServer, "TcpServerConfig/(Port|Mode|Protocol|IntervalTime|IpPortIndex)",
     nullptr},
    {"finstcp/FinsTcpConfig.xml", finsClient,
     "ClientConfig/(ServerIP|ServerPort|ClientNode|AutoConnect|ReadDmAddress|WriteDmAddress|IpPortIndex)",
     nullptr},
    {"fa/fbslave.cfgx", slaveModule, "FbSlave/Endian", nullptr},
    {"network/netports.xml", netPorts, R"(NetPorts/Port\[[^]]*\]@(name|ip|netmask))", nullptr},
    {"pfs_description.xml", profisafe, R"(ProfiSafe/(Output|Input)/Bit\[\d+\]@(number|text))", nullptr},
};

} // namespace

const Row* rowOf(const QString& path)
{
    const auto* found = std::find_if(std::begin(Rows), std::end(Rows),
                                     [&path](const Row& row) { return path == QLatin1String(row.path); });
    return found == std::end(Rows) ? nullptr : found;
}

namespace {

std::optional<std::vector<Group>> readGroups(const Row* row, const QByteArray& bytes)
{
    std::optional<std::vector<Group>> groups;
    if (row)
        groups = row->read(bytes);
    // The variants of a driver file set the same as the file that runs.
    for (const char* variant : {"free", "fixed"}) {
        if (groups && QLatin1String(row->path).startsWith(QLatin1String(variant))) {
            for (Group& group : *groups)
                group.title += QLatin1String(", ") + translated(variant);
        }
    }
    return groups;
}

} // namespace

std::vector<Group> groupsOf(const QString& path, const QByteArray& bytes)
{
    return readGroups(rowOf(path), bytes).value_or(std::vector<Group>());
}

Content of(const QString& path, const QByteArray& bytes)
{
    const Row* row = rowOf(path);
    std::optional<std::vector<Group>> groups = readGroups(row, bytes);
    Content content;
    content.isUnderstood = groups.has_value();
    content.others = ForeignLines::of(path, bytes, groups ? row : nullptr);
    content.groups = std::move(groups).value_or(std::vector<Group>());
    return content;
}

QString translated(const char* text)
{
    return QCoreApplication::translate("Settings", text);
}

Group groupOf(RoleId role)
{
    const RoleInfo& info = RoleTable::of(role);
    return {QLatin1String(info.title), &info, false, {}};
}

QString switchText(bool on)
{
    return translated(on ? QT_TRANSLATE_NOOP("Settings", "on") : QT_TRANSLATE_NOOP("Settings", "off"));
}

QString withUnit(const QString& value, const char* unit)
{
    return value.isEmpty() ? value : value + QLatin1Char(' ') + QLatin1String(unit);
}

} // namespace Settings
