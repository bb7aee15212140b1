#include "HostLog.h"

Q_LOGGING_CATEGORY(lcHost, "pendant.host")
