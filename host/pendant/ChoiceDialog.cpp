#include "ChoiceDialog.h"

#include "TouchFrame.h"

#include <QGridLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>

namespace {
constexpr int Margin = 24;
constexpr int Gap = 16;
} // namespace

ChoiceDialog::ChoiceDialog(const QString& title, const std::vector<Choice>& choices, int chosen, int columns,
                           QWidget* parent)
    : QDialog(parent)
    , m_chosen(chosen)
{
    new TouchFrame(this);

    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->setSpacing(Gap);
    auto* caption = new QLabel(title, this);
    caption->setObjectName(QStringLiteral("dialogTitle"));
    layout->addWidget(caption, 0, 0, 1, columns);

    int index = 0;
    for (const Choice& choice : choices) {
        auto* button = new QPushButton(choice.text, this);
        button->setObjectName(choice.name);
        button->setMinimumSize(180, 88);
        button->setCheckable(true);
        button->setChecked(index == chosen);
        button->setAutoDefault(false);
        if (index == chosen)
            button->setFocus();
        connect(button, &QPushButton::clicked, this, [this, index] {
            m_chosen = index;
            accept();
        });
        layout->addWidget(button, 1 + index / columns, index % columns);
        ++index;
    }

    auto* cancel = new QPushButton(tr("Cancel"), this);
    cancel->setObjectName(QStringLiteral("cancelButton"));
    cancel->setAutoDefault(false);
    cancel->setMinimumSize(180, 64);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    layout->addWidget(cancel, 1 + (index + columns - 1) / columns, columns - 1);
}

int ChoiceDialog::ask(ChoiceDialog* made)
{
    const QPointer<ChoiceDialog> dialog(made);
    const int result = dialog->exec();
    const int chosen = dialog && result == QDialog::Accepted ? dialog->m_chosen : -1;
    delete dialog.data();
    return chosen;
}
