#ifndef PENDANT_SMALLSCREEN_H
#define PENDANT_SMALLSCREEN_H

#include <QScrollArea>

class PendantWindow;

/// A window onto the pendant on a screen that is smaller than what applications are drawn for: a finger moves
/// the pendant below it, so that nothing is out of reach.
class SmallScreen : public QScrollArea
{
    Q_OBJECT

public:
    /// `pendant` has to outlive it.
    explicit SmallScreen(PendantWindow& pendant);
    ~SmallScreen() override;

    /// Whether the pendant does not fit into `room`.
    static bool isNeeded(QSize room);
};

#endif
