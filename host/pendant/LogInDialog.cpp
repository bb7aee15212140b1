#include "LogInDialog.h"

#include "TouchFrame.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace {
// A level is a text in two lines: the number that applications ask for, and who usually has it.
constexpr const char* Levels[] = {
    QT_TRANSLATE_NOOP("LogInDialog", "nobody"),   QT_TRANSLATE_NOOP("LogInDialog", "operator"),
    QT_TRANSLATE_NOOP("LogInDialog", "shift"),    QT_TRANSLATE_NOOP("LogInDialog", "technician"),
    QT_TRANSLATE_NOOP("LogInDialog", "engineer"), QT_TRANSLATE_NOOP("LogInDialog", "service"),
};
static_assert(sizeof(Levels) / sizeof(Levels[0]) == LogInDialog::HighestLevel + 1, "a name for each level");

constexpr int Columns = 3;
} // namespace

LogInDialog::LogInDialog(int level, QWidget* parent)
    : QDialog(parent)
    , m_level(level)
{
    setObjectName(QStringLiteral("logInDialog"));
    new TouchFrame(this);

    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(24, 24, 24, 24);
    layout->setSpacing(16);
    auto* title = new QLabel(tr("Log in: choose the user level"), this);
    title->setObjectName(QStringLiteral("dialogTitle"));
    layout->addWidget(title, 0, 0, 1, Columns);

    for (int i = 0; i <= HighestLevel; ++i) {
        auto* button = new QPushButton(QStringLiteral("%1\n%2").arg(i).arg(tr(Levels[i])), this);
        button->setObjectName(QStringLiteral("level%1").arg(i));
        button->setMinimumSize(180, 88);
        button->setCheckable(true);
        button->setChecked(i == level);
        button->setAutoDefault(false);
        if (i == level)
            button->setFocus();
        connect(button, &QPushButton::clicked, this, [this, i] {
            m_level = i;
            accept();
        });
        layout->addWidget(button, 1 + i / Columns, i % Columns);
    }

    auto* cancel = new QPushButton(tr("Cancel"), this);
    cancel->setObjectName(QStringLiteral("cancelButton"));
    cancel->setAutoDefault(false);
    cancel->setMinimumSize(180, 64);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    layout->addWidget(cancel, 2 + HighestLevel / Columns, Columns - 1);
}
