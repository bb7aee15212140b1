#include "FingerScroll.h"

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QEvent>
#include <QHeaderView>
#include <QScroller>

namespace {
void prepare(QAbstractScrollArea* area)
{
    if (auto* view = qobject_cast<QAbstractItemView*>(area)) {
        view->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
        view->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    }
    QWidget* const surface = area->viewport();
    QScroller::grabGesture(surface, QScroller::LeftMouseButtonGesture);
    QScroller* const scroller = QScroller::scroller(surface);
    QScrollerProperties properties = scroller->scrollerProperties();
    // A page that bounces looks as if it had lost its rows; a press that waits looks dead.
    properties.setScrollMetric(QScrollerProperties::VerticalOvershootPolicy,
                               QScrollerProperties::OvershootAlwaysOff);
    properties.setScrollMetric(QScrollerProperties::HorizontalOvershootPolicy,
                               QScrollerProperties::OvershootAlwaysOff);
    properties.setScrollMetric(QScrollerProperties::MousePressEventDelay, 0.0);
    scroller->setScrollerProperties(properties);
}
} // namespace

FingerScroll::FingerScroll(QObject* parent)
    : QObject(parent)
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool FingerScroll::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Polish && !qobject_cast<QHeaderView*>(watched)) {
        if (auto* area = qobject_cast<QAbstractScrollArea*>(watched))
            prepare(area);
    }
    return false;
}
