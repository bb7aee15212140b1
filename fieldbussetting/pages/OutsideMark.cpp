#include "OutsideMark.h"

#include <QLineEdit>
#include <QStyle>
#include <QWidget>

// The style sheet looks at the property; the field is touched only when it changes.
void OutsideMark::show(QWidget* field, bool isOutside, const QString& value)
{
    if (field->property("outside").toBool() == isOutside)
        return;
    field->setProperty("outside", isOutside);
    field->setToolTip(isOutside ? value : QString());
    field->style()->unpolish(field);
    field->style()->polish(field);
}

void OutsideMark::follow(QLineEdit* edit, double least, double most)
{
    QObject::connect(edit, &QLineEdit::textChanged, edit, [edit, least, most](const QString& text) {
        bool isNumber = false;
        const double number = text.trimmed().toDouble(&isNumber);
        show(edit, !isNumber || number < least || number > most, text);
    });
}
