#ifndef PENDANT_SHORTCUT_H
#define PENDANT_SHORTCUT_H

#include <QString>

class PendantWindow;
class QObject;
struct ApplicationShortcut;

/// A page of an application for which its own menu has no button, as the application's description names it.
class Shortcut
{
public:
    /// `id` as in the description. The window must outlive this.
    Shortcut(const PendantWindow& window, const QString& id);

    /// Whether it could be shown now: its application is open.
    bool isAtHand() const;
    /// Shows it on the next event-loop turn: it fetches its file and may ask something before it is there.
    /// False when its application is not open.
    bool show() const;

private:
    QObject* target(const ApplicationShortcut*& found) const;

    const PendantWindow& m_window;
    QString m_id;
};

#endif
