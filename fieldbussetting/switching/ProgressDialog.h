#ifndef PROGRESSDIALOG_H
#define PROGRESSDIALOG_H

#include <QDialog>

#include <memory>

namespace Ui {
class ProgressDialog;
}

/// A line of text above a progress bar, shown over everything while files are copied. It has no buttons, and
/// the operator cannot close it: whoever opens it closes it.
class ProgressDialog : public QDialog
{
    Q_OBJECT

public:
    explicit ProgressDialog(QWidget* parent);
    ~ProgressDialog() override;

    /// The one of `page`, its child, made on first use.
    static ProgressDialog& of(QWidget& page);
    /// Hides the one of `page`, if there is one: what an export that failed has left says how far it came
    /// until the next dialog.
    static void hideOn(QWidget& page);

    void setText(const QString& text);
    void setRange(int minimum, int maximum);
    void setValue(int value);

    /// Whether it holds up all other windows and lies over them, as it does from the start. Without that it
    /// stays on the screen, but boxes come above it and the page can be used. Hides it when it changes.
    void setBlocking(bool blocking);

    /// Does nothing: no key dismisses it.
    void reject() override {}

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    std::unique_ptr<Ui::ProgressDialog> ui;
};

#endif
