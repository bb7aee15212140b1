#ifndef FILELOCATIONS_H
#define FILELOCATIONS_H

#include <QString>

#include <vector>

/// Where a configuration file lies on the pendant and on the controller.
struct FileLocation
{
    QString local;      ///< relative to the pendant's working directory, localised; empty without a copy
    QString controller; ///< absolute in the controller's file system, as written there

    bool isOfService() const { return local.isEmpty(); }
};

/// The files that pages fetch, edit and send.
enum class ConfigFile {
    BusSwitch,
    Override,
    PfbSlave,
    PfbFree,
    PfbFixed,
    EipSlave,
    EipSlaveFree,
    EipSlaveFixed,
    DeviceNetSlave,
    DeviceNetMaster,
    MtcpMaster,
    EipMaster,
    PfnMaster,
    MesServer,
    FinsClient,
    Heartbeat,
    // The bus file data service's: it fetches and sends them, and the pendant has no copy.
    BusRoles,
    IoMapping,
    SlaveModule,
    Count
};

/// A file of the import and export set.
struct TransferFile
{
    const char* label;   ///< names the file in the log
    QString path;        ///< below the export folder on the drive: "fixed/dns_fixed.cfg"
    QString controller;  ///< path on the controller
    QString staging;     ///< localised path in the staging directory
    const char* xmlRoot; ///< root element of an XML file; null for a text file
};

namespace FileLocations {

const FileLocation& of(ConfigFile file);
/// Path on the controller of the file whose working copy is `localPath`; empty when it is nobody's.
QString controllerPathOf(const QString& localPath);

/// Local working directory, localised.
const QString& workingDirectory();
/// Copies of the controller's file that a writer edits, below the working directory: there only while it
/// does.
namespace TemplateCopy {
constexpr const char* Override = "/override_temp.cfg";
constexpr const char* PfbSlave = "/pfb_temp.cfg";
constexpr const char* PfbVariant = "/pfb_freeOrFix.cfg";
constexpr const char* EipSlave = "/dns_temp.cfg";
constexpr const char* EipVariant = "/dns_fixOrFreeTemp.cfg";
constexpr const char* All[] = {Override, PfbSlave, PfbVariant, EipSlave, EipVariant};
} // namespace TemplateCopy

/// Staging directory of import and export, localised.
const QString& stagingDirectory();
/// Sub-folder of the staging directory, localised: "fixed", "SlaveConfig/EtherCAT"; the directory itself for
/// "".
QString stagingFolder(const QString& folder);

/// Where the former versions of the files are kept that this pendant replaces. The application
/// "fieldbusstatus" names the same folder, from where it shows them and puts them back: it must not be moved
/// here alone.
const QString& versionsDirectory();

/// The bus configuration and the I/O mapping belong to the bus file data service, which fetches them itself.
extern const char* const FieldbusXml;
extern const char* const FieldbusConfigXml;
/// So do the settings of the slave module.
extern const char* const SlaveModule;

/// The import and export set, in the order in which the export fetches it.
const std::vector<TransferFile>& transferSet();

} // namespace FileLocations

#endif
