#ifndef REPORT_H
#define REPORT_H

#include "Checksums.h"
#include "Finding.h"

#include <QByteArray>
#include <QStringList>

struct Configuration;

/// One page on a configuration: roles, findings, settings, I/O list with a ruler a direction, checksums.
/// `name` is what the configuration is called, `troubles` what is to be told first, `findings` what is wrong
/// with it. Nothing in it depends on when or where it was made: the same files give the same bytes.
QByteArray reportOf(const QString& name, const Configuration& configuration, const Findings& findings,
                    const QStringList& troubles, const Checksums::Sums& sums);

#endif
