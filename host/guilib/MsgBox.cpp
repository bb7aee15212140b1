#include "MsgBox.h"

#include "MsgBoxScript.h"
#include "TouchFrame.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>

#include <array>

namespace {
constexpr int TextWidth = 620;
constexpr int LeastTextHeight = 96;
constexpr int IconSize = 64;
constexpr int Margin = 24;
constexpr int Gap = 16;

// Captions of the confirming and of the other button, in the order of MsgBox::Buttons.
struct Captions
{
    const char* confirm;
    const char* second;
};
constexpr std::array<Captions, 4> AllCaptions = {
    {{nullptr, nullptr},
     {QT_TRANSLATE_NOOP("MsgBox", "OK"), nullptr},
     {QT_TRANSLATE_NOOP("MsgBox", "OK"), QT_TRANSLATE_NOOP("MsgBox", "Cancel")},
     {QT_TRANSLATE_NOOP("MsgBox", "Yes"), QT_TRANSLATE_NOOP("MsgBox", "No")}}};

// Set by an application on a question whose consequence is not to be met by a hand that only goes on
// pressing, as a restart: its confirming button lies at the other end of the box.
constexpr auto GraveProperty = "grave";

void moveAside(QPushButton* button, QHBoxLayout* row)
{
    row->removeWidget(button);
    row->insertWidget(0, button);
}

QString iconOf(int kind)
{
    switch (kind) {
    case MsgBox::Warning:
        return QStringLiteral(":/host/warning.png");
    case MsgBox::Error:
        return QStringLiteral(":/host/error.png");
    default:
        return QStringLiteral(":/host/information.png");
    }
}
} // namespace

MsgBox::MsgBox(int kind, const QString& text, QWidget* parent, Buttons buttons)
    : QDialog(parent)
    , m_kind(kind)
    , m_text(text)
    , m_buttons(buttons)
{
    setProperty("kind", kind);
    new TouchFrame(this, buttons == NoButton ? TouchFrame::Place::Centre : TouchFrame::Place::Question);

    auto* icon = new QLabel(this);
    icon->setObjectName(QStringLiteral("label_icon"));
    icon->setPixmap(QPixmap(iconOf(kind)));
    icon->setFixedWidth(IconSize);

    auto* words = new QLabel(text, this);
    words->setObjectName(QStringLiteral("label_text"));
    // Texts come with line ends of their own and may quote file contents: never rich text.
    words->setTextFormat(Qt::PlainText);
    words->setWordWrap(true);
    words->setFixedWidth(TextWidth);
    words->setMinimumHeight(LeastTextHeight);

    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->setHorizontalSpacing(Margin);
    layout->setVerticalSpacing(Margin);
    layout->addWidget(icon, 0, 0, Qt::AlignTop);
    layout->addWidget(words, 0, 1, Qt::AlignVCenter);
    layout->setSizeConstraint(QLayout::SetFixedSize);

    const Captions& captions = AllCaptions.at(static_cast<std::size_t>(buttons));
    if (!captions.confirm)
        return;
    auto* row = new QHBoxLayout;
    row->setObjectName(QStringLiteral("buttonRow"));
    layout->addLayout(row, 1, 0, 1, 2);
    row->setSpacing(Gap);
    row->addStretch(1);
    const auto add = [this, row](const char* caption, const char* name, Result result) {
        if (!caption)
            return;
        auto* button = new QPushButton(tr(caption), this);
        button->setObjectName(QLatin1String(name));
        button->setAutoDefault(false);
        button->setProperty("primary", result == Confirmed);
        connect(button, &QPushButton::clicked, this, [this, result] { done(result); });
        row->addWidget(button);
    };
    add(captions.confirm, "confirmButton", Confirmed);
    add(captions.second, "secondButton", Second);
}

MsgBox::~MsgBox() = default;

int MsgBox::exec()
{
    // The dialog's own loop ends when the box dies and touches no member afterwards.
    return QDialog::exec();
}

void MsgBox::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (event->spontaneous())
        return;
    if (auto* confirm = findChild<QPushButton*>(QStringLiteral("confirmButton"))) {
        confirm->setFocus();
        if (property(GraveProperty).toBool())
            moveAside(confirm, findChild<QHBoxLayout*>(QStringLiteral("buttonRow")));
    }
    MsgBoxScript::boxShown(this, m_buttons);
}

void MsgBox::keyPressEvent(QKeyEvent* event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!isReturn) {
        QDialog::keyPressEvent(event);
        return;
    }
    // Return presses the button that has the focus and no other, so that it confirms nothing unseen.
    if (auto* button = qobject_cast<QPushButton*>(focusWidget()))
        button->click();
}
