#ifndef BUSSWITCHFILE_H
#define BUSSWITCHFILE_H

/// Switch flags of the bus roles as the controller's Fieldbus.cfg lists them, named as the file names the
/// roles.
struct BusSwitchSet
{
    bool Mes = false;
    bool ProfinetSlave = false;
    bool FinsTcp = false;
    bool EtherCatSlave = false;
    bool EtherNetIPSlave = false;
    bool EtherCatMaster = false;
    bool DeviceNetSlave = false;
    bool ModbusTcpMaster = false;
    bool FreeBus = false;
    bool EtherNetIPMaster = false;
    bool ProfinetMaster = false;
    bool DeviceNetMaster = false;
    /// The file holds an entry for the Modbus TCP master, enabled or not. Only a read of an imported file
    /// sets it.
    bool ModbusTcpMasterListed = false;
};

#endif
