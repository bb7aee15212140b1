#ifndef HOST_TOUCHSCREEN_H
#define HOST_TOUCHSCREEN_H

class QObject;

/// What the pendant's screen adds to every widget of the host and of the applications: lists that a finger
/// scrolls, dimmed windows behind dialogs, and no presses just after a dialog came or went.
namespace TouchScreen {
/// For the application object, once; ends with `application`.
void watch(QObject* application);
} // namespace TouchScreen

#endif
