#include "TouchFrame.h"

#include "DialogShade.h"
#include "ZelFunctions.h"

#include <QDialog>
#include <QEvent>
#include <QScreen>

#include <algorithm>

namespace {
constexpr int BelowCentre = 150; ///< lower edge of a question
constexpr int Gap = 12;          ///< between a dialog and what stays in sight

QPoint pushedInto(const QRect& room, QRect rect)
{
    rect.moveRight(std::min(rect.right(), room.right()));
    rect.moveBottom(std::min(rect.bottom(), room.bottom()));
    rect.moveLeft(std::max(rect.left(), room.left()));
    rect.moveTop(std::max(rect.top(), room.top()));
    return rect.topLeft();
}

// Below it, above, right or left, so that its caption beside it stays in sight too where there is room: the
// first place where it covers nothing of `area`, else right.
QPoint beside(const QRect& area, QSize size, const QRect& room)
{
    const int y = area.center().y() - size.height() / 2;
    const int x = area.center().x() - size.width() / 2;
    const QPoint right(area.right() + Gap, y);
    const QPoint places[] = {{x, area.bottom() + Gap},
                             {x, area.top() - Gap - size.height()},
                             right,
                             {area.left() - Gap - size.width(), y}};
    for (const QPoint& place : places) {
        const QPoint corner = pushedInto(room, QRect(place, size));
        if (!QRect(corner, size).intersects(area))
            return corner;
    }
    return pushedInto(room, QRect(right, size));
}
} // namespace

TouchFrame::TouchFrame(QDialog* dialog, Place place)
    : QObject(dialog)
    , m_dialog(dialog)
    , m_place(place)
{
    dialog->setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
    ZelSetUIStyleSheet(dialog, QStringLiteral("host"));
    dialog->installEventFilter(this);
}

bool TouchFrame::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_dialog && event->type() == QEvent::Show && !event->spontaneous())
        m_dialog->move(placeIn(room()));
    return QObject::eventFilter(watched, event);
}

QRect TouchFrame::room() const
{
    const QWidget* window = DialogShade::windowOf(m_dialog->parentWidget());
    if (!window || window == m_dialog || !window->isVisible())
        return m_dialog->screen()->availableGeometry();
    return {window->mapToGlobal(QPoint()), window->size()};
}

QPoint TouchFrame::placeIn(const QRect& room) const
{
    if (!m_inSight.isEmpty())
        return beside(m_inSight, m_dialog->size(), room);
    const QPoint centred = room.center() - m_dialog->rect().center();
    if (m_place == Place::Centre)
        return centred;
    const int y = room.center().y() + BelowCentre - m_dialog->height();
    return pushedInto(room, QRect({centred.x(), y}, m_dialog->size()));
}
