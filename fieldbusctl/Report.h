#ifndef FIELDBUSCTL_REPORT_H
#define FIELDBUSCTL_REPORT_H

#include "LoadedFolder.h"
#include "Seal.h"

#include <QByteArray>

/// One page on a configuration: roles, findings, settings, I/O list with a ruler a direction, checksums.
/// Nothing in it depends on when or where it was made: the same files give the same bytes.
QByteArray reportOf(const LoadedFolder& folder, const Seal::Sums& sums);

#endif
