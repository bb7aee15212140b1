#include "FileLocations.h"

#include "KnownFiles.h"
#include "ZelFunctions.h"

#include <QStringList>

#include <algorithm>
#include <array>

namespace FileLocations {

const char* const FieldbusXml = "/application/fidbus/fieldbus.xml";
const char* const FieldbusConfigXml = "/application/fidbus/fieldbus_config.xml";
const char* const SlaveModule = "/fa/fbslave.cfgx";

namespace {

constexpr const char* NoCopy = "";

struct ConfigRow
{
    ConfigFile file;
    const char* local; ///< below the working directory; null: in a place of its own
    const char* controller;
};

// The controller's fieldbus directory is written "/FA" for the files of the slave drivers and "/fa" for the
// DeviceNet master and the transfer set; both spellings are the controller's own.
const ConfigRow ConfigRows[] = {
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
    {ConfigFile::BusRoles, NoCopy, FieldbusXml},
    {ConfigFile::IoMapping, NoCopy, FieldbusConfigXml},
    {ConfigFile::SlaveModule, NoCopy, SlaveModule},
};

constexpr auto ConfigCount = static_cast<std::size_t>(ConfigFile::Count);
static_assert(std::size(ConfigRows) == ConfigCount, "a row a file");

QString localised(const QString& path)
{
    return ZelGetLocalizedFileName(path, 1);
}

std::array<FileLocation, ConfigCount> configLocations()
{
    std::array<FileLocation, ConfigCount> locations;
    for (const ConfigRow& row : ConfigRows) {
        QString local = QLatin1String(row.local);
        if (!row.local)
            local = localised(QStringLiteral("../Application/Setup/Fieldbus.cfg"));
        else if (!local.isEmpty())
            local.prepend(workingDirectory());
        locations[static_cast<std::size_t>(row.file)] = {local, QLatin1String(row.controller)};
    }
    return locations;
}

const std::array<FileLocation, ConfigCount>& locations()
{
    static const std::array<FileLocation, ConfigCount> all = configLocations();
    return all;
}

std::vector<TransferFile> transferFiles()
{
    std::vector<TransferFile> files;
    for (const KnownFile& file : KnownFiles::all()) {
        if (!file.isExported())
            continue;
        const QString path = QLatin1String(file.name);
        const QString folder = path.section(QLatin1Char('/'), 0, -2);
        const QString name = path.section(QLatin1Char('/'), -1);
        files.push_back({file.label, path, QLatin1String(file.controller),
                         stagingFolder(folder) + QLatin1Char('/') + name, file.root});
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

const QString& versionsDirectory()
{
    static const QString path = localised(QStringLiteral("../Application/fidbus/versions"));
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
    return locations()[static_cast<std::size_t>(file)];
}

QString controllerPathOf(const QString& localPath)
{
    const auto& all = locations();
    const auto found = std::find_if(all.begin(), all.end(), [&localPath](const FileLocation& location) {
        return !location.isOfService() && location.local == localPath;
    });
    return found == all.end() ? QString() : found->controller;
}

const std::vector<TransferFile>& transferSet()
{
    static const std::vector<TransferFile> files = transferFiles();
    return files;
}

} // namespace FileLocations
