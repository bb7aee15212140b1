#ifndef CONFIGURATIONFINDINGS_H
#define CONFIGURATIONFINDINGS_H

#include "Finding.h"

struct Configuration;
struct RunningState;

/// What is wrong with a configuration, the worst first; in linear time. `running` adds what only a controller
/// that runs can tell.
Findings findingsOf(const Configuration& configuration, const RunningState* running = nullptr);

#endif
