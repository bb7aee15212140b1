#ifndef MAPPINGSERVICE_H
#define MAPPINGSERVICE_H

#include "BusFileData.h"
#include "MappingTables.h"

#include <vector>

/// The I/O mapping as the bus file data service holds it, and as the rules know it.
namespace MappingService {

/// What the service holds; a bus that it does not list is empty.
Mapping::Buses fromService(const std::vector<BusAddrNumInfo>& records);

/// The buses whose quantities are entered on the page, as the service takes them.
std::vector<BusAddrNumInfo> editedBuses(const Mapping::Buses& buses);

} // namespace MappingService

namespace Mapping {

/// A text of the rules in the operator's language; the translations know them all as the page's own.
QString translated(const char* text);
QString translated(const MarkedText& text);

} // namespace Mapping

#endif
