// Which record of the library each file operation reads into or writes from.
#include "FieldbusSettingLib.h"

#include "HandleBusFiles.h"

// The interface hands paths over by value.
// NOLINTBEGIN(performance-unnecessary-value-param)

bool FieldbusSettingLib::readFieldbusCfg(QString path, bool isImport)
{
    return HandleBusFiles::getInstance()->readFieldbusCfg(path, isImport ? importSwitches : busSwitches,
                                                          isImport);
}

bool FieldbusSettingLib::writeFieldbusCfg(QString path, bool isImport)
{
    Q_UNUSED(isImport)
    return HandleBusFiles::getInstance()->writeFieldbusCfg(path);
}

bool FieldbusSettingLib::readEipMFile(QString path)
{
    return HandleBusFiles::getInstance()->readMasterOverride(path, eipMasterOverride);
}

bool FieldbusSettingLib::writeEipMFile(QString path, int mode)
{
    return HandleBusFiles::getInstance()->writeMasterOverride(path, eipMasterOverride, mode);
}

bool FieldbusSettingLib::readEtherCatMFile(QString path)
{
    return HandleBusFiles::getInstance()->readMasterOverride(path, etherCatMasterOverride);
}

bool FieldbusSettingLib::writeEtherCatMFile(QString path, int mode)
{
    return HandleBusFiles::getInstance()->writeMasterOverride(path, etherCatMasterOverride, mode);
}

bool FieldbusSettingLib::readPnmFile(QString path)
{
    return HandleBusFiles::getInstance()->readMasterOverride(path, pfnMasterOverride);
}

bool FieldbusSettingLib::writePnmFile(QString path, int mode)
{
    return HandleBusFiles::getInstance()->writeMasterOverride(path, pfnMasterOverride, mode);
}

bool FieldbusSettingLib::readEtherCatFile(QString path)
{
    return HandleBusFiles::getInstance()->readEtherCatFile(path, etherCatSlaveOverride, masterDevices);
}

bool FieldbusSettingLib::writeEtherCatFile(QString path)
{
    return HandleBusFiles::getInstance()->writeEtherCatFile(path, etherCatSlaveOverride);
}

bool FieldbusSettingLib::writeOverrideFile(const QString& path, const QString& key)
{
    return HandleBusFiles::getInstance()->writeOverrideFile(path, key);
}

WriteProblem FieldbusSettingLib::writeProblem() const
{
    return HandleBusFiles::getInstance()->problem();
}

bool FieldbusSettingLib::readHeartbeatDetectionFile(QString path)
{
    return HandleBusFiles::getInstance()->readHeartbeatDetectionFile(path, heartbeat);
}

bool FieldbusSettingLib::writeHeartbeatDetectionFile(QString path)
{
    return HandleBusFiles::getInstance()->writeHeartbeatDetectionFile(path, heartbeat);
}

bool FieldbusSettingLib::readPfbCfgFile(QString path)
{
    return HandleBusFiles::getInstance()->readPfbCfgFile(path, pfbSlave);
}

bool FieldbusSettingLib::writePfbCfgFile(QString path)
{
    return HandleBusFiles::getInstance()->writePfbCfgFile(path, pfbSlave);
}

bool FieldbusSettingLib::writePfbFreeFixFile(QString path, QString ctrlPath)
{
    return HandleBusFiles::getInstance()->writePfbFreeFixFile(path, ctrlPath, pfbSlave);
}

bool FieldbusSettingLib::readEtherNetFile(QString path)
{
    return HandleBusFiles::getInstance()->readEtherNetFile(path, eipSlave);
}

bool FieldbusSettingLib::writeEtherNetFile(QString path)
{
    return HandleBusFiles::getInstance()->writeEtherNetFile(path, eipSlave);
}

bool FieldbusSettingLib::writeEtherNetDnsFile(QString path, QString ctrlPath)
{
    return HandleBusFiles::getInstance()->writeEtherNetDnsFile(path, ctrlPath, eipSlave);
}

bool FieldbusSettingLib::readDeviceNetFile(QString path)
{
    return HandleBusFiles::getInstance()->readDeviceNetFile(path, deviceNetSlave);
}

bool FieldbusSettingLib::writeDeviceNetFile(QString path)
{
    return HandleBusFiles::getInstance()->writeDeviceNetFile(path, deviceNetSlave);
}

bool FieldbusSettingLib::readDeviceNetMasterFile(QString path)
{
    return HandleBusFiles::getInstance()->readDeviceNetMasterFile(path, deviceNetMaster);
}

bool FieldbusSettingLib::writeDeviceNetMasterFile(QString path)
{
    return HandleBusFiles::getInstance()->writeDeviceNetMasterFile(path, deviceNetMaster);
}

bool FieldbusSettingLib::readMtcpFile(QString path)
{
    return HandleBusFiles::getInstance()->readMtcpFile(path, mtcpMaster);
}

bool FieldbusSettingLib::writeMtcpFile(QString path)
{
    return HandleBusFiles::getInstance()->writeMtcpFile(path, mtcpMaster);
}

bool FieldbusSettingLib::readEimXMLFile(QString path)
{
    return HandleBusFiles::getInstance()->readMasterTable(path, MasterTableRoot::EtherNetIp, eipMaster);
}

bool FieldbusSettingLib::writeEimXMLFile(QString path)
{
    return HandleBusFiles::getInstance()->writeMasterTable(path, MasterTableRoot::EtherNetIp, eipMaster);
}

bool FieldbusSettingLib::readPnmXMLFile(QString path)
{
    return HandleBusFiles::getInstance()->readMasterTable(path, MasterTableRoot::Profinet, pfnMaster);
}

bool FieldbusSettingLib::writePnmXMLFile(QString path)
{
    return HandleBusFiles::getInstance()->writeMasterTable(path, MasterTableRoot::Profinet, pfnMaster);
}

bool FieldbusSettingLib::readMesSetFile(QString path)
{
    return HandleBusFiles::getInstance()->readMesSetFile(path, mesServer);
}

bool FieldbusSettingLib::writeMesSetFile(QString path)
{
    return HandleBusFiles::getInstance()->writeMesSetFile(path, mesServer);
}

bool FieldbusSettingLib::readFinsTcpFile(QString path)
{
    return HandleBusFiles::getInstance()->readFinsTcpFile(path, finsClient);
}

bool FieldbusSettingLib::writeFinsTcpFile(QString path)
{
    return HandleBusFiles::getInstance()->writeFinsTcpFile(path, finsClient);
}

// NOLINTEND(performance-unnecessary-value-param)
