#ifndef IMPORTJUDGE_H
#define IMPORTJUDGE_H

#include "ImportSet.h"

#include <QStringList>

/// What is wrong with the files that an import would send, a line a fault for the operator; empty when they
/// may be sent. The controller's present files have been fetched: what it has already is not looked at, and a
/// file that differs is held against the controller's own (`FileCheck`). A file that is missing is no fault,
/// but a folder without any is.
QStringList judgeImport(const std::vector<ImportEntry>& entries);

#endif
