#ifndef MAPPINGFILE_H
#define MAPPINGFILE_H

#include <QByteArray>

#include <array>

namespace pugi {
class xml_document;
}

/// Types of mapped variables, as index of the rows of an area. A Bool is one bit, an Int two bytes, a Float
/// four.
enum MappedType { MappedBool, MappedInt, MappedFloat };
constexpr int MappedTypeCount = 3;

/// One row: how many variables of a type, and where they lie.
struct MappingRow
{
    /// "No address" of a start or end; no file can say it as a number.
    static constexpr quint32 NoAddress = 0xFFFFFFFF;

    int quantity = 0;          ///< 0 to 65535
    quint32 start = NoAddress; ///< first byte, or first register for Modbus TCP
    quint32 end = NoAddress;   ///< last one, inclusive
};
using MappingRows = std::array<MappingRow, MappedTypeCount>;

/// A direction of a bus.
struct MappingArea
{
    MappingRows user;
    MappingRows system;                    ///< all 0 in the free mode and for masters
    quint32 start = MappingRow::NoAddress; ///< first register of the block, Modbus TCP only
    quint32 end = MappingRow::NoAddress;   ///< last one, inclusive

    /// Whether the system rows lie before the user rows: as the addresses of this file say. False where one
    /// of the two has none.
    bool systemComesFirst() const;
};

/// The directions, as index of a bus's areas.
enum MappingDirection { ReadOnlyArea, WriteOnlyArea, ReadWriteArea };
constexpr int MappingDirectionCount = 3;

/// A bus in one mode; the third area is the Modbus TCP slave's alone.
struct MappingBus
{
    std::array<MappingArea, MappingDirectionCount> areas;
};

/// Record of fieldbus_config.xml, the I/O mapping: both modes side by side. Which of them runs is the
/// free-bus role's say.
struct MappingConfig
{
    enum Mode { Free, Fixed };
    static constexpr int ModeCount = 2;
    static constexpr int BusCount = 10;

    /// The buses as the file names them; the index is that of a mode's buses.
    static const std::array<const char*, BusCount>& busNames();

    /// By mode and bus; 0 and no address where the file says nothing.
    std::array<std::array<MappingBus, BusCount>, ModeCount> buses;
};

bool operator==(const MappingRow& a, const MappingRow& b);
bool operator==(const MappingArea& a, const MappingArea& b);
bool operator==(const MappingBus& a, const MappingBus& b);
bool operator==(const MappingConfig& a, const MappingConfig& b);

namespace MappingFile {

/// Names of the types and directions in the file, by their index.
extern const std::array<const char*, MappedTypeCount> TypeNames;
extern const std::array<const char*, MappingDirectionCount> DirectionNames;
extern const std::array<const char*, MappingConfig::ModeCount> ModeNames;

/// False (and `config` untouched) when the bytes are not well-formed, have another root, or hold a quantity
/// or an address that is no plain number in its range: what is read wrong would be written back wrong.
bool read(const QByteArray& bytes, MappingConfig& config);
/// From a document that is parsed already.
bool readFrom(const pugi::xml_document& document, MappingConfig& config);

/// The file with these quantities and addresses: every row that it has, and every other one that says
/// something. Null when it cannot be read.
QByteArray rewritten(const QByteArray& bytes, const MappingConfig& config);

} // namespace MappingFile

#endif
