#ifndef PENDANT_FINGER_H
#define PENDANT_FINGER_H

class QWidget;

/// Presses on the pendant's screen. A press goes through the window, as one of the touch screen does, so
/// that a widget that is covered or blocked does not get it.
namespace Finger {
/// Presses the middle of `target`, scrolled into sight first; false when nothing of it can be reached
/// there. A target that opens a dialog returns when the dialog closes.
bool press(QWidget* target);
} // namespace Finger

#endif
