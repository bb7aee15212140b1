#ifndef TESTS_SLAVEPAGE_H
#define TESTS_SLAVEPAGE_H

#include "Finger.h"
#include "PendantFixture.h"

/// Several slave pages have widgets of the same names: the child `name` of the page of class `page`.
template <typename Widget = QWidget>
Widget* onPage(const PendantFixture& pendant, const QString& page, const QString& name)
{
    const auto* widget = pendant.find(page);
    return widget ? widget->findChild<Widget*>(name) : nullptr;
}

inline bool pressOnPage(PendantFixture& pendant, const QString& page, const QString& name)
{
    return Finger::press(onPage(pendant, page, name)) && pendant.settle();
}

/// The application's idle tick, as the host gives it.
inline QMetaMethod idleTickOf(QWidget* page, QWidget*& application)
{
    for (QWidget* above = page; above; above = above->parentWidget()) {
        if (above->metaObject()->indexOfSlot("slotIdle()") >= 0)
            application = above;
    }
    return application
               ? application->metaObject()->method(application->metaObject()->indexOfSlot("slotIdle()"))
               : QMetaMethod();
}

#endif
