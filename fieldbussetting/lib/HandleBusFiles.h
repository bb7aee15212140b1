#ifndef HANDLEBUSFILES_H
#define HANDLEBUSFILES_H

#include "WriteProblem.h"

#include <QByteArray>
#include <QString>

#include <functional>

enum class OverrideSlot;
struct BusSwitchSet;
struct DeviceNetMasterConfig;
struct DeviceNetSlaveConfig;
struct EipSlaveConfig;
struct FinsClientConfig;
struct HeartbeatConfig;
struct MasterDevicesInUse;
struct MasterSlaveTable;
struct MesServerConfig;
struct MtcpMasterConfig;
struct OverrideRecord;
struct PfbSlaveConfig;

/// Carries out the file operations of FieldbusSettingLib: local copies and the
/// controller's templates on one side, the formats of core/formats on the other.
///
/// A reader takes any bytes: it returns false (file cannot be opened or is no such file) or true with every
/// field of the record defined. A writer replaces its target in one step or leaves it as it was.
class HandleBusFiles
{
public:
    static HandleBusFiles* getInstance();

    bool readFieldbusCfg(const QString& path, BusSwitchSet& switches, bool isImport);
    bool writeFieldbusCfg(const QString& path);

    /// One reader and writer for the three master families; `mode` as in OverrideMode.
    bool readMasterOverride(const QString& path, OverrideRecord& record);
    bool writeMasterOverride(const QString& path, OverrideRecord& record, int mode);
    /// Also sets the EtherCAT slave enable variable from the entry of the Anybus module.
    bool readEtherCatFile(const QString& path, OverrideRecord& record, MasterDevicesInUse& devices);
    bool writeEtherCatFile(const QString& path, OverrideRecord& record);
    bool writeOverrideFile(const QString& path, const QString& key);

    bool readHeartbeatDetectionFile(const QString& path, HeartbeatConfig& record);
    bool writeHeartbeatDetectionFile(const QString& path, const HeartbeatConfig& record);

    /// Consumes the file: the local copy is gone after a read.
    bool readPfbCfgFile(const QString& path, PfbSlaveConfig& record);
    bool writePfbCfgFile(const QString& path, const PfbSlaveConfig& record);
    bool writePfbFreeFixFile(const QString& path, const QString& ctrlPath, const PfbSlaveConfig& record);
    bool readEtherNetFile(const QString& path, EipSlaveConfig& record);
    bool writeEtherNetFile(const QString& path, const EipSlaveConfig& record);
    bool writeEtherNetDnsFile(const QString& path, const QString& ctrlPath, const EipSlaveConfig& record);

    bool readDeviceNetFile(const QString& path, DeviceNetSlaveConfig& record);
    bool writeDeviceNetFile(const QString& path, const DeviceNetSlaveConfig& record);
    bool readDeviceNetMasterFile(const QString& path, DeviceNetMasterConfig& record);
    /// Also gives the record's devices the registers that the file says.
    bool writeDeviceNetMasterFile(const QString& path, DeviceNetMasterConfig& record);

    bool readMtcpFile(const QString& path, MtcpMasterConfig& record);
    bool writeMtcpFile(const QString& path, const MtcpMasterConfig& record);
    /// One reader and writer for the EtherNet/IP and the PROFINET master; `root` as in MasterTableRoot.
    bool readMasterTable(const QString& path, const char* root, MasterSlaveTable& record);
    bool writeMasterTable(const QString& path, const char* root, const MasterSlaveTable& record);

    bool readMesSetFile(const QString& path, MesServerConfig& record);
    bool writeMesSetFile(const QString& path, const MesServerConfig& record);
    bool readFinsTcpFile(const QString& path, FinsClientConfig& record);
    bool writeFinsTcpFile(const QString& path, const FinsClientConfig& record);

    /// What stopped the last writer that edits the controller's file; None after a success.
    WriteProblem problem() const { return m_problem; }

private:
    /// The controller's present file, which a writer edits.
    struct Template
    {
        const char* temporary; ///< its copy, below the working directory
        QString controller;
        bool (*isRecognised)(const QByteArray&); ///< null: any text will do
    };
    using Rewrite = std::function<QByteArray(const QByteArray&)>;
    using Fits = std::function<bool(const QByteArray&)>;

    HandleBusFiles() = default;

    bool edit(const QString& path, const Template& source, const Rewrite& rewrite,
              const Fits& fits = nullptr);
    bool editVariant(const QString& path, const char* temporary, const QString& ctrlPath,
                     const QString& endian);
    bool editOverride(const QString& path, const Rewrite& rewrite, const Fits& fits = nullptr);
    bool editOverride(const QString& path, OverrideSlot slot, OverrideRecord& live);

    WriteProblem m_problem = WriteProblem::None;
};

#endif
