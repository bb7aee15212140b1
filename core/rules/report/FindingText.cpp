#include "FindingText.h"

#include <QJsonObject>
#include <QStringList>

namespace FindingText {

const std::array<const char*, 3> SeverityNames = {"information", "warning", "error"};

const char* severityName(FindingSeverity severity)
{
    return SeverityNames[static_cast<std::size_t>(severity)];
}

QString roleTitle(const Finding& finding)
{
    return finding.role ? QLatin1String(RoleTable::of(*finding.role).title) : QString();
}

QString place(const Finding& finding)
{
    if (!finding.file)
        return {};
    const QString name = QLatin1String(KnownFiles::of(*finding.file).name);
    return finding.line > 0 ? name + QLatin1Char(':') + QString::number(finding.line) : name;
}

QString textOf(const Evidence& evidence)
{
    return evidence.fact + QLatin1Char(' ') + evidence.value + QLatin1String(" (") + evidence.source +
           QLatin1Char(')');
}

namespace {

QJsonObject rowOf(const Finding& finding)
{
    QJsonArray evidence;
    for (const Evidence& fact : finding.evidence)
        evidence.append(QJsonObject{{"fact", fact.fact}, {"source", fact.source}, {"value", fact.value}});
    return {
        {"code", finding.codeText()},
        {"severity", severityName(finding.severity)},
        {"role", finding.role ? QJsonValue(QLatin1String(RoleTable::nameOf(*finding.role))) : QJsonValue()},
        {"file", finding.file ? QJsonValue(QLatin1String(KnownFiles::of(*finding.file).name)) : QJsonValue()},
        {"line", finding.line},
        {"cause", finding.cause.inEnglish()},
        {"evidence", evidence},
        {"next", finding.next.inEnglish()}};
}

} // namespace

QJsonArray jsonOf(const Findings& findings)
{
    QJsonArray rows;
    for (const Finding& finding : findings)
        rows.append(rowOf(finding));
    return rows;
}

std::array<int, 3> counted(const Findings& findings)
{
    std::array<int, 3> counts{};
    for (const Finding& finding : findings)
        ++counts[static_cast<std::size_t>(finding.severity)];
    return counts;
}

QString countText(const std::array<int, 3>& counts)
{
    constexpr const char* one[] = {"of information", "warning", "error"};
    constexpr const char* many[] = {"of information", "warnings", "errors"};
    QStringList parts;
    for (std::size_t i = counts.size(); i-- > 0;) {
        if (counts[i] > 0)
            parts << QStringLiteral("%1 %2").arg(counts[i]).arg(
                QLatin1String(counts[i] == 1 ? one[i] : many[i]));
    }
    return parts.isEmpty() ? QStringLiteral("nothing found") : parts.join(QLatin1String(", "));
}

} // namespace FindingText
