#include "FinsShortcut.h"

#include <QWidget>

namespace {
constexpr int PageId = 2;

// The application's menu page; null while the application is not open.
QWidget* menuPage(const QWidget& window)
{
    return window.findChild<QWidget*>(QStringLiteral("FbMainWidget"));
}
} // namespace

bool FinsShortcut::isAtHand(const QWidget& window)
{
    return menuPage(window) != nullptr;
}

bool FinsShortcut::show(const QWidget& window)
{
    QWidget* const menu = menuPage(window);
    return menu &&
           QMetaObject::invokeMethod(menu, "slotMenuBtnsClicked", Qt::QueuedConnection, Q_ARG(int, PageId));
}
