#include "FindingList.h"

#include "AsciiText.h"
#include "FileCheck.h"

#include <algorithm>

void FindingList::add(FindingCode code, const About& about, const QStringList& arguments,
                      std::vector<Evidence> evidence, int line)
{
    const FindingKind& kind = kindOf(code);
    // Nobody knows what is on while the list of roles cannot be read.
    const bool isOff =
        about.role && m_configuration.isRead(FileId::RoleList) && !m_configuration.isOn(*about.role);
    Finding finding;
    finding.code = code;
    finding.severity =
        isOff && !kind.isAlsoWhenOff ? std::min(kind.severity, FindingSeverity::Information) : kind.severity;
    finding.role = about.role;
    finding.file = about.file;
    finding.line = line > 0 ? line : lineOf(about);
    finding.cause = {kind.cause, arguments};
    finding.evidence = std::move(evidence);
    finding.next = {kind.next, {}};
    m_findings.push_back(std::move(finding));
}

bool FindingList::hasTrouble(RoleId role) const
{
    return std::any_of(m_findings.begin(), m_findings.end(), [role](const Finding& finding) {
        return finding.role == role && finding.severity > FindingSeverity::Information;
    });
}

int FindingList::lineOf(const About& about) const
{
    if (!about.file || about.at.empty())
        return 0;
    const QByteArray& bytes = m_configuration.bytes(*about.file);
    const std::string_view content = AsciiText::view(bytes);
    constexpr std::size_t Nowhere = std::string_view::npos;
    std::size_t found = Nowhere;
    for (const QByteArray& text : about.at) {
        const std::size_t next =
            AsciiText::find(content, AsciiText::view(text), found == Nowhere ? 0 : found + 1);
        if (next == Nowhere)
            break;
        found = text.startsWith('\n') ? next + 1 : next; // a keyword that begins its line
    }
    return found == Nowhere ? 0 : FileCheck::lineAt(bytes, static_cast<qint64>(found));
}

Findings FindingList::sorted()
{
    std::stable_sort(m_findings.begin(), m_findings.end(),
                     [](const Finding& one, const Finding& other) { return one.severity > other.severity; });
    return std::move(m_findings);
}

Evidence FindingList::fact(const QString& name, FileId file, const QString& value)
{
    return {name, QLatin1String(KnownFiles::of(file).name), value};
}

Evidence FindingList::fact(const QString& name, FileId file, int value)
{
    return fact(name, file, QString::number(value));
}

Evidence FindingList::fact(const QString& name, const QString& variable, const QString& value)
{
    return {name, variable, value};
}

Evidence FindingList::factOf(RoleId role) const
{
    return fact(QLatin1String(RoleTable::nameOf(role)), FileId::RoleList,
                m_configuration.isOn(role) ? QStringLiteral("1") : QStringLiteral("0"));
}
