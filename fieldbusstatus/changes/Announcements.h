#ifndef ANNOUNCEMENTS_H
#define ANNOUNCEMENTS_H

#include "KnownFiles.h"

#include <QByteArray>

/// How the controller and the pendant's file service are told that a file was replaced, as the pages of the
/// settings do it. These are the only variables that this application writes.
namespace Announcements {

/// The scan list is taken over when it arrives while its variable is set.
void beforeSend(FileId file);
/// `content` is what was sent.
void afterSend(FileId file, const QByteArray& content);
/// Whether the file takes effect with a restart only.
bool needsRestart(FileId file);

} // namespace Announcements

#endif
