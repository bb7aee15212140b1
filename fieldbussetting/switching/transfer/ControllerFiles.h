#ifndef CONTROLLERFILES_H
#define CONTROLLERFILES_H

#include <QString>

/// What an import asks of the controller's present files.
namespace ControllerFiles {

enum class Fetched { Yes, Absent, Failed, NoRoom };

/// A local file for what is fetched only to be looked at.
QString scratchCopy();

/// Fetches a file, or makes out why it does not come. `NoRoom`: the pendant could not write it.
Fetched fetchOrMiss(const QString& path, const QString& controller);

/// Whether the controller's file can be fetched and holds the same bytes as the local file `expected`.
bool isThere(const QString& controller, const QString& expected);

} // namespace ControllerFiles

#endif
