#ifndef LOGGING_H
#define LOGGING_H

#include <QLoggingCategory>

/// The plug-in's log.
Q_DECLARE_LOGGING_CATEGORY(fieldbusLog)

#endif
