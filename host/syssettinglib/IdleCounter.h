#ifndef HOST_IDLECOUNTER_H
#define HOST_IDLECOUNTER_H

/// How often the application has called the idle service.
int idleServiceCalls();

#endif
