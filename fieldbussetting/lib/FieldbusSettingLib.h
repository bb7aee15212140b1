#ifndef FIELDBUSSETTINGLIB_H
#define FIELDBUSSETTINGLIB_H

#include "BusSwitchFile.h"
#include "DeviceNetMasterFile.h"
#include "DeviceNetSlaveFile.h"
#include "EipSlaveFile.h"
#include "FinsClientFile.h"
#include "HeartbeatFile.h"
#include "MasterTableFile.h"
#include "MesServerFile.h"
#include "MtcpMasterFile.h"
#include "OverrideFile.h"
#include "PfbSlaveFile.h"
#include "WriteProblem.h"

#include <QString>
#include <QtGlobal>

#if defined(FIELDBUSSETTING_BUILD)
#define FIELDBUSSETTING_EXPORT Q_DECL_EXPORT
#else
#define FIELDBUSSETTING_EXPORT Q_DECL_IMPORT
#endif

/// The one library object of the process: a record per controller file, reading and writing of local copies,
/// transfer from and to the controller, and the controller's variables. It returns `bool` and never talks to
/// the operator. GUI thread only.
class FIELDBUSSETTING_EXPORT FieldbusSettingLib
{
public:
    /// Constructs the object on the first call.
    static FieldbusSettingLib* getInstance();
    /// Destroys the object; a later `getInstance` constructs a fresh one with default records.
    static void destroy();

    FieldbusSettingLib(const FieldbusSettingLib& other) = default;
    FieldbusSettingLib& operator=(const FieldbusSettingLib& other) = default;

    // Transfer

    /// Copies a controller file to a local path: up to 10 attempts, 100 ms apart, while events are processed.
    /// False when the local directory cannot be made (then nothing is fetched) or all attempts fail.
    bool getFileFromCtrl(QString localPath, QString ctrlPath);
    /// Copies a local file to the controller, one attempt.
    bool sendFileToCtrl(QString localPath, QString ctrlPath);

    /// Fetches and reads the bus switch file; a failed fetch is tried again after a second.
    bool readFieldbusCfgFromCtr();
    /// Writes the bus switch file and sends it.
    bool writeFieldbusCfgToCtr();

    // File system

    /// Makes sure that the directory of `filePath` exists; makes one level, no parents.
    bool checkFilePath(QString filePath);
    /// Removes everything below `dirPath`, and `dirPath` itself unless its own name is `keepName`. A
    /// sub-directory of that name is emptied and kept as well.
    bool deleteDir(const QString& dirPath, const QString& keepName);
    /// Waits while events are processed. The wait compares times of day: one that crosses midnight ends at
    /// once.
    void delay_MSec(unsigned int msec);

    // Files: parse the file at `path` into the record, or write the record to `path`

    /// Into `importSwitches` when `isImport`, else into `busSwitches`.
    bool readFieldbusCfg(QString path, bool isImport);
    /// Switches the PROFINET slave role off in the file at `path`; nothing else of it changes. `isImport` has
    /// no effect.
    bool writeFieldbusCfg(QString path, bool isImport);

    // The override file. A writer edits a fresh copy of the controller's file into `path`; `mode` as in
    // OverrideMode.
    bool readEipMFile(QString path);
    bool writeEipMFile(QString path, int mode);
    bool readEtherCatMFile(QString path);
    bool writeEtherCatMFile(QString path, int mode);
    bool readPnmFile(QString path);
    bool writePnmFile(QString path, int mode);
    bool readEtherCatFile(QString path);
    bool writeEtherCatFile(QString path);
    /// Takes the device that the keyword `key` names ("EIM_DEVICE" or "PNM_DEVICE") out of use.
    bool writeOverrideFile(const QString& path, const QString& key);

    /// What stopped the last writer of override.cfg or of a driver file of the slaves; None after a success.
    /// A ChangedOnController comes of override.cfg alone: nothing was written, and the page loads its file
    /// again and says "override.cfg was changed on the controller since it was read. It has been loaded
    /// again."
    WriteProblem writeProblem() const;

    bool readHeartbeatDetectionFile(QString path);
    bool writeHeartbeatDetectionFile(QString path);

    // The driver files of the slaves. A writer edits a fresh copy of the controller's file into `path`;
    // `ctrlPath` names the free or the fixed variant there, of which only the byte order is changed.
    /// Removes the file when it has been read.
    bool readPfbCfgFile(QString path);
    bool writePfbCfgFile(QString path);
    bool writePfbFreeFixFile(QString path, QString ctrlPath);
    bool readEtherNetFile(QString path);
    bool writeEtherNetFile(QString path);
    bool writeEtherNetDnsFile(QString path, QString ctrlPath);

    bool readDeviceNetFile(QString path);
    bool writeDeviceNetFile(QString path);
    bool readDeviceNetMasterFile(QString path);
    /// Replaces the devices of the file at `path` (of the local copy when there is none), and in its header
    /// the master's settings. False without a header: that is the controller's and cannot be made here.
    bool writeDeviceNetMasterFile(QString path);

    bool readMtcpFile(QString path);
    bool writeMtcpFile(QString path);
    bool readEimXMLFile(QString path);
    bool writeEimXMLFile(QString path);
    bool readPnmXMLFile(QString path);
    bool writePnmXMLFile(QString path);

    bool readMesSetFile(QString path);
    bool writeMesSetFile(QString path);
    bool readFinsTcpFile(QString path);
    bool writeFinsTcpFile(QString path);

    // Variables: what each means stands beside its handle in ControllerVariables.h. A getter reads what the
    // pendant last heard of, a setter writes to the controller at once.

    // Variables of the bus state

    int get_ifidbus_bus_type_state() const;
    int get_ifidbus_anybus_fm() const;
    /// Reads "ifidbus.is_rp2pro", whatever the name says: a controller with a slot for a fieldbus module.
    bool get_ifidbus_ctr_type() const;
    int get_ifidbus_commun_state() const;
    int get_ifidbus_performance_switch() const;
    void set_ifidbus_performance_switch(int value);
    int get_freebus_busconfig_xml_update_state() const;
    void set_freebus_busconfig_xml_update(int value);
    bool get_ifidbus_freebus_state() const;
    void set_ifidbus_freebus_state(bool value);

    // Variables of the roles

    bool get_ifidbus_ethcat_enable() const;
    void set_ifidbus_ethcat_enable(bool value);
    /// Writes the same variable as `set_ifidbus_ethcat_enable`, through a handle of its own.
    void set_ifidbus_ethcat_state(bool value);
    void set_ifidbus_eip_state(bool value);
    void set_ifidbus_pfn_state(bool value);
    void set_ifidbus_mtcp_state(bool value);
    void set_ifidbus_dns_state(bool value);
    void set_ifidbus_dnm_state(bool value);

    // Variables of the heartbeat

    bool get_ifidbus_heatbeatdet_mtcp_link_state() const;
    bool get_ifidbus_heatbeatdet_ethcat_link_state() const;
    bool get_ifidbus_heatbeatdet_pfbdp_link_state() const;
    bool get_ifidbus_heatbeatdet_eip_link_state() const;
    bool get_ifidbus_heatbeatdet_ecm_link_state() const;
    bool get_ifidbus_heatbeatdet_dns_link_state() const;
    bool get_ifidbus_heatbeatdet_mbc_link_state() const;
    bool get_ifidbus_heatbeatdet_eim_link_state() const;
    bool get_ifidbus_heatbeatdet_pnm_link_state() const;
    bool get_ifidbus_heatbeatdet_dnm_link_state() const;
    void set_ifidbus_heatbeatdet_xml_update(bool value);

    // Variables of the masters; an index is a slave position or a device, counted from 0 and not checked

    bool get_ifidbus_mbc_enable() const;
    void set_ifidbus_mbc_enable(bool value);
    bool get_ifidbus_mbc_connected() const;
    void set_ifidbus_mbc_save(bool value);
    bool get_ifidbus_mbc_open() const;
    void set_ifidbus_mbc_open(bool value);
    bool get_ifidbus_mbc_autoCon() const;
    void set_ifidbus_mbc_autoCon(bool value);

    int get_ifidbus_eim_configured() const;
    /// The variable is an integer; 0 or 1 is written.
    void set_ifidbus_eim_configured(bool value);
    bool get_ifidbus_eim_status(int index) const;
    bool get_ifidbus_dynamic_eim_enable() const;
    void set_ifidbus_dynamic_eim_enable(bool value);
    int get_ifidbus_eim_disable_status(int index) const;
    int get_ifidbus_eim_enable_status(int index) const;

    int get_ifidbus_pnm_configured() const;
    /// The variable is an integer; 0 or 1 is written.
    void set_ifidbus_pnm_configured(bool value);
    bool get_ifidbus_pnm_status(int index) const;
    bool get_ifidbus_dynamic_pnm_enable() const;
    void set_ifidbus_dynamic_pnm_enable(bool value);
    int get_ifidbus_pnm_disable_status(int index) const;
    int get_ifidbus_pnm_enable_status(int index) const;

    bool get_ifidbus_dnm_status(int index) const;
    int get_ifidbus_dnm_errorcode(int index) const;
    void set_ifidbus_dnm_save_config(bool value);
    void set_ifidbus_dnm_slave_num(int value);

    // Variables of the host links

    bool get_ifins_tcp_enable() const;
    void set_ifins_tcp_enable(bool value);
    bool get_ifins_tcp_error() const;
    void set_ifins_tcp_error(bool value);
    bool get_ifins_tcp_bupdate_cfg() const;
    void set_ifins_tcp_bupdate_cfg(bool value);
    bool get_ifins_tcp_connected() const;
    void set_ifins_tcp_connected(bool value);

    bool get_imes_update_tcp_server_cfg() const;
    void set_imes_update_tcp_server_cfg(bool value);
    bool get_imes_tcp_server_listen() const;
    void set_imes_tcp_server_listen(bool value);
    bool get_imes_tcp_server_connected() const;
    void set_imes_tcp_server_connected(bool value);
    bool get_imes_tcp_server_active() const;
    void set_imes_tcp_server_active(bool value);

    // Subscription groups: every handle of the group, in order. True whatever the handles answer, but for
    // the three DeviceNet master groups, which return what their one handle answers.

    bool setUsedVars_mes(bool used);
    bool setUsedVars_cclink(bool used);
    bool setUsedVars_ifins(bool used);
    bool setUsedVars_heartbeatdet(bool used);
    bool setUsedVars_ifidbus_bus_type_state(bool used);
    bool setUsedVars_mtcpMaster(bool used);
    bool setUsed_ifidbus_dns_status(bool used);
    bool setUsed_ifidbus_dnm_status(bool used);
    bool setUsedVars_ifidbus_ctr_Anybus_type(bool used);
    bool setUsedVars_freebus_busconfig_xml_update(bool used);
    bool setUsed_ifidbus_pfn_close(bool used);
    bool setUsed_ifidbus_pfn_open(bool used);
    bool setUsed_ifidbus_eip_close(bool used);
    bool setUsed_ifidbus_eip_open(bool used);
    bool setUsed_ifidbus_dns_open(bool used);
    bool setUsed_ifidbus_dns_close(bool used);
    bool setUsed_ifidbus_dnm_open(bool used);
    bool setUsed_ifidbus_dnm_close(bool used);
    bool setUsed_ifidbus_ecat_openClose(bool used);
    bool setUsedVars_ifidbus_current_time(bool used);
    bool setUsedVars_ethernet(bool used);
    bool setUsedVars_eipMaster(bool used);
    bool setUsedVars_pnm(bool used);
    bool setUsedVars_dnm(bool used);
    bool setUsedVars_pfs(bool used);

    // Records, one a file

    BusSwitchSet busSwitches;    ///< of the controller's own file
    BusSwitchSet importSwitches; ///< of a file that is being imported
    OverrideRecord etherCatSlaveOverride;
    OverrideRecord etherCatMasterOverride;
    OverrideRecord eipMasterOverride;
    OverrideRecord pfnMasterOverride;
    MasterDevicesInUse masterDevices; ///< as `readEtherCatFile` last found them
    HeartbeatConfig heartbeat;
    PfbSlaveConfig pfbSlave;
    EipSlaveConfig eipSlave;
    DeviceNetSlaveConfig deviceNetSlave;
    DeviceNetMasterConfig deviceNetMaster;
    MtcpMasterConfig mtcpMaster;
    MasterSlaveTable eipMaster;
    MasterSlaveTable pfnMaster;
    MesServerConfig mesServer;
    FinsClientConfig finsClient;

private:
    FieldbusSettingLib() = default;
    ~FieldbusSettingLib() = default;

    static FieldbusSettingLib* s_instance;
};

#endif
