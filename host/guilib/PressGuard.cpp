#include "PressGuard.h"

#include <QCoreApplication>
#include <QDialog>
#include <QEvent>

#include <utility>

PressGuard::PressGuard(QObject* parent)
    : QObject(parent)
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool PressGuard::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Show:
    case QEvent::Hide:
        if (!event->spontaneous() && qobject_cast<QDialog*>(watched))
            m_sinceDialog.start();
        return false;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
        return watched->isWindowType() && event->spontaneous() && swallows(*event);
    default:
        return false;
    }
}

bool PressGuard::swallows(const QEvent& event)
{
    switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::TouchBegin:
        m_swallowing = m_sinceDialog.isValid() && !m_sinceDialog.hasExpired(DeafMs);
        return m_swallowing;
    case QEvent::MouseMove:
    case QEvent::TouchUpdate:
        return m_swallowing;
    default:
        return std::exchange(m_swallowing, false);
    }
}
