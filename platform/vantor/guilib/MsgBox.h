#ifndef VANTOR_GUILIB_MSGBOX_H
#define VANTOR_GUILIB_MSGBOX_H

#include <QDialog>

/// Message and question box for fingers.
class MsgBox : public QDialog
{
    Q_OBJECT

public:
    /// What is shown beside the text. The numbers are the host's.
    enum Kind { Information = 0, Warning = 1, Error = 2 };
    /// None: a notice without buttons, closed by the code that shows it.
    enum Buttons { NoButton, Ok, OkCancel, YesNo };
    /// Result of `exec()`: Confirmed for the confirming button (also the one of an Ok box), Second for the
    /// other button, Dismissed when the box was closed otherwise or destroyed.
    enum Result { Dismissed = 0, Confirmed = 1, Second = 2 };

    /// The box is a child of `parent` and dies with it; an `exec()` under way then returns Dismissed.
    explicit MsgBox(int kind, const QString& text, QWidget* parent = nullptr, Buttons buttons = Ok);
    ~MsgBox() override;

    /// Shows the box modally; events are processed while it waits.
    int exec() override;

    int kind() const { return m_kind; }
    QString text() const { return m_text; }

protected:
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    int m_kind;
    QString m_text;
    Buttons m_buttons;
};

#endif
