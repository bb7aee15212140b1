#include "StateText.h"

#include "DeviceNetCodes.h"

#include <QCoreApplication>

namespace StateText {

namespace {

struct Look
{
    const char* word;
    const char* sign;
};

// By Subjects::Health.
constexpr Look Looks[] = {
    {QT_TRANSLATE_NOOP("StateText", "good"), "good"},
    {QT_TRANSLATE_NOOP("StateText", "being checked"), "checked"},
    {QT_TRANSLATE_NOOP("StateText", "outside its settings"), "outside"},
    {QT_TRANSLATE_NOOP("StateText", "failed"), "failed"},
    {QT_TRANSLATE_NOOP("StateText", "off"), "off"},
};

QString translated(const char* text)
{
    return QCoreApplication::translate("StateText", text);
}

QString filled(const MarkedText& text)
{
    return text.filled(QCoreApplication::translate("Findings", text.text));
}

} // namespace

QString of(Subjects::Health health)
{
    return translated(Looks[static_cast<int>(health)].word);
}

const char* signOf(Subjects::Health health)
{
    return Looks[static_cast<int>(health)].sign;
}

const char* signOf(FindingSeverity severity)
{
    switch (severity) {
    case FindingSeverity::Error:
        return signOf(Subjects::Health::Failed);
    case FindingSeverity::Warning:
        return signOf(Subjects::Health::Outside);
    case FindingSeverity::Information:
        break;
    }
    return "information";
}

QString yesNo(std::optional<bool> is)
{
    if (!is)
        return QStringLiteral("?");
    return translated(*is ? QT_TRANSLATE_NOOP("StateText", "yes") : QT_TRANSLATE_NOOP("StateText", "no"));
}

QString timeOf(const QDateTime& time)
{
    if (!time.isValid())
        return {};
    const bool isToday = time.date() == QDate::currentDate();
    return time.toString(isToday ? QStringLiteral("HH:mm:ss") : QStringLiteral("yyyy-MM-dd HH:mm"));
}

QString deviceNetCode(int code)
{
    const MarkedText text = DeviceNetCodes::textOf(code);
    return text.filled(QCoreApplication::translate("DeviceNetCodes", text.text));
}

QString cause(const Finding& finding)
{
    return filled(finding.cause);
}

QString nextStep(const Finding& finding)
{
    return filled(finding.next);
}

} // namespace StateText
