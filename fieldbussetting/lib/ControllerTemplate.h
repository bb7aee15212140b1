#ifndef CONTROLLERTEMPLATE_H
#define CONTROLLERTEMPLATE_H

#include <QByteArray>
#include <QString>

/// Fetches the controller's file at `ctrlPath`, which a writer edits. A transfer may bring half a file,
/// nothing or noise, and what comes is sent back over the good file: it is used only when it is what was read
/// before, or when two transfers agree and it is no piece of what was read. `isRecognised` (null: any text
/// will do) says whether it is such a file at all; of one that was never read it is not asked. `temporary` is
/// the copy that the transfer makes; one that is there already is older than what the controller holds and is
/// not used. It is removed in any case. False when there is nothing to rely on.
bool fetchTemplate(const QString& temporary, const QString& ctrlPath, bool (*isRecognised)(const QByteArray&),
                   QByteArray& content);

#endif
