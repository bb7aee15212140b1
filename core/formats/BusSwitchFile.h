#ifndef BUSSWITCHFILE_H
#define BUSSWITCHFILE_H

#include <QByteArray>

namespace pugi {
class xml_document;
}

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

namespace BusSwitchFile {

/// False, and the flags as they were, when `content` is no XML. `isImport`: also whether the Modbus TCP
/// master is listed at all. `recognised`: whether any role is listed.
bool read(const QByteArray& content, BusSwitchSet& switches, bool isImport, bool* recognised = nullptr);
/// From a document that is parsed already.
void readFrom(const pugi::xml_document& document, BusSwitchSet& switches, bool isImport,
              bool* recognised = nullptr);

/// The file with the PROFINET slave role switched off; empty when `content` is no XML.
QByteArray rewritten(const QByteArray& content);

} // namespace BusSwitchFile

#endif
