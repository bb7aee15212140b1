#include "Report.h"

#include "Configuration.h"
#include "FindingText.h"
#include "HtmlPage.h"
#include "IoList.h"
#include "RoleSettings.h"

namespace {

void addRoles(HtmlPage& page, const std::vector<RoleSettings>& all)
{
    page.heading(QStringLiteral("Roles"));
    page.beginTable({"Role", "Switch"});
    for (const RoleSettings& settings : all) {
        if (settings.role)
            page.row({QLatin1String(settings.role->title), QLatin1String(!settings.isListed ? "not offered"
                                                                         : settings.isOn    ? "on"
                                                                                            : "off")});
    }
    page.endTable();
}

void addFindings(HtmlPage& page, const Findings& findings)
{
    page.heading(QStringLiteral("Findings"));
    page.paragraph(FindingText::countText(FindingText::counted(findings)));
    if (findings.empty())
        return;
    page.beginTable({"Severity", "Code", "Role", "Place", "Cause and evidence", "Next step"});
    for (const Finding& finding : findings) {
        QStringList cause(finding.cause.inEnglish());
        for (const Evidence& evidence : finding.evidence)
            cause << FindingText::textOf(evidence);
        const char* severity = FindingText::severityName(finding.severity);
        page.row({QLatin1String(severity), finding.codeText(), FindingText::roleTitle(finding),
                  FindingText::place(finding), cause.join(QLatin1Char('\n')), finding.next.inEnglish()},
                 severity);
    }
    page.endTable();
}

void addSettings(HtmlPage& page, const std::vector<RoleSettings>& all)
{
    page.heading(QStringLiteral("Settings"));
    page.beginTable({"Of", "Setting", "Value", "File"});
    for (const RoleSettings& settings : all) {
        if (!settings.isOn)
            continue;
        for (const RoleSettings::Part& part : settings.parts) {
            for (const Settings::Field& field : part.group.fields) {
                if (!part.group.isMapping && !field.value.isEmpty())
                    page.row({part.group.title, field.name, field.value, part.path});
            }
        }
    }
    page.endTable();
}

void addIoList(HtmlPage& page, const std::vector<IoRow>& ranges)
{
    page.heading(QStringLiteral("I/O list"));
    for (auto first = ranges.begin(); first != ranges.end();) {
        auto last = first;
        while (last != ranges.end() && last->role == first->role && last->direction == first->direction)
            ++last;
        page.ruler(QStringLiteral("%1, %2, in %3")
                       .arg(QLatin1String(first->role->title), first->directionText(),
                            QLatin1String(first->isRegister ? "registers" : "bytes")),
                   {first, last});
        first = last;
    }
    page.beginTable(IoList::header());
    for (const IoRow& range : ranges)
        page.row(IoList::cellsOf(range));
    page.endTable();
}

void addSums(HtmlPage& page, const Checksums::Sums& sums)
{
    page.heading(QStringLiteral("Checksums (SHA-256)"));
    page.beginTable({"File", "Sum"});
    for (const auto& [path, sum] : sums)
        page.row({path, QLatin1String(sum)});
    page.endTable();
}

} // namespace

QByteArray reportOf(const QString& name, const Configuration& configuration, const Findings& findings,
                    const QStringList& troubles, const Checksums::Sums& sums)
{
    const std::vector<RoleSettings> all = RoleSettings::of(configuration);
    HtmlPage page(QStringLiteral("Fieldbus configuration ") + name);
    for (const QString& trouble : troubles)
        page.paragraph(trouble);
    addRoles(page, all);
    addFindings(page, findings);
    addSettings(page, all);
    addIoList(page, IoList::ranges(configuration, configuration.mode()));
    addSums(page, sums);
    return page.bytes();
}
