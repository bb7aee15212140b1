#ifndef FINDINGTEXT_H
#define FINDINGTEXT_H

#include "Finding.h"

#include <QJsonArray>

#include <array>

/// Findings in plain English, for a report that leaves the pendant and for the tool.
namespace FindingText {

/// By FindingSeverity: "information", "warning", "error".
extern const std::array<const char*, 3> SeverityNames;

const char* severityName(FindingSeverity severity);

/// Title of the role that it is about; empty without one.
QString roleTitle(const Finding& finding);
/// "fa/dns-1.cfg:5"; the file alone without a line, nothing without a file.
QString place(const Finding& finding);
/// "IPADDR 192.168.9.22 (fa/dns-1.cfg)".
QString textOf(const Evidence& evidence);

QJsonArray jsonOf(const Findings& findings);

/// How many there are of each severity.
std::array<int, 3> counted(const Findings& findings);
/// "1 error, 2 warnings, 3 of information"; "nothing found" without any.
QString countText(const std::array<int, 3>& counts);

} // namespace FindingText

#endif
