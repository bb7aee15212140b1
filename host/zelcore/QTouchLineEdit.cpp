#include "QTouchLineEdit.h"

#include "NumericKeyboard.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>

#include <limits>

namespace {
// What an application may say of a field beyond the contract. A host without it ignores the property.
constexpr auto UnitProperty = "unit";

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

    const QPointer<QTouchLineEdit> alive(this);
    const std::optional<NumericEntry> answer =
        NumericKeyboard::ask(this, entry, toolTip(), property(UnitProperty).toString());
    if (!answer || !alive)
        return;
    const QString text = answer->result();
    setText(text);
    emit valueSetted(text);
}
