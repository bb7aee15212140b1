#include "DialogShade.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QPainter>

namespace {
constexpr qreal ShadeOpacity = 0.45;

// Darkens a window for as long as `dialog` is shown. Fingers go through it: what a modal dialog does not
// block, the shade must not either.
class Shade : public QWidget
{
public:
    Shade(QWidget* window, QDialog* dialog)
        : QWidget(window)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setObjectName(QStringLiteral("dialogShade"));
        setGeometry(window->rect());
        window->installEventFilter(this);
        dialog->installEventFilter(this);
        connect(dialog, &QObject::destroyed, this, [this] { delete this; });
        raise();
        show();
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched == parentWidget()) {
            if (event->type() == QEvent::Resize)
                setGeometry(parentWidget()->rect());
        } else if (event->type() == QEvent::Hide && !event->spontaneous()) {
            delete this;
        }
        return false;
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.setOpacity(ShadeOpacity);
        painter.fillRect(rect(), palette().brush(QPalette::Shadow));
    }
};
} // namespace

DialogShade::DialogShade(QObject* parent)
    : QObject(parent)
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool DialogShade::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show && !event->spontaneous()) {
        auto* dialog = qobject_cast<QDialog*>(watched);
        QWidget* const window = dialog ? windowOf(dialog->parentWidget()) : nullptr;
        if (window && window != dialog && window->isVisible())
            new Shade(window, dialog);
    }
    return false;
}

QWidget* DialogShade::windowOf(const QWidget* parent)
{
    return parent ? parent->window() : QApplication::activeWindow();
}
