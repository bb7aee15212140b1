#ifndef ZELCORE_ZELFUNCTIONS_H
#define ZELCORE_ZELFUNCTIONS_H

#include <QString>

class QObject;
class QWidget;

/// Maps a path to the variant for the pendant's language or edition; the path itself when there is none.
QString ZelGetLocalizedFileName(const QString& path, int mode);

/// Applies the style sheet kept under `key` ("application/ClassName") to `widget`; without one the widget
/// keeps the host's look.
void ZelSetUIStyleSheet(QWidget* widget, const QString& key);

/// Tells the host that the shown page changed, so that it subscribes variables anew.
void ZelSwitchWidgetVariablesContext();

/// Opens the modal numeric keyboard on `value`. Both ends belong to the range; a value outside it is
/// refused in the keyboard. `format` is "%li" for decimal and "%lx" for hexadecimal entry. On confirmation
/// calls `slot` (as SLOT() gives it, with one double) of `receiver`; on cancel calls nothing.
void ZelExecNumericKeyboard(double value, double minimum, double maximum, const char* format,
                            const QString& toolTip, QObject* receiver, const char* slot);

/// Path of the mounted USB drive, empty when none.
QString ZelGetUSBDrives();

/// 0 when the drive at `path` is mounted and reachable. An empty `path` is filled with the drive's path.
int ZelMountFloppy(QString& path);

/// Copies a file on the pendant or to the drive; non-zero on success. An existing target is replaced only
/// with `overwrite`.
int ZelFileCopy(const QString& source, const QString& target, bool overwrite);

#endif
