#include "ProgressDialog.h"

#include "ZelFunctions.h"
#include "ui_ProgressDialog.h"

#include <QCloseEvent>

ProgressDialog::ProgressDialog(QWidget* parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::ProgressDialog>())
{
    ui->setupUi(this);
    setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    setWindowModality(Qt::ApplicationModal);
    ZelSetUIStyleSheet(this, QStringLiteral("fieldbussetting/ProgressDialog"));
}

ProgressDialog::~ProgressDialog() = default;

ProgressDialog& ProgressDialog::of(QWidget& page)
{
    auto* dialog = page.findChild<ProgressDialog*>(QString(), Qt::FindDirectChildrenOnly);
    return dialog ? *dialog : *new ProgressDialog(&page);
}

void ProgressDialog::hideOn(QWidget& page)
{
    if (auto* dialog = page.findChild<ProgressDialog*>(QString(), Qt::FindDirectChildrenOnly))
        dialog->hide();
}

void ProgressDialog::setText(const QString& text)
{
    ui->label->setText(text);
}

void ProgressDialog::setRange(int minimum, int maximum)
{
    ui->progressBar->setRange(minimum, maximum);
}

void ProgressDialog::setValue(int value)
{
    ui->progressBar->setValue(value);
}

// Neither the modality nor the place above the others can be changed while the window is shown.
void ProgressDialog::setBlocking(bool blocking)
{
    if (blocking == isModal())
        return;
    hide();
    setWindowModality(blocking ? Qt::ApplicationModal : Qt::NonModal);
    setWindowFlag(Qt::WindowStaysOnTopHint, blocking);
}

// QDialog's own would ask `reject`. Only the window system can ask spontaneously, and it asks for the
// operator.
void ProgressDialog::closeEvent(QCloseEvent* event)
{
    event->setAccepted(!event->spontaneous());
}
