#include "TouchCheckBox.h"

#include <QLabel>
#include <QMouseEvent>

namespace {
constexpr int LeastSize = 48; // pixels
} // namespace

TouchCheckBox::TouchCheckBox(QWidget* parent)
    : TouchCheckBox(QString(), parent)
{
}

TouchCheckBox::TouchCheckBox(const QString& text, QWidget* parent)
    : QCheckBox(text, parent)
{
    setMinimumSize(LeastSize, LeastSize);
}

void TouchCheckBox::takeCaption(QLabel* caption)
{
    caption->setBuddy(this);
    caption->setMinimumHeight(LeastSize);
    caption->installEventFilter(this);
}

void TouchCheckBox::takeCaptionsIn(QWidget* page)
{
    const QList<QLabel*> labels = page->findChildren<QLabel*>();
    for (QLabel* label : labels) {
        if (auto* box = qobject_cast<TouchCheckBox*>(label->buddy()))
            box->takeCaption(label);
    }
}

bool TouchCheckBox::eventFilter(QObject* watched, QEvent* event)
{
    const auto* caption = qobject_cast<QLabel*>(watched);
    const bool isPress = event->type() == QEvent::MouseButtonPress;
    if (!caption || !isEnabled() || (!isPress && event->type() != QEvent::MouseButtonRelease))
        return QCheckBox::eventFilter(watched, event);
    const auto* mouse = static_cast<QMouseEvent*>(event);
    if (mouse->button() != Qt::LeftButton)
        return false;
    const bool wasDown = isDown();
    setDown(isPress);
    if (!isPress && wasDown && caption->rect().contains(mouse->pos()))
        click(); // what it is connected to may delete the page
    return true;
}
