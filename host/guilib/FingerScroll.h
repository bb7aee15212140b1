#ifndef HOST_FINGERSCROLL_H
#define HOST_FINGERSCROLL_H

#include <QObject>

/// Lets every table, list and scroll area of the pendant and its applications be scrolled by a finger, or by
/// the mouse with its button held. A press still reaches what lies under it at once.
class FingerScroll : public QObject
{
    Q_OBJECT

public:
    /// Watches the whole application from now on.
    explicit FingerScroll(QObject* parent);

    bool eventFilter(QObject* watched, QEvent* event) override;
};

#endif
