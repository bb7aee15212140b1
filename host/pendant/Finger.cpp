#include "Finger.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QPointer>
#include <QScrollArea>
#include <QWindow>

namespace {
void scrollIntoSight(QWidget* target)
{
    for (QWidget* above = target->parentWidget(); above; above = above->parentWidget()) {
        auto* area = qobject_cast<QScrollArea*>(above);
        if (area && area->widget() && area->widget()->isAncestorOf(target))
            area->ensureWidgetVisible(target, 0, 0);
    }
}
} // namespace

bool Finger::press(QWidget* target)
{
    return target && press(target, target->rect().center());
}

bool Finger::press(QWidget* target, const QPoint& spot)
{
    if (!target || !target->isVisible() || !target->isEnabled())
        return false;
    scrollIntoSight(target);
    QWidget* window = target->window();
    const QPoint point = target->mapTo(window, spot);
    QWidget* hit = window->childAt(point);
    if (!window->windowHandle() || !hit || (hit != target && !target->isAncestorOf(hit)))
        return false;

    const QPointer<QWindow> surface(window->windowHandle());
    const QPoint onScreen = window->mapToGlobal(point);
    const struct
    {
        QEvent::Type type;
        Qt::MouseButtons held;
    } steps[] = {{QEvent::MouseButtonPress, Qt::LeftButton}, {QEvent::MouseButtonRelease, Qt::NoButton}};
    for (const auto& step : steps) {
        if (!surface)
            return false;
        QMouseEvent event(step.type, point, point, onScreen, Qt::LeftButton, step.held, Qt::NoModifier);
        QCoreApplication::sendEvent(surface, &event);
    }
    return true;
}
