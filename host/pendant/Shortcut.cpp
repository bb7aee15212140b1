#include "Shortcut.h"

#include "ApplicationSlot.h"
#include "PendantWindow.h"
#include "ZelBaseWidget.h"

Shortcut::Shortcut(const PendantWindow& window, const QString& id)
    : m_window(window)
    , m_id(id)
{
}

// The object of the application that is open; null when it has no such shortcut.
QObject* Shortcut::target(const ApplicationShortcut*& found) const
{
    const ApplicationSlot* const application = m_window.present();
    if (!application || !application->widget())
        return nullptr;
    for (const ApplicationShortcut& shortcut : application->info().shortcuts) {
        if (shortcut.id == m_id) {
            found = &shortcut;
            return application->widget()->findChild<QObject*>(shortcut.object);
        }
    }
    return nullptr;
}

bool Shortcut::isAtHand() const
{
    const ApplicationShortcut* shortcut = nullptr;
    return target(shortcut) != nullptr;
}

bool Shortcut::show() const
{
    const ApplicationShortcut* shortcut = nullptr;
    QObject* const object = target(shortcut);
    return object && QMetaObject::invokeMethod(object, qPrintable(shortcut->slot), Qt::QueuedConnection,
                                               Q_ARG(int, shortcut->argument));
}
