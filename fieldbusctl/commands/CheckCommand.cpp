#include "CheckCommand.h"

#include "ConfigurationFindings.h"
#include "Console.h"
#include "FindingText.h"
#include "FindingTone.h"
#include "JsonRows.h"
#include "LoadedFolder.h"
#include "OrderedPool.h"

#include <QStringBuilder>

#include <algorithm>
#include <optional>

using Tone = Console::Tone;

namespace {

constexpr int LikelyLength = 400; // of a finding, characters

} // namespace

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

CheckCommand::Checked CheckCommand::check(const Folder& folder, const Console& console) const
{
    const LoadedFolder loaded(folder);
    const Findings findings = findingsOf(loaded.configuration());
    Checked checked{{}, loaded.troubles(), codeOf(loaded, findings)};
    if (m_json) {
        QJsonObject json = loaded.json();
        json.insert("findings", FindingText::jsonOf(findings));
        checked.told = JsonRows::bytesOf(json);
    } else {
        checked.told = textOf(folder, findings, console).toUtf8();
    }
    return checked;
}

ExitCode CheckCommand::codeOf(const LoadedFolder& folder, const Findings& findings) const
{
    if (folder.isIncomplete())
        return ExitTrouble;
    const auto* least =
        std::find(FindingText::SeverityNames.begin(), FindingText::SeverityNames.end(), m_failOn);
    const auto line = static_cast<FindingSeverity>(least - FindingText::SeverityNames.begin());
    const bool fails = std::any_of(findings.begin(), findings.end(),
                                   [line](const Finding& finding) { return finding.severity >= line; });
    return fails ? ExitFound : ExitSame;
}

QString CheckCommand::textOf(const Folder& folder, const Findings& findings, const Console& console) const
{
    QString text;
    text.reserve(static_cast<int>(findings.size()) * LikelyLength);
    for (const Finding& finding : findings) {
        if (m_quiet && finding.severity == FindingSeverity::Information)
            continue;
        const QString place = FindingText::place(finding);
        const QString role = FindingText::roleTitle(finding);
        const QString kind = QLatin1String(FindingText::severityName(finding.severity)) % QLatin1Char(' ') %
                             finding.codeText();
        const QString cause = finding.cause.inEnglish();
        text += console.painted(Tone::Plain,
                                place.isEmpty() ? folder.path : folder.path % QLatin1Char('/') % place) %
                QLatin1String(": ") % console.painted(FindingText::toneOf(finding.severity), kind) %
                QLatin1String(": ") %
                console.painted(Tone::Heading, role.isEmpty() ? cause : role % QLatin1String(": ") % cause) %
                QLatin1Char('\n');
        for (const Evidence& evidence : finding.evidence)
            text += QLatin1String("    ") % console.painted(Tone::Faint, FindingText::textOf(evidence)) %
                    QLatin1Char('\n');
        text += QLatin1String("    ") % console.painted(Tone::Plain, finding.next.inEnglish()) %
                QLatin1Char('\n');
    }
    return text % console.painted(Tone::Heading, folder.path) % QLatin1String(": ") %
           FindingText::countText(FindingText::counted(findings)) % QLatin1Char('\n');
}

ExitCode CheckCommand::run(Console& console)
{
    const std::vector<Folder> folders = m_folders.find();
    if (folders.empty())
        return ExitTrouble;
    std::optional<JsonRows> rows;
    if (m_json)
        rows.emplace(console, "check", QJsonObject{{"failOn", QString::fromStdString(m_failOn)}}, "folders");
    ExitCode worst = ExitSame;
    OrderedPool<Checked> pool(m_jobs);
    pool.run(
        folders.size(), [&](std::size_t i) { return check(folders[i], console); },
        [&](std::size_t, const Checked& checked) {
            worst = std::max(worst, checked.code);
            for (const QString& trouble : checked.troubles)
                Console::complain(trouble);
            if (rows)
                rows->add(checked.told);
            else
                console.data(checked.told);
        });
    return worst;
}
