#include "ConfigurationFindings.h"

#include "Rules.h"

Findings findingsOf(const Configuration& configuration, const RunningState* running)
{
    FindingList found(configuration);
    Rules::files(configuration, found);
    Rules::roles(configuration, found, running && running->profisafePresent);
    for (const auto rule :
         {Rules::devices, Rules::network, Rules::hostLinks, Rules::scanList, Rules::deviceNetSlave,
          Rules::mapping, Rules::byteOrders, Rules::watches, Rules::values, Rules::slavePositions})
        rule(configuration, found);
    if (running)
        Rules::running(configuration, *running, found);
    return found.sorted();
}
