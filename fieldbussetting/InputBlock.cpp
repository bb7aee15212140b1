#include "InputBlock.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>

namespace {

bool isInput(const QEvent& event)
{
    switch (event.type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::Shortcut:
    case QEvent::InputMethod:
    case QEvent::ContextMenu:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
        return true;
    case QEvent::Close: // asked for by the window system, for the operator
        return event.spontaneous();
    default:
        return false;
    }
}

} // namespace

InputBlock::InputBlock(QWidget* application)
    : QObject(application)
    , m_application(application)
{
}

void InputBlock::count(bool begins)
{
    const bool wasOn = isOn();
    m_count += begins ? 1 : -1;
    if (isOn() == wasOn)
        return;
    if (!isOn()) {
        qApp->removeEventFilter(this);
        return;
    }
    qApp->installEventFilter(this);
    // A key or finger that is down comes up unseen: it must not press the button when the block is over.
    auto* held = qobject_cast<QAbstractButton*>(QApplication::focusWidget());
    if (held && isStopped(held))
        held->setDown(false);
}

bool InputBlock::eventFilter(QObject* watched, QEvent* event)
{
    return watched->isWidgetType() && isInput(*event) && isStopped(static_cast<QWidget*>(watched));
}

// A window of a page is no child widget of it, but its parent is.
bool InputBlock::isStopped(const QWidget* widget) const
{
    if (widget->window() != m_application->window() && widget->window()->isModal())
        return false;
    while (widget && widget != m_application)
        widget = widget->parentWidget();
    return widget != nullptr;
}
