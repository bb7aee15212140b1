#ifndef UPDATESTATE_H
#define UPDATESTATE_H

/// Bits of "ifidbus.xml_update_state", through which the pendant and the controller tell each other of the
/// bus configuration. Whoever changes one leaves the others as they are.
namespace UpdateState {

constexpr int SlaveBlocksMoved = 0x1; ///< a register block of the Modbus TCP slave lies elsewhere
constexpr int Rejected = 0x800;       ///< by the controller: it does not accept the configuration
constexpr int Taken = 0x4000;         ///< by the controller: it has read the file
constexpr int Announced = 0x8000;     ///< by the pendant: there is a new file

} // namespace UpdateState

#endif
