#include "NumericKeyboard.h"

#include "DialogShade.h"
#include "NumericKeyboardScript.h"
#include "TouchFrame.h"
#include "ZelFunctions.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMap>
#include <QMetaMethod>
#include <QPointer>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

#include <array>
#include <cstring>

namespace {
constexpr int Margin = 16;
constexpr int Gap = 8;

// Where the keys are: a character is a key, and a key that stands in several places covers them all. The
// place of a key that is not offered goes to the zero beside it.
using Rows = std::array<const char*, 4>;
constexpr char Erase = NumericEntry::Backspace;
constexpr char Empty = NumericEntry::Clear;
constexpr Rows DecimalRows = {"789\b", "456\b", "123\x7f", "-0.\x7f"};
constexpr Rows HexadecimalRows = {"789AB", "456CD", "123EF", "-00\b\x7f"};

constexpr const char* ReplaceableKeys = "-.";

QString nameOf(char key)
{
    switch (key) {
    case Erase:
        return QStringLiteral("key_back");
    case Empty:
        return QStringLiteral("key_clear");
    case '.':
        return QStringLiteral("key_point");
    case '-':
        return QStringLiteral("key_sign");
    default:
        return QStringLiteral("key_%1").arg(QChar::fromLatin1(key).toLower());
    }
}

// A property that the style sheet looks at.
void setLook(QWidget* widget, const char* property, bool on)
{
    if (widget->property(property).toBool() == on)
        return;
    widget->setProperty(property, on);
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
}

// The key that a hardware key stands for, 0 for none.
char keyOf(const QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Backspace:
        return Erase;
    case Qt::Key_Delete:
        return Empty;
    case Qt::Key_Comma: // the point of many keypads
        return '.';
    default:
        return event->text().size() == 1 ? event->text().at(0).toUpper().toLatin1() : '\0';
    }
}
} // namespace

NumericKeyboard::NumericKeyboard(NumericEntry entry, const FieldHints& hints, QWidget* parent)
    : QDialog(parent)
    , m_entry(std::move(entry))
    , m_hints(hints)
    , m_display(label("label_entry", QString()))
    , m_hint(label("label_hint", QString()))
{
    auto* frame = new TouchFrame(this);
    frame->keepInSight(hints.area);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->setSpacing(Gap);
    layout->setSizeConstraint(QLayout::SetFixedSize);

    if (!caption().isEmpty()) {
        QLabel* title = label("label_caption", caption());
        title->setWordWrap(true);
        layout->addWidget(title);
    }
    layout->addLayout(entryLine());
    prepareHint();
    layout->addWidget(m_hint);
    auto* grid = new QGridLayout;
    grid->setSpacing(Gap);
    addKeys(grid);
    layout->addLayout(grid);
    layout->addLayout(closingKeys());
    refresh();
}

QLabel* NumericKeyboard::label(const char* name, const QString& text)
{
    auto* made = new QLabel(text, this);
    made->setObjectName(QLatin1String(name));
    made->setTextFormat(Qt::PlainText);
    return made;
}

QLayout* NumericKeyboard::entryLine()
{
    m_display->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    auto* line = new QHBoxLayout;
    line->setSpacing(Gap);
    line->addWidget(m_display, 1);
    if (!unit().isEmpty())
        line->addWidget(label("label_unit", unit()));
    return line;
}

// Room for two lines, so that the keys stay where they are when a reason appears.
void NumericKeyboard::prepareHint()
{
    m_hint->setWordWrap(true);
    m_hint->ensurePolished();
    m_hint->setMinimumHeight(2 * m_hint->fontMetrics().lineSpacing());
}

QLayout* NumericKeyboard::closingKeys()
{
    auto* closing = new QHBoxLayout;
    closing->setSpacing(Gap);
    const struct
    {
        QString text;
        const char* name;
        bool primary;
        bool offered;
        void (NumericKeyboard::*act)();
    } keys[] = {{tr("Cancel"), "key_cancel", false, true, &NumericKeyboard::reject},
                {tr("Next field"), "key_next", false, m_hints.hasNext, &NumericKeyboard::acceptAndGoOn},
                {tr("OK"), "key_ok", true, true, &NumericKeyboard::accept}};
    for (const auto& key : keys) {
        if (!key.offered)
            continue;
        auto* button = new QPushButton(key.text, this);
        button->setObjectName(QLatin1String(key.name));
        button->setProperty("primary", key.primary);
        button->setFocusPolicy(Qt::NoFocus);
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, key.act);
        closing->addWidget(button, 1);
    }
    return closing;
}

void NumericKeyboard::addKeys(QGridLayout* grid)
{
    const Rows& rows = m_entry.kind() == NumericEntry::Kind::Hexadecimal ? HexadecimalRows : DecimalRows;
    QMap<char, QRect> places;
    for (int row = 0; row < static_cast<int>(rows.size()); ++row)
        for (int column = 0; rows[row][column] != '\0'; ++column) {
            char key = rows[row][column];
            if (std::strchr(ReplaceableKeys, key) && !m_entry.offers(key))
                key = '0';
            places[key] |= QRect(column, row, 1, 1);
        }
    for (auto place = places.cbegin(); place != places.cend(); ++place) {
        const char key = place.key();
        auto* button = new QPushButton(this);
        button->setObjectName(nameOf(key));
        button->setFocusPolicy(Qt::NoFocus);
        button->setAutoDefault(false);
        button->setProperty("functionKey", key == Erase || key == Empty || key == '-');
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        if (key == Erase) {
            button->setIcon(QIcon(QStringLiteral(":/host/backspace.png")));
            button->setIconSize(QSize(36, 36));
        } else {
            button->setText(key == Empty ? tr("Clear")
                            : key == '-' ? QString(QChar(0x00B1))
                                         : QString(QLatin1Char(key)));
        }
        connect(button, &QPushButton::clicked, this, [this, key] { press(key); });
        grid->addWidget(button, place->y(), place->x(), place->height(), place->width());
    }
}

std::optional<NumericKeyboard::Answer> NumericKeyboard::ask(QObject* owner, const NumericEntry& entry,
                                                            const FieldHints& hints)
{
    QWidget* window = DialogShade::windowOf(qobject_cast<QWidget*>(owner));
    const QPointer<QObject> alive(owner);
    const QPointer<NumericKeyboard> keyboard(new NumericKeyboard(entry, hints, window));
    if (owner)
        connect(owner, &QObject::destroyed, keyboard.data(), &QDialog::reject);
    const bool confirmed = keyboard->exec() == Accepted;
    if (!keyboard)
        return {};
    std::optional<Answer> answer;
    if (confirmed && alive)
        answer = {keyboard->entry(), keyboard->m_goesOn};
    delete keyboard.data();
    return answer;
}

QPushButton* NumericKeyboard::button(char key) const
{
    return findChild<QPushButton*>(nameOf(key));
}

void NumericKeyboard::accept()
{
    m_refusal = m_entry.refusal();
    if (m_refusal.isEmpty())
        QDialog::accept();
    else
        refresh();
}

void NumericKeyboard::acceptAndGoOn()
{
    m_goesOn = true;
    accept();
    m_goesOn = m_refusal.isEmpty();
}

QString NumericKeyboard::hintText() const
{
    if (!m_refusal.isEmpty())
        return m_refusal;
    const QString range = m_entry.rangeText();
    return m_hints.step > 0.0 ? tr("%1, in steps of %2").arg(range).arg(m_hints.step) : range;
}

void NumericKeyboard::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (event->spontaneous())
        return;
    setFocus();
    NumericKeyboardScript::keyboardShown(this);
}

void NumericKeyboard::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        // A key that is held must not confirm the keyboard that it has just opened.
        if (!event->isAutoRepeat())
            accept();
    } else if (const char key = keyOf(event); key != '\0' && m_entry.offers(key)) {
        press(key);
    } else {
        QDialog::keyPressEvent(event);
    }
}

void NumericKeyboard::press(char key)
{
    m_entry.press(key);
    m_refusal.clear();
    refresh();
}

void NumericKeyboard::refresh()
{
    m_display->setText(m_entry.text());
    setLook(m_display, "marked", m_entry.isMarked());
    setLook(m_display, "refused", !m_refusal.isEmpty());
    m_hint->setText(hintText());
    setLook(m_hint, "refused", !m_refusal.isEmpty());
}

void ZelExecNumericKeyboard(double value, double minimum, double maximum, const char* format,
                            const QString& toolTip, QObject* receiver, const char* slot)
{
    const bool hexadecimal = format && std::strchr(format, 'x');
    NumericEntry entry(hexadecimal ? NumericEntry::Kind::Hexadecimal : NumericEntry::Kind::Decimal);
    entry.setRange(minimum, maximum);
    entry.setNumber(value);

    // The keyboard outlives nothing of the caller: what is needed afterwards is kept here.
    const QPointer<QObject> alive(receiver);
    const QByteArray signature = slot ? QMetaObject::normalizedSignature(slot + 1) : QByteArray();
    FieldHints hints = FieldHints::of(receiver);
    hints.caption = toolTip;
    const std::optional<NumericKeyboard::Answer> answer = NumericKeyboard::ask(receiver, entry, hints);
    if (!answer || !alive)
        return;
    const int index = alive->metaObject()->indexOfMethod(signature);
    const bool called = index >= 0 && alive->metaObject()->method(index).invoke(
                                          alive, Qt::DirectConnection, Q_ARG(double, answer->entry.value()));
    if (!called)
        qWarning("ZelExecNumericKeyboard: no slot %s", signature.constData());
}
