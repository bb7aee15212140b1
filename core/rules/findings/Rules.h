#ifndef RULES_H
#define RULES_H

#include "FindingList.h"
#include "RunningState.h"

/// The rules behind the findings, by what they look at. Each adds what it finds; a record whose file was not
/// read is not looked at.
namespace Rules {

void files(const Configuration& configuration, FindingList& found);
void roles(const Configuration& configuration, FindingList& found, bool profisafePresent);
void devices(const Configuration& configuration, FindingList& found);
void network(const Configuration& configuration, FindingList& found);
void hostLinks(const Configuration& configuration, FindingList& found);
void scanList(const Configuration& configuration, FindingList& found);
void deviceNetSlave(const Configuration& configuration, FindingList& found);
void mapping(const Configuration& configuration, FindingList& found);
void byteOrders(const Configuration& configuration, FindingList& found);
void watches(const Configuration& configuration, FindingList& found);
void values(const Configuration& configuration, FindingList& found);
void slavePositions(const Configuration& configuration, FindingList& found);

/// What runs. A link that is down is put down to cable or partner only where nothing else was found for its
/// role: it goes last.
void running(const Configuration& configuration, const RunningState& state, FindingList& found);

} // namespace Rules

#endif
