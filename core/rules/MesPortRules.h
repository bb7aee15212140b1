#ifndef MESPORTRULES_H
#define MESPORTRULES_H

/// Name of the service of the controller that listens on `port` by default, and so leaves no room for the MES
/// server; null when none does. Part of a message and not translated.
const char* conflictingService(int port);

#endif
