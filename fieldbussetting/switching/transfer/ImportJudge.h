#ifndef IMPORTJUDGE_H
#define IMPORTJUDGE_H

#include "ImportSet.h"

#include <QStringList>

/// What is wrong with the files that an import has copied, a line a fault for the operator; empty when they
/// may be sent. XML files are well-formed and have the root that is expected under their name; text files
/// have content. A file that is missing is no fault, but a folder without any is.
QStringList judgeImport(const std::vector<ImportEntry>& entries);

#endif
