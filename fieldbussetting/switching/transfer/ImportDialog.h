#ifndef IMPORTDIALOG_H
#define IMPORTDIALOG_H

#include <QDialog>
#include <QPointer>

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

/// Runs a dialog that is a child of its page, hands it to `chosen` when it is accepted, and deletes it. False
/// also when the page was closed meanwhile.
template <typename Dialog, typename Chosen = void (*)(const Dialog&)>
bool isAccepted(
    Dialog* made, const Chosen& chosen = [](const Dialog& /*dialog*/) {})
{
    const QPointer<Dialog> dialog(made);
    const bool accepted = dialog->exec() == QDialog::Accepted && dialog;
    if (accepted)
        chosen(*dialog);
    delete dialog.data();
    return accepted;
}

#endif
