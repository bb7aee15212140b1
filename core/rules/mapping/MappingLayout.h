#ifndef MAPPINGLAYOUT_H
#define MAPPINGLAYOUT_H

#include "MappingTables.h"

/// Sizes of mapped variables and where they lie: bytes, or Modbus registers of 16 bits.
namespace Mapping {

using Rows = MappingRows; ///< by MappedType

/// The holding registers that can be mapped. The upper ends belong to the range.
constexpr quint32 FirstRegister = 40001;
constexpr quint32 LastSlaveRegister = 41000;
constexpr quint32 LastMasterRegister = 49999;
quint32 lastRegister(Layout layout);

/// Bytes of a row; eight Bools are a byte, and what is left of them is not counted.
int bytesOf(MappedType type, int quantity);
int bytesOf(const Rows& rows);
/// Bytes of Bool and Int alone.
int smallBytesOf(const Rows& rows);
/// Registers of a row; 16 Bools are a register.
int registersOf(MappedType type, int quantity);
int registersOf(const Rows& rows);
bool isEmpty(const Rows& rows);

/// The register that a block begins at: the one it has, or where it would be placed when it is filled for the
/// first time.
quint32 blockStart(const MappingBus& bus, Layout layout, Direction direction);
/// The last register of a block that begins at `start`; wider than a register so that it cannot wrap.
quint64 blockEnd(const MappingArea& area, quint32 start);

/// Gives every user row of an area its place anew, and a block of registers, which begins at `start`, its
/// bounds.
void layOut(MappingArea& area, Layout layout, quint32 start);

} // namespace Mapping

#endif
