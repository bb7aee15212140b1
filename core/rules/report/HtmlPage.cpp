#include "HtmlPage.h"

#include <algorithm>
#include <utility>

namespace {

constexpr const char* Head = R"(<!DOCTYPE html>
<html lang="en"><head><meta charset="utf-8"><title>%1</title><style>
body{font:14px/1.4 "DejaVu Sans",Arial,sans-serif;color:#1c2126;max-width:72em;margin:2em auto;padding:0 1em}
h1{font-size:1.5em}h2{font-size:1.15em;border-bottom:2px solid #4a5b6b;margin-top:2em}
table{border-collapse:collapse;width:100%}
th,td{border:1px solid #b8c1c9;padding:.25em .5em;text-align:left;vertical-align:top;overflow-wrap:anywhere}
th{background:#e9edf0}tr.error td:first-child{border-left:.5em solid #b3261e}
tr.warning td:first-child{border-left:.5em solid #b87503}tr.information td:first-child{border-left:.5em solid #8a96a1}
.ruler{display:flex;margin:.2em 0 1em;border:1px solid #4a5b6b}
.ruler div{border-right:1px solid #4a5b6b;padding:.2em .3em;min-width:0;overflow:hidden;font-size:.8em;white-space:nowrap}
.ruler div:last-child{border-right:0}.Bool{background:#dbe9f6}.Int{background:#e3f1de}.Float{background:#f6ead5}
.system{background-image:repeating-linear-gradient(45deg,transparent 0 6px,rgba(0,0,0,.09) 6px 8px)}
.gap{background:#f4f4f4;color:#667}
@media print{body{margin:0;max-width:none;font-size:10pt}h2{break-after:avoid}tr,.ruler{break-inside:avoid}
*{print-color-adjust:exact;-webkit-print-color-adjust:exact}}
</style></head><body>
<h1>%1</h1>
)";

QString rulerPart(const QString& style, const QString& text, quint64 size)
{
    return QStringLiteral(R"(<div class="%1" style="flex:%2 1 0" title="%3">%3</div>)")
        .arg(style, QString::number(size), text.toHtmlEscaped());
}

} // namespace

HtmlPage::HtmlPage(const QString& title)
    : m_body(QString::fromLatin1(Head).replace(QLatin1String("%1"), title.toHtmlEscaped()))
{
}

void HtmlPage::heading(const QString& text)
{
    m_body += QLatin1String("<h2>") + text.toHtmlEscaped() + QLatin1String("</h2>\n");
}

void HtmlPage::paragraph(const QString& text)
{
    m_body += QLatin1String("<p>") + text.toHtmlEscaped() + QLatin1String("</p>\n");
}

void HtmlPage::beginTable(const QStringList& header)
{
    m_body += QLatin1String("<table>\n<tr>");
    for (const QString& text : header)
        m_body += QLatin1String("<th>") + text.toHtmlEscaped() + QLatin1String("</th>");
    m_body += QLatin1String("</tr>\n");
}

void HtmlPage::row(const QStringList& cells, const char* style)
{
    m_body += QStringLiteral("<tr class=\"%1\">").arg(QLatin1String(style));
    for (const QString& text : cells)
        m_body += QLatin1String("<td>") +
                  text.toHtmlEscaped().replace(QLatin1Char('\n'), QLatin1String("<br>")) +
                  QLatin1String("</td>");
    m_body += QLatin1String("</tr>\n");
}

void HtmlPage::endTable()
{
    m_body += QLatin1String("</table>\n");
}

void HtmlPage::ruler(const QString& caption, const std::vector<IoRow>& ranges)
{
    std::vector<IoRow> placed;
    std::copy_if(ranges.begin(), ranges.end(), std::back_inserter(placed),
                 [](const IoRow& row) { return row.first && row.last && *row.first <= *row.last; });
    if (placed.empty())
        return;
    std::stable_sort(placed.begin(), placed.end(),
                     [](const IoRow& a, const IoRow& b) { return *a.first < *b.first; });
    paragraph(caption);
    m_body += QLatin1String("<div class=\"ruler\">");
    quint64 next = *placed.front().first;
    for (const IoRow& row : placed) {
        if (*row.first > next)
            m_body += rulerPart(QStringLiteral("gap"), QStringLiteral("free"), *row.first - next);
        const QString style = QLatin1String(row.typeName()) + QLatin1String(row.isSystem ? " system" : "");
        m_body += rulerPart(style,
                            QStringLiteral("%1 to %2: %3").arg(*row.first).arg(*row.last).arg(row.variable()),
                            quint64(*row.last) - *row.first + 1);
        next = std::max(next, quint64(*row.last) + 1);
    }
    m_body += QLatin1String("</div>\n");
}

QByteArray HtmlPage::takeBytes()
{
    return std::exchange(m_body, {}).toUtf8();
}

QByteArray HtmlPage::bytes() const
{
    return (m_body + QLatin1String("</body></html>\n")).toUtf8();
}
