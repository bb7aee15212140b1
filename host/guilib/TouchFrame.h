#ifndef HOST_TOUCHFRAME_H
#define HOST_TOUCHFRAME_H

#include <QObject>
#include <QRect>

class QDialog;

/// What all dialogs of the host have in common: no frame of a window manager, the host's look, and a place on
/// the window they belong to.
class TouchFrame : public QObject
{
    Q_OBJECT

public:
    /// Where a dialog comes to lie when it is shown.
    enum class Place {
        Centre,
        Question ///< its lower edge stays at one height, so that the buttons of all boxes lie in one place
    };

    /// Becomes a child of `dialog`.
    explicit TouchFrame(QDialog* dialog, Place place = Place::Centre);

    /// Places the dialog beside `area` of the screen, so that it stays in sight; an empty one does not count.
    void keepInSight(const QRect& area) { m_inSight = area; }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QRect room() const;
    QPoint placeIn(const QRect& room) const;

    QDialog* m_dialog;
    Place m_place;
    QRect m_inSight;
};

#endif
