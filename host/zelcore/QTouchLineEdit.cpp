#include "QTouchLineEdit.h"

#include "NumericKeyboard.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>

#include <cstdlib>
#include <limits>

namespace {
NumericEntry::Kind kindOf(int cast)
{
    switch (cast) {
    case QTouchLineEdit::CastReal:
        return NumericEntry::Kind::Real;
    case QTouchLineEdit::CastHexadecimal:
        return NumericEntry::Kind::Hexadecimal;
    case QTouchLineEdit::CastIpAddress:
        return NumericEntry::Kind::IpAddress;
    default:
        return NumericEntry::Kind::Decimal;
    }
}

bool canBeEntered(const QTouchLineEdit& edit)
{
    if (!edit.isVisible() || !edit.isEnabled() || edit.isReadOnly() ||
        edit.cast() == QTouchLineEdit::CastText)
        return false;
    for (const QWidget* above = &edit; above; above = above->parentWidget()) {
        if (above->testAttribute(Qt::WA_TransparentForMouseEvents))
            return false;
    }
    return true;
}

// Fields are read like text: line by line, and those whose middles are about as high make a line.
bool isBefore(const QPoint& one, const QPoint& other)
{
    constexpr int LineHeight = 24;
    return std::abs(one.y() - other.y()) < LineHeight ? one.x() < other.x() : one.y() < other.y();
}

// The field after `edit` on its page, null when it is the last one.
QTouchLineEdit* nextField(const QTouchLineEdit& edit)
{
    QWidget* const window = edit.window();
    const auto place = [window](const QTouchLineEdit& field) {
        return field.mapTo(window, field.rect().center());
    };
    QTouchLineEdit* next = nullptr;
    for (QTouchLineEdit* field : window->findChildren<QTouchLineEdit*>()) {
        if (field != &edit && canBeEntered(*field) && isBefore(place(edit), place(*field)) &&
            (!next || isBefore(place(*field), place(*next))))
            next = field;
    }
    return next;
}
} // namespace

QTouchLineEdit::QTouchLineEdit(QWidget* parent)
    : QLineEdit(parent)
{
    connect(this, &QLineEdit::editingFinished, this, [this] {
        if (m_cast != CastText || !isModified())
            return;
        setModified(false);
        emit valueSetted(text());
    });
}

void QTouchLineEdit::setCast(int cast, int decimals)
{
    m_cast = cast;
    m_decimals = decimals;
    // Whatever would change the text past the keyboard is closed: dropping, the paste menu, input methods.
    const bool free = cast == CastText;
    setAcceptDrops(free);
    setContextMenuPolicy(free ? Qt::DefaultContextMenu : Qt::NoContextMenu);
    setAttribute(Qt::WA_InputMethodEnabled, free);
}

void QTouchLineEdit::setValueRange(double minimum, double maximum)
{
    m_ranged = true;
    m_minimum = minimum;
    m_maximum = maximum;
}

void QTouchLineEdit::mouseReleaseEvent(QMouseEvent* event)
{
    if (m_cast == CastText) {
        QLineEdit::mouseReleaseEvent(event);
        return;
    }
    event->accept();
    // A finger that slid off has changed its mind.
    if (event->button() == Qt::LeftButton && rect().contains(event->pos()))
        openKeyboard();
}

void QTouchLineEdit::keyPressEvent(QKeyEvent* event)
{
    if (m_cast == CastText) {
        QLineEdit::keyPressEvent(event);
        return;
    }
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn && !event->isAutoRepeat())
        openKeyboard();
    else if (!isReturn)
        event->ignore();
}

void QTouchLineEdit::openKeyboard()
{
    if (isReadOnly() || !isEnabled())
        return;
    NumericEntry entry(kindOf(m_cast), m_decimals);
    if (m_cast == CastUnsigned)
        entry.setRange(0.0, std::numeric_limits<quint32>::max());
    if (m_ranged)
        entry.setRange(m_minimum, m_maximum);
    entry.setText(text());

    FieldHints hints = FieldHints::of(this);
    hints.hasNext = nextField(*this) != nullptr;
    const QPointer<QTouchLineEdit> alive(this);
    const std::optional<NumericKeyboard::Answer> answer = NumericKeyboard::ask(this, entry, hints);
    if (!answer || !alive)
        return;
    const QString text = answer->entry.result();
    setText(text);
    emit valueSetted(text);
    // Who hears of the value may show a message, lock fields or delete them.
    QTouchLineEdit* const next = alive && answer->goOn ? nextField(*this) : nullptr;
    if (next)
        QMetaObject::invokeMethod(
            next,
            [next] {
                if (canBeEntered(*next) && !QApplication::activeModalWidget())
                    next->openKeyboard();
            },
            Qt::QueuedConnection);
}
