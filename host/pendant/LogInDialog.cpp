#include "LogInDialog.h"

namespace {
// A level is a text in two lines: the number that applications ask for, and who usually has it.
constexpr const char* Levels[] = {
    QT_TRANSLATE_NOOP("LogInDialog", "nobody"),   QT_TRANSLATE_NOOP("LogInDialog", "operator"),
    QT_TRANSLATE_NOOP("LogInDialog", "shift"),    QT_TRANSLATE_NOOP("LogInDialog", "technician"),
    QT_TRANSLATE_NOOP("LogInDialog", "engineer"), QT_TRANSLATE_NOOP("LogInDialog", "service"),
};
static_assert(sizeof(Levels) / sizeof(Levels[0]) == LogInDialog::HighestLevel + 1, "a name for each level");

constexpr int Columns = 3;

std::vector<ChoiceDialog::Choice> levels()
{
    std::vector<ChoiceDialog::Choice> choices;
    for (int i = 0; i <= LogInDialog::HighestLevel; ++i)
        choices.push_back({QStringLiteral("level%1").arg(i),
                           QStringLiteral("%1\n%2").arg(i).arg(LogInDialog::tr(Levels[i]))});
    return choices;
}
} // namespace

LogInDialog::LogInDialog(int level, QWidget* parent)
    : ChoiceDialog(tr("Log in: choose the user level"), levels(), level, Columns, parent)
{
    setObjectName(QStringLiteral("logInDialog"));
}
