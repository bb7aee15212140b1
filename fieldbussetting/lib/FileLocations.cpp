#include "FileLocations.h"

#include "ZelFunctions.h"

#include <QStringList>

#include <array>

namespace FileLocations {

const char* const FieldbusXml = "/application/fidbus/fieldbus.xml";
const char* const FieldbusConfigXml = "/application/fidbus/fieldbus_config.xml";

namespace {

struct ConfigRow
{
    ConfigFile file;
    const char* local; ///< below the working directory
    const char* controller;
};

// The controller's fieldbus directory is written "/FA" for the files of the slave drivers and "/fa" for the
// DeviceNet master and the transfer set; both spellings are the controller's own.
constexpr ConfigRow ConfigRows[] = {
    {ConfigFile::BusSwitch, nullptr, "/application/fidbus/Fieldbus.cfg"},
    {ConfigFile::Override, "/override.cfg", "/FA/override.cfg"},
    {ConfigFile::PfbSlave, "/pfb.cfg", "/FA/pfb.cfg"},
    {ConfigFile::PfbFree, "/pfb_free.cfg", "/application/fidbus/free/pfb_free.cfg"},
    {ConfigFile::PfbFixed, "/pfb_fixed.cfg", "/application/fidbus/fixed/pfb_fixed.cfg"},
    {ConfigFile::EipSlave, "/dns-1.cfg", "/FA/dns-1.cfg"},
    {ConfigFile::EipSlaveFree, "/dns_free.cfg", "/application/fidbus/free/dns_free.cfg"},
    {ConfigFile::EipSlaveFixed, "/dns_fixed.cfg", "/application/fidbus/fixed/dns_fixed.cfg"},
    {ConfigFile::DeviceNetSlave, "/devicenetSlave.xml", "/application/fidbus/devicenet/devicenetSlave.xml"},
    {ConfigFile::DeviceNetMaster, "/dnmst0.cfg", "/fa/dnmst0.cfg"},
    {ConfigFile::MtcpMaster, "/mtcpMaster/mtcp_master.xml", "/application/fidbus/mtcpMaster/mtcp_master.xml"},
    {ConfigFile::EipMaster, "/eipMaster/eip_master.xml", "/application/fidbus/eipMaster/eip_master.xml"},
    {ConfigFile::PfnMaster, "/pfnMaster/pfn_master.xml", "/application/fidbus/pfnMaster/pfn_master.xml"},
    {ConfigFile::MesServer, "/TcpServerConfig.xml", "/application/mes/TcpServerConfig.xml"},
    {ConfigFile::FinsClient, "/FinsTcpConfig.xml", "/application/finstcp/FinsTcpConfig.xml"},
    {ConfigFile::Heartbeat, "/heartbeat.xml", "/application/fidbus/heartbeat.xml"},
};

constexpr auto ConfigCount = static_cast<std::size_t>(ConfigFile::Count);
static_assert(std::size(ConfigRows) == ConfigCount, "a row a file");

struct TransferRow
{
    const char* label;
    const char* folder;
    const char* name;
    const char* xmlRoot = nullptr;
};

constexpr TransferRow TransferRows[] = {
    {"heartbeat.xml", "", "heartbeat.xml", "Fidbus"},
    {"field cfg", "", "fieldbus_config.xml", "FieldbusConfig"},
    {"field xml", "", "fieldbus.xml", "Fieldbus"},
    {"func Mapp", "", "signal_mapping.cfg"},
    {"user Desc", "", "user_description.xml", "UserDescription"},
    {"group Io", "", "user_groupio.cfg"},
    {"devicenet slave", "devicenet", "devicenetSlave.xml", "devicenet"},
    {"eip master", "eipMaster", "eip_master.xml", "EipMasterCommunication"},
    {"pfn master", "pfnMaster", "pfn_master.xml", "PfnMasterCommunication"},
    {"fixed Desc", "fixed", "description_fixed.xml", "Description"},
    {"fixed Dns", "fixed", "dns_fixed.cfg"},
    {"fixed Field", "fixed", "fieldbus_fixed.xml", "Fieldbus"},
    {"fixed Func", "fixed", "signal_mapping_fixed.cfg"},
    {"fixed Mtcp", "fixed", "modbus_fixed.cfg"},
    {"fixed Pfb", "fixed", "pfb_fixed.cfg"},
    {"fixed Dns0", "fixed", "dns0_fixed.cfg"},
    {"free Desc", "free", "description_free.xml", "Description"},
    {"free Dns", "free", "dns_free.cfg"},
    {"free Field", "free", "fieldbus_free.xml", "Fieldbus"},
    {"free Func", "free", "signal_mapping_free.cfg"},
    {"free Mtcp", "free", "modbus_free.cfg"},
    {"free Pfb", "free", "pfb_free.cfg"},
    {"free Dns0", "free", "dns0_free.cfg"},
    {"rs232 config", "rs232", "rs232FileConfig.xml", "Rs232Config"},
    {"ecat file", "SlaveConfig/EtherCAT", "ABXS_ECT_V_3_28.xml", "EtherCATInfo"},
    {"eip file", "SlaveConfig/EthernetIP", "kliklus_urmc_v2.eds"},
    {"pfn file", "SlaveConfig/Profinet", "GSDML-V2.33-Kliklus-RP2-20200520.xml", "ISO15745Profile"},
    {"dns slaveconfig", "SlaveConfig/Devicenet", "rbxm5034.eds"},
    {"fa mtcp", "fa", "modbus.cfg"},
    {"fa fbSlave.cfgx", "fa", "fbslave.cfgx", "FbSlave"},
    {"fa dns-1", "fa", "dns-1.cfg"},
    {"fa dns0", "fa", "dns0.cfg"},
    {"fa pfb", "fa", "pfb.cfg"},
    {"fa dnmst0", "fa", "dnmst0.cfg"},
    {"pfs_desc", "", "pfs_description.xml", "ProfiSafe"},
    {"mtcp_master.xml", "mtcpMaster", "mtcp_master.xml", "MtcpMasterCommunication"},
};

QString localised(const QString& path)
{
    return ZelGetLocalizedFileName(path, 1);
}

std::array<FileLocation, ConfigCount> configLocations()
{
    std::array<FileLocation, ConfigCount> locations;
    for (const ConfigRow& row : ConfigRows) {
        locations[static_cast<std::size_t>(row.file)] = {
            row.local ? workingDirectory() + QLatin1String(row.local)
                      : localised(QStringLiteral("../Application/Setup/Fieldbus.cfg")),
            QLatin1String(row.controller)};
    }
    return locations;
}

std::vector<TransferFile> transferFiles()
{
    std::vector<TransferFile> files;
    for (const TransferRow& row : TransferRows) {
        const QString folder = QLatin1String(row.folder);
        const QString name = QLatin1String(row.name);
        const QString path = folder.isEmpty() ? name : folder + QLatin1Char('/') + name;
        // The fieldbus directory of the drivers stands beside the application's.
        const bool isDriverFile = folder == QLatin1String("fa");
        files.push_back({row.label, path, QLatin1String(isDriverFile ? "/" : "/application/fidbus/") + path,
                         stagingFolder(folder) + QLatin1Char('/') + name, row.xmlRoot});
    }
    return files;
}

} // namespace

const QString& workingDirectory()
{
    static const QString path = localised(QStringLiteral("../Application/fieldbusSetting"));
    return path;
}

const QString& stagingDirectory()
{
    static const QString path = localised(QStringLiteral("../Application/fidbus/im-export"));
    return path;
}

// A sub-directory of the staging directory is localised on its own, after its name was appended; what lies
// deeper is not.
QString stagingFolder(const QString& folder)
{
    QStringList parts = folder.split(QLatin1Char('/'), Qt::SkipEmptyParts);
    const QString directory = parts.isEmpty()
                                  ? stagingDirectory()
                                  : localised(stagingDirectory() + QLatin1Char('/') + parts.takeFirst());
    return (QStringList(directory) + parts).join(QLatin1Char('/'));
}

const FileLocation& of(ConfigFile file)
{
    static const std::array<FileLocation, ConfigCount> locations = configLocations();
    return locations[static_cast<std::size_t>(file)];
}

const std::vector<TransferFile>& transferSet()
{
    static const std::vector<TransferFile> files = transferFiles();
    return files;
}

} // namespace FileLocations
