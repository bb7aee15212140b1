#ifndef CONTROLLERTEMPLATE_H
#define CONTROLLERTEMPLATE_H

#include <QByteArray>
#include <QString>

/// Fetches the controller's file at `ctrlPath`, which a writer edits, into `temporary` and reads it. The result
/// of the fetch is not looked at: an older copy serves when there is one. The temporary file is removed in any
/// case. False when there is no copy to read.
bool fetchTemplate(const QString& temporary, const QString& ctrlPath, QByteArray& content);

#endif
