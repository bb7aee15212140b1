#ifndef HOST_HOSTLOG_H
#define HOST_HOSTLOG_H

#include <QLoggingCategory>

/// Log of the desktop pendant, "pendant.host".
Q_DECLARE_LOGGING_CATEGORY(lcHost)

#endif
