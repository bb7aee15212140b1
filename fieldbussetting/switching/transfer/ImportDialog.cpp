#include "ImportDialog.h"

#include "ZelFunctions.h"

#include <QShowEvent>

ImportDialog::ImportDialog(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint)
{
}

void ImportDialog::applyStyle()
{
    ZelSetUIStyleSheet(this, QLatin1String("fieldbussetting/") + QLatin1String(metaObject()->className()));
}

void ImportDialog::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (event->spontaneous() || !parentWidget())
        return;
    const QWidget* window = parentWidget()->window();
    move(window->mapToGlobal(window->rect().center()) - rect().center());
}
