#ifndef STATETEXT_H
#define STATETEXT_H

#include "Finding.h"
#include "Subjects.h"

/// What is known in the operator's language, and the signs that go with it.
namespace StateText {

/// "outside its settings"
QString of(Subjects::Health health);
/// Picture of a sign of its own shape.
const char* signOf(Subjects::Health health);
const char* signOf(FindingSeverity severity);

/// "yes", "no", or "?" when it is not known.
QString yesNo(std::optional<bool> is);
/// The time of today, the day and the time of another day; empty when it is not known.
QString timeOf(const QDateTime& time);

/// A code of "ifidbus.dnm_errorcode" in words.
QString deviceNetCode(int code);

/// The texts of a finding.
QString cause(const Finding& finding);
QString nextStep(const Finding& finding);

} // namespace StateText

#endif
