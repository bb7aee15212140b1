#ifndef PENDANT_FINGER_H
#define PENDANT_FINGER_H

class QPoint;
class QWidget;

/// Presses on the pendant's screen. A press goes through the window, as one of the touch screen does, so
/// that a widget that is covered or blocked does not get it.
namespace Finger {
/// Presses the middle of `target`, scrolled into sight first; false when nothing of it can be reached
/// there. A target that opens a dialog returns when the dialog closes.
bool press(QWidget* target);
/// The same in another place than the middle: an entry of a list has no widget of its own.
bool press(QWidget* target, const QPoint& spot);
} // namespace Finger

#endif
