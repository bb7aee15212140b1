#include "FormFields.h"

#include "EditWatch.h"
#include "OutsideMark.h"

#include <QRegularExpression>

#include <limits>

namespace {

QString textOf(const std::variant<QString*, int*>& value)
{
    if (const auto* number = std::get_if<int*>(&value))
        return QString::number(**number);
    return *std::get<QString*>(value);
}

// A file may space out a name.
QString withoutBlanks(QString text)
{
    return text.remove(QRegularExpression(QStringLiteral("\\s")));
}

} // namespace

void prepareEntry(QTouchLineEdit* edit, const NumberEntry& entry)
{
    edit->setCast(entry.cast, entry.decimals);
    edit->setValueRange(entry.least, entry.most);
    if (*entry.unit)
        edit->setProperty("unit", QLatin1String(entry.unit));
}

QString FormFields::Field::entered() const
{
    return edit ? edit->text() : QString::number(combo->currentIndex());
}

int FormFields::wholeNumber(const QString& text)
{
    constexpr double Most = std::numeric_limits<int>::max();
    const double number = text.trimmed().toDouble();
    return number >= -Most && number <= Most ? static_cast<int>(number) : 0;
}

bool FormFields::Field::isInRange(const QString& text) const
{
    if (!entry)
        return true;
    bool isNumber = false;
    const double number = text.trimmed().toDouble(&isNumber);
    return isNumber && number >= entry->least && number <= entry->most;
}

void FormFields::add(QWidget* widget, const Value& value, const std::optional<NumberEntry>& entry,
                     Typed typed, EditWatch& watch)
{
    auto* edit = qobject_cast<QLineEdit*>(widget);
    auto* combo = qobject_cast<QComboBox*>(widget);
    m_fields.push_back({edit, combo, value, entry, typed, {}});
    watch.add(widget);
    if (auto* keyboardEdit = qobject_cast<QTouchLineEdit*>(edit); keyboardEdit && entry) {
        prepareEntry(keyboardEdit, *entry);
    }
    // What is entered can be entered.
    if (edit)
        QObject::connect(edit, &QLineEdit::textChanged, edit, [edit] { OutsideMark::show(edit, false, {}); });
    if (!combo)
        return;
    const std::size_t index = m_fields.size() - 1;
    QObject::connect(combo, qOverload<int>(&QComboBox::activated), combo, [this, index] {
        m_fields[index].touched = true;
        OutsideMark::show(m_fields[index].combo, false, {});
    });
}

void FormFields::show()
{
    for (Field& field : m_fields)
        show(field);
}

void FormFields::show(Field& field)
{
    const QString value = textOf(field.value);
    if (field.edit) {
        field.edit->setText(value);
        OutsideMark::show(field.edit, !field.isInRange(value), value);
    } else {
        const bool isIndex = std::holds_alternative<int*>(field.value);
        const int index = isIndex ? value.toInt() : field.combo->findText(withoutBlanks(value));
        const bool isOutside = index < 0 || index >= field.combo->count();
        // An index that no item has leaves the box without one; in place of a text the first item is shown.
        field.combo->setPlaceholderText(isOutside ? value : QString());
        field.combo->setCurrentIndex(!isOutside ? index : isIndex ? -1 : 0);
        OutsideMark::show(field.combo, isOutside, value);
    }
    field.touched = false;
    field.shown = field.entered();
}

void FormFields::store()
{
    for (Field& field : m_fields) {
        // What is saved as a whole number is made one, also when nobody typed it.
        if (field.touched || field.entered() != field.shown || field.typed == Typed::WholeNumber)
            store(field);
        field.touched = false;
        field.shown = field.entered();
    }
}

void FormFields::store(Field& field)
{
    QString text = field.combo ? field.combo->currentText() : field.edit->text();
    if (auto* number = std::get_if<int*>(&field.value)) {
        **number = field.combo ? field.combo->currentIndex() : text.toInt();
        return;
    }
    if (field.typed == Typed::Trimmed)
        text = text.trimmed();
    else if (field.typed == Typed::WholeNumber)
        text = QString::number(wholeNumber(text));
    *std::get<QString*>(field.value) = text;
}
