#ifndef FINDINGKINDS_H
#define FINDINGKINDS_H

#include "FindingCodes.h"

/// The two parts of the catalogue, each by rising code: severity, whether it counts while the role is off,
/// cause, evidence, next step.
namespace FindingKinds {

extern const std::vector<FindingKind> OfFilesAndRoles;
extern const std::vector<FindingKind> OfBusesAndLinks;

} // namespace FindingKinds

#endif
