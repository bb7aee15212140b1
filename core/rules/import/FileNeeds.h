#ifndef FILENEEDS_H
#define FILENEEDS_H

#include "KnownFiles.h"

#include <array>
#include <vector>

/// What the readers look for in a file.
namespace FileNeeds {

/// Null where there are fewer.
using Names = std::array<const char*, 3>;

/// What a file must hold to be the one of its name: elements below the root, or keywords in its lines. Null
/// for a file that nothing here reads.
const Names* namesOf(FileId file);

/// The elements that its reader knows, wherever they stand below the root. Null for a file that is not read
/// as a whole.
const std::vector<const char*>* elementsOf(FileId file);

} // namespace FileNeeds

#endif
