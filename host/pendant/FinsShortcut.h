#ifndef PENDANT_FINSSHORTCUT_H
#define PENDANT_FINSSHORTCUT_H

class QWidget;

/// The page of the FINS client, for which the application's menu has no button.
namespace FinsShortcut {
/// Whether it could be shown now: the application is open in `window`.
bool isAtHand(const QWidget& window);
/// Shows it on the next event-loop turn: it fetches its file and may ask something before it is there.
/// False when the application is not open.
bool show(const QWidget& window);
} // namespace FinsShortcut

#endif
