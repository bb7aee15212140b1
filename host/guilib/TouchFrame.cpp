#include "TouchFrame.h"

#include "ZelFunctions.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QPainter>
#include <QScreen>

namespace {
constexpr qreal ShadeOpacity = 0.45;

// Darkens a window. Fingers go through it: what a modal dialog does not block, the shade must not either.
class Shade : public QWidget
{
public:
    explicit Shade(QWidget* window)
        : QWidget(window)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setObjectName(QStringLiteral("dialogShade"));
        setGeometry(window->rect());
        window->installEventFilter(this);
        raise();
        show();
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Resize)
            setGeometry(parentWidget()->rect());
        return QWidget::eventFilter(watched, event);
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

TouchFrame::TouchFrame(QDialog* dialog)
    : QObject(dialog)
    , m_dialog(dialog)
{
    dialog->setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
    ZelSetUIStyleSheet(dialog, QStringLiteral("host"));
    dialog->installEventFilter(this);
}

TouchFrame::~TouchFrame()
{
    delete m_shade;
}

bool TouchFrame::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_dialog && !event->spontaneous()) {
        if (event->type() == QEvent::Show)
            cover();
        else if (event->type() == QEvent::Hide)
            delete m_shade;
    }
    return QObject::eventFilter(watched, event);
}

QWidget* TouchFrame::windowOf(const QWidget* parent)
{
    return parent ? parent->window() : QApplication::activeWindow();
}

void TouchFrame::cover()
{
    QWidget* window = windowOf(m_dialog->parentWidget());
    if (window == m_dialog)
        window = nullptr;
    QRect area = m_dialog->screen()->availableGeometry();
    if (window && window->isVisible()) {
        area = QRect(window->mapToGlobal(QPoint()), window->size());
        if (!m_shade)
            m_shade = new Shade(window);
    }
    m_dialog->move(area.center() - m_dialog->rect().center());
}
