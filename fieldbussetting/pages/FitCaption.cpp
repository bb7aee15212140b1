#include "FitCaption.h"

#include <QAbstractButton>
#include <QFontMetrics>
#include <QHeaderView>
#include <QTableWidget>

#include <algorithm>

namespace {

constexpr int Stretches[] = {100, 87, 75, 62}; // per cent; below, letters cannot be told apart
constexpr int HeaderPadding = 8;               // pixels, both sides together
constexpr int WidestCaption = 76;              // pixels, where the caption makes the column

bool fits(const QString& text, const QFont& font, int width)
{
    const QStringList lines = text.split(QLatin1Char('\n'));
    return std::all_of(lines.begin(), lines.end(), [&](const QString& line) {
        return QFontMetrics(font).horizontalAdvance(line) <= width;
    });
}

// Broken at the blank, or behind the hyphen, that leaves the shorter of the longer lines.
QString inTwoLines(const QString& text, const QFont& font)
{
    QString best = text;
    int least = QFontMetrics(font).horizontalAdvance(text);
    for (int at = 1; at + 1 < text.size(); ++at) {
        const bool isHyphen = text[at] == QLatin1Char('-');
        if (!isHyphen && text[at] != QLatin1Char(' '))
            continue;
        const QString first = text.left(isHyphen ? at + 1 : at);
        const QString second = text.mid(at + 1);
        const int wider = std::max(QFontMetrics(font).horizontalAdvance(first),
                                   QFontMetrics(font).horizontalAdvance(second));
        if (wider >= least)
            continue;
        least = wider;
        best = first + QLatin1Char('\n') + second;
    }
    return best;
}

// The widest stretch at which `text` fits, else the narrowest.
int stretchFor(const QString& text, QFont font, int width)
{
    for (const int stretch : Stretches) {
        font.setStretch(stretch);
        if (fits(text, font, width))
            return stretch;
    }
    return *std::rbegin(Stretches);
}

} // namespace

void FitCaption::setText(QAbstractButton* button, const QString& text, int width)
{
    button->ensurePolished();
    QFont font = button->font();
    font.setStretch(Stretches[0]);
    const QString lines = fits(text, font, width) ? text : inTwoLines(text, font);
    font.setStretch(stretchFor(lines, font, width));
    button->setFont(font);
    button->setText(lines);
}

void FitCaption::fit(QHeaderView* header)
{
    const auto* table = qobject_cast<QTableWidget*>(header->parentWidget());
    header->ensurePolished();
    for (int column = 0; table && column < table->columnCount(); ++column) {
        QTableWidgetItem* item = table->horizontalHeaderItem(column);
        if (!item || header->isSectionHidden(column))
            continue;
        QFont font = header->font();
        const QString words = item->text().replace(QLatin1Char(' '), QLatin1Char('\n'));
        const bool isWrapped = (header->defaultAlignment() & Qt::TextWordWrap) != 0;
        const bool followsCaption = header->sectionResizeMode(column) == QHeaderView::ResizeToContents;
        const int room = followsCaption ? WidestCaption : header->sectionSize(column) - HeaderPadding;
        font.setStretch(stretchFor(isWrapped ? words : item->text(), font, room));
        item->setFont(font);
    }
}
