#include "FingerScroll.h"

#include <QAbstractItemView>
#include <QScroller>

void scrollByFinger(QAbstractScrollArea* area)
{
    // By whole rows a table would jump under the finger.
    if (auto* view = qobject_cast<QAbstractItemView*>(area))
        view->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    QScroller::grabGesture(area->viewport(), QScroller::LeftMouseButtonGesture);
    QScroller* scroller = QScroller::scroller(area->viewport());
    QScrollerProperties properties = scroller->scrollerProperties();
    for (const auto policy :
         {QScrollerProperties::HorizontalOvershootPolicy, QScrollerProperties::VerticalOvershootPolicy})
        properties.setScrollMetric(policy, QVariant::fromValue<QScrollerProperties::OvershootPolicy>(
                                               QScrollerProperties::OvershootAlwaysOff));
    scroller->setScrollerProperties(properties);
}
