#ifndef UPDATESTATE_H
#define UPDATESTATE_H

/// Bits of "ifidbus.xml_update_state", through which the pendant and the controller tell each other of the
/// bus configuration and of the DeviceNet slave's file. Whoever changes one leaves the others as they
/// are, but for the end of the DeviceNet slave's handshake, which clears all.
namespace UpdateState {

constexpr int SlaveBlocksMoved = 0x1;  ///< a register block of the Modbus TCP slave lies elsewhere
constexpr int Rejected = 0x800;        ///< by the controller: it does not accept the configuration
constexpr int SlaveTaken = 0x2000;     ///< by the controller: it has read the DeviceNet slave's file
constexpr int Taken = 0x4000;          ///< by the controller: it has read the bus configuration
constexpr int Announced = 0x8000;      ///< by the pendant: there is a new file
constexpr int SlaveAnnounced = 0x9000; ///< by the pendant: it is the DeviceNet slave's

} // namespace UpdateState

#endif
