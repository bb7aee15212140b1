#ifndef IOLIST_H
#define IOLIST_H

#include "Configuration.h"
#include "MappingTables.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <optional>
#include <vector>

/// A range of the I/O mapping, or one point of it.
struct IoRow
{
    const RoleInfo* role;
    Mapping::Direction direction;
    MappedType type;
    bool isSystem; ///< the robot's own variables
    MappingConfig::Mode mode;
    QString key;    ///< what the variables are called: "eip_ro_b"
    int firstIndex; ///< of the variables
    int lastIndex;
    bool isRegister;              ///< addresses count Modbus registers, else bytes
    std::optional<quint32> first; ///< first byte or register; nothing when it has no place
    std::optional<quint32> last;
    std::optional<int> bit; ///< of a point that is a Bool: 0 is the lowest bit of its byte or register

    /// "eip_ro_b[17]", "eip_ro_b[0..639]".
    QString variable() const;
    QString directionText() const;
    const char* typeName() const;
    const char* modeName() const;
};

/// What a PLC programmer needs of a configuration.
namespace IoList {

/// The ranges of one mode, bus by bus, each direction in the order in which it lies. `only` leaves one role,
/// be it on or off; without it those that are on are listed.
std::vector<IoRow> ranges(const Configuration& configuration, MappingConfig::Mode mode,
                          const RoleInfo* only = nullptr);

/// Calls `use` with every point of a range.
void forEachPoint(const IoRow& range, const std::function<void(const IoRow& point)>& use);

/// The list as a table: what stands over the cells, and the cells of a row.
const QStringList& header();
QStringList cellsOf(const IoRow& row);

} // namespace IoList

#endif
