#ifndef ROLESECTIONS_H
#define ROLESECTIONS_H

#include "RowTable.h"
#include "Subjects.h"

class ControllerWatch;

/// What the page of a role shows, a section a function: each gives its rows, with a heading before them, or
/// nothing when the role has none of it.
namespace RoleSections {

RowTable::Rows state(const ControllerWatch& watch, Subjects::Id subject);
/// Each finding with the facts that it rests on and the next step.
RowTable::Rows findings(const ControllerWatch& watch, Subjects::Id subject);
/// The devices of the DeviceNet master's scan list, the controller's codes in words.
RowTable::Rows devices(const ControllerWatch& watch, Subjects::Id subject);
/// The slaves of a master that has positions.
RowTable::Rows positions(const ControllerWatch& watch, Subjects::Id subject);
/// What the files set, with an example for each byte order.
RowTable::Rows settings(const ControllerWatch& watch, Subjects::Id subject);
/// The controller's files: those that are not as they should be.
RowTable::Rows files(const ControllerWatch& watch, Subjects::Id subject);

} // namespace RoleSections

#endif
