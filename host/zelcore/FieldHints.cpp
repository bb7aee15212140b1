#include "FieldHints.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>

namespace {
QString captionOf(const QWidget& field)
{
    const QList<QLabel*> labels = field.window()->findChildren<QLabel*>();
    for (const QLabel* label : labels) {
        if (label->buddy() != &field)
            continue;
        QString text = label->text().remove(QLatin1Char('&')).trimmed();
        while (text.endsWith(QLatin1Char(':')))
            text.chop(1);
        return text;
    }
    return field.toolTip();
}

QRect onScreen(const QWidget& widget, const QRect& area)
{
    return {widget.mapToGlobal(area.topLeft()), area.size()};
}

QRect areaOfFocus()
{
    const QWidget* focus = QApplication::focusWidget();
    const auto* view = qobject_cast<const QAbstractItemView*>(focus);
    if (!view || !view->currentIndex().isValid())
        return {};
    return onScreen(*view->viewport(), view->visualRect(view->currentIndex()));
}
} // namespace

FieldHints FieldHints::of(const QObject* owner)
{
    FieldHints hints;
    if (!owner)
        return hints;
    hints.caption = owner->property("caption").toString();
    hints.unit = owner->property("unit").toString();
    hints.step = owner->property("step").toDouble();
    if (const auto* field = qobject_cast<const QLineEdit*>(owner)) {
        if (hints.caption.isEmpty())
            hints.caption = captionOf(*field);
        hints.area = onScreen(*field, field->rect());
    } else {
        hints.area = areaOfFocus();
    }
    return hints;
}
