#ifndef IMPORTDIALOG_H
#define IMPORTDIALOG_H

#include <QDialog>

/// Base of the import's dialogs: without the frame of a window manager, in the middle of the page's window.
class ImportDialog : public QDialog
{
    Q_OBJECT

protected:
    explicit ImportDialog(QWidget* parent);

    /// Applies the style sheet of the class; to be called when the form is built.
    void applyStyle();
    void showEvent(QShowEvent* event) override;
};

#endif
