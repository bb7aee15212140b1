#ifndef MAPPINGCELLS_H
#define MAPPINGCELLS_H

#include "MappingModel.h"

/// The cells of a table in words and numbers, as the operator reads them.
namespace Mapping {

/// The rows that show `area` in `table`: the sum of a block, the user's variables, the robot's own in the
/// fixed mode, and placeholders up to the number of rows that the table always has.
std::vector<MappingModel::Row> rowsOf(const SubTable& table, const MappingArea& area, Mode mode);

} // namespace Mapping

#endif
