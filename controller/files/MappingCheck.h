#ifndef CONTROLLER_MAPPINGCHECK_H
#define CONTROLLER_MAPPINGCHECK_H

#include <QByteArray>
#include <QString>

/// What is wrong with an I/O mapping ("fieldbus_config.xml") that the controller was given; empty when it
/// can be run. This is the controller's own look at it: what no bus at all could carry is rejected. The
/// limits of the single buses are the pendant's business.
QString mappingFault(const QByteArray& bytes);

#endif
