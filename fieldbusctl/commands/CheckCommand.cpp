#include "CheckCommand.h"

#include "ConfigurationFindings.h"
#include "Console.h"
#include "FindingText.h"
#include "FindingTone.h"
#include "LoadedFolder.h"
#include "OrderedPool.h"

#include <QJsonArray>

#include <algorithm>

using Tone = Console::Tone;

void CheckCommand::addOptions(CLI::App& app)
{
    m_folders.addMany(app);
    app.add_option("--fail-on", m_failOn, "the least severity that makes the exit code 1 (warning)")
        ->check(CLI::IsMember(
            std::vector<std::string>(FindingText::SeverityNames.begin(), FindingText::SeverityNames.end())));
    app.add_option("-j,--jobs", m_jobs, "folders at a time (one a core)");
    app.add_flag("-q,--quiet", m_quiet, "leave out what is information");
    app.add_flag("--json", m_json, "print JSON");
}

CheckCommand::Checked CheckCommand::check(const Folder& folder)
{
    const LoadedFolder loaded(folder);
    return {findingsOf(loaded.configuration()), loaded.troubles(), loaded.isIncomplete(), loaded.json()};
}

void CheckCommand::print(const Folder& folder, const Findings& findings, Console& console) const
{
    for (const Finding& finding : findings) {
        if (m_quiet && finding.severity == FindingSeverity::Information)
            continue;
        const QString place = FindingText::place(finding);
        const QString role = FindingText::roleTitle(finding);
        console.line(
            console.painted(Tone::Plain,
                            folder.path + (place.isEmpty() ? QString() : QLatin1Char('/') + place)) +
            QLatin1String(": ") +
            console.painted(FindingText::toneOf(finding.severity),
                            QLatin1String(FindingText::severityName(finding.severity)) + QLatin1Char(' ') +
                                finding.codeText()) +
            QLatin1String(": ") +
            console.painted(Tone::Heading, (role.isEmpty() ? QString() : role + QLatin1String(": ")) +
                                               finding.cause.inEnglish()));
        for (const Evidence& evidence : finding.evidence)
            console.line(QLatin1String("    ") + console.painted(Tone::Faint, FindingText::textOf(evidence)));
        console.line(QLatin1String("    ") + console.painted(Tone::Plain, finding.next.inEnglish()));
    }
    console.line(console.painted(Tone::Heading, folder.path) + QLatin1String(": ") +
                 FindingText::countText(FindingText::counted(findings)));
}

ExitCode CheckCommand::codeOf(const Checked& checked) const
{
    if (checked.isIncomplete)
        return ExitTrouble;
    const auto* least =
        std::find(FindingText::SeverityNames.begin(), FindingText::SeverityNames.end(), m_failOn);
    const auto line = static_cast<FindingSeverity>(least - FindingText::SeverityNames.begin());
    const bool fails = std::any_of(checked.findings.begin(), checked.findings.end(),
                                   [line](const Finding& finding) { return finding.severity >= line; });
    return fails ? ExitFound : ExitSame;
}

ExitCode CheckCommand::run(Console& console)
{
    const std::vector<Folder> folders = m_folders.find();
    if (folders.empty())
        return ExitTrouble;
    ExitCode worst = ExitSame;
    QJsonArray checked;
    OrderedPool<Checked> pool(m_jobs);
    pool.run(
        folders.size(), [&folders](std::size_t i) { return check(folders[i]); },
        [&](std::size_t i, const Checked& result) {
            worst = std::max(worst, codeOf(result));
            for (const QString& trouble : result.troubles)
                Console::complain(trouble);
            if (!m_json)
                return print(folders[i], result.findings, console);
            QJsonArray findings;
            for (const Finding& finding : result.findings)
                findings.append(FindingText::jsonOf(finding));
            QJsonObject folder = result.folder;
            folder.insert("findings", findings);
            checked.append(folder);
        });
    if (m_json)
        console.json("check", {{"failOn", QString::fromStdString(m_failOn)}, {"folders", checked}});
    return worst;
}
