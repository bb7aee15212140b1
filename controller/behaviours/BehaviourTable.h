#ifndef CONTROLLER_BEHAVIOURTABLE_H
#define CONTROLLER_BEHAVIOURTABLE_H

#include "Behaviour.h"

#include <memory>
#include <vector>

/// Makes every behaviour of the controller, in the order in which they come up.
std::vector<std::unique_ptr<Behaviour>> makeBehaviours(ControllerParts& parts);

#endif
