#include "LayoutAudit.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollBar>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>
#include <QStyleOptionFrame>
#include <QStyleOptionViewItem>
#include <QTabBar>
#include <QTableWidget>
#include <QToolButton>

#include <algorithm>
#include <cmath>
#include <map>

namespace {

constexpr int LeastTarget = 48;
constexpr int LeastGap = 8;
constexpr double LeastTextContrast = 4.5;
constexpr double LeastSignContrast = 3.0;
constexpr int TextPixels = 3; // of a colour, for it to be seen: a "1" has no more
constexpr int SignPixels = 12;
constexpr int Tolerance = 1; // pixels, of rounding

constexpr LayoutAudit::Exception Exceptions[] = {
    {"target", "QTableWidget", "rows of 45 and 40 px, with boxes of 40 px, are given"},
    {"target", "DeviceNetTable", "rows of 40 px are given"},
    {"target", "QHeaderView", "headers take no press"},
    {"text", "DeviceNetTable", "of a state that is too long, its end is shown: the code"},
    {"text", "tableWidget", "what a bit means comes from a file of the controller"},
    {"text", "lab_Tips", "the text is given word for word, and read as a whole"},
};

bool isExcepted(const char* fault, const QWidget& widget)
{
    return std::any_of(std::begin(Exceptions), std::end(Exceptions), [&](const auto& exception) {
        if (qstrcmp(exception.fault, fault) != 0)
            return false;
        for (const QWidget* above = &widget; above; above = above->parentWidget()) {
            if (above->objectName() == QLatin1String(exception.widget) || above->inherits(exception.widget))
                return true;
        }
        return false;
    });
}

double luminance(QRgb colour)
{
    const auto part = [](int value) {
        const double share = value / 255.0;
        return share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(qRed(colour)) + 0.7152 * part(qGreen(colour)) + 0.0722 * part(qBlue(colour));
}

double contrast(QRgb one, QRgb other)
{
    const double first = luminance(one) + 0.05;
    const double second = luminance(other) + 0.05;
    return std::max(first, second) / std::min(first, second);
}

// Of the most frequent colour against the one that stands out most and is more than a speck.
double contrastIn(const QImage& picture, const QRect& area, int least)
{
    const QRect seen = area & picture.rect();
    std::map<QRgb, int> colours;
    for (int y = seen.top(); y <= seen.bottom(); ++y) {
        for (int x = seen.left(); x <= seen.right(); ++x)
            ++colours[picture.pixel(x, y) | 0xff000000U];
    }
    if (colours.empty())
        return 0.0;
    const QRgb ground =
        std::max_element(colours.begin(), colours.end(), [](const auto& one, const auto& other) {
            return one.second < other.second;
        })->first;
    double best = 1.0;
    for (const auto& [colour, count] : colours) {
        if (count >= least)
            best = std::max(best, contrast(colour, ground));
    }
    return best;
}

QString textOf(const QWidget& widget)
{
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return label->text();
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        return button->text();
    if (const auto* combo = qobject_cast<const QComboBox*>(&widget))
        return combo->currentText();
    if (const auto* edit = qobject_cast<const QLineEdit*>(&widget))
        return edit->text();
    return {};
}

QRect roomOf(const QWidget& widget)
{
    const QStyle& style = *widget.style();
    if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) {
        QStyleOptionComboBox option;
        option.initFrom(combo);
        option.editable = combo->isEditable();
        QRect room = style.subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, combo);
        if (!combo->itemIcon(combo->currentIndex()).isNull())
            room.setLeft(room.left() + combo->iconSize().width() + 4);
        return room;
    }
    if (const auto* edit = qobject_cast<const QLineEdit*>(&widget)) {
        QStyleOptionFrame option;
        option.initFrom(edit);
        return style.subElementRect(QStyle::SE_LineEditContents, &option, edit);
    }
    if (qobject_cast<const QPushButton*>(&widget)) {
        QStyleOptionButton option;
        option.initFrom(&widget);
        return style.subElementRect(QStyle::SE_PushButtonContents, &option, &widget);
    }
    if (qobject_cast<const QCheckBox*>(&widget)) {
        QStyleOptionButton option;
        option.initFrom(&widget);
        return style.subElementRect(QStyle::SE_CheckBoxContents, &option, &widget);
    }
    return widget.contentsRect();
}

// What `text` takes in `room`, in lines where it may be broken; never narrower than its longest word.
QSize sizeOf(const QString& text, const QFontMetrics& metrics, int room, bool wraps)
{
    if (!wraps)
        return metrics.size(0, text);
    const QRect lines = metrics.boundingRect(0, 0, room, 10000, Qt::TextWordWrap, text);
    return lines.size();
}

bool isInScrollArea(const QWidget& widget)
{
    for (const QWidget* above = widget.parentWidget(); above; above = above->parentWidget()) {
        if (qobject_cast<const QAbstractScrollArea*>(above))
            return true;
    }
    return false;
}

bool isTarget(const QWidget& widget)
{
    const auto* edit = qobject_cast<const QLineEdit*>(&widget);
    return widget.isEnabled() && ((edit && !edit->isReadOnly()) || qobject_cast<const QComboBox*>(&widget) ||
                                  qobject_cast<const QAbstractButton*>(&widget));
}

// What has a place of its own on a page: no container, and nothing inside of another such widget.
bool isLeaf(const QWidget& widget)
{
    return qobject_cast<const QLabel*>(&widget) || qobject_cast<const QAbstractButton*>(&widget) ||
           qobject_cast<const QComboBox*>(&widget) || qobject_cast<const QLineEdit*>(&widget) ||
           qobject_cast<const QProgressBar*>(&widget) || qobject_cast<const QTableWidget*>(&widget);
}

QRect placeIn(const QWidget& widget, const QWidget& window)
{
    return {widget.mapTo(&window, QPoint()), widget.size()};
}

} // namespace

void LayoutAudit::note(const char* fault, const QWidget& widget, const QString& what)
{
    if (isExcepted(fault, widget))
        return;
    const QWidget* page = &widget;
    while (page->parentWidget() && !page->isWindow() &&
           !page->property("styleSheet").toString().contains("QMainWindow"))
        page = page->parentWidget();
    const QString where = QStringLiteral("%1 %2/%3")
                              .arg(QLatin1String(page->metaObject()->className()),
                                   QLatin1String(widget.metaObject()->className()), widget.objectName());
    const QString key = QLatin1String(fault) + where + textOf(widget);
    if (m_seen.contains(key))
        return;
    m_seen.insert(key);
    m_notes << QStringLiteral("%1: %2 \"%3\": %4 (%5)")
                   .arg(QLatin1String(fault), where, textOf(widget).simplified(), what, m_place);
}

void LayoutAudit::look(QWidget& window, const QString& place)
{
    m_place = place;
    QList<QWidget*> shown;
    const QList<QWidget*> all = window.findChildren<QWidget*>();
    for (QWidget* widget : all) {
        if (widget->isVisible() && widget->window() == &window && !widget->visibleRegion().isEmpty())
            shown << widget;
    }
    const QImage picture = window.grab().toImage();
    const QWidget* const modal = QApplication::activeModalWidget();
    const bool isDimmed = modal && modal != &window;
    for (QWidget* widget : qAsConst(shown)) {
        lookAtText(*widget);
        lookAtCells(*widget);
        lookAtTarget(*widget);
        lookAtName(*widget);
        if (!isDimmed)
            lookAtContrast(*widget, picture);
    }
    lookAtPlaces(shown, window);
    if (m_withFocus && !isDimmed) {
        const QPointer<QWidget> before(window.focusWidget());
        for (QWidget* widget : qAsConst(shown))
            lookAtFocus(*widget);
        if (before)
            before->setFocus();
    }
}

void LayoutAudit::lookAtText(QWidget& widget)
{
    const auto* label = qobject_cast<QLabel*>(&widget);
    const QString text = textOf(widget).trimmed();
    if (const auto* group = qobject_cast<QGroupBox*>(&widget)) {
        if (group->fontMetrics().horizontalAdvance(group->title()) > group->width() - 40)
            note("text", widget, group->title());
    }
    if (text.isEmpty() || (label && label->pixmap(Qt::ReturnByValue).isNull() == false))
        return;
    const QRect room = roomOf(widget);
    const bool wraps = label && label->wordWrap();
    const QSize needed = sizeOf(text, widget.fontMetrics(), room.width(), wraps);
    // Lines of a font stand apart by more than the last one needs.
    if (needed.width() > room.width() + Tolerance ||
        needed.height() > room.height() + widget.fontMetrics().leading() + 4)
        note("text", widget,
             QStringLiteral("needs %1 x %2 of %3 x %4")
                 .arg(needed.width())
                 .arg(needed.height())
                 .arg(room.width())
                 .arg(room.height()));
}

void LayoutAudit::lookAtCells(QWidget& widget)
{
    if (const auto* bar = qobject_cast<QTabBar*>(&widget)) {
        for (int tab = 0; tab < bar->count(); ++tab) {
            if (bar->isTabVisible(tab) &&
                bar->fontMetrics().horizontalAdvance(bar->tabText(tab)) > bar->tabRect(tab).width() - 8)
                note("text", widget, bar->tabText(tab));
            if (bar->isTabVisible(tab) && bar->tabRect(tab).height() < LeastTarget - Tolerance)
                note("target", widget, QStringLiteral("a tab of %1 px").arg(bar->tabRect(tab).height()));
        }
    }
    const auto* table = qobject_cast<QTableWidget*>(&widget);
    if (!table)
        return;
    const QHeaderView* header = table->horizontalHeader();
    for (int column = 0; column < table->columnCount(); ++column) {
        const QTableWidgetItem* item = table->horizontalHeaderItem(column);
        if (!item || !header->isVisible() || header->isSectionHidden(column))
            continue;
        QFont font = header->font();
        if (item->data(Qt::FontRole).isValid())
            font = item->font().resolve(font);
        const bool wraps = (header->defaultAlignment() & Qt::TextWordWrap) != 0;
        const QSize room(header->sectionSize(column) - 4, header->height());
        const QSize needed = sizeOf(item->text(), QFontMetrics(font), room.width(), wraps);
        if (needed.width() > room.width() || needed.height() > room.height())
            note("text", *header,
                 QStringLiteral("header \"%1\" needs %2 x %3 of %4 x %5")
                     .arg(item->text())
                     .arg(needed.width())
                     .arg(needed.height())
                     .arg(room.width())
                     .arg(room.height()));
    }
    for (int row = 0; row < table->rowCount(); ++row) {
        for (int column = 0; column < table->columnCount(); ++column) {
            const QTableWidgetItem* item = table->item(row, column);
            if (!item || item->text().isEmpty() || table->isRowHidden(row))
                continue;
            QStyleOptionViewItem option;
            option.initFrom(table);
            option.rect = QRect(0, 0, table->columnWidth(column), table->rowHeight(row));
            option.features = QStyleOptionViewItem::HasDisplay;
            option.text = item->text();
            option.font =
                item->data(Qt::FontRole).isValid() ? item->font().resolve(table->font()) : table->font();
            const QRect room = table->style()->subElementRect(QStyle::SE_ItemViewItemText, &option, table);
            const QSize needed =
                sizeOf(item->text(), QFontMetrics(option.font), option.rect.width() - 4, table->wordWrap());
            if (needed.width() > option.rect.width() - 4 || needed.height() > option.rect.height() + 2)
                note("text", *table,
                     QStringLiteral("cell \"%1\" needs %2 x %3 of %4 x %5")
                         .arg(item->text())
                         .arg(needed.width())
                         .arg(needed.height())
                         .arg(std::max(room.width(), option.rect.width() - 4))
                         .arg(option.rect.height()));
        }
    }
}

void LayoutAudit::lookAtTarget(QWidget& widget)
{
    if (!isTarget(widget) || qobject_cast<QTabBar*>(widget.parentWidget()))
        return;
    QSize size = widget.size();
    // Of a check box that is no more than Qt's own, the box and the text are the target.
    if (qobject_cast<QCheckBox*>(&widget) && !widget.inherits("TouchCheckBox")) {
        QStyleOptionButton option;
        option.initFrom(&widget);
        size = widget.style()->subElementRect(QStyle::SE_CheckBoxClickRect, &option, &widget).size();
    }
    if (size.width() < LeastTarget || size.height() < LeastTarget)
        note("target", widget, QStringLiteral("%1 x %2 px").arg(size.width()).arg(size.height()));
}

void LayoutAudit::lookAtName(QWidget& widget)
{
    if (widget.focusPolicy() == Qt::NoFocus || !widget.isEnabled() || widget.focusProxy())
        return;
    const QAccessibleInterface* face = QAccessible::queryAccessibleInterface(&widget);
    if (!face || face->text(QAccessible::Name).trimmed().isEmpty())
        note("name", widget, QStringLiteral("takes the focus and has none"));
    if (!face || face->role() == QAccessible::NoRole)
        note("role", widget, QStringLiteral("takes the focus and has none"));
}

void LayoutAudit::lookAtContrast(QWidget& widget, const QImage& picture)
{
    const auto* label = qobject_cast<QLabel*>(&widget);
    const bool isText = !textOf(widget).trimmed().isEmpty();
    const bool isSign = (label && !isText) || (qobject_cast<QCheckBox*>(&widget) && !isText);
    if ((!isText && !isSign) || widget.visibleRegion().boundingRect().size() != widget.size())
        return;
    QRect area = placeIn(widget, *widget.window());
    // Inside of the frame, which may stand out while the text does not.
    if (isText && !label)
        area = QRect(area.topLeft() + roomOf(widget).topLeft(), roomOf(widget).size());
    const double seen = contrastIn(picture, area, isText ? TextPixels : SignPixels);
    const double least = isText ? LeastTextContrast : LeastSignContrast;
    if (seen < least && (isText || seen > 1.0))
        note("contrast", widget, QString::number(seen, 'f', 2));
}

void LayoutAudit::lookAtFocus(QWidget& widget)
{
    if ((widget.focusPolicy() & Qt::TabFocus) == 0 || !widget.isEnabled() || widget.focusProxy())
        return;
    QString key = QLatin1String(widget.metaObject()->className()) + widget.objectName();
    if (const auto* button = qobject_cast<QAbstractButton*>(&widget))
        key += QString::number(button->isChecked());
    if (m_focused.contains(key))
        return;
    m_focused.insert(key);
    QWidget& window = *widget.window();
    QApplication::setActiveWindow(&window);
    const QRect area = placeIn(widget, window).adjusted(-4, -4, 4, 4);
    if (QWidget* other = window.focusWidget())
        other->clearFocus();
    const QImage without = window.grab(area).toImage();
    widget.setFocus(Qt::TabFocusReason);
    if (!widget.hasFocus())
        return;
    const QImage with = window.grab(area).toImage();
    int marked = 0;
    for (int y = 0; y < with.height(); ++y) {
        for (int x = 0; x < with.width(); ++x)
            marked += contrast(with.pixel(x, y), without.pixel(x, y)) >= LeastSignContrast ? 1 : 0;
    }
    // A line along two of its edges at least.
    if (marked < widget.width())
        note("focus", widget, QStringLiteral("%1 pixels change to 3:1").arg(marked));
    widget.clearFocus();
}

void LayoutAudit::lookAtPlaces(const QList<QWidget*>& widgets, QWidget& window)
{
    QList<QWidget*> leaves;
    for (QWidget* widget : widgets) {
        const bool isPart = std::any_of(leaves.begin(), leaves.end(),
                                        [widget](const QWidget* leaf) { return leaf->isAncestorOf(widget); });
        if (!isLeaf(*widget) || isPart || qobject_cast<QTabBar*>(widget->parentWidget()))
            continue;
        const QWidget* parent = widget->parentWidget();
        if (!isInScrollArea(*widget) && !parent->rect().contains(widget->geometry()))
            note("cut", *widget, QStringLiteral("stands out of its parent"));
        leaves << widget;
    }
    for (int one = 0; one < leaves.size(); ++one) {
        for (int other = one + 1; other < leaves.size(); ++other) {
            const QRect first = placeIn(*leaves[one], window);
            const QRect second = placeIn(*leaves[other], window);
            if (leaves[one]->visibleRegion().isEmpty() || leaves[other]->visibleRegion().isEmpty())
                continue;
            if (first.intersects(second) && !isInScrollArea(*leaves[one]) && !isInScrollArea(*leaves[other]))
                note("overlap", *leaves[one], leaves[other]->objectName());
            const QRect around = first.adjusted(1 - LeastGap, 1 - LeastGap, LeastGap - 1, LeastGap - 1);
            if (isTarget(*leaves[one]) && isTarget(*leaves[other]) && around.intersects(second))
                note("gap", *leaves[one], QStringLiteral("less than 8 px to ") + leaves[other]->objectName());
        }
    }
}
