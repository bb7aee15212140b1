#include "PendantApplication.h"

#include "TouchScreen.h"

#include <QScopedValueRollback>

namespace {
// Threads deliver events of their own.
thread_local int deliveries = 0;
} // namespace

PendantApplication::PendantApplication(int& argc, char** argv)
    : QApplication(argc, argv)
{
    TouchScreen::watch(this);
}

bool PendantApplication::notify(QObject* receiver, QEvent* event)
{
    const QScopedValueRollback<int> entered(deliveries, deliveries + 1);
    return QApplication::notify(receiver, event);
}

int PendantApplication::depth()
{
    return deliveries;
}
