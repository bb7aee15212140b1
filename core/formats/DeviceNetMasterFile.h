#ifndef DEVICENETMASTERFILE_H
#define DEVICENETMASTERFILE_H

#include "KeptNumbers.h"

#include <QByteArray>
#include <QString>

#include <array>
#include <vector>

/// A slave device that the DeviceNet master scans. Fields are named as the keywords of its block.
struct DeviceNetMasterDevice
{
    /// The most bytes of a direction that a file can say; the page allows 64.
    static constexpr int MostBytes = 255;

    int MAC_ID = -1; ///< 1 to 63; -1 before it is set
    int inputBytes = 0;
    int outputBytes = 0;
    int VENDOR_ID = 0;
    int PROD_CODE = 0;
    int REVISION = 0;
    QString CFG_FLAG = QStringLiteral("0x00"); ///< hexadecimal, lower case, two digits or more
    int NODE_STATUS_REG = 0;                   ///< register of the node's status; no page edits it
    int BLOCK_TO_RBX = 0;                      ///< first register of the inputs, as the file was written
    int BLOCK_FROM_RBX = 0;                    ///< first register of the outputs
    KeptNumbers kept = {};                     ///< by keyword
};

/// Record of dnmst0.cfg: the DeviceNet master's own settings and its scan list.
struct DeviceNetMasterConfig
{
    static constexpr int MaxDevices = 16;
    /// Where the input registers and the output registers of the first device begin.
    static constexpr int FirstRegister = 2001;

    int WS_ID = 1;                                    ///< the master's own station, 0 to 63
    int BAUDRATE = 125;                               ///< kbps: 125, 250 or 500
    QString ENDIAN = QStringLiteral("LITTLE_ENDIAN"); ///< byte order of the process data
    int PACHET_RATIO = 1;                             ///< ms, 1 to 255
    int count = 0;                                    ///< devices in use, 0 to MaxDevices
    std::array<DeviceNetMasterDevice, MaxDevices> devices;
    /// Devices of the file from the 17th on: no page shows them, and they are written behind the others.
    std::vector<DeviceNetMasterDevice> further;
    KeptNumbers kept = {}; ///< of the settings, by keyword

    /// Sizes of the bus in the I/O mapping, bits. They are not in the file: who edits the devices sets them.
    int inputLimitBits = 0;
    int outputLimitBits = 0;

    /// Gives each device its registers, one block after the other, inputs and outputs counted apart; brings
    /// what no file can say (count, byte counts) into its range.
    void layOutRegisters();
    /// Registers of 16 bits that hold `bytes`.
    static int registerCount(int bytes) { return (bytes + 1) / 2; }
};

namespace DeviceNetMasterFile {

/// False, and the record as it was, when `content` is no scan list. `recognised`: the last device has both
/// its blocks, as every file has that was not cut short within a device.
bool read(const QByteArray& content, DeviceNetMasterConfig& record, bool* recognised = nullptr);

/// The file with the record's settings in its header and the record's devices, each with the registers that
/// `layOutRegisters` gives it. Empty without a header: that is the controller's and cannot be made here.
QByteArray rewritten(const QByteArray& content, DeviceNetMasterConfig record);

} // namespace DeviceNetMasterFile

#endif
