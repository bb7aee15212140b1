#ifndef HOST_PRESSGUARD_H
#define HOST_PRESSGUARD_H

#include <QElapsedTimer>
#include <QObject>

/// Swallows presses of the screen for a moment after any dialog opened or closed, so that the second tap of a
/// double one does not press what came to lie under the finger. Works on what the window system sends to the
/// pendant's windows; what the program itself sends to a widget goes through.
class PressGuard : public QObject
{
    Q_OBJECT

public:
    static constexpr int DeafMs = 300;

    /// Watches the whole application from now on.
    explicit PressGuard(QObject* parent);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool swallows(const QEvent& event);

    QElapsedTimer m_sinceDialog; ///< invalid before the first dialog
    bool m_swallowing = false;   ///< a press was swallowed, so the rest up to its release is
};

#endif
